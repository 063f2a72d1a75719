// SPDX-License-Identifier: MIT
#include "tests/exhaustive/short_message_reference.hpp"

#include "runtime/record.h"

#include <map>
#include <string>

namespace exhaustive {

using catalogue::Kind;
using catalogue::Member;
using catalogue::RecordType;

namespace {

// Made before threads ask for them.
const Fields &fields_of(const char *type)
{
    static const std::map<std::string, Fields> all = [] {
        std::map<std::string, Fields> fields;
        for (const RecordType &one : catalogue::record_types())
            fields.emplace(one.name, Fields(one));
        for (const RecordType &one : catalogue::foreign_types())
            fields.emplace(one.name, Fields(one));
        return fields;
    }();
    return all.at(type);
}

bool is_varint(Kind kind)
{
    return is_scalar(kind) || kind == Kind::repeated_uint32;
}

uint32_t element_size(const Member &member)
{
    if (member.kind == Kind::repeated_uint32)
        return 4;
    if (member.kind == Kind::repeated_string)
        return sizeof(char *);
    return static_cast<uint32_t>(catalogue::find_type(member.child).size);
}

// One message, or one embedded in it.
class Reading {
public:
    Reading(const Fields &fields, const uint8_t *message, uint32_t size, bool in_place)
        : fields_(fields), message_(message), size_(size), in_place_(in_place)
    {}

    Outcome all()
    {
        while (at_ < size_ && out.result == WIRE_OK)
            out.result = field();
        return out;
    }

private:
    // In three bytes there are at most 21 bits.
    bool varint(uint32_t *value)
    {
        *value = 0;
        for (uint32_t weight = 1; at_ < size_; weight *= 128) {
            const uint8_t byte = message_[at_++];
            *value += byte % 128 * weight;
            if (byte < 128)
                return true;
        }
        return false;
    }

    bool length(uint32_t *value) { return varint(value) && *value <= size_ - at_; }

    int32_t field()
    {
        uint32_t tag;
        if (!varint(&tag))
            return WIRE_ERR_MALFORMED;
        const Member *member = fields_.find(tag / 8);
        if (!member)
            return skip(tag % 8);
        if (tag % 8 != (is_varint(member->kind) ? 0u : 2u))
            return WIRE_ERR_TYPE_MISMATCH;
        return is_varint(member->kind) ? number(*member) : sized(*member);
    }

    int32_t skip(uint32_t wire_type)
    {
        uint32_t value = 0;
        if ((wire_type == 0 || wire_type == 2) && !varint(&value))
            return WIRE_ERR_MALFORMED;
        if (wire_type == 1)
            at_ += 8;
        else if (wire_type == 2)
            at_ += value;
        else if (wire_type == 5)
            at_ += 4;
        return wire_type <= 2 || wire_type == 5 ? WIRE_OK : WIRE_ERR_WIRE_TYPE;
    }

    int32_t number(const Member &member)
    {
        uint32_t value;
        if (!varint(&value) || (is_list(member.kind) && !run_ends(member)))
            return WIRE_ERR_MALFORMED;
        if (is_list(member.kind))
            allocate(element_size(member));
        put_head(member, member.kind == Kind::boolean && value > 1 ? 1 : value);
        return WIRE_OK;
    }

    // A text, a byte string, a record, or a list of one of them.
    int32_t sized(const Member &member)
    {
        uint32_t size;
        if (!length(&size))
            return WIRE_ERR_MALFORMED;
        const uint8_t *content = message_ + at_;
        at_ += size;
        if (is_list(member.kind)) {
            if (!run_ends(member))
                return WIRE_ERR_MALFORMED;
            allocate(element_size(member));
        }
        if (is_nested(member.kind))
            return record(member, content, size);
        if (member.kind == Kind::bytes)
            bytes(member, content, size);
        else
            text(member, content, size);
        return WIRE_OK;
    }

    // Behind an element there may be one byte more. As a tag it may be unfinished; and if it is the
    // list's, there is no element behind it. Neither leaves a list. Any other is read again later.
    bool run_ends(const Member &member) const
    {
        return at_ == size_ || (message_[at_] < 128 && message_[at_] / 8u != member.number);
    }

    int32_t record(const Member &member, const uint8_t *content, uint32_t size)
    {
        const Outcome inner = Reading(fields_of(member.child), content, size, in_place_).all();
        out.blocks += inner.blocks;
        out.bytes += inner.bytes;
        if (inner.result == WIRE_OK)
            put(member, inner.encoding, inner.encoded_size);
        return inner.result;
    }

    void bytes(const Member &member, const uint8_t *content, uint32_t size)
    {
        if (!in_place_)
            allocate(size);
        put(member, content, size);
    }

    // A zero byte ends it early when it is encoded.
    void text(const Member &member, const uint8_t *content, uint32_t size)
    {
        allocate(size + 1);
        put(member, content, size > 0 && content[0] == 0 ? 0 : size);
    }

    void allocate(uint32_t size)
    {
        out.blocks++;
        out.bytes += size;
    }

    void put_varint(uint32_t value)
    {
        if (value >= 128)
            out.encoding[out.encoded_size++] = static_cast<uint8_t>(128 + value % 128);
        out.encoding[out.encoded_size++] = static_cast<uint8_t>(value >= 128 ? value / 128 : value);
    }

    // A tag and the number or length behind it. If it is the second field, it is the first again.
    void put_head(const Member &member, uint32_t value)
    {
        out.encoded_size = 0;
        put_varint(member.number * 8 + (is_varint(member.kind) ? 0 : 2));
        put_varint(value);
    }

    void put(const Member &member, const uint8_t *content, uint32_t size)
    {
        put_head(member, size);
        for (uint32_t i = 0; i < size; i++)
            out.encoding[out.encoded_size++] = content[i];
    }

    const Fields &fields_;
    const uint8_t *message_;
    uint32_t size_;
    bool in_place_;
    uint32_t at_ = 0;
    Outcome out;
};

} // namespace

Fields::Fields(const RecordType &type)
{
    for (const Member &member : type.members)
        members_[member.number] = &member;
}

Outcome decode_short(const Fields &fields, const uint8_t *message, uint32_t size, bool in_place)
{
    return Reading(fields, message, size, in_place).all();
}

} // namespace exhaustive
