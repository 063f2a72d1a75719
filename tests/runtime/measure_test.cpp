// SPDX-License-Identifier: MIT
// Lengths of encodings, kind by kind. That they agree with what is written, the tests of writing
// tell; here are the numbers, and what happens where they pass 2^32.
#include "runtime/measure.hpp"

#include "runtime/member.hpp"
#include "runtime/record.h"

#include <gtest/gtest.h>

#include <string>

using namespace tarn;

namespace {

// Tags of one, two and two bytes; a third one with three.
constexpr uint32_t kTag1 = 0x08, kTag16 = 0x80, kTag32 = 0x100, kTag2048 = 0x4000;

struct Pair {
    const void *pointer;
    uint32_t count;
};

const uint8_t *member(const Pair &pair)
{
    return reinterpret_cast<const uint8_t *>(&pair);
}

const uint8_t *member(const char *const &text)
{
    return reinterpret_cast<const uint8_t *>(&text);
}

uint32_t measure_nothing(const void *, uint32_t)
{
    return 0;
}

// A record's length is its first byte; under another flags word it is one more.
uint32_t measure_by_first_byte(const void *record, uint32_t flags)
{
    return *static_cast<const uint8_t *>(record) + flags;
}

const void *const kNowhere = reinterpret_cast<const void *>(16);

} // namespace

TEST(measuring_numbers, takes_tag_and_value_of_each_that_is_present)
{
    const uint32_t numbers[] = {0, 127, 128, 0xFFFFFFFF};
    EXPECT_EQ(measure_uint32s(100, numbers, 0b0000, kTag1), 100u);
    EXPECT_EQ(measure_uint32s(100, numbers, 0b0001, kTag1), 102u);
    EXPECT_EQ(measure_uint32s(100, numbers, 0b0110, kTag1), 105u);
    EXPECT_EQ(measure_uint32s(100, numbers, 0b1111, kTag1), 113u);
    EXPECT_EQ(measure_uint32s(100, numbers, 0b1000, kTag16), 107u);
    EXPECT_EQ(measure_uint32s(100, numbers, 0b1000, kTag2048), 108u);
    // The tags of a run rise: here from 15 to 16, from one byte to two.
    EXPECT_EQ(measure_uint32s(100, numbers, 0b0001, 0x78), 102u);
    EXPECT_EQ(measure_uint32s(100, numbers, 0b0010, 0x78), 103u);
}

TEST(measuring_numbers, knows_each_width)
{
    const uint64_t wide[] = {0, 0xFFFFFFFF, 0x100000000000, UINT64_MAX};
    EXPECT_EQ(measure_uint64s(0, wide, 0b0001, kTag1), 2u);
    EXPECT_EQ(measure_uint64s(0, wide, 0b0010, kTag1), 6u);
    EXPECT_EQ(measure_uint64s(0, wide, 0b0100, kTag1), 8u);
    EXPECT_EQ(measure_uint64s(0, wide, 0b1000, kTag32), 12u);
    const uint8_t truths[] = {0, 1, 127, 128, 255};
    EXPECT_EQ(measure_bools(0, truths, 0b00111, kTag1), 6u);
    EXPECT_EQ(measure_bools(0, truths, 0b11000, kTag1), 6u);
}

TEST(measuring_a_run, reaches_its_32nd_member)
{
    uint32_t numbers[32] = {};
    uint64_t wide[32] = {};
    uint8_t truths[32] = {};
    truths[31] = 128;
    numbers[31] = 128;
    wide[31] = 128;
    EXPECT_EQ(measure_uint32s(0, numbers, 0x80000000, kTag1), 4u);
    EXPECT_EQ(measure_uint64s(0, wide, 0x80000000, kTag1), 4u);
    EXPECT_EQ(measure_bools(0, truths, 0x80000000, kTag1), 4u);
}

TEST(measuring_a_string, takes_tag_length_and_characters)
{
    const std::string long_text(128, 'x');
    const char *texts[] = {"", "ab", long_text.c_str(), nullptr};
    EXPECT_EQ(measure_string(5, member(texts[0]), 1, kTag1), 7u);
    EXPECT_EQ(measure_string(5, member(texts[1]), 1, kTag16), 10u);
    EXPECT_EQ(measure_string(5, member(texts[2]), 1, kTag1), 136u);
    EXPECT_EQ(measure_string(5, member(texts[3]), 1, kTag1), 5u);
    EXPECT_EQ(measure_string(5, member(texts[1]), 0, kTag1), 5u);
}

TEST(measuring_a_byte_string, takes_tag_length_and_bytes_unless_they_stay_in_place)
{
    EXPECT_EQ(measure_bytes(5, member({kNowhere, 4}), 0, kTag1, 0), 5u);
    EXPECT_EQ(measure_bytes(5, member({kNowhere, 4}), 1, kTag1, 0), 11u);
    EXPECT_EQ(measure_bytes(5, member({kNowhere, 200}), 1, kTag32, 0), 209u);
    EXPECT_EQ(measure_bytes(5, member({nullptr, 0}), 1, kTag1, 0), 7u);
    for (uint32_t flags : {1u, 3u, 0xFFFFFFFFu})
        EXPECT_EQ(measure_bytes(5, member({kNowhere, 200}), 1, kTag1, flags), 8u);
    for (uint32_t flags : {2u, 0xFFFFFFFEu})
        EXPECT_EQ(measure_bytes(5, member({kNowhere, 200}), 1, kTag1, flags), 208u);
}

// Six bytes of tag and length, then a length that reaches 2^32 or just does not.
TEST(measuring_a_byte_string, takes_one_that_would_wrap_for_empty)
{
    EXPECT_EQ(measure_bytes(0, member({kNowhere, 0xFFFFFFF9}), 1, kTag1, 0), 0xFFFFFFFFu);
    EXPECT_EQ(measure_bytes(0, member({kNowhere, 0xFFFFFFFA}), 1, kTag1, 0), 6u);
    EXPECT_EQ(measure_bytes(1, member({kNowhere, 0xFFFFFFF9}), 1, kTag1, 0), 7u);
    EXPECT_EQ(measure_bytes(0, member({kNowhere, 0xFFFFFFFF}), 1, kTag1, 0), 6u);
    EXPECT_EQ(measure_bytes(100, member({kNowhere, 0xFFFFFFFF}), 1, kTag1, 1), 106u);
}

TEST(measuring_an_embedded_record, takes_it_when_it_is_present_or_not_empty)
{
    EXPECT_EQ(measure_message(5, 0, 0, kTag1), 5u);
    EXPECT_EQ(measure_message(5, 0, 1, kTag1), 7u);
    EXPECT_EQ(measure_message(5, 3, 0, kTag1), 10u);
    EXPECT_EQ(measure_message(5, 128, 1, kTag16), 137u);
    // Its length is added as it is, and may wrap.
    EXPECT_EQ(measure_message(5, 0xFFFFFFFF, 1, kTag1), 10u);
}

TEST(measuring_a_list, takes_every_element_when_it_is_present)
{
    const uint32_t numbers[] = {1, 300, 0xFFFFFFFF};
    EXPECT_EQ(measure_uint32_list(5, member({numbers, 3}), 1, kTag1), 16u);
    EXPECT_EQ(measure_uint32_list(5, member({numbers, 3}), 1, kTag32), 19u);
    EXPECT_EQ(measure_uint32_list(5, member({kNowhere, 3}), 0, kTag1), 5u);
    EXPECT_EQ(measure_uint32_list(5, member({nullptr, 0}), 1, kTag1), 5u);

    const char *texts[] = {"", "abc"};
    EXPECT_EQ(measure_string_list(5, member({texts, 2}), 1, kTag1), 12u);
    EXPECT_EQ(measure_string_list(5, member({texts, 2}), 1, kTag16), 14u);
    EXPECT_EQ(measure_string_list(5, member({texts, 2}), 0, kTag1), 5u);
    EXPECT_EQ(measure_string_list(5, member({nullptr, 2}), 1, kTag1), 5u);

    const uint8_t records[] = {0, 9, 3, 9, 126, 9};
    const Pair list = {records, 3};
    EXPECT_EQ(measure_message_list(5, member(list), 1, kTag1, 2, measure_by_first_byte, 0), 140u);
    // The flags word reaches the elements.
    EXPECT_EQ(measure_message_list(5, member(list), 1, kTag1, 2, measure_by_first_byte, 2), 147u);
    EXPECT_EQ(measure_message_list(5, member(list), 1, kTag16, 2, measure_nothing, 0), 14u);
    EXPECT_EQ(measure_message_list(5, member({kNowhere, 3}), 0, kTag1, 2, measure_by_first_byte, 0),
              5u);
    EXPECT_EQ(measure_message_list(5, member({nullptr, 0}), 1, kTag1, 2, measure_by_first_byte, 0),
              5u);
}
