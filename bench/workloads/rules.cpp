// SPDX-License-Identifier: MIT
// Classification: rules of many small embedded records, and a flow that is mostly byte strings.
#include "bench/workloads/fill.hpp"

namespace bench {

static void fill(Maker &make, tarn_ethsw_mgmt_pcl_cfg_info &config)
{
    BENCH_SET_EACH(config, make.code(), field_1, field_2, field_3, field_5, field_7);
    BENCH_SET_EACH(config, make.truth(), field_4, field_6, field_8, field_12);
    BENCH_SET_EACH(config, make.amount(), field_9, field_10, field_11);
}

static void fill(Maker &make, tarn_ethsw_mgmt_pcl_rule_match &match)
{
    BENCH_SET_EACH(match, make.code(), field_1, field_2, field_3, field_4, field_5);
    BENCH_SET_EACH(match, make.below(0x1'0000), field_6, field_7);
    BENCH_SET_EACH(match, make.address(), field_8, field_9);
    BENCH_SET_EACH(match, make.word(), field_10, field_11);
    BENCH_SET_EACH(match, make.below(0x1'0000), field_12, field_13);
    // A rule looks at some parts of a packet only.
    if (make.one_in(2))
        BENCH_SET_EACH(match, make.counter(), field_14, field_15, field_16);
}

static void fill(Maker &make, tarn_ethsw_mgmt_pcl_rule_action &action)
{
    BENCH_SET_EACH(action, make.code(), field_1, field_6, field_7, field_8, field_10, field_11);
    BENCH_SET_EACH(action, make.truth(), field_2, field_3, field_4, field_5, field_9, field_14,
                   field_18);
    BENCH_SET_EACH(action, make.amount(), field_12, field_13, field_15, field_16, field_17,
                   field_19);
}

static void fill(Maker &make, tarn_ethsw_mgmt_policing &policing)
{
    BENCH_SET_EACH(policing, make.code(), field_1, field_2, field_3, field_4, field_5, field_6);
    BENCH_SET_EACH(policing, make.rate(), field_7, field_8, field_9, field_10);
    BENCH_SET_EACH(policing, make.amount(), field_11, field_12, field_13, field_14, field_15);
    BENCH_SET_EACH(policing, make.truth(), field_16, field_17);
    BENCH_SET_EACH(policing, make.code(), field_18, field_19);
}

static void fill(Maker &make, tarn_ethsw_mgmt_pcl_rule_info &rule)
{
    rule.has_match_1 = 1;
    fill(make, rule.match_1);
    rule.has_match_2 = 1;
    fill(make, rule.match_2);
    rule.has_action = 1;
    fill(make, rule.action);
    rule.has_policing_4 = 1;
    fill(make, rule.policing_4);
    // The second and third stage are seldom in use.
    if (make.one_in(3)) {
        rule.has_policing_5 = 1;
        fill(make, rule.policing_5);
    }
    if (make.one_in(5)) {
        rule.has_policing_6 = 1;
        fill(make, rule.policing_6);
    }
}

void fill(Maker &make, tarn_ethsw_mgmt_get_pcl_resp &answer)
{
    BENCH_SET(answer, field_1, 0);
    BENCH_SET(answer, field_2, make.code());
    for (auto &config : BENCH_LIST(answer, configs, 16))
        fill(make, config);
    for (auto &rule : BENCH_LIST(answer, rules_4, 64))
        fill(make, rule);
    for (auto &rule : BENCH_LIST(answer, rules_5, 64))
        fill(make, rule);
}

void fill(Maker &make, tarn_ethsw_mgmt_add_pcl_flow &request)
{
    constexpr uint32_t kPacket = 1500;
    BENCH_SET_EACH(request, make.code(), field_1, field_2);
    BENCH_BYTES(request, field_3, kPacket);
    BENCH_BYTES(request, field_4, kPacket);
    BENCH_BYTES(request, field_5, kPacket);
    BENCH_BYTES(request, field_6, kPacket);
    BENCH_SET_EACH(request, make.amount(), field_7, field_8);
    BENCH_BYTES(request, field_9, kPacket);
    BENCH_BYTES(request, field_10, kPacket);
    BENCH_BYTES(request, field_11, kPacket);
    BENCH_BYTES(request, field_12, kPacket);
    BENCH_SET_EACH(request, make.word(), field_13, field_14, field_15);
    BENCH_BYTES(request, field_16, kPacket);
    BENCH_BYTES(request, field_17, kPacket);
    BENCH_BYTES(request, field_18, kPacket);
    BENCH_SET_EACH(request, make.amount(), field_19, field_20);
}

} // namespace bench
