// SPDX-License-Identifier: MIT
// Messages made to harm: unknown fields whose lengths wrap around and move decoding backwards, and
// lists whose arrays would be larger than 32 bits can say.
#include "tests/support/deadline.hpp"
#include "tests/support/operations.hpp"
#include "tests/support/records.hpp"

#include <gtest/gtest.h>

using namespace test;

namespace test {

// Two bytes of input for an element of 504.
struct LargeList {
    Large *list; // field 1
    uint32_t list_count;
    unsigned has_list : 1;
};

} // namespace test

namespace [[gnu::visibility("hidden")]] tarn {

template <>
struct Schema<test::LargeList> {
    using Record = test::LargeList;
    static constexpr Field fields[] = {
        field<Kind::repeated_message, decltype(Record::list)>(1, offsetof(Record, list)),
    };
    using Children = RecordTypes<test::Large>;
};

} // namespace tarn

namespace {

constexpr unsigned kSeconds = 60;

// Field 15, which nobody knows, at position `at`: six bytes of which the length leads to `target`.
Bytes jump(uint32_t at, uint32_t target)
{
    const uint32_t length = target - (at + 6);
    Bytes bytes = {0x7A};
    for (uint32_t shift = 0; shift < 28; shift += 7)
        bytes.push_back(static_cast<uint8_t>(length >> shift | 0x80));
    bytes.push_back(static_cast<uint8_t>(length >> 28));
    return bytes;
}

template <typename Record>
void expect_endless(const Bytes &input, size_t most_requests = 0)
{
    SCOPED_TRACE(testing::PrintToString(input));
    const Deadline deadline(kSeconds);
    for (uint32_t flags : {0u, WIRE_FLAG_BYTES_IN_PLACE}) {
        Owner<Record> owner;
        EXPECT_EQ(owner.decode(input, flags), WIRE_ERR_MALFORMED);
        EXPECT_LE(owner.blocks.sizes().size(), most_requests);
        // Each time round, an embedded record that is met again loses what it held.
        owner.release();
        owner.blocks.expect_lost(owner.blocks.held());
    }
}

// A caller that writes to the bits behind the last member's flag, which are nobody's, while its
// record is decoded.
struct Scribbler {
    // Nine members: all bits of one byte and the first of the next.
    static constexpr size_t kLastFlags = offsetof(Every, leaves_count) + sizeof(uint32_t) + 1;

    Every record = {};
    uint8_t block[8] = {};
    uint32_t requests = 0;

    static void *take(uint32_t, void *scribbler)
    {
        auto *self = static_cast<Scribbler *>(scribbler);
        self->requests++;
        uint8_t *flags = reinterpret_cast<uint8_t *>(&self->record) + kLastFlags;
        *flags = static_cast<uint8_t>((*flags & 1) | self->requests << 1);
        return self->block;
    }
};

} // namespace

TEST(an_endless_message, is_malformed)
{
    // The shortest lands on its own tag.
    ASSERT_EQ(jump(0, 0), (Bytes{0x7A, 0xFA, 0xFF, 0xFF, 0xFF, 0x0F}));
    expect_endless<Every>(jump(0, 0));
    // Through numbers, through other unknown fields, from behind and with a start of its own.
    expect_endless<Every>(join({{0x08, 1}, jump(2, 0)}));
    expect_endless<Every>(join({{0x08, 1, 0x10, 1, 0x18, 1, 0x08, 2}, jump(8, 0)}));
    expect_endless<Every>(join({{0x78, 1, 0x7D, 1, 2, 3, 4, 0x7A, 1, 0}, jump(10, 0)}));
    expect_endless<Every>(join({jump(0, 0), {0x08, 1}}));
    expect_endless<Every>(join({{0x08, 1}, jump(2, 2)}));
    // Into the middle of a field that was skipped: number 5 is read there.
    expect_endless<Every>(join({{0x7A, 2, 0x08, 5}, jump(4, 2)}));
}

TEST(an_endless_message, is_malformed_behind_texts_and_lists)
{
    expect_endless<Every>(join({{0x22, 1, 'a'}, jump(3, 3)}), 1);
    expect_endless<Every>(join({{0x42, 1, 'a'}, jump(3, 3)}), 2);
}

TEST(an_endless_message, is_malformed_though_it_keeps_allocating)
{
    // A leaf with a text, again and again; then one with a list of leaves with texts.
    expect_endless<Every>(join({{0x32, 3, 0x12, 1, 'a'}, jump(5, 0)}), 4);
    expect_endless<Shell>(join({{0x0A, 5, 0x4A, 3, 0x12, 1, 'a'}, jump(7, 0)}), 8);
}

TEST(an_endless_message, may_be_inside_another)
{
    expect_endless<Every>(join({{0x32, 6}, jump(0, 0)}));
    expect_endless<Every>(join({{0x4A, 6}, jump(0, 0)}), 1);
    expect_endless<Shell>(join({{0x0A, 8, 0x32, 6}, jump(0, 0)}));
    expect_endless<Shell>(join({{0x12, 8, 0x08, 1}, jump(2, 0)}), 1);
    // Where it is the outer one that is endless, the inner one may even jump and end.
    expect_endless<Every>(join({{0x32, 9, 0x7A, 1, 0x79}, jump(3, 2), jump(11, 0)}));
}

TEST(an_endless_message, may_be_for_a_record_without_fields)
{
    const Deadline deadline(kSeconds);
    const Bytes input = join({{0x08, 1}, jump(2, 0)});
    EXPECT_EQ(CodecFor<Nothing>::decode(nullptr, input.data(), input.length(), nullptr, nullptr, 0),
              WIRE_ERR_MALFORMED);
}

TEST(an_endless_message, may_be_for_a_record_with_many_flags)
{
    // Field 63 is the first that it does not have, and takes two bytes.
    expect_endless<Large>({0x08, 1, 0xF0, 0x03, 1, 0xFA, 0x03, 0xF4, 0xFF, 0xFF, 0xFF, 0x0F});
}

TEST(an_endless_message, is_seen_whatever_the_unused_flag_bits_hold)
{
    Scribbler scribbler;
    const Deadline deadline(kSeconds);
    const Bytes input = join({{0x32, 3, 0x12, 1, 'a'}, jump(5, 0)});
    EXPECT_EQ(CodecFor<Every>::decode(&scribbler.record, input.data(), input.length(),
                                      Scribbler::take, &scribbler, 0),
              WIRE_ERR_MALFORMED);
    EXPECT_LE(scribbler.requests, 4u);
}

// From the start to the last jump, from there one back at a time, to the start again.
TEST(an_endless_message, may_take_many_steps_to_come_back)
{
    for (uint32_t jumps : {1u, 2u, 3u, 4u, 7u, 8u, 100u, 1000u}) {
        Bytes input = jump(0, 6 * jumps);
        for (uint32_t i = 1; i <= jumps; i++)
            input = join({input, jump(6 * i, 6 * (i - 1))});
        const Deadline deadline(kSeconds);
        EXPECT_EQ(decode<Every>(input), WIRE_ERR_MALFORMED) << jumps;
    }
}

TEST(a_message_that_jumps_back_and_ends, keeps_its_result)
{
    struct Row {
        Bytes input;
        int32_t result;
        Bytes record; // as it is encoded again
    };
    for (const Row &row : {
             // The second time field 15 has eight bytes, which lead past the end.
             Row{join({{0x7A, 1, 0x79}, jump(3, 2)}), WIRE_OK, {}},
             // The second time a number takes the jump's tag, and the rest is 8 unknown bytes.
             {join({{0x7A, 1, 0x08}, jump(3, 2)}), WIRE_OK, {0x08, 0x7A}},
             {join({{0x7A, 1, 0x0A}, jump(3, 2)}), WIRE_ERR_TYPE_MISMATCH, {}},
             {join({{0x7A, 1, 0x7B}, jump(3, 2)}), WIRE_ERR_WIRE_TYPE, {}},
             {join({{0x7A, 1, 0x80}, jump(3, 2)}), WIRE_OK, {}}, // field 1952, a number
             // The second time a text, a byte string, a record takes the jump.
             {join({{0x7A, 2, 0x22, 6}, jump(4, 2)}), WIRE_OK, join({{0x22, 6}, jump(4, 2)})},
             {join({{0x7A, 2, 0x2A, 6}, jump(4, 2)}), WIRE_OK, join({{0x2A, 6}, jump(4, 2)})},
             {join({{0x7A, 2, 0x32, 6}, jump(4, 2)}), WIRE_OK, {0x32, 0}},
             // The third time a text, a byte string, a list is there already.
             {join({{0x7A, 3, 0x22, 1, 'a'}, jump(5, 2)}), WIRE_ERR_MALFORMED, {0x22, 1, 'a'}},
             {join({{0x7A, 3, 0x2A, 1, 'a'}, jump(5, 2)}), WIRE_ERR_MALFORMED, {0x2A, 1, 'a'}},
             {join({{0x7A, 2, 0x38, 5}, jump(4, 2)}), WIRE_ERR_MALFORMED, {0x38, 5}},
             {join({{0x7A, 2, 0x4A, 0}, jump(4, 2)}), WIRE_ERR_MALFORMED, {0x4A, 0}},
             // Into the jump's own length, or its last byte: not backwards, and some other tag.
             {jump(0, 1), WIRE_ERR_WIRE_TYPE, {}},
             {jump(0, 2), WIRE_ERR_WIRE_TYPE, {}},
             {jump(0, 5), WIRE_ERR_TYPE_MISMATCH, {}},
         }) {
        SCOPED_TRACE(testing::PrintToString(row.input));
        const Deadline deadline(kSeconds);
        for (uint32_t flags : {0u, WIRE_FLAG_BYTES_IN_PLACE}) {
            Owner<Every> owner;
            EXPECT_EQ(owner.decode(row.input, flags), row.result);
            EXPECT_EQ(encode(owner.record), row.record);
        }
    }
}

// The same position is not yet the same state: the second time round the leaf is read once more,
// and may lack memory, before the text is found to be there already.
TEST(a_message_that_jumps_back_and_ends, does_all_that_it_would_do_until_then)
{
    const Bytes input = join({{0x7A, 8, 0x32, 3, 0x12, 1, 'a', 0x22, 1, 'b'}, jump(10, 2)});
    Owner<Every> owner;
    owner.blocks.expect_lost(1); // the first leaf's text
    EXPECT_EQ(owner.decode(input), WIRE_ERR_MALFORMED);
    EXPECT_EQ(owner.blocks.sizes(), (std::vector<uint32_t>{2, 2, 2}));
    Owner<Every> poor;
    poor.blocks.expect_lost(1);
    poor.blocks.fail_only(2);
    EXPECT_EQ(poor.decode(input), WIRE_ERR_NO_MEMORY);
}

// A staircase: each step stores a number and goes one down; the lowest leads past the end.
TEST(a_message_that_jumps_back_and_ends, may_do_so_many_times)
{
    for (uint32_t steps : {1u, 2u, 3u, 50u, 2000u}) {
        constexpr uint32_t kStep = 8; // two bytes of number, six of jump
        Bytes input = jump(0, 6 + kStep * (steps - 1));
        for (uint32_t i = 0; i < steps; i++) {
            const uint32_t at = 6 + kStep * i;
            const uint32_t target = i ? at - kStep : 0x7FFFFFFF;
            input =
                join({input, {0x08, static_cast<uint8_t>((i + 7) & 0x7F)}, jump(at + 2, target)});
        }
        Owner<Every> owner;
        EXPECT_EQ(owner.decode(input), WIRE_OK) << steps;
        EXPECT_EQ(owner.record.number, 7u) << steps;
    }
}

TEST(a_list_too_long_for_32_bits, is_not_asked_for)
{
    static_assert(sizeof(Large) == 504);
    constexpr uint32_t kMost = UINT32_MAX / sizeof(Large);
    {
        Owner<LargeList> owner;
        EXPECT_EQ(owner.decode(repeat(kMost + 1, {0x0A, 0})), WIRE_ERR_NO_MEMORY);
        EXPECT_TRUE(owner.blocks.sizes().empty());
        EXPECT_EQ(owner.record.list, nullptr);
        EXPECT_EQ(owner.record.list_count, 0u);
    }
    // The longest that 32 bits can say is asked for, and is not to be had here.
    Owner<LargeList> owner;
    owner.blocks.fail_from(0);
    EXPECT_EQ(owner.decode(repeat(kMost, {0x0A, 0})), WIRE_ERR_NO_MEMORY);
    EXPECT_EQ(owner.blocks.sizes(), (std::vector<uint32_t>{kMost * sizeof(Large)}));
}
