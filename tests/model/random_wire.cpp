// SPDX-License-Identifier: MIT
// Fields from the tables, mixed with unknown ones, wrong wire types and lengths that lie.

#include "tests/model/random_writer.hpp"

#include <algorithm>

namespace model {

namespace {

uint32_t wire_type_of(Kind kind)
{
    return kind == Kind::uint32 || kind == Kind::uint64 || kind == Kind::boolean ||
                   kind == Kind::uint32s
               ? 0
               : 2;
}

} // namespace

Bytes Writer::run()
{
    if (rough_.in_order)
        put_all_members();
    else
        put_some_fields(random_.below(random_.chance(20) ? 40 : 12));
    if (random_.chance(rough_.jumps * 2))
        put_hops();
    return bytes_;
}

void Writer::put_all_members()
{
    const uint32_t density = random_.pick<uint32_t>({10, 50, 80, 100});
    for (size_t i = 0; i < type_.members.size(); ++i) {
        put_oddities();
        if (random_.chance(density))
            put_member(i);
    }
    put_oddities();
}

void Writer::put_some_fields(uint32_t count)
{
    for (uint32_t i = 0; i < count; ++i) {
        put_oddities();
        if (!type_.members.empty())
            put_member(random_.below(uint32_t(type_.members.size())));
    }
}

void Writer::put_oddities()
{
    if (random_.chance(rough_.unknown))
        put_unknown(any_wire_type());
    if (random_.chance(rough_.odd))
        put_odd();
    if (random_.chance(rough_.jumps))
        random_.chance(50) ? put_jump() : put_hops();
}

void Writer::put_member(size_t index)
{
    const Member &member = type_.members[index];
    if (seen_[index] && has_pointer(member.kind) && !random_.chance(rough_.repeated_again))
        return;
    seen_[index] = true;
    uint32_t count = 1;
    if (is_repeated(member.kind))
        count = random_.chance(10) ? 1 + random_.below(20) : 1 + random_.below(3);
    for (uint32_t i = 0; i < count && budget_ > 0; ++i) {
        --budget_;
        if (i > 0 && random_.chance(rough_.odd)) {
            // Counted as an element all the same.
            put_tag(member.number, random_.below(8));
            if (random_.chance(50))
                put_payload(member);
            continue;
        }
        put_tag(member.number, wire_type_of(member.kind));
        put_payload(member);
    }
}

void Writer::put_payload(const Member &member)
{
    if (wire_type_of(member.kind) == 0) {
        put_varint(random_.number(member.kind == Kind::uint32s ? 32 : 64), 64);
        return;
    }
    Bytes content;
    if (member.child) {
        content = Writer(random_, *member.child, rough_, budget_).run();
    } else {
        const uint32_t length = random_.chance(5) ? random_.below(300) : random_.below(12);
        for (uint32_t i = 0; i < length; ++i)
            content.push_back(random_.chance(5) ? 0 : random_.byte());
    }
    put_varint(content.size(), 32);
    append(content);
}

uint32_t Writer::unknown_number()
{
    for (;;) {
        const uint32_t number = random_.chance(20)   ? 0
                                : random_.chance(70) ? random_.below(60)
                                                     : uint32_t(random_.number(29));
        const auto has_number = [&](const Member &member) { return member.number == number; };
        if (std::none_of(type_.members.begin(), type_.members.end(), has_number))
            return number;
    }
}

size_t Writer::any_member(std::initializer_list<Kind> kinds)
{
    std::vector<size_t> found;
    for (size_t i = 0; i < type_.members.size(); ++i)
        if (std::find(kinds.begin(), kinds.end(), type_.members[i].kind) != kinds.end())
            found.push_back(i);
    return found.empty() ? kNone : found[random_.below(uint32_t(found.size()))];
}

uint32_t Writer::any_wire_type()
{
    return random_.pick<uint32_t>({0, 1, 2, 5});
}

void Writer::put_unknown(uint32_t wire_type)
{
    put_tag(unknown_number(), wire_type);
    if (wire_type == 0) {
        put_varint(random_.number(64), 64);
        return;
    }
    uint32_t length = wire_type == 1 ? 8 : 4;
    if (wire_type == 2) {
        length = random_.below(12);
        put_varint(length, 32);
    }
    put_random(length);
}

void Writer::put_odd()
{
    switch (random_.below(7)) {
    case 0:
        put_tag(unknown_number(), random_.pick<uint32_t>({3, 4, 6, 7}));
        break;
    case 1:
        put_tag(unknown_number(), 2);
        put_varint(random_.number(32), 32);
        break;
    case 2:
        put_tag(unknown_number(), random_.pick<uint32_t>({1, 5}));
        break;
    case 3:
        put_random(1 + random_.below(4));
        break;
    case 4:
        append(Bytes(random_.below(12), 0x80));
        break;
    case 5:
        if (!type_.members.empty())
            put_tag(type_.members[random_.below(uint32_t(type_.members.size()))].number,
                    random_.below(8));
        break;
    default:
        put_lying_length();
        break;
    }
}

void Writer::put_lying_length()
{
    const size_t delimited =
        any_member({Kind::string, Kind::bytes, Kind::record, Kind::strings, Kind::records});
    if (delimited == kNone)
        return;
    put_tag(type_.members[delimited].number, 2);
    put_varint(random_.chance(50) ? ~uint64_t(random_.below(100)) : random_.below(200), 32);
}

void Writer::put_tag(uint32_t number, uint32_t wire_type)
{
    put_varint(number << 3 | wire_type, 32);
}

void Writer::put_varint(uint64_t value, uint32_t bits, uint32_t least)
{
    if (bits == 32)
        value &= 0xFFFFFFFF;
    uint32_t length = least;
    while (length < 10 && value >> (7 * length))
        ++length;
    if (least == 1 && random_.chance(rough_.overlong))
        length += random_.chance(70) ? 1 + random_.below(3) : random_.below(20);
    const uint32_t significant = bits == 32 ? 5 : 10;
    for (uint32_t i = 0; i < length; ++i) {
        auto byte = uint8_t(i < 10 ? value >> (7 * i) & 0x7F : 0);
        if (i >= significant && least == 1)
            byte = random_.byte() & 0x7F;
        else if (i == 4 && bits == 32 && least == 1 && random_.chance(20))
            byte = uint8_t(byte | (random_.byte() & 0x70));
        bytes_.push_back(uint8_t(byte | (i + 1 < length ? 0x80 : 0)));
    }
}

void Writer::put_random(uint32_t count)
{
    for (uint32_t i = 0; i < count; ++i)
        bytes_.push_back(random_.byte());
}

Roughness random_roughness(Random &random)
{
    Roughness rough;
    rough.unknown = random.pick<uint32_t>({0, 0, 5, 20});
    rough.overlong = random.pick<uint32_t>({0, 0, 3, 20});
    rough.in_order = random.chance(60);
    if (random.chance(50)) {
        rough.odd = random.pick<uint32_t>({0, 1, 3, 10});
        rough.repeated_again = random.pick<uint32_t>({0, 2, 20});
        rough.jumps = random.pick<uint32_t>({0, 3, 10, 30});
    }
    return rough;
}

Bytes random_wire(Random &random, const RecordType &type, const Roughness &roughness)
{
    uint32_t budget = 60;
    return Writer(random, type, roughness, budget).run();
}

Bytes random_round(Random &random, const RecordType &type, const Roughness &roughness)
{
    uint32_t budget = 60;
    return Writer(random, type, roughness, budget).run_round();
}

} // namespace model
