// SPDX-License-Identifier: MIT
// What is particular about the records of ethsw_mgmt/forwarding.proto.
#include "ethsw_mgmt/forwarding.h"

#include "tests/catalogue/typed.hpp"
#include "tests/support/segments.hpp"

namespace catalogue {

TARN_TEST_RECORD(VlanTableEntry, tarn_ethsw_mgmt_vlan_table_entry);
TARN_TEST_RECORD(BreachDetails, tarn_ethsw_mgmt_bridge_sec_breach_details);
TARN_TEST_RECORD(BridgeCounters, tarn_ethsw_mgmt_bridge_get_counters_response);
TARN_TEST_RECORD(FdbCounters, tarn_ethsw_mgmt_bridge_fdb_counters);

namespace {

TEST(forwarding_records, refuse_packed_ports_of_a_vlan)
{
    EXPECT_EQ(decoding_result<VlanTableEntry>({0x12, 3, 1, 2, 3}), WIRE_ERR_TYPE_MISMATCH);
}

TEST(forwarding_records, gather_the_ports_of_a_vlan_into_one_array)
{
    const Received<VlanTableEntry> received({0x10, 1, 0x10, 0x80, 1, 0x10, 3});
    ASSERT_EQ(received.result, WIRE_OK);
    ASSERT_EQ(received.record.field_2_count, 3u);
    EXPECT_EQ(received.record.field_2[0], 1u);
    EXPECT_EQ(received.record.field_2[1], 128u);
    EXPECT_EQ(received.record.field_2[2], 3u);
    EXPECT_EQ(received.blocks.asked(), (std::vector<uint32_t>{3 * sizeof(uint32_t)}));
}

TEST(forwarding_records, write_ports_of_a_vlan_only_when_there_are_some_and_the_flag_is_set)
{
    uint32_t ports[] = {4, 5};
    const struct {
        unsigned flag;
        uint32_t count;
        Bytes expected;
    } rows[] = {
        {1, 2, {0x10, 4, 0x10, 5}},
        {1, 0, {}},
        {0, 2, {}},
        {0, 0, {}},
    };
    for (const auto &row : rows) {
        VlanTableEntry entry{};
        SET_LIST(entry, field_2, ports, row.count);
        entry.has_field_2 = row.flag & 1;
        EXPECT_EQ(encoded(entry), row.expected);
    }
}

TEST(forwarding_records, write_an_empty_byte_string_of_a_breach)
{
    BreachDetails details{};
    SET_BYTES(details, field_3, nullptr, 0);
    EXPECT_EQ(encoded(details), (Bytes{0x1A, 0}));
}

TEST(forwarding_records, write_only_the_number_of_bridge_counters_whose_lists_are_empty)
{
    BridgeCounters counters{};
    SET_LIST(counters, ingress, nullptr, 0);
    SET_LIST(counters, egress, nullptr, 0);
    SET_LIST(counters, sec_breach_counters, nullptr, 0);
    SET_LIST(counters, sec_breach_details, nullptr, 0);
    EXPECT_EQ(encoded(counters), Bytes{});
    SET(counters, field_1, 6);
    EXPECT_EQ(encoded(counters), (Bytes{0x08, 6}));
}

TEST(forwarding_records, hand_out_the_byte_string_of_a_breach_as_a_piece)
{
    const uint8_t data[] = {0xDE, 0xAD, 0xBE, 0xEF};
    BreachDetails details{};
    SET(details, field_1, 5);
    SET_BYTES(details, field_3, data, 4);
    SET(details, field_4, 1);
    const Bytes copied{0x08, 5, 0x1A, 4, 0xDE, 0xAD, 0xBE, 0xEF, 0x20, 1};
    EXPECT_EQ(encoded(details), copied);

    const struct {
        uint32_t flags;
        Bytes buffer;
        std::vector<std::string> pieces;
    } rows[] = {
        {0, copied, {"(buffer, 10)"}},
        {WIRE_FLAG_BYTES_IN_PLACE,
         {0x08, 5, 0x1A, 4, 0x20, 1},
         {"(buffer, 4)", "(data, 4)", "(buffer+4, 2)"}},
    };
    for (const auto &row : rows) {
        Bytes buffer(10);
        WireSegment pieces[4];
        uint32_t count = 4;
        buffer.resize(tarn_ethsw_mgmt_bridge_sec_breach_details_encode_ext(
            &details, buffer.data(), 10, pieces, &count, row.flags));
        EXPECT_EQ(buffer, row.buffer);
        std::vector<std::string> found;
        for (uint32_t i = 0; i < count; i++)
            found.push_back(test::describe(pieces[i], buffer.data(), 10, {{data, "data"}}));
        EXPECT_EQ(found, row.pieces);
    }
}

TEST(forwarding_records, leave_the_byte_string_of_a_breach_in_the_input)
{
    const Bytes input{0x1A, 2, 0xDE, 0xAD};
    Received<BreachDetails> received(input, WIRE_FLAG_BYTES_IN_PLACE);
    ASSERT_EQ(received.result, WIRE_OK);
    EXPECT_TRUE(received.blocks.asked().empty());
    const uint8_t *data = received.record.field_3;
    EXPECT_EQ(data[0], 0xDE);
    received.release();
    EXPECT_EQ(received.record.field_3, data);
    EXPECT_EQ(received.record.field_3_length, 2u);
}

TEST(forwarding_records, keep_the_last_flags_of_the_forwarding_database_counters)
{
    FdbCounters counters{};
    SET(counters, field_18, 1);
    SET(counters, field_20, 1);
    const Bytes expected{0x90, 1, 1, 0xA0, 1, 1};
    EXPECT_EQ(encoded(counters), expected);
    EXPECT_EQ(resent<FdbCounters>(expected), expected);
}

} // namespace

} // namespace catalogue
