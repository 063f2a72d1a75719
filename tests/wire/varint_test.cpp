// SPDX-License-Identifier: MIT
// Reading varints, taking tags apart, and how many bytes a value takes.
#include "wire/varint.hpp"

#include "tests/support/bytes.hpp"

#include <gtest/gtest.h>

using namespace tarn;
using test::Bytes;
using test::join;
using test::repeat;

namespace {

int32_t read(uint32_t *value, uint32_t *position, const uint8_t *buffer, uint32_t length)
{
    return wire_read_varint32(value, position, buffer, length);
}

int32_t read(uint64_t *value, uint32_t *position, const uint8_t *buffer, uint32_t length)
{
    return wire_read_varint64(value, position, buffer, length);
}

template <typename Value>
int32_t read(Value *value, uint32_t *position, const Bytes &in)
{
    return read(value, position, in.data(), in.length());
}

template <typename Value>
struct Row {
    Bytes bytes;
    Value value;
};

const Row<uint32_t> kRows32[] = {
    {{0x00}, 0},
    {{0x01}, 1},
    {{0x7F}, 127},
    {{0x80, 0x01}, 128},
    {{0xAC, 0x02}, 300},
    {{0xFF, 0x7F}, 16383},
    {{0x80, 0x80, 0x01}, 16384},
    {{0xFF, 0xFF, 0x7F}, 0x1FFFFF},
    {{0x80, 0x80, 0x80, 0x01}, 0x200000},
    {{0xFF, 0xFF, 0xFF, 0x7F}, 0xFFFFFFF},
    {{0x80, 0x80, 0x80, 0x80, 0x01}, 0x10000000},
    {{0x81, 0x82, 0x83, 0x84, 0x05}, 0x50000000 | 4 << 21 | 3 << 14 | 2 << 7 | 1},
    {{0xFF, 0xFF, 0xFF, 0xFF, 0x0F}, 0xFFFFFFFF},
    // Of the fifth byte only four bits are used.
    {{0x80, 0x80, 0x80, 0x80, 0x10}, 0},
    {{0x80, 0x80, 0x80, 0x80, 0x70}, 0},
    {{0xFF, 0xFF, 0xFF, 0xFF, 0x7F}, 0xFFFFFFFF},
    // Longer than need be.
    {{0x80, 0x00}, 0},
    {{0x85, 0x80, 0x80, 0x00}, 5},
    {{0x80, 0x80, 0x80, 0x80, 0x80, 0x01}, 0},
    {{0x85, 0x80, 0x80, 0x80, 0x80, 0x80, 0x01}, 5},
    {{0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x01}, 0xFFFFFFFF},
    {{0xFE, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x01}, 0xFFFFFFFE},
    {join({{0x87}, repeat(99, {0xFF}), {0x00}}), 0xFFFFFF87},
};

const Row<uint64_t> kRows64[] = {
    {{0x00}, 0},
    {{0x7F}, 127},
    {{0xAC, 0x02}, 300},
    {{0xFF, 0xFF, 0xFF, 0xFF, 0x0F}, 0xFFFFFFFF},
    {{0xFF, 0xFF, 0xFF, 0xFF, 0x7F}, 0x7FFFFFFFF},
    {{0x80, 0x80, 0x80, 0x80, 0x80, 0x01}, uint64_t{1} << 35},
    {{0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x01}, uint64_t{1} << 42},
    {{0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x01}, uint64_t{1} << 49},
    {{0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x7F}, UINT64_MAX >> 1},
    {{0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x01}, uint64_t{1} << 63},
    {{0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x01}, UINT64_MAX},
    // Of the tenth byte only one bit is used.
    {{0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x7E}, 0},
    {{0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x7F}, UINT64_MAX},
    // Longer than need be.
    {{0x85, 0x80, 0x00}, 5},
    {{0x85, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x01}, 5},
    {join({{0x80}, repeat(99, {0x80}), {0x01}}), 0},
};

template <typename Value, size_t N>
void expect_values(const Row<Value> (&rows)[N])
{
    for (const Row<Value> &row : rows) {
        SCOPED_TRACE(testing::PrintToString(row.bytes));
        // Something before and something behind it, which is of no interest.
        const Bytes in = join({{0xFF, 0xFF}, row.bytes, {0xFF}});
        Value value = 77;
        uint32_t position = 2;
        EXPECT_EQ(read(&value, &position, in), WIRE_OK);
        EXPECT_EQ(value, row.value);
        EXPECT_EQ(position, 2 + row.bytes.size());
        // The last byte may be the end of the input.
        position = 0;
        EXPECT_EQ(read(&value, &position, row.bytes), WIRE_OK);
        // Without a value the varint is read all the same.
        position = 0;
        EXPECT_EQ(read(static_cast<Value *>(nullptr), &position, row.bytes), WIRE_OK);
        EXPECT_EQ(position, row.bytes.size());
    }
}

template <typename Value, size_t N>
void expect_failures_when_cut(const Row<Value> (&rows)[N])
{
    for (const Row<Value> &row : rows) {
        for (size_t size = 0; size < row.bytes.size(); size++) {
            SCOPED_TRACE(testing::PrintToString(row.bytes.first(size)));
            Value value = 77;
            uint32_t position = 0;
            EXPECT_EQ(read(&value, &position, row.bytes.first(size)), WIRE_ERR_MALFORMED);
            EXPECT_EQ(value, 77u);
            EXPECT_EQ(position, 0u);
        }
    }
}

template <typename Value>
void expect_every_bit_in_its_place()
{
    for (uint32_t bit = 0; bit < sizeof(Value) * 8; bit++) {
        const Bytes in = join({repeat(bit / 7, {0x80}), {static_cast<uint8_t>(1u << bit % 7)}});
        Value value = 77;
        uint32_t position = 0;
        EXPECT_EQ(read(&value, &position, in), WIRE_OK);
        EXPECT_EQ(value, Value{1} << bit) << "bit " << bit;
    }
}

template <typename Value>
void expect_failure_at(uint32_t start, uint32_t length)
{
    // The byte at `start` exists, but does not belong to the input.
    const Bytes in = {0x01, 0x02, 0x03, 0x04};
    Value value = 77;
    uint32_t position = start;
    EXPECT_EQ(read(&value, &position, in.data(), length), WIRE_ERR_MALFORMED);
    EXPECT_EQ(value, 77u);
    EXPECT_EQ(position, start);
}

} // namespace

TEST(reading_a_varint, finds_the_value_and_goes_on_behind_it)
{
    expect_values(kRows32);
    expect_values(kRows64);
}

TEST(reading_a_varint, puts_every_bit_in_its_place)
{
    expect_every_bit_in_its_place<uint32_t>();
    expect_every_bit_in_its_place<uint64_t>();
}

TEST(reading_a_varint, fails_where_the_input_ends_inside_and_changes_nothing)
{
    expect_failures_when_cut(kRows32);
    expect_failures_when_cut(kRows64);
}

TEST(reading_a_varint, fails_at_the_end_and_beyond)
{
    for (uint32_t start : {2u, 3u, UINT32_MAX}) {
        expect_failure_at<uint32_t>(start, 2);
        expect_failure_at<uint64_t>(start, 2);
    }
    uint32_t position = 0;
    EXPECT_EQ(wire_read_varint32(nullptr, &position, nullptr, 0), WIRE_ERR_MALFORMED);
    EXPECT_EQ(wire_read_varint64(nullptr, &position, nullptr, 0), WIRE_ERR_MALFORMED);
    EXPECT_EQ(position, 0u);
}

TEST(a_tag, is_a_field_number_and_a_wire_type)
{
    EXPECT_EQ(make_tag(1, kVarint), 0x08u);
    EXPECT_EQ(make_tag(4, kLengthDelimited), 0x22u);
    EXPECT_EQ(make_tag(16, kVarint), 0x80u);
    EXPECT_EQ(make_tag(45, kLengthDelimited), 0x16Au);
    EXPECT_EQ(wire_type_of(0x16A), kLengthDelimited);
    EXPECT_EQ(field_number_of(0x16A), 45u);
    EXPECT_EQ(wire_type_of(0xFFFFFFFF), 7u);
    EXPECT_EQ(field_number_of(0xFFFFFFFF), 0x1FFFFFFFu);
}

TEST(the_size_of_a_varint, grows_by_one_every_seven_bits)
{
    EXPECT_EQ(wire_varint32_size(0), 1u);
    EXPECT_EQ(wire_varint64_size(0), 1u);
    for (uint32_t bits = 1; bits <= 64; bits++) {
        const uint64_t largest = UINT64_MAX >> (64 - bits);
        const uint64_t smallest = largest - largest / 2;
        const uint32_t size = (bits + 6) / 7;
        EXPECT_EQ(wire_varint64_size(smallest), size) << bits << " bits";
        EXPECT_EQ(wire_varint64_size(largest), size) << bits << " bits";
        EXPECT_EQ(wire_varint64_size(largest, 2), 2 + size) << bits << " bits";
        if (bits > 32)
            continue;
        EXPECT_EQ(wire_varint32_size(static_cast<uint32_t>(smallest)), size) << bits << " bits";
        EXPECT_EQ(wire_varint32_size(static_cast<uint32_t>(largest)), size) << bits << " bits";
        EXPECT_EQ(wire_varint32_size(static_cast<uint32_t>(largest), 1), 1 + size)
            << bits << " bits";
    }
}

TEST(the_size_of_a_varint, is_that_of_its_width)
{
    EXPECT_EQ(wire_varint_size(uint8_t{0x7F}), 1u);
    EXPECT_EQ(wire_varint_size(uint8_t{0x80}, 2), 4u);
    EXPECT_EQ(wire_varint_size(UINT32_MAX, 1), 6u);
    EXPECT_EQ(wire_varint_size(uint64_t{UINT32_MAX}), 5u);
    EXPECT_EQ(wire_varint_size(UINT64_MAX, 2), 12u);
    // Both sides of every length, behind as many bytes as a tag takes.
    for (uint32_t size = 1; size < 10; size++) {
        for (uint32_t behind = 0; behind <= 2; behind++) {
            EXPECT_EQ(wire_varint64_size((uint64_t{1} << 7 * size) - 1, behind), behind + size);
            EXPECT_EQ(wire_varint64_size(uint64_t{1} << 7 * size, behind), behind + size + 1);
        }
    }
}
