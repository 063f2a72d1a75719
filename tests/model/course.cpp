// SPDX-License-Identifier: MIT
// A loop that never ends goes back again and again, so states are compared where it goes back. It
// is then followed round once more, to see what lies on its way.

#include "tests/model/course.hpp"
#include "tests/model/record_memory.hpp"

#include <bitset>

namespace model {

bool Course::never_ends(uint32_t position)
{
    ++steps_;
    const bool back = position <= last_position_;
    last_position_ = position;
    went_back_ |= back;
    sightings_.went_back |= back;
    if (patience_.proof == Proof::more_steps_than_states) {
        uint64_t most_pointers = 0;
        for (const Member &member : type_.members)
            most_pointers += has_pointer(member.kind);
        sightings_.endless |= steps_ > length_ * (most_pointers + 1);
        return sightings_.endless;
    }
    if (!went_back_)
        return false;
    put_stand();
    return back && lands_again({position, pointers()});
}

bool Course::lands_again(const State &state)
{
    if (!in_round_) {
        if (!seen_.insert(state).second)
            begin_round(state);
        return false;
    }
    ++landings_;
    if (state != round_start_)
        return false;
    const bool asks = sightings_.calls != calls_at_start_;
    if (asks)
        pass(kBlocks);
    if (landings_ > 1)
        pass(kSeveralLandings);
    if (state.second)
        pass(kBlocksBefore);
    sightings_.loop.passed = passed_;
    if (!asks || sightings_.calls > patience_.calls)
        return true;
    begin_round(state);
    return false;
}

void Course::begin_round(const State &state)
{
    if (!in_round_) {
        sightings_.endless = true;
        sightings_.loop.record = record_;
        sightings_.loop.level = level_;
        sightings_.loop.stands = std::move(stands_);
    }
    in_round_ = true;
    round_start_ = state;
    calls_at_start_ = sightings_.calls;
    landings_ = 0;
    passed_ = 0;
}

uint64_t Course::pointers() const
{
    std::bitset<64> set;
    for (size_t i = 0; i < type_.members.size(); ++i) {
        const Member &member = type_.members[i];
        set[i] = has_pointer(member.kind) && load_pointer(record_ + member.offset);
    }
    return set.to_ullong();
}

void Course::put_stand()
{
    auto &stands = in_round_ ? sightings_.loop.stands : stands_;
    stands.push_back({sightings_.calls, {record_, record_ + type_.size}});
}

} // namespace model
