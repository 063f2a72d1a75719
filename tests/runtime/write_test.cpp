// SPDX-License-Identifier: MIT
// What each kind of member looks like on the wire, for tags of each width, in buffers of each
// capacity; and that measuring knows it before.
#include "runtime/write.hpp"

#include "runtime/codec.hpp"
#include "tests/support/operations.hpp"
#include "tests/support/records.hpp"

#include <gtest/gtest.h>

using namespace tarn;
using test::Bytes;
using test::join;
using test::Leaf;

namespace {

constexpr uint8_t kUntouched = 0xA5;
// More than any number takes, so that the roads for the midst of a buffer are taken, too.
constexpr uint32_t kPlentyOfRoom = 60;

struct Pair {
    const void *pointer;
    uint32_t count;
};

// A run of some kind, as the codec of a record that starts with it measures and writes it.
template <Kind kind, uint8_t number, uint8_t count>
struct OneRun {
    static constexpr Run run = {kind, count, number, 0, 0};
    using Child = test::CodecFor<Leaf>;

    static uint32_t measure(uint32_t offset, const void *members, uint32_t present)
    {
        return measure_run<run, Child>(offset, static_cast<const uint8_t *>(members),
                                       reinterpret_cast<const uint8_t *>(&present), 0);
    }

    static uint32_t write(Encoder &out, const void *members, uint32_t present)
    {
        return write_run<run, Child>(0, out, out.roomy(), static_cast<const uint8_t *>(members),
                                     reinterpret_cast<const uint8_t *>(&present));
    }
};

// Room to spare, and again with every capacity below: numbers and prefixes go as far as they fit,
// and nothing is written behind the capacity or behind the end.
template <typename Written>
void expect_run_written(const void *members, uint32_t present, const Bytes &expected)
{
    SCOPED_TRACE(testing::PrintToString(expected));
    EXPECT_EQ(Written::measure(0, members, present), expected.size());
    EXPECT_EQ(Written::measure(1000, members, present), 1000 + expected.size());
    for (uint32_t capacity = 0; capacity <= expected.length() + kPlentyOfRoom; capacity++) {
        SCOPED_TRACE("capacity " + std::to_string(capacity));
        Bytes buffer(expected.size() + kPlentyOfRoom, kUntouched);
        Encoder out(buffer.data(), capacity, nullptr, nullptr, 0);
        EXPECT_EQ(Written::write(out, members, present), expected.size());
        const uint32_t end = std::min(capacity, expected.length());
        EXPECT_EQ(Bytes(buffer.begin() + end, buffer.end()),
                  Bytes(buffer.size() - end, kUntouched));
        if (capacity >= expected.length()) {
            EXPECT_EQ(buffer.first(expected.size()), expected);
        }
    }
}

// Short rows are written on the spot, longer ones by functions for their kind.
template <Kind kind, uint8_t number, typename Value>
void expect_row_written(const Value (&members)[8], uint32_t present, const Bytes &expected)
{
    expect_run_written<OneRun<kind, number, 4>>(members, present, expected);
    expect_run_written<OneRun<kind, number, 8>>(members, present, expected);
}

template <Kind kind, uint8_t number, typename Member>
void expect_written(const Member &member, uint32_t present, const Bytes &expected)
{
    expect_run_written<OneRun<kind, number, 1>>(&member, present, expected);
}

template <uint8_t number>
void expect_string(const char *text, uint32_t present, const Bytes &expected)
{
    expect_written<Kind::string, number>(text, present, expected);
}

template <Kind kind, uint8_t number>
void expect_pair(const Pair &pair, uint32_t present, const Bytes &expected)
{
    expect_written<kind, number>(pair, present, expected);
}

} // namespace

TEST(writing_numbers, gives_each_that_is_present_its_own_tag)
{
    const uint32_t numbers[8] = {0, 300, 0xFFFFFFFF, 127};
    expect_row_written<Kind::uint32, 1>(numbers, 0b000, {});
    expect_row_written<Kind::uint32, 1>(numbers, 0b001, {0x08, 0x00});
    expect_row_written<Kind::uint32, 1>(numbers, 0b010, {0x10, 0xAC, 0x02});
    expect_row_written<Kind::uint32, 1>(numbers, 0b101,
                                        {0x08, 0x00, 0x18, 0xFF, 0xFF, 0xFF, 0xFF, 0x0F});
    expect_row_written<Kind::uint32, 16>(numbers, 0b011,
                                         {0x80, 0x01, 0x00, 0x88, 0x01, 0xAC, 0x02});
    expect_row_written<Kind::uint32, 32>(numbers, 0b011,
                                         {0x80, 0x02, 0x00, 0x88, 0x02, 0xAC, 0x02});
    // Across the widths: fields 15 and 16, 31 and 32.
    expect_row_written<Kind::uint32, 15>(numbers, 0b1011,
                                         {0x78, 0x00, 0x80, 0x01, 0xAC, 0x02, 0x90, 0x01, 0x7F});
    expect_row_written<Kind::uint32, 31>(numbers, 0b011,
                                         {0xF8, 0x01, 0x00, 0x80, 0x02, 0xAC, 0x02});
}

TEST(writing_numbers, of_64_bits)
{
    const uint64_t wide[8] = {1, uint64_t{1} << 35, UINT64_MAX, 127};
    expect_row_written<Kind::uint64, 1>(
        wide, 0b1011, {0x08, 0x01, 0x10, 0x80, 0x80, 0x80, 0x80, 0x80, 0x01, 0x20, 0x7F});
    expect_row_written<Kind::uint64, 14>(
        wide, 0b100, {0x80, 0x01, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x01});
    expect_row_written<Kind::uint64, 32>(wide, 0b001, {0x80, 0x02, 0x01});
}

TEST(writing_truths, takes_the_byte_as_it_is)
{
    const uint8_t truths[8] = {0, 1, 2, 255};
    expect_row_written<Kind::boolean, 1>(truths, 0b1111,
                                         {0x08, 0x00, 0x10, 0x01, 0x18, 0x02, 0x20, 0xFF, 0x01});
    expect_row_written<Kind::boolean, 16>(truths, 0b0001, {0x80, 0x01, 0x00});
    expect_row_written<Kind::boolean, 14>(truths, 0b1011,
                                          {0x70, 0x00, 0x78, 0x01, 0x88, 0x01, 0xFF, 0x01});
    expect_row_written<Kind::boolean, 31>(truths, 0b1010,
                                          {0x80, 0x02, 0x01, 0x90, 0x02, 0xFF, 0x01});
}

TEST(writing_a_run, reaches_its_32nd_member)
{
    const uint32_t numbers[32] = {};
    const uint64_t wide[32] = {};
    const uint8_t truths[32] = {};
    const Bytes first_and_last = {0x08, 0x00, 0x80, 0x02, 0x00};
    expect_run_written<OneRun<Kind::uint32, 1, 32>>(numbers, 0x80000001, first_and_last);
    expect_run_written<OneRun<Kind::uint64, 1, 32>>(wide, 0x80000001, first_and_last);
    expect_run_written<OneRun<Kind::boolean, 1, 32>>(truths, 0x80000001, first_and_last);
}

TEST(writing_a_string, needs_flag_and_pointer)
{
    expect_string<1>("ab", 1, {0x0A, 0x02, 'a', 'b'});
    expect_string<16>("ab", 1, {0x82, 0x01, 0x02, 'a', 'b'});
    expect_string<32>("ab", 1, {0x82, 0x02, 0x02, 'a', 'b'});
    expect_string<1>("", 1, {0x0A, 0x00});
    expect_string<1>("ab", 0, {});
    expect_string<1>(nullptr, 1, {});
}

TEST(writing_a_string, with_a_length_of_two_bytes)
{
    const std::string text(128, 'x');
    expect_string<1>(text.c_str(), 1, join({{0x0A, 0x80, 0x01}, Bytes(128, 'x')}));
}

TEST(writing_a_byte_string, needs_its_flag_only)
{
    const uint8_t data[] = {0xDE, 0x00, 0xBE};
    expect_pair<Kind::bytes, 1>({data, 3}, 1, {0x0A, 0x03, 0xDE, 0x00, 0xBE});
    expect_pair<Kind::bytes, 16>({data, 3}, 1, {0x82, 0x01, 0x03, 0xDE, 0x00, 0xBE});
    expect_pair<Kind::bytes, 32>({data, 3}, 1, {0x82, 0x02, 0x03, 0xDE, 0x00, 0xBE});
    expect_pair<Kind::bytes, 1>({data, 0}, 1, {0x0A, 0x00});
    expect_pair<Kind::bytes, 1>({nullptr, 0}, 1, {0x0A, 0x00});
    expect_pair<Kind::bytes, 1>({data, 3}, 0, {});
}

TEST(writing_an_embedded_record, needs_its_flag_or_content)
{
    const Leaf empty = {};
    const Leaf full = {5, "a", 1, 1};
    const Bytes body = {0x08, 0x05, 0x12, 0x01, 'a'};
    expect_written<Kind::message, 1>(empty, 0, {});
    expect_written<Kind::message, 1>(empty, 1, {0x0A, 0x00});
    expect_written<Kind::message, 1>(full, 0, join({{0x0A, 0x05}, body}));
    expect_written<Kind::message, 1>(full, 1, join({{0x0A, 0x05}, body}));
    expect_written<Kind::message, 16>(full, 1, join({{0x82, 0x01, 0x05}, body}));
    expect_written<Kind::message, 32>(full, 1, join({{0x82, 0x02, 0x05}, body}));
    // A flag without anything to write is not content.
    const Leaf null_text = {0, nullptr, 0, 1};
    expect_written<Kind::message, 1>(null_text, 0, {});
    expect_written<Kind::message, 1>(null_text, 1, {0x0A, 0x00});
}

TEST(writing_a_list, gives_each_element_a_tag)
{
    const uint32_t numbers[] = {1, 300};
    const Bytes two = {0x08, 0x01, 0x08, 0xAC, 0x02};
    expect_pair<Kind::repeated_uint32, 1>({numbers, 2}, 1, two);
    expect_pair<Kind::repeated_uint32, 16>({numbers, 1}, 1, {0x80, 0x01, 0x01});
    expect_pair<Kind::repeated_uint32, 32>({numbers, 1}, 1, {0x80, 0x02, 0x01});

    const char *texts[] = {"ab", ""};
    expect_pair<Kind::repeated_string, 1>({texts, 2}, 1, {0x0A, 0x02, 'a', 'b', 0x0A, 0x00});
    expect_pair<Kind::repeated_string, 16>({texts, 1}, 1, {0x82, 0x01, 0x02, 'a', 'b'});
    expect_pair<Kind::repeated_string, 32>({texts, 1}, 1, {0x82, 0x02, 0x02, 'a', 'b'});

    // An element is written even when it is empty.
    const Leaf leaves[] = {{5, nullptr, 1, 0}, {}};
    expect_pair<Kind::repeated_message, 1>({leaves, 2}, 1, {0x0A, 0x02, 0x08, 0x05, 0x0A, 0x00});
    expect_pair<Kind::repeated_message, 16>({leaves, 1}, 1, {0x82, 0x01, 0x02, 0x08, 0x05});
    expect_pair<Kind::repeated_message, 32>({leaves, 1}, 1, {0x82, 0x02, 0x02, 0x08, 0x05});
}

TEST(writing_a_list, is_nothing_without_flag_or_elements)
{
    const Pair somewhere = {reinterpret_cast<const void *>(16), 5};
    const Pair empty = {nullptr, 0};
    expect_pair<Kind::repeated_uint32, 1>(somewhere, 0, {});
    expect_pair<Kind::repeated_uint32, 1>(empty, 1, {});
    expect_pair<Kind::repeated_string, 1>(somewhere, 0, {});
    expect_pair<Kind::repeated_string, 1>(empty, 1, {});
    expect_pair<Kind::repeated_message, 1>(somewhere, 0, {});
    expect_pair<Kind::repeated_message, 1>(empty, 1, {});
    // Only a list of strings may be null with a count.
    expect_pair<Kind::repeated_string, 1>({nullptr, 5}, 1, {});
}
