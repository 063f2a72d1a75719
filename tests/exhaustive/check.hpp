// SPDX-License-Identifier: MIT
// A check holds a function against a reference for every input there is. It is cut into parts,
// which run on all processors; a slice runs some of the parts, spread over all of them.

#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace exhaustive {

// What is wrong with the first input for which something is.
using Difference = std::optional<std::string>;

struct Check {
    const char *name;
    uint32_t parts;
    uint64_t cases_of_a_part;
    std::function<Difference(uint32_t part)> run;
};

// One of `every` parts, the first and the last among them.
struct Slice {
    uint32_t every;
    unsigned threads;
};

// Runs the checks and prints a line for each: cases, seconds of processor time, name. Ends with the
// first that fails.
bool run_checks(const std::vector<Check> &checks, const Slice &slice);

std::string describe(uint64_t value, const char *wrong);

// 2^32 values in parts of 2^16.
inline constexpr uint32_t kParts = 1 << 16;
inline constexpr uint32_t kPartSize = 1 << 16;

// A check of all 32-bit values: test(value) returns a description of what is wrong, or null.
template <typename Test>
Check for_all_32_bit_values(const char *name, Test test)
{
    return {name, kParts, kPartSize, [test](uint32_t part) -> Difference {
                for (uint32_t i = 0; i < kPartSize; i++) {
                    const uint32_t value = part * kPartSize + i;
                    if (const char *wrong = test(value))
                        return describe(value, wrong);
                }
                return {};
            }};
}

// Likewise of all 64-bit values that have their bits in a window of this width, at any place, and
// of their complements.
inline constexpr uint32_t kWindow = 22;
inline constexpr uint32_t kPlaces = 64 - kWindow + 1;

template <typename Test>
Check for_64_bit_windows(const char *name, Test test)
{
    constexpr uint32_t kPartsOfWindow = (1 << kWindow) / kPartSize;
    return {name, 2 * kPlaces * kPartsOfWindow, kPartSize, [test](uint32_t part) -> Difference {
                const uint32_t place = part / kPartsOfWindow % kPlaces;
                const uint64_t flip = part / kPartsOfWindow < kPlaces ? 0 : UINT64_MAX;
                for (uint64_t i = 0; i < kPartSize; i++) {
                    const uint64_t bits = uint64_t{part % kPartsOfWindow} * kPartSize + i;
                    if (const char *wrong = test(bits << place ^ flip))
                        return describe(bits << place ^ flip, wrong);
                }
                return {};
            }};
}

// The checks, file by file.
std::vector<Check> varint_write_checks();
std::vector<Check> varint_read_checks();
std::vector<Check> skip_checks();
std::vector<Check> tag_checks();
std::vector<Check> number_checks();
std::vector<Check> short_message_checks();

} // namespace exhaustive
