// SPDX-License-Identifier: MIT
// What is particular about the records of ethsw_mgmt/switch.proto.
#include "ethsw_mgmt/switch.h"

#include "tests/catalogue/filled_record.hpp"
#include "tests/catalogue/operations.hpp"
#include "tests/catalogue/typed.hpp"

namespace catalogue {

TARN_TEST_RECORD(PhyInfo, tarn_ethsw_mgmt_phy_info);
TARN_TEST_RECORD(YieldResponse, tarn_ethsw_mgmt_yield_switch_to_peer_response);
TARN_TEST_RECORD(PortEnable, tarn_ethsw_mgmt_port_enable);
TARN_TEST_RECORD(InterfaceStatus, tarn_ethsw_mgmt_interface_status);
TARN_TEST_RECORD(PortStatistics, tarn_ethsw_mgmt_port_get_statistics_resp);
TARN_TEST_RECORD(PortReset, tarn_ethsw_mgmt_port_reset);
TARN_TEST_RECORD(SwitchInfo, tarn_ethsw_mgmt_switch_info);

namespace {

TEST(switch_records, write_an_empty_identity_when_its_flag_is_set)
{
    PhyInfo phy{};
    EXPECT_EQ(encoded(phy), Bytes{});
    phy.has_identity = 1;
    EXPECT_EQ(encoded(phy), (Bytes{0x12, 0}));
}

TEST(switch_records, write_an_identity_that_holds_something_without_its_flag)
{
    PhyInfo phy{};
    SET(phy.identity, field_1, 5);
    EXPECT_EQ(encoded(phy), (Bytes{0x12, 2, 0x08, 5}));
}

TEST(switch_records, give_a_location_that_does_not_arrive_its_own_defaults)
{
    const Received<YieldResponse> received({});
    ASSERT_EQ(received.result, WIRE_OK);
    EXPECT_EQ(received.record.field_1, 0u);
    EXPECT_FALSE(received.record.has_field_1);
    EXPECT_FALSE(received.record.has_location);

    const tarn_esd_location_info &location = received.record.location;
    EXPECT_EQ(location.field_1, 7u);
    EXPECT_EQ(location.field_2, 1u);
    EXPECT_EQ(location.field_3, 0xFFFFFFFFu);
    EXPECT_EQ(location.field_4, 1u);
    EXPECT_EQ(location.field_5, 0xFFFFFFFFu);
    EXPECT_EQ(location.field_6, 1u);
    EXPECT_EQ(location.field_7, 0xFFFFFFFFu);
    EXPECT_EQ(location.field_8, 0u);
    EXPECT_FALSE(location.has_field_1 || location.has_field_2 || location.has_field_3 ||
                 location.has_field_4 || location.has_field_5 || location.has_field_6 ||
                 location.has_field_7 || location.has_field_8);
    EXPECT_EQ(encoded(received.record), Bytes{});
}

TEST(switch_records, keep_the_defaults_of_a_location_that_arrives_in_part)
{
    const Received<YieldResponse> received({0x12, 2, 0x18, 9});
    ASSERT_EQ(received.result, WIRE_OK);
    EXPECT_TRUE(received.record.has_location);
    EXPECT_EQ(received.record.location.field_1, 7u);
    EXPECT_EQ(received.record.location.field_3, 9u);
    EXPECT_TRUE(received.record.location.has_field_3);
}

TEST(switch_records, read_any_true_value_as_one)
{
    const Bytes input{0x08, 3, 0x10, 5};
    const Received<PortEnable> received(input);
    EXPECT_EQ(received.record.port, 3u);
    EXPECT_EQ(received.record.enable, 1);
    EXPECT_EQ(encoded(received.record), (Bytes{0x08, 3, 0x10, 1}));
}

TEST(switch_records, lose_fields_in_the_gaps_of_an_interface_status)
{
    const Bytes known{0x10, 7, 0x50, 8, 0xA0, 1, 9}; // fields 2, 10, 20
    const Bytes unknown[] = {
        {0x18, 5},                      // field 3, a varint
        {0x19, 1, 2, 3, 4, 5, 6, 7, 8}, // field 3, eight bytes
        {0x1A, 2, 0x08, 1},             // field 3, with a length
        {0x1D, 1, 2, 3, 4},             // field 3, four bytes
        {0x48, 5},                      // field 9
        {0x60, 5},                      // field 12
        {0x98, 1, 5},                   // field 19
        {0xF0, 1, 5},                   // field 30
    };
    for (const Bytes &field : unknown) {
        EXPECT_EQ(resent<InterfaceStatus>(test::join({field, known})), known);
        EXPECT_EQ(resent<InterfaceStatus>(test::join({known, field})), known);
    }
}

TEST(switch_records, encode_all_39_counters_of_a_port)
{
    const RecordType &type = find_type("tarn_ethsw_mgmt_port_get_statistics_resp");
    Content content = empty_content(type);
    for (size_t i = 0; i < 39; i++)
        content.values[i] = number_value(i + 1);

    Bytes expected;
    for (uint8_t number = 1; number <= 39; number++) {
        const uint8_t tag = static_cast<uint8_t>(number << 3);
        if (number < 16)
            expected.insert(expected.end(), {tag, number});
        else
            expected.insert(expected.end(), {static_cast<uint8_t>(tag | 0x80),
                                             static_cast<uint8_t>(number >> 4), number});
    }
    const FilledRecord statistics(content);
    EXPECT_EQ(encode(type, statistics.record()), expected);
}

TEST(switch_records, encode_the_last_counter_of_a_port_alone)
{
    PortStatistics statistics{};
    SET(statistics, field_39, 300);
    EXPECT_EQ(encoded(statistics), (Bytes{0xB8, 2, 0xAC, 2}));
}

TEST(switch_records, refuse_a_port_that_is_not_a_varint)
{
    EXPECT_EQ(decoding_result<PortReset>({0x0A, 1, 0}), WIRE_ERR_TYPE_MISMATCH);
    EXPECT_EQ(decoding_result<PortReset>({0x08, 1}), WIRE_OK);
}

TEST(switch_records, write_nothing_of_ports_that_are_none)
{
    SwitchInfo info{};
    SET_LIST(info, ports, nullptr, 0);
    EXPECT_EQ(encoded(info), Bytes{});
}

// One of everything: an identity with a list, a name, and a port with blocks in it at every depth.
const Bytes kSwitchInfo = {
    0x08, 1,                                                       // field 1
    0x12, 2,    0x30, 2,                                           // identity: one number
    0x18, 3,                                                       // field 3
    0x22, 2,    's',  'w',                                         // name
    0x28, 5,    0x30, 1,    0x38, 7,                               // fields 5, 6, 7
    0x42, 15,                                                      // one port:
    0x0A, 2,    0x30, 1,                                           //   its identity
    0x1A, 1,    'p',                                               //   a text
    0x22, 4,    0x12, 2,    0x30, 4,                               //   its PHY's identity
    0x2A, 0,                                                       //   an SFP module
    0x48, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 1, // field 9
};

TEST(switch_records, carry_a_whole_switch)
{
    const Received<SwitchInfo> received(kSwitchInfo);
    ASSERT_EQ(received.result, WIRE_OK);
    const SwitchInfo &info = received.record;
    EXPECT_EQ(info.field_1, 1u);
    EXPECT_EQ(info.identity.field_6_count, 1u);
    EXPECT_EQ(info.identity.field_6[0], 2u);
    EXPECT_EQ(info.field_3, 3u);
    EXPECT_STREQ(info.name, "sw");
    EXPECT_EQ(info.field_5, 5u);
    EXPECT_EQ(info.field_6, 1);
    EXPECT_EQ(info.field_7, 7u);
    ASSERT_EQ(info.ports_count, 1u);
    EXPECT_STREQ(info.ports[0].field_3, "p");
    EXPECT_EQ(info.ports[0].phy.identity.field_6[0], 4u);
    EXPECT_TRUE(info.ports[0].has_sfp);
    EXPECT_EQ(info.field_9, UINT64_MAX);
    EXPECT_TRUE(info.has_field_9);
    EXPECT_EQ(encoded(info), kSwitchInfo);
}

TEST(switch_records, copy_a_whole_switch)
{
    const Received<SwitchInfo> received(kSwitchInfo);
    Blocks blocks;
    SwitchInfo copy;
    ASSERT_EQ(
        tarn_ethsw_mgmt_switch_info_duplicate(&copy, &received.record, Blocks::allocate, &blocks),
        WIRE_OK);
    EXPECT_EQ(encoded(copy), kSwitchInfo);
    EXPECT_EQ(blocks.asked(), received.blocks.asked());
    tarn_ethsw_mgmt_switch_info_free_ext(&copy, Blocks::release, &blocks, 0);
}

TEST(switch_records, release_a_switch_in_the_order_of_its_members_and_lists_last)
{
    Received<SwitchInfo> received(kSwitchInfo);
    const SwitchInfo &info = received.record;
    const std::vector<const void *> expected{
        info.identity.field_6,
        info.name,
        info.ports[0].identity.field_6,
        info.ports[0].field_3,
        info.ports[0].phy.identity.field_6,
        info.ports,
    };
    received.release();
    EXPECT_EQ(received.blocks.returned(), expected);
}

} // namespace

} // namespace catalogue
