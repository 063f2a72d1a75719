// SPDX-License-Identifier: MIT
#include "tests/fuzz/writer.hpp"

namespace fuzz {

namespace {

constexpr uint32_t kDeepest = 4;

void put_random(Random &random, Bytes &out, uint32_t count)
{
    for (uint32_t i = 0; i < count; i++)
        out.push_back(random.byte());
}

uint32_t unknown_number(Random &random, const Type &type)
{
    for (;;) {
        const auto number = random.chance(80) ? random.below(Type::kNumbers)
                                              : static_cast<uint32_t>(random.number(29));
        if (!type.find(number))
            return number;
    }
}

uint32_t content_length(Random &random)
{
    return random.chance(90) ? random.below(20) : random.below(200);
}

void put_element(Random &random, Bytes &out, const Field &field, uint32_t depth)
{
    put_tag(out, field.number, field.wire_type);
    if (field.wire_type == 0) {
        put_varint(out, random.number(64));
        return;
    }
    Bytes content;
    if (!field.child)
        put_random(random, content, content_length(random));
    else if (depth < kDeepest)
        put_fields(random, content, *field.child, random.pick<uint32_t>({0, 10, 40}), depth + 1);
    put_bytes(out, content);
}

} // namespace

void put_varint(Bytes &out, uint64_t value, uint32_t least)
{
    for (uint32_t length = 1; length < least || value > 127; length++, value >>= 7)
        out.push_back(static_cast<uint8_t>(value | 0x80));
    out.push_back(static_cast<uint8_t>(value));
}

void put_tag(Bytes &out, uint32_t number, uint32_t wire_type)
{
    put_varint(out, number << 3 | wire_type);
}

void put_bytes(Bytes &out, const Bytes &content)
{
    put_varint(out, content.size());
    out.insert(out.end(), content.begin(), content.end());
}

void put_field(Random &random, Bytes &out, const Field &field, uint32_t depth)
{
    const uint32_t count = catalogue::is_list(field.kind) ? 1 + random.below(4) : 1;
    for (uint32_t i = 0; i < count; i++)
        put_element(random, out, field, depth);
}

void put_fields(Random &random, Bytes &out, const Type &type, uint32_t percent, uint32_t depth)
{
    for (const Field &field : type.fields)
        if (random.chance(percent))
            put_field(random, out, field, depth);
}

void put_unknown(Random &random, Bytes &out, const Type &type)
{
    const uint32_t wire_type = random.chance(80) ? random.pick<uint32_t>({0, 1, 2, 5})
                                                 : random.pick<uint32_t>({3, 4, 6, 7});
    put_tag(out, unknown_number(random, type), wire_type);
    switch (wire_type) {
    case 0:
        put_varint(out, random.number(64));
        break;
    case 1:
        put_random(random, out, 8);
        break;
    case 2: {
        Bytes content;
        put_random(random, content, content_length(random));
        put_bytes(out, content);
        break;
    }
    case 5:
        put_random(random, out, 4);
        break;
    default:
        break;
    }
}

void put_jump(Random &random, Bytes &out, const Type &type, uint32_t target)
{
    put_tag(out, unknown_number(random, type), 2);
    constexpr uint32_t kLength = 5; // of a varint that says nearly 4 GiB
    put_varint(out, static_cast<uint32_t>(target - (out.size() + kLength)), kLength);
}

} // namespace fuzz
