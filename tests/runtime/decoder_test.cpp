// SPDX-License-Identifier: MIT
// The state of a decoding: tags, lengths, the end, and fields that nobody knows.
#include "runtime/decoder.hpp"

#include "ethsw_mgmt/switch.h"
#include "tests/support/operations.hpp"
#include "tests/support/records.hpp"

#include <gtest/gtest.h>

using tarn::Cursor;
using tarn::Decoder;
using tarn::kNobodys;
using tarn::kStop;
using tarn::LoopWatch;
using namespace test;

namespace {

Decoder decoder(const Bytes &input, uint32_t flags = 0)
{
    return Decoder(input.data(), input.length(), {nullptr, nullptr}, flags);
}

} // namespace

TEST(decoder, hands_out_tags_until_the_end)
{
    const Bytes input = {0x08, 0x80, 0x01, 0x88, 0x80, 0x00};
    Decoder in = decoder(input);
    const Cursor first = in.first_tag();
    EXPECT_EQ(first.tag(), 0x08u);
    EXPECT_EQ(first.at, input.data() + 1);
    const Cursor second = in.next_tag(first.at);
    EXPECT_EQ(second.tag(), 0x80u);
    EXPECT_FALSE(in.at_end(second.at));
    const Cursor third = in.next_tag(second.at);
    EXPECT_EQ(third.tag(), 0x08u);
    EXPECT_EQ(third.at, input.data() + 6);
    EXPECT_TRUE(in.at_end(third.at));
    EXPECT_EQ(in.next_tag(third.at).tag(), kStop);
    EXPECT_EQ(in.result(), WIRE_OK);
}

TEST(decoder, stops_where_no_tag_can_be_read)
{
    for (const Bytes &input : {Bytes{0x80}, Bytes{0x80, 0x80}, Bytes{0x80, 0x80, 0x80, 0xFF}}) {
        Decoder in = decoder(input);
        EXPECT_EQ(Cursor(in.first_tag()).tag(), kStop);
        EXPECT_EQ(in.result(), WIRE_ERR_MALFORMED);
    }
    Decoder empty = decoder({});
    EXPECT_EQ(Cursor(empty.first_tag()).tag(), kStop);
    EXPECT_EQ(empty.result(), WIRE_OK);
}

// The tag that stands for the end can come in a message, too: the highest field, of wire type 7.
TEST(decoder, does_not_take_a_tag_in_the_message_for_the_end)
{
    for (const Bytes &input : {Bytes{0xFF, 0xFF, 0xFF, 0xFF, 0x0F, 0x08, 7},
                               Bytes{0xFF, 0xFF, 0xFF, 0xFF, 0x7F, 0x08, 7},
                               Bytes{0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x80, 0x00, 0x08, 7}}) {
        Decoder in = decoder(input);
        const Cursor cursor = in.first_tag();
        EXPECT_EQ(cursor.tag(), kNobodys);
        EXPECT_EQ(cursor.at, input.data() + input.size() - 2);
        EXPECT_EQ(in.result(), WIRE_OK);
        EXPECT_EQ(decode<Every>(input), WIRE_ERR_WIRE_TYPE);
        EXPECT_EQ(decode<Every>(join({{0x18, 1}, input})), WIRE_ERR_WIRE_TYPE);
        // Inside a run of list elements, too: it ends that.
        EXPECT_EQ(decode<Every>(join({{0x38, 1}, input})), WIRE_ERR_WIRE_TYPE);
    }
    // It is not skipped like a number.
    EXPECT_EQ(decode<Every>({0xFF, 0xFF, 0xFF, 0xFF, 0x0F, 0x08}), WIRE_ERR_WIRE_TYPE);
    // What was taken for it in its place is nobody's by itself.
    for (const Bytes &input : {Bytes{0x07}, Bytes{0x87, 0x80, 0x00}})
        EXPECT_EQ(decode<Every>(input), WIRE_ERR_WIRE_TYPE);
}

TEST(decoder, ends_with_the_result_it_is_told)
{
    Decoder in = decoder({});
    EXPECT_EQ(in.stop(WIRE_ERR_NO_MEMORY).tag(), kStop);
    EXPECT_EQ(in.result(), WIRE_ERR_NO_MEMORY);
    EXPECT_EQ(in.fail(WIRE_ERR_MALFORMED), nullptr);
    EXPECT_EQ(in.result(), WIRE_ERR_MALFORMED);
}

TEST(decoder, reads_lengths_that_the_rest_of_the_input_holds)
{
    struct Row {
        Bytes input;
        int32_t result;
    };
    for (const Row &row : {Row{{0x00}, WIRE_OK},
                           {{0x02, 1, 2}, WIRE_OK},
                           {{0x02, 1, 2, 3}, WIRE_OK},
                           {{0x82, 0x80, 0x00, 1, 2}, WIRE_OK},
                           {{}, WIRE_ERR_MALFORMED},
                           {{0x03, 1, 2}, WIRE_ERR_MALFORMED},
                           {{0x83, 0x80, 0x00, 1, 2}, WIRE_ERR_MALFORMED},
                           {{0x80}, WIRE_ERR_MALFORMED},
                           {{0xFF, 0xFF, 0xFF, 0xFF, 0x0F}, WIRE_ERR_MALFORMED},
                           {{0xFB, 0xFF, 0xFF, 0xFF, 0x0F}, WIRE_ERR_MALFORMED}}) {
        SCOPED_TRACE(testing::PrintToString(row.input));
        uint32_t length = 0;
        Decoder in = decoder(row.input);
        const uint8_t *at = in.read_length(row.input.data(), &length);
        EXPECT_EQ(in.result(), row.result);
        EXPECT_EQ(at != nullptr, row.result == WIRE_OK);
        if (at) {
            EXPECT_EQ(length, row.input[0] & 0x7F);
        }
    }
}

// A nested record sees nothing but its own bytes, and what is read in words stays inside them.
TEST(decoder, enters_a_part_of_its_input_and_leaves_it_again)
{
    const Bytes input = {1, 2, 0x83, 0x84, 5, 6, 7, 8, 9, 10, 11, 12};
    Decoder in = decoder(input);
    const Decoder::Extent outer = in.enter(input.data() + 1, 3);
    EXPECT_EQ(in.extent().begin, input.data() + 1);
    EXPECT_EQ(in.extent().end, input.data() + 4);
    EXPECT_EQ(Cursor(in.first_tag()).tag(), 2u);
    EXPECT_TRUE(in.at_end(input.data() + 4));
    EXPECT_FALSE(in.at_end(input.data() + 3));
    uint32_t value = 77;
    EXPECT_EQ(in.read(input.data() + 2, &value), nullptr);
    EXPECT_EQ(in.result(), WIRE_ERR_MALFORMED);
    EXPECT_EQ(value, 77u);
    in.leave(outer);
    EXPECT_EQ(in.extent().begin, input.data());
    EXPECT_EQ(in.read(input.data() + 2, &value), input.data() + 5);
    EXPECT_EQ(value, 3u | 4u << 7 | 5u << 14);
}

// Behind every number of other bytes, before every number of them, and of every length.
template <typename Value>
void expect_numbers_read(Value value, uint32_t size)
{
    for (uint32_t before = 0; before <= 9; before++) {
        for (uint32_t behind = 0; behind <= 9; behind++) {
            Bytes input(before + size + behind, 0xFF);
            uint32_t end = before;
            for (Value rest = value; end < before + size; end++, rest >>= 7)
                input[end] =
                    static_cast<uint8_t>((rest & 0x7F) | (end + 1 < before + size ? 0x80 : 0));
            SCOPED_TRACE(testing::PrintToString(input));
            Decoder in = decoder(input);
            Value found = 77;
            EXPECT_EQ(in.read(input.data() + before, &found), input.data() + end);
            EXPECT_EQ(found, value);
            for (uint32_t cut = 0; cut < size; cut++) {
                Decoder shorter(input.data(), before + cut, {nullptr, nullptr}, 0);
                EXPECT_EQ(shorter.read(input.data() + before, &found), nullptr);
                EXPECT_EQ(shorter.result(), WIRE_ERR_MALFORMED);
                EXPECT_EQ(found, value);
            }
        }
    }
}

TEST(decoder, reads_numbers_near_every_end)
{
    for (uint32_t size = 1; size <= 12; size++) {
        expect_numbers_read<uint32_t>(5, size);
        expect_numbers_read<uint64_t>(5, size);
        expect_numbers_read<uint32_t>(0xFFFFFFFF >> (size < 5 ? 32 - 7 * size : 0), size);
        expect_numbers_read<uint64_t>(UINT64_MAX >> (size < 10 ? 64 - 7 * size : 0), size);
    }
}

TEST(decoder, knows_bytes_in_place_by_the_lowest_bit)
{
    EXPECT_TRUE(decoder({}, 1).bytes_in_place());
    EXPECT_TRUE(decoder({}, 0xFFFFFFFF).bytes_in_place());
    EXPECT_FALSE(decoder({}, 0).bytes_in_place());
    EXPECT_FALSE(decoder({}, 0xFFFFFFFE).bytes_in_place());
    EXPECT_EQ(decoder({}, 0xFFFFFFFE).flags(), 0xFFFFFFFEu);
}

TEST(unknown_fields, are_skipped)
{
    for (const Bytes &unknown : {
             Bytes{0x78, 0x05},                               // field 15, a number
             Bytes{0x79, 1, 2, 3, 4, 5, 6, 7, 8},             // 8 bytes
             Bytes{0x7A, 0x02, 0x08, 0x08},                   // a length and so many
             Bytes{0x7A, 0x00},                               //
             Bytes{0x7D, 1, 2, 3, 4},                         // 4 bytes
             Bytes{0x00, 0x05},                               // field 0, which nobody has
             Bytes{0x02, 0x01, 0x08},                         //
             Bytes{0x88, 0x10, 0x05},                         // field 257
             Bytes{0xF8, 0xFF, 0xFF, 0xFF, 0x0F, 0x05},       // the highest field
             Bytes{0xF8, 0x80, 0x80, 0x80, 0x80, 0x00, 0x05}, // a tag longer than need be
         }) {
        SCOPED_TRACE(testing::PrintToString(unknown));
        Owner<Every> only;
        EXPECT_EQ(only.decode(unknown), WIRE_OK);
        EXPECT_EQ(encode(only.record), Bytes{});
        Owner<Every> between;
        EXPECT_EQ(between.decode(join({unknown, {0x08, 7}, unknown, {0x18, 1}, unknown})), WIRE_OK);
        EXPECT_EQ(encode(between.record), (Bytes{0x08, 7, 0x18, 1}));
        EXPECT_EQ(CodecFor<Nothing>::decode(nullptr, unknown.data(), unknown.length(), nullptr,
                                            nullptr, 0),
                  WIRE_OK);
        EXPECT_EQ(tarn_ethsw_mgmt_get_switch_info_decode_ext(nullptr, unknown.data(),
                                                             unknown.length(), nullptr, nullptr, 0),
                  WIRE_OK);
    }
}

// A tag of more than 32 bits loses those above.
TEST(known_fields, may_have_tags_longer_than_need_be)
{
    for (const Bytes &tag : {Bytes{0x88, 0x00}, Bytes{0x88, 0x80, 0x80, 0x80, 0x80, 0x80, 0x00},
                             Bytes{0x88, 0x80, 0x80, 0x80, 0x10}}) {
        Owner<Every> owner;
        EXPECT_EQ(owner.decode(join({tag, {0x07}})), WIRE_OK);
        EXPECT_EQ(owner.record.number, 7u);
    }
}

TEST(unknown_fields, may_claim_to_reach_past_the_end)
{
    for (const Bytes &unknown :
         {Bytes{0x79}, Bytes{0x79, 1, 2, 3}, Bytes{0x7D, 1}, Bytes{0x7A, 0x05, 'a'},
          Bytes{0x7A, 0xFF, 0xFF, 0xFF, 0xFF, 0x07}}) {
        Owner<Every> owner;
        EXPECT_EQ(owner.decode(join({{0x08, 7}, unknown})), WIRE_OK)
            << testing::PrintToString(unknown);
        EXPECT_EQ(owner.record.number, 7u);
        // In a record inside another, that ends only the inner one.
        Owner<Every> outer;
        EXPECT_EQ(outer.decode(join(
                      {{0x32, static_cast<uint8_t>(unknown.size())}, unknown, {0x08, 7, 0x18, 1}})),
                  WIRE_OK);
        EXPECT_EQ(encode(outer.record), (Bytes{0x08, 7, 0x18, 1, 0x32, 0}));
    }
}

TEST(unknown_fields, fail_where_they_cannot_be_skipped)
{
    struct Row {
        Bytes input;
        int32_t result;
    };
    for (const Row &row : {Row{{0x7B}, WIRE_ERR_WIRE_TYPE}, // a group starts
                           {{0x7C}, WIRE_ERR_WIRE_TYPE},    // a group ends
                           {{0x7E, 1}, WIRE_ERR_WIRE_TYPE},
                           {{0x7F, 1}, WIRE_ERR_WIRE_TYPE},
                           {{0x07, 1}, WIRE_ERR_WIRE_TYPE},
                           {{0x03}, WIRE_ERR_WIRE_TYPE},
                           {{0x78}, WIRE_ERR_MALFORMED},
                           {{0x78, 0x80}, WIRE_ERR_MALFORMED},
                           {{0x7A}, WIRE_ERR_MALFORMED},
                           {{0x7A, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF}, WIRE_ERR_MALFORMED}}) {
        Owner<Every> owner;
        EXPECT_EQ(owner.decode(join({{0x08, 7}, row.input})), row.result)
            << testing::PrintToString(row.input);
        EXPECT_EQ(owner.record.number, 7u);
        EXPECT_EQ(CodecFor<Nothing>::decode(nullptr, row.input.data(), row.input.length(), nullptr,
                                            nullptr, 0),
                  row.result);
    }
}

// Any tail and any cycle, and never before a state has in fact come back.
TEST(loop_watch, finds_every_cycle)
{
    for (uint32_t tail = 0; tail <= 20; tail++) {
        for (uint32_t cycle = 1; cycle <= 40; cycle++) {
            LoopWatch watch;
            uint32_t step = 0;
            const auto position = [&] { return step < tail ? step : tail + (step - tail) % cycle; };
            while (step <= 1000 && !watch.comes_back(position(), 5))
                step++;
            EXPECT_GE(step, tail + cycle) << tail << " and " << cycle;
            EXPECT_LE(step, 3 * (tail + cycle)) << tail << " and " << cycle;
        }
    }
}

TEST(loop_watch, takes_a_position_with_other_members_set_for_another_state)
{
    LoopWatch watch;
    for (uint64_t present = 0; present < 100; present++)
        EXPECT_FALSE(watch.comes_back(7, present));
    // All 64 bits count.
    LoopWatch high;
    EXPECT_FALSE(high.comes_back(7, 0));
    EXPECT_FALSE(high.comes_back(7, uint64_t{1} << 44));
    EXPECT_TRUE(high.comes_back(7, uint64_t{1} << 44));
}
