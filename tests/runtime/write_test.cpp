// SPDX-License-Identifier: MIT
// What each kind of member looks like on the wire, for tags of each width, in buffers of each
// capacity; and that measuring knows it before.
#include "runtime/write.hpp"

#include "tests/support/operations.hpp"
#include "tests/support/records.hpp"

#include <gtest/gtest.h>

#include <functional>

using namespace tarn;
using test::Bytes;
using test::join;
using test::Leaf;

namespace {

constexpr uint8_t kUntouched = 0xA5;

// A member, or a run of them, of some kind: how to measure and to write it.
struct Member {
    std::function<uint32_t(uint32_t offset, uint32_t present, uint32_t tag)> measure;
    std::function<void(Encoder &out, uint32_t present, uint32_t tag)> write;
};

struct Pair {
    const void *pointer;
    uint32_t count;
};

template <typename Value>
const uint8_t *bytes_of(const Value &value)
{
    return reinterpret_cast<const uint8_t *>(&value);
}

using LeafCodec = test::CodecFor<Leaf>;
constexpr NestedEncoding kLeaf = {LeafCodec::measure, LeafCodec::write};

Member string_member(const char *text)
{
    return {[=](uint32_t offset, uint32_t present, uint32_t tag) {
                return measure_string(offset, bytes_of(text), present, tag);
            },
            [=](Encoder &out, uint32_t present, uint32_t tag) {
                write_string(out, bytes_of(text), present, tag);
            }};
}

Member bytes_member(Pair pair)
{
    return {[=](uint32_t offset, uint32_t present, uint32_t tag) {
                return measure_bytes(offset, bytes_of(pair), present, tag, 0);
            },
            [=](Encoder &out, uint32_t present, uint32_t tag) {
                write_bytes(out, bytes_of(pair), present, tag);
            }};
}

Member message_member(const Leaf &leaf)
{
    return {[=](uint32_t offset, uint32_t present, uint32_t tag) {
                return measure_message(offset, LeafCodec::measure(&leaf, 0), present, tag);
            },
            [=](Encoder &out, uint32_t present, uint32_t tag) {
                write_message(out, bytes_of(leaf), present, tag, kLeaf);
            }};
}

Member uint32_list_member(Pair pair)
{
    return {[=](uint32_t offset, uint32_t present, uint32_t tag) {
                return measure_uint32_list(offset, bytes_of(pair), present, tag);
            },
            [=](Encoder &out, uint32_t present, uint32_t tag) {
                write_uint32_list(out, bytes_of(pair), present, tag);
            }};
}

Member string_list_member(Pair pair)
{
    return {[=](uint32_t offset, uint32_t present, uint32_t tag) {
                return measure_string_list(offset, bytes_of(pair), present, tag);
            },
            [=](Encoder &out, uint32_t present, uint32_t tag) {
                write_string_list(out, bytes_of(pair), present, tag);
            }};
}

Member message_list_member(Pair pair)
{
    return {[=](uint32_t offset, uint32_t present, uint32_t tag) {
                return measure_message_list(offset, bytes_of(pair), present, tag, sizeof(Leaf),
                                            LeafCodec::measure, 0);
            },
            [=](Encoder &out, uint32_t present, uint32_t tag) {
                write_message_list(out, bytes_of(pair), present, tag, sizeof(Leaf), kLeaf);
            }};
}

template <typename Value>
Member scalar_members(uint32_t (*measure)(uint32_t, const Value *, uint32_t, uint32_t),
                      void (*write)(Encoder &, const Value *, uint32_t, uint32_t),
                      const Value *members)
{
    return {
        [=](uint32_t offset, uint32_t present, uint32_t tag) {
            return measure(offset, members, present, tag);
        },
        [=](Encoder &out, uint32_t present, uint32_t tag) { write(out, members, present, tag); }};
}

// Room to spare, and again with every capacity below: numbers and prefixes go as far as they fit,
// and nothing is written behind the capacity.
void expect_written(const Member &member, uint32_t present, uint32_t tag, const Bytes &expected)
{
    SCOPED_TRACE(testing::PrintToString(expected));
    EXPECT_EQ(member.measure(0, present, tag), expected.size());
    EXPECT_EQ(member.measure(1000, present, tag), 1000 + expected.size());
    for (uint32_t capacity = 0; capacity <= expected.length() + 2; capacity++) {
        Bytes buffer(expected.size() + 2, kUntouched);
        Encoder out(buffer.data(), capacity, nullptr, nullptr, 0);
        member.write(out, present, tag);
        EXPECT_EQ(out.offset(), expected.size()) << "capacity " << capacity;
        for (uint32_t at = capacity; at < buffer.length(); at++)
            EXPECT_EQ(buffer[at], kUntouched) << "capacity " << capacity;
        if (capacity >= expected.length()) {
            EXPECT_EQ(buffer.first(expected.size()), expected);
        }
    }
}

} // namespace

TEST(writing_numbers, gives_each_that_is_present_its_own_tag)
{
    const uint32_t numbers[] = {0, 300, 0xFFFFFFFF};
    const Member row = scalar_members(measure_uint32s, write_uint32s, numbers);
    expect_written(row, 0b000, 0x08, {});
    expect_written(row, 0b001, 0x08, {0x08, 0x00});
    expect_written(row, 0b010, 0x08, {0x10, 0xAC, 0x02});
    expect_written(row, 0b101, 0x08, {0x08, 0x00, 0x18, 0xFF, 0xFF, 0xFF, 0xFF, 0x0F});
    expect_written(row, 0b011, 0x80, {0x80, 0x01, 0x00, 0x88, 0x01, 0xAC, 0x02});
    expect_written(row, 0b011, 0x100, {0x80, 0x02, 0x00, 0x88, 0x02, 0xAC, 0x02});
    // Across the widths: fields 15 and 16, 31 and 32.
    expect_written(row, 0b011, 0x78, {0x78, 0x00, 0x80, 0x01, 0xAC, 0x02});
    expect_written(row, 0b011, 0xF8, {0xF8, 0x01, 0x00, 0x80, 0x02, 0xAC, 0x02});
}

TEST(writing_numbers, of_64_bits)
{
    const uint64_t wide[] = {1, uint64_t{1} << 35, UINT64_MAX};
    const Member row = scalar_members(measure_uint64s, write_uint64s, wide);
    expect_written(row, 0b011, 0x08, {0x08, 0x01, 0x10, 0x80, 0x80, 0x80, 0x80, 0x80, 0x01});
    expect_written(row, 0b100, 0x70,
                   {0x80, 0x01, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x01});
    expect_written(row, 0b001, 0x100, {0x80, 0x02, 0x01});
}

TEST(writing_truths, takes_the_byte_as_it_is)
{
    const uint8_t truths[] = {0, 1, 2, 255};
    const Member row = scalar_members(measure_bools, write_bools, truths);
    expect_written(row, 0b1111, 0x08, {0x08, 0x00, 0x10, 0x01, 0x18, 0x02, 0x20, 0xFF, 0x01});
    expect_written(row, 0b0001, 0x80, {0x80, 0x01, 0x00});
    expect_written(row, 0b0010, 0xF8, {0x80, 0x02, 0x01});
}

TEST(writing_a_run, reaches_its_32nd_member)
{
    const uint32_t numbers[32] = {};
    const Member row = scalar_members(measure_uint32s, write_uint32s, numbers);
    expect_written(row, 0x80000001, 0x08, {0x08, 0x00, 0x80, 0x02, 0x00});
}

TEST(writing_a_string, needs_flag_and_pointer)
{
    expect_written(string_member("ab"), 1, 0x0A, {0x0A, 0x02, 'a', 'b'});
    expect_written(string_member("ab"), 1, 0x82, {0x82, 0x01, 0x02, 'a', 'b'});
    expect_written(string_member("ab"), 1, 0x102, {0x82, 0x02, 0x02, 'a', 'b'});
    expect_written(string_member(""), 1, 0x0A, {0x0A, 0x00});
    expect_written(string_member("ab"), 0, 0x0A, {});
    expect_written(string_member(nullptr), 1, 0x0A, {});
}

TEST(writing_a_string, with_a_length_of_two_bytes)
{
    const std::string text(128, 'x');
    expect_written(string_member(text.c_str()), 1, 0x0A,
                   join({{0x0A, 0x80, 0x01}, Bytes(128, 'x')}));
}

TEST(writing_a_byte_string, needs_its_flag_only)
{
    const uint8_t data[] = {0xDE, 0x00, 0xBE};
    expect_written(bytes_member({data, 3}), 1, 0x0A, {0x0A, 0x03, 0xDE, 0x00, 0xBE});
    expect_written(bytes_member({data, 3}), 1, 0x82, {0x82, 0x01, 0x03, 0xDE, 0x00, 0xBE});
    expect_written(bytes_member({data, 3}), 1, 0x102, {0x82, 0x02, 0x03, 0xDE, 0x00, 0xBE});
    expect_written(bytes_member({data, 0}), 1, 0x0A, {0x0A, 0x00});
    expect_written(bytes_member({nullptr, 0}), 1, 0x0A, {0x0A, 0x00});
    expect_written(bytes_member({data, 3}), 0, 0x0A, {});
}

TEST(writing_an_embedded_record, needs_its_flag_or_content)
{
    const Leaf empty = {};
    const Leaf full = {5, "a", 1, 1};
    const Bytes body = {0x08, 0x05, 0x12, 0x01, 'a'};
    expect_written(message_member(empty), 0, 0x0A, {});
    expect_written(message_member(empty), 1, 0x0A, {0x0A, 0x00});
    expect_written(message_member(full), 0, 0x0A, join({{0x0A, 0x05}, body}));
    expect_written(message_member(full), 1, 0x0A, join({{0x0A, 0x05}, body}));
    expect_written(message_member(full), 1, 0x82, join({{0x82, 0x01, 0x05}, body}));
    expect_written(message_member(full), 1, 0x102, join({{0x82, 0x02, 0x05}, body}));
}

TEST(writing_a_list, gives_each_element_a_tag)
{
    const uint32_t numbers[] = {1, 300};
    const Bytes two = {0x08, 0x01, 0x08, 0xAC, 0x02};
    expect_written(uint32_list_member({numbers, 2}), 1, 0x08, two);
    expect_written(uint32_list_member({numbers, 1}), 1, 0x80, {0x80, 0x01, 0x01});
    expect_written(uint32_list_member({numbers, 1}), 1, 0x100, {0x80, 0x02, 0x01});

    const char *texts[] = {"ab", ""};
    expect_written(string_list_member({texts, 2}), 1, 0x0A, {0x0A, 0x02, 'a', 'b', 0x0A, 0x00});
    expect_written(string_list_member({texts, 1}), 1, 0x82, {0x82, 0x01, 0x02, 'a', 'b'});
    expect_written(string_list_member({texts, 1}), 1, 0x102, {0x82, 0x02, 0x02, 'a', 'b'});

    // An element is written even when it is empty.
    const Leaf leaves[] = {{5, nullptr, 1, 0}, {}};
    expect_written(message_list_member({leaves, 2}), 1, 0x0A, {0x0A, 0x02, 0x08, 0x05, 0x0A, 0x00});
    expect_written(message_list_member({leaves, 1}), 1, 0x82, {0x82, 0x01, 0x02, 0x08, 0x05});
    expect_written(message_list_member({leaves, 1}), 1, 0x102, {0x82, 0x02, 0x02, 0x08, 0x05});
}

TEST(writing_a_list, is_nothing_without_flag_or_elements)
{
    const Pair somewhere = {reinterpret_cast<const void *>(16), 5};
    const Pair empty = {nullptr, 0};
    for (const auto &list : {uint32_list_member, string_list_member, message_list_member}) {
        expect_written(list(somewhere), 0, 0x0A, {});
        expect_written(list(empty), 1, 0x0A, {});
    }
    // Only a list of strings may be null with a count.
    expect_written(string_list_member({nullptr, 5}), 1, 0x0A, {});
}
