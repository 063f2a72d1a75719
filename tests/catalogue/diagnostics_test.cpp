// SPDX-License-Identifier: MIT
// What is particular about the records of ethsw_mgmt/diagnostics.proto.
#include "ethsw_mgmt/diagnostics.h"

#include "tests/catalogue/layout.hpp"
#include "tests/catalogue/typed.hpp"

namespace catalogue {

TARN_TEST_RECORD(HealthState, tarn_ethsw_mgmt_debug_get_health_state_rsp);
TARN_TEST_RECORD(ShellCmd, tarn_ethsw_mgmt_bcm_shell_cmd);
TARN_TEST_RECORD(ShellCmdResp, tarn_ethsw_mgmt_bcm_shell_cmd_resp);
TARN_TEST_RECORD(RegValueData, tarn_ethsw_mgmt_reg_value_data);
TARN_TEST_RECORD(RegInfoRsp, tarn_ethsw_mgmt_reg_info_rsp);

namespace {

TEST(diagnostics_records, write_tags_of_the_health_state_in_two_bytes_from_field_16_on)
{
    HealthState state{};
    SET(state, field_15, 1);
    SET(state, field_16, 2);
    SET(state, field_31, 3);
    SET(state, field_32, 4);
    SET(state.link_fault_status, field_1, 5);
    state.has_link_fault_status = 1;
    SET(state, field_45, 1);
    const Bytes expected{
        0x78, 1,             // field 15
        0x80, 1, 2,          // field 16
        0xF8, 1, 3,          // field 31
        0x80, 2, 4,          // field 32
        0xD2, 2, 2, 0x08, 5, // field 42
        0xE8, 2, 1,          // field 45
    };
    EXPECT_EQ(encoded(state), expected);
    EXPECT_EQ(resent<HealthState>(expected), expected);
}

TEST(diagnostics_records, keep_the_flags_of_the_health_state_beyond_the_32nd)
{
    const size_t flags = layout_of(find_type("tarn_ethsw_mgmt_debug_get_health_state_rsp")).flags;
    const struct {
        Bytes input;
        size_t byte;
        uint8_t bits;
    } rows[] = {
        {{0x80, 2, 1}, 3, 0x80}, // field 32
        {{0x88, 2, 1}, 4, 0x01}, // field 33
        {{0xC0, 2, 1}, 4, 0x80}, // field 40
        {{0xC8, 2, 1}, 5, 0x01}, // field 41
        {{0xD2, 2, 0}, 5, 0x02}, // field 42
        {{0xDA, 2, 0}, 5, 0x04}, // field 43
        {{0xE8, 2, 1}, 5, 0x10}, // field 45
    };
    for (const auto &row : rows) {
        const Received<HealthState> received(row.input);
        ASSERT_EQ(received.result, WIRE_OK);
        uint8_t bytes[sizeof(HealthState)];
        memcpy(bytes, &received.record, sizeof bytes);
        for (size_t byte = 0; byte < 6; byte++) {
            // Behind the flags of all 45 members nothing is promised.
            const uint8_t mask = byte == 5 ? 0x1F : 0xFF;
            EXPECT_EQ(bytes[flags + byte] & mask, byte == row.byte ? row.bits : 0)
                << row.input.size() << " " << byte;
        }
        EXPECT_EQ(encoded(received.record), row.input);
    }
}

// The request and its answer hold one text each.
template <typename Record>
void check_text(const char *Record::*text, void (*set_flag)(Record &))
{
    Record record{};
    set_flag(record);
    EXPECT_EQ(encoded(record), Bytes{});
    record.*text = "a";
    EXPECT_EQ(encoded(record), (Bytes{0x0A, 1, 'a'}));
    record.*text = "";
    EXPECT_EQ(encoded(record), (Bytes{0x0A, 0}));
    EXPECT_STREQ(Received<Record>({0x0A, 1, 'a'}).record.*text, "a");
}

TEST(diagnostics_records, write_the_text_of_a_shell_command_unless_it_is_null)
{
    check_text<ShellCmd>(&ShellCmd::command, [](ShellCmd &record) { record.has_command = 1; });
}

TEST(diagnostics_records, write_the_output_of_a_shell_command_unless_it_is_null)
{
    check_text<ShellCmdResp>(&ShellCmdResp::output,
                             [](ShellCmdResp &record) { record.has_output = 1; });
}

TEST(diagnostics_records, take_the_length_of_a_register_value_from_the_record)
{
    const uint8_t data[] = {0, 1, 0, 0xFF, 0};
    RegValueData value{};
    SET_BYTES(value, field_10, data, 5);
    const Bytes expected{0x52, 5, 0, 1, 0, 0xFF, 0};
    EXPECT_EQ(encoded(value), expected);

    const Received<RegValueData> received(expected);
    ASSERT_EQ(received.record.field_10_length, 5u);
    EXPECT_EQ(memcmp(received.record.field_10, data, 5), 0);
    EXPECT_EQ(received.blocks.asked(), std::vector<uint32_t>{5});
}

TEST(diagnostics_records, write_an_empty_time_stamp_only_when_its_flag_is_set)
{
    HealthState state{};
    EXPECT_EQ(encoded(state), Bytes{});
    state.has_timestamp_7 = 1;
    EXPECT_EQ(encoded(state), (Bytes{0x3A, 0}));
    state.has_timestamp_7 = 0;
    SET(state.timestamp_7, text, "t");
    EXPECT_EQ(encoded(state), (Bytes{0x3A, 3, 0x1A, 1, 't'}));
}

TEST(diagnostics_records, keep_the_six_time_stamps_apart)
{
    const Bytes stamps[] = {
        {0x3A, 2, 0x08, 7},  {0x4A, 2, 0x08, 9},     {0x5A, 2, 0x08, 11},
        {0x6A, 2, 0x08, 13}, {0x9A, 1, 2, 0x08, 19}, {0xEA, 1, 2, 0x08, 29},
    };
    Bytes all;
    for (const Bytes &stamp : stamps) {
        EXPECT_EQ(resent<HealthState>(stamp), stamp);
        all = test::join({all, stamp});
    }
    const Received<HealthState> received(all);
    EXPECT_EQ(received.record.timestamp_7.field_1, 7u);
    EXPECT_EQ(received.record.timestamp_9.field_1, 9u);
    EXPECT_EQ(received.record.timestamp_11.field_1, 11u);
    EXPECT_EQ(received.record.timestamp_13.field_1, 13u);
    EXPECT_EQ(received.record.timestamp_19.field_1, 19u);
    EXPECT_EQ(received.record.timestamp_29.field_1, 29u);
}

TEST(diagnostics_records, carry_registers_as_sections_of_columns_of_values)
{
    const Bytes tree{0x08, 1, 0x12, 6, 0x12, 4, 0x1A, 2, 0x08, 5};
    const Received<RegInfoRsp> received(tree);
    ASSERT_EQ(received.result, WIRE_OK);
    EXPECT_EQ(received.record.sections[0].columns[0].values[0].field_1, 5u);
    EXPECT_EQ(encoded(received.record), tree);
}

} // namespace

} // namespace catalogue
