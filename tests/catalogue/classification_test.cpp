// SPDX-License-Identifier: MIT
// What is particular about the records of ethsw_mgmt/classification.proto.
#include "ethsw_mgmt/classification.h"

#include "tests/catalogue/layout.hpp"
#include "tests/catalogue/typed.hpp"
#include "tests/support/segments.hpp"

namespace catalogue {

TARN_TEST_RECORD(PolicerStatistics, tarn_ethsw_mgmt_port_policer_statistics_info);
TARN_TEST_RECORD(AddPclFlow, tarn_ethsw_mgmt_add_pcl_flow);
TARN_TEST_RECORD(PclRuleInfo, tarn_ethsw_mgmt_pcl_rule_info);
TARN_TEST_RECORD(GetPclResp, tarn_ethsw_mgmt_get_pcl_resp);
TARN_TEST_RECORD(SetPolicingSdr, tarn_ethsw_mgmt_set_policing_sdr);
TARN_TEST_RECORD(ShowPolicingResp, tarn_ethsw_mgmt_show_policing_resp);

namespace {

TEST(classification_records, lose_field_12_of_policer_statistics)
{
    const Bytes known{0x58, 1, 0x68, 2}; // fields 11 and 13
    EXPECT_EQ(resent<PolicerStatistics>({0x58, 1, 0x60, 9, 0x68, 2}), known);
    EXPECT_EQ(resent<PolicerStatistics>({0x58, 1, 0x62, 1, 9, 0x68, 2}), known);
}

TEST(classification_records, number_flags_without_a_hole_where_field_12_is_missing)
{
    const size_t flags = layout_of(find_type("tarn_ethsw_mgmt_port_policer_statistics_info")).flags;
    PolicerStatistics statistics{};
    uint8_t bytes[sizeof statistics];
    statistics.has_field_13 = 1;
    memcpy(bytes, &statistics, sizeof bytes);
    EXPECT_EQ(bytes[flags + 1], 1u << 3); // bit 11

    statistics.has_field_22 = 1;
    memcpy(bytes, &statistics, sizeof bytes);
    EXPECT_EQ(bytes[flags + 2], 1u << 4); // bit 20
}

// Eleven byte strings of 1 to 11 bytes, the length repeated in each byte.
class FlowWithPatterns {
public:
    FlowWithPatterns()
    {
        SET(flow, field_1, 1);
        SET_BYTES(flow, field_3, pattern(0), 1);
        SET_BYTES(flow, field_4, pattern(1), 2);
        SET_BYTES(flow, field_5, pattern(2), 3);
        SET_BYTES(flow, field_6, pattern(3), 4);
        SET(flow, field_7, 7);
        SET_BYTES(flow, field_9, pattern(4), 5);
        SET_BYTES(flow, field_10, pattern(5), 6);
        SET_BYTES(flow, field_11, pattern(6), 7);
        SET_BYTES(flow, field_12, pattern(7), 8);
        SET_BYTES(flow, field_16, pattern(8), 9);
        SET_BYTES(flow, field_17, pattern(9), 10);
        SET_BYTES(flow, field_18, pattern(10), 11);
        SET(flow, field_20, 20);
    }

    const uint8_t *pattern(size_t index)
    {
        memset(patterns_[index], static_cast<int>(index + 1), sizeof patterns_[index]);
        return patterns_[index];
    }

    AddPclFlow flow{};

private:
    uint8_t patterns_[11][11];
};

// What the buffer holds in front of pattern 0, 1, 2 ... and, last, behind them all.
const Bytes kBetweenPatterns[] = {
    {0x08, 1, 0x1A, 1}, {0x22, 2}, {0x2A, 3},    {0x32, 4},     {0x38, 7, 0x4A, 5}, {0x52, 6},
    {0x5A, 7},          {0x62, 8}, {0x82, 1, 9}, {0x8A, 1, 10}, {0x92, 1, 11},      {0xA0, 1, 20},
};

TEST(classification_records, copy_all_eleven_patterns_of_a_flow)
{
    FlowWithPatterns filled;
    Bytes expected;
    for (size_t i = 0; i < 12; i++) {
        expected = test::join({expected, kBetweenPatterns[i]});
        if (i < 11)
            expected.insert(expected.end(), filled.pattern(i), filled.pattern(i) + i + 1);
    }
    EXPECT_EQ(encoded(filled.flow), expected);
    EXPECT_EQ(resent<AddPclFlow>(expected), expected);
}

TEST(classification_records, hand_out_all_eleven_patterns_of_a_flow_between_pieces_of_the_buffer)
{
    FlowWithPatterns filled;
    Bytes expected;
    std::vector<std::string> expected_pieces;
    std::vector<test::Named> names;
    for (size_t i = 0; i < 12; i++) {
        expected_pieces.push_back("(buffer" +
                                  (expected.empty() ? "" : "+" + std::to_string(expected.size())) +
                                  ", " + std::to_string(kBetweenPatterns[i].size()) + ")");
        expected = test::join({expected, kBetweenPatterns[i]});
        if (i < 11) {
            const std::string name = "pattern " + std::to_string(i);
            names.push_back({filled.pattern(i), name});
            expected_pieces.push_back("(" + name + ", " + std::to_string(i + 1) + ")");
        }
    }

    Bytes buffer(64);
    WireSegment pieces[32];
    uint32_t count = 32;
    buffer.resize(tarn_ethsw_mgmt_add_pcl_flow_encode_ext(&filled.flow, buffer.data(), 64, pieces,
                                                          &count, WIRE_FLAG_BYTES_IN_PLACE));
    EXPECT_EQ(buffer, expected);
    std::vector<std::string> found;
    for (uint32_t i = 0; i < count; i++)
        found.push_back(test::describe(pieces[i], buffer.data(), 64, names));
    EXPECT_EQ(found, expected_pieces);
}

TEST(classification_records, write_an_action_without_content_when_its_flag_is_set)
{
    PclRuleInfo rule{};
    EXPECT_EQ(encoded(rule), Bytes{});
    rule.has_action = 1;
    EXPECT_EQ(encoded(rule), (Bytes{0x1A, 0}));
}

TEST(classification_records, keep_the_parts_of_a_rule_apart)
{
    const Bytes parts[] = {
        {0x0A, 2, 0x08, 1}, {0x12, 2, 0x08, 2}, {0x22, 2, 0x08, 4},
        {0x2A, 2, 0x08, 5}, {0x32, 2, 0x08, 6},
    };
    for (const Bytes &part : parts)
        EXPECT_EQ(resent<PclRuleInfo>(part), part);

    const Received<PclRuleInfo> received(test::join({parts[1], parts[3]}));
    EXPECT_FALSE(received.record.has_match_1);
    EXPECT_EQ(received.record.match_2.field_1, 2u);
    EXPECT_FALSE(received.record.has_policing_4);
    EXPECT_EQ(received.record.policing_5.field_1, 5u);
    EXPECT_FALSE(received.record.has_policing_6);
}

TEST(classification_records, keep_the_two_lists_of_rules_apart)
{
    const Bytes input{0x22, 0, 0x2A, 0, 0x2A, 0};
    const Received<GetPclResp> received(input);
    ASSERT_EQ(received.result, WIRE_OK);
    EXPECT_EQ(received.record.rules_4_count, 1u);
    EXPECT_EQ(received.record.rules_5_count, 2u);
    EXPECT_EQ(encoded(received.record), input);
}

TEST(classification_records, refuse_interleaved_lists_of_rules)
{
    EXPECT_EQ(decoding_result<GetPclResp>({0x22, 0, 0x2A, 0, 0x22, 0}), WIRE_ERR_MALFORMED);
}

TEST(classification_records, keep_the_two_lists_of_policed_ports_apart)
{
    const Bytes input{0x6A, 2, 0x08, 1, 0x72, 2, 0x08, 2};
    const Received<ShowPolicingResp> received(input);
    ASSERT_EQ(received.result, WIRE_OK);
    ASSERT_EQ(received.record.ports_13_count, 1u);
    ASSERT_EQ(received.record.ports_14_count, 1u);
    EXPECT_EQ(received.record.ports_13[0].field_1, 1u);
    EXPECT_EQ(received.record.ports_14[0].field_1, 2u);
    EXPECT_EQ(encoded(received.record), input);
}

TEST(classification_records, write_the_number_lists_of_a_policed_sdr_unpacked)
{
    uint32_t fours[] = {1, 300};
    uint32_t fives[] = {2};
    SetPolicingSdr sdr{};
    SET_LIST(sdr, field_4, fours, 2);
    SET_LIST(sdr, field_5, fives, 1);
    EXPECT_EQ(encoded(sdr), (Bytes{0x20, 1, 0x20, 0xAC, 2, 0x28, 2}));
    EXPECT_EQ(decoding_result<SetPolicingSdr>({0x22, 1, 1}), WIRE_ERR_TYPE_MISMATCH);
    EXPECT_EQ(decoding_result<SetPolicingSdr>({0x2A, 1, 2}), WIRE_ERR_TYPE_MISMATCH);
}

} // namespace

} // namespace catalogue
