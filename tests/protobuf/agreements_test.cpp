// SPDX-License-Identifier: MIT
// Where one might expect the two libraries to differ, and they do not. docs/protobuf.md lists
// these, too.

#include "ethsw_mgmt/switch.h"
#include "tests/protobuf/both_sides.hpp"

namespace catalogue {

TARN_TEST_RECORD(SwitchInfo, tarn_ethsw_mgmt_switch_info);

} // namespace catalogue

namespace protobuf {

using catalogue::SwitchInfo;

namespace {

void expect_both_read(const Bytes &input, const std::string &text)
{
    EXPECT_EQ(theirs("switch_info", input), text);
    EXPECT_EQ(ours("switch_info", input), text);
}

void expect_both_refuse(const Bytes &input, const std::string &why)
{
    EXPECT_EQ(theirs("switch_info", input), "refused");
    EXPECT_EQ(ours("switch_info", input), why);
}

TEST(agreements, a_scalar_that_comes_twice_has_its_last_value)
{
    expect_both_read({0x08, 5, 0x08, 6}, "field_1: 6");
}

TEST(agreements, fields_may_come_in_any_order)
{
    expect_both_read({0x18, 3, 0x08, 5}, "field_1: 5 field_3: 3");
}

TEST(agreements, a_varint_may_be_longer_than_it_needs_to_be)
{
    expect_both_read({0x08, 0x85, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x00},
                     "field_1: 5");
    expect_both_read({0x88, 0x80, 0x80, 0x80, 0x00, 5}, "field_1: 5");
}

TEST(agreements, a_32_bit_number_keeps_the_low_half_of_what_arrives)
{
    expect_both_read({0x08, 0xFE, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x01},
                     "field_1: 4294967294");
    expect_both_read({0x08, 0x85, 0x80, 0x80, 0x80, 0x10}, "field_1: 5");
}

TEST(agreements, what_64_bits_do_not_hold_is_dropped)
{
    expect_both_read({0x48, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x7F},
                     "field_9: 9223372036854775808");
}

TEST(agreements, what_a_tag_of_32_bits_does_not_hold_is_dropped)
{
    expect_both_read({0x88, 0x80, 0x80, 0x80, 0x70, 5}, "field_1: 5");
}

TEST(agreements, a_bool_reads_as_true_when_it_is_not_zero)
{
    expect_both_read({0x30, 2}, "field_6: true");
}

TEST(agreements, a_zero_that_is_present_is_written_and_read)
{
    expect_both_read({0x08, 0, 0x30, 0, 0x48, 0}, "field_1: 0 field_6: false field_9: 0");
    EXPECT_EQ(catalogue::resent<SwitchInfo>({0x08, 0}), (Bytes{0x08, 0}));
    EXPECT_EQ(written_by_them("switch_info", "field_1: 0"), (Bytes{0x08, 0}));
}

TEST(agreements, text_is_not_checked)
{
    expect_both_read({0x22, 2, 0xC3, 0x28}, "name: \"\\303(\"");
    EXPECT_EQ(catalogue::resent<SwitchInfo>({0x22, 2, 0xC3, 0x28}), (Bytes{0x22, 2, 0xC3, 0x28}));
    EXPECT_EQ(written_by_them("switch_info", R"(name: "\303(")"), (Bytes{0x22, 2, 0xC3, 0x28}));
}

TEST(agreements, wire_types_6_and_7_and_a_stray_end_of_a_group_are_refused)
{
    expect_both_refuse({0xFE, 0x01, 1}, "wire type");
    expect_both_refuse({0xFF, 0x01, 1}, "wire type");
    expect_both_refuse({0xFC, 0x01}, "wire type");
}

TEST(agreements, a_varint_that_is_cut_off_is_refused)
{
    expect_both_refuse({0x08, 0x80}, "malformed");
    expect_both_refuse({0x88}, "malformed");
    expect_both_refuse({0xF8, 0x01}, "malformed");
}

TEST(agreements, a_known_field_that_ends_behind_the_message_is_refused)
{
    expect_both_refuse({0x22, 3, 'h', 'i'}, "malformed");
    expect_both_refuse({0x12, 3, 0x08, 1}, "malformed");
    expect_both_refuse({0x42, 3, 0x10, 1}, "malformed");
}

TEST(agreements, a_message_that_would_go_round_for_ever_is_refused)
{
    expect_both_refuse({0x08, 5, 0xFA, 0x01, 0xF7, 0xFF, 0xFF, 0xFF, 0x0F}, "malformed");
}

} // namespace

} // namespace protobuf
