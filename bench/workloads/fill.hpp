// SPDX-License-Identifier: MIT
// Plausible content for each record type that is measured.

#pragma once

#include "bench/workloads/maker.hpp"
#include "ethsw_mgmt/ethsw_mgmt.h"

namespace bench {

void fill(Maker &make, tarn_ethsw_mgmt_port_reset &request);
void fill(Maker &make, tarn_ethsw_mgmt_port_get_statistics_resp &answer);
void fill(Maker &make, tarn_ethsw_mgmt_interface_status_rsp &answer);
void fill(Maker &make, tarn_ethsw_mgmt_switch_info &answer);
void fill(Maker &make, tarn_ethsw_mgmt_bridge_get_counters_response &answer);
void fill(Maker &make, tarn_ethsw_mgmt_fdb_get_table_entry_resp &answer);
void fill(Maker &make, tarn_ethsw_mgmt_vlan_get_table_entry_resp &answer);
void fill(Maker &make, tarn_ethsw_mgmt_get_pcl_resp &answer);
void fill(Maker &make, tarn_ethsw_mgmt_add_pcl_flow &request);
void fill(Maker &make, tarn_ethsw_mgmt_show_txq_resp &answer);
void fill(Maker &make, tarn_ethsw_mgmt_show_emon_stats_resp &answer);
void fill(Maker &make, tarn_ethsw_mgmt_glbl_sdr_statistics_resp &answer);
void fill(Maker &make, tarn_ethsw_mgmt_debug_get_health_state_rsp &answer);
void fill(Maker &make, tarn_ethsw_mgmt_reg_info_rsp &answer);
void fill(Maker &make, tarn_ethsw_mgmt_fpd_cmp_to_file &request);
void fill(Maker &make, tarn_ethsw_mgmt_yield_switch_to_peer_response &answer);

} // namespace bench
