// SPDX-License-Identifier: MIT
// Generated from ethsw_mgmt/classification.proto by generator/regenerate. Do not edit: change the schema and run it.
// The field lists from which the codecs of these record types are made.

#pragma once

#include "ethsw_mgmt/classification.h"
#include "runtime/schema.hpp"

#include <stddef.h>

namespace [[gnu::visibility("hidden")]] tarn {

template <>
struct Schema<tarn_ethsw_mgmt_add_pcl_flow> {
    using Record = tarn_ethsw_mgmt_add_pcl_flow;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::bytes, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
        field<Kind::bytes, decltype(Record::field_4)>(4, offsetof(Record, field_4)),
        field<Kind::bytes, decltype(Record::field_5)>(5, offsetof(Record, field_5)),
        field<Kind::bytes, decltype(Record::field_6)>(6, offsetof(Record, field_6)),
        field<Kind::uint32, decltype(Record::field_7)>(7, offsetof(Record, field_7)),
        field<Kind::uint32, decltype(Record::field_8)>(8, offsetof(Record, field_8)),
        field<Kind::bytes, decltype(Record::field_9)>(9, offsetof(Record, field_9)),
        field<Kind::bytes, decltype(Record::field_10)>(10, offsetof(Record, field_10)),
        field<Kind::bytes, decltype(Record::field_11)>(11, offsetof(Record, field_11)),
        field<Kind::bytes, decltype(Record::field_12)>(12, offsetof(Record, field_12)),
        field<Kind::uint32, decltype(Record::field_13)>(13, offsetof(Record, field_13)),
        field<Kind::uint32, decltype(Record::field_14)>(14, offsetof(Record, field_14)),
        field<Kind::uint32, decltype(Record::field_15)>(15, offsetof(Record, field_15)),
        field<Kind::bytes, decltype(Record::field_16)>(16, offsetof(Record, field_16)),
        field<Kind::bytes, decltype(Record::field_17)>(17, offsetof(Record, field_17)),
        field<Kind::bytes, decltype(Record::field_18)>(18, offsetof(Record, field_18)),
        field<Kind::uint32, decltype(Record::field_19)>(19, offsetof(Record, field_19)),
        field<Kind::uint32, decltype(Record::field_20)>(20, offsetof(Record, field_20)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_add_pcl_flow_resp> {
    using Record = tarn_ethsw_mgmt_add_pcl_flow_resp;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_clear_pcl_flow> {
    using Record = tarn_ethsw_mgmt_clear_pcl_flow;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_clear_pcl_flow_resp> {
    using Record = tarn_ethsw_mgmt_clear_pcl_flow_resp;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_del_pcl_flow> {
    using Record = tarn_ethsw_mgmt_del_pcl_flow;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_del_pcl_flow_resp> {
    using Record = tarn_ethsw_mgmt_del_pcl_flow_resp;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_dynamic_counter_per_up_data> {
    using Record = tarn_ethsw_mgmt_dynamic_counter_per_up_data;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::uint64, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_get_pcl> {
    using Record = tarn_ethsw_mgmt_get_pcl;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::uint32, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
        field<Kind::boolean, decltype(Record::field_4)>(4, offsetof(Record, field_4)),
        field<Kind::boolean, decltype(Record::field_5)>(5, offsetof(Record, field_5)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_pcl_cfg_info> {
    using Record = tarn_ethsw_mgmt_pcl_cfg_info;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::uint32, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
        field<Kind::boolean, decltype(Record::field_4)>(4, offsetof(Record, field_4)),
        field<Kind::uint32, decltype(Record::field_5)>(5, offsetof(Record, field_5)),
        field<Kind::boolean, decltype(Record::field_6)>(6, offsetof(Record, field_6)),
        field<Kind::uint32, decltype(Record::field_7)>(7, offsetof(Record, field_7)),
        field<Kind::boolean, decltype(Record::field_8)>(8, offsetof(Record, field_8)),
        field<Kind::uint32, decltype(Record::field_9)>(9, offsetof(Record, field_9)),
        field<Kind::uint32, decltype(Record::field_10)>(10, offsetof(Record, field_10)),
        field<Kind::uint32, decltype(Record::field_11)>(11, offsetof(Record, field_11)),
        field<Kind::boolean, decltype(Record::field_12)>(12, offsetof(Record, field_12)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_pcl_rule_match> {
    using Record = tarn_ethsw_mgmt_pcl_rule_match;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::uint32, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
        field<Kind::uint32, decltype(Record::field_4)>(4, offsetof(Record, field_4)),
        field<Kind::uint32, decltype(Record::field_5)>(5, offsetof(Record, field_5)),
        field<Kind::uint32, decltype(Record::field_6)>(6, offsetof(Record, field_6)),
        field<Kind::uint32, decltype(Record::field_7)>(7, offsetof(Record, field_7)),
        field<Kind::uint64, decltype(Record::field_8)>(8, offsetof(Record, field_8)),
        field<Kind::uint64, decltype(Record::field_9)>(9, offsetof(Record, field_9)),
        field<Kind::uint32, decltype(Record::field_10)>(10, offsetof(Record, field_10)),
        field<Kind::uint32, decltype(Record::field_11)>(11, offsetof(Record, field_11)),
        field<Kind::uint32, decltype(Record::field_12)>(12, offsetof(Record, field_12)),
        field<Kind::uint32, decltype(Record::field_13)>(13, offsetof(Record, field_13)),
        field<Kind::uint64, decltype(Record::field_14)>(14, offsetof(Record, field_14)),
        field<Kind::uint64, decltype(Record::field_15)>(15, offsetof(Record, field_15)),
        field<Kind::uint64, decltype(Record::field_16)>(16, offsetof(Record, field_16)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_pcl_rule_action> {
    using Record = tarn_ethsw_mgmt_pcl_rule_action;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::boolean, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::boolean, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
        field<Kind::boolean, decltype(Record::field_4)>(4, offsetof(Record, field_4)),
        field<Kind::boolean, decltype(Record::field_5)>(5, offsetof(Record, field_5)),
        field<Kind::uint32, decltype(Record::field_6)>(6, offsetof(Record, field_6)),
        field<Kind::uint32, decltype(Record::field_7)>(7, offsetof(Record, field_7)),
        field<Kind::uint32, decltype(Record::field_8)>(8, offsetof(Record, field_8)),
        field<Kind::boolean, decltype(Record::field_9)>(9, offsetof(Record, field_9)),
        field<Kind::uint32, decltype(Record::field_10)>(10, offsetof(Record, field_10)),
        field<Kind::uint32, decltype(Record::field_11)>(11, offsetof(Record, field_11)),
        field<Kind::uint32, decltype(Record::field_12)>(12, offsetof(Record, field_12)),
        field<Kind::uint32, decltype(Record::field_13)>(13, offsetof(Record, field_13)),
        field<Kind::boolean, decltype(Record::field_14)>(14, offsetof(Record, field_14)),
        field<Kind::uint32, decltype(Record::field_15)>(15, offsetof(Record, field_15)),
        field<Kind::uint32, decltype(Record::field_16)>(16, offsetof(Record, field_16)),
        field<Kind::uint32, decltype(Record::field_17)>(17, offsetof(Record, field_17)),
        field<Kind::boolean, decltype(Record::field_18)>(18, offsetof(Record, field_18)),
        field<Kind::uint32, decltype(Record::field_19)>(19, offsetof(Record, field_19)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_policing> {
    using Record = tarn_ethsw_mgmt_policing;
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
        field<Kind::boolean, decltype(Record::field_16)>(16, offsetof(Record, field_16)),
        field<Kind::boolean, decltype(Record::field_17)>(17, offsetof(Record, field_17)),
        field<Kind::uint32, decltype(Record::field_18)>(18, offsetof(Record, field_18)),
        field<Kind::uint32, decltype(Record::field_19)>(19, offsetof(Record, field_19)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_pcl_rule_info> {
    using Record = tarn_ethsw_mgmt_pcl_rule_info;
    static constexpr Field fields[] = {
        field<Kind::message, decltype(Record::match_1)>(1, offsetof(Record, match_1)),
        field<Kind::message, decltype(Record::match_2)>(2, offsetof(Record, match_2)),
        field<Kind::message, decltype(Record::action)>(3, offsetof(Record, action)),
        field<Kind::message, decltype(Record::policing_4)>(4, offsetof(Record, policing_4)),
        field<Kind::message, decltype(Record::policing_5)>(5, offsetof(Record, policing_5)),
        field<Kind::message, decltype(Record::policing_6)>(6, offsetof(Record, policing_6)),
    };
    using Children = RecordTypes<tarn_ethsw_mgmt_pcl_rule_match, tarn_ethsw_mgmt_pcl_rule_match, tarn_ethsw_mgmt_pcl_rule_action, tarn_ethsw_mgmt_policing, tarn_ethsw_mgmt_policing, tarn_ethsw_mgmt_policing>;
};

template <>
struct Schema<tarn_ethsw_mgmt_get_pcl_resp> {
    using Record = tarn_ethsw_mgmt_get_pcl_resp;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::repeated_message, decltype(Record::configs)>(3, offsetof(Record, configs)),
        field<Kind::repeated_message, decltype(Record::rules_4)>(4, offsetof(Record, rules_4)),
        field<Kind::repeated_message, decltype(Record::rules_5)>(5, offsetof(Record, rules_5)),
    };
    using Children = RecordTypes<tarn_ethsw_mgmt_pcl_cfg_info, tarn_ethsw_mgmt_pcl_rule_info, tarn_ethsw_mgmt_pcl_rule_info>;
};

template <>
struct Schema<tarn_ethsw_mgmt_policer_dynamic_counter_stats> {
    using Record = tarn_ethsw_mgmt_policer_dynamic_counter_stats;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::repeated_message, decltype(Record::per_up_data)>(2, offsetof(Record, per_up_data)),
    };
    using Children = RecordTypes<tarn_ethsw_mgmt_dynamic_counter_per_up_data>;
};

template <>
struct Schema<tarn_ethsw_mgmt_port_get_policer_statistics> {
    using Record = tarn_ethsw_mgmt_port_get_policer_statistics;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_port_policer_statistics_info> {
    using Record = tarn_ethsw_mgmt_port_policer_statistics_info;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::uint32, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
        field<Kind::uint32, decltype(Record::field_4)>(4, offsetof(Record, field_4)),
        field<Kind::uint64, decltype(Record::field_5)>(5, offsetof(Record, field_5)),
        field<Kind::uint64, decltype(Record::field_6)>(6, offsetof(Record, field_6)),
        field<Kind::uint64, decltype(Record::field_7)>(7, offsetof(Record, field_7)),
        field<Kind::boolean, decltype(Record::field_8)>(8, offsetof(Record, field_8)),
        field<Kind::repeated_message, decltype(Record::dynamic_counters)>(9, offsetof(Record, dynamic_counters)),
        field<Kind::uint32, decltype(Record::field_10)>(10, offsetof(Record, field_10)),
        field<Kind::uint32, decltype(Record::field_11)>(11, offsetof(Record, field_11)),
        field<Kind::uint64, decltype(Record::field_13)>(13, offsetof(Record, field_13)),
        field<Kind::uint64, decltype(Record::field_14)>(14, offsetof(Record, field_14)),
        field<Kind::uint64, decltype(Record::field_15)>(15, offsetof(Record, field_15)),
        field<Kind::uint64, decltype(Record::field_16)>(16, offsetof(Record, field_16)),
        field<Kind::string, decltype(Record::field_17)>(17, offsetof(Record, field_17)),
        field<Kind::uint32, decltype(Record::field_18)>(18, offsetof(Record, field_18)),
        field<Kind::uint32, decltype(Record::field_19)>(19, offsetof(Record, field_19)),
        field<Kind::uint32, decltype(Record::field_20)>(20, offsetof(Record, field_20)),
        field<Kind::uint32, decltype(Record::field_21)>(21, offsetof(Record, field_21)),
        field<Kind::boolean, decltype(Record::field_22)>(22, offsetof(Record, field_22)),
    };
    using Children = RecordTypes<tarn_ethsw_mgmt_policer_dynamic_counter_stats>;
};

template <>
struct Schema<tarn_ethsw_mgmt_port_policer_statistics_resp> {
    using Record = tarn_ethsw_mgmt_port_policer_statistics_resp;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::repeated_message, decltype(Record::statistics)>(2, offsetof(Record, statistics)),
        field<Kind::boolean, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
    };
    using Children = RecordTypes<tarn_ethsw_mgmt_port_policer_statistics_info>;
};

template <>
struct Schema<tarn_ethsw_mgmt_set_policing_sdr> {
    using Record = tarn_ethsw_mgmt_set_policing_sdr;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::uint32, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
        field<Kind::repeated_uint32, decltype(Record::field_4)>(4, offsetof(Record, field_4)),
        field<Kind::repeated_uint32, decltype(Record::field_5)>(5, offsetof(Record, field_5)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_set_policing_dynamic_counters> {
    using Record = tarn_ethsw_mgmt_set_policing_dynamic_counters;
    static constexpr Field fields[] = {
        field<Kind::boolean, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::uint32, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_set_policing> {
    using Record = tarn_ethsw_mgmt_set_policing;
    static constexpr Field fields[] = {
        field<Kind::boolean, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::boolean, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::uint32, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
        field<Kind::uint32, decltype(Record::field_4)>(4, offsetof(Record, field_4)),
        field<Kind::uint32, decltype(Record::field_5)>(5, offsetof(Record, field_5)),
        field<Kind::uint32, decltype(Record::field_6)>(6, offsetof(Record, field_6)),
        field<Kind::repeated_message, decltype(Record::sdrs)>(7, offsetof(Record, sdrs)),
        field<Kind::repeated_message, decltype(Record::dynamic_counters)>(8, offsetof(Record, dynamic_counters)),
        field<Kind::uint32, decltype(Record::field_9)>(9, offsetof(Record, field_9)),
        field<Kind::uint32, decltype(Record::field_10)>(10, offsetof(Record, field_10)),
        field<Kind::uint32, decltype(Record::field_11)>(11, offsetof(Record, field_11)),
        field<Kind::uint32, decltype(Record::field_12)>(12, offsetof(Record, field_12)),
        field<Kind::uint32, decltype(Record::field_13)>(13, offsetof(Record, field_13)),
        field<Kind::uint32, decltype(Record::field_14)>(14, offsetof(Record, field_14)),
        field<Kind::uint32, decltype(Record::field_15)>(15, offsetof(Record, field_15)),
    };
    using Children = RecordTypes<tarn_ethsw_mgmt_set_policing_sdr, tarn_ethsw_mgmt_set_policing_dynamic_counters>;
};

template <>
struct Schema<tarn_ethsw_mgmt_set_policing_resp> {
    using Record = tarn_ethsw_mgmt_set_policing_resp;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::boolean, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::boolean, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
        field<Kind::boolean, decltype(Record::field_4)>(4, offsetof(Record, field_4)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_set_security> {
    using Record = tarn_ethsw_mgmt_set_security;
    static constexpr Field fields[] = {
        field<Kind::boolean, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_set_security_resp> {
    using Record = tarn_ethsw_mgmt_set_security_resp;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_show_pcl_flow> {
    using Record = tarn_ethsw_mgmt_show_pcl_flow;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_show_pcl_flow_port_info> {
    using Record = tarn_ethsw_mgmt_show_pcl_flow_port_info;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint64, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::uint64, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
        field<Kind::uint64, decltype(Record::field_4)>(4, offsetof(Record, field_4)),
        field<Kind::uint64, decltype(Record::field_5)>(5, offsetof(Record, field_5)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_show_pcl_flow_info> {
    using Record = tarn_ethsw_mgmt_show_pcl_flow_info;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::repeated_message, decltype(Record::ports)>(3, offsetof(Record, ports)),
        field<Kind::boolean, decltype(Record::field_4)>(4, offsetof(Record, field_4)),
    };
    using Children = RecordTypes<tarn_ethsw_mgmt_show_pcl_flow_port_info>;
};

template <>
struct Schema<tarn_ethsw_mgmt_show_pcl_flow_resp> {
    using Record = tarn_ethsw_mgmt_show_pcl_flow_resp;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::repeated_message, decltype(Record::flows)>(2, offsetof(Record, flows)),
    };
    using Children = RecordTypes<tarn_ethsw_mgmt_show_pcl_flow_info>;
};

template <>
struct Schema<tarn_ethsw_mgmt_show_policing> {
    using Record = tarn_ethsw_mgmt_show_policing;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::uint32, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_show_policing_port> {
    using Record = tarn_ethsw_mgmt_show_policing_port;
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
        field<Kind::string, decltype(Record::field_11)>(11, offsetof(Record, field_11)),
        field<Kind::uint32, decltype(Record::field_12)>(12, offsetof(Record, field_12)),
        field<Kind::uint32, decltype(Record::field_13)>(13, offsetof(Record, field_13)),
        field<Kind::boolean, decltype(Record::field_14)>(14, offsetof(Record, field_14)),
        field<Kind::uint32, decltype(Record::field_15)>(15, offsetof(Record, field_15)),
        field<Kind::uint32, decltype(Record::field_16)>(16, offsetof(Record, field_16)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_show_policing_sdr> {
    using Record = tarn_ethsw_mgmt_show_policing_sdr;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::uint32, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
        field<Kind::repeated_uint32, decltype(Record::field_4)>(4, offsetof(Record, field_4)),
        field<Kind::repeated_uint32, decltype(Record::field_5)>(5, offsetof(Record, field_5)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_show_policing_resp> {
    using Record = tarn_ethsw_mgmt_show_policing_resp;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::boolean, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::boolean, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
        field<Kind::boolean, decltype(Record::field_4)>(4, offsetof(Record, field_4)),
        field<Kind::boolean, decltype(Record::field_5)>(5, offsetof(Record, field_5)),
        field<Kind::uint32, decltype(Record::field_6)>(6, offsetof(Record, field_6)),
        field<Kind::uint32, decltype(Record::field_7)>(7, offsetof(Record, field_7)),
        field<Kind::uint32, decltype(Record::field_8)>(8, offsetof(Record, field_8)),
        field<Kind::uint32, decltype(Record::field_9)>(9, offsetof(Record, field_9)),
        field<Kind::uint32, decltype(Record::field_10)>(10, offsetof(Record, field_10)),
        field<Kind::uint32, decltype(Record::field_11)>(11, offsetof(Record, field_11)),
        field<Kind::repeated_message, decltype(Record::sdrs)>(12, offsetof(Record, sdrs)),
        field<Kind::repeated_message, decltype(Record::ports_13)>(13, offsetof(Record, ports_13)),
        field<Kind::repeated_message, decltype(Record::ports_14)>(14, offsetof(Record, ports_14)),
        field<Kind::boolean, decltype(Record::field_15)>(15, offsetof(Record, field_15)),
        field<Kind::boolean, decltype(Record::field_16)>(16, offsetof(Record, field_16)),
        field<Kind::uint32, decltype(Record::field_17)>(17, offsetof(Record, field_17)),
        field<Kind::boolean, decltype(Record::field_18)>(18, offsetof(Record, field_18)),
    };
    using Children = RecordTypes<tarn_ethsw_mgmt_show_policing_sdr, tarn_ethsw_mgmt_show_policing_port, tarn_ethsw_mgmt_show_policing_port>;
};

template <>
struct Schema<tarn_ethsw_mgmt_show_security> {
    static constexpr NoFields fields{};
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_show_security_au> {
    using Record = tarn_ethsw_mgmt_show_security_au;
    static constexpr Field fields[] = {
        field<Kind::boolean, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_show_security_cpu> {
    using Record = tarn_ethsw_mgmt_show_security_cpu;
    static constexpr Field fields[] = {
        field<Kind::boolean, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
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
struct Schema<tarn_ethsw_mgmt_show_security_resp> {
    using Record = tarn_ethsw_mgmt_show_security_resp;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::message, decltype(Record::au)>(3, offsetof(Record, au)),
        field<Kind::repeated_message, decltype(Record::cpus)>(4, offsetof(Record, cpus)),
        field<Kind::uint32, decltype(Record::field_5)>(5, offsetof(Record, field_5)),
    };
    using Children = RecordTypes<tarn_ethsw_mgmt_show_security_au, tarn_ethsw_mgmt_show_security_cpu>;
};

} // namespace tarn
