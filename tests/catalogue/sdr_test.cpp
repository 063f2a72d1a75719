// SPDX-License-Identifier: MIT
// What is particular about the records of ethsw_mgmt/sdr.proto.
#include "ethsw_mgmt/sdr.h"

#include "tests/catalogue/typed.hpp"

namespace catalogue {

TARN_TEST_RECORD(SdrCfg, tarn_ethsw_mgmt_sdr_cfg);
TARN_TEST_RECORD(SdrInfo, tarn_ethsw_mgmt_sdr_info);
TARN_TEST_RECORD(SdrData, tarn_ethsw_mgmt_sdr_data);
TARN_TEST_RECORD(GlobalStatistics, tarn_ethsw_mgmt_glbl_sdr_statistics_resp);
TARN_TEST_RECORD(PortStatistics, tarn_ethsw_mgmt_port_sdr_statistics_resp);

namespace {

TEST(sdr_records, write_nothing_of_a_configuration_without_definitions)
{
    SdrCfg cfg{};
    SET_LIST(cfg, sdrs, nullptr, 0);
    EXPECT_EQ(encoded(cfg), Bytes{});
}

TEST(sdr_records, read_an_empty_configuration_from_nothing)
{
    const Received<SdrCfg> received({});
    EXPECT_EQ(received.result, WIRE_OK);
    EXPECT_EQ(received.record.sdrs, nullptr);
    EXPECT_EQ(received.record.sdrs_count, 0u);
    EXPECT_FALSE(received.record.has_sdrs);
}

TEST(sdr_records, write_a_definition_without_content_as_an_element_of_no_length)
{
    SdrData sdrs[2] = {};
    SET(sdrs[1], field_2, 1);
    SdrCfg cfg{};
    SET_LIST(cfg, sdrs, sdrs, 2);
    EXPECT_EQ(encoded(cfg), (Bytes{0x0A, 0, 0x0A, 2, 0x10, 1}));
    SdrInfo info{};
    SET_LIST(info, sdrs, sdrs, 1);
    EXPECT_EQ(encoded(info), (Bytes{0x12, 0}));
}

// A traffic class with all three counters at their largest.
const Bytes kLargest = test::join({
    {0x08, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 1},
    {0x10, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 1},
    {0x18, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 1},
});

// Statistics have a list of entries, field 2; an entry a list, field 2; and that one traffic
// classes, field 4.
const Bytes kStatistics = test::join({{0x12, 37, 0x12, 35, 0x22, 33}, kLargest});

TEST(sdr_records, carry_the_largest_counters_of_a_traffic_class_through_all_levels)
{
    tarn_ethsw_mgmt_sdr_statistics_tc_data traffic_class{};
    SET(traffic_class, field_1, UINT64_MAX);
    SET(traffic_class, field_2, UINT64_MAX);
    SET(traffic_class, field_3, UINT64_MAX);
    tarn_ethsw_mgmt_sdr_statistics_pg_info pg{};
    SET_LIST(pg, traffic_classes, &traffic_class, 1);
    tarn_ethsw_mgmt_glbl_sdr_statistics_info info{};
    SET_LIST(info, pgs, &pg, 1);
    GlobalStatistics statistics{};
    SET_LIST(statistics, statistics, &info, 1);
    EXPECT_EQ(encoded(statistics), kStatistics);

    const Received<GlobalStatistics> received(kStatistics);
    ASSERT_EQ(received.result, WIRE_OK);
    const auto &innermost = received.record.statistics[0].pgs[0].traffic_classes[0];
    EXPECT_EQ(innermost.field_1, UINT64_MAX);
    EXPECT_EQ(innermost.field_2, UINT64_MAX);
    EXPECT_EQ(innermost.field_3, UINT64_MAX);
}

TEST(sdr_records, nest_the_statistics_of_a_port_as_deep)
{
    const Received<PortStatistics> received(kStatistics);
    ASSERT_EQ(received.result, WIRE_OK);
    EXPECT_EQ(received.record.statistics[0].sdrs[0].traffic_classes[0].field_3, UINT64_MAX);
    EXPECT_EQ(encoded(received.record), kStatistics);
}

} // namespace

} // namespace catalogue
