// SPDX-License-Identifier: MIT
#include "tests/fuzz/types.hpp"

#include "tests/catalogue/layout.hpp"

#include <deque>
#include <map>

namespace fuzz {

namespace {

using catalogue::Member;
using catalogue::RecordType;

class Types {
public:
    Types()
    {
        for (const RecordType &type : catalogue::record_types())
            list_.push_back(&resolve(type));
    }

    const std::vector<const Type *> &list() const { return list_; }

private:
    const Type &resolve(const RecordType &operations);
    Field field_of(const Type &type, size_t index);
    void add_field(Type &type, const Field &field);
    static void own(Type &type, const Field &field);

    std::deque<Type> types_;
    std::map<const RecordType *, const Type *> known_;
    std::vector<const Type *> list_;
};

uint32_t element_size_of(const Member &member, const Type *child)
{
    switch (member.kind) {
    case Kind::bytes:
        return 1;
    case Kind::repeated_uint32:
        return sizeof(uint32_t);
    case Kind::repeated_string:
        return sizeof(char *);
    default:
        return child ? child->size : 0;
    }
}

Field Types::field_of(const Type &type, size_t index)
{
    const Member &member = type.operations->members[index];
    const catalogue::Layout &layout = catalogue::layout_of(*type.operations);
    const Type *child = member.child ? &resolve(catalogue::find_type(member.child)) : nullptr;
    return {
        member.kind,
        member.number,
        catalogue::is_scalar(member.kind) || member.kind == Kind::repeated_uint32 ? 0U : 2U,
        static_cast<uint32_t>(layout.offsets[index]),
        static_cast<uint32_t>(layout.offsets[index] + sizeof(void *)),
        element_size_of(member, child),
        static_cast<uint32_t>(layout.flags + member.bit / 8),
        static_cast<uint8_t>(1U << member.bit % 8),
        catalogue::default_of(*type.operations, index),
        child,
    };
}

size_t plain_size_of(Kind kind)
{
    switch (kind) {
    case Kind::uint32:
        return sizeof(uint32_t);
    case Kind::uint64:
        return sizeof(uint64_t);
    case Kind::boolean:
        return 1;
    case Kind::string:
        return sizeof(char *);
    default:
        return sizeof(void *) + sizeof(uint32_t);
    }
}

void Types::own(Type &type, const Field &field)
{
    type.owned[field.flag_offset] |= field.flag_mask;
    if (field.kind == Kind::message) {
        for (size_t i = 0; i < field.child->size; i++)
            type.owned[field.offset + i] = field.child->owned[i];
        return;
    }
    for (size_t i = 0; i < plain_size_of(field.kind); i++)
        type.owned[field.offset + i] = 0xFF;
}

void Types::add_field(Type &type, const Field &field)
{
    type.fields.push_back(field);
    own(type, field);
    type.has_nested |= catalogue::is_nested(field.kind);
    if (catalogue::is_scalar(field.kind))
        return;
    type.has_blocks |= field.kind != Kind::message || field.child->has_blocks;
    type.replaces_blocks |= field.kind == Kind::message && field.child->has_blocks;
    type.replaces_blocks |= field.child && field.child->replaces_blocks;
}

const Type &Types::resolve(const RecordType &operations)
{
    if (const auto found = known_.find(&operations); found != known_.end())
        return *found->second;
    Type type{&operations, static_cast<uint32_t>(operations.size), {}, {}, {}, false, false, false};
    type.owned.resize(type.size);
    for (size_t i = 0; i < operations.members.size(); i++)
        add_field(type, field_of(type, i));
    Type &kept = types_.emplace_back(std::move(type));
    for (const Field &field : kept.fields)
        kept.by_number[field.number] = &field;
    known_.emplace(&operations, &kept);
    return kept;
}

const std::vector<const Type *> &all_types()
{
    static const Types types;
    return types.list();
}

} // namespace

const Type &type_at(uint32_t index)
{
    static const std::vector<const Type *> &types = all_types();
    return *types[index];
}

uint32_t type_count()
{
    return static_cast<uint32_t>(all_types().size());
}

} // namespace fuzz
