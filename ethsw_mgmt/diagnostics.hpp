// SPDX-License-Identifier: MIT
// Generated from ethsw_mgmt/diagnostics.proto by generator/regenerate. Do not edit: change the schema and run it.
// The field lists from which the codecs of these record types are made.

#pragma once

#include "ethsw_mgmt/diagnostics.h"
#include "ethsw_mgmt/switch.hpp"
#include "runtime/schema.hpp"

#include <stddef.h>

namespace [[gnu::visibility("hidden")]] tarn {

template <>
struct Schema<tarn_ethsw_mgmt_bcm_shell_cmd> {
    using Record = tarn_ethsw_mgmt_bcm_shell_cmd;
    static constexpr Field fields[] = {
        field<Kind::string, decltype(Record::command)>(1, offsetof(Record, command)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_bcm_shell_cmd_resp> {
    using Record = tarn_ethsw_mgmt_bcm_shell_cmd_resp;
    static constexpr Field fields[] = {
        field<Kind::string, decltype(Record::output)>(1, offsetof(Record, output)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_debug_get_capi_status> {
    static constexpr NoFields fields{};
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_debug_get_capi_status_resp> {
    using Record = tarn_ethsw_mgmt_debug_get_capi_status_resp;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::boolean, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::boolean, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
        field<Kind::boolean, decltype(Record::field_4)>(4, offsetof(Record, field_4)),
        field<Kind::uint32, decltype(Record::field_5)>(5, offsetof(Record, field_5)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_debug_get_health_poll_mode> {
    using Record = tarn_ethsw_mgmt_debug_get_health_poll_mode;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_debug_get_health_poll_mode_rsp> {
    using Record = tarn_ethsw_mgmt_debug_get_health_poll_mode_rsp;
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
struct Schema<tarn_ethsw_mgmt_debug_get_health_state> {
    using Record = tarn_ethsw_mgmt_debug_get_health_state;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_debug_get_health_state_rsp> {
    using Record = tarn_ethsw_mgmt_debug_get_health_state_rsp;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::string, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::boolean, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
        field<Kind::boolean, decltype(Record::field_4)>(4, offsetof(Record, field_4)),
        field<Kind::uint32, decltype(Record::field_5)>(5, offsetof(Record, field_5)),
        field<Kind::uint32, decltype(Record::field_6)>(6, offsetof(Record, field_6)),
        field<Kind::message, decltype(Record::timestamp_7)>(7, offsetof(Record, timestamp_7)),
        field<Kind::uint32, decltype(Record::field_8)>(8, offsetof(Record, field_8)),
        field<Kind::message, decltype(Record::timestamp_9)>(9, offsetof(Record, timestamp_9)),
        field<Kind::uint32, decltype(Record::field_10)>(10, offsetof(Record, field_10)),
        field<Kind::message, decltype(Record::timestamp_11)>(11, offsetof(Record, timestamp_11)),
        field<Kind::uint32, decltype(Record::field_12)>(12, offsetof(Record, field_12)),
        field<Kind::message, decltype(Record::timestamp_13)>(13, offsetof(Record, timestamp_13)),
        field<Kind::uint32, decltype(Record::field_14)>(14, offsetof(Record, field_14)),
        field<Kind::uint32, decltype(Record::field_15)>(15, offsetof(Record, field_15)),
        field<Kind::uint32, decltype(Record::field_16)>(16, offsetof(Record, field_16)),
        field<Kind::uint32, decltype(Record::field_17)>(17, offsetof(Record, field_17)),
        field<Kind::uint32, decltype(Record::field_18)>(18, offsetof(Record, field_18)),
        field<Kind::message, decltype(Record::timestamp_19)>(19, offsetof(Record, timestamp_19)),
        field<Kind::uint32, decltype(Record::field_20)>(20, offsetof(Record, field_20)),
        field<Kind::uint32, decltype(Record::field_21)>(21, offsetof(Record, field_21)),
        field<Kind::boolean, decltype(Record::field_22)>(22, offsetof(Record, field_22)),
        field<Kind::boolean, decltype(Record::field_23)>(23, offsetof(Record, field_23)),
        field<Kind::boolean, decltype(Record::field_24)>(24, offsetof(Record, field_24)),
        field<Kind::boolean, decltype(Record::field_25)>(25, offsetof(Record, field_25)),
        field<Kind::boolean, decltype(Record::field_26)>(26, offsetof(Record, field_26)),
        field<Kind::boolean, decltype(Record::field_27)>(27, offsetof(Record, field_27)),
        field<Kind::uint32, decltype(Record::field_28)>(28, offsetof(Record, field_28)),
        field<Kind::message, decltype(Record::timestamp_29)>(29, offsetof(Record, timestamp_29)),
        field<Kind::uint32, decltype(Record::field_30)>(30, offsetof(Record, field_30)),
        field<Kind::uint32, decltype(Record::field_31)>(31, offsetof(Record, field_31)),
        field<Kind::uint32, decltype(Record::field_32)>(32, offsetof(Record, field_32)),
        field<Kind::uint32, decltype(Record::field_33)>(33, offsetof(Record, field_33)),
        field<Kind::uint32, decltype(Record::field_34)>(34, offsetof(Record, field_34)),
        field<Kind::uint32, decltype(Record::field_35)>(35, offsetof(Record, field_35)),
        field<Kind::uint32, decltype(Record::field_36)>(36, offsetof(Record, field_36)),
        field<Kind::uint32, decltype(Record::field_37)>(37, offsetof(Record, field_37)),
        field<Kind::uint32, decltype(Record::field_38)>(38, offsetof(Record, field_38)),
        field<Kind::boolean, decltype(Record::field_39)>(39, offsetof(Record, field_39)),
        field<Kind::boolean, decltype(Record::field_40)>(40, offsetof(Record, field_40)),
        field<Kind::boolean, decltype(Record::field_41)>(41, offsetof(Record, field_41)),
        field<Kind::message, decltype(Record::link_fault_status)>(42, offsetof(Record, link_fault_status)),
        field<Kind::repeated_message, decltype(Record::history)>(43, offsetof(Record, history)),
        field<Kind::boolean, decltype(Record::field_44)>(44, offsetof(Record, field_44)),
        field<Kind::boolean, decltype(Record::field_45)>(45, offsetof(Record, field_45)),
    };
    using Children = RecordTypes<tarn_ethsw_mgmt_timespec, tarn_ethsw_mgmt_timespec, tarn_ethsw_mgmt_timespec, tarn_ethsw_mgmt_timespec, tarn_ethsw_mgmt_timespec, tarn_ethsw_mgmt_timespec, tarn_ethsw_mgmt_port_link_fault_status, tarn_ethsw_mgmt_port_health_history_entry>;
};

template <>
struct Schema<tarn_ethsw_mgmt_debug_get_hw_counters> {
    static constexpr NoFields fields{};
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_debug_get_hw_counters_resp> {
    using Record = tarn_ethsw_mgmt_debug_get_hw_counters_resp;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::boolean, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::uint64, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
        field<Kind::uint64, decltype(Record::field_4)>(4, offsetof(Record, field_4)),
        field<Kind::uint64, decltype(Record::field_5)>(5, offsetof(Record, field_5)),
        field<Kind::uint64, decltype(Record::field_6)>(6, offsetof(Record, field_6)),
        field<Kind::uint64, decltype(Record::field_7)>(7, offsetof(Record, field_7)),
        field<Kind::uint64, decltype(Record::field_8)>(8, offsetof(Record, field_8)),
        field<Kind::uint64, decltype(Record::field_9)>(9, offsetof(Record, field_9)),
        field<Kind::uint64, decltype(Record::field_10)>(10, offsetof(Record, field_10)),
        field<Kind::uint64, decltype(Record::field_11)>(11, offsetof(Record, field_11)),
        field<Kind::uint64, decltype(Record::field_12)>(12, offsetof(Record, field_12)),
        field<Kind::uint64, decltype(Record::field_13)>(13, offsetof(Record, field_13)),
        field<Kind::repeated_message, decltype(Record::cores)>(14, offsetof(Record, cores)),
        field<Kind::uint64, decltype(Record::field_15)>(15, offsetof(Record, field_15)),
        field<Kind::uint64, decltype(Record::field_16)>(16, offsetof(Record, field_16)),
        field<Kind::uint64, decltype(Record::field_17)>(17, offsetof(Record, field_17)),
        field<Kind::uint64, decltype(Record::field_18)>(18, offsetof(Record, field_18)),
        field<Kind::uint32, decltype(Record::field_19)>(19, offsetof(Record, field_19)),
        field<Kind::uint64, decltype(Record::field_20)>(20, offsetof(Record, field_20)),
        field<Kind::uint32, decltype(Record::field_21)>(21, offsetof(Record, field_21)),
        field<Kind::uint64, decltype(Record::field_22)>(22, offsetof(Record, field_22)),
        field<Kind::uint32, decltype(Record::field_23)>(23, offsetof(Record, field_23)),
        field<Kind::uint64, decltype(Record::field_24)>(24, offsetof(Record, field_24)),
        field<Kind::boolean, decltype(Record::field_25)>(25, offsetof(Record, field_25)),
    };
    using Children = RecordTypes<tarn_ethsw_mgmt_core_stats>;
};

template <>
struct Schema<tarn_ethsw_mgmt_debug_get_trace_level> {
    static constexpr NoFields fields{};
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_debug_get_trace_level_resp> {
    using Record = tarn_ethsw_mgmt_debug_get_trace_level_resp;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_debug_set_health_event> {
    using Record = tarn_ethsw_mgmt_debug_set_health_event;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::uint32, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_debug_set_health_event_rsp> {
    using Record = tarn_ethsw_mgmt_debug_set_health_event_rsp;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::string, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::uint32, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_debug_set_health_poll_mode> {
    using Record = tarn_ethsw_mgmt_debug_set_health_poll_mode;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_debug_set_health_poll_mode_rsp> {
    using Record = tarn_ethsw_mgmt_debug_set_health_poll_mode_rsp;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_debug_set_trace_level> {
    using Record = tarn_ethsw_mgmt_debug_set_trace_level;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_debug_set_trace_level_resp> {
    using Record = tarn_ethsw_mgmt_debug_set_trace_level_resp;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_debug_switch_peek> {
    using Record = tarn_ethsw_mgmt_debug_switch_peek;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_debug_switch_peek_response> {
    using Record = tarn_ethsw_mgmt_debug_switch_peek_response;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::uint32, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
        field<Kind::uint32, decltype(Record::field_4)>(4, offsetof(Record, field_4)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_debug_switch_poke> {
    using Record = tarn_ethsw_mgmt_debug_switch_poke;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::uint32, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_debug_switch_poke_response> {
    using Record = tarn_ethsw_mgmt_debug_switch_poke_response;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::uint32, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
        field<Kind::uint32, decltype(Record::field_4)>(4, offsetof(Record, field_4)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_debug_switch_reset> {
    using Record = tarn_ethsw_mgmt_debug_switch_reset;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_debug_switch_reset_response> {
    using Record = tarn_ethsw_mgmt_debug_switch_reset_response;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_debug_trigger_switch_config_dump> {
    static constexpr NoFields fields{};
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_get_reg_info> {
    using Record = tarn_ethsw_mgmt_get_reg_info;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_reg_value_data> {
    using Record = tarn_ethsw_mgmt_reg_value_data;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::string, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::uint32, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
        field<Kind::uint32, decltype(Record::field_4)>(4, offsetof(Record, field_4)),
        field<Kind::uint32, decltype(Record::field_5)>(5, offsetof(Record, field_5)),
        field<Kind::uint64, decltype(Record::field_6)>(6, offsetof(Record, field_6)),
        field<Kind::uint64, decltype(Record::field_7)>(7, offsetof(Record, field_7)),
        field<Kind::uint64, decltype(Record::field_8)>(8, offsetof(Record, field_8)),
        field<Kind::boolean, decltype(Record::field_9)>(9, offsetof(Record, field_9)),
        field<Kind::bytes, decltype(Record::field_10)>(10, offsetof(Record, field_10)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_reg_column_data> {
    using Record = tarn_ethsw_mgmt_reg_column_data;
    static constexpr Field fields[] = {
        field<Kind::string, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::repeated_message, decltype(Record::values)>(3, offsetof(Record, values)),
    };
    using Children = RecordTypes<tarn_ethsw_mgmt_reg_value_data>;
};

template <>
struct Schema<tarn_ethsw_mgmt_reg_section_data> {
    using Record = tarn_ethsw_mgmt_reg_section_data;
    static constexpr Field fields[] = {
        field<Kind::string, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::repeated_message, decltype(Record::columns)>(2, offsetof(Record, columns)),
    };
    using Children = RecordTypes<tarn_ethsw_mgmt_reg_column_data>;
};

template <>
struct Schema<tarn_ethsw_mgmt_reg_info_rsp> {
    using Record = tarn_ethsw_mgmt_reg_info_rsp;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::repeated_message, decltype(Record::sections)>(2, offsetof(Record, sections)),
    };
    using Children = RecordTypes<tarn_ethsw_mgmt_reg_section_data>;
};

} // namespace tarn
