// SPDX-License-Identifier: MIT
// What is particular about the records of ethsw_mgmt/queue.proto.
#include "ethsw_mgmt/queue.h"

#include "tests/catalogue/comparison.hpp"
#include "tests/catalogue/filled_record.hpp"
#include "tests/catalogue/operations.hpp"
#include "tests/catalogue/typed.hpp"

namespace catalogue {

TARN_TEST_RECORD(ShowTxqResp, tarn_ethsw_mgmt_show_txq_resp);
TARN_TEST_RECORD(CosqCfg, tarn_ethsw_mgmt_show_txq_bcm_per_cosq_cfg);
TARN_TEST_RECORD(BcmPortCfg, tarn_ethsw_mgmt_show_txq_bcm_port_cfg);

namespace {

TEST(queue_records, write_an_embedded_record_without_content_when_its_flag_is_set)
{
    ShowTxqResp queues{};
    EXPECT_EQ(encoded(queues), Bytes{});
    queues.has_cfg_global = 1;
    EXPECT_EQ(encoded(queues), (Bytes{0x1A, 0}));
}

TEST(queue_records, have_tags_of_two_bytes_from_field_16_on)
{
    CosqCfg cosq{};
    SET(cosq, field_15, 1);
    SET(cosq, field_16, 2);
    SET(cosq, field_17, 3);
    const Bytes expected{0x78, 1, 0x80, 1, 2, 0x88, 1, 3};
    EXPECT_EQ(encoded(cosq), expected);

    const Received<CosqCfg> received(expected);
    EXPECT_EQ(received.record.field_16, 2u);
    EXPECT_EQ(received.record.field_17, 3u);
    EXPECT_EQ(encoded(received.record), expected);
}

TEST(queue_records, leave_out_lists_whose_flag_is_clear)
{
    uint32_t numbers[] = {1, 2, 3};
    CosqCfg cosqs[2] = {};
    BcmPortCfg port{};
    SET_LIST(port, field_4, numbers, 3);
    SET_LIST(port, cosqs, cosqs, 2);
    EXPECT_EQ(encoded(port), (Bytes{0x20, 1, 0x20, 2, 0x20, 3, 0x6A, 0, 0x6A, 0}));
    port.has_field_4 = 0;
    EXPECT_EQ(encoded(port), (Bytes{0x6A, 0, 0x6A, 0}));
    port.has_cosqs = 0;
    EXPECT_EQ(encoded(port), Bytes{});
}

TEST(queue_records, read_any_true_value_as_one)
{
    const Received<ShowTxqResp> received({0x10, 5});
    EXPECT_EQ(received.record.field_2, 1);
    EXPECT_EQ(encoded(received.record), (Bytes{0x10, 1}));
}

TEST(queue_records, carry_the_largest_counters)
{
    const struct {
        const char *type;
        uint32_t first;
        uint32_t last;
    } rows[] = {
        {"tarn_ethsw_mgmt_show_txq_stats_color", 2, 5},
        {"tarn_ethsw_mgmt_show_txq_stats_pg", 2, 5},
        {"tarn_ethsw_mgmt_show_txq_stats_port", 3, 7},
        {"tarn_ethsw_mgmt_show_txq_stats_tc", 3, 6},
    };
    for (const auto &row : rows) {
        const RecordType &type = find_type(row.type);
        for (uint32_t number = row.first; number <= row.last; number++) {
            ASSERT_EQ(type.members[number - 1].number, number);
            Content content = empty_content(type);
            content.values[number - 1] = number_value(UINT64_MAX);
            const FilledRecord filled(content);
            const Bytes expected{static_cast<uint8_t>(number << 3),
                                 0xFF,
                                 0xFF,
                                 0xFF,
                                 0xFF,
                                 0xFF,
                                 0xFF,
                                 0xFF,
                                 0xFF,
                                 0xFF,
                                 1};
            EXPECT_EQ(encode(type, filled.record()), expected) << row.type << " " << number;
            OwnedRecord decoded(type);
            EXPECT_EQ(decoded.decode(expected), WIRE_OK);
            EXPECT_EQ(difference(content, decoded.record()), "");
        }
    }
}

TEST(queue_records, refuse_a_list_in_two_runs)
{
    const Bytes profile{0x22, 0};
    const Bytes port{0x32, 0};
    EXPECT_EQ(decoding_result<ShowTxqResp>(test::join({profile, profile, port})), WIRE_OK);
    EXPECT_EQ(decoding_result<ShowTxqResp>(test::join({profile, port, profile})),
              WIRE_ERR_MALFORMED);
    EXPECT_EQ(decoding_result<BcmPortCfg>({0x20, 1, 0x28, 1, 0x20, 2}), WIRE_ERR_MALFORMED);
}

TEST(queue_records, carry_the_whole_tree_of_queues)
{
    const Bytes tree{
        0x1A, 2,  0x08, 3,                    // the global configuration
        0x22, 4,  0x2A, 2, 0x08, 4,           // a profile with a traffic class
        0x2A, 2,  0x08, 5,                    // the global enqueue settings
        0x32, 2,  0x08, 6,                    // a port
        0x3A, 4,  0x12, 2, 0x08, 7,           // statistics of an SDR with a pg
        0x42, 6,  0x12, 4, 0x12, 2,  0x08, 8, // of a port with a traffic class with a colour
        0x4A, 2,  0x08, 9,                    // the other global configuration
        0x52, 4,  0x6A, 2, 0x08, 10,          // a port with a cosq
        0x58, 11,                             // a number
    };
    const Received<ShowTxqResp> received(tree);
    ASSERT_EQ(received.result, WIRE_OK);
    const ShowTxqResp &queues = received.record;
    EXPECT_EQ(queues.cfg_global.field_1, 3u);
    EXPECT_EQ(queues.profiles[0].traffic_classes[0].field_1, 4u);
    EXPECT_EQ(queues.enq_global.field_1, 5u);
    EXPECT_EQ(queues.ports[0].field_1, 6u);
    EXPECT_EQ(queues.sdr_stats[0].pgs[0].field_1, 7u);
    EXPECT_EQ(queues.port_stats[0].traffic_classes[0].colors[0].field_1, 8u);
    EXPECT_EQ(queues.bcm_global.field_1, 9u);
    EXPECT_EQ(queues.bcm_ports[0].cosqs[0].field_1, 10u);
    EXPECT_EQ(queues.field_11, 11u);
    EXPECT_EQ(encoded(queues), tree);
}

} // namespace

} // namespace catalogue
