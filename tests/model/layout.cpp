// SPDX-License-Identifier: MIT
// Where the members of a record lie: in member order, each at its alignment, the flags from the
// first free byte behind the last member.

#include "tests/model/catalogue.hpp"

#include <algorithm>
#include <stdexcept>

namespace model {

namespace {

constexpr uint32_t kPointerSize = sizeof(void *);

struct Extent {
    uint32_t size;
    uint32_t alignment;
};

uint32_t round_up(uint32_t value, uint32_t alignment)
{
    return (value + alignment - 1) / alignment * alignment;
}

void lay_out_type(RecordType &type);

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
        return {kPointerSize, kPointerSize};
    case Kind::record:
        return {member.child->size, member.child->alignment};
    default:
        return {kPointerSize, kPointerSize};
    }
}

void lay_out_type(RecordType &type)
{
    if (type.laid_out)
        return;
    type.laid_out = true;
    if (type.members.empty())
        return;
    uint32_t end = 0;
    type.alignment = 4;
    for (Member &member : type.members) {
        if (member.child)
            lay_out_type(const_cast<RecordType &>(*member.child));
        const Extent extent = extent_of(member);
        member.offset = round_up(end, extent.alignment);
        end = member.offset + extent.size;
        if (member.kind == Kind::bytes || is_repeated(member.kind))
            end += 4;
        type.alignment = std::max(type.alignment, extent.alignment);
    }
    type.flags_offset = end;
    end += uint32_t(type.members.size() + 7) / 8;
    type.size = round_up(end, type.alignment);
}

} // namespace

RecordType *Catalogue::find(const std::string &name) const
{
    for (const auto &type : types)
        if (type->name == name)
            return type.get();
    return nullptr;
}

void lay_out(Catalogue &catalogue)
{
    for (const auto &type : catalogue.types)
        for (Member &member : type->members)
            if (!member.child_name.empty() && !(member.child = catalogue.find(member.child_name)))
                throw std::runtime_error(type->name + "." + member.name + ": no type " +
                                         member.child_name);
    for (const auto &type : catalogue.types)
        lay_out_type(*type);
}

bool is_repeated(Kind kind)
{
    return kind == Kind::uint32s || kind == Kind::strings || kind == Kind::records;
}

bool has_pointer(Kind kind)
{
    return kind == Kind::string || kind == Kind::bytes || is_repeated(kind);
}

uint32_t element_size(const Member &member)
{
    switch (member.kind) {
    case Kind::uint32s:
        return 4;
    case Kind::strings:
        return kPointerSize;
    case Kind::records:
        return member.child->size;
    default:
        return 0;
    }
}

} // namespace model
