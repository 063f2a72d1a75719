// SPDX-License-Identifier: MIT
// Decoding numbers, texts, byte strings and embedded records: what is stored for which bytes.
#include "runtime/decode.hpp"

#include "tests/support/operations.hpp"
#include "tests/support/samples.hpp"

#include <gtest/gtest.h>

#include <string>

using namespace test;

namespace {

template <uint32_t first>
void expect_sample(const Bytes &input)
{
    Owner<EveryFrom<first>> owner;
    ASSERT_EQ(owner.decode(input), WIRE_OK);
    const EveryFrom<first> &record = owner.record;
    EXPECT_EQ(record.number, 9u);
    EXPECT_EQ(record.wide, uint64_t{1} << 35);
    EXPECT_EQ(record.truth, 1);
    EXPECT_STREQ(record.text, "hi");
    ASSERT_EQ(record.blob_length, 2u);
    EXPECT_EQ(Bytes(record.blob, record.blob + 2), (Bytes{0xDE, 0xAD}));
    EXPECT_EQ(record.leaf.number, 5u);
    EXPECT_EQ(record.leaf.text, nullptr);
    EXPECT_TRUE(record.leaf.has_number && !record.leaf.has_text);
    ASSERT_EQ(record.numbers_count, 2u);
    EXPECT_EQ(record.numbers[0], 1u);
    EXPECT_EQ(record.numbers[1], 300u);
    ASSERT_EQ(record.texts_count, 2u);
    EXPECT_STREQ(record.texts[0], "ab");
    EXPECT_STREQ(record.texts[1], "");
    ASSERT_EQ(record.leaves_count, 2u);
    EXPECT_EQ(record.leaves[0].number, 7u);
    EXPECT_STREQ(record.leaves[0].text, "x");
    EXPECT_FALSE(record.leaves[1].has_number || record.leaves[1].has_text);
    EXPECT_EQ(record.leaves[1].text, nullptr);
    EXPECT_TRUE(record.has_number && record.has_wide && record.has_truth && record.has_text &&
                record.has_blob && record.has_leaf && record.has_numbers && record.has_texts &&
                record.has_leaves);
}

} // namespace

TEST(decoding, reads_every_kind_with_tags_of_every_width)
{
    expect_sample<1>(kSampleBytes);
    expect_sample<16>(kSampleBytesFrom16);
    expect_sample<32>(kSampleBytesFrom32);
}

TEST(decoding, reads_members_in_any_order)
{
    expect_sample<1>(join({{0x4A, 0x05, 0x08, 0x07, 0x12, 0x01, 'x', 0x4A, 0x00},
                           {0x42, 0x02, 'a', 'b', 0x42, 0x00},
                           {0x38, 0x01, 0x38, 0xAC, 0x02},
                           {0x32, 0x02, 0x08, 0x05},
                           {0x2A, 0x02, 0xDE, 0xAD},
                           {0x22, 0x02, 'h', 'i'},
                           {0x18, 0x01},
                           {0x10, 0x80, 0x80, 0x80, 0x80, 0x80, 0x01},
                           {0x08, 0x09}}));
}

TEST(decoding, of_nothing_leaves_the_defaults)
{
    Owner<Every> owner;
    EXPECT_EQ(owner.decode({}), WIRE_OK);
    EXPECT_EQ(owner.record.number, 0u);
    EXPECT_EQ(owner.record.text, nullptr);
    EXPECT_EQ(encode(owner.record), Bytes{});
    EXPECT_EQ(CodecFor<Nothing>::decode(nullptr, nullptr, 0, nullptr, nullptr, 0), WIRE_OK);
}

TEST(decoding_a_number, keeps_the_low_bits)
{
    struct Row {
        Bytes varint;
        uint32_t number;
        uint64_t wide;
        uint8_t truth;
    };
    for (const Row &row : {
             Row{{0x00}, 0, 0, 0},
             {{0x01}, 1, 1, 1},
             {{0x02}, 2, 2, 1},
             {{0x80, 0x80, 0x00}, 0, 0, 0},
             {{0x80, 0x80, 0x80, 0x80, 0x08}, 0x80000000, 0x80000000, 1},
             // The lowest bit that a number of 32 bits does not have; a truth is read as one.
             {{0x80, 0x80, 0x80, 0x80, 0x10}, 0, 0x100000000, 0},
             {{0xFE, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x01},
              0xFFFFFFFE,
              0xFFFFFFFFFFFFFFFE,
              1},
         }) {
        Owner<Every> owner;
        EXPECT_EQ(owner.decode(join({{0x08}, row.varint, {0x10}, row.varint, {0x18}, row.varint})),
                  WIRE_OK);
        EXPECT_EQ(owner.record.number, row.number);
        EXPECT_EQ(owner.record.wide, row.wide);
        EXPECT_EQ(owner.record.truth, row.truth);
        EXPECT_TRUE(owner.record.has_number && owner.record.has_wide && owner.record.has_truth);
    }
}

TEST(decoding_a_number, keeps_the_last_of_several)
{
    Owner<Every> owner;
    EXPECT_EQ(owner.decode({0x08, 1, 0x10, 1, 0x18, 1, 0x08, 2, 0x10, 2, 0x18, 0, 0x08, 3}),
              WIRE_OK);
    EXPECT_EQ(owner.record.number, 3u);
    EXPECT_EQ(owner.record.wide, 2u);
    EXPECT_EQ(owner.record.truth, 0);
}

TEST(decoding_a_number, keeps_what_was_read_before_an_error)
{
    Owner<Every> owner;
    EXPECT_EQ(owner.decode({0x08, 0x05, 0x10, 0x80}), WIRE_ERR_MALFORMED);
    EXPECT_EQ(owner.record.number, 5u);
    EXPECT_TRUE(owner.record.has_number);
    EXPECT_EQ(owner.record.wide, 0u);
    EXPECT_FALSE(owner.record.has_wide);
}

TEST(decoding_a_row, finds_members_by_their_numbers_in_any_order)
{
    Owner<Rows> owner;
    EXPECT_EQ(owner.decode({0x88, 0x02, 9,  // field 33
                            0xA8, 0x01, 21, // field 21
                            0xA0, 0x01, 20, // field 20
                            0x10, 2,        // field 2
                            0x08, 1,        // field 1
                            0xF8, 0x01, 0,  // field 31
                            0x58, 11}),     // field 11
              WIRE_OK);
    const Rows &rows = owner.record;
    EXPECT_EQ(rows.field_1, 1u);
    EXPECT_EQ(rows.field_2, 2u);
    EXPECT_EQ(rows.field_10, 0u);
    EXPECT_EQ(rows.field_11, 11u);
    EXPECT_EQ(rows.field_20, 20u);
    EXPECT_EQ(rows.field_21, 21u);
    EXPECT_EQ(rows.field_31, 0);
    EXPECT_EQ(rows.field_33, 1);
    EXPECT_TRUE(rows.has_field_1 && rows.has_field_2 && !rows.has_field_10 && rows.has_field_11);
    EXPECT_TRUE(rows.has_field_20 && rows.has_field_21);
    EXPECT_TRUE(!rows.has_field_30 && rows.has_field_31 && rows.has_field_33);
}

TEST(decoding_a_row, keeps_what_was_read_before_an_error)
{
    struct Row {
        Bytes input; // behind fields 2 and 21
        int32_t result;
    };
    for (const Row &row : {Row{{0x08}, WIRE_ERR_MALFORMED},        // field 1 ends early
                           {{0x08, 0x80}, WIRE_ERR_MALFORMED},     //
                           {{0x0D, 0x01}, WIRE_ERR_TYPE_MISMATCH}, // field 1, not a number
                           {{0x0A, 0x00}, WIRE_ERR_TYPE_MISMATCH},
                           {{0xA2, 0x01, 0x00}, WIRE_ERR_TYPE_MISMATCH}, // field 20
                           {{0xF5, 0x01}, WIRE_ERR_TYPE_MISMATCH}}) {    // field 30
        SCOPED_TRACE(testing::PrintToString(row.input));
        Owner<Rows> owner;
        EXPECT_EQ(owner.decode(join({{0xA8, 0x01, 21, 0x10, 2}, row.input})), row.result);
        EXPECT_EQ(owner.record.field_2, 2u);
        EXPECT_EQ(owner.record.field_21, 21u);
        EXPECT_TRUE(owner.record.has_field_2 && owner.record.has_field_21);
        EXPECT_EQ(encode(owner.record), (Bytes{0x10, 2, 0xA8, 0x01, 21}));
    }
}

TEST(decoding_a_row, does_not_take_neighbours_for_members)
{
    // Fields 3, 9, 12, 19, 22, 29, 32, 34 and 257, which are none of its own.
    Owner<Rows> owner;
    EXPECT_EQ(owner.decode({0x18, 1,    0x48, 1,    0x60, 1, 0x98, 0x01, 1, 0xB0, 0x01, 1,
                            0xE8, 0x01, 1,    0x80, 0x02, 1, 0x90, 0x02, 1, 0x88, 0x10, 1}),
              WIRE_OK);
    EXPECT_EQ(encode(owner.record), Bytes{});
}

TEST(decoding_a_text, ends_it_with_a_zero)
{
    Owner<Leaf> owner;
    EXPECT_EQ(owner.decode({0x12, 0x03, 'a', 0x00, 'c'}), WIRE_OK);
    EXPECT_EQ(std::string(owner.record.text, 4), std::string("a\0c\0", 4));
    EXPECT_TRUE(owner.record.has_text);
    Owner<Leaf> empty;
    EXPECT_EQ(empty.decode({0x12, 0x00}), WIRE_OK);
    EXPECT_STREQ(empty.record.text, "");
    EXPECT_EQ(empty.blocks.sizes(), (std::vector<uint32_t>{1}));
}

TEST(decoding_a_byte_string, in_place_points_into_the_input)
{
    Owner<Every> owner;
    const Bytes input = {0x08, 0x01, 0x2A, 0x03, 'a', 'b', 'c'};
    EXPECT_EQ(owner.decode_without_memory(input, WIRE_FLAG_BYTES_IN_PLACE), WIRE_OK);
    EXPECT_EQ(owner.record.blob, owner.input().data() + 4);
    EXPECT_EQ(owner.record.blob_length, 3u);
    EXPECT_TRUE(owner.record.has_blob);
    // An empty one, too, and only bit 0 of the flags word counts.
    Owner<Every> empty;
    EXPECT_EQ(empty.decode_without_memory({0x2A, 0x00}, 0xFFFFFFFF), WIRE_OK);
    EXPECT_EQ(empty.record.blob, empty.input().data() + 2);
    EXPECT_EQ(empty.record.blob_length, 0u);
    EXPECT_EQ(Owner<Every>().decode_without_memory(input, 0xFFFFFFFE), WIRE_ERR_NO_MEMORY);
}

TEST(decoding_a_byte_string, in_place_reaches_nested_records)
{
    Owner<Parcel> owner;
    EXPECT_EQ(owner.decode(kSampleParcelBytes, WIRE_FLAG_BYTES_IN_PLACE), WIRE_OK);
    EXPECT_EQ(owner.record.blobs.first, owner.input().data() + 8);
    EXPECT_EQ(owner.record.list[0].first, owner.input().data() + 16);
    EXPECT_EQ(owner.record.blob, owner.input().data() + 21);
    // Texts and lists are copied all the same.
    Owner<Every> every;
    EXPECT_EQ(every.decode(kSampleBytes, WIRE_FLAG_BYTES_IN_PLACE), WIRE_OK);
    EXPECT_EQ(every.blocks.held(), 7u);
}

TEST(decoding_an_embedded_record, stops_where_the_record_does)
{
    Owner<Every> owner;
    // Inside, field 1 is the leaf's number; behind it, the record's own.
    EXPECT_EQ(owner.decode({0x32, 0x02, 0x08, 0x05, 0x08, 0x06}), WIRE_OK);
    EXPECT_EQ(owner.record.leaf.number, 5u);
    EXPECT_EQ(owner.record.number, 6u);
    // A varint that would go on behind the end of the inner record.
    EXPECT_EQ(decode<Every>({0x32, 0x02, 0x08, 0x85, 0x08, 0x06}), WIRE_ERR_MALFORMED);
}

TEST(decoding_an_embedded_record, replaces_an_earlier_one)
{
    Owner<Every> owner;
    owner.blocks.expect_lost(1);                                     // the text of the first
    EXPECT_EQ(owner.decode({0x32, 0x05, 0x08, 0x05, 0x12, 0x01, 'a', //
                            0x32, 0x03, 0x12, 0x01, 'b'}),
              WIRE_OK);
    EXPECT_EQ(owner.record.leaf.number, 0u);
    EXPECT_FALSE(owner.record.leaf.has_number);
    EXPECT_STREQ(owner.record.leaf.text, "b");
}

TEST(decoding_an_embedded_record, keeps_the_flag_of_an_earlier_one_when_it_fails)
{
    Owner<Every> first;
    EXPECT_EQ(first.decode({0x32, 0x01, 0x08}), WIRE_ERR_MALFORMED);
    EXPECT_FALSE(first.record.has_leaf);
    Owner<Every> second;
    EXPECT_EQ(second.decode({0x32, 0x00, 0x32, 0x01, 0x08}), WIRE_ERR_MALFORMED);
    EXPECT_TRUE(second.record.has_leaf);
}

TEST(decoding_an_embedded_record, returns_its_error_as_it_is)
{
    EXPECT_EQ(decode<Every>({0x32, 0x02, 0x0A, 0x00}), WIRE_ERR_TYPE_MISMATCH);
    EXPECT_EQ(decode<Every>({0x32, 0x01, 0x7B}), WIRE_ERR_WIRE_TYPE);
    EXPECT_EQ(decode<Every>({0x32, 0x02, 0x12, 0x01}), WIRE_ERR_MALFORMED);
    EXPECT_EQ(Owner<Every>().decode_without_memory({0x32, 0x02, 0x12, 0x00}), WIRE_ERR_NO_MEMORY);
    EXPECT_EQ(decode<Shell>({0x0A, 0x03, 0x32, 0x01, 0x7C}), WIRE_ERR_WIRE_TYPE);
    EXPECT_EQ(decode<Shell>({0x12, 0x03, 0x32, 0x01, 0x7C}), WIRE_ERR_WIRE_TYPE);
}
