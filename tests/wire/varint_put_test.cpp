// SPDX-License-Identifier: MIT
// Writing bytes, varints and tags into buffers that may be too short.
#include "wire/varint.hpp"

#include "tests/support/bytes.hpp"

#include <gtest/gtest.h>

using namespace tarn;
using test::Bytes;

namespace {

constexpr uint8_t kUntouched = 0xA5;

template <typename Value>
struct Row {
    Value value;
    Bytes bytes;
};

template <typename Value>
using Writer = uint32_t (*)(Value, uint32_t, uint8_t *, uint32_t);

// Writes at every offset up to 2, with every capacity up to plenty: what does not fit is counted.
template <typename Value>
void expect_written(Writer<Value> put, std::initializer_list<Row<Value>> rows)
{
    for (const Row<Value> &row : rows) {
        SCOPED_TRACE(testing::PrintToString(row.bytes));
        EXPECT_EQ(put(row.value, 0, nullptr, 0), row.bytes.size());
        EXPECT_EQ(put(row.value, 1000, nullptr, 0), 1000 + row.bytes.size());
        for (uint32_t offset = 0; offset <= 2; offset++) {
            const uint32_t end = offset + row.bytes.length();
            for (uint32_t capacity = 0; capacity <= end + 1; capacity++) {
                Bytes expected(end + 2, kUntouched);
                for (uint32_t at = offset; at < capacity && at < end; at++)
                    expected[at] = row.bytes[at - offset];
                Bytes buffer(end + 2, kUntouched);
                EXPECT_EQ(put(row.value, offset, buffer.data(), capacity), end);
                EXPECT_EQ(buffer, expected) << "capacity " << capacity << ", offset " << offset;
            }
        }
    }
}

} // namespace

TEST(writing, a_byte_as_it_is)
{
    expect_written<uint8_t>(wire_put_byte, {{0, {0x00}}, {0x7F, {0x7F}}, {0xFF, {0xFF}}});
}

TEST(writing, a_value_below_256)
{
    expect_written<uint8_t>(wire_put_varint8, {
                                                  {0, {0x00}},
                                                  {8, {0x08}},
                                                  {127, {0x7F}},
                                                  {128, {0x80, 0x01}},
                                                  {136, {0x88, 0x01}},
                                                  {255, {0xFF, 0x01}},
                                              });
}

TEST(writing, a_32_bit_value)
{
    expect_written<uint32_t>(wire_put_varint32, {
                                                    {0, {0x00}},
                                                    {127, {0x7F}},
                                                    {128, {0x80, 0x01}},
                                                    {300, {0xAC, 0x02}},
                                                    {16383, {0xFF, 0x7F}},
                                                    {16384, {0x80, 0x80, 0x01}},
                                                    {0x1FFFFF, {0xFF, 0xFF, 0x7F}},
                                                    {0x200000, {0x80, 0x80, 0x80, 0x01}},
                                                    {0xFFFFFFF, {0xFF, 0xFF, 0xFF, 0x7F}},
                                                    {0x10000000, {0x80, 0x80, 0x80, 0x80, 0x01}},
                                                    {0xFFFFFFFF, {0xFF, 0xFF, 0xFF, 0xFF, 0x0F}},
                                                });
}

TEST(writing, a_64_bit_value)
{
    expect_written<uint64_t>(
        wire_put_varint64,
        {
            {0, {0x00}},
            {127, {0x7F}},
            {128, {0x80, 0x01}},
            {0xFFFFFFFF, {0xFF, 0xFF, 0xFF, 0xFF, 0x0F}},
            {0x100000000, {0x80, 0x80, 0x80, 0x80, 0x10}},
            {uint64_t{1} << 35, {0x80, 0x80, 0x80, 0x80, 0x80, 0x01}},
            {uint64_t{1} << 42, {0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x01}},
            {uint64_t{1} << 49, {0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x01}},
            {UINT64_MAX >> 1, {0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x7F}},
            {uint64_t{1} << 63, {0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x01}},
            {UINT64_MAX, {0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x01}},
        });
}

TEST(writing, a_tag_of_each_width)
{
    expect_written<uint32_t>(wire_put_tag, {
                                               {make_tag(1, kVarint), {0x08}},
                                               {make_tag(15, kLengthDelimited), {0x7A}},
                                               {0x7F, {0x7F}},
                                               {make_tag(16, kVarint), {0x80, 0x01}},
                                               {make_tag(31, kLengthDelimited), {0xFA, 0x01}},
                                               {0xFF, {0xFF, 0x01}},
                                               {make_tag(32, kVarint), {0x80, 0x02}},
                                               {make_tag(45, kLengthDelimited), {0xEA, 0x02}},
                                               {make_tag(2048, kVarint), {0x80, 0x80, 0x01}},
                                           });
}

// Offsets are counted in 32 bits, however they got there.
TEST(writing, wraps_around_with_the_offset)
{
    EXPECT_EQ(wire_put_byte(1, UINT32_MAX, nullptr, 0), 0u);
    uint8_t buffer[2] = {kUntouched, kUntouched};
    EXPECT_EQ(wire_put_varint32(300, UINT32_MAX, buffer, 2), 1u);
    EXPECT_EQ(buffer[0], 0x02);
    EXPECT_EQ(buffer[1], kUntouched);
}
