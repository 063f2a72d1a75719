// SPDX-License-Identifier: MIT
#include "generator/layout.hpp"

#include <algorithm>

namespace generator {

namespace {

struct Extent {
    unsigned size;
    unsigned alignment;
};

unsigned round_up(unsigned value, unsigned alignment)
{
    return (value + alignment - 1) / alignment * alignment;
}

// Of the first member, where there are two.
Extent extent_of(const Member &member, const Layouts &known, unsigned pointer_size)
{
    switch (member.kind) {
    case Kind::uint32:
        return {4, 4};
    case Kind::uint64:
        return {8, 8};
    case Kind::boolean:
        return {1, 1};
    case Kind::message: {
        const Layout &child = known.at(member.child);
        return {child.size, child.alignment};
    }
    default:
        return {pointer_size, pointer_size};
    }
}

Layout layout_of(const Record &record, const Layouts &known, unsigned pointer_size)
{
    Layout layout;
    if (record.members.empty())
        return layout;
    unsigned end = 0;
    layout.alignment = 4; // of the unit that holds the presence flags
    for (const Member &member : record.members) {
        const Extent extent = extent_of(member, known, pointer_size);
        layout.offsets.push_back(round_up(end, extent.alignment));
        end = layout.offsets.back() + extent.size + (is_pair(member.kind) ? 4 : 0);
        layout.alignment = std::max(layout.alignment, extent.alignment);
    }
    layout.flags = end;
    const unsigned flag_bytes = static_cast<unsigned>(record.members.size() + 7) / 8;
    layout.size = round_up(end + flag_bytes, layout.alignment);
    return layout;
}

} // namespace

Layouts layouts(const std::vector<const Record *> &records, const Target &target)
{
    Layouts known;
    for (const Record *record : records)
        known[record->name] = layout_of(*record, known, target.pointer_size);
    return known;
}

} // namespace generator
