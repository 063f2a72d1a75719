// SPDX-License-Identifier: MIT
// The way of one field loop through its input, and whether it can ever end.

#pragma once

#include "tests/model/sightings.hpp"

#include <set>
#include <utility>

namespace model {

// What a loop does next depends on two things that change: its position, and which members have a
// pointer already (all else that it writes is never read, and an embedded record starts anew each
// time). Of both there are two proofs that it goes round for ever. The second is slow and there to
// confirm the first.
enum class Proof {
    // It stands where it stood before, with the same pointers set.
    state_seen_again,
    // It has made more steps than there are states: pointers are set and never cleared.
    more_steps_than_states,
};

struct Patience {
    Proof proof = Proof::state_seen_again;
    // A loop that asks for blocks goes on until it has asked for more than so many.
    uint32_t calls = 0;
};

class Course {
public:
    Course(const RecordType &type, uint8_t *record, uint32_t length, Level level,
           const Patience &patience, Sightings &sightings)
        : type_(type), record_(record), length_(length), level_(level), patience_(patience),
          sightings_(sightings)
    {}

    // Called behind each field. Whether to give up, since the loop never ends.
    bool never_ends(uint32_t position);

    void pass(uint32_t what) { passed_ |= what; }

private:
    using State = std::pair<uint32_t, uint64_t>;

    bool lands_again(const State &state);
    void begin_round(const State &state);
    uint64_t pointers() const;
    void put_stand();

    const RecordType &type_;
    uint8_t *record_;
    uint32_t length_;
    Level level_;
    const Patience &patience_;
    Sightings &sightings_;

    uint64_t steps_ = 0;
    uint32_t last_position_ = 0;
    uint32_t passed_ = 0;
    bool went_back_ = false;
    std::set<State> seen_;
    std::vector<Stand> stands_;

    // Of the round that is gone through once more when it is known to be one.
    bool in_round_ = false;
    State round_start_ = {};
    uint32_t calls_at_start_ = 0;
    uint32_t landings_ = 0;
};

} // namespace model
