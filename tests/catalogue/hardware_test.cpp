// SPDX-License-Identifier: MIT
// What is particular about the records of ethsw_mgmt/hardware.proto.
#include "ethsw_mgmt/hardware.h"

#include "tests/catalogue/operations.hpp"
#include "tests/catalogue/typed.hpp"
#include "tests/support/segments.hpp"

namespace catalogue {

TARN_TEST_RECORD(SfpReadResponse, tarn_ethsw_mgmt_debug_sfp_read_response);
TARN_TEST_RECORD(SfpReadAddressRsp, tarn_ethsw_mgmt_debug_sfp_read_address_rsp);
TARN_TEST_RECORD(SfpWriteAddress, tarn_ethsw_mgmt_debug_sfp_write_address);
TARN_TEST_RECORD(FpdCmpToFile, tarn_ethsw_mgmt_fpd_cmp_to_file);
TARN_TEST_RECORD(FpdProgramFromFile, tarn_ethsw_mgmt_fpd_program_from_file);
TARN_TEST_RECORD(LaneTuningInfo, tarn_ethsw_mgmt_serdes_lane_tuning_info);
TARN_TEST_RECORD(UcodeVersionInfo, tarn_ethsw_mgmt_phy_ucode_version_info);
TARN_TEST_RECORD(FpdInfo, tarn_ethsw_mgmt_fpd_info);
TARN_TEST_RECORD(SfpSummaryEntry, tarn_ethsw_mgmt_sfp_summary_entry);
TARN_TEST_RECORD(SfpSummaryResponse, tarn_ethsw_mgmt_sfp_summary_response);

namespace {

TEST(hardware_records, write_an_empty_reading_of_a_module)
{
    SfpReadResponse response{};
    SET_BYTES(response, field_4, nullptr, 0);
    EXPECT_EQ(encoded(response), (Bytes{0x22, 0}));
    SfpReadAddressRsp reading{};
    SET_BYTES(reading, field_6, nullptr, 0);
    EXPECT_EQ(encoded(reading), (Bytes{0x32, 0}));
    SfpWriteAddress writing{};
    SET_BYTES(writing, field_5, nullptr, 0);
    EXPECT_EQ(encoded(writing), (Bytes{0x2A, 0}));
}

TEST(hardware_records, ask_for_a_block_of_no_size_for_an_empty_reading)
{
    const Received<SfpReadResponse> response({0x22, 0});
    EXPECT_EQ(response.result, WIRE_OK);
    EXPECT_TRUE(response.record.has_field_4);
    EXPECT_EQ(response.record.field_4_length, 0u);
    EXPECT_EQ(response.blocks.asked(), std::vector<uint32_t>{0});

    const Received<SfpReadAddressRsp> reading({0x32, 0});
    EXPECT_TRUE(reading.record.has_field_6);
    EXPECT_EQ(reading.record.field_6_length, 0u);
    EXPECT_EQ(reading.blocks.asked(), std::vector<uint32_t>{0});

    const Received<SfpWriteAddress> writing({0x2A, 0});
    EXPECT_TRUE(writing.record.has_field_5);
    EXPECT_EQ(writing.record.field_5_length, 0u);
    EXPECT_EQ(writing.blocks.asked(), std::vector<uint32_t>{0});
}

TEST(hardware_records, fail_when_a_block_of_no_size_is_denied)
{
    const struct {
        const char *type;
        Bytes input;
    } rows[] = {
        {"tarn_ethsw_mgmt_debug_sfp_read_response", {0x22, 0}},
        {"tarn_ethsw_mgmt_debug_sfp_read_address_rsp", {0x32, 0}},
        {"tarn_ethsw_mgmt_debug_sfp_write_address", {0x2A, 0}},
    };
    for (const auto &row : rows) {
        OwnedRecord record(find_type(row.type));
        record.blocks().refuse(0);
        EXPECT_EQ(record.decode(row.input), WIRE_ERR_NO_MEMORY) << row.type;
        EXPECT_EQ(record.blocks().asked(), std::vector<uint32_t>{0}) << row.type;
        EXPECT_EQ(record.decode(row.input, WIRE_FLAG_BYTES_IN_PLACE), WIRE_OK) << row.type;
    }
}

// Both requests name the images to use in four lists of texts, fields 2 to 5.
template <typename Record>
void check_lists_of_texts()
{
    const char *texts[] = {"a", "", "xyz"};
    Record record{};
    SET_LIST(record, field_2, texts, 3);
    const Bytes expected{0x12, 1, 'a', 0x12, 0, 0x12, 3, 'x', 'y', 'z'};
    EXPECT_EQ(encoded(record), expected);

    const Received<Record> received(expected);
    ASSERT_EQ(received.result, WIRE_OK);
    ASSERT_EQ(received.record.field_2_count, 3u);
    EXPECT_STREQ(received.record.field_2[0], "a");
    EXPECT_STREQ(received.record.field_2[1], "");
    EXPECT_STREQ(received.record.field_2[2], "xyz");
    EXPECT_EQ(received.blocks.asked(), (std::vector<uint32_t>{3 * sizeof(char *), 2, 1, 4}));

    Record four{};
    SET_LIST(four, field_2, texts, 1);
    SET_LIST(four, field_3, texts, 1);
    SET_LIST(four, field_4, texts, 1);
    SET_LIST(four, field_5, texts, 1);
    EXPECT_EQ(encoded(four), (Bytes{0x12, 1, 'a', 0x1A, 1, 'a', 0x22, 1, 'a', 0x2A, 1, 'a'}));

    SET_LIST(record, field_2, nullptr, 3);
    EXPECT_EQ(encoded(record), Bytes{});
}

TEST(hardware_records, carry_lists_of_texts_to_compare_with)
{
    check_lists_of_texts<FpdCmpToFile>();
}

TEST(hardware_records, carry_lists_of_texts_to_program_from)
{
    check_lists_of_texts<FpdProgramFromFile>();
}

TEST(hardware_records, have_tags_of_two_bytes_from_field_16_of_a_lane_on)
{
    LaneTuningInfo lane{};
    SET(lane, field_16, 5);
    SET(lane, field_27, 6);
    SET(lane, field_28, "t");
    SET(lane, field_30, "");
    const Bytes expected{0x80, 1, 5, 0xD8, 1, 6, 0xE2, 1, 1, 't', 0xF2, 1, 0};
    EXPECT_EQ(encoded(lane), expected);
    EXPECT_EQ(resent<LaneTuningInfo>(expected), expected);
}

TEST(hardware_records, have_no_field_3_in_a_microcode_version)
{
    UcodeVersionInfo version{};
    SET(version, field_1, 1);
    SET(version, field_2, 2);
    SET(version, field_4, 4);
    const Bytes expected{0x08, 1, 0x10, 2, 0x20, 4};
    EXPECT_EQ(encoded(version), expected);
    EXPECT_EQ(resent<UcodeVersionInfo>({0x08, 1, 0x10, 2, 0x18, 3, 0x20, 4}), expected);
    EXPECT_EQ(resent<UcodeVersionInfo>({0x08, 1, 0x10, 2, 0x1A, 1, 3, 0x20, 4}), expected);

    uint8_t bytes[sizeof version];
    memcpy(bytes, &version, sizeof bytes);
    EXPECT_EQ(bytes[3 * sizeof(uint32_t)], 7u); // bits 0, 1 and 2
}

TEST(hardware_records, keep_the_eight_lists_of_devices_apart)
{
    Bytes input;
    for (uint8_t number = 3; number <= 10; number++)
        for (uint8_t copies = 0; copies < number; copies++)
            input.insert(input.end(), {static_cast<uint8_t>(number << 3 | 2), 2, 0x10, number});
    const Received<FpdInfo> received(input);
    ASSERT_EQ(received.result, WIRE_OK);
    const FpdInfo &info = received.record;
    const struct {
        const tarn_ethsw_mgmt_fpd_core_info *cores;
        uint32_t count;
    } lists[] = {
        {info.cores_3, info.cores_3_count}, {info.cores_4, info.cores_4_count},
        {info.cores_5, info.cores_5_count}, {info.cores_6, info.cores_6_count},
        {info.cores_7, info.cores_7_count}, {info.cores_8, info.cores_8_count},
        {info.cores_9, info.cores_9_count}, {info.cores_10, info.cores_10_count},
    };
    uint32_t number = 3;
    for (const auto &list : lists) {
        EXPECT_EQ(list.count, number);
        for (uint32_t i = 0; i < list.count; i++)
            EXPECT_EQ(list.cores[i].field_2, number);
        number++;
    }
    EXPECT_EQ(encoded(info), input);
}

TEST(hardware_records, refuse_each_list_of_devices_in_two_runs)
{
    for (uint8_t number = 3; number <= 10; number++) {
        const uint8_t tag = static_cast<uint8_t>(number << 3 | 2);
        const uint8_t other = static_cast<uint8_t>((number == 3 ? 4 : number - 1) << 3 | 2);
        EXPECT_EQ(decoding_result<FpdInfo>({tag, 0, other, 0, tag, 0}), WIRE_ERR_MALFORMED);
        EXPECT_EQ(decoding_result<FpdInfo>({tag, 0, tag, 0, other, 0}), WIRE_OK);
    }
}

TEST(hardware_records, list_the_pieces_of_a_summary_entry_by_entry)
{
    SfpSummaryEntry entries[2] = {};
    SET(entries[0], field_1, 1);
    SET(entries[1], field_1, 2);
    SfpSummaryResponse summary{};
    SET(summary, field_1, 3);
    SET_LIST(summary, entries, entries, 2);
    const Bytes expected{0x08, 3, 0x12, 2, 0x08, 1, 0x12, 2, 0x08, 2};

    const std::vector<std::string> all{"(buffer+4, 2)", "(buffer+8, 2)", "(buffer, 10)"};
    for (uint32_t capacity = 0; capacity <= 4; capacity++) {
        Bytes buffer(10);
        WireSegment pieces[4];
        uint32_t count = capacity;
        EXPECT_EQ(tarn_ethsw_mgmt_sfp_summary_response_encode_ext(&summary, buffer.data(), 10,
                                                                  pieces, &count, 0),
                  10u);
        EXPECT_EQ(buffer, expected);
        EXPECT_EQ(count, 3u);
        for (uint32_t i = 0; i < count && i < capacity; i++)
            EXPECT_EQ(test::describe(pieces[i], buffer.data(), 10, {}), all[i]);
    }
}

} // namespace

} // namespace catalogue
