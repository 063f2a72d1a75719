// SPDX-License-Identifier: MIT
// The record types that are measured. Peers are generated for these and for what they embed; the
// generators read this list, too.

#pragma once

// clang-format off
#define BENCH_FOR_EACH_TYPE(BENCH_TYPE) \
    BENCH_TYPE(port_reset) \
    BENCH_TYPE(port_get_statistics_resp) \
    BENCH_TYPE(interface_status_rsp) \
    BENCH_TYPE(switch_info) \
    BENCH_TYPE(bridge_get_counters_response) \
    BENCH_TYPE(fdb_get_table_entry_resp) \
    BENCH_TYPE(vlan_get_table_entry_resp) \
    BENCH_TYPE(get_pcl_resp) \
    BENCH_TYPE(show_txq_resp) \
    BENCH_TYPE(show_emon_stats_resp) \
    BENCH_TYPE(glbl_sdr_statistics_resp) \
    BENCH_TYPE(debug_get_health_state_rsp) \
    BENCH_TYPE(reg_info_rsp) \
    BENCH_TYPE(fpd_cmp_to_file) \
    BENCH_TYPE(add_pcl_flow) \
    BENCH_TYPE(yield_switch_to_peer_response)
// clang-format on
