// SPDX-License-Identifier: MIT
// The state of an encoding: what is stored, what is only counted, and which pieces are reported.
#include "runtime/encoder.hpp"

#include "tests/support/bytes.hpp"
#include "tests/support/segments.hpp"

#include <gtest/gtest.h>

using tarn::Encoder;
using test::Bytes;

namespace {

constexpr uint8_t kUntouched = 0xA5;
constexpr uint8_t kData[] = {0xDE, 0xAD, 0xBE, 0xEF};

// Never looked at where the rules are kept.
const char *const kNoText = reinterpret_cast<const char *>(16);
const uint8_t *const kNoData = reinterpret_cast<const uint8_t *>(16);

// A buffer of ten bytes and room for four pieces, of which an Encoder may be told less.
struct Fixture {
    Bytes buffer = Bytes(10, kUntouched);
    WireSegment segments[4] = {};

    Encoder encoder(uint32_t capacity, uint32_t flags = 0)
    {
        return Encoder(buffer.data(), capacity, nullptr, nullptr, flags);
    }

    Encoder with_pieces(uint32_t capacity, uint32_t count, uint32_t flags = 0)
    {
        return Encoder(buffer.data(), capacity, segments, &count, flags);
    }

    std::string pieces(uint32_t count) const
    {
        std::string all;
        for (uint32_t i = 0; i < count; i++) {
            all += i ? " " : "";
            all += test::describe(segments[i], buffer.data(), buffer.length(),
                                  {{kData, "data"}, {kNoData, "no data"}});
        }
        return all;
    }
};

} // namespace

TEST(encoder, writes_one_thing_behind_the_other)
{
    Fixture f;
    Encoder out = f.encoder(10);
    uint32_t offset = out.put_tag(0, 0x80);
    offset = out.put_varint32(offset, 300);
    offset = out.put_varint64(offset, 5);
    EXPECT_EQ(out.put_text(offset, "hi", 2), 8u);
    EXPECT_EQ(f.buffer, (Bytes{0x80, 0x01, 0xAC, 0x02, 0x05, 0x02, 'h', 'i', 0xA5, 0xA5}));
}

TEST(encoder, counts_what_does_not_fit)
{
    Fixture f;
    Encoder out = f.encoder(3);
    uint32_t offset = out.put_tag(0, 0x80);
    offset = out.put_varint32(offset, 300);
    EXPECT_EQ(out.put_varint64(offset, 5), 5u);
    EXPECT_EQ(f.buffer.first(4), (Bytes{0x80, 0x01, 0xAC, 0xA5}));
}

TEST(encoder, copies_a_text_or_byte_string_whole_or_not_at_all)
{
    for (uint32_t capacity = 0; capacity <= 6; capacity++) {
        const Bytes expected = capacity >= 5   ? Bytes{0x04, 0xDE, 0xAD, 0xBE, 0xEF, 0xA5}
                               : capacity >= 1 ? Bytes{0x04, 0xA5, 0xA5, 0xA5, 0xA5, 0xA5}
                                               : Bytes{0xA5, 0xA5, 0xA5, 0xA5, 0xA5, 0xA5};
        Fixture text, bytes;
        Encoder text_out = text.encoder(capacity);
        Encoder bytes_out = bytes.encoder(capacity);
        EXPECT_EQ(text_out.put_text(0, reinterpret_cast<const char *>(kData), 4), 5u);
        EXPECT_EQ(bytes_out.put_bytes(0, kData, 4), 5u);
        EXPECT_EQ(text.buffer.first(6), expected) << "capacity " << capacity;
        EXPECT_EQ(bytes.buffer.first(6), expected) << "capacity " << capacity;
    }
}

// A length that takes the offset past 2^32: five bytes of prefix, then 5 + 0xFFFFFFFE = 3.
TEST(encoder, wraps_around_with_a_text_but_takes_a_byte_string_for_empty)
{
    Fixture text, bytes;
    Encoder text_out = text.encoder(10);
    Encoder bytes_out = bytes.encoder(10);
    EXPECT_EQ(text_out.put_text(0, kNoText, 0xFFFFFFFE), 3u);
    EXPECT_EQ(bytes_out.put_bytes(0, kNoData, 0xFFFFFFFE), 5u);
    const Bytes prefix = {0xFE, 0xFF, 0xFF, 0xFF, 0x0F, 0xA5};
    EXPECT_EQ(text.buffer.first(6), prefix);
    EXPECT_EQ(bytes.buffer.first(6), prefix);
}

TEST(encoder, wraps_to_the_very_offset_0_and_to_where_it_was)
{
    Fixture f;
    Encoder out = f.encoder(10);
    EXPECT_EQ(out.put_text(0, kNoText, 0xFFFFFFFB), 0u);
    EXPECT_EQ(out.put_bytes(0, kNoData, 0xFFFFFFFB), 5u);
    // The longest that does not wrap is only too long.
    EXPECT_EQ(out.put_bytes(0, kNoData, 0xFFFFFFFA), 0xFFFFFFFFu);
}

TEST(encoder, reports_its_whole_encoding_as_one_piece)
{
    Fixture f;
    Encoder out = f.with_pieces(10, 4);
    out.finish(out.put_bytes(out.put_tag(0, 0x08), kData, 4));
    EXPECT_EQ(out.segment_count(), 1u);
    EXPECT_EQ(f.pieces(1), "(buffer, 6)");
}

TEST(encoder, reports_nothing_when_it_is_empty_or_nobody_asks)
{
    Fixture f;
    Encoder empty = f.with_pieces(10, 4);
    empty.finish(0);
    EXPECT_EQ(empty.segment_count(), 0u);
    // Not even with an array: it is the count that asks.
    Encoder unasked(f.buffer.data(), 10, f.segments, nullptr, WIRE_FLAG_BYTES_IN_PLACE);
    EXPECT_FALSE(unasked.wants_segments());
    const uint32_t end = unasked.put_bytes(0, kData, 4);
    EXPECT_EQ(end, 1u);
    unasked.finish(end);
    unasked.add_segment_of_buffer(0, 1);
    EXPECT_EQ(unasked.segment_count(), 0u);
    EXPECT_EQ(f.segments[0].data, nullptr);
}

TEST(encoder, leaves_byte_strings_in_place_as_pieces_of_their_own)
{
    Fixture f;
    Encoder out = f.with_pieces(10, 4, WIRE_FLAG_BYTES_IN_PLACE);
    uint32_t offset = out.put_bytes(out.put_tag(0, 0x08), kData, 4);
    offset = out.put_bytes(offset, kData, 0); // a piece neither of itself nor of the buffer
    offset = out.put_tag(offset, 0x10);
    EXPECT_EQ(offset, 4u);
    out.finish(offset);
    EXPECT_EQ(f.buffer.first(5), (Bytes{0x08, 0x04, 0x00, 0x10, 0xA5}));
    EXPECT_EQ(out.segment_count(), 3u);
    EXPECT_EQ(f.pieces(3), "(buffer, 2) (data, 4) (buffer+2, 2)");
}

TEST(encoder, ends_without_a_piece_when_nothing_follows_a_byte_string)
{
    Fixture f;
    Encoder out = f.with_pieces(10, 4, WIRE_FLAG_BYTES_IN_PLACE);
    const uint32_t end = out.put_bytes(0, kNoData, 0xFFFFFFFE); // never wraps: it does not count
    EXPECT_EQ(end, 5u);
    out.finish(end);
    EXPECT_EQ(f.pieces(out.segment_count()), "(buffer, 5) (no data, 4294967294)");
}

TEST(encoder, counts_the_pieces_that_there_is_no_room_for)
{
    Fixture f;
    Encoder out = f.with_pieces(10, 1, WIRE_FLAG_BYTES_IN_PLACE);
    EXPECT_EQ(out.free_segment_count(), 1u);
    EXPECT_EQ(out.free_segments(), f.segments);
    const uint32_t offset = out.put_bytes(0, kData, 4);
    EXPECT_EQ(out.free_segment_count(), 0u);
    EXPECT_EQ(out.free_segments(), nullptr);
    out.finish(out.put_tag(offset, 0x08));
    EXPECT_EQ(out.segment_count(), 3u);
    EXPECT_EQ(f.pieces(1), "(buffer, 1)");
    EXPECT_EQ(f.segments[1].data, nullptr);
}

TEST(encoder, has_no_room_for_pieces_without_an_array)
{
    uint32_t count = 4;
    Fixture f;
    Encoder out(f.buffer.data(), 10, nullptr, &count, 0);
    EXPECT_EQ(out.free_segment_count(), 0u);
    out.finish(out.put_tag(0, 0x08));
    EXPECT_EQ(out.segment_count(), 1u);
}

// Of what is nested, whoever calls it reports the last piece: an empty one is none.
TEST(encoder, reports_pieces_that_it_is_told_of)
{
    Fixture f;
    Encoder out = f.with_pieces(10, 2);
    out.add_segment_of_buffer(2, 0);
    EXPECT_EQ(out.segment_count(), 0u);
    out.add_segment_of_buffer(2, 3);
    out.count_segments(4);
    out.add_segment_of_buffer(0, 5);
    EXPECT_EQ(out.segment_count(), 6u);
    EXPECT_EQ(f.pieces(2), "(buffer+2, 3) (null, 0)");
}

TEST(a_nested_encoder, gets_what_is_left_of_buffer_and_array)
{
    Fixture f;
    Encoder out = f.with_pieces(10, 4, WIRE_FLAG_BYTES_IN_PLACE);
    const Encoder inner = out.nested(out.put_bytes(out.put_tag(0, 0x08), kData, 4));
    EXPECT_EQ(inner.at(0), f.buffer.data() + 2);
    EXPECT_EQ(inner.room(0), 8u);
    EXPECT_EQ(inner.free_segments(), f.segments + 2);
    EXPECT_EQ(inner.free_segment_count(), 2u);
    EXPECT_EQ(inner.segment_count(), 0u);
    EXPECT_EQ(inner.flags(), WIRE_FLAG_BYTES_IN_PLACE);
}

TEST(a_nested_encoder, gets_no_buffer_where_it_is_full)
{
    Fixture f;
    for (uint32_t capacity : {0u, 1u, 2u}) {
        const Encoder inner = f.encoder(capacity).nested(2);
        EXPECT_EQ(inner.at(0), nullptr);
        EXPECT_EQ(inner.room(0), 0u);
    }
    const Encoder inner = f.encoder(3).nested(2);
    EXPECT_EQ(inner.at(0), f.buffer.data() + 2);
    EXPECT_EQ(inner.room(0), 1u);
}

TEST(a_nested_encoder, gets_no_array_where_it_is_full_but_counts_on)
{
    Fixture f;
    Encoder out = f.with_pieces(10, 2, WIRE_FLAG_BYTES_IN_PLACE);
    Encoder inner = out.nested(out.put_bytes(0, kData, 4));
    EXPECT_EQ(inner.free_segments(), nullptr);
    inner.finish(inner.put_tag(0, 0x08));
    EXPECT_EQ(inner.segment_count(), 1u);
    out.count_segments(inner.segment_count());
    EXPECT_EQ(out.segment_count(), 3u);
}

TEST(a_nested_encoder, wants_pieces_only_when_its_parent_does)
{
    Fixture f;
    Encoder inner = f.encoder(10, WIRE_FLAG_BYTES_IN_PLACE).nested(0);
    inner.finish(inner.put_bytes(0, kData, 4));
    EXPECT_EQ(inner.segment_count(), 0u);
}
