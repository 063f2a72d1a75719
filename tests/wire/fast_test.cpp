// SPDX-License-Identifier: MIT
// Reading and writing varints by words gives what the plain functions give, which tell the rules.
#include "wire/fast.hpp"

#include "tests/support/bytes.hpp"

#include <gtest/gtest.h>

#include <vector>

using namespace tarn;
using test::Bytes;
using test::join;

namespace {

constexpr uint8_t kGuard = 0xA5;
constexpr uint32_t kLongestVarint = 10;

// 0, all that stand at an edge between two lengths, and patterns that no two bytes share.
std::vector<uint64_t> edge_values()
{
    std::vector<uint64_t> values = {0, 0x0123456789ABCDEF, 0xFEDCBA9876543210, 0xAAAAAAAAAAAAAAAA};
    for (uint32_t bit = 0; bit < 64; bit++)
        for (const uint64_t near : {~uint64_t{0}, uint64_t{0}, uint64_t{1}})
            values.push_back((uint64_t{1} << bit) + near);
    return values;
}

// A varint of just this many bytes, whether it needs them or not.
Bytes varint_of_size(uint64_t value, uint32_t size)
{
    Bytes bytes;
    for (uint32_t i = 1; i <= size; i++, value >>= 7)
        bytes.push_back(static_cast<uint8_t>((value & 0x7F) | (i < size ? 0x80 : 0)));
    return bytes;
}

template <typename Value>
int32_t read_plainly(Value *value, uint32_t *position, const Bytes &input)
{
    if constexpr (sizeof(Value) == sizeof(uint64_t))
        return wire_read_varint64(value, position, input.data(), input.length());
    else
        return wire_read_varint32(value, position, input.data(), input.length());
}

// In a block of its own that has no byte more than the fast reader may read.
template <typename Value>
void expect_read_alike(const Bytes &varint, uint8_t behind)
{
    Bytes input = varint;
    input.resize(std::max(input.length(), kFastRead), behind);
    SCOPED_TRACE(testing::PrintToString(input));
    Value plain = 0, fast = 0;
    uint32_t position = 0;
    ASSERT_EQ(read_plainly(&plain, &position, input), WIRE_OK);
    const uint8_t *end = fast_read_long(&fast, input.data());
    if (position <= kFastRead) {
        EXPECT_EQ(end, input.data() + position);
        EXPECT_EQ(fast, plain);
    } else {
        EXPECT_EQ(end, nullptr);
    }
}

template <typename Value>
Bytes written_plainly(Value value)
{
    Bytes bytes(kLongestVarint);
    if constexpr (sizeof(Value) == sizeof(uint64_t))
        bytes.resize(wire_put_varint64(value, 0, bytes.data(), kLongestVarint));
    else
        bytes.resize(wire_put_varint32(value, 0, bytes.data(), kLongestVarint));
    return bytes;
}

// Into a block that just holds it, between bytes that must stay.
template <typename Value, typename Store>
void expect_stored(Value value, Store store)
{
    const Bytes varint = written_plainly(value);
    Bytes buffer(varint.size() + 2, kGuard);
    EXPECT_EQ(store(buffer.data() + 1, value), buffer.data() + 1 + varint.size()) << value;
    EXPECT_EQ(buffer, join({{kGuard}, varint, {kGuard}})) << value;
}

} // namespace

TEST(reading_by_words, finds_what_reading_by_bytes_finds)
{
    for (uint64_t value : edge_values()) {
        for (uint32_t size = 2; size <= 12; size++) {
            for (uint8_t behind : Bytes{0x00, 0x7F, 0x80, 0xFF}) {
                expect_read_alike<uint32_t>(varint_of_size(value, size), behind);
                expect_read_alike<uint64_t>(varint_of_size(value, size), behind);
            }
        }
    }
}

// Every byte on its own, so that none takes the place of another.
TEST(reading_by_words, puts_every_bit_in_its_place)
{
    for (uint32_t size = 2; size <= kFastRead; size++) {
        for (uint32_t bit = 0; bit < 7 * size; bit++) {
            expect_read_alike<uint32_t>(varint_of_size(uint64_t{1} << bit, size), 0xFF);
            expect_read_alike<uint64_t>(varint_of_size(uint64_t{1} << bit, size), 0xFF);
        }
    }
}

TEST(sevens, are_joined_as_they_were_spread)
{
    EXPECT_EQ(join_sevens(uint32_t{0x7F7F7F7F}), 0x0FFFFFFFu);
    EXPECT_EQ(join_sevens(uint32_t{0x80808080}), 0u);
    EXPECT_EQ(join_sevens(~uint64_t{0}), 0x00FFFFFFFFFFFFFFu);
    EXPECT_EQ(spread_sevens(uint32_t{0xFFFFFFFF}), 0x7F7F7F7Fu);
    EXPECT_EQ(spread_sevens(~uint64_t{0}), 0x7F7F7F7F7F7F7F7Fu);
    for (uint64_t value : edge_values()) {
        EXPECT_EQ(join_sevens(spread_sevens(value)), value & 0x00FFFFFFFFFFFFFF);
        const uint32_t low = static_cast<uint32_t>(value);
        EXPECT_EQ(join_sevens(spread_sevens(low)), low & 0x0FFFFFFF);
    }
}

TEST(storing_a_varint, writes_what_writing_by_bytes_writes_and_nothing_else)
{
    for (uint64_t value : edge_values()) {
        expect_stored(value, store_varint<uint64_t>);
        expect_stored(static_cast<uint32_t>(value), store_varint<uint32_t>);
    }
}

// Both are there for one width of words only, but right in either.
TEST(storing_a_long_varint, at_once_or_word_by_word_is_the_same)
{
    for (uint64_t value : edge_values()) {
        if (value >= 1 << 14 && value >> 56 == 0)
            expect_stored(value, store_long_varint);
        if (value >= 1 << 14)
            expect_stored(value, store_long_varint_by_words<uint64_t>);
        if (static_cast<uint32_t>(value) >= 1 << 14)
            expect_stored(static_cast<uint32_t>(value), store_long_varint_by_words<uint32_t>);
    }
}

// The largest that two bytes hold is far beyond those of records.
TEST(storing_a_tag, takes_one_byte_or_two_and_no_other)
{
    for (uint32_t tag = 0; tag < 1u << 14; tag++) {
        const Bytes plain = written_plainly(tag);
        const uint32_t bytes = plain.size() == 1 ? plain[0] : plain[0] | plain[1] * 0x100u;
        ASSERT_EQ(tag_size(tag), plain.size()) << tag;
        ASSERT_EQ(tag_bytes(tag), bytes) << tag;
        ASSERT_NO_FATAL_FAILURE(expect_stored(tag, store_tag));
    }
    EXPECT_LT(make_tag(UINT8_MAX, kFixed32), 1u << 14);
}
