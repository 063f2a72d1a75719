// SPDX-License-Identifier: MIT
// Forwarding: counters of the bridge, and its long tables.
#include "bench/workloads/fill.hpp"

namespace bench {

static const char *bridge_name(Maker &make)
{
    return make.text("bridge-%u.vlan%u", make.below(8), make.below(4094));
}

void fill(Maker &make, tarn_ethsw_mgmt_bridge_get_counters_response &answer)
{
    constexpr uint32_t kCount = 64;
    BENCH_SET(answer, field_1, 0);
    uint32_t number = 0;
    for (auto &ingress : BENCH_LIST(answer, ingress, kCount)) {
        BENCH_SET(ingress, field_1, number++);
        BENCH_SET_EACH(ingress, make.counter(), field_2, field_3);
        BENCH_SET_EACH(ingress, make.errors(), field_4, field_5);
        BENCH_SET(ingress, field_6, bridge_name(make));
    }
    number = 0;
    for (auto &egress : BENCH_LIST(answer, egress, kCount)) {
        BENCH_SET(egress, field_1, number++);
        BENCH_SET_EACH(egress, make.counter(), field_2, field_3, field_4, field_5);
        BENCH_SET_EACH(egress, make.errors(), field_6, field_7, field_8);
        BENCH_SET(egress, field_9, bridge_name(make));
    }
    number = 0;
    for (auto &breach : BENCH_LIST(answer, sec_breach_counters, kCount)) {
        BENCH_SET(breach, field_1, number++);
        BENCH_SET_EACH(breach, make.amount(), field_2, field_3, field_4, field_5);
    }
    for (auto &details : BENCH_LIST(answer, sec_breach_details, kCount)) {
        BENCH_SET(details, field_1, make.below(64));
        BENCH_SET(details, field_2, make.below(4094));
        BENCH_BYTES(details, field_3, 6); // an address
        BENCH_SET(details, field_4, make.code());
        BENCH_SET(details, field_5, bridge_name(make));
    }
}

void fill(Maker &make, tarn_ethsw_mgmt_fdb_get_table_entry_resp &answer)
{
    BENCH_SET(answer, field_1, 0);
    for (auto &entry : BENCH_LIST(answer, entries, 4096)) {
        BENCH_SET_EACH(entry, make.below(4094), field_1, field_2);
        BENCH_SET(entry, field_3, make.address());
        BENCH_SET_EACH(entry, make.code(), field_4, field_5, field_6);
        BENCH_SET(entry, field_7, make.below(64));
        BENCH_SET(entry, field_8, make.truth());
        BENCH_SET(entry, field_9, make.amount());
        // What only entries learnt from a tunnel have.
        if (make.one_in(4))
            BENCH_SET_EACH(entry, make.word(), field_10, field_11);
        BENCH_SET(entry, field_12, make.code());
    }
    BENCH_SET(answer, field_3, 4096);
    BENCH_SET(answer, field_4, make.text("FDB of switch %u", make.below(16)));
}

void fill(Maker &make, tarn_ethsw_mgmt_vlan_get_table_entry_resp &answer)
{
    BENCH_SET(answer, field_1, 0);
    uint32_t number = 1;
    for (auto &vlan : BENCH_LIST(answer, entries, 512)) {
        BENCH_SET(vlan, field_1, number);
        uint32_t port = make.below(8);
        // Members in rising order; the highest numbers are those of aggregated ports.
        for (uint32_t &member : BENCH_LIST(vlan, field_2, 24))
            member = port += 1 + make.below(10);
        BENCH_SET(vlan, field_3,
                  make.text("VLAN%04u-%s", number, make.one_in(2) ? "mgmt" : "data"));
        number += 1 + make.below(4);
    }
}

} // namespace bench
