// SPDX-License-Identifier: MIT
// Nested records are written without being measured first, and moved where their lengths take more
// room than was left for them. Nothing of that can be seen: buffer, pieces and result are always
// those of the plain rule.
#include "tests/support/boxes.hpp"
#include "tests/support/bytes.hpp"
#include "tests/support/operations.hpp"
#include "tests/support/plain_encoder.hpp"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace test;

namespace {

constexpr uint32_t kBehindTheCapacity = 24;
constexpr uint32_t kNoWish = UINT32_MAX;

// What a call leaves behind: the whole buffer, the pieces with addresses counted from it, numbers.
struct Outcome {
    uint32_t length;
    uint32_t count;
    Bytes buffer;
    std::vector<std::pair<uintptr_t, uint32_t>> pieces;

    bool operator==(const Outcome &) const = default;
};

// Into an array of this room, or without a wish for pieces.
Outcome outcome_of(PlainEncode encode, const void *record, uint32_t capacity, uint32_t room,
                   uint32_t flags)
{
    const bool has_wish = room != kNoWish;
    const WireSegment untouched = {nullptr, 77};
    std::vector<WireSegment> segments(has_wish ? room + 2 : 0, untouched);
    Outcome outcome{0, room, Bytes(capacity + kBehindTheCapacity, Encoding::kUntouched), {}};
    outcome.length = encode(record, outcome.buffer.data(), capacity, segments.data(),
                            has_wish ? &outcome.count : nullptr, flags);
    const uintptr_t base = reinterpret_cast<uintptr_t>(outcome.buffer.data());
    for (const WireSegment &segment : segments) {
        const uintptr_t at = reinterpret_cast<uintptr_t>(segment.data);
        const bool inside = at >= base && at - base <= outcome.buffer.size();
        outcome.pieces.emplace_back(inside ? at - base + 1'000'000'000 : at, segment.length);
    }
    return outcome;
}

template <typename Record>
uint32_t encode_by_the_codec(const void *record, uint8_t *buffer, uint32_t capacity,
                             WireSegment *segments, uint32_t *segment_count, uint32_t flags)
{
    return CodecFor<Record>::encode(record, buffer, capacity, segments, segment_count, flags);
}

// False after the first difference, of which there would be thousands more.
template <typename Record>
bool is_as_by_the_plain_rule(const Record &record, uint32_t capacity,
                             std::initializer_list<uint32_t> rooms)
{
    for (uint32_t flags : {0u, WIRE_FLAG_BYTES_IN_PLACE}) {
        for (uint32_t room : rooms) {
            const Outcome plain = outcome_of(plain_encode<Record>, &record, capacity, room, flags);
            const Outcome found =
                outcome_of(encode_by_the_codec<Record>, &record, capacity, room, flags);
            EXPECT_EQ(found.length, plain.length);
            EXPECT_EQ(found.count, plain.count);
            EXPECT_EQ(found.buffer, plain.buffer);
            EXPECT_EQ(found.pieces, plain.pieces);
            if (found == plain)
                continue;
            ADD_FAILURE() << "capacity " << capacity << " of " << plain.length << ", flags "
                          << flags << ", room for pieces " << room;
            return false;
        }
    }
    return true;
}

// Capacities from so many bytes below the full length to so many above.
template <typename Record>
bool is_as_by_the_plain_rule_near_the_end(const Record &record, uint32_t below, uint32_t above,
                                          std::initializer_list<uint32_t> rooms)
{
    const uint32_t full = plain_encode<Record>(&record, nullptr, 0, nullptr, nullptr, 0);
    EXPECT_EQ(measure(record), full);
    for (uint32_t capacity = full > below ? full - below : 0; capacity <= full + above; capacity++)
        if (!is_as_by_the_plain_rule(record, capacity, rooms))
            return false;
    return true;
}

// Three boxes in each other, and things to put into them.
struct Boxes {
    std::string text;
    std::string rest = "rest";
    uint8_t blob[5] = {1, 2, 3, 4, 5};
    Box<0> small[2] = {};
    Box<1> list[2] = {};
    Box<3> outer = {};

    Box<0> &innermost() { return outer.inner.inner.inner; }
};

// Ways to put a long text somewhere.
struct Shape {
    const char *name;
    void (*fill)(Boxes &boxes);
};

const Shape kShapes[] = {
    {"a text in the innermost",
     [](Boxes &b) {
         b.innermost().text = b.text.c_str();
         b.innermost().has_text = 1;
     }},
    {"a text in the innermost, and one behind each box",
     [](Boxes &b) {
         b.innermost().text = b.text.c_str();
         b.outer.text = b.outer.inner.text = b.outer.inner.inner.text = b.rest.c_str();
         b.innermost().has_text = 1;
         b.outer.has_text = b.outer.inner.has_text = b.outer.inner.inner.has_text = 1;
     }},
    {"numbers before and a long text behind",
     [](Boxes &b) {
         b.innermost().number = 300;
         b.innermost().has_number = 1;
         b.outer.inner.inner.wide = UINT64_MAX;
         b.outer.inner.inner.has_wide = 1;
         b.outer.inner.text = b.text.c_str();
         b.outer.inner.has_text = 1;
         b.outer.wide = 1;
         b.outer.has_wide = 1;
     }},
    {"a list of which the second has the text",
     [](Boxes &b) {
         b.small[0].text = b.rest.c_str();
         b.small[1].text = b.text.c_str();
         b.small[0].has_text = b.small[1].has_text = 1;
         b.outer.inner.inner.list = b.small;
         b.outer.inner.inner.list_count = 2;
         b.outer.inner.inner.has_list = 1;
     }},
    {"byte strings in nested records",
     [](Boxes &b) {
         b.innermost().text = b.text.c_str();
         b.innermost().has_text = 1;
         b.outer.inner.blob = b.outer.inner.inner.blob = b.blob;
         b.outer.inner.blob_length = 5;
         b.outer.inner.inner.blob_length = 4;
         b.outer.inner.has_blob = b.outer.inner.inner.has_blob = 1;
     }},
    {"lists in lists, and an empty record",
     [](Boxes &b) {
         b.small[1].text = b.text.c_str();
         b.small[1].has_text = 1;
         b.list[1].list = b.small;
         b.list[1].list_count = 2;
         b.list[1].has_list = b.list[0].has_inner = 1;
         b.outer.inner.list = b.list;
         b.outer.inner.list_count = 2;
         b.outer.inner.has_list = 1;
     }},
};

void expect_plain_rule(uint32_t first_length, uint32_t last_length, uint32_t below)
{
    for (const Shape &shape : kShapes) {
        for (uint32_t length = first_length; length <= last_length; length++) {
            Boxes boxes;
            boxes.text.assign(length, 'x');
            shape.fill(boxes);
            SCOPED_TRACE(std::string(shape.name) + ", " + std::to_string(length));
            if (!is_as_by_the_plain_rule_near_the_end(boxes.outer, below, 20, {kNoWish, 2, 9}))
                return;
        }
    }
}

} // namespace

TEST(nested_records, are_written_by_the_plain_rule_whatever_the_capacity)
{
    for (uint32_t length : {0u, 3u, 100u, 120u, 127u, 128u})
        expect_plain_rule(length, length, 1000);
}

// Each box is a few bytes longer than the one inside: so the prefix of each grows in its turn.
TEST(nested_records, are_written_by_the_plain_rule_where_their_prefixes_take_two_bytes)
{
    expect_plain_rule(95, 132, 30);
}

TEST(nested_records, are_written_by_the_plain_rule_where_their_prefixes_take_three_bytes)
{
    expect_plain_rule(16359, 16386, 12);
}

TEST(nested_records, have_pieces_in_arrays_of_every_room)
{
    for (const Shape &shape : kShapes) {
        for (uint32_t length : {3u, 124u, 128u}) {
            Boxes boxes;
            boxes.text.assign(length, 'x');
            shape.fill(boxes);
            SCOPED_TRACE(shape.name);
            EXPECT_TRUE(is_as_by_the_plain_rule_near_the_end(boxes.outer, 8, 20,
                                                             {0, 1, 2, 3, 4, 5, 6, 7, 8}));
        }
    }
}

// A list of texts of which only the first ones fit.
TEST(nested_records, with_lists_are_written_by_the_plain_rule_whatever_the_capacity)
{
    for (uint32_t length : {30u, 120u, 125u, 130u}) {
        const std::string text(length, 'x');
        const char *texts[] = {text.c_str(), "", "rest", text.c_str(), "rest"};
        uint32_t numbers[] = {1, 300, UINT32_MAX};
        Leaf leaves[] = {{1, text.c_str(), 1, 1}, {2, "rest", 1, 1}, {}};
        Every list[2] = {};
        list[1].texts = texts;
        list[1].texts_count = 5;
        list[1].numbers = numbers;
        list[1].numbers_count = 3;
        list[1].leaves = leaves;
        list[1].leaves_count = 3;
        list[1].has_texts = list[1].has_numbers = list[1].has_leaves = 1;
        Shell shell = {};
        shell.every = list[1];
        shell.list = list;
        shell.list_count = 2;
        shell.has_list = shell.has_closing = 1;
        ASSERT_TRUE(is_as_by_the_plain_rule_near_the_end(shell, 2000, 20, {kNoWish, 3, 20}));
    }
}

namespace {

// Numbers in crates: in an embedded one, and in the second of a list.
struct Crates {
    std::vector<uint32_t> numbers;
    Crate<0> list[2] = {};
    Crate<3> outer = {};

    Crates(uint32_t count, uint32_t number) : numbers(count + 1, 1)
    {
        numbers[0] = 300;
        list[0] = {number, nullptr, 0, 1, 0};
        list[1] = {0, numbers.data(), count, 0, 1};
        outer.inner.inner.list = list;
        outer.inner.inner.list_count = 2;
        outer.inner.inner.has_list = 1;
        outer.inner.inner.inner = {number, numbers.data(), count / 3, 1, 1};
        outer.closing = outer.inner.closing = 200;
        outer.has_closing = outer.inner.has_closing = 1;
    }
};

} // namespace

// Nothing but numbers is tried up to the very end.
TEST(nested_numbers, are_written_by_the_plain_rule_whatever_the_capacity)
{
    for (uint32_t count : {0u, 1u, 41u, 42u, 60u, 61u, 62u, 63u})
        for (uint32_t number : {0u, 128u, UINT32_MAX})
            ASSERT_TRUE(is_as_by_the_plain_rule_near_the_end(Crates(count, number).outer, 1000, 20,
                                                             {kNoWish, 3, 9}))
                << count << " numbers, and " << number;
}

TEST(nested_numbers, are_written_by_the_plain_rule_where_their_prefixes_take_three_bytes)
{
    for (uint32_t count : {6134u, 6138u, 6139u, 8187u, 8190u, 8191u})
        for (uint32_t number : {0u, 128u})
            ASSERT_TRUE(is_as_by_the_plain_rule_near_the_end(Crates(count, number).outer, 3, 4,
                                                             {kNoWish, 9}))
                << count << " numbers, and " << number;
}
