// SPDX-License-Identifier: MIT
#include "tests/fuzz/alterations.hpp"

#include "tests/catalogue/memory.hpp"
#include "tests/model/random.hpp"

namespace fuzz {

namespace {

using catalogue::load;
using model::Random;

// Calls visit(type, record) for the records nested in a member.
template <typename Record, typename Visit>
void for_each_nested(const Field &field, Record *record, Visit visit)
{
    if (field.kind == Kind::message)
        visit(*field.child, record + field.offset);
    if (field.kind != Kind::repeated_message)
        return;
    auto *element = load<Record *>(record, field.offset);
    const uint32_t count = load<uint32_t>(record, field.count_offset);
    for (uint32_t i = 0; i < count; i++, element += field.element_size)
        visit(*field.child, element);
}

void alter_fields(const Type &type, uint8_t *record, Random &random)
{
    const uint32_t percent = random.pick<uint32_t>({0, 5, 50});
    for (const Field &field : type.fields) {
        if (random.chance(percent))
            record[field.flag_offset] ^= field.flag_mask;
        if (field.kind == Kind::boolean && random.chance(percent))
            record[field.offset] = random.byte();
        for_each_nested(field, record, [&](const Type &child, uint8_t *nested) {
            alter_fields(child, nested, random);
        });
    }
}

} // namespace

void alter(Record &record, uint64_t number)
{
    Random random(number);
    alter_fields(record.type(), record.data(), random);
}

void find_byte_strings(const Type &type, const uint8_t *record, std::vector<WireSegment> &found)
{
    for (const Field &field : type.fields) {
        if (field.kind == Kind::bytes)
            found.push_back({load<const uint8_t *>(record, field.offset),
                             load<uint32_t>(record, field.count_offset)});
        for_each_nested(field, record, [&](const Type &child, const uint8_t *nested) {
            find_byte_strings(child, nested, found);
        });
    }
}

} // namespace fuzz
