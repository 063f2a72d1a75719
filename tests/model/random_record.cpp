// SPDX-License-Identifier: MIT
// Random presence, texts with and without an address, lists of every length, numbers at the edges,
// and rubbish wherever an operation has no business to look.

#include "tests/model/random_record.hpp"
#include "tests/model/record_memory.hpp"

#include <stdexcept>

namespace model {

uint8_t *RecordBuilder::build(const RecordType &type)
{
    uint8_t *record = take(type.size, "record", &type);
    fill(type, record, 0);
    return record;
}

void RecordBuilder::fill(const RecordType &type, uint8_t *record, int depth)
{
    const uint32_t density = random_.pick<uint32_t>({0, 10, 50, 50, 80, 100, 100});
    for (size_t i = 0; i < type.members.size(); ++i) {
        const bool present = random_.chance(density);
        set_flag(type, record, i, present);
        fill_member(type.members[i], record + type.members[i].offset, present, depth);
    }
}

void RecordBuilder::fill_member(const Member &member, uint8_t *at, bool present, int depth)
{
    switch (member.kind) {
    case Kind::uint32:
        store<uint32_t>(at, uint32_t(random_.number(32)));
        break;
    case Kind::uint64:
        store<uint64_t>(at, random_.number(64));
        break;
    case Kind::boolean:
        *at = random_.pick<uint8_t>({0, 1, 1, 2, 127, 128, 255});
        break;
    case Kind::string:
        fill_string(at, present);
        break;
    case Kind::bytes:
        fill_bytes(at, present);
        break;
    case Kind::record:
        fill(*member.child, at, depth + 1);
        break;
    default:
        fill_array(member, at, present, depth);
        break;
    }
}

void RecordBuilder::fill_string(uint8_t *at, bool present)
{
    if (purpose_ == Purpose::encode && !present && random_.chance(50))
        store_pointer(at, wild_pointer());
    else
        store_pointer(at, random_.chance(15) ? nullptr : text());
}

void RecordBuilder::fill_bytes(uint8_t *at, bool present)
{
    uint32_t length = random_.chance(20) ? 0 : text_length();
    const uint8_t *data = nullptr;
    if (purpose_ == Purpose::encode && !present && random_.chance(50)) {
        length = uint32_t(random_.next());
        data = wild_pointer();
    } else if (purpose_ != Purpose::release && random_.chance(8)) {
        // Longer than any buffer or block, so that nobody ever reads it.
        length = random_.chance(50) ? ~random_.below(100) : 0x80000000u | uint32_t(random_.next());
        data = random_.chance(30) ? nullptr : wild_pointer();
    } else if (length) {
        uint8_t *copy = take(length, "bytes");
        for (uint32_t i = 0; i < length; ++i)
            copy[i] = random_.byte();
        data = copy;
    } else if (random_.chance(50)) {
        data = purpose_ == Purpose::release ? take(0, "empty bytes") : wild_pointer();
    }
    if (purpose_ == Purpose::release && random_.chance(20))
        data = nullptr;
    store_pointer(at, data);
    store_count(at, length);
}

void RecordBuilder::fill_array(const Member &member, uint8_t *at, bool present, int depth)
{
    if (purpose_ == Purpose::encode && !present && random_.chance(50)) {
        store_pointer(at, wild_pointer());
        store_count(at, uint32_t(random_.next()));
        return;
    }
    if (purpose_ == Purpose::release && random_.chance(20)) {
        store_pointer(at, nullptr);
        store_count(at, uint32_t(random_.next()));
        return;
    }
    const uint32_t stride = element_size(member);
    if (purpose_ == Purpose::duplicate && random_.chance(4)) {
        // More than fits into a block, or even into the number that says how much is wanted.
        store_pointer(at, wild_pointer());
        const auto most = uint32_t((uint64_t(1) << 32) / (stride ? stride : 1));
        store_count(at, random_.chance(50) ? ~random_.below(100) : most - 1 + random_.below(3));
        return;
    }
    uint32_t count = random_.pick<uint32_t>({0, 1, 1, 2, 2, 3, 4});
    if (depth == 0 && random_.chance(5))
        count = random_.below(40);
    count = count < budget_ ? count : budget_;
    budget_ -= count;
    const bool no_array =
        member.kind == Kind::strings && purpose_ == Purpose::encode && random_.chance(15);
    uint8_t *elements = count && !no_array ? take(count * stride, "array", member.child) : nullptr;
    for (uint32_t i = 0; elements && i < count; ++i)
        fill_element(member, elements + size_t(i) * stride, depth);
    const bool rubbish = count == 0 && purpose_ != Purpose::release && random_.chance(30) &&
                         !(member.kind == Kind::strings && purpose_ == Purpose::encode);
    if (count == 0 && purpose_ == Purpose::release && random_.chance(50))
        elements = take(0, "empty array");
    store_pointer(at, rubbish ? wild_pointer() : elements);
    store_count(at, count);
}

void RecordBuilder::fill_element(const Member &member, uint8_t *element, int depth)
{
    if (member.kind == Kind::records)
        fill(*member.child, element, depth + 1);
    else if (member.kind == Kind::uint32s)
        store<uint32_t>(element, uint32_t(random_.number(32)));
    else
        store_pointer(element,
                      purpose_ != Purpose::encode && random_.chance(20) ? nullptr : text());
}

uint32_t RecordBuilder::text_length()
{
    switch (random_.below(20)) {
    case 0:
        return 0;
    case 1:
        return 120 + random_.below(16);
    case 2:
        return random_.chance(4) ? 16370 + random_.below(30) : random_.below(400);
    default:
        return random_.below(20);
    }
}

uint8_t *RecordBuilder::text()
{
    const uint32_t length = text_length();
    uint8_t *characters = take(length + 1, "text");
    for (uint32_t i = 0; i < length; ++i)
        characters[i] = uint8_t(1 + random_.below(255));
    characters[length] = 0;
    return characters;
}

const uint8_t *RecordBuilder::wild_pointer()
{
    const uintptr_t address = random_.chance(50) ? 8 + random_.below(100) : ~uintptr_t(0) - 15;
    return reinterpret_cast<const uint8_t *>(address);
}

uint8_t *RecordBuilder::take(uint32_t size, const char *purpose, const RecordType *type)
{
    uint8_t *block = memory_.take(size, purpose, type);
    if (!block)
        throw std::runtime_error("no room for a random record");
    return block;
}

} // namespace model
