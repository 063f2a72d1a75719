// SPDX-License-Identifier: MIT
#include "tests/catalogue/layout.hpp"

#include "tests/catalogue/memory.hpp"

#include <algorithm>
#include <map>

namespace catalogue {

namespace {

struct Extent {
    size_t size;
    size_t alignment;
};

Extent extent_of(const Member &member)
{
    switch (member.kind) {
    case Kind::uint32:
        return {4, 4};
    case Kind::uint64:
        return {8, 8};
    case Kind::boolean:
        return {1, 1};
    case Kind::string:
        return {sizeof(void *), sizeof(void *)};
    case Kind::message: {
        const Layout &child = layout_of(find_type(member.child));
        return {child.size, child.alignment};
    }
    default:
        return {sizeof(void *) + 4, sizeof(void *)};
    }
}

size_t round_up(size_t value, size_t alignment)
{
    return (value + alignment - 1) / alignment * alignment;
}

// The flags are bit-fields of a 32-bit type, which gives the structure that type's alignment.
Layout compute(const RecordType &type)
{
    Layout layout{{}, 0, 4, 0};
    size_t end = 0;
    for (const Member &member : type.members) {
        const Extent extent = extent_of(member);
        layout.offsets.push_back(round_up(end, extent.alignment));
        layout.alignment = std::max(layout.alignment, extent.alignment);
        end = layout.offsets.back() + extent.size;
    }
    layout.flags = end;
    layout.size = round_up(end + (type.members.size() + 7) / 8, layout.alignment);
    return layout;
}

} // namespace

const Layout &layout_of(const RecordType &type)
{
    static std::map<const RecordType *, Layout> layouts;
    const auto known = layouts.find(&type);
    if (known != layouts.end())
        return known->second;
    return layouts.emplace(&type, compute(type)).first->second;
}

size_t count_offset(const Member &member)
{
    return member.offset + sizeof(void *);
}

bool flag(const RecordType &type, const void *record, const Member &member)
{
    const uint8_t byte = load<uint8_t>(record, layout_of(type).flags + member.bit / 8);
    return byte >> member.bit % 8 & 1;
}

} // namespace catalogue
