// SPDX-License-Identifier: MIT
// Unknown fields whose length leads back to where the reading has been before.

#include "tests/model/random_writer.hpp"

namespace model {

namespace {

constexpr auto kPointers = {Kind::string, Kind::bytes, Kind::uint32s, Kind::strings, Kind::records};

} // namespace

Bytes Writer::run_round()
{
    const size_t nested =
        random_.chance(60) ? any_member({Kind::record, Kind::records}) : size_t{kNone};
    put_some_fields(random_.below(4));
    if (nested != kNone)
        put_nested_round(type_.members[nested]);
    else
        put_round();
    if (random_.chance(50))
        put_some_fields(random_.below(4));
    return bytes_;
}

// In a list, among elements without.
void Writer::put_nested_round(const Member &member)
{
    const uint32_t count = member.kind == Kind::records ? 1 + random_.below(3) : 1;
    const uint32_t chosen = random_.below(count);
    for (uint32_t i = 0; i < count; ++i) {
        Writer child(random_, *member.child, rough_, budget_);
        const Bytes content = i == chosen ? child.run_round() : child.run();
        put_tag(member.number, 2);
        put_varint(content.size(), 32);
        append(content);
    }
}

// Fields and a jump back to the first of them. It never ends unless one of them must not come
// twice.
void Writer::put_round()
{
    const auto start = uint32_t(bytes_.size());
    for (uint32_t items = random_.below(5); items > 0; --items)
        put_round_item();
    if (random_.chance(15))
        put_hops();
    put_jump_to(start);
}

void Writer::put_round_item()
{
    const size_t record = any_member({Kind::record});
    const size_t number = any_member({Kind::uint32, Kind::uint64, Kind::boolean});
    const size_t pointer = any_member(kPointers);
    if (record != kNone && random_.chance(20))
        put_member(record);
    else if (record != kNone && random_.chance(30))
        put_record_with_pointer(type_.members[record]);
    else if (number != kNone && random_.chance(25))
        put_member(number);
    else if (pointer != kNone && random_.chance(5))
        put_member(pointer);
    else
        put_unknown(any_wire_type());
}

// A record that asks for blocks each time that it is read.
void Writer::put_record_with_pointer(const Member &member)
{
    Writer child(random_, *member.child, rough_, budget_);
    const size_t pointer = child.any_member(kPointers);
    if (pointer != kNone)
        child.put_member(pointer);
    put_tag(member.number, 2);
    put_varint(child.bytes_.size(), 32);
    append(child.bytes_);
}

// An unknown field whose length leads back, to its own tag at the shortest.
void Writer::put_jump()
{
    const auto tag_at = uint32_t(bytes_.size());
    put_jump_to(random_.chance(30) ? tag_at : random_.below(tag_at + 1));
}

void Writer::put_jump_to(uint32_t target)
{
    put_tag(unknown_number(), 2);
    const uint32_t width = random_.chance(rough_.overlong) ? 6 + random_.below(6) : 5;
    put_varint(target - uint32_t(bytes_.size() + width), 32, width);
}

// Pieces of input that are read in another order than they stand in, each ending in a jump to
// the next: forwards, backwards, perhaps round in circles.
void Writer::put_hops()
{
    const uint32_t count = 1 + random_.below(4);
    std::vector<uint32_t> start(count + 1);
    std::vector<uint32_t> behind_jump(count + 1);
    behind_jump[count] = put_empty_jump();
    for (uint32_t i = 0; i < count; ++i) {
        start[i] = uint32_t(bytes_.size());
        for (uint32_t items = random_.below(3); items > 0; --items)
            put_hop_item();
        behind_jump[i] = put_empty_jump();
    }
    const auto end = uint32_t(bytes_.size());
    start[count] = random_.chance(60)   ? end
                   : random_.chance(50) ? random_.below(end)
                                        : start[random_.below(count)];
    std::vector<uint32_t> order;
    for (uint32_t i = 0; i < count; ++i)
        order.insert(order.begin() + random_.below(i + 1), i);
    uint32_t from = count;
    for (uint32_t next : order) {
        set_jump(behind_jump[from], start[next]);
        from = next;
    }
    set_jump(behind_jump[from], start[count]);
}

void Writer::put_hop_item()
{
    if (random_.chance(8))
        put_lying_length();
    else if (random_.chance(30) || type_.members.empty())
        put_unknown(any_wire_type());
    else
        put_member(random_.below(uint32_t(type_.members.size())));
}

uint32_t Writer::put_empty_jump()
{
    put_tag(unknown_number(), 2);
    put_varint(0, 32, 5);
    return uint32_t(bytes_.size());
}

void Writer::set_jump(uint32_t behind, uint32_t target)
{
    const uint32_t length = target - behind;
    for (uint32_t i = 0; i < 5; ++i)
        bytes_[behind - 5 + i] = uint8_t((length >> (7 * i) & 0x7F) | (i < 4 ? 0x80 : 0));
}

} // namespace model
