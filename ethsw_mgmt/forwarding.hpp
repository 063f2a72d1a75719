// SPDX-License-Identifier: MIT
// Generated from ethsw_mgmt/forwarding.proto by generator/regenerate. Do not edit: change the schema and run it.
// The field lists from which the codecs of these record types are made.

#pragma once

#include "ethsw_mgmt/forwarding.h"
#include "runtime/schema.hpp"

#include <stddef.h>

namespace [[gnu::visibility("hidden")]] tarn {

template <>
struct Schema<tarn_ethsw_mgmt_bridge_cfg_counters> {
    using Record = tarn_ethsw_mgmt_bridge_cfg_counters;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::uint32, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
        field<Kind::uint32, decltype(Record::field_4)>(4, offsetof(Record, field_4)),
        field<Kind::uint32, decltype(Record::field_5)>(5, offsetof(Record, field_5)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_bridge_cfg_counters_response> {
    using Record = tarn_ethsw_mgmt_bridge_cfg_counters_response;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_bridge_egress_counters> {
    using Record = tarn_ethsw_mgmt_bridge_egress_counters;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint64, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::uint64, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
        field<Kind::uint64, decltype(Record::field_4)>(4, offsetof(Record, field_4)),
        field<Kind::uint64, decltype(Record::field_5)>(5, offsetof(Record, field_5)),
        field<Kind::uint64, decltype(Record::field_6)>(6, offsetof(Record, field_6)),
        field<Kind::uint64, decltype(Record::field_7)>(7, offsetof(Record, field_7)),
        field<Kind::uint64, decltype(Record::field_8)>(8, offsetof(Record, field_8)),
        field<Kind::string, decltype(Record::field_9)>(9, offsetof(Record, field_9)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_bridge_fdb_counters> {
    using Record = tarn_ethsw_mgmt_bridge_fdb_counters;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::uint32, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
        field<Kind::uint32, decltype(Record::field_4)>(4, offsetof(Record, field_4)),
        field<Kind::uint32, decltype(Record::field_5)>(5, offsetof(Record, field_5)),
        field<Kind::uint32, decltype(Record::field_6)>(6, offsetof(Record, field_6)),
        field<Kind::uint32, decltype(Record::field_7)>(7, offsetof(Record, field_7)),
        field<Kind::uint32, decltype(Record::field_8)>(8, offsetof(Record, field_8)),
        field<Kind::uint32, decltype(Record::field_9)>(9, offsetof(Record, field_9)),
        field<Kind::uint32, decltype(Record::field_10)>(10, offsetof(Record, field_10)),
        field<Kind::uint32, decltype(Record::field_11)>(11, offsetof(Record, field_11)),
        field<Kind::uint32, decltype(Record::field_12)>(12, offsetof(Record, field_12)),
        field<Kind::uint32, decltype(Record::field_13)>(13, offsetof(Record, field_13)),
        field<Kind::uint32, decltype(Record::field_14)>(14, offsetof(Record, field_14)),
        field<Kind::uint32, decltype(Record::field_15)>(15, offsetof(Record, field_15)),
        field<Kind::uint32, decltype(Record::field_16)>(16, offsetof(Record, field_16)),
        field<Kind::uint32, decltype(Record::field_17)>(17, offsetof(Record, field_17)),
        field<Kind::boolean, decltype(Record::field_18)>(18, offsetof(Record, field_18)),
        field<Kind::uint32, decltype(Record::field_19)>(19, offsetof(Record, field_19)),
        field<Kind::boolean, decltype(Record::field_20)>(20, offsetof(Record, field_20)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_bridge_get_counters> {
    static constexpr NoFields fields{};
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_bridge_ingress_counters> {
    using Record = tarn_ethsw_mgmt_bridge_ingress_counters;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint64, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::uint64, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
        field<Kind::uint64, decltype(Record::field_4)>(4, offsetof(Record, field_4)),
        field<Kind::uint64, decltype(Record::field_5)>(5, offsetof(Record, field_5)),
        field<Kind::string, decltype(Record::field_6)>(6, offsetof(Record, field_6)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_bridge_sec_breach_counters> {
    using Record = tarn_ethsw_mgmt_bridge_sec_breach_counters;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::uint32, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
        field<Kind::uint32, decltype(Record::field_4)>(4, offsetof(Record, field_4)),
        field<Kind::uint32, decltype(Record::field_5)>(5, offsetof(Record, field_5)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_bridge_sec_breach_details> {
    using Record = tarn_ethsw_mgmt_bridge_sec_breach_details;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::bytes, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
        field<Kind::uint32, decltype(Record::field_4)>(4, offsetof(Record, field_4)),
        field<Kind::string, decltype(Record::field_5)>(5, offsetof(Record, field_5)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_bridge_get_counters_response> {
    using Record = tarn_ethsw_mgmt_bridge_get_counters_response;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::repeated_message, decltype(Record::ingress)>(2, offsetof(Record, ingress)),
        field<Kind::repeated_message, decltype(Record::egress)>(3, offsetof(Record, egress)),
        field<Kind::repeated_message, decltype(Record::sec_breach_counters)>(4, offsetof(Record, sec_breach_counters)),
        field<Kind::repeated_message, decltype(Record::sec_breach_details)>(5, offsetof(Record, sec_breach_details)),
    };
    using Children = RecordTypes<tarn_ethsw_mgmt_bridge_ingress_counters, tarn_ethsw_mgmt_bridge_egress_counters, tarn_ethsw_mgmt_bridge_sec_breach_counters, tarn_ethsw_mgmt_bridge_sec_breach_details>;
};

template <>
struct Schema<tarn_ethsw_mgmt_clear_bridge_counters> {
    static constexpr NoFields fields{};
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_clear_bridge_counters_resp> {
    using Record = tarn_ethsw_mgmt_clear_bridge_counters_resp;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_debug_vlan_test_mode> {
    using Record = tarn_ethsw_mgmt_debug_vlan_test_mode;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::uint32, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_debug_vlan_test_mode_response> {
    using Record = tarn_ethsw_mgmt_debug_vlan_test_mode_response;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_debug_vlan_test_mode_restore> {
    static constexpr NoFields fields{};
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_debug_vlan_test_mode_restore_response> {
    using Record = tarn_ethsw_mgmt_debug_vlan_test_mode_restore_response;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_fdb_flush_fwding_tables> {
    using Record = tarn_ethsw_mgmt_fdb_flush_fwding_tables;
    static constexpr Field fields[] = {
        field<Kind::boolean, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_fdb_flush_fwding_tables_resp> {
    using Record = tarn_ethsw_mgmt_fdb_flush_fwding_tables_resp;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_fdb_get_counters> {
    static constexpr NoFields fields{};
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_fdb_table_counters> {
    using Record = tarn_ethsw_mgmt_fdb_table_counters;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::uint32, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_fdb_get_counters_response> {
    using Record = tarn_ethsw_mgmt_fdb_get_counters_response;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::message, decltype(Record::fdb_counters)>(2, offsetof(Record, fdb_counters)),
        field<Kind::repeated_message, decltype(Record::table_counters)>(3, offsetof(Record, table_counters)),
    };
    using Children = RecordTypes<tarn_ethsw_mgmt_bridge_fdb_counters, tarn_ethsw_mgmt_fdb_table_counters>;
};

template <>
struct Schema<tarn_ethsw_mgmt_fdb_get_table_entry> {
    using Record = tarn_ethsw_mgmt_fdb_get_table_entry;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::uint32, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
        field<Kind::uint32, decltype(Record::field_4)>(4, offsetof(Record, field_4)),
        field<Kind::uint64, decltype(Record::field_5)>(5, offsetof(Record, field_5)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_fdb_table_entry> {
    using Record = tarn_ethsw_mgmt_fdb_table_entry;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::uint64, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
        field<Kind::uint32, decltype(Record::field_4)>(4, offsetof(Record, field_4)),
        field<Kind::uint32, decltype(Record::field_5)>(5, offsetof(Record, field_5)),
        field<Kind::uint32, decltype(Record::field_6)>(6, offsetof(Record, field_6)),
        field<Kind::uint32, decltype(Record::field_7)>(7, offsetof(Record, field_7)),
        field<Kind::boolean, decltype(Record::field_8)>(8, offsetof(Record, field_8)),
        field<Kind::uint32, decltype(Record::field_9)>(9, offsetof(Record, field_9)),
        field<Kind::uint32, decltype(Record::field_10)>(10, offsetof(Record, field_10)),
        field<Kind::uint32, decltype(Record::field_11)>(11, offsetof(Record, field_11)),
        field<Kind::uint32, decltype(Record::field_12)>(12, offsetof(Record, field_12)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_fdb_get_table_entry_resp> {
    using Record = tarn_ethsw_mgmt_fdb_get_table_entry_resp;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::repeated_message, decltype(Record::entries)>(2, offsetof(Record, entries)),
        field<Kind::uint32, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
        field<Kind::string, decltype(Record::field_4)>(4, offsetof(Record, field_4)),
    };
    using Children = RecordTypes<tarn_ethsw_mgmt_fdb_table_entry>;
};

template <>
struct Schema<tarn_ethsw_mgmt_fdb_get_table_info> {
    static constexpr NoFields fields{};
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_fdb_get_table_info_resp> {
    using Record = tarn_ethsw_mgmt_fdb_get_table_info_resp;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::uint32, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_port_get_vlan_info> {
    using Record = tarn_ethsw_mgmt_port_get_vlan_info;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::uint32, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_port_vlan_info> {
    using Record = tarn_ethsw_mgmt_port_vlan_info;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::boolean, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
        field<Kind::uint32, decltype(Record::field_4)>(4, offsetof(Record, field_4)),
        field<Kind::uint32, decltype(Record::field_5)>(5, offsetof(Record, field_5)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_port_get_vlan_info_resp> {
    using Record = tarn_ethsw_mgmt_port_get_vlan_info_resp;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::repeated_message, decltype(Record::vlans)>(2, offsetof(Record, vlans)),
    };
    using Children = RecordTypes<tarn_ethsw_mgmt_port_vlan_info>;
};

template <>
struct Schema<tarn_ethsw_mgmt_port_get_vlan_rules> {
    using Record = tarn_ethsw_mgmt_port_get_vlan_rules;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_port_set_vlan> {
    using Record = tarn_ethsw_mgmt_port_set_vlan;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::boolean, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
        field<Kind::boolean, decltype(Record::field_4)>(4, offsetof(Record, field_4)),
        field<Kind::boolean, decltype(Record::field_5)>(5, offsetof(Record, field_5)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_port_set_vlan_resp> {
    using Record = tarn_ethsw_mgmt_port_set_vlan_resp;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_port_vlan_rule_vlan_info> {
    using Record = tarn_ethsw_mgmt_port_vlan_rule_vlan_info;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::uint32, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
        field<Kind::uint32, decltype(Record::field_4)>(4, offsetof(Record, field_4)),
        field<Kind::uint32, decltype(Record::field_5)>(5, offsetof(Record, field_5)),
        field<Kind::uint32, decltype(Record::field_6)>(6, offsetof(Record, field_6)),
        field<Kind::uint32, decltype(Record::field_7)>(7, offsetof(Record, field_7)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_port_vlan_rule_info> {
    using Record = tarn_ethsw_mgmt_port_vlan_rule_info;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::repeated_message, decltype(Record::vlans)>(2, offsetof(Record, vlans)),
    };
    using Children = RecordTypes<tarn_ethsw_mgmt_port_vlan_rule_vlan_info>;
};

template <>
struct Schema<tarn_ethsw_mgmt_port_vlan_rules_resp> {
    using Record = tarn_ethsw_mgmt_port_vlan_rules_resp;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::repeated_message, decltype(Record::rules)>(2, offsetof(Record, rules)),
    };
    using Children = RecordTypes<tarn_ethsw_mgmt_port_vlan_rule_info>;
};

template <>
struct Schema<tarn_ethsw_mgmt_show_trunk> {
    static constexpr NoFields fields{};
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_trunk_member_entry> {
    using Record = tarn_ethsw_mgmt_trunk_member_entry;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_show_trunk_resp> {
    using Record = tarn_ethsw_mgmt_show_trunk_resp;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::repeated_message, decltype(Record::members)>(3, offsetof(Record, members)),
        field<Kind::string, decltype(Record::field_4)>(4, offsetof(Record, field_4)),
    };
    using Children = RecordTypes<tarn_ethsw_mgmt_trunk_member_entry>;
};

template <>
struct Schema<tarn_ethsw_mgmt_vlan_get_table_entry> {
    using Record = tarn_ethsw_mgmt_vlan_get_table_entry;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::uint32, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
        field<Kind::uint32, decltype(Record::field_4)>(4, offsetof(Record, field_4)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_vlan_table_entry> {
    using Record = tarn_ethsw_mgmt_vlan_table_entry;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::repeated_uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::string, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_vlan_get_table_entry_resp> {
    using Record = tarn_ethsw_mgmt_vlan_get_table_entry_resp;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::repeated_message, decltype(Record::entries)>(2, offsetof(Record, entries)),
    };
    using Children = RecordTypes<tarn_ethsw_mgmt_vlan_table_entry>;
};

template <>
struct Schema<tarn_ethsw_mgmt_vlan_translation_get_table_entry> {
    using Record = tarn_ethsw_mgmt_vlan_translation_get_table_entry;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::uint32, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_vlan_translation_table_entry> {
    using Record = tarn_ethsw_mgmt_vlan_translation_table_entry;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::uint32, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_vlan_translation_get_table_entry_resp> {
    using Record = tarn_ethsw_mgmt_vlan_translation_get_table_entry_resp;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::repeated_message, decltype(Record::entries)>(2, offsetof(Record, entries)),
    };
    using Children = RecordTypes<tarn_ethsw_mgmt_vlan_translation_table_entry>;
};

} // namespace tarn
