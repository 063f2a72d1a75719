// SPDX-License-Identifier: MIT
#include "bench/workloads.hpp"

#include "bench/workloads/fill.hpp"

#include <algorithm>

namespace bench {

namespace {

template <typename Record>
Workload filled(Maker &make, uint32_t count, Workload workload)
{
    for (uint32_t i = 0; i < count; i++) {
        Record *record = make.record<Record>();
        fill(make, *record);
        workload.variants.push_back(record);
    }
    return workload;
}

// Row by row: the record type, how many variants, what it stands for, whether it is extra.
#define BENCH_WORKLOAD(type, count, content, extra)                                                \
    BENCH_OF_TYPE(type, filled<tarn_ethsw_mgmt_##type>(make, count, {#type, #type, content, extra}))

// The same records, with byte strings that stay where they are.
Workload in_place(const std::vector<Workload> &workloads, std::string_view name)
{
    Workload workload = *std::ranges::find(workloads, name, &Workload::name);
    workload.name = "add_pcl_flow_in_place";
    workload.content = "the same, byte strings referenced";
    workload.extra = true;
    workload.flags = WIRE_FLAG_BYTES_IN_PLACE;
    return workload;
}

std::vector<Workload> make_workloads(Maker &make)
{
    // clang-format off
    std::vector<Workload> workloads{
        BENCH_WORKLOAD(port_reset, 8192, "a record of one field", false),
        BENCH_WORKLOAD(port_get_statistics_resp, 4096, "33 counters and 6 numbers", false),
        BENCH_WORKLOAD(interface_status_rsp, 1024, "8 interfaces of 14 numbers", false),
        BENCH_WORKLOAD(switch_info, 128, "48 ports, with nested foreign records", false),
        BENCH_WORKLOAD(bridge_get_counters_response, 128, "4 lists of 64 records", false),
        BENCH_WORKLOAD(fdb_get_table_entry_resp, 8, "4096 table entries", false),
        BENCH_WORKLOAD(vlan_get_table_entry_resp, 16, "512 table entries of 24 numbers", false),
        BENCH_WORKLOAD(get_pcl_resp, 32, "128 rules of embedded records", false),
        BENCH_WORKLOAD(show_txq_resp, 16, "52 ports x 8 classes x 3 colours, and more", false),
        BENCH_WORKLOAD(show_emon_stats_resp, 24, "8 cards x 64 paths", false),
        BENCH_WORKLOAD(glbl_sdr_statistics_resp, 24, "32 x 8 x 8 triples of counters", false),
        BENCH_WORKLOAD(debug_get_health_state_rsp, 512, "a wide record with 32 history entries", false),
        BENCH_WORKLOAD(reg_info_rsp, 16, "16 x 16 x 16 register values", false),
        BENCH_WORKLOAD(fpd_cmp_to_file, 128, "4 lists of 64 paths", false),
        BENCH_WORKLOAD(add_pcl_flow, 16, "11 byte strings of 1500 bytes", false),
        BENCH_WORKLOAD(yield_switch_to_peer_response, 8192, "a small record with a foreign one", true),
    };
    // clang-format on
    workloads.push_back(in_place(workloads, "add_pcl_flow"));
    return workloads;
}

} // namespace

const std::vector<Workload> &workloads()
{
    static Maker make(20'260'101);
    static const std::vector<Workload> workloads = make_workloads(make);
    return workloads;
}

} // namespace bench
