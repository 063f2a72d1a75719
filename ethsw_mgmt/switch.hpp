// SPDX-License-Identifier: MIT
// Generated from ethsw_mgmt/switch.proto by generator/regenerate. Do not edit: change the schema and run it.
// The field lists from which the codecs of these record types are made.

#pragma once

#include "ethsw_mgmt/switch.h"
#include "foreign/foreign.hpp"
#include "runtime/schema.hpp"

#include <stddef.h>

namespace [[gnu::visibility("hidden")]] tarn {

template <>
struct Schema<tarn_ESD_MGMT_RESULT_resp> {
    using Record = tarn_ESD_MGMT_RESULT_resp;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::result)>(1, offsetof(Record, result)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_core_stats> {
    using Record = tarn_ethsw_mgmt_core_stats;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint64, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::uint64, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
        field<Kind::uint64, decltype(Record::field_4)>(4, offsetof(Record, field_4)),
        field<Kind::uint64, decltype(Record::field_5)>(5, offsetof(Record, field_5)),
        field<Kind::uint64, decltype(Record::field_6)>(6, offsetof(Record, field_6)),
        field<Kind::uint64, decltype(Record::field_7)>(7, offsetof(Record, field_7)),
        field<Kind::uint64, decltype(Record::field_8)>(8, offsetof(Record, field_8)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_get_loopback> {
    using Record = tarn_ethsw_mgmt_get_loopback;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_get_loopback_rsp> {
    using Record = tarn_ethsw_mgmt_get_loopback_rsp;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_get_mgmt_interface_status> {
    static constexpr NoFields fields{};
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_get_port_state_info> {
    static constexpr NoFields fields{};
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_get_switch_info> {
    static constexpr NoFields fields{};
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_interface_status> {
    using Record = tarn_ethsw_mgmt_interface_status;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::uint32, decltype(Record::field_10)>(10, offsetof(Record, field_10)),
        field<Kind::uint32, decltype(Record::field_11)>(11, offsetof(Record, field_11)),
        field<Kind::uint64, decltype(Record::field_20)>(20, offsetof(Record, field_20)),
        field<Kind::uint64, decltype(Record::field_21)>(21, offsetof(Record, field_21)),
        field<Kind::uint64, decltype(Record::field_22)>(22, offsetof(Record, field_22)),
        field<Kind::uint64, decltype(Record::field_23)>(23, offsetof(Record, field_23)),
        field<Kind::uint64, decltype(Record::field_24)>(24, offsetof(Record, field_24)),
        field<Kind::uint64, decltype(Record::field_25)>(25, offsetof(Record, field_25)),
        field<Kind::uint64, decltype(Record::field_26)>(26, offsetof(Record, field_26)),
        field<Kind::uint64, decltype(Record::field_27)>(27, offsetof(Record, field_27)),
        field<Kind::uint64, decltype(Record::field_28)>(28, offsetof(Record, field_28)),
        field<Kind::uint64, decltype(Record::field_29)>(29, offsetof(Record, field_29)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_interface_status_notif> {
    using Record = tarn_ethsw_mgmt_interface_status_notif;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::uint32, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
        field<Kind::uint32, decltype(Record::field_4)>(4, offsetof(Record, field_4)),
        field<Kind::uint32, decltype(Record::field_5)>(5, offsetof(Record, field_5)),
        field<Kind::uint32, decltype(Record::field_6)>(6, offsetof(Record, field_6)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_interface_status_rsp> {
    using Record = tarn_ethsw_mgmt_interface_status_rsp;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::repeated_message, decltype(Record::interfaces)>(2, offsetof(Record, interfaces)),
    };
    using Children = RecordTypes<tarn_ethsw_mgmt_interface_status>;
};

template <>
struct Schema<tarn_ethsw_mgmt_port_clear_all_stats> {
    static constexpr NoFields fields{};
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_port_clear_all_stats_resp> {
    using Record = tarn_ethsw_mgmt_port_clear_all_stats_resp;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_port_clear_stats> {
    using Record = tarn_ethsw_mgmt_port_clear_stats;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::port)>(1, offsetof(Record, port)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_port_clear_stats_resp> {
    using Record = tarn_ethsw_mgmt_port_clear_stats_resp;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_port_enable> {
    using Record = tarn_ethsw_mgmt_port_enable;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::port)>(1, offsetof(Record, port)),
        field<Kind::boolean, decltype(Record::enable)>(2, offsetof(Record, enable)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_port_enable_resp> {
    using Record = tarn_ethsw_mgmt_port_enable_resp;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_port_get_statistics> {
    using Record = tarn_ethsw_mgmt_port_get_statistics;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::port)>(1, offsetof(Record, port)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_port_get_statistics_resp> {
    using Record = tarn_ethsw_mgmt_port_get_statistics_resp;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::uint32, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
        field<Kind::uint32, decltype(Record::field_4)>(4, offsetof(Record, field_4)),
        field<Kind::uint32, decltype(Record::field_5)>(5, offsetof(Record, field_5)),
        field<Kind::uint64, decltype(Record::field_6)>(6, offsetof(Record, field_6)),
        field<Kind::uint64, decltype(Record::field_7)>(7, offsetof(Record, field_7)),
        field<Kind::uint64, decltype(Record::field_8)>(8, offsetof(Record, field_8)),
        field<Kind::uint64, decltype(Record::field_9)>(9, offsetof(Record, field_9)),
        field<Kind::uint64, decltype(Record::field_10)>(10, offsetof(Record, field_10)),
        field<Kind::uint64, decltype(Record::field_11)>(11, offsetof(Record, field_11)),
        field<Kind::uint64, decltype(Record::field_12)>(12, offsetof(Record, field_12)),
        field<Kind::uint64, decltype(Record::field_13)>(13, offsetof(Record, field_13)),
        field<Kind::uint64, decltype(Record::field_14)>(14, offsetof(Record, field_14)),
        field<Kind::uint64, decltype(Record::field_15)>(15, offsetof(Record, field_15)),
        field<Kind::uint64, decltype(Record::field_16)>(16, offsetof(Record, field_16)),
        field<Kind::uint64, decltype(Record::field_17)>(17, offsetof(Record, field_17)),
        field<Kind::uint64, decltype(Record::field_18)>(18, offsetof(Record, field_18)),
        field<Kind::uint64, decltype(Record::field_19)>(19, offsetof(Record, field_19)),
        field<Kind::uint64, decltype(Record::field_20)>(20, offsetof(Record, field_20)),
        field<Kind::uint64, decltype(Record::field_21)>(21, offsetof(Record, field_21)),
        field<Kind::uint64, decltype(Record::field_22)>(22, offsetof(Record, field_22)),
        field<Kind::uint64, decltype(Record::field_23)>(23, offsetof(Record, field_23)),
        field<Kind::uint64, decltype(Record::field_24)>(24, offsetof(Record, field_24)),
        field<Kind::uint64, decltype(Record::field_25)>(25, offsetof(Record, field_25)),
        field<Kind::uint64, decltype(Record::field_26)>(26, offsetof(Record, field_26)),
        field<Kind::uint64, decltype(Record::field_27)>(27, offsetof(Record, field_27)),
        field<Kind::uint64, decltype(Record::field_28)>(28, offsetof(Record, field_28)),
        field<Kind::uint64, decltype(Record::field_29)>(29, offsetof(Record, field_29)),
        field<Kind::uint64, decltype(Record::field_30)>(30, offsetof(Record, field_30)),
        field<Kind::uint64, decltype(Record::field_31)>(31, offsetof(Record, field_31)),
        field<Kind::uint64, decltype(Record::field_32)>(32, offsetof(Record, field_32)),
        field<Kind::uint64, decltype(Record::field_33)>(33, offsetof(Record, field_33)),
        field<Kind::uint64, decltype(Record::field_34)>(34, offsetof(Record, field_34)),
        field<Kind::uint64, decltype(Record::field_35)>(35, offsetof(Record, field_35)),
        field<Kind::uint64, decltype(Record::field_36)>(36, offsetof(Record, field_36)),
        field<Kind::uint64, decltype(Record::field_37)>(37, offsetof(Record, field_37)),
        field<Kind::uint64, decltype(Record::field_38)>(38, offsetof(Record, field_38)),
        field<Kind::uint32, decltype(Record::field_39)>(39, offsetof(Record, field_39)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_timespec> {
    using Record = tarn_ethsw_mgmt_timespec;
    static constexpr Field fields[] = {
        field<Kind::uint64, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint64, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::string, decltype(Record::text)>(3, offsetof(Record, text)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_port_link_fault_status> {
    using Record = tarn_ethsw_mgmt_port_link_fault_status;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::uint32, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
        field<Kind::uint32, decltype(Record::field_4)>(4, offsetof(Record, field_4)),
        field<Kind::uint32, decltype(Record::field_5)>(5, offsetof(Record, field_5)),
        field<Kind::uint32, decltype(Record::field_6)>(6, offsetof(Record, field_6)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_port_health_history_entry> {
    using Record = tarn_ethsw_mgmt_port_health_history_entry;
    static constexpr Field fields[] = {
        field<Kind::message, decltype(Record::timestamp)>(1, offsetof(Record, timestamp)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::uint32, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
        field<Kind::uint32, decltype(Record::field_4)>(4, offsetof(Record, field_4)),
        field<Kind::uint32, decltype(Record::field_5)>(5, offsetof(Record, field_5)),
        field<Kind::uint32, decltype(Record::field_6)>(6, offsetof(Record, field_6)),
        field<Kind::uint32, decltype(Record::field_7)>(7, offsetof(Record, field_7)),
        field<Kind::message, decltype(Record::link_fault_status)>(8, offsetof(Record, link_fault_status)),
    };
    using Children = RecordTypes<tarn_ethsw_mgmt_timespec, tarn_ethsw_mgmt_port_link_fault_status>;
};

template <>
struct Schema<tarn_ethsw_mgmt_phy_info> {
    using Record = tarn_ethsw_mgmt_phy_info;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::message, decltype(Record::identity)>(2, offsetof(Record, identity)),
        field<Kind::uint32, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
        field<Kind::uint32, decltype(Record::field_4)>(4, offsetof(Record, field_4)),
        field<Kind::uint32, decltype(Record::field_5)>(5, offsetof(Record, field_5)),
        field<Kind::uint32, decltype(Record::field_6)>(6, offsetof(Record, field_6)),
    };
    using Children = RecordTypes<tarn_calv_eid_st>;
};

template <>
struct Schema<tarn_ethsw_mgmt_sfp_info> {
    using Record = tarn_ethsw_mgmt_sfp_info;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::message, decltype(Record::identity)>(2, offsetof(Record, identity)),
        field<Kind::boolean, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
        field<Kind::boolean, decltype(Record::field_4)>(4, offsetof(Record, field_4)),
    };
    using Children = RecordTypes<tarn_calv_eid_st>;
};

template <>
struct Schema<tarn_ethsw_mgmt_port_info> {
    using Record = tarn_ethsw_mgmt_port_info;
    static constexpr Field fields[] = {
        field<Kind::message, decltype(Record::identity)>(1, offsetof(Record, identity)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::string, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
        field<Kind::message, decltype(Record::phy)>(4, offsetof(Record, phy)),
        field<Kind::message, decltype(Record::sfp)>(5, offsetof(Record, sfp)),
        field<Kind::uint32, decltype(Record::field_6)>(6, offsetof(Record, field_6)),
        field<Kind::uint32, decltype(Record::field_7)>(7, offsetof(Record, field_7)),
    };
    using Children = RecordTypes<tarn_calv_eid_st, tarn_ethsw_mgmt_phy_info, tarn_ethsw_mgmt_sfp_info>;
};

template <>
struct Schema<tarn_ethsw_mgmt_port_mask_link_interrupt> {
    using Record = tarn_ethsw_mgmt_port_mask_link_interrupt;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_port_mask_link_interrupt_resp> {
    using Record = tarn_ethsw_mgmt_port_mask_link_interrupt_resp;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_port_reset> {
    using Record = tarn_ethsw_mgmt_port_reset;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::port)>(1, offsetof(Record, port)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_port_reset_resp> {
    using Record = tarn_ethsw_mgmt_port_reset_resp;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_port_set_admin_state> {
    using Record = tarn_ethsw_mgmt_port_set_admin_state;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::boolean, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_port_set_admin_state_resp> {
    using Record = tarn_ethsw_mgmt_port_set_admin_state_resp;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_port_set_link_state> {
    using Record = tarn_ethsw_mgmt_port_set_link_state;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_port_set_link_state_resp> {
    using Record = tarn_ethsw_mgmt_port_set_link_state_resp;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_port_set_phys_state> {
    using Record = tarn_ethsw_mgmt_port_set_phys_state;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_port_set_phys_state_resp> {
    using Record = tarn_ethsw_mgmt_port_set_phys_state_resp;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_port_status> {
    using Record = tarn_ethsw_mgmt_port_status;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::uint32, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
        field<Kind::uint32, decltype(Record::field_4)>(4, offsetof(Record, field_4)),
        field<Kind::uint32, decltype(Record::field_5)>(5, offsetof(Record, field_5)),
        field<Kind::uint32, decltype(Record::field_6)>(6, offsetof(Record, field_6)),
        field<Kind::uint32, decltype(Record::field_7)>(7, offsetof(Record, field_7)),
        field<Kind::uint32, decltype(Record::field_8)>(8, offsetof(Record, field_8)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_port_state_info> {
    using Record = tarn_ethsw_mgmt_port_state_info;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::repeated_message, decltype(Record::ports)>(2, offsetof(Record, ports)),
    };
    using Children = RecordTypes<tarn_ethsw_mgmt_port_status>;
};

template <>
struct Schema<tarn_ethsw_mgmt_set_loopback> {
    using Record = tarn_ethsw_mgmt_set_loopback;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_set_loopback_rsp> {
    using Record = tarn_ethsw_mgmt_set_loopback_rsp;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_switch_available> {
    using Record = tarn_ethsw_mgmt_switch_available;
    static constexpr Field fields[] = {
        field<Kind::boolean, decltype(Record::available)>(1, offsetof(Record, available)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_switch_info> {
    using Record = tarn_ethsw_mgmt_switch_info;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::message, decltype(Record::identity)>(2, offsetof(Record, identity)),
        field<Kind::uint32, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
        field<Kind::string, decltype(Record::name)>(4, offsetof(Record, name)),
        field<Kind::uint32, decltype(Record::field_5)>(5, offsetof(Record, field_5)),
        field<Kind::boolean, decltype(Record::field_6)>(6, offsetof(Record, field_6)),
        field<Kind::uint32, decltype(Record::field_7)>(7, offsetof(Record, field_7)),
        field<Kind::repeated_message, decltype(Record::ports)>(8, offsetof(Record, ports)),
        field<Kind::uint64, decltype(Record::field_9)>(9, offsetof(Record, field_9)),
    };
    using Children = RecordTypes<tarn_calv_eid_st, tarn_ethsw_mgmt_port_info>;
};

template <>
struct Schema<tarn_ethsw_mgmt_yield_switch_to_peer> {
    static constexpr NoFields fields{};
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_yield_switch_to_peer_response> {
    using Record = tarn_ethsw_mgmt_yield_switch_to_peer_response;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::message, decltype(Record::location)>(2, offsetof(Record, location)),
    };
    using Children = RecordTypes<tarn_esd_location_info>;
};

} // namespace tarn
