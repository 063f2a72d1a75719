/* SPDX-License-Identifier: MIT */
/* Generated from ethsw_mgmt/diagnostics.proto by generator/regenerate. Do not edit: change the schema and run it. */

/** @file
 * Debugging and diagnosis: the shell command, health, hardware counters, trace level, register peek
 * and poke, reset, and the register information tree.
 */

#ifndef TARN_ETHSW_MGMT_DIAGNOSTICS_H
#define TARN_ETHSW_MGMT_DIAGNOSTICS_H

#include "ethsw_mgmt/switch.h"
#include "runtime/record.h"

/** Runs a command of the bcm shell. Answered by tarn_ethsw_mgmt_bcm_shell_cmd_resp. */
typedef struct tarn_ethsw_mgmt_bcm_shell_cmd {
    /** Field 1, string. The command. */
    const char *command;
    unsigned has_command : 1;
} tarn_ethsw_mgmt_bcm_shell_cmd;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_bcm_shell_cmd);

/** Answer to tarn_ethsw_mgmt_bcm_shell_cmd. */
typedef struct tarn_ethsw_mgmt_bcm_shell_cmd_resp {
    /** Field 1, string. What the command put out. */
    const char *output;
    unsigned has_output : 1;
} tarn_ethsw_mgmt_bcm_shell_cmd_resp;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_bcm_shell_cmd_resp);

/** Asks for the CAPI status; carries nothing. Answered by
 *  tarn_ethsw_mgmt_debug_get_capi_status_resp. */
typedef struct tarn_ethsw_mgmt_debug_get_capi_status tarn_ethsw_mgmt_debug_get_capi_status;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_debug_get_capi_status);

/** Answer to tarn_ethsw_mgmt_debug_get_capi_status. */
typedef struct tarn_ethsw_mgmt_debug_get_capi_status_resp {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, bool. A truth value. */
    uint8_t field_2;
    /** Field 3, bool. A truth value. */
    uint8_t field_3;
    /** Field 4, bool. A truth value. */
    uint8_t field_4;
    /** Field 5, uint32. A 32-bit value. */
    uint32_t field_5;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_field_3 : 1;
    unsigned has_field_4 : 1;
    unsigned has_field_5 : 1;
} tarn_ethsw_mgmt_debug_get_capi_status_resp;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_debug_get_capi_status_resp);

/** Asks for the health poll mode. Answered by tarn_ethsw_mgmt_debug_get_health_poll_mode_rsp. */
typedef struct tarn_ethsw_mgmt_debug_get_health_poll_mode {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    unsigned has_field_1 : 1;
} tarn_ethsw_mgmt_debug_get_health_poll_mode;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_debug_get_health_poll_mode);

/** Answer to tarn_ethsw_mgmt_debug_get_health_poll_mode. */
typedef struct tarn_ethsw_mgmt_debug_get_health_poll_mode_rsp {
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
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_field_3 : 1;
    unsigned has_field_4 : 1;
    unsigned has_field_5 : 1;
} tarn_ethsw_mgmt_debug_get_health_poll_mode_rsp;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_debug_get_health_poll_mode_rsp);

/** Asks for the health state. Answered by tarn_ethsw_mgmt_debug_get_health_state_rsp. */
typedef struct tarn_ethsw_mgmt_debug_get_health_state {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    unsigned has_field_1 : 1;
} tarn_ethsw_mgmt_debug_get_health_state;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_debug_get_health_state);

/** Answer to tarn_ethsw_mgmt_debug_get_health_state. */
typedef struct tarn_ethsw_mgmt_debug_get_health_state_rsp {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, string. A text. */
    const char *field_2;
    /** Field 3, bool. A truth value. */
    uint8_t field_3;
    /** Field 4, bool. A truth value. */
    uint8_t field_4;
    /** Field 5, uint32. A 32-bit value. */
    uint32_t field_5;
    /** Field 6, uint32. A 32-bit value. */
    uint32_t field_6;
    /** Field 7, message tarn_ethsw_mgmt_timespec. A time stamp. */
    tarn_ethsw_mgmt_timespec timestamp_7;
    /** Field 8, uint32. A 32-bit value. */
    uint32_t field_8;
    /** Field 9, message tarn_ethsw_mgmt_timespec. A time stamp. */
    tarn_ethsw_mgmt_timespec timestamp_9;
    /** Field 10, uint32. A 32-bit value. */
    uint32_t field_10;
    /** Field 11, message tarn_ethsw_mgmt_timespec. A time stamp. */
    tarn_ethsw_mgmt_timespec timestamp_11;
    /** Field 12, uint32. A 32-bit value. */
    uint32_t field_12;
    /** Field 13, message tarn_ethsw_mgmt_timespec. A time stamp. */
    tarn_ethsw_mgmt_timespec timestamp_13;
    /** Field 14, uint32. A 32-bit value. */
    uint32_t field_14;
    /** Field 15, uint32. A 32-bit value. */
    uint32_t field_15;
    /** Field 16, uint32. A 32-bit value. */
    uint32_t field_16;
    /** Field 17, uint32. A 32-bit value. */
    uint32_t field_17;
    /** Field 18, uint32. A 32-bit value. */
    uint32_t field_18;
    /** Field 19, message tarn_ethsw_mgmt_timespec. A time stamp. */
    tarn_ethsw_mgmt_timespec timestamp_19;
    /** Field 20, uint32. A 32-bit value. */
    uint32_t field_20;
    /** Field 21, uint32. A 32-bit value. */
    uint32_t field_21;
    /** Field 22, bool. A truth value. */
    uint8_t field_22;
    /** Field 23, bool. A truth value. */
    uint8_t field_23;
    /** Field 24, bool. A truth value. */
    uint8_t field_24;
    /** Field 25, bool. A truth value. */
    uint8_t field_25;
    /** Field 26, bool. A truth value. */
    uint8_t field_26;
    /** Field 27, bool. A truth value. */
    uint8_t field_27;
    /** Field 28, uint32. A 32-bit value. */
    uint32_t field_28;
    /** Field 29, message tarn_ethsw_mgmt_timespec. A time stamp. */
    tarn_ethsw_mgmt_timespec timestamp_29;
    /** Field 30, uint32. A 32-bit value. */
    uint32_t field_30;
    /** Field 31, uint32. A 32-bit value. */
    uint32_t field_31;
    /** Field 32, uint32. A 32-bit value. */
    uint32_t field_32;
    /** Field 33, uint32. A 32-bit value. */
    uint32_t field_33;
    /** Field 34, uint32. A 32-bit value. */
    uint32_t field_34;
    /** Field 35, uint32. A 32-bit value. */
    uint32_t field_35;
    /** Field 36, uint32. A 32-bit value. */
    uint32_t field_36;
    /** Field 37, uint32. A 32-bit value. */
    uint32_t field_37;
    /** Field 38, uint32. A 32-bit value. */
    uint32_t field_38;
    /** Field 39, bool. A truth value. */
    uint8_t field_39;
    /** Field 40, bool. A truth value. */
    uint8_t field_40;
    /** Field 41, bool. A truth value. */
    uint8_t field_41;
    /** Field 42, message tarn_ethsw_mgmt_port_link_fault_status. The link-fault indicators. */
    tarn_ethsw_mgmt_port_link_fault_status link_fault_status;
    /** Field 43, repeated message tarn_ethsw_mgmt_port_health_history_entry. The port health
     *  history. */
    tarn_ethsw_mgmt_port_health_history_entry *history;
    /** Number of elements of history. */
    uint32_t history_count;
    /** Field 44, bool. A truth value. */
    uint8_t field_44;
    /** Field 45, bool. A truth value. */
    uint8_t field_45;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_field_3 : 1;
    unsigned has_field_4 : 1;
    unsigned has_field_5 : 1;
    unsigned has_field_6 : 1;
    unsigned has_timestamp_7 : 1;
    unsigned has_field_8 : 1;
    unsigned has_timestamp_9 : 1;
    unsigned has_field_10 : 1;
    unsigned has_timestamp_11 : 1;
    unsigned has_field_12 : 1;
    unsigned has_timestamp_13 : 1;
    unsigned has_field_14 : 1;
    unsigned has_field_15 : 1;
    unsigned has_field_16 : 1;
    unsigned has_field_17 : 1;
    unsigned has_field_18 : 1;
    unsigned has_timestamp_19 : 1;
    unsigned has_field_20 : 1;
    unsigned has_field_21 : 1;
    unsigned has_field_22 : 1;
    unsigned has_field_23 : 1;
    unsigned has_field_24 : 1;
    unsigned has_field_25 : 1;
    unsigned has_field_26 : 1;
    unsigned has_field_27 : 1;
    unsigned has_field_28 : 1;
    unsigned has_timestamp_29 : 1;
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
    unsigned has_field_40 : 1;
    unsigned has_field_41 : 1;
    unsigned has_link_fault_status : 1;
    unsigned has_history : 1;
    unsigned has_field_44 : 1;
    unsigned has_field_45 : 1;
} tarn_ethsw_mgmt_debug_get_health_state_rsp;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_debug_get_health_state_rsp);

/** Asks for the hardware counters; carries nothing. Answered by
 *  tarn_ethsw_mgmt_debug_get_hw_counters_resp. */
typedef struct tarn_ethsw_mgmt_debug_get_hw_counters tarn_ethsw_mgmt_debug_get_hw_counters;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_debug_get_hw_counters);

/** Answer to tarn_ethsw_mgmt_debug_get_hw_counters. */
typedef struct tarn_ethsw_mgmt_debug_get_hw_counters_resp {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, bool. A truth value. */
    uint8_t field_2;
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
    /** Field 9, uint64. A 64-bit value. */
    TARN_ALIGNED_8 uint64_t field_9;
    /** Field 10, uint64. A 64-bit value. */
    TARN_ALIGNED_8 uint64_t field_10;
    /** Field 11, uint64. A 64-bit value. */
    TARN_ALIGNED_8 uint64_t field_11;
    /** Field 12, uint64. A 64-bit value. */
    TARN_ALIGNED_8 uint64_t field_12;
    /** Field 13, uint64. A 64-bit value. */
    TARN_ALIGNED_8 uint64_t field_13;
    /** Field 14, repeated message tarn_ethsw_mgmt_core_stats. The core statistics blocks. */
    tarn_ethsw_mgmt_core_stats *cores;
    /** Number of elements of cores. */
    uint32_t cores_count;
    /** Field 15, uint64. A 64-bit value. */
    TARN_ALIGNED_8 uint64_t field_15;
    /** Field 16, uint64. A 64-bit value. */
    TARN_ALIGNED_8 uint64_t field_16;
    /** Field 17, uint64. A 64-bit value. */
    TARN_ALIGNED_8 uint64_t field_17;
    /** Field 18, uint64. A 64-bit value. */
    TARN_ALIGNED_8 uint64_t field_18;
    /** Field 19, uint32. A 32-bit value. */
    uint32_t field_19;
    /** Field 20, uint64. A 64-bit value. */
    TARN_ALIGNED_8 uint64_t field_20;
    /** Field 21, uint32. A 32-bit value. */
    uint32_t field_21;
    /** Field 22, uint64. A 64-bit value. */
    TARN_ALIGNED_8 uint64_t field_22;
    /** Field 23, uint32. A 32-bit value. */
    uint32_t field_23;
    /** Field 24, uint64. A 64-bit value. */
    TARN_ALIGNED_8 uint64_t field_24;
    /** Field 25, bool. A truth value. */
    uint8_t field_25;
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
    unsigned has_cores : 1;
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
} tarn_ethsw_mgmt_debug_get_hw_counters_resp;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_debug_get_hw_counters_resp);

/** Asks for the trace level; carries nothing. Answered by
 *  tarn_ethsw_mgmt_debug_get_trace_level_resp. */
typedef struct tarn_ethsw_mgmt_debug_get_trace_level tarn_ethsw_mgmt_debug_get_trace_level;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_debug_get_trace_level);

/** Answer to tarn_ethsw_mgmt_debug_get_trace_level. */
typedef struct tarn_ethsw_mgmt_debug_get_trace_level_resp {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
} tarn_ethsw_mgmt_debug_get_trace_level_resp;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_debug_get_trace_level_resp);

/** Injects a health event. Answered by tarn_ethsw_mgmt_debug_set_health_event_rsp. */
typedef struct tarn_ethsw_mgmt_debug_set_health_event {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    /** Field 3, uint32. A 32-bit value. */
    uint32_t field_3;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_field_3 : 1;
} tarn_ethsw_mgmt_debug_set_health_event;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_debug_set_health_event);

/** Answer to tarn_ethsw_mgmt_debug_set_health_event. */
typedef struct tarn_ethsw_mgmt_debug_set_health_event_rsp {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, string. A text. */
    const char *field_2;
    /** Field 3, uint32. A 32-bit value. */
    uint32_t field_3;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_field_3 : 1;
} tarn_ethsw_mgmt_debug_set_health_event_rsp;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_debug_set_health_event_rsp);

/** Sets the health poll mode. Answered by tarn_ethsw_mgmt_debug_set_health_poll_mode_rsp. */
typedef struct tarn_ethsw_mgmt_debug_set_health_poll_mode {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
} tarn_ethsw_mgmt_debug_set_health_poll_mode;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_debug_set_health_poll_mode);

/** Answer to tarn_ethsw_mgmt_debug_set_health_poll_mode. */
typedef struct tarn_ethsw_mgmt_debug_set_health_poll_mode_rsp {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
} tarn_ethsw_mgmt_debug_set_health_poll_mode_rsp;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_debug_set_health_poll_mode_rsp);

/** Sets the trace level. Answered by tarn_ethsw_mgmt_debug_set_trace_level_resp. */
typedef struct tarn_ethsw_mgmt_debug_set_trace_level {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    unsigned has_field_1 : 1;
} tarn_ethsw_mgmt_debug_set_trace_level;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_debug_set_trace_level);

/** Answer to tarn_ethsw_mgmt_debug_set_trace_level. */
typedef struct tarn_ethsw_mgmt_debug_set_trace_level_resp {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    unsigned has_field_1 : 1;
} tarn_ethsw_mgmt_debug_set_trace_level_resp;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_debug_set_trace_level_resp);

/** Reads a switch register, for debugging. Answered by tarn_ethsw_mgmt_debug_switch_peek_response. */
typedef struct tarn_ethsw_mgmt_debug_switch_peek {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
} tarn_ethsw_mgmt_debug_switch_peek;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_debug_switch_peek);

/** Answer to tarn_ethsw_mgmt_debug_switch_peek. */
typedef struct tarn_ethsw_mgmt_debug_switch_peek_response {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    /** Field 3, uint32. A 32-bit value. */
    uint32_t field_3;
    /** Field 4, uint32. A 32-bit value. */
    uint32_t field_4;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_field_3 : 1;
    unsigned has_field_4 : 1;
} tarn_ethsw_mgmt_debug_switch_peek_response;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_debug_switch_peek_response);

/** Writes a switch register, for debugging. Answered by tarn_ethsw_mgmt_debug_switch_poke_response. */
typedef struct tarn_ethsw_mgmt_debug_switch_poke {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    /** Field 3, uint32. A 32-bit value. */
    uint32_t field_3;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_field_3 : 1;
} tarn_ethsw_mgmt_debug_switch_poke;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_debug_switch_poke);

/** Answer to tarn_ethsw_mgmt_debug_switch_poke. */
typedef struct tarn_ethsw_mgmt_debug_switch_poke_response {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    /** Field 3, uint32. A 32-bit value. */
    uint32_t field_3;
    /** Field 4, uint32. A 32-bit value. */
    uint32_t field_4;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_field_3 : 1;
    unsigned has_field_4 : 1;
} tarn_ethsw_mgmt_debug_switch_poke_response;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_debug_switch_poke_response);

/** Resets the switch. Answered by tarn_ethsw_mgmt_debug_switch_reset_response. */
typedef struct tarn_ethsw_mgmt_debug_switch_reset {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    unsigned has_field_1 : 1;
} tarn_ethsw_mgmt_debug_switch_reset;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_debug_switch_reset);

/** Answer to tarn_ethsw_mgmt_debug_switch_reset. */
typedef struct tarn_ethsw_mgmt_debug_switch_reset_response {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    unsigned has_field_1 : 1;
} tarn_ethsw_mgmt_debug_switch_reset_response;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_debug_switch_reset_response);

/** Triggers a dump of the switch configuration; carries nothing. No answer is defined for it. */
typedef struct tarn_ethsw_mgmt_debug_trigger_switch_config_dump tarn_ethsw_mgmt_debug_trigger_switch_config_dump;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_debug_trigger_switch_config_dump);

/** Asks for register information. Answered by tarn_ethsw_mgmt_reg_info_rsp. */
typedef struct tarn_ethsw_mgmt_get_reg_info {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
} tarn_ethsw_mgmt_get_reg_info;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_get_reg_info);

/** One value of a register column. Element of tarn_ethsw_mgmt_reg_column_data (values). */
typedef struct tarn_ethsw_mgmt_reg_value_data {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, string. A text. */
    const char *field_2;
    /** Field 3, uint32. A 32-bit value. */
    uint32_t field_3;
    /** Field 4, uint32. A 32-bit value. */
    uint32_t field_4;
    /** Field 5, uint32. A 32-bit value. */
    uint32_t field_5;
    /** Field 6, uint64. A 64-bit value. */
    TARN_ALIGNED_8 uint64_t field_6;
    /** Field 7, uint64. A 64-bit value. */
    TARN_ALIGNED_8 uint64_t field_7;
    /** Field 8, uint64. A 64-bit value. */
    TARN_ALIGNED_8 uint64_t field_8;
    /** Field 9, bool. A truth value. */
    uint8_t field_9;
    /** Field 10, bytes. A byte string. */
    const uint8_t *field_10;
    /** Number of bytes at field_10. */
    uint32_t field_10_length;
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
} tarn_ethsw_mgmt_reg_value_data;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_reg_value_data);

/** One column of a register section. Element of tarn_ethsw_mgmt_reg_section_data (columns). */
typedef struct tarn_ethsw_mgmt_reg_column_data {
    /** Field 1, string. A text. */
    const char *field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    /** Field 3, repeated message tarn_ethsw_mgmt_reg_value_data. The values of the column. */
    tarn_ethsw_mgmt_reg_value_data *values;
    /** Number of elements of values. */
    uint32_t values_count;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_values : 1;
} tarn_ethsw_mgmt_reg_column_data;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_reg_column_data);

/** One section of the register information. Element of tarn_ethsw_mgmt_reg_info_rsp (sections). */
typedef struct tarn_ethsw_mgmt_reg_section_data {
    /** Field 1, string. A text. */
    const char *field_1;
    /** Field 2, repeated message tarn_ethsw_mgmt_reg_column_data. The columns of the section. */
    tarn_ethsw_mgmt_reg_column_data *columns;
    /** Number of elements of columns. */
    uint32_t columns_count;
    unsigned has_field_1 : 1;
    unsigned has_columns : 1;
} tarn_ethsw_mgmt_reg_section_data;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_reg_section_data);

/** The root of the register information tree: sections, columns, values. Answer to
 *  tarn_ethsw_mgmt_get_reg_info. */
typedef struct tarn_ethsw_mgmt_reg_info_rsp {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, repeated message tarn_ethsw_mgmt_reg_section_data. The sections. */
    tarn_ethsw_mgmt_reg_section_data *sections;
    /** Number of elements of sections. */
    uint32_t sections_count;
    unsigned has_field_1 : 1;
    unsigned has_sections : 1;
} tarn_ethsw_mgmt_reg_info_rsp;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_reg_info_rsp);

#endif
