// SPDX-License-Identifier: MIT
// Which error a message gives, in particular where it could give several: the order of the tests
// inside a member is wire type, pointer already set, memory at hand, length read, bounds,
// allocation.
#include "runtime/decode.hpp"

#include "tests/support/operations.hpp"
#include "tests/support/records.hpp"

#include <gtest/gtest.h>

using namespace test;

namespace {

constexpr uint32_t kCopy = 0;
constexpr uint32_t kInPlace = WIRE_FLAG_BYTES_IN_PLACE;

void expect_without_memory(const Bytes &input, uint32_t flags, int32_t expected)
{
    Owner<Every> owner;
    EXPECT_EQ(owner.decode_without_memory(input, flags), expected) << testing::PrintToString(input);
}

// No block is asked for before something is found wrong.
void expect_at_once(const Bytes &input, int32_t expected, size_t blocks_before = 0)
{
    Owner<Every> owner;
    EXPECT_EQ(owner.decode(input), expected) << testing::PrintToString(input);
    EXPECT_EQ(owner.blocks.sizes().size(), blocks_before) << testing::PrintToString(input);
}

// A member of Every that needs memory, by the tag that is its own.
const uint8_t kTagsWithMemory[] = {0x22, 0x2A, 0x38, 0x42, 0x4A};

} // namespace

TEST(a_wire_type, must_be_that_of_the_kind)
{
    for (uint8_t field = 1; field <= 9; field++) {
        const bool is_varint = field <= 3 || field == 7;
        for (uint8_t wire_type = 0; wire_type <= 7; wire_type++) {
            if (wire_type == (is_varint ? 0 : 2))
                continue;
            // Before anything is read, whatever is or is not behind the tag.
            const uint8_t tag = static_cast<uint8_t>(field << 3 | wire_type);
            expect_at_once({tag}, WIRE_ERR_TYPE_MISMATCH);
            expect_at_once({tag, 0x01, 0x01}, WIRE_ERR_TYPE_MISMATCH);
            expect_without_memory({tag, 0x01, 0x01}, kCopy, WIRE_ERR_TYPE_MISMATCH);
        }
    }
}

TEST(a_wire_type, is_tested_before_a_second_occurrence)
{
    // A list that is packed, a text, a byte string and two lists as numbers, each the second time;
    // a number between them, since a run does not look at wire types.
    expect_at_once({0x38, 1, 0x08, 1, 0x3A, 1}, WIRE_ERR_TYPE_MISMATCH, 1);
    expect_at_once({0x22, 1, 'a', 0x20, 1}, WIRE_ERR_TYPE_MISMATCH, 1);
    expect_at_once({0x2A, 1, 'a', 0x28, 1}, WIRE_ERR_TYPE_MISMATCH, 1);
    expect_at_once({0x42, 1, 'a', 0x08, 1, 0x40, 1}, WIRE_ERR_TYPE_MISMATCH, 2);
    expect_at_once({0x4A, 0, 0x08, 1, 0x48, 1}, WIRE_ERR_TYPE_MISMATCH, 1);
}

TEST(a_second_occurrence, is_malformed_before_its_length_is_read)
{
    expect_at_once({0x22, 1, 'a', 0x22, 1, 'b'}, WIRE_ERR_MALFORMED, 1);
    expect_at_once({0x22, 1, 'a', 0x22}, WIRE_ERR_MALFORMED, 1);
    expect_at_once({0x2A, 1, 'a', 0x2A, 1, 'b'}, WIRE_ERR_MALFORMED, 1);
    expect_at_once({0x38, 1, 0x38, 2, 0x08, 7, 0x38, 3}, WIRE_ERR_MALFORMED, 1);
    expect_at_once({0x42, 1, 'a', 0x08, 7, 0x42, 1, 'b'}, WIRE_ERR_MALFORMED, 2);
    expect_at_once({0x4A, 0, 0x08, 7, 0x4A, 0}, WIRE_ERR_MALFORMED, 1);
    // An empty one is one, too.
    expect_at_once({0x22, 0, 0x22, 0}, WIRE_ERR_MALFORMED, 1);
    expect_at_once({0x2A, 0, 0x2A, 0}, WIRE_ERR_MALFORMED, 1);
}

// Only a byte string in place gets a pointer when there is no memory.
TEST(a_second_occurrence, is_tested_before_memory)
{
    expect_without_memory({0x2A, 1, 'a', 0x2A, 1, 'b'}, kInPlace, WIRE_ERR_MALFORMED);
    expect_without_memory({0x2A, 0, 0x2A, 0}, kInPlace, WIRE_ERR_MALFORMED);

    // The others could have theirs from elsewhere.
    using Decode =
        TARN_CALL tarn::HandedBack (*)(tarn::Cursor, tarn::Decoder &, uint8_t *, tarn::DecodedRun);
    for (auto [decode, tag] : {std::pair<Decode, uint32_t>{tarn::decode_string, 0x0A},
                               {tarn::decode_bytes, 0x0A},
                               {tarn::decode_uint32_list, 0x08},
                               {tarn::decode_string_list, 0x0A}}) {
        const uint8_t input[] = {0x00};
        struct {
            const uint32_t *member = reinterpret_cast<const uint32_t *>(16);
            uint8_t flags = 0;
        } record;
        tarn::Decoder in(input, 1, {nullptr, nullptr}, 0);
        const tarn::Cursor behind = decode({input, tag}, in, reinterpret_cast<uint8_t *>(&record),
                                           {1, 1, 0, 0, sizeof record.member});
        EXPECT_EQ(behind.tag(), tarn::kStop);
        EXPECT_EQ(in.result(), WIRE_ERR_MALFORMED);
        EXPECT_EQ(record.flags, 0);
    }
}

TEST(memory, must_be_at_hand_before_a_length_is_read)
{
    for (uint8_t tag : kTagsWithMemory) {
        expect_without_memory({tag}, kCopy, WIRE_ERR_NO_MEMORY);
        expect_without_memory({tag, 0x80}, kCopy, WIRE_ERR_NO_MEMORY);
        expect_without_memory({tag, 0x7F}, kCopy, WIRE_ERR_NO_MEMORY);
        expect_without_memory({tag, 0x00}, kCopy, WIRE_ERR_NO_MEMORY);
        if (tag != 0x2A)
            expect_without_memory({tag, 0x00}, kInPlace, WIRE_ERR_NO_MEMORY);
    }
}

TEST(memory, is_not_needed_for_numbers_embedded_records_and_bytes_in_place)
{
    const Bytes numbers = {0x08, 1, 0x10, 2, 0x18, 3, 0x32, 0x02, 0x08, 0x05};
    expect_without_memory(numbers, kCopy, WIRE_OK);
    expect_without_memory(join({numbers, {0x2A, 1, 'a'}}), kInPlace, WIRE_OK);
    expect_without_memory(join({numbers, {0x22, 1, 'a'}}), kInPlace, WIRE_ERR_NO_MEMORY);
}

TEST(a_length, must_be_readable)
{
    for (uint8_t tag : Bytes{0x22, 0x2A, 0x32, 0x42, 0x4A}) {
        expect_at_once({tag}, WIRE_ERR_MALFORMED);
        expect_at_once({tag, 0x80, 0x80}, WIRE_ERR_MALFORMED);
    }
}

TEST(a_length, must_lie_within_the_input)
{
    for (uint8_t tag : Bytes{0x22, 0x2A, 0x32, 0x42, 0x4A}) {
        expect_at_once({tag, 0x01}, WIRE_ERR_MALFORMED);
        expect_at_once({tag, 0x03, 0x08, 0x01}, WIRE_ERR_MALFORMED);
        // Lengths that wrap around, to the length itself, to the tag, to the very end of the input.
        for (uint8_t low : Bytes{0xFF, 0xFE, 0xFB, 0xFA, 0xF9})
            expect_at_once({tag, low, 0xFF, 0xFF, 0xFF, 0x0F}, WIRE_ERR_MALFORMED);
        expect_without_memory({0x2A, 0xFA, 0xFF, 0xFF, 0xFF, 0x0F}, kInPlace, WIRE_ERR_MALFORMED);
    }
}

TEST(a_length, may_reach_just_to_the_end_and_be_longer_than_need_be)
{
    for (uint8_t tag : Bytes{0x22, 0x2A, 0x32, 0x42, 0x4A}) {
        EXPECT_EQ(decode<Every>({tag, 0x00}), WIRE_OK);
        EXPECT_EQ(decode<Every>({tag, 0x02, 0x08, 0x01}), WIRE_OK);
        EXPECT_EQ(decode<Every>({tag, 0x82, 0x80, 0x00, 0x08, 0x01}), WIRE_OK);
        EXPECT_EQ(decode<Every>({tag, 0x82, 0x80, 0x80, 0x80, 0xF0, 0x00, 0x08, 0x01}), WIRE_OK);
    }
}

TEST(a_varint, must_end_inside_the_input)
{
    for (uint8_t tag : Bytes{0x08, 0x10, 0x18, 0x38}) {
        expect_at_once({tag}, WIRE_ERR_MALFORMED);
        expect_at_once({tag, 0x80}, WIRE_ERR_MALFORMED);
        expect_at_once({tag, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80}, WIRE_ERR_MALFORMED);
    }
    expect_at_once({0x80}, WIRE_ERR_MALFORMED);
    expect_at_once({0x08, 0x01, 0x88}, WIRE_ERR_MALFORMED);
}
