// SPDX-License-Identifier: MIT
// How often each class of cases has come up, so that a run can tell that it has tried them all.

#pragma once

#include "tests/model/sightings.hpp"

#include <array>
#include <cstddef>
#include <cstdint>

namespace model {

// Classes of what is not decoding.
enum class Seen {
    measured,
    written_whole,
    written_short,
    segments_whole,
    segments_short,
    bytes_as_segments,
    copied_whole,
    copied_without_memory,
    released_blocks,
    released_nothing,
    count,
};

class Tally {
public:
    void count(Seen what) { ++others_[size_t(what)]; }
    void count_decode(int32_t result, const Sightings &seen);
    // That counting steps came to the same as comparing states.
    void count_confirmed(bool endless) { ++confirmed_[endless]; }

    // Prints all classes and returns how many of them are empty.
    int print() const;

private:
    static constexpr size_t kLevels = size_t(Level::count);
    static constexpr size_t kPassedBits = 11;

    struct Ends {
        uint64_t straight;
        uint64_t after_going_back;
    };

    void print_ends(int *empty) const;
    void print_endless(int *empty) const;

    std::array<Ends, size_t(Reason::count)> ends_ = {};
    std::array<uint64_t, kLevels> errors_at_ = {};
    std::array<uint64_t, kLevels> endless_at_ = {};
    std::array<uint64_t, kPassedBits> passed_ = {};
    uint64_t endless_ = 0;
    uint64_t endless_alone_ = 0;
    uint64_t endless_without_memory_ = 0;
    std::array<uint64_t, 2> confirmed_ = {};
    std::array<uint64_t, size_t(Seen::count)> others_ = {};
};

} // namespace model
