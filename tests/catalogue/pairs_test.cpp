// SPDX-License-Identifier: MIT
// Which request is answered by which record. The library does not know: names are all that pairs
// them, so that a name that is misspelt or missing would go unnoticed elsewhere.
#include "tests/catalogue/catalogue.hpp"

#include <algorithm>
#include <gtest/gtest.h>
#include <set>
#include <string>
#include <vector>

namespace catalogue {

namespace {

struct Answered {
    const char *suffix;
    std::vector<std::string> requests;
};

// Answers that bear their request's name with a suffix.
const Answered kAnsweredByName[] = {
    {"_resp",
     {"ethsw_mgmt_port_clear_all_stats",
      "ethsw_mgmt_port_clear_stats",
      "ethsw_mgmt_port_enable",
      "ethsw_mgmt_port_get_statistics",
      "ethsw_mgmt_port_mask_link_interrupt",
      "ethsw_mgmt_port_reset",
      "ethsw_mgmt_port_set_admin_state",
      "ethsw_mgmt_port_set_link_state",
      "ethsw_mgmt_port_set_phys_state",
      "ethsw_mgmt_clear_bridge_counters",
      "ethsw_mgmt_fdb_flush_fwding_tables",
      "ethsw_mgmt_fdb_get_table_entry",
      "ethsw_mgmt_fdb_get_table_info",
      "ethsw_mgmt_port_get_vlan_info",
      "ethsw_mgmt_port_set_vlan",
      "ethsw_mgmt_show_trunk",
      "ethsw_mgmt_vlan_get_table_entry",
      "ethsw_mgmt_vlan_translation_get_table_entry",
      "ethsw_mgmt_add_pcl_flow",
      "ethsw_mgmt_clear_pcl_flow",
      "ethsw_mgmt_del_pcl_flow",
      "ethsw_mgmt_get_pcl",
      "ethsw_mgmt_set_policing",
      "ethsw_mgmt_set_security",
      "ethsw_mgmt_show_pcl_flow",
      "ethsw_mgmt_show_policing",
      "ethsw_mgmt_show_security",
      "ethsw_mgmt_clear_txq_stats",
      "ethsw_mgmt_show_txq",
      "ethsw_mgmt_phy_port_set_admin_state",
      "ethsw_mgmt_bcm_shell_cmd",
      "ethsw_mgmt_debug_get_capi_status",
      "ethsw_mgmt_debug_get_hw_counters",
      "ethsw_mgmt_debug_get_trace_level",
      "ethsw_mgmt_debug_set_trace_level",
      "ethsw_mgmt_port_clear_sdr_statistics",
      "ethsw_mgmt_sdr_cfg",
      "ethsw_mgmt_clear_emon_stats",
      "ethsw_mgmt_clear_mlap_statistics",
      "ethsw_mgmt_get_data_integrity_error_history",
      "ethsw_mgmt_get_data_integrity_error_info",
      "ethsw_mgmt_get_data_integrity_error_inject_status",
      "ethsw_mgmt_get_mlap_statistics",
      "ethsw_mgmt_set_data_integrity_error_inject",
      "ethsw_mgmt_show_emon_stats"}},
    {"_rsp",
     {"ethsw_mgmt_get_loopback", "ethsw_mgmt_set_loopback", "ethsw_mgmt_debug_get_phy_poll_mode",
      "ethsw_mgmt_debug_set_phy_poll_mode", "ethsw_mgmt_debug_sfp_read_address",
      "ethsw_mgmt_debug_sfp_write_address", "ethsw_mgmt_phy_force_reprogram",
      "ethsw_mgmt_serdes_get_manual_tuning_data", "ethsw_mgmt_serdes_get_tuning_data",
      "ethsw_mgmt_serdes_trigger_auto_tune", "ethsw_mgmt_set_serdes_power_state",
      "ethsw_mgmt_debug_get_health_poll_mode", "ethsw_mgmt_debug_get_health_state",
      "ethsw_mgmt_debug_set_health_event", "ethsw_mgmt_debug_set_health_poll_mode"}},
    {"_response",
     {"ethsw_mgmt_yield_switch_to_peer", "ethsw_mgmt_bridge_cfg_counters",
      "ethsw_mgmt_bridge_get_counters", "ethsw_mgmt_debug_vlan_test_mode",
      "ethsw_mgmt_debug_vlan_test_mode_restore", "ethsw_mgmt_fdb_get_counters",
      "ethsw_mgmt_debug_phy_peek", "ethsw_mgmt_debug_phy_poke", "ethsw_mgmt_debug_sfp_read",
      "ethsw_mgmt_debug_switch_peek", "ethsw_mgmt_debug_switch_poke",
      "ethsw_mgmt_debug_switch_reset", "ethsw_mgmt_inject_ser"}},
};

struct Pair {
    std::string request;
    std::string answer;
};

// Answers with another name.
const Pair kOtherPairs[] = {
    {"ethsw_mgmt_get_mgmt_interface_status", "ethsw_mgmt_interface_status_rsp"},
    {"ethsw_mgmt_get_port_state_info", "ethsw_mgmt_port_state_info"},
    {"ethsw_mgmt_get_switch_info", "ethsw_mgmt_switch_info"},
    {"ethsw_mgmt_port_get_vlan_rules", "ethsw_mgmt_port_vlan_rules_resp"},
    {"ethsw_mgmt_port_get_policer_statistics", "ethsw_mgmt_port_policer_statistics_resp"},
    {"ethsw_mgmt_fpd_cmp_to_file", "ethsw_mgmt_fpd_cmp_result"},
    {"ethsw_mgmt_fpd_get_info", "ethsw_mgmt_fpd_info"},
    {"ethsw_mgmt_fpd_program_from_file", "ethsw_mgmt_fpd_program_result"},
    {"ethsw_mgmt_fpd_program_from_golden", "ethsw_mgmt_fpd_program_result"},
    {"ethsw_mgmt_get_sfp_summary", "ethsw_mgmt_sfp_summary_response"},
    {"ethsw_mgmt_phy_eeprom_reload", "ethsw_mgmt_phy_operation_result"},
    {"ethsw_mgmt_phy_get_ucode_version_info", "ethsw_mgmt_phy_ucode_version_info_rsp"},
    {"ethsw_mgmt_phy_ucode_operation", "ethsw_mgmt_phy_operation_result"},
    {"ethsw_mgmt_get_reg_info", "ethsw_mgmt_reg_info_rsp"},
    {"ethsw_mgmt_get_sdr_info", "ethsw_mgmt_sdr_info"},
    {"ethsw_mgmt_glbl_get_sdr_statistics", "ethsw_mgmt_glbl_sdr_statistics_resp"},
    {"ethsw_mgmt_port_get_sdr_statistics", "ethsw_mgmt_port_sdr_statistics_resp"},
    {"ethsw_mgmt_event_stats_req", "ethsw_mgmt_event_stats_rsp"},
    {"ethsw_mgmt_fault_stats_req", "ethsw_mgmt_fault_stats_rsp"},
};

// Neither asked for nor part of another record: a result that fits any request, what is sent
// unasked, and a request that no record answers by name.
const char *const kAlone[] = {
    "ESD_MGMT_RESULT_resp",
    "ethsw_mgmt_interface_status_notif",
    "ethsw_mgmt_switch_available",
    "ethsw_mgmt_debug_trigger_switch_config_dump",
};

std::vector<Pair> all_pairs()
{
    std::vector<Pair> pairs(std::begin(kOtherPairs), std::end(kOtherPairs));
    for (const Answered &answered : kAnsweredByName)
        for (const std::string &request : answered.requests)
            pairs.push_back({request, request + answered.suffix});
    return pairs;
}

std::set<std::string> names_of_types()
{
    std::set<std::string> names;
    for (const RecordType &type : record_types())
        names.insert(std::string(type.name).substr(5)); // behind "tarn_"
    return names;
}

TEST(pairs, of_requests_and_answers_are_92_and_complete)
{
    const std::set<std::string> types = names_of_types();
    const std::vector<Pair> pairs = all_pairs();
    EXPECT_EQ(pairs.size(), 92u);
    for (const Pair &pair : pairs) {
        EXPECT_TRUE(types.contains(pair.request)) << pair.request;
        EXPECT_TRUE(types.contains(pair.answer)) << pair.answer;
    }
}

TEST(pairs, leave_no_type_that_is_neither_asked_nor_answered_nor_part_of_another)
{
    std::set<std::string> left = names_of_types();
    std::set<std::string> roles(std::begin(kAlone), std::end(kAlone));
    for (const Pair &pair : all_pairs()) {
        EXPECT_TRUE(roles.insert(pair.request).second) << pair.request << " asks twice";
        roles.insert(pair.answer);
    }
    for (const RecordType &type : record_types()) {
        for (const Member &member : type.members) {
            if (!member.child)
                continue;
            const std::string child = std::string(member.child).substr(5);
            EXPECT_FALSE(roles.contains(child)) << child << " is part of " << type.name;
            left.erase(child);
        }
    }
    for (const std::string &name : roles)
        left.erase(name);
    EXPECT_EQ(left, std::set<std::string>{});
}

} // namespace

} // namespace catalogue
