// SPDX-License-Identifier: MIT
// The way from a record to the place in it at which decoding ended early, if it did; and what of
// the record can be shown then.

#pragma once

#include "tools/core/record.hpp"
#include "tools/core/verdict.hpp"

#include <algorithm>
#include <cstdint>
#include <span>
#include <vector>

namespace inspect {

class Trail {
public:
    // Leads nowhere: decoding came to the end, or ended elsewhere.
    Trail() = default;
    // From the outermost record; an empty path leads nowhere.
    explicit Trail(const std::vector<Step> &path) : leads_(!path.empty()), steps_(path) {}

    // Whether it ends in the record itself, and in none of its members.
    bool ends_here() const { return leads_ && steps_.empty(); }
    // The next step; null where there is none.
    const Step *next() const { return steps_.empty() ? nullptr : steps_.data(); }
    bool goes_to(const Member &member) const { return next() && next()->member == &member; }

    // How it goes on behind the next step.
    Trail rest() const { return Trail(steps_.subspan(1)); }

private:
    explicit Trail(std::span<const Step> steps) : leads_(true), steps_(steps) {}

    bool leads_ = false;
    std::span<const Step> steps_;
};

// How many elements of a list were reached. Flags are set behind the last element: without it, a
// list on the trail was left in the middle, with its full count, and numbers behind that place are
// whatever the memory held. The record of the element in which it was left counts.
inline uint32_t elements_reached(RecordView record, const Member &list, const Trail &trail)
{
    if (record.has(list))
        return record.count(list);
    if (!trail.goes_to(list))
        return 0;
    const uint64_t behind = uint64_t{trail.next()->index} + (is_nested(list.kind) ? 1 : 0);
    return static_cast<uint32_t>(std::min<uint64_t>(record.count(list), behind));
}

// Whether decoding was in the middle of this member, which is a record or a list of records.
inline bool is_entered(RecordView record, const Member &member, const Trail &trail)
{
    if (!trail.goes_to(member))
        return false;
    return member.kind == Kind::message ||
           (member.kind == Kind::repeated_message && !record.has(member) &&
            trail.next()->index < record.count(member));
}

// How the trail goes on in an embedded record, or in an element of a list.
inline Trail trail_into(RecordView record, const Member &member, uint32_t index, const Trail &trail)
{
    const bool is_there = is_entered(record, member, trail) &&
                          (!is_list(member.kind) || trail.next()->index == index);
    return is_there ? trail.rest() : Trail{};
}

// Whether there is something to show of a member.
inline bool is_shown(RecordView record, const Member &member, const Trail &trail)
{
    return record.is_written(member) || is_entered(record, member, trail) ||
           (is_list(member.kind) && elements_reached(record, member, trail) != 0);
}

} // namespace inspect
