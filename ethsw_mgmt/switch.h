/* SPDX-License-Identifier: MIT */
/* Generated from ethsw_mgmt/switch.proto by generator/regenerate. Do not edit: change the schema and run it. */

/** @file
 * The generic result, the switch and its availability, port control, port information with its PHY
 * and SFP parts, port statistics and the status of the management interfaces.
 */

#ifndef TARN_ETHSW_MGMT_SWITCH_H
#define TARN_ETHSW_MGMT_SWITCH_H

#include "foreign/foreign.h"
#include "runtime/record.h"

/** Bare result answer; it belongs to no one request by name. */
typedef struct tarn_ESD_MGMT_RESULT_resp {
    /** Field 1, uint32. The result, 32 bits. */
    uint32_t result;
    unsigned has_result : 1;
} tarn_ESD_MGMT_RESULT_resp;
TARN_DECLARE_OPERATIONS(tarn_ESD_MGMT_RESULT_resp);

/** Core statistics block. Element of tarn_ethsw_mgmt_debug_get_hw_counters_resp (cores). */
typedef struct tarn_ethsw_mgmt_core_stats {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint64. A 64-bit value. */
    TARN_ALIGNED_8 uint64_t field_2;
    /** Field 3, uint64. A 64-bit value. */
    TARN_ALIGNED_8 uint64_t field_3;
    /** Field 4, uint64. A 64-bit value. */
    TARN_ALIGNED_8 uint64_t field_4;
    /** Field 5, uint64. A 64-bit value. */
    TARN_ALIGNED_8 uint64_t field_5;
    /** Field 6, uint64. A 64-bit value. */
    TARN_ALIGNED_8 uint64_t field_6;
    /** Field 7, uint64. A 64-bit value. */
    TARN_ALIGNED_8 uint64_t field_7;
    /** Field 8, uint64. A 64-bit value. */
    TARN_ALIGNED_8 uint64_t field_8;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_field_3 : 1;
    unsigned has_field_4 : 1;
    unsigned has_field_5 : 1;
    unsigned has_field_6 : 1;
    unsigned has_field_7 : 1;
    unsigned has_field_8 : 1;
} tarn_ethsw_mgmt_core_stats;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_core_stats);

/** Asks for the loopback state. Answered by tarn_ethsw_mgmt_get_loopback_rsp. */
typedef struct tarn_ethsw_mgmt_get_loopback {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    unsigned has_field_1 : 1;
} tarn_ethsw_mgmt_get_loopback;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_get_loopback);

/** Answer to tarn_ethsw_mgmt_get_loopback. */
typedef struct tarn_ethsw_mgmt_get_loopback_rsp {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
} tarn_ethsw_mgmt_get_loopback_rsp;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_get_loopback_rsp);

/** Asks for the status of the management interfaces; carries nothing. Answered by
 *  tarn_ethsw_mgmt_interface_status_rsp. */
typedef struct tarn_ethsw_mgmt_get_mgmt_interface_status tarn_ethsw_mgmt_get_mgmt_interface_status;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_get_mgmt_interface_status);

/** Asks for the states of the ports; carries nothing. Answered by tarn_ethsw_mgmt_port_state_info. */
typedef struct tarn_ethsw_mgmt_get_port_state_info tarn_ethsw_mgmt_get_port_state_info;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_get_port_state_info);

/** Asks what the switch is; carries nothing. Answered by tarn_ethsw_mgmt_switch_info. */
typedef struct tarn_ethsw_mgmt_get_switch_info tarn_ethsw_mgmt_get_switch_info;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_get_switch_info);

/** Status of one management interface. The gaps in the numbering belong to the format. Element of
 *  tarn_ethsw_mgmt_interface_status_rsp (interfaces). */
typedef struct tarn_ethsw_mgmt_interface_status {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    /** Field 10, uint32. A 32-bit value. */
    uint32_t field_10;
    /** Field 11, uint32. A 32-bit value. */
    uint32_t field_11;
    /** Field 20, uint64. A 64-bit value. */
    TARN_ALIGNED_8 uint64_t field_20;
    /** Field 21, uint64. A 64-bit value. */
    TARN_ALIGNED_8 uint64_t field_21;
    /** Field 22, uint64. A 64-bit value. */
    TARN_ALIGNED_8 uint64_t field_22;
    /** Field 23, uint64. A 64-bit value. */
    TARN_ALIGNED_8 uint64_t field_23;
    /** Field 24, uint64. A 64-bit value. */
    TARN_ALIGNED_8 uint64_t field_24;
    /** Field 25, uint64. A 64-bit value. */
    TARN_ALIGNED_8 uint64_t field_25;
    /** Field 26, uint64. A 64-bit value. */
    TARN_ALIGNED_8 uint64_t field_26;
    /** Field 27, uint64. A 64-bit value. */
    TARN_ALIGNED_8 uint64_t field_27;
    /** Field 28, uint64. A 64-bit value. */
    TARN_ALIGNED_8 uint64_t field_28;
    /** Field 29, uint64. A 64-bit value. */
    TARN_ALIGNED_8 uint64_t field_29;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_field_10 : 1;
    unsigned has_field_11 : 1;
    unsigned has_field_20 : 1;
    unsigned has_field_21 : 1;
    unsigned has_field_22 : 1;
    unsigned has_field_23 : 1;
    unsigned has_field_24 : 1;
    unsigned has_field_25 : 1;
    unsigned has_field_26 : 1;
    unsigned has_field_27 : 1;
    unsigned has_field_28 : 1;
    unsigned has_field_29 : 1;
} tarn_ethsw_mgmt_interface_status;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_interface_status);

/** Notification of interface status; it is sent unasked. */
typedef struct tarn_ethsw_mgmt_interface_status_notif {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    /** Field 3, uint32. A 32-bit value. */
    uint32_t field_3;
    /** Field 4, uint32. A 32-bit value. */
    uint32_t field_4;
    /** Field 5, uint32. A 32-bit value. */
    uint32_t field_5;
    /** Field 6, uint32. A 32-bit value. */
    uint32_t field_6;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_field_3 : 1;
    unsigned has_field_4 : 1;
    unsigned has_field_5 : 1;
    unsigned has_field_6 : 1;
} tarn_ethsw_mgmt_interface_status_notif;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_interface_status_notif);

/** Answer to tarn_ethsw_mgmt_get_mgmt_interface_status. */
typedef struct tarn_ethsw_mgmt_interface_status_rsp {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, repeated message tarn_ethsw_mgmt_interface_status. One entry per interface. */
    tarn_ethsw_mgmt_interface_status *interfaces;
    /** Number of elements of interfaces. */
    uint32_t interfaces_count;
    unsigned has_field_1 : 1;
    unsigned has_interfaces : 1;
} tarn_ethsw_mgmt_interface_status_rsp;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_interface_status_rsp);

/** Clears the statistics of all ports; carries nothing. Answered by
 *  tarn_ethsw_mgmt_port_clear_all_stats_resp. */
typedef struct tarn_ethsw_mgmt_port_clear_all_stats tarn_ethsw_mgmt_port_clear_all_stats;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_port_clear_all_stats);

/** Answer to tarn_ethsw_mgmt_port_clear_all_stats. */
typedef struct tarn_ethsw_mgmt_port_clear_all_stats_resp {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    unsigned has_field_1 : 1;
} tarn_ethsw_mgmt_port_clear_all_stats_resp;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_port_clear_all_stats_resp);

/** Clears the statistics of one port. Answered by tarn_ethsw_mgmt_port_clear_stats_resp. */
typedef struct tarn_ethsw_mgmt_port_clear_stats {
    /** Field 1, uint32. The port whose statistics are cleared. */
    uint32_t port;
    unsigned has_port : 1;
} tarn_ethsw_mgmt_port_clear_stats;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_port_clear_stats);

/** Answer to tarn_ethsw_mgmt_port_clear_stats. */
typedef struct tarn_ethsw_mgmt_port_clear_stats_resp {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    unsigned has_field_1 : 1;
} tarn_ethsw_mgmt_port_clear_stats_resp;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_port_clear_stats_resp);

/** Enables or disables a port. Answered by tarn_ethsw_mgmt_port_enable_resp. */
typedef struct tarn_ethsw_mgmt_port_enable {
    /** Field 1, uint32. The port to enable or disable. */
    uint32_t port;
    /** Field 2, bool. True to enable the port. */
    uint8_t enable;
    unsigned has_port : 1;
    unsigned has_enable : 1;
} tarn_ethsw_mgmt_port_enable;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_port_enable);

/** Answer to tarn_ethsw_mgmt_port_enable. */
typedef struct tarn_ethsw_mgmt_port_enable_resp {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    unsigned has_field_1 : 1;
} tarn_ethsw_mgmt_port_enable_resp;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_port_enable_resp);

/** Asks for the statistics of one port. Answered by tarn_ethsw_mgmt_port_get_statistics_resp. */
typedef struct tarn_ethsw_mgmt_port_get_statistics {
    /** Field 1, uint32. The port whose statistics are wanted. */
    uint32_t port;
    unsigned has_port : 1;
} tarn_ethsw_mgmt_port_get_statistics;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_port_get_statistics);

/** Answer to tarn_ethsw_mgmt_port_get_statistics. */
typedef struct tarn_ethsw_mgmt_port_get_statistics_resp {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    /** Field 3, uint32. A 32-bit value. */
    uint32_t field_3;
    /** Field 4, uint32. A 32-bit value. */
    uint32_t field_4;
    /** Field 5, uint32. A 32-bit value. */
    uint32_t field_5;
    /** Field 6, uint64. A 64-bit counter. */
    TARN_ALIGNED_8 uint64_t field_6;
    /** Field 7, uint64. A 64-bit counter. */
    TARN_ALIGNED_8 uint64_t field_7;
    /** Field 8, uint64. A 64-bit counter. */
    TARN_ALIGNED_8 uint64_t field_8;
    /** Field 9, uint64. A 64-bit counter. */
    TARN_ALIGNED_8 uint64_t field_9;
    /** Field 10, uint64. A 64-bit counter. */
    TARN_ALIGNED_8 uint64_t field_10;
    /** Field 11, uint64. A 64-bit counter. */
    TARN_ALIGNED_8 uint64_t field_11;
    /** Field 12, uint64. A 64-bit counter. */
    TARN_ALIGNED_8 uint64_t field_12;
    /** Field 13, uint64. A 64-bit counter. */
    TARN_ALIGNED_8 uint64_t field_13;
    /** Field 14, uint64. A 64-bit counter. */
    TARN_ALIGNED_8 uint64_t field_14;
    /** Field 15, uint64. A 64-bit counter. */
    TARN_ALIGNED_8 uint64_t field_15;
    /** Field 16, uint64. A 64-bit counter. */
    TARN_ALIGNED_8 uint64_t field_16;
    /** Field 17, uint64. A 64-bit counter. */
    TARN_ALIGNED_8 uint64_t field_17;
    /** Field 18, uint64. A 64-bit counter. */
    TARN_ALIGNED_8 uint64_t field_18;
    /** Field 19, uint64. A 64-bit counter. */
    TARN_ALIGNED_8 uint64_t field_19;
    /** Field 20, uint64. A 64-bit counter. */
    TARN_ALIGNED_8 uint64_t field_20;
    /** Field 21, uint64. A 64-bit counter. */
    TARN_ALIGNED_8 uint64_t field_21;
    /** Field 22, uint64. A 64-bit counter. */
    TARN_ALIGNED_8 uint64_t field_22;
    /** Field 23, uint64. A 64-bit counter. */
    TARN_ALIGNED_8 uint64_t field_23;
    /** Field 24, uint64. A 64-bit counter. */
    TARN_ALIGNED_8 uint64_t field_24;
    /** Field 25, uint64. A 64-bit counter. */
    TARN_ALIGNED_8 uint64_t field_25;
    /** Field 26, uint64. A 64-bit counter. */
    TARN_ALIGNED_8 uint64_t field_26;
    /** Field 27, uint64. A 64-bit counter. */
    TARN_ALIGNED_8 uint64_t field_27;
    /** Field 28, uint64. A 64-bit counter. */
    TARN_ALIGNED_8 uint64_t field_28;
    /** Field 29, uint64. A 64-bit counter. */
    TARN_ALIGNED_8 uint64_t field_29;
    /** Field 30, uint64. A 64-bit counter. */
    TARN_ALIGNED_8 uint64_t field_30;
    /** Field 31, uint64. A 64-bit counter. */
    TARN_ALIGNED_8 uint64_t field_31;
    /** Field 32, uint64. A 64-bit counter. */
    TARN_ALIGNED_8 uint64_t field_32;
    /** Field 33, uint64. A 64-bit counter. */
    TARN_ALIGNED_8 uint64_t field_33;
    /** Field 34, uint64. A 64-bit counter. */
    TARN_ALIGNED_8 uint64_t field_34;
    /** Field 35, uint64. A 64-bit counter. */
    TARN_ALIGNED_8 uint64_t field_35;
    /** Field 36, uint64. A 64-bit counter. */
    TARN_ALIGNED_8 uint64_t field_36;
    /** Field 37, uint64. A 64-bit counter. */
    TARN_ALIGNED_8 uint64_t field_37;
    /** Field 38, uint64. A 64-bit counter. */
    TARN_ALIGNED_8 uint64_t field_38;
    /** Field 39, uint32. A 32-bit value. */
    uint32_t field_39;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_field_3 : 1;
    unsigned has_field_4 : 1;
    unsigned has_field_5 : 1;
    unsigned has_field_6 : 1;
    unsigned has_field_7 : 1;
    unsigned has_field_8 : 1;
    unsigned has_field_9 : 1;
    unsigned has_field_10 : 1;
    unsigned has_field_11 : 1;
    unsigned has_field_12 : 1;
    unsigned has_field_13 : 1;
    unsigned has_field_14 : 1;
    unsigned has_field_15 : 1;
    unsigned has_field_16 : 1;
    unsigned has_field_17 : 1;
    unsigned has_field_18 : 1;
    unsigned has_field_19 : 1;
    unsigned has_field_20 : 1;
    unsigned has_field_21 : 1;
    unsigned has_field_22 : 1;
    unsigned has_field_23 : 1;
    unsigned has_field_24 : 1;
    unsigned has_field_25 : 1;
    unsigned has_field_26 : 1;
    unsigned has_field_27 : 1;
    unsigned has_field_28 : 1;
    unsigned has_field_29 : 1;
    unsigned has_field_30 : 1;
    unsigned has_field_31 : 1;
    unsigned has_field_32 : 1;
    unsigned has_field_33 : 1;
    unsigned has_field_34 : 1;
    unsigned has_field_35 : 1;
    unsigned has_field_36 : 1;
    unsigned has_field_37 : 1;
    unsigned has_field_38 : 1;
    unsigned has_field_39 : 1;
} tarn_ethsw_mgmt_port_get_statistics_resp;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_port_get_statistics_resp);

/** Time stamp: two 64-bit values and a text form. Embedded in
 *  tarn_ethsw_mgmt_port_health_history_entry (timestamp),
 *  tarn_ethsw_mgmt_debug_get_health_state_rsp (timestamp_7, timestamp_9, timestamp_11,
 *  timestamp_13, timestamp_19, timestamp_29), tarn_data_integrity_error_history_entry (timestamp),
 *  tarn_data_integrity_error_info_entry (timestamp) and tarn_ethsw_mgmt_event_stats_rsp
 *  (timestamp). */
typedef struct tarn_ethsw_mgmt_timespec {
    /** Field 1, uint64. A 64-bit value. */
    TARN_ALIGNED_8 uint64_t field_1;
    /** Field 2, uint64. A 64-bit value. */
    TARN_ALIGNED_8 uint64_t field_2;
    /** Field 3, string. The time stamp as text. */
    const char *text;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_text : 1;
} tarn_ethsw_mgmt_timespec;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_timespec);

/** Link-fault indicators of a port. Embedded in tarn_ethsw_mgmt_port_health_history_entry
 *  (link_fault_status) and tarn_ethsw_mgmt_debug_get_health_state_rsp (link_fault_status). */
typedef struct tarn_ethsw_mgmt_port_link_fault_status {
    /** Field 1, uint32. A 32-bit link-fault indicator. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit link-fault indicator. */
    uint32_t field_2;
    /** Field 3, uint32. A 32-bit link-fault indicator. */
    uint32_t field_3;
    /** Field 4, uint32. A 32-bit link-fault indicator. */
    uint32_t field_4;
    /** Field 5, uint32. A 32-bit link-fault indicator. */
    uint32_t field_5;
    /** Field 6, uint32. A 32-bit link-fault indicator. */
    uint32_t field_6;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_field_3 : 1;
    unsigned has_field_4 : 1;
    unsigned has_field_5 : 1;
    unsigned has_field_6 : 1;
} tarn_ethsw_mgmt_port_link_fault_status;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_port_link_fault_status);

/** One entry of the health history of a port. Element of tarn_ethsw_mgmt_debug_get_health_state_rsp
 *  (history). */
typedef struct tarn_ethsw_mgmt_port_health_history_entry {
    /** Field 1, message tarn_ethsw_mgmt_timespec. Time stamp of the entry. */
    tarn_ethsw_mgmt_timespec timestamp;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    /** Field 3, uint32. A 32-bit value. */
    uint32_t field_3;
    /** Field 4, uint32. A 32-bit value. */
    uint32_t field_4;
    /** Field 5, uint32. A 32-bit value. */
    uint32_t field_5;
    /** Field 6, uint32. A 32-bit value. */
    uint32_t field_6;
    /** Field 7, uint32. A 32-bit value. */
    uint32_t field_7;
    /** Field 8, message tarn_ethsw_mgmt_port_link_fault_status. The link-fault indicators. */
    tarn_ethsw_mgmt_port_link_fault_status link_fault_status;
    unsigned has_timestamp : 1;
    unsigned has_field_2 : 1;
    unsigned has_field_3 : 1;
    unsigned has_field_4 : 1;
    unsigned has_field_5 : 1;
    unsigned has_field_6 : 1;
    unsigned has_field_7 : 1;
    unsigned has_link_fault_status : 1;
} tarn_ethsw_mgmt_port_health_history_entry;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_port_health_history_entry);

/** PHY part of a port. Embedded in tarn_ethsw_mgmt_port_info (phy). */
typedef struct tarn_ethsw_mgmt_phy_info {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, message tarn_calv_eid_st. Identity record of the sibling library. */
    tarn_calv_eid_st identity;
    /** Field 3, uint32. A 32-bit value. */
    uint32_t field_3;
    /** Field 4, uint32. A 32-bit value. */
    uint32_t field_4;
    /** Field 5, uint32. A 32-bit value. */
    uint32_t field_5;
    /** Field 6, uint32. A 32-bit value. */
    uint32_t field_6;
    unsigned has_field_1 : 1;
    unsigned has_identity : 1;
    unsigned has_field_3 : 1;
    unsigned has_field_4 : 1;
    unsigned has_field_5 : 1;
    unsigned has_field_6 : 1;
} tarn_ethsw_mgmt_phy_info;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_phy_info);

/** SFP part of a port. Embedded in tarn_ethsw_mgmt_port_info (sfp). */
typedef struct tarn_ethsw_mgmt_sfp_info {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, message tarn_calv_eid_st. Identity record of the sibling library. */
    tarn_calv_eid_st identity;
    /** Field 3, bool. A truth value. */
    uint8_t field_3;
    /** Field 4, bool. A truth value. */
    uint8_t field_4;
    unsigned has_field_1 : 1;
    unsigned has_identity : 1;
    unsigned has_field_3 : 1;
    unsigned has_field_4 : 1;
} tarn_ethsw_mgmt_sfp_info;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_sfp_info);

/** One port of the switch. Element of tarn_ethsw_mgmt_switch_info (ports). */
typedef struct tarn_ethsw_mgmt_port_info {
    /** Field 1, message tarn_calv_eid_st. Identity record of the sibling library. */
    tarn_calv_eid_st identity;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    /** Field 3, string. A text. */
    const char *field_3;
    /** Field 4, message tarn_ethsw_mgmt_phy_info. The PHY of the port. */
    tarn_ethsw_mgmt_phy_info phy;
    /** Field 5, message tarn_ethsw_mgmt_sfp_info. The SFP module of the port. */
    tarn_ethsw_mgmt_sfp_info sfp;
    /** Field 6, uint32. A 32-bit value. */
    uint32_t field_6;
    /** Field 7, uint32. A 32-bit value. */
    uint32_t field_7;
    unsigned has_identity : 1;
    unsigned has_field_2 : 1;
    unsigned has_field_3 : 1;
    unsigned has_phy : 1;
    unsigned has_sfp : 1;
    unsigned has_field_6 : 1;
    unsigned has_field_7 : 1;
} tarn_ethsw_mgmt_port_info;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_port_info);

/** Masks the link interrupt of a port. Answered by tarn_ethsw_mgmt_port_mask_link_interrupt_resp. */
typedef struct tarn_ethsw_mgmt_port_mask_link_interrupt {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
} tarn_ethsw_mgmt_port_mask_link_interrupt;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_port_mask_link_interrupt);

/** Answer to tarn_ethsw_mgmt_port_mask_link_interrupt. */
typedef struct tarn_ethsw_mgmt_port_mask_link_interrupt_resp {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    unsigned has_field_1 : 1;
} tarn_ethsw_mgmt_port_mask_link_interrupt_resp;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_port_mask_link_interrupt_resp);

/** Resets a port. Answered by tarn_ethsw_mgmt_port_reset_resp. */
typedef struct tarn_ethsw_mgmt_port_reset {
    /** Field 1, uint32. The port to reset. */
    uint32_t port;
    unsigned has_port : 1;
} tarn_ethsw_mgmt_port_reset;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_port_reset);

/** Answer to tarn_ethsw_mgmt_port_reset. */
typedef struct tarn_ethsw_mgmt_port_reset_resp {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    unsigned has_field_1 : 1;
} tarn_ethsw_mgmt_port_reset_resp;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_port_reset_resp);

/** Sets the administrative state of a port. Answered by tarn_ethsw_mgmt_port_set_admin_state_resp. */
typedef struct tarn_ethsw_mgmt_port_set_admin_state {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    /** Field 3, bool. A truth value. */
    uint8_t field_3;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_field_3 : 1;
} tarn_ethsw_mgmt_port_set_admin_state;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_port_set_admin_state);

/** Answer to tarn_ethsw_mgmt_port_set_admin_state. */
typedef struct tarn_ethsw_mgmt_port_set_admin_state_resp {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    unsigned has_field_1 : 1;
} tarn_ethsw_mgmt_port_set_admin_state_resp;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_port_set_admin_state_resp);

/** Sets the link state of a port. Answered by tarn_ethsw_mgmt_port_set_link_state_resp. */
typedef struct tarn_ethsw_mgmt_port_set_link_state {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
} tarn_ethsw_mgmt_port_set_link_state;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_port_set_link_state);

/** Answer to tarn_ethsw_mgmt_port_set_link_state. */
typedef struct tarn_ethsw_mgmt_port_set_link_state_resp {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    unsigned has_field_1 : 1;
} tarn_ethsw_mgmt_port_set_link_state_resp;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_port_set_link_state_resp);

/** Sets the physical state of a port. Answered by tarn_ethsw_mgmt_port_set_phys_state_resp. */
typedef struct tarn_ethsw_mgmt_port_set_phys_state {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
} tarn_ethsw_mgmt_port_set_phys_state;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_port_set_phys_state);

/** Answer to tarn_ethsw_mgmt_port_set_phys_state. */
typedef struct tarn_ethsw_mgmt_port_set_phys_state_resp {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    unsigned has_field_1 : 1;
} tarn_ethsw_mgmt_port_set_phys_state_resp;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_port_set_phys_state_resp);

/** State of one port. Element of tarn_ethsw_mgmt_port_state_info (ports). */
typedef struct tarn_ethsw_mgmt_port_status {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    /** Field 3, uint32. A 32-bit value. */
    uint32_t field_3;
    /** Field 4, uint32. A 32-bit value. */
    uint32_t field_4;
    /** Field 5, uint32. A 32-bit value. */
    uint32_t field_5;
    /** Field 6, uint32. A 32-bit value. */
    uint32_t field_6;
    /** Field 7, uint32. A 32-bit value. */
    uint32_t field_7;
    /** Field 8, uint32. A 32-bit value. */
    uint32_t field_8;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_field_3 : 1;
    unsigned has_field_4 : 1;
    unsigned has_field_5 : 1;
    unsigned has_field_6 : 1;
    unsigned has_field_7 : 1;
    unsigned has_field_8 : 1;
} tarn_ethsw_mgmt_port_status;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_port_status);

/** Answer to tarn_ethsw_mgmt_get_port_state_info. */
typedef struct tarn_ethsw_mgmt_port_state_info {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, repeated message tarn_ethsw_mgmt_port_status. One entry per port. */
    tarn_ethsw_mgmt_port_status *ports;
    /** Number of elements of ports. */
    uint32_t ports_count;
    unsigned has_field_1 : 1;
    unsigned has_ports : 1;
} tarn_ethsw_mgmt_port_state_info;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_port_state_info);

/** Sets the loopback state. Answered by tarn_ethsw_mgmt_set_loopback_rsp. */
typedef struct tarn_ethsw_mgmt_set_loopback {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
} tarn_ethsw_mgmt_set_loopback;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_set_loopback);

/** Answer to tarn_ethsw_mgmt_set_loopback. */
typedef struct tarn_ethsw_mgmt_set_loopback_rsp {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    unsigned has_field_1 : 1;
} tarn_ethsw_mgmt_set_loopback_rsp;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_set_loopback_rsp);

/** Tells whether the switch is available. */
typedef struct tarn_ethsw_mgmt_switch_available {
    /** Field 1, bool. True when the switch is available. */
    uint8_t available;
    unsigned has_available : 1;
} tarn_ethsw_mgmt_switch_available;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_switch_available);

/** Identity, name and ports of the switch. Answer to tarn_ethsw_mgmt_get_switch_info. */
typedef struct tarn_ethsw_mgmt_switch_info {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, message tarn_calv_eid_st. Identity of the switch. */
    tarn_calv_eid_st identity;
    /** Field 3, uint32. A 32-bit value. */
    uint32_t field_3;
    /** Field 4, string. A name. */
    const char *name;
    /** Field 5, uint32. A 32-bit value. */
    uint32_t field_5;
    /** Field 6, bool. A truth value. */
    uint8_t field_6;
    /** Field 7, uint32. A 32-bit value. */
    uint32_t field_7;
    /** Field 8, repeated message tarn_ethsw_mgmt_port_info. The ports of the switch. */
    tarn_ethsw_mgmt_port_info *ports;
    /** Number of elements of ports. */
    uint32_t ports_count;
    /** Field 9, uint64. A 64-bit value. */
    TARN_ALIGNED_8 uint64_t field_9;
    unsigned has_field_1 : 1;
    unsigned has_identity : 1;
    unsigned has_field_3 : 1;
    unsigned has_name : 1;
    unsigned has_field_5 : 1;
    unsigned has_field_6 : 1;
    unsigned has_field_7 : 1;
    unsigned has_ports : 1;
    unsigned has_field_9 : 1;
} tarn_ethsw_mgmt_switch_info;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_switch_info);

/** Hands the switch over to the peer; carries nothing. Answered by
 *  tarn_ethsw_mgmt_yield_switch_to_peer_response. */
typedef struct tarn_ethsw_mgmt_yield_switch_to_peer tarn_ethsw_mgmt_yield_switch_to_peer;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_yield_switch_to_peer);

/** Answer to tarn_ethsw_mgmt_yield_switch_to_peer. */
typedef struct tarn_ethsw_mgmt_yield_switch_to_peer_response {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, message tarn_esd_location_info. Location record; its defaults are not zero. */
    tarn_esd_location_info location;
    unsigned has_field_1 : 1;
    unsigned has_location : 1;
} tarn_ethsw_mgmt_yield_switch_to_peer_response;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_yield_switch_to_peer_response);

#endif
