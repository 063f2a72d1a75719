// SPDX-License-Identifier: MIT
// Lists: counted in a first pass, read in a second, and all in one run.
#include "tests/support/operations.hpp"
#include "tests/support/records.hpp"

#include <gtest/gtest.h>

using namespace test;

namespace {

std::vector<uint32_t> numbers_of(const Every &record)
{
    return {record.numbers, record.numbers + record.numbers_count};
}

std::vector<std::string> texts_of(const Every &record)
{
    return {record.texts, record.texts + record.texts_count};
}

using Numbers = std::vector<uint32_t>;
using Texts = std::vector<std::string>;

} // namespace

TEST(a_run, ends_with_another_field_or_with_the_input)
{
    struct Row {
        Bytes input;
        Numbers numbers;
    };
    for (const Row &row : {
             Row{{0x38, 1}, {1}},
             {{0x38, 1, 0x38, 2, 0x38, 3}, {1, 2, 3}},
             {{0x38, 1, 0x38, 2, 0x08, 7}, {1, 2}},
             // Another field that nobody knows ends it as well, and may end the message.
             {{0x38, 1, 0x38, 2, 0x7A, 0x7F}, {1, 2}},
             // Tags and values longer than need be, and values of more than 32 bits.
             {{0x38, 1, 0xB8, 0x80, 0x00, 0x82, 0x00}, {1, 2}},
             {{0x38, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x01}, {0xFFFFFFFF}},
         }) {
        Owner<Every> owner;
        EXPECT_EQ(owner.decode(row.input), WIRE_OK) << testing::PrintToString(row.input);
        EXPECT_EQ(numbers_of(owner.record), row.numbers);
        EXPECT_TRUE(owner.record.has_numbers);
    }
}

TEST(a_run, hands_the_field_behind_it_on)
{
    Owner<Every> owner;
    EXPECT_EQ(owner.decode({0x38, 1, 0x42, 1, 'a', 0x42, 0, 0x4A, 0, 0x08, 7}), WIRE_OK);
    EXPECT_EQ(numbers_of(owner.record), (Numbers{1}));
    EXPECT_EQ(texts_of(owner.record), (Texts{"a", ""}));
    EXPECT_EQ(owner.record.leaves_count, 1u);
    EXPECT_EQ(owner.record.number, 7u);
}

TEST(a_run, must_not_be_broken)
{
    Owner<Every> owner;
    EXPECT_EQ(owner.decode({0x38, 1, 0x38, 2, 0x08, 7, 0x38, 3}), WIRE_ERR_MALFORMED);
    EXPECT_EQ(numbers_of(owner.record), (Numbers{1, 2}));
    EXPECT_EQ(owner.record.number, 7u);
    // Not even by what is skipped.
    EXPECT_EQ(decode<Every>({0x38, 1, 0x78, 0, 0x38, 3}), WIRE_ERR_MALFORMED);
    EXPECT_EQ(decode<Every>({0x42, 0, 0x78, 0, 0x42, 0}), WIRE_ERR_MALFORMED);
    EXPECT_EQ(decode<Every>({0x4A, 0, 0x78, 0, 0x4A, 0}), WIRE_ERR_MALFORMED);
}

// Only its field number tells what belongs to a run.
TEST(a_run, takes_elements_of_other_wire_types_for_its_own)
{
    Owner<Every> numbers;
    EXPECT_EQ(numbers.decode({0x38, 1, 0x3A, 2, 0x3F, 3, 0x08, 7}), WIRE_OK);
    EXPECT_EQ(numbers_of(numbers.record), (Numbers{1, 2, 3}));
    Owner<Every> texts;
    EXPECT_EQ(texts.decode({0x42, 1, 'a', 0x40, 1, 'b', 0x45, 0}), WIRE_OK);
    EXPECT_EQ(texts_of(texts.record), (Texts{"a", "b", ""}));
    Owner<Every> leaves;
    EXPECT_EQ(leaves.decode({0x4A, 0, 0x48, 2, 0x08, 5}), WIRE_OK);
    ASSERT_EQ(leaves.record.leaves_count, 2u);
    EXPECT_EQ(leaves.record.leaves[1].number, 5u);
}

TEST(a_run, must_start_with_its_own_wire_type)
{
    // Packed numbers, for example.
    EXPECT_EQ(decode<Every>({0x3A, 2, 1, 2}), WIRE_ERR_TYPE_MISMATCH);
    EXPECT_EQ(decode<Every>({0x40, 1}), WIRE_ERR_TYPE_MISMATCH);
    EXPECT_EQ(decode<Every>({0x48, 1}), WIRE_ERR_TYPE_MISMATCH);
}

TEST(counting, fails_before_memory_is_asked_for)
{
    for (const Bytes &input : {
             Bytes{0x38, 1, 0x38},                               // a value is missing,
             Bytes{0x38, 1, 0x38, 0x80},                         // or does not end;
             Bytes{0x38, 1, 0x80},                               // the tag behind it does not;
             Bytes{0x42, 1, 'a', 0x42},                          // a length is missing,
             Bytes{0x42, 1, 'a', 0x42, 2, 'b'},                  // or too long,
             Bytes{0x4A, 0, 0x4A, 0xFA, 0xFF, 0xFF, 0xFF, 0x0F}, // or wraps around
         }) {
        Owner<Every> owner;
        EXPECT_EQ(owner.decode(input), WIRE_ERR_MALFORMED) << testing::PrintToString(input);
        EXPECT_TRUE(owner.blocks.sizes().empty());
        EXPECT_EQ(owner.record.numbers, nullptr);
        EXPECT_EQ(owner.record.numbers_count, 0u);
        EXPECT_EQ(owner.record.texts, nullptr);
        EXPECT_EQ(owner.record.leaves, nullptr);
    }
}

// The bytes inside an element are not its business.
TEST(counting, does_not_look_inside_elements)
{
    Owner<Every> owner;
    EXPECT_EQ(owner.decode({0x4A, 0, 0x4A, 1, 0x7B, 0x4A, 0}), WIRE_ERR_WIRE_TYPE);
    EXPECT_EQ(owner.blocks.sizes(), (std::vector<uint32_t>{3 * sizeof(Leaf)}));
}

TEST(an_element_that_fails, leaves_the_whole_list_attached_and_the_rest_of_it_empty)
{
    Owner<Every> owner;
    EXPECT_EQ(owner.decode({0x4A, 5, 0x08, 1, 0x12, 1, 'a', //
                            0x4A, 4, 0x08, 2, 0x0A, 0,      // fails behind its number
                            0x4A, 2, 0x08, 3,               //
                            0x4A, 0}),
              WIRE_ERR_TYPE_MISMATCH);
    const Every &record = owner.record;
    EXPECT_FALSE(record.has_leaves);
    ASSERT_EQ(record.leaves_count, 4u);
    EXPECT_STREQ(record.leaves[0].text, "a");
    EXPECT_EQ(record.leaves[1].number, 2u);
    for (uint32_t i : {2u, 3u}) {
        Bytes element(sizeof(Leaf));
        memcpy(element.data(), &record.leaves[i], sizeof(Leaf));
        EXPECT_EQ(element, Bytes(sizeof(Leaf), 0));
    }
}

TEST(an_element_without_memory, leaves_the_texts_behind_it_null)
{
    Owner<Every> owner;
    owner.blocks.fail_only(2);
    EXPECT_EQ(owner.decode({0x42, 1, 'a', 0x42, 1, 'b', 0x42, 1, 'c'}), WIRE_ERR_NO_MEMORY);
    ASSERT_EQ(owner.record.texts_count, 3u);
    EXPECT_STREQ(owner.record.texts[0], "a");
    EXPECT_EQ(owner.record.texts[1], nullptr);
    EXPECT_EQ(owner.record.texts[2], nullptr);
    EXPECT_FALSE(owner.record.has_texts);
}

TEST(an_element, may_be_a_record_with_lists_of_its_own)
{
    Owner<Shell> owner;
    EXPECT_EQ(owner.decode({0x12, 4, 0x38, 1, 0x38, 2, //
                            0x12, 4, 0x4A, 2, 0x08, 3, //
                            0x18, 1}),
              WIRE_OK);
    ASSERT_EQ(owner.record.list_count, 2u);
    EXPECT_EQ(numbers_of(owner.record.list[0]), (Numbers{1, 2}));
    ASSERT_EQ(owner.record.list[1].leaves_count, 1u);
    EXPECT_EQ(owner.record.list[1].leaves[0].number, 3u);
    EXPECT_TRUE(owner.record.has_list && owner.record.has_closing);
}
