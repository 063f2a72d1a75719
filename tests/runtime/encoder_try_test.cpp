// SPDX-License-Identifier: MIT
// How an encoder tries what may not fit: when it may, what ends a try, and how what was tried
// moves.
#include "runtime/encoder.hpp"

#include "tests/support/bytes.hpp"

#include <gtest/gtest.h>

#include <numeric>

using tarn::Encoder;
using test::Bytes;

namespace {

Encoder encoder_of(uint8_t *buffer, uint32_t capacity)
{
    return Encoder(buffer, capacity, nullptr, nullptr, 0);
}

} // namespace

TEST(an_encoder, is_roomy_where_any_number_fits)
{
    uint8_t buffer[20] = {};
    for (uint32_t capacity = 0; capacity <= 20; capacity++) {
        const Encoder out = encoder_of(buffer, capacity);
        for (uint32_t offset = 0; offset <= 21; offset++) {
            EXPECT_EQ(out.is_roomy(offset), offset + Encoder::kLongestField <= capacity);
            EXPECT_EQ(out.roomy().until > offset, out.is_roomy(offset));
            EXPECT_EQ(out.room(offset), offset < capacity ? capacity - offset : 0);
        }
        EXPECT_EQ(out.at(7), buffer + 7);
        EXPECT_EQ(out.offset_of(buffer + 7), 7u);
    }
}

TEST(an_encoder, tries_where_there_is_room_and_byte_strings_are_no_pieces)
{
    uint8_t buffer[10] = {};
    uint32_t count = 0;
    EXPECT_TRUE(encoder_of(buffer, 10).can_try(3, 6));
    EXPECT_FALSE(encoder_of(buffer, 10).can_try(3, 7));
    EXPECT_FALSE(encoder_of(buffer, 10).can_try(10, 0));
    EXPECT_FALSE(encoder_of(nullptr, 0).can_try(0, 0));
    EXPECT_TRUE(Encoder(buffer, 10, nullptr, &count, 0).can_try(0, 2));
    EXPECT_TRUE(Encoder(buffer, 10, nullptr, nullptr, WIRE_FLAG_BYTES_IN_PLACE).can_try(0, 2));
    EXPECT_FALSE(Encoder(buffer, 10, nullptr, &count, WIRE_FLAG_BYTES_IN_PLACE).can_try(0, 2));
    EXPECT_TRUE(Encoder(buffer, 10, nullptr, &count, ~WIRE_FLAG_BYTES_IN_PLACE).can_try(0, 2));
}

// A prefix may come to be four bytes longer, at every level.
TEST(an_encoder, is_sure_of_what_fits_wherever_it_will_have_moved)
{
    uint8_t buffer[100] = {};
    Encoder out = encoder_of(buffer, 100);
    EXPECT_TRUE(out.is_sure_to_fit(10, 90));
    EXPECT_FALSE(out.is_sure_to_fit(10, 91));
    const uint32_t none = out.begin_try();
    EXPECT_TRUE(out.is_trying());
    EXPECT_TRUE(out.is_sure_to_fit(10, 86));
    EXPECT_FALSE(out.is_sure_to_fit(10, 87));
    const uint32_t one = out.begin_try();
    EXPECT_TRUE(out.is_sure_to_fit(10, 82));
    EXPECT_FALSE(out.is_sure_to_fit(10, 83));
    EXPECT_FALSE(out.end_try(one));
    EXPECT_TRUE(out.is_trying());
    EXPECT_TRUE(out.is_sure_to_fit(10, 86));
    EXPECT_FALSE(out.end_try(none));
    EXPECT_FALSE(out.is_trying());
    EXPECT_TRUE(out.is_sure_to_fit(10, 90));
    // Lengths of 32 bits do not wrap around.
    EXPECT_FALSE(out.is_sure_to_fit(10, 0xFFFFFFFF));
    EXPECT_FALSE(out.is_sure_to_fit(0xFFFFFFFF, 10));
}

TEST(a_try, ends_with_a_text_or_byte_string_that_may_come_not_to_fit)
{
    const uint8_t data[] = {1, 2, 3};
    const char *text = reinterpret_cast<const char *>(data);
    for (uint32_t capacity : {7u, 8u}) { // a length, the data, four bytes to move
        Bytes text_buffer(capacity, 0xA5), bytes_buffer(capacity, 0xA5);
        Encoder texts = encoder_of(text_buffer.data(), capacity);
        Encoder bytes = encoder_of(bytes_buffer.data(), capacity);
        texts.begin_try();
        bytes.begin_try();
        EXPECT_EQ(texts.put_text(0, text, 3), capacity == 8 ? 4 : capacity);
        EXPECT_EQ(bytes.put_bytes(0, data, 3), capacity == 8 ? 4 : capacity);
        EXPECT_EQ(texts.has_given_up(), capacity != 8);
        EXPECT_EQ(bytes.has_given_up(), capacity != 8);
        EXPECT_EQ(text_buffer[1], capacity == 8 ? 1 : 0xA5);
        EXPECT_EQ(bytes_buffer, text_buffer);
    }
}

// In place only the length has to fit.
TEST(a_try, ends_with_a_byte_string_in_place_whose_length_does_not_fit)
{
    const uint8_t data[200] = {};
    for (uint32_t capacity : {1u, 2u}) {
        uint8_t buffer[2] = {};
        Encoder out(buffer, capacity, nullptr, nullptr, WIRE_FLAG_BYTES_IN_PLACE);
        out.begin_try();
        EXPECT_EQ(out.put_bytes(0, data, 200), capacity);
        EXPECT_EQ(out.has_given_up(), capacity == 1);
    }
}

TEST(a_try, can_be_given_up_and_started_again)
{
    uint8_t buffer[10] = {};
    WireSegment segments[4];
    uint32_t count = 4;
    Encoder out(buffer, 10, segments, &count, 0);
    out.add_segment_of_buffer(0, 1);
    const uint32_t outer = out.begin_try();
    out.add_segment_of_buffer(2, 1);
    EXPECT_FALSE(out.has_given_up());
    EXPECT_EQ(out.give_up(), 10u);
    EXPECT_TRUE(out.has_given_up());
    EXPECT_TRUE(out.end_try(outer));
    out.start_again(1);
    EXPECT_FALSE(out.has_given_up());
    EXPECT_EQ(out.segment_count(), 1u);
}

TEST(what_was_tried, moves_whole_whatever_its_length)
{
    constexpr uint32_t kOffset = 3;
    for (uint32_t length = 0; length <= 70; length++) {
        for (uint32_t distance = 1; distance <= 4; distance++) {
            Bytes buffer(kOffset + length + distance + 2);
            std::iota(buffer.begin(), buffer.end(), uint8_t{1});
            const Bytes before = buffer;
            // The capacity is just what it takes, with two more bytes behind it.
            Encoder out = encoder_of(buffer.data(), kOffset + length + distance);
            EXPECT_TRUE(out.move(kOffset, length, distance, 0));
            for (uint32_t i = 0; i < length; i++)
                EXPECT_EQ(buffer[kOffset + distance + i], before[kOffset + i]) << length;
            EXPECT_EQ(buffer.first(kOffset), before.first(kOffset));
            EXPECT_EQ(buffer[buffer.size() - 2], before[buffer.size() - 2]);
            EXPECT_EQ(buffer[buffer.size() - 1], before[buffer.size() - 1]);
        }
    }
}

TEST(what_was_tried, stays_where_it_is_without_room_to_move)
{
    Bytes buffer(10);
    std::iota(buffer.begin(), buffer.end(), uint8_t{1});
    const Bytes before = buffer;
    EXPECT_FALSE(encoder_of(buffer.data(), 10).move(2, 8, 1, 0));
    EXPECT_FALSE(encoder_of(buffer.data(), 10).move(2, 5, 4, 0));
    EXPECT_EQ(buffer, before);
    EXPECT_TRUE(encoder_of(buffer.data(), 10).move(2, 5, 3, 0));
}

TEST(what_was_tried, takes_its_pieces_along_as_far_as_there_was_room_for_them)
{
    uint8_t buffer[20] = {};
    for (uint32_t room = 0; room <= 4; room++) {
        WireSegment segments[4] = {};
        uint32_t count = room;
        Encoder out(buffer, 20, segments, &count, 0);
        for (uint32_t piece = 0; piece < 4; piece++)
            out.add_segment_of_buffer(piece, 1);
        EXPECT_TRUE(out.move(1, 5, 2, 1));
        EXPECT_EQ(out.segment_count(), 4u);
        for (uint32_t piece = 0; piece < room; piece++)
            EXPECT_EQ(segments[piece].data, buffer + piece + (piece ? 2 : 0));
        for (uint32_t piece = room; piece < 4; piece++)
            EXPECT_EQ(segments[piece].data, nullptr);
    }
}
