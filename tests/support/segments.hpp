// SPDX-License-Identifier: MIT
// Writes down the pieces of an encoding, e.g. "(buffer+4, 2) (data, 4)", whatever the addresses.

#pragma once

#include "runtime/record.h"

#include <cstdint>
#include <string>
#include <vector>

namespace test {

// Memory outside of the buffer that pieces may be in.
struct Named {
    const void *data;
    std::string name;
};

inline std::string describe(const WireSegment &segment, const uint8_t *buffer, uint32_t capacity,
                            const std::vector<Named> &others)
{
    const uintptr_t at = reinterpret_cast<uintptr_t>(segment.data);
    const uintptr_t base = reinterpret_cast<uintptr_t>(buffer);
    constexpr uintptr_t kLowestPage = 4096;
    const auto offset = [](uintptr_t bytes) {
        return bytes ? "+" + std::to_string(bytes) : std::string();
    };
    std::string where = "elsewhere";
    if (at < kLowestPage)
        where = "null" + offset(at);
    else if (buffer && at >= base && at - base <= capacity)
        where = "buffer" + offset(at - base);
    for (const Named &other : others)
        if (other.data == segment.data)
            where = other.name;
    return "(" + where + ", " + std::to_string(segment.length) + ")";
}

} // namespace test
