// SPDX-License-Identifier: MIT
// Ports and interfaces: a request of one number, many counters, a small list, and identities of
// the sibling library at several depths.
#include "bench/workloads/fill.hpp"

namespace bench {

void fill(Maker &make, tarn_ethsw_mgmt_port_reset &request)
{
    BENCH_SET(request, port, make.below(make.one_in(4) ? 4000 : 64));
}

void fill(Maker &make, tarn_ethsw_mgmt_port_get_statistics_resp &answer)
{
    BENCH_SET(answer, field_1, 0);
    BENCH_SET(answer, field_2, make.below(64));
    BENCH_SET_EACH(answer, make.code(), field_3, field_4);
    BENCH_SET(answer, field_5, make.rate());
    BENCH_SET_EACH(answer, make.counter(), field_6, field_7, field_8, field_9, field_10, field_11,
                   field_12, field_13, field_14, field_15, field_16, field_17, field_18);
    BENCH_SET_EACH(answer, make.errors(), field_19, field_20, field_21, field_22, field_23);
    BENCH_SET_EACH(answer, make.counter(), field_24, field_25, field_26, field_27, field_28,
                   field_29, field_30, field_31);
    BENCH_SET_EACH(answer, make.errors(), field_32, field_33, field_34, field_35, field_36,
                   field_37, field_38);
    // Not every port has it.
    if (!make.one_in(4))
        BENCH_SET(answer, field_39, make.amount());
}

void fill(Maker &make, tarn_ethsw_mgmt_interface_status_rsp &answer)
{
    BENCH_SET(answer, field_1, 0);
    uint32_t number = 0;
    for (auto &interface : BENCH_LIST(answer, interfaces, 8)) {
        BENCH_SET(interface, field_1, number++);
        BENCH_SET_EACH(interface, make.code(), field_2, field_10);
        BENCH_SET(interface, field_11, make.rate());
        BENCH_SET_EACH(interface, make.counter(), field_20, field_21, field_22, field_23, field_24,
                       field_25);
        BENCH_SET_EACH(interface, make.errors(), field_26, field_27, field_28, field_29);
    }
}

static void fill(Maker &make, tarn_calv_eid_st &identity)
{
    BENCH_SET_EACH(identity, make.code(), field_1, field_2);
    BENCH_SET_EACH(identity, make.amount(), field_3, field_4);
    BENCH_SET(identity, field_5, make.word());
    for (uint32_t &element : BENCH_LIST(identity, field_6, 2 + make.below(3)))
        element = make.amount();
}

static void fill(Maker &make, tarn_ethsw_mgmt_port_info &port, uint32_t number)
{
    port.has_identity = 1;
    fill(make, port.identity);
    BENCH_SET(port, field_2, number);
    BENCH_SET(port, field_3, make.text("TenGigE0/%u/0/%u", make.below(16), number));
    port.has_phy = 1;
    BENCH_SET(port.phy, field_1, number);
    port.phy.has_identity = 1;
    fill(make, port.phy.identity);
    BENCH_SET_EACH(port.phy, make.code(), field_3, field_4);
    BENCH_SET_EACH(port.phy, make.rate(), field_5, field_6);
    // Some ports have no module plugged in.
    if (!make.one_in(3)) {
        port.has_sfp = 1;
        BENCH_SET(port.sfp, field_1, make.code());
        port.sfp.has_identity = 1;
        fill(make, port.sfp.identity);
        BENCH_SET_EACH(port.sfp, make.truth(), field_3, field_4);
    }
    BENCH_SET_EACH(port, make.code(), field_6, field_7);
}

void fill(Maker &make, tarn_ethsw_mgmt_switch_info &answer)
{
    BENCH_SET(answer, field_1, 0);
    answer.has_identity = 1;
    fill(make, answer.identity);
    BENCH_SET(answer, field_3, make.code());
    BENCH_SET(answer, name, make.text("0/RP%u/ETHSW-%u", make.below(2), make.below(10'000)));
    BENCH_SET(answer, field_5, make.amount());
    BENCH_SET(answer, field_6, make.truth());
    BENCH_SET(answer, field_7, make.word());
    uint32_t number = 0;
    for (auto &port : BENCH_LIST(answer, ports, 48))
        fill(make, port, number++);
    BENCH_SET(answer, field_9, make.counter());
}

void fill(Maker &make, tarn_ethsw_mgmt_yield_switch_to_peer_response &answer)
{
    BENCH_SET(answer, field_1, make.code());
    answer.has_location = 1;
    BENCH_SET_EACH(answer.location, make.code(), field_1, field_2);
    BENCH_SET_EACH(answer.location, make.amount(), field_4, field_6, field_8);
    // All ones stand for none.
    BENCH_SET_EACH(answer.location, make.one_in(3) ? UINT32_MAX : make.code(), field_3, field_5,
                   field_7);
}

} // namespace bench
