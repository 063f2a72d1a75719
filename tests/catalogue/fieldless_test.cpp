// SPDX-License-Identifier: MIT
// The record types without fields: there is no structure, and a null pointer stands for the record.
#include "tests/catalogue/operations.hpp"

#include <algorithm>
#include <string>

namespace catalogue {

namespace {

const char *const kFieldless[] = {
    "tarn_ethsw_mgmt_get_mgmt_interface_status",
    "tarn_ethsw_mgmt_get_port_state_info",
    "tarn_ethsw_mgmt_get_switch_info",
    "tarn_ethsw_mgmt_port_clear_all_stats",
    "tarn_ethsw_mgmt_yield_switch_to_peer",
    "tarn_ethsw_mgmt_bridge_get_counters",
    "tarn_ethsw_mgmt_clear_bridge_counters",
    "tarn_ethsw_mgmt_debug_vlan_test_mode_restore",
    "tarn_ethsw_mgmt_fdb_get_counters",
    "tarn_ethsw_mgmt_fdb_get_table_info",
    "tarn_ethsw_mgmt_show_trunk",
    "tarn_ethsw_mgmt_show_security",
    "tarn_ethsw_mgmt_debug_get_phy_poll_mode",
    "tarn_ethsw_mgmt_fpd_get_info",
    "tarn_ethsw_mgmt_fpd_program_from_golden",
    "tarn_ethsw_mgmt_get_sfp_summary",
    "tarn_ethsw_mgmt_debug_get_capi_status",
    "tarn_ethsw_mgmt_debug_get_hw_counters",
    "tarn_ethsw_mgmt_debug_get_trace_level",
    "tarn_ethsw_mgmt_debug_trigger_switch_config_dump",
    "tarn_ethsw_mgmt_clear_emon_stats",
    "tarn_ethsw_mgmt_show_emon_stats",
    "tarn_ethsw_mgmt_event_stats_req",
    "tarn_ethsw_mgmt_fault_stats_req",
};

TEST(fieldless_types, are_these_24)
{
    std::vector<std::string> found;
    for (const RecordType &type : record_types())
        if (type.members.empty())
            found.push_back(type.name);
    std::vector<std::string> expected(std::begin(kFieldless), std::end(kFieldless));
    std::sort(found.begin(), found.end());
    std::sort(expected.begin(), expected.end());
    EXPECT_EQ(found, expected);
    EXPECT_EQ(found.size(), 24u);
}

TEST(fieldless_types, encode_to_nothing)
{
    for (const char *name : kFieldless) {
        const RecordType &type = find_type(name);
        uint8_t buffer[4] = {0xEE, 0xEE, 0xEE, 0xEE};
        WireSegment pieces[1];
        for (const uint32_t flags : {uint32_t{0}, WIRE_FLAG_BYTES_IN_PLACE}) {
            uint32_t count = 1;
            EXPECT_EQ(type.encode(nullptr, nullptr, 0, nullptr, nullptr, flags), 0u) << name;
            EXPECT_EQ(type.encode(nullptr, buffer, 4, nullptr, nullptr, flags), 0u) << name;
            EXPECT_EQ(type.encode(nullptr, buffer, 4, pieces, &count, flags), 0u) << name;
            EXPECT_EQ(count, 0u) << name;
        }
        EXPECT_EQ(buffer[0], 0xEE) << name;
    }
}

TEST(fieldless_types, skip_whatever_is_well_formed_and_refuse_the_rest)
{
    const struct {
        Bytes input;
        int32_t result;
    } rows[] = {
        {{}, WIRE_OK},
        {{0x08, 1}, WIRE_OK},                               // a varint
        {{0x08, 0x80, 0x80, 0x80, 0x80, 0x80, 1}, WIRE_OK}, // an over-long one
        {{0x09, 1, 2, 3, 4, 5, 6, 7, 8}, WIRE_OK},          // eight bytes
        {{0x0A, 2, 'a', 'b'}, WIRE_OK},                     // two bytes behind a length
        {{0x0D, 1, 2, 3, 4}, WIRE_OK},                      // four bytes
        {{0xE8, 2, 1, 0x12, 0, 0x00, 7}, WIRE_OK},          // fields 45, 2 and 0
        {{0x0A, 9, 'a'}, WIRE_OK},                          // reaches past the end
        {{0x09, 1}, WIRE_OK},                               // likewise
        {{0x0B}, WIRE_ERR_WIRE_TYPE},                       // a group begins
        {{0x0C}, WIRE_ERR_WIRE_TYPE},                       // a group ends
        {{0x0E}, WIRE_ERR_WIRE_TYPE},
        {{0x0F}, WIRE_ERR_WIRE_TYPE},
        {{0x08, 1, 0x13, 0x14}, WIRE_ERR_WIRE_TYPE}, // a group behind a field
        {{0x08}, WIRE_ERR_MALFORMED},                // no value
        {{0x08, 0x80}, WIRE_ERR_MALFORMED},          // half a value
        {{0x0A}, WIRE_ERR_MALFORMED},                // no length
        {{0x80}, WIRE_ERR_MALFORMED},                // half a tag
    };
    for (const char *name : kFieldless) {
        const RecordType &type = find_type(name);
        for (const auto &row : rows)
            EXPECT_EQ(
                type.decode(nullptr, row.input.data(), row.input.length(), nullptr, nullptr, 0),
                row.result)
                << name << " " << testing::PrintToString(row.input);
    }
}

TEST(fieldless_types, have_nothing_to_copy_or_release)
{
    for (const char *name : kFieldless) {
        const RecordType &type = find_type(name);
        Blocks blocks;
        EXPECT_EQ(type.duplicate(nullptr, nullptr, Blocks::allocate, &blocks), WIRE_OK) << name;
        type.release(nullptr, Blocks::release, &blocks, 0);
        EXPECT_TRUE(blocks.asked().empty()) << name;
        EXPECT_TRUE(blocks.returned().empty()) << name;
    }
}

} // namespace

} // namespace catalogue
