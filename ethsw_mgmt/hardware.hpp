// SPDX-License-Identifier: MIT
// Generated from ethsw_mgmt/hardware.proto by generator/regenerate. Do not edit: change the schema and run it.
// The field lists from which the codecs of these record types are made.

#pragma once

#include "ethsw_mgmt/hardware.h"
#include "runtime/schema.hpp"

#include <stddef.h>

namespace [[gnu::visibility("hidden")]] tarn {

template <>
struct Schema<tarn_ethsw_mgmt_debug_get_phy_poll_mode> {
    static constexpr NoFields fields{};
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_debug_get_phy_poll_mode_rsp> {
    using Record = tarn_ethsw_mgmt_debug_get_phy_poll_mode_rsp;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_debug_phy_peek> {
    using Record = tarn_ethsw_mgmt_debug_phy_peek;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::uint32, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_debug_phy_peek_response> {
    using Record = tarn_ethsw_mgmt_debug_phy_peek_response;
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
struct Schema<tarn_ethsw_mgmt_debug_phy_poke> {
    using Record = tarn_ethsw_mgmt_debug_phy_poke;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::uint32, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
        field<Kind::uint32, decltype(Record::field_4)>(4, offsetof(Record, field_4)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_debug_phy_poke_response> {
    using Record = tarn_ethsw_mgmt_debug_phy_poke_response;
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
struct Schema<tarn_ethsw_mgmt_debug_set_phy_poll_mode> {
    using Record = tarn_ethsw_mgmt_debug_set_phy_poll_mode;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_debug_set_phy_poll_mode_rsp> {
    using Record = tarn_ethsw_mgmt_debug_set_phy_poll_mode_rsp;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_debug_sfp_read> {
    using Record = tarn_ethsw_mgmt_debug_sfp_read;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_debug_sfp_read_address> {
    using Record = tarn_ethsw_mgmt_debug_sfp_read_address;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::uint32, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
        field<Kind::uint32, decltype(Record::field_4)>(4, offsetof(Record, field_4)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_debug_sfp_read_address_rsp> {
    using Record = tarn_ethsw_mgmt_debug_sfp_read_address_rsp;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::uint32, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
        field<Kind::uint32, decltype(Record::field_4)>(4, offsetof(Record, field_4)),
        field<Kind::uint32, decltype(Record::field_5)>(5, offsetof(Record, field_5)),
        field<Kind::bytes, decltype(Record::field_6)>(6, offsetof(Record, field_6)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_debug_sfp_read_response> {
    using Record = tarn_ethsw_mgmt_debug_sfp_read_response;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::uint32, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
        field<Kind::bytes, decltype(Record::field_4)>(4, offsetof(Record, field_4)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_debug_sfp_write_address> {
    using Record = tarn_ethsw_mgmt_debug_sfp_write_address;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::uint32, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
        field<Kind::uint32, decltype(Record::field_4)>(4, offsetof(Record, field_4)),
        field<Kind::bytes, decltype(Record::field_5)>(5, offsetof(Record, field_5)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_debug_sfp_write_address_rsp> {
    using Record = tarn_ethsw_mgmt_debug_sfp_write_address_rsp;
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
struct Schema<tarn_ethsw_mgmt_fpd_cmp_result> {
    using Record = tarn_ethsw_mgmt_fpd_cmp_result;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_fpd_cmp_to_file> {
    using Record = tarn_ethsw_mgmt_fpd_cmp_to_file;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::repeated_string, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::repeated_string, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
        field<Kind::repeated_string, decltype(Record::field_4)>(4, offsetof(Record, field_4)),
        field<Kind::repeated_string, decltype(Record::field_5)>(5, offsetof(Record, field_5)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_fpd_core_info> {
    using Record = tarn_ethsw_mgmt_fpd_core_info;
    static constexpr Field fields[] = {
        field<Kind::boolean, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::uint32, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
        field<Kind::uint32, decltype(Record::field_4)>(4, offsetof(Record, field_4)),
        field<Kind::uint32, decltype(Record::field_5)>(5, offsetof(Record, field_5)),
        field<Kind::boolean, decltype(Record::field_6)>(6, offsetof(Record, field_6)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_fpd_get_info> {
    static constexpr NoFields fields{};
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_fpd_info> {
    using Record = tarn_ethsw_mgmt_fpd_info;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::repeated_message, decltype(Record::cores_3)>(3, offsetof(Record, cores_3)),
        field<Kind::repeated_message, decltype(Record::cores_4)>(4, offsetof(Record, cores_4)),
        field<Kind::repeated_message, decltype(Record::cores_5)>(5, offsetof(Record, cores_5)),
        field<Kind::repeated_message, decltype(Record::cores_6)>(6, offsetof(Record, cores_6)),
        field<Kind::repeated_message, decltype(Record::cores_7)>(7, offsetof(Record, cores_7)),
        field<Kind::repeated_message, decltype(Record::cores_8)>(8, offsetof(Record, cores_8)),
        field<Kind::repeated_message, decltype(Record::cores_9)>(9, offsetof(Record, cores_9)),
        field<Kind::repeated_message, decltype(Record::cores_10)>(10, offsetof(Record, cores_10)),
    };
    using Children = RecordTypes<tarn_ethsw_mgmt_fpd_core_info, tarn_ethsw_mgmt_fpd_core_info, tarn_ethsw_mgmt_fpd_core_info, tarn_ethsw_mgmt_fpd_core_info, tarn_ethsw_mgmt_fpd_core_info, tarn_ethsw_mgmt_fpd_core_info, tarn_ethsw_mgmt_fpd_core_info, tarn_ethsw_mgmt_fpd_core_info>;
};

template <>
struct Schema<tarn_ethsw_mgmt_fpd_program_from_file> {
    using Record = tarn_ethsw_mgmt_fpd_program_from_file;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::repeated_string, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::repeated_string, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
        field<Kind::repeated_string, decltype(Record::field_4)>(4, offsetof(Record, field_4)),
        field<Kind::repeated_string, decltype(Record::field_5)>(5, offsetof(Record, field_5)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_fpd_program_from_golden> {
    static constexpr NoFields fields{};
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_fpd_program_result> {
    using Record = tarn_ethsw_mgmt_fpd_program_result;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_get_sfp_summary> {
    static constexpr NoFields fields{};
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_phy_eeprom_reload> {
    using Record = tarn_ethsw_mgmt_phy_eeprom_reload;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_phy_force_reprogram> {
    using Record = tarn_ethsw_mgmt_phy_force_reprogram;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_phy_force_reprogram_rsp> {
    using Record = tarn_ethsw_mgmt_phy_force_reprogram_rsp;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_phy_get_ucode_version_info> {
    using Record = tarn_ethsw_mgmt_phy_get_ucode_version_info;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_phy_operation_result> {
    using Record = tarn_ethsw_mgmt_phy_operation_result;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_phy_port_set_admin_state> {
    using Record = tarn_ethsw_mgmt_phy_port_set_admin_state;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::uint32, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
        field<Kind::boolean, decltype(Record::field_4)>(4, offsetof(Record, field_4)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_phy_port_set_admin_state_resp> {
    using Record = tarn_ethsw_mgmt_phy_port_set_admin_state_resp;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_phy_ucode_operation> {
    using Record = tarn_ethsw_mgmt_phy_ucode_operation;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::string, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
        field<Kind::uint32, decltype(Record::field_4)>(4, offsetof(Record, field_4)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_phy_ucode_version_info> {
    using Record = tarn_ethsw_mgmt_phy_ucode_version_info;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::uint32, decltype(Record::field_4)>(4, offsetof(Record, field_4)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_phy_ucode_version_info_rsp> {
    using Record = tarn_ethsw_mgmt_phy_ucode_version_info_rsp;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::repeated_message, decltype(Record::versions)>(2, offsetof(Record, versions)),
    };
    using Children = RecordTypes<tarn_ethsw_mgmt_phy_ucode_version_info>;
};

template <>
struct Schema<tarn_ethsw_mgmt_serdes_get_manual_tuning_data> {
    using Record = tarn_ethsw_mgmt_serdes_get_manual_tuning_data;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_serdes_lane_manual_tuning_info> {
    using Record = tarn_ethsw_mgmt_serdes_lane_manual_tuning_info;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::uint32, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
        field<Kind::uint32, decltype(Record::field_4)>(4, offsetof(Record, field_4)),
        field<Kind::uint32, decltype(Record::field_5)>(5, offsetof(Record, field_5)),
        field<Kind::uint32, decltype(Record::field_6)>(6, offsetof(Record, field_6)),
        field<Kind::uint32, decltype(Record::field_7)>(7, offsetof(Record, field_7)),
        field<Kind::uint32, decltype(Record::field_8)>(8, offsetof(Record, field_8)),
        field<Kind::boolean, decltype(Record::field_9)>(9, offsetof(Record, field_9)),
        field<Kind::uint32, decltype(Record::field_10)>(10, offsetof(Record, field_10)),
        field<Kind::uint32, decltype(Record::field_11)>(11, offsetof(Record, field_11)),
        field<Kind::boolean, decltype(Record::field_12)>(12, offsetof(Record, field_12)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_serdes_get_manual_tuning_data_rsp> {
    using Record = tarn_ethsw_mgmt_serdes_get_manual_tuning_data_rsp;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::repeated_message, decltype(Record::lanes)>(2, offsetof(Record, lanes)),
    };
    using Children = RecordTypes<tarn_ethsw_mgmt_serdes_lane_manual_tuning_info>;
};

template <>
struct Schema<tarn_ethsw_mgmt_serdes_get_tuning_data> {
    using Record = tarn_ethsw_mgmt_serdes_get_tuning_data;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_serdes_lane_tuning_info> {
    using Record = tarn_ethsw_mgmt_serdes_lane_tuning_info;
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
        field<Kind::boolean, decltype(Record::field_10)>(10, offsetof(Record, field_10)),
        field<Kind::uint32, decltype(Record::field_11)>(11, offsetof(Record, field_11)),
        field<Kind::uint32, decltype(Record::field_12)>(12, offsetof(Record, field_12)),
        field<Kind::boolean, decltype(Record::field_13)>(13, offsetof(Record, field_13)),
        field<Kind::boolean, decltype(Record::field_14)>(14, offsetof(Record, field_14)),
        field<Kind::repeated_uint32, decltype(Record::field_15)>(15, offsetof(Record, field_15)),
        field<Kind::uint32, decltype(Record::field_16)>(16, offsetof(Record, field_16)),
        field<Kind::uint32, decltype(Record::field_17)>(17, offsetof(Record, field_17)),
        field<Kind::uint32, decltype(Record::field_18)>(18, offsetof(Record, field_18)),
        field<Kind::uint32, decltype(Record::field_19)>(19, offsetof(Record, field_19)),
        field<Kind::uint32, decltype(Record::field_20)>(20, offsetof(Record, field_20)),
        field<Kind::uint32, decltype(Record::field_21)>(21, offsetof(Record, field_21)),
        field<Kind::repeated_uint32, decltype(Record::field_22)>(22, offsetof(Record, field_22)),
        field<Kind::uint32, decltype(Record::field_23)>(23, offsetof(Record, field_23)),
        field<Kind::uint32, decltype(Record::field_24)>(24, offsetof(Record, field_24)),
        field<Kind::uint32, decltype(Record::field_25)>(25, offsetof(Record, field_25)),
        field<Kind::uint32, decltype(Record::field_26)>(26, offsetof(Record, field_26)),
        field<Kind::uint32, decltype(Record::field_27)>(27, offsetof(Record, field_27)),
        field<Kind::string, decltype(Record::field_28)>(28, offsetof(Record, field_28)),
        field<Kind::string, decltype(Record::field_29)>(29, offsetof(Record, field_29)),
        field<Kind::string, decltype(Record::field_30)>(30, offsetof(Record, field_30)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_serdes_get_tuning_data_rsp> {
    using Record = tarn_ethsw_mgmt_serdes_get_tuning_data_rsp;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint64, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::repeated_message, decltype(Record::lanes)>(3, offsetof(Record, lanes)),
    };
    using Children = RecordTypes<tarn_ethsw_mgmt_serdes_lane_tuning_info>;
};

template <>
struct Schema<tarn_ethsw_mgmt_serdes_trigger_auto_tune> {
    using Record = tarn_ethsw_mgmt_serdes_trigger_auto_tune;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_serdes_trigger_auto_tune_rsp> {
    using Record = tarn_ethsw_mgmt_serdes_trigger_auto_tune_rsp;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_set_serdes_power_state> {
    using Record = tarn_ethsw_mgmt_set_serdes_power_state;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::boolean, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_set_serdes_power_state_rsp> {
    using Record = tarn_ethsw_mgmt_set_serdes_power_state_rsp;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::string, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_sfp_summary_entry> {
    using Record = tarn_ethsw_mgmt_sfp_summary_entry;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::uint32, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
        field<Kind::uint32, decltype(Record::field_4)>(4, offsetof(Record, field_4)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_sfp_summary_response> {
    using Record = tarn_ethsw_mgmt_sfp_summary_response;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::repeated_message, decltype(Record::entries)>(2, offsetof(Record, entries)),
    };
    using Children = RecordTypes<tarn_ethsw_mgmt_sfp_summary_entry>;
};

} // namespace tarn
