// SPDX-License-Identifier: MIT
// Transmit queues and SDR statistics: trees of counters.
#include "bench/workloads/fill.hpp"

namespace bench {

static constexpr uint32_t kPorts = 52;

static void fill(Maker &make, tarn_ethsw_mgmt_show_txq_cfg_profile &profile, uint32_t number)
{
    BENCH_SET(profile, field_1, number);
    BENCH_SET(profile, field_2, make.truth());
    BENCH_SET_EACH(profile, make.amount(), field_3, field_4);
    uint32_t traffic_class = 0;
    for (auto &settings : BENCH_LIST(profile, traffic_classes, 8)) {
        BENCH_SET(settings, field_1, traffic_class++);
        BENCH_SET_EACH(settings, make.code(), field_2, field_3);
        BENCH_SET_EACH(settings, make.amount(), field_4, field_5, field_6, field_7, field_8,
                       field_9, field_10, field_11, field_12);
    }
}

static void fill(Maker &make, tarn_ethsw_mgmt_show_txq_enq_global &settings)
{
    BENCH_SET_EACH(settings, make.code(), field_1, field_2, field_3, field_4, field_5);
    BENCH_SET_EACH(settings, make.amount(), field_6, field_7, field_8, field_9, field_10);
    for (uint32_t &element : BENCH_LIST(settings, field_11, 64))
        element = make.below(8);
    for (uint32_t &element : BENCH_LIST(settings, field_12, 64))
        element = make.below(8);
}

static void fill(Maker &make, tarn_ethsw_mgmt_show_txq_port &port, uint32_t number)
{
    BENCH_SET(port, field_1, number);
    BENCH_SET_EACH(port, make.amount(), field_2, field_3, field_4, field_5);
    for (uint32_t &element : BENCH_LIST(port, field_6, 8))
        element = make.amount();
    for (uint32_t &element : BENCH_LIST(port, field_7, 8))
        element = make.amount();
}

static void fill(Maker &make, tarn_ethsw_mgmt_show_txq_stats_port &port, uint32_t number)
{
    BENCH_SET(port, field_1, number);
    uint32_t traffic_class = 0;
    for (auto &statistics : BENCH_LIST(port, traffic_classes, 8)) {
        BENCH_SET(statistics, field_1, traffic_class++);
        uint32_t color = 0;
        for (auto &counters : BENCH_LIST(statistics, colors, 3)) {
            BENCH_SET(counters, field_1, color++);
            BENCH_SET_EACH(counters, make.counter(), field_2, field_3);
            BENCH_SET_EACH(counters, make.errors(), field_4, field_5);
        }
        BENCH_SET_EACH(statistics, make.counter(), field_3, field_4);
        BENCH_SET_EACH(statistics, make.errors(), field_5, field_6);
    }
    BENCH_SET_EACH(port, make.counter(), field_3, field_4, field_5);
    BENCH_SET_EACH(port, make.errors(), field_6, field_7);
}

static void fill(Maker &make, tarn_ethsw_mgmt_show_txq_bcm_port_cfg &port, uint32_t number)
{
    BENCH_SET_EACH(port, number, field_1, field_2);
    BENCH_SET(port, field_3, make.truth());
    for (uint32_t &element : BENCH_LIST(port, field_4, 8))
        element = make.amount();
    BENCH_SET_EACH(port, make.amount(), field_5, field_6, field_7, field_8);
    BENCH_SET_EACH(port, make.rate(), field_9, field_10, field_11, field_12);
    uint32_t queue = 0;
    for (auto &cosq : BENCH_LIST(port, cosqs, 8)) {
        BENCH_SET(cosq, field_1, queue++);
        BENCH_SET_EACH(cosq, make.code(), field_2, field_3, field_4, field_5);
        BENCH_SET_EACH(cosq, make.amount(), field_6, field_7, field_8, field_9, field_10, field_11,
                       field_12, field_13, field_14);
        BENCH_SET_EACH(cosq, make.rate(), field_15, field_16, field_17);
    }
}

void fill(Maker &make, tarn_ethsw_mgmt_show_txq_resp &answer)
{
    BENCH_SET(answer, field_1, 0);
    BENCH_SET(answer, field_2, make.truth());
    answer.has_cfg_global = 1;
    BENCH_SET_EACH(answer.cfg_global, make.amount(), field_1, field_2, field_3, field_4, field_5,
                   field_6, field_7, field_8, field_9, field_10, field_11, field_12);
    uint32_t number = 0;
    for (auto &profile : BENCH_LIST(answer, profiles, 8))
        fill(make, profile, number++);
    answer.has_enq_global = 1;
    fill(make, answer.enq_global);
    number = 0;
    for (auto &port : BENCH_LIST(answer, ports, kPorts))
        fill(make, port, number++);
    number = 0;
    for (auto &sdr : BENCH_LIST(answer, sdr_stats, 4)) {
        BENCH_SET(sdr, field_1, number++);
        for (auto &group : BENCH_LIST(sdr, pgs, 8)) {
            BENCH_SET(group, field_1, make.code());
            BENCH_SET_EACH(group, make.counter(), field_2, field_3, field_4, field_5);
        }
    }
    number = 0;
    for (auto &port : BENCH_LIST(answer, port_stats, kPorts))
        fill(make, port, number++);
    answer.has_bcm_global = 1;
    BENCH_SET_EACH(answer.bcm_global, make.amount(), field_1, field_2, field_3, field_4, field_5,
                   field_6, field_7, field_8, field_9, field_10);
    number = 0;
    for (auto &port : BENCH_LIST(answer, bcm_ports, kPorts))
        fill(make, port, number++);
    BENCH_SET(answer, field_11, make.word());
}

void fill(Maker &make, tarn_ethsw_mgmt_glbl_sdr_statistics_resp &answer)
{
    BENCH_SET(answer, field_1, 0);
    uint32_t number = 0;
    for (auto &info : BENCH_LIST(answer, statistics, 32)) {
        BENCH_SET(info, field_1, number++);
        uint32_t group = 0;
        for (auto &statistics : BENCH_LIST(info, pgs, 8)) {
            BENCH_SET(statistics, field_1, group++);
            BENCH_SET_EACH(statistics, make.amount(), field_2, field_3);
            for (auto &counters : BENCH_LIST(statistics, traffic_classes, 8)) {
                BENCH_SET_EACH(counters, make.counter(), field_1, field_2);
                BENCH_SET(counters, field_3, make.errors());
            }
        }
    }
}

} // namespace bench
