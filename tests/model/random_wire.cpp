// SPDX-License-Identifier: MIT
// Fields from the tables, mixed with unknown ones, wrong wire types, lengths that lie and skips
// that go back to where the reading has been before.

#include "tests/model/random_wire.hpp"

#include <algorithm>

namespace model {

namespace {

class Writer {
public:
    Writer(Random &random, const RecordType &type, const Roughness &rough, uint32_t &budget)
        : random_(random), type_(type), rough_(rough), budget_(budget), seen_(type.members.size())
    {}

    Bytes run()
    {
        if (rough_.in_order)
            put_all_members();
        else
            put_some_fields(random_.below(random_.chance(20) ? 40 : 12));
        if (random_.chance(rough_.jumps * 2))
            put_hops();
        return bytes_;
    }

private:
    void put_all_members()
    {
        const uint32_t density = random_.pick<uint32_t>({10, 50, 80, 100});
        for (size_t i = 0; i < type_.members.size(); ++i) {
            put_oddities();
            if (random_.chance(density))
                put_member(i);
        }
        put_oddities();
    }

    void put_some_fields(uint32_t count)
    {
        for (uint32_t i = 0; i < count; ++i) {
            put_oddities();
            if (!type_.members.empty())
                put_member(random_.below(uint32_t(type_.members.size())));
        }
    }

    void put_oddities()
    {
        if (random_.chance(rough_.unknown))
            put_unknown();
        if (random_.chance(rough_.odd))
            put_odd();
        if (random_.chance(rough_.jumps))
            random_.chance(50) ? put_jump() : put_hops();
    }

    void put_member(size_t index)
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

    static uint32_t wire_type_of(Kind kind)
    {
        return kind == Kind::uint32 || kind == Kind::uint64 || kind == Kind::boolean ||
                       kind == Kind::uint32s
                   ? 0
                   : 2;
    }

    void put_payload(const Member &member)
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

    // A number that no member has; 0 and the largest possible are among them.
    uint32_t unknown_number()
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

    void put_unknown()
    {
        switch (random_.below(4)) {
        case 0:
            put_tag(unknown_number(), 0);
            put_varint(random_.number(64), 64);
            break;
        case 1:
            put_tag(unknown_number(), 1);
            put_random(8);
            break;
        case 2: {
            put_tag(unknown_number(), 2);
            const uint32_t length = random_.below(12);
            put_varint(length, 32);
            put_random(length);
            break;
        }
        default:
            put_tag(unknown_number(), 5);
            put_random(4);
            break;
        }
    }

    void put_odd()
    {
        const Member *member = nullptr;
        if (!type_.members.empty())
            member = &type_.members[random_.below(uint32_t(type_.members.size()))];
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
            if (member)
                put_tag(member->number, random_.below(8));
            break;
        default:
            if (member) {
                put_tag(member->number, 2);
                put_varint(random_.chance(50) ? ~uint64_t(random_.below(100)) : random_.below(200),
                           32);
            }
            break;
        }
    }

    // An unknown field whose length leads back, to its own tag at the shortest.
    void put_jump()
    {
        const auto tag_at = uint32_t(bytes_.size());
        put_tag(unknown_number(), 2);
        const uint32_t target = random_.chance(30) ? tag_at : random_.below(tag_at + 1);
        put_varint(target - uint32_t(bytes_.size() + 5), 32, 5);
    }

    // Pieces of input that are read in another order than they stand in, each ending in a jump to
    // the next: forwards, backwards, perhaps round in circles.
    void put_hops()
    {
        const uint32_t count = 1 + random_.below(4);
        std::vector<uint32_t> start(count + 1);
        std::vector<uint32_t> behind_jump(count + 1);
        behind_jump[count] = put_empty_jump();
        for (uint32_t i = 0; i < count; ++i) {
            start[i] = uint32_t(bytes_.size());
            for (uint32_t items = random_.below(3); items > 0; --items)
                random_.chance(30) || type_.members.empty()
                    ? put_unknown()
                    : put_member(random_.below(uint32_t(type_.members.size())));
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

    uint32_t put_empty_jump()
    {
        put_tag(unknown_number(), 2);
        put_varint(0, 32, 5);
        return uint32_t(bytes_.size());
    }

    void set_jump(uint32_t behind, uint32_t target)
    {
        const uint32_t length = target - behind;
        for (uint32_t i = 0; i < 5; ++i)
            bytes_[behind - 5 + i] = uint8_t((length >> (7 * i) & 0x7F) | (i < 4 ? 0x80 : 0));
    }

    void put_tag(uint32_t number, uint32_t wire_type) { put_varint(number << 3 | wire_type, 32); }

    // At least `least` bytes long; what a reader of that width drops may be anything.
    void put_varint(uint64_t value, uint32_t bits, uint32_t least = 1)
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

    void put_random(uint32_t count)
    {
        for (uint32_t i = 0; i < count; ++i)
            bytes_.push_back(random_.byte());
    }

    void append(const Bytes &more) { bytes_.insert(bytes_.end(), more.begin(), more.end()); }

    Random &random_;
    const RecordType &type_;
    const Roughness &rough_;
    uint32_t &budget_;
    std::vector<bool> seen_;
    Bytes bytes_;
};

} // namespace

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

} // namespace model
