// SPDX-License-Identifier: MIT
// Which fields decoding knows, skips and refuses, for every record type and every member.
#include "tests/catalogue/filled_record.hpp"
#include "tests/catalogue/operations.hpp"
#include "tests/catalogue/wire_fields.hpp"

#include <set>

namespace catalogue {

namespace {

template <typename Check>
void for_each_member(Check check)
{
    for_each_type([&](const RecordType &type) {
        for (const Member &member : type.members) {
            SCOPED_TRACE(member.name);
            check(type, member);
        }
    });
}

int32_t result_of(const RecordType &type, const Bytes &input)
{
    return OwnedRecord(type).decode(input);
}

// The numbers that a type does not have: all between and right behind its own, and the largest.
std::set<uint32_t> unknown_numbers(const RecordType &type)
{
    std::set<uint32_t> numbers{64, 200, (1u << 29) - 1};
    for (uint32_t number = 0; number <= 48; number++)
        numbers.insert(number);
    for (const Member &member : type.members)
        numbers.erase(member.number);
    return numbers;
}

Bytes complete_encoding(const RecordType &type)
{
    return encode(type, FilledRecord(content_of({&type, Shape::all, 2, 0})).record());
}

TEST(unknown_fields, are_skipped_and_lost)
{
    for_each_type([](const RecordType &type) {
        const Bytes known = complete_encoding(type);
        for (const uint32_t number : unknown_numbers(type)) {
            for (const uint32_t wire_type : {0u, 1u, 2u, 5u}) {
                const Bytes unknown = field(number, wire_type);
                OwnedRecord decoded(type);
                ASSERT_EQ(decoded.decode(test::join({unknown, known, unknown})), WIRE_OK) << number;
                ASSERT_EQ(encode(type, decoded.record()), known) << number;
            }
        }
    });
}

TEST(unknown_fields, may_reach_past_the_end)
{
    for_each_type([](const RecordType &type) {
        const Bytes known = complete_encoding(type);
        const Bytes unknown[] = {
            test::join({tag(46, 1), {1, 2, 3}}),
            test::join({tag(46, 2), {100, 1}}),
            tag(46, 5),
        };
        for (const Bytes &input : unknown)
            EXPECT_EQ(result_of(type, test::join({known, input})), WIRE_OK);
    });
}

TEST(unknown_fields, may_not_be_groups_nor_end_in_a_varint)
{
    for_each_type([](const RecordType &type) {
        for (const uint32_t wire_type : {3u, 4u, 6u, 7u})
            EXPECT_EQ(result_of(type, tag(46, wire_type)), WIRE_ERR_WIRE_TYPE) << wire_type;
        EXPECT_EQ(result_of(type, tag(46, 0)), WIRE_ERR_MALFORMED);
        EXPECT_EQ(result_of(type, tag(46, 2)), WIRE_ERR_MALFORMED);
        EXPECT_EQ(result_of(type, {0x80}), WIRE_ERR_MALFORMED);
    });
}

TEST(members, refuse_all_wire_types_but_their_own)
{
    for_each_member([](const RecordType &type, const Member &member) {
        for (uint32_t wire_type = 0; wire_type < 8; wire_type++) {
            Bytes input = test::join({tag(member.number, wire_type), {0}});
            EXPECT_EQ(result_of(type, input),
                      wire_type == wire_type_of(member.kind) ? WIRE_OK : WIRE_ERR_TYPE_MISMATCH)
                << wire_type;
        }
    });
}

// Numbers take the last value, embedded records too; what owns a block is refused, but for the
// elements of a list.
TEST(members, that_own_a_block_are_refused_when_they_come_twice)
{
    for_each_member([](const RecordType &type, const Member &member) {
        const bool once = member.kind == Kind::string || member.kind == Kind::bytes;
        const Bytes one = field(member);
        const Bytes other = field(46, 0);
        EXPECT_EQ(result_of(type, test::join({one, one})), once ? WIRE_ERR_MALFORMED : WIRE_OK);
        EXPECT_EQ(result_of(type, test::join({one, other, one})),
                  once || is_list(member.kind) ? WIRE_ERR_MALFORMED : WIRE_OK);
    });
}

TEST(members, that_are_numbers_keep_the_last_of_two_values)
{
    for_each_member([](const RecordType &type, const Member &member) {
        if (!is_scalar(member.kind))
            return;
        const Bytes last = field(member);
        OwnedRecord decoded(type);
        EXPECT_EQ(decoded.decode(test::join({tag(member.number, 0), {0}, last})), WIRE_OK);
        EXPECT_EQ(encode(type, decoded.record()), last);
    });
}

TEST(members, may_not_reach_past_the_end)
{
    for_each_member([](const RecordType &type, const Member &member) {
        const Bytes start = tag(member.number, wire_type_of(member.kind));
        EXPECT_EQ(result_of(type, start), WIRE_ERR_MALFORMED);
        EXPECT_EQ(result_of(type, test::join({start, {0x80}})), WIRE_ERR_MALFORMED);
        if (wire_type_of(member.kind) == 2) {
            EXPECT_EQ(result_of(type, test::join({start, {2, 0}})), WIRE_ERR_MALFORMED);
            const Bytes wraps{0xFF, 0xFF, 0xFF, 0xFF, 0x0F};
            EXPECT_EQ(result_of(type, test::join({start, wraps})), WIRE_ERR_MALFORMED);
        }
    });
}

// A one below, and nothing but ones in the upper half, as in a negative number.
TEST(members, of_32_bits_take_the_low_half_of_a_wide_varint)
{
    const Bytes wide{0x81, 0x80, 0x80, 0x80, 0xF0, 0xFF, 0xFF, 0xFF, 0xFF, 0x01};
    for_each_member([&](const RecordType &type, const Member &member) {
        if (!is_scalar(member.kind))
            return;
        const Bytes start = tag(member.number, 0);
        OwnedRecord decoded(type);
        EXPECT_EQ(decoded.decode(test::join({start, wide})), WIRE_OK);
        EXPECT_EQ(encode(type, decoded.record()),
                  test::join({start, member.kind == Kind::uint64 ? wide : Bytes{1}}));
    });
}

TEST(members, that_are_truth_values_are_written_as_the_byte_they_are_and_read_as_one)
{
    for_each_member([](const RecordType &type, const Member &member) {
        if (member.kind != Kind::boolean)
            return;
        Content content = empty_content(type);
        for (const uint32_t byte : {0u, 1u, 2u, 127u, 128u, 255u}) {
            content.values[member.bit] = number_value(byte);
            const Bytes written = encode(type, FilledRecord(content).record());
            EXPECT_EQ(written, test::join({tag(member.number, 0), varint(byte)}));
            OwnedRecord decoded(type);
            EXPECT_EQ(decoded.decode(written), WIRE_OK);
            EXPECT_EQ(encode(type, decoded.record()),
                      test::join({tag(member.number, 0), {byte ? uint8_t{1} : uint8_t{0}}}));
        }
    });
}

} // namespace

} // namespace catalogue
