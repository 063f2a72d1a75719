// SPDX-License-Identifier: MIT
// Lengths of encodings, kind by kind. That they agree with what is written, the tests of writing
// tell; here are the numbers, and what happens where they pass 2^32.
#include "runtime/measure.hpp"

#include "runtime/member.hpp"
#include "runtime/record.h"
#include "wire/varint.hpp"

#include <gtest/gtest.h>

#include <iterator>
#include <string>
#include <vector>

using namespace tarn;

namespace {

// Tags of one, two, two and three bytes.
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

TARN_CALL uint32_t measure_nothing(const void *, uint32_t)
{
    return 0;
}

// A record's length is its first byte; under another flags word it is one more.
TARN_CALL uint32_t measure_by_first_byte(const void *record, uint32_t flags)
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

// Sizes are added up four at a time where all are present: every place counts, and every edge.
TEST(measuring_a_run, without_gaps_gives_what_its_members_give_one_by_one)
{
    const uint64_t edges[] = {0,          127,        128,        16383,          16384,
                              2097151,    2097152,    268435455,  268435456,      UINT32_MAX,
                              1ull << 32, 1ull << 56, 1ull << 63, 1ull << 63 | 1, UINT64_MAX};
    uint32_t numbers[32];
    uint64_t wide[32];
    uint8_t truths[32];
    for (uint32_t i = 0; i < 32; i++) {
        wide[i] = edges[i % std::size(edges)];
        numbers[i] = static_cast<uint32_t>(edges[(i + 3) % 10]);
        truths[i] = static_cast<uint8_t>(127 + i % 2);
    }
    for (uint32_t tag : {kTag1, 0x70u, 0x78u, kTag16, kTag32}) {
        uint32_t number_sum = 7, wide_sum = 7, truth_sum = 7;
        for (uint32_t count = 1; count <= 32; count++) {
            const uint32_t last = count - 1, all = UINT32_MAX >> (32 - count);
            const uint32_t tag_size = wire_varint32_size(tag + last * kTagStep);
            number_sum += tag_size + wire_varint32_size(numbers[last]);
            wide_sum += tag_size + wire_varint64_size(wide[last]);
            truth_sum += tag_size + wire_varint32_size(truths[last]);
            EXPECT_EQ(measure_uint32s(7, numbers, all, tag), number_sum) << tag << ": " << count;
            EXPECT_EQ(measure_uint64s(7, wide, all, tag), wide_sum) << tag << ": " << count;
            EXPECT_EQ(measure_bools(7, truths, all, tag), truth_sum) << tag << ": " << count;
        }
    }
}

TEST(measuring_a_string, takes_tag_length_and_characters)
{
    const std::string long_text(128, 'x');
    const char *texts[] = {"", "ab", long_text.c_str(), nullptr};
    EXPECT_EQ(measure_string(5, member(texts[0]), 1), 7u);
    EXPECT_EQ(measure_string(5, member(texts[1]), 2), 10u);
    EXPECT_EQ(measure_string(5, member(texts[2]), 1), 136u);
    EXPECT_EQ(measure_string(5, member(texts[3]), 1), 5u);
}

TEST(measuring_a_byte_string, takes_tag_length_and_bytes_unless_they_stay_in_place)
{
    EXPECT_EQ(measure_bytes(5, member({kNowhere, 4}), 0, 1), 11u);
    EXPECT_EQ(measure_bytes(5, member({kNowhere, 200}), 0, 2), 209u);
    EXPECT_EQ(measure_bytes(5, member({nullptr, 0}), 0, 1), 7u);
    for (uint32_t flags : {1u, 3u, 0xFFFFFFFFu})
        EXPECT_EQ(measure_bytes(5, member({kNowhere, 200}), flags, 1), 8u);
    for (uint32_t flags : {2u, 0xFFFFFFFEu})
        EXPECT_EQ(measure_bytes(5, member({kNowhere, 200}), flags, 1), 208u);
}

// Six bytes of tag and length, then a length that reaches 2^32 or just does not.
TEST(measuring_a_byte_string, takes_one_that_would_wrap_for_empty)
{
    EXPECT_EQ(measure_bytes(0, member({kNowhere, 0xFFFFFFF9}), 0, 1), 0xFFFFFFFFu);
    EXPECT_EQ(measure_bytes(0, member({kNowhere, 0xFFFFFFFA}), 0, 1), 6u);
    EXPECT_EQ(measure_bytes(1, member({kNowhere, 0xFFFFFFF9}), 0, 1), 7u);
    EXPECT_EQ(measure_bytes(0, member({kNowhere, 0xFFFFFFFF}), 0, 1), 6u);
    EXPECT_EQ(measure_bytes(100, member({kNowhere, 0xFFFFFFFF}), 1, 1), 106u);
}

TEST(measuring_an_embedded_record, takes_it_when_it_is_present_or_not_empty)
{
    EXPECT_EQ(measure_message(5, 0, 0, 1), 5u);
    EXPECT_EQ(measure_message(5, 0, 1, 1), 7u);
    EXPECT_EQ(measure_message(5, 3, 0, 1), 10u);
    EXPECT_EQ(measure_message(5, 128, 1, 2), 137u);
    // Its length is added as it is, and may wrap.
    EXPECT_EQ(measure_message(5, 0xFFFFFFFF, 1, 1), 10u);
}

TEST(measuring_a_list, takes_every_element)
{
    const uint32_t numbers[] = {1, 300, 0xFFFFFFFF};
    EXPECT_EQ(measure_uint32_list(5, member({numbers, 3}), 1), 16u);
    EXPECT_EQ(measure_uint32_list(5, member({numbers, 3}), 2), 19u);
    EXPECT_EQ(measure_uint32_list(5, member({nullptr, 0}), 1), 5u);

    const char *texts[] = {"", "abc"};
    EXPECT_EQ(measure_string_list(5, member({texts, 2}), 1), 12u);
    EXPECT_EQ(measure_string_list(5, member({texts, 2}), 2), 14u);
    EXPECT_EQ(measure_string_list(5, member({nullptr, 2}), 1), 5u);

    const uint8_t records[] = {0, 9, 3, 9, 126, 9};
    const Pair list = {records, 3};
    EXPECT_EQ(measure_message_list(5, member(list), 0, 1, 2, measure_by_first_byte), 140u);
    // The flags word reaches the elements.
    EXPECT_EQ(measure_message_list(5, member(list), 2, 1, 2, measure_by_first_byte), 147u);
    EXPECT_EQ(measure_message_list(5, member(list), 0, 2, 2, measure_nothing), 14u);
    EXPECT_EQ(measure_message_list(5, member({nullptr, 0}), 0, 1, 2, measure_by_first_byte), 5u);
}

TEST(measuring_a_list, of_numbers_takes_every_place_and_every_size)
{
    const uint32_t edges[] = {0,       127,     128,       16383,     16384,
                              2097151, 2097152, 268435455, 268435456, UINT32_MAX};
    std::vector<uint32_t> numbers;
    uint32_t sum = 0;
    for (uint32_t count = 0; count <= 40; count++) {
        EXPECT_EQ(measure_uint32_list(5, member({numbers.data(), count}), 2), 5 + sum) << count;
        numbers.push_back(edges[count % 7 + count / 7 % 4]);
        sum += 2 + wire_varint32_size(numbers.back());
    }
}
