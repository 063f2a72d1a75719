// SPDX-License-Identifier: MIT
// Which record type is part of which: written down here apart from the schema, since a wrong type
// with the same members would encode to the same bytes.
#include "tests/catalogue/catalogue.hpp"

#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <tuple>
#include <vector>

namespace catalogue {

namespace {

struct Part {
    std::string of;
    uint32_t number;
    std::string type;

    bool operator<(const Part &other) const
    {
        return std::tie(of, number, type) < std::tie(other.of, other.number, other.type);
    }
    bool operator==(const Part &other) const = default;
};

void PrintTo(const Part &part, std::ostream *out)
{
    *out << "field " << part.number << " of " << part.of << " is " << part.type;
}

// Names without "tarn_".
const std::vector<Part> kEmbedded = {
    {"ethsw_mgmt_port_health_history_entry", 1, "ethsw_mgmt_timespec"},
    {"ethsw_mgmt_port_health_history_entry", 8, "ethsw_mgmt_port_link_fault_status"},
    {"ethsw_mgmt_phy_info", 2, "calv_eid_st"},
    {"ethsw_mgmt_sfp_info", 2, "calv_eid_st"},
    {"ethsw_mgmt_port_info", 1, "calv_eid_st"},
    {"ethsw_mgmt_port_info", 4, "ethsw_mgmt_phy_info"},
    {"ethsw_mgmt_port_info", 5, "ethsw_mgmt_sfp_info"},
    {"ethsw_mgmt_switch_info", 2, "calv_eid_st"},
    {"ethsw_mgmt_yield_switch_to_peer_response", 2, "esd_location_info"},
    {"ethsw_mgmt_fdb_get_counters_response", 2, "ethsw_mgmt_bridge_fdb_counters"},
    {"ethsw_mgmt_pcl_rule_info", 1, "ethsw_mgmt_pcl_rule_match"},
    {"ethsw_mgmt_pcl_rule_info", 2, "ethsw_mgmt_pcl_rule_match"},
    {"ethsw_mgmt_pcl_rule_info", 3, "ethsw_mgmt_pcl_rule_action"},
    {"ethsw_mgmt_pcl_rule_info", 4, "ethsw_mgmt_policing"},
    {"ethsw_mgmt_pcl_rule_info", 5, "ethsw_mgmt_policing"},
    {"ethsw_mgmt_pcl_rule_info", 6, "ethsw_mgmt_policing"},
    {"ethsw_mgmt_show_security_resp", 3, "ethsw_mgmt_show_security_au"},
    {"ethsw_mgmt_show_txq_resp", 3, "ethsw_mgmt_show_txq_cfg_global"},
    {"ethsw_mgmt_show_txq_resp", 5, "ethsw_mgmt_show_txq_enq_global"},
    {"ethsw_mgmt_show_txq_resp", 9, "ethsw_mgmt_show_txq_bcm_gbl_cfg"},
    {"ethsw_mgmt_debug_get_health_state_rsp", 7, "ethsw_mgmt_timespec"},
    {"ethsw_mgmt_debug_get_health_state_rsp", 9, "ethsw_mgmt_timespec"},
    {"ethsw_mgmt_debug_get_health_state_rsp", 11, "ethsw_mgmt_timespec"},
    {"ethsw_mgmt_debug_get_health_state_rsp", 13, "ethsw_mgmt_timespec"},
    {"ethsw_mgmt_debug_get_health_state_rsp", 19, "ethsw_mgmt_timespec"},
    {"ethsw_mgmt_debug_get_health_state_rsp", 29, "ethsw_mgmt_timespec"},
    {"ethsw_mgmt_debug_get_health_state_rsp", 42, "ethsw_mgmt_port_link_fault_status"},
    {"data_integrity_error_history_entry", 16, "ethsw_mgmt_timespec"},
    {"data_integrity_error_info_entry", 13, "ethsw_mgmt_timespec"},
    {"ethsw_mgmt_event_stats_rsp", 4, "ethsw_mgmt_timespec"},
};

const std::vector<Part> kListed = {
    {"ethsw_mgmt_interface_status_rsp", 2, "ethsw_mgmt_interface_status"},
    {"ethsw_mgmt_port_state_info", 2, "ethsw_mgmt_port_status"},
    {"ethsw_mgmt_switch_info", 8, "ethsw_mgmt_port_info"},
    {"ethsw_mgmt_bridge_get_counters_response", 2, "ethsw_mgmt_bridge_ingress_counters"},
    {"ethsw_mgmt_bridge_get_counters_response", 3, "ethsw_mgmt_bridge_egress_counters"},
    {"ethsw_mgmt_bridge_get_counters_response", 4, "ethsw_mgmt_bridge_sec_breach_counters"},
    {"ethsw_mgmt_bridge_get_counters_response", 5, "ethsw_mgmt_bridge_sec_breach_details"},
    {"ethsw_mgmt_fdb_get_counters_response", 3, "ethsw_mgmt_fdb_table_counters"},
    {"ethsw_mgmt_fdb_get_table_entry_resp", 2, "ethsw_mgmt_fdb_table_entry"},
    {"ethsw_mgmt_port_get_vlan_info_resp", 2, "ethsw_mgmt_port_vlan_info"},
    {"ethsw_mgmt_port_vlan_rule_info", 2, "ethsw_mgmt_port_vlan_rule_vlan_info"},
    {"ethsw_mgmt_port_vlan_rules_resp", 2, "ethsw_mgmt_port_vlan_rule_info"},
    {"ethsw_mgmt_show_trunk_resp", 3, "ethsw_mgmt_trunk_member_entry"},
    {"ethsw_mgmt_vlan_get_table_entry_resp", 2, "ethsw_mgmt_vlan_table_entry"},
    {"ethsw_mgmt_vlan_translation_get_table_entry_resp", 2,
     "ethsw_mgmt_vlan_translation_table_entry"},
    {"ethsw_mgmt_get_pcl_resp", 3, "ethsw_mgmt_pcl_cfg_info"},
    {"ethsw_mgmt_get_pcl_resp", 4, "ethsw_mgmt_pcl_rule_info"},
    {"ethsw_mgmt_get_pcl_resp", 5, "ethsw_mgmt_pcl_rule_info"},
    {"ethsw_mgmt_policer_dynamic_counter_stats", 2, "ethsw_mgmt_dynamic_counter_per_up_data"},
    {"ethsw_mgmt_port_policer_statistics_info", 9, "ethsw_mgmt_policer_dynamic_counter_stats"},
    {"ethsw_mgmt_port_policer_statistics_resp", 2, "ethsw_mgmt_port_policer_statistics_info"},
    {"ethsw_mgmt_set_policing", 7, "ethsw_mgmt_set_policing_sdr"},
    {"ethsw_mgmt_set_policing", 8, "ethsw_mgmt_set_policing_dynamic_counters"},
    {"ethsw_mgmt_show_pcl_flow_info", 3, "ethsw_mgmt_show_pcl_flow_port_info"},
    {"ethsw_mgmt_show_pcl_flow_resp", 2, "ethsw_mgmt_show_pcl_flow_info"},
    {"ethsw_mgmt_show_policing_resp", 12, "ethsw_mgmt_show_policing_sdr"},
    {"ethsw_mgmt_show_policing_resp", 13, "ethsw_mgmt_show_policing_port"},
    {"ethsw_mgmt_show_policing_resp", 14, "ethsw_mgmt_show_policing_port"},
    {"ethsw_mgmt_show_security_resp", 4, "ethsw_mgmt_show_security_cpu"},
    {"ethsw_mgmt_show_txq_bcm_port_cfg", 13, "ethsw_mgmt_show_txq_bcm_per_cosq_cfg"},
    {"ethsw_mgmt_show_txq_cfg_profile", 5, "ethsw_mgmt_show_txq_profile_per_tc"},
    {"ethsw_mgmt_show_txq_resp", 4, "ethsw_mgmt_show_txq_cfg_profile"},
    {"ethsw_mgmt_show_txq_resp", 6, "ethsw_mgmt_show_txq_port"},
    {"ethsw_mgmt_show_txq_resp", 7, "ethsw_mgmt_show_txq_stats_sdr"},
    {"ethsw_mgmt_show_txq_resp", 8, "ethsw_mgmt_show_txq_stats_port"},
    {"ethsw_mgmt_show_txq_resp", 10, "ethsw_mgmt_show_txq_bcm_port_cfg"},
    {"ethsw_mgmt_show_txq_stats_port", 2, "ethsw_mgmt_show_txq_stats_tc"},
    {"ethsw_mgmt_show_txq_stats_sdr", 2, "ethsw_mgmt_show_txq_stats_pg"},
    {"ethsw_mgmt_show_txq_stats_tc", 2, "ethsw_mgmt_show_txq_stats_color"},
    {"ethsw_mgmt_fpd_info", 3, "ethsw_mgmt_fpd_core_info"},
    {"ethsw_mgmt_fpd_info", 4, "ethsw_mgmt_fpd_core_info"},
    {"ethsw_mgmt_fpd_info", 5, "ethsw_mgmt_fpd_core_info"},
    {"ethsw_mgmt_fpd_info", 6, "ethsw_mgmt_fpd_core_info"},
    {"ethsw_mgmt_fpd_info", 7, "ethsw_mgmt_fpd_core_info"},
    {"ethsw_mgmt_fpd_info", 8, "ethsw_mgmt_fpd_core_info"},
    {"ethsw_mgmt_fpd_info", 9, "ethsw_mgmt_fpd_core_info"},
    {"ethsw_mgmt_fpd_info", 10, "ethsw_mgmt_fpd_core_info"},
    {"ethsw_mgmt_phy_ucode_version_info_rsp", 2, "ethsw_mgmt_phy_ucode_version_info"},
    {"ethsw_mgmt_serdes_get_manual_tuning_data_rsp", 2,
     "ethsw_mgmt_serdes_lane_manual_tuning_info"},
    {"ethsw_mgmt_serdes_get_tuning_data_rsp", 3, "ethsw_mgmt_serdes_lane_tuning_info"},
    {"ethsw_mgmt_sfp_summary_response", 2, "ethsw_mgmt_sfp_summary_entry"},
    {"ethsw_mgmt_debug_get_health_state_rsp", 43, "ethsw_mgmt_port_health_history_entry"},
    {"ethsw_mgmt_debug_get_hw_counters_resp", 14, "ethsw_mgmt_core_stats"},
    {"ethsw_mgmt_reg_column_data", 3, "ethsw_mgmt_reg_value_data"},
    {"ethsw_mgmt_reg_info_rsp", 2, "ethsw_mgmt_reg_section_data"},
    {"ethsw_mgmt_reg_section_data", 2, "ethsw_mgmt_reg_column_data"},
    {"ethsw_mgmt_glbl_sdr_statistics_info", 2, "ethsw_mgmt_sdr_statistics_pg_info"},
    {"ethsw_mgmt_glbl_sdr_statistics_resp", 2, "ethsw_mgmt_glbl_sdr_statistics_info"},
    {"ethsw_mgmt_port_sdr_statistics_info", 2, "ethsw_mgmt_sdr_statistics_sdr_info"},
    {"ethsw_mgmt_port_sdr_statistics_resp", 2, "ethsw_mgmt_port_sdr_statistics_info"},
    {"ethsw_mgmt_sdr_cfg", 1, "ethsw_mgmt_sdr_data"},
    {"ethsw_mgmt_sdr_cfg_resp", 1, "ethsw_mgmt_sdr_cfg_result"},
    {"ethsw_mgmt_sdr_data", 7, "ethsw_mgmt_sdr_vlan"},
    {"ethsw_mgmt_sdr_info", 2, "ethsw_mgmt_sdr_data"},
    {"ethsw_mgmt_sdr_statistics_pg_info", 4, "ethsw_mgmt_sdr_statistics_tc_data"},
    {"ethsw_mgmt_sdr_statistics_sdr_info", 4, "ethsw_mgmt_sdr_statistics_tc_data"},
    {"ethsw_mgmt_emon_card_entry", 2, "ethsw_mgmt_emon_path_entry"},
    {"ethsw_mgmt_event_stats_rsp", 2, "event_stats_info"},
    {"ethsw_mgmt_fault_stats_rsp", 2, "faults_stats_info"},
    {"ethsw_mgmt_get_data_integrity_error_history_resp", 2, "data_integrity_error_history_entry"},
    {"ethsw_mgmt_get_data_integrity_error_info_resp", 2, "data_integrity_error_info_entry"},
    {"ethsw_mgmt_show_emon_stats_resp", 2, "ethsw_mgmt_emon_card_entry"},
};

std::vector<Part> parts_of_kind(Kind kind)
{
    std::vector<Part> parts;
    for (const RecordType &type : record_types())
        for (const Member &member : type.members)
            if (member.kind == kind)
                parts.push_back({std::string(type.name).substr(5), member.number,
                                 std::string(member.child).substr(5)});
    std::sort(parts.begin(), parts.end());
    return parts;
}

std::vector<Part> sorted(std::vector<Part> parts)
{
    std::sort(parts.begin(), parts.end());
    return parts;
}

TEST(nesting, embeds_these_30_records_by_value)
{
    EXPECT_EQ(kEmbedded.size(), 30u);
    EXPECT_EQ(parts_of_kind(Kind::message), sorted(kEmbedded));
}

TEST(nesting, lists_records_in_these_72_members)
{
    EXPECT_EQ(kListed.size(), 72u);
    EXPECT_EQ(parts_of_kind(Kind::repeated_message), sorted(kListed));
}

} // namespace

} // namespace catalogue
