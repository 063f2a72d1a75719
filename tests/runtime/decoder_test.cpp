// SPDX-License-Identifier: MIT
// The state of a decoding: tags, lengths, the end, and fields that nobody knows.
#include "runtime/decoder.hpp"

#include "ethsw_mgmt/switch.h"
#include "tests/support/operations.hpp"
#include "tests/support/records.hpp"

#include <gtest/gtest.h>

using tarn::Decoder;
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
    EXPECT_EQ(in.next_tag(), 0x08u);
    EXPECT_EQ(in.next_tag(), 0x80u);
    EXPECT_EQ(in.next_tag(), 0x08u);
    EXPECT_EQ(in.position(), 6u);
    EXPECT_TRUE(in.at_end());
    EXPECT_EQ(in.next_tag(), kStop);
    EXPECT_EQ(in.result(), WIRE_OK);
}

TEST(decoder, stops_where_no_tag_can_be_read)
{
    const Bytes input = {0x80};
    Decoder in = decoder(input);
    EXPECT_EQ(in.next_tag(), kStop);
    EXPECT_EQ(in.result(), WIRE_ERR_MALFORMED);
    Decoder empty = decoder({});
    EXPECT_EQ(empty.next_tag(), kStop);
    EXPECT_EQ(empty.result(), WIRE_OK);
}

// The tag that stands for the end can come in a message, too, where it is field 0 of wire type 7.
TEST(decoder, does_not_take_a_tag_in_the_message_for_the_end)
{
    for (const Bytes &input : {Bytes{0x07}, Bytes{0x87, 0x80, 0x00}}) {
        Decoder in = decoder(input);
        EXPECT_EQ(in.next_tag(), kStop);
        EXPECT_EQ(in.result(), WIRE_ERR_WIRE_TYPE);
    }
}

TEST(decoder, ends_with_the_result_it_is_told)
{
    Decoder in = decoder({});
    EXPECT_EQ(in.stop(WIRE_ERR_NO_MEMORY), kStop);
    EXPECT_EQ(in.result(), WIRE_ERR_NO_MEMORY);
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
                           {{0x03, 1, 2}, WIRE_ERR_MALFORMED},
                           {{0x80}, WIRE_ERR_MALFORMED},
                           {{0xFF, 0xFF, 0xFF, 0xFF, 0x0F}, WIRE_ERR_MALFORMED},
                           {{0xFB, 0xFF, 0xFF, 0xFF, 0x0F}, WIRE_ERR_MALFORMED}}) {
        uint32_t length;
        EXPECT_EQ(decoder(row.input).read_length(&length), row.result)
            << testing::PrintToString(row.input);
    }
}

TEST(decoder, takes_bytes_and_goes_on_behind_them)
{
    const Bytes input = {1, 2, 3, 4};
    Decoder in = decoder(input);
    EXPECT_EQ(in.take(3), input.data());
    EXPECT_EQ(in.take(0), input.data() + 3);
    EXPECT_EQ(in.next_tag(), 4u);
    in.go_back(2);
    EXPECT_EQ(in.next_tag(), 3u);
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
