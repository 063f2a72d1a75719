// SPDX-License-Identifier: MIT
// Encoding into vectors, buffers and gather lists.
#include "cxx/encode.hpp"

#include "tests/cxx/samples.hpp"

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <stdexcept>
#include <string>
#include <vector>

using samples::Bytes;
using samples::Details;
using samples::Fieldless;
using samples::Numbers;
using samples::Text;

namespace {

using Vector = std::vector<uint8_t>;

const Vector kAnswer = {0xAA, 0xBB};

// The encoding of a text of so many characters, in a record.
Vector encoding_of_text(size_t length)
{
    Vector expected = {0x0A};
    for (size_t rest = length;; rest >>= 7) {
        expected.push_back(static_cast<uint8_t>(rest > 127 ? rest % 128 + 128 : rest));
        if (rest <= 127)
            break;
    }
    expected.insert(expected.end(), length, 'a');
    return expected;
}

// The bytes of all pieces, one behind the other.
Vector joined(const std::vector<WireSegment> &pieces)
{
    Vector bytes;
    for (const WireSegment &piece : pieces)
        bytes.insert(bytes.end(), piece.data, piece.data + piece.length);
    return bytes;
}

TEST(encode, returns_a_vector)
{
    EXPECT_EQ(tarn::encode(samples::numbers()), samples::kNumbers);
    EXPECT_EQ(tarn::encode(samples::details()), samples::kDetails);
}

TEST(encode, takes_records_of_any_length)
{
    for (const size_t length :
         std::vector<size_t>{0, 1, 126, 127, 128, 252, 253, 254, 255, 256, 257, 1000, 70000}) {
        const std::string text(length, 'a');
        EXPECT_EQ(tarn::encode(samples::text(text)), encoding_of_text(length)) << length;
    }
}

TEST(encode, takes_an_owner)
{
    tarn::Owner<samples::Summary> owner;
    ASSERT_EQ(owner.decode(samples::kSummary), WIRE_OK);
    EXPECT_EQ(tarn::encode(owner), samples::kSummary);
    EXPECT_EQ(tarn::encode(*owner), samples::kSummary);
    EXPECT_EQ(tarn::encoded_length(owner), samples::kSummary.size());
}

TEST(encode, makes_nothing_of_a_type_without_fields)
{
    EXPECT_EQ(tarn::encode<Fieldless>(), Vector());
    EXPECT_EQ(tarn::encode(tarn::Owner<Fieldless>()), Vector());
    EXPECT_EQ(tarn::encoded_length(tarn::Owner<Fieldless>()), 0u);
    uint8_t buffer[1];
    EXPECT_EQ(tarn::encode_into(buffer, tarn::Owner<Fieldless>()), 0u);
}

TEST(encoded_length, counts_what_encode_returns)
{
    EXPECT_EQ(tarn::encoded_length(samples::details()), samples::kDetails.size());
    EXPECT_EQ(tarn::encoded_length(samples::details(), WIRE_FLAG_BYTES_IN_PLACE),
              samples::kDetails.size() - sizeof samples::kPayload);
}

TEST(append, puts_the_encoding_behind_what_is_there)
{
    for (const size_t length : std::vector<size_t>{0, 1, 253, 254, 255, 256, 3000}) {
        const std::string text(length, 'a');
        Vector to = kAnswer;
        const Vector encoding = encoding_of_text(length);
        EXPECT_EQ(tarn::append(to, samples::text(text)), encoding.size());
        Vector expected = kAnswer;
        expected.insert(expected.end(), encoding.begin(), encoding.end());
        EXPECT_EQ(to, expected) << length;
    }
}

TEST(append, takes_no_memory_where_the_vector_has_room)
{
    for (const size_t length : std::vector<size_t>{10, 3000}) {
        const std::string text(length, 'a');
        Vector to;
        to.reserve(5000);
        const uint8_t *const room = to.data();
        tarn::append(to, samples::text(text));
        EXPECT_EQ(to.data(), room);
    }
}

TEST(append, leaves_the_vector_as_it_was_where_there_is_no_memory)
{
    if constexpr (sizeof(size_t) > sizeof(uint32_t))
        GTEST_SKIP() << "there may be so much memory here";
    Details record = samples::details();
    record.field_3_length = 0xE0000000; // measured, but never looked at
    Vector to = kAnswer;
    EXPECT_THROW(tarn::append(to, record), std::length_error);
    EXPECT_EQ(to, kAnswer);
}

TEST(encode_into, fills_any_row_of_bytes)
{
    const Numbers record = samples::numbers();
    uint8_t array[4];
    std::array<std::byte, 4> bytes = {};
    std::string text(4, '\0');
    Vector vector(4);
    EXPECT_EQ(tarn::encode_into(array, record), 4u);
    EXPECT_EQ(tarn::encode_into(bytes, record), 4u);
    EXPECT_EQ(tarn::encode_into(text, record), 4u);
    EXPECT_EQ(tarn::encode_into(vector, record), 4u);
    EXPECT_EQ(Vector(array, array + 4), samples::kNumbers);
    EXPECT_EQ(bytes[1], std::byte{3});
    EXPECT_EQ(text, std::string("\x08\x03\x10\x01"));
    EXPECT_EQ(vector, samples::kNumbers);
}

TEST(encode_into, returns_the_full_length_where_the_buffer_is_too_small)
{
    uint8_t room[4] = {0xEE, 0xEE, 0xEE, 0xEE};
    EXPECT_EQ(tarn::encode_into({room, 2}, samples::numbers()), 4u);
    EXPECT_EQ(room[2], 0xEE);
    EXPECT_EQ(room[3], 0xEE);
    EXPECT_EQ(tarn::encode_into({}, samples::numbers()), 4u);
}

TEST(encode_into, leaves_alone_what_is_behind_the_encoding)
{
    uint8_t room[6] = {0xEE, 0xEE, 0xEE, 0xEE, 0xEE, 0xEE};
    EXPECT_EQ(tarn::encode_into(room, samples::numbers()), 4u);
    EXPECT_EQ(room[4], 0xEE);
    EXPECT_EQ(room[5], 0xEE);
}

TEST(gather, leaves_byte_strings_where_they_are)
{
    const Details record = samples::details();
    uint8_t buffer[16];
    std::array<WireSegment, 4> pieces = {};
    const tarn::Gathered gathered = tarn::gather(record, buffer, pieces);
    ASSERT_EQ(gathered.count, 3u);
    EXPECT_EQ(gathered.length, samples::kDetails.size() - sizeof samples::kPayload);
    EXPECT_EQ(pieces[0].data, buffer);
    EXPECT_EQ(pieces[1].data, samples::kPayload);
    EXPECT_EQ(pieces[1].length, sizeof samples::kPayload);
    EXPECT_EQ(pieces[2].data, buffer + 4);
    EXPECT_EQ(joined({pieces.begin(), pieces.begin() + 3}), samples::kDetails);
}

TEST(gather, tells_how_much_room_it_needs)
{
    uint8_t buffer[3];
    WireSegment pieces[1];
    const tarn::Gathered gathered = tarn::gather(samples::details(), buffer, pieces);
    EXPECT_EQ(gathered.length, 9u);
    EXPECT_EQ(gathered.count, 3u);
}

TEST(gather, makes_vectors_as_long_as_need_be)
{
    const Details record = samples::details();
    Vector buffer;
    std::vector<WireSegment> pieces;
    for (int i = 0; i < 2; i++) { // empty ones, and those of the record before
        tarn::gather(record, buffer, pieces);
        EXPECT_EQ(buffer.size(), 9u);
        EXPECT_EQ(pieces.size(), 3u);
        EXPECT_EQ(joined(pieces), samples::kDetails);
    }
    buffer.assign(100, 0xEE);
    pieces.resize(100);
    tarn::gather(record, buffer, pieces);
    EXPECT_EQ(joined(pieces), samples::kDetails);
}

TEST(gather, has_one_piece_where_there_are_no_byte_strings)
{
    Vector buffer;
    std::vector<WireSegment> pieces;
    tarn::gather(samples::numbers(), buffer, pieces);
    ASSERT_EQ(pieces.size(), 1u);
    EXPECT_EQ(joined(pieces), samples::kNumbers);
}

TEST(gather, has_no_piece_where_there_is_nothing_to_send)
{
    Vector buffer(5);
    std::vector<WireSegment> pieces(5);
    tarn::gather(Numbers{}, buffer, pieces);
    EXPECT_EQ(buffer.size(), 0u);
    EXPECT_EQ(pieces.size(), 0u);
    tarn::gather(tarn::Owner<Fieldless>(), buffer, pieces);
    EXPECT_EQ(pieces.size(), 0u);
}

} // namespace
