/* SPDX-License-Identifier: MIT */
/* Generated from ethsw_mgmt/forwarding.proto by generator/regenerate. Do not edit: change the schema and run it. */

/** @file
 * Forwarding: bridge counters, the forwarding database (FDB), VLAN settings, rules and tables, and
 * trunks.
 */

#ifndef TARN_ETHSW_MGMT_FORWARDING_H
#define TARN_ETHSW_MGMT_FORWARDING_H

#include "runtime/record.h"

/** Configures the bridge counters. Answered by tarn_ethsw_mgmt_bridge_cfg_counters_response. */
typedef struct tarn_ethsw_mgmt_bridge_cfg_counters {
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
} tarn_ethsw_mgmt_bridge_cfg_counters;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_bridge_cfg_counters);

/** Answer to tarn_ethsw_mgmt_bridge_cfg_counters. */
typedef struct tarn_ethsw_mgmt_bridge_cfg_counters_response {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
} tarn_ethsw_mgmt_bridge_cfg_counters_response;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_bridge_cfg_counters_response);

/** Egress counters of the bridge. Element of tarn_ethsw_mgmt_bridge_get_counters_response (egress). */
typedef struct tarn_ethsw_mgmt_bridge_egress_counters {
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
    /** Field 9, string. A text. */
    const char *field_9;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_field_3 : 1;
    unsigned has_field_4 : 1;
    unsigned has_field_5 : 1;
    unsigned has_field_6 : 1;
    unsigned has_field_7 : 1;
    unsigned has_field_8 : 1;
    unsigned has_field_9 : 1;
} tarn_ethsw_mgmt_bridge_egress_counters;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_bridge_egress_counters);

/** Counter block of the forwarding database. Embedded in tarn_ethsw_mgmt_fdb_get_counters_response
 *  (fdb_counters). */
typedef struct tarn_ethsw_mgmt_bridge_fdb_counters {
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
    /** Field 9, uint32. A 32-bit value. */
    uint32_t field_9;
    /** Field 10, uint32. A 32-bit value. */
    uint32_t field_10;
    /** Field 11, uint32. A 32-bit value. */
    uint32_t field_11;
    /** Field 12, uint32. A 32-bit value. */
    uint32_t field_12;
    /** Field 13, uint32. A 32-bit value. */
    uint32_t field_13;
    /** Field 14, uint32. A 32-bit value. */
    uint32_t field_14;
    /** Field 15, uint32. A 32-bit value. */
    uint32_t field_15;
    /** Field 16, uint32. A 32-bit value. */
    uint32_t field_16;
    /** Field 17, uint32. A 32-bit value. */
    uint32_t field_17;
    /** Field 18, bool. A truth value. */
    uint8_t field_18;
    /** Field 19, uint32. A 32-bit value. */
    uint32_t field_19;
    /** Field 20, bool. A truth value. */
    uint8_t field_20;
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
} tarn_ethsw_mgmt_bridge_fdb_counters;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_bridge_fdb_counters);

/** Asks for the bridge counters; carries nothing. Answered by
 *  tarn_ethsw_mgmt_bridge_get_counters_response. */
typedef struct tarn_ethsw_mgmt_bridge_get_counters tarn_ethsw_mgmt_bridge_get_counters;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_bridge_get_counters);

/** Ingress counters of the bridge. Element of tarn_ethsw_mgmt_bridge_get_counters_response
 *  (ingress). */
typedef struct tarn_ethsw_mgmt_bridge_ingress_counters {
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
    /** Field 6, string. A text. */
    const char *field_6;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_field_3 : 1;
    unsigned has_field_4 : 1;
    unsigned has_field_5 : 1;
    unsigned has_field_6 : 1;
} tarn_ethsw_mgmt_bridge_ingress_counters;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_bridge_ingress_counters);

/** Security-breach counters of the bridge. Element of tarn_ethsw_mgmt_bridge_get_counters_response
 *  (sec_breach_counters). */
typedef struct tarn_ethsw_mgmt_bridge_sec_breach_counters {
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
} tarn_ethsw_mgmt_bridge_sec_breach_counters;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_bridge_sec_breach_counters);

/** Details of a security breach. Element of tarn_ethsw_mgmt_bridge_get_counters_response
 *  (sec_breach_details). */
typedef struct tarn_ethsw_mgmt_bridge_sec_breach_details {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    /** Field 3, bytes. A byte string. */
    const uint8_t *field_3;
    /** Number of bytes at field_3. */
    uint32_t field_3_length;
    /** Field 4, uint32. A 32-bit value. */
    uint32_t field_4;
    /** Field 5, string. A text. */
    const char *field_5;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_field_3 : 1;
    unsigned has_field_4 : 1;
    unsigned has_field_5 : 1;
} tarn_ethsw_mgmt_bridge_sec_breach_details;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_bridge_sec_breach_details);

/** Answer to tarn_ethsw_mgmt_bridge_get_counters. */
typedef struct tarn_ethsw_mgmt_bridge_get_counters_response {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, repeated message tarn_ethsw_mgmt_bridge_ingress_counters. Ingress counters. */
    tarn_ethsw_mgmt_bridge_ingress_counters *ingress;
    /** Number of elements of ingress. */
    uint32_t ingress_count;
    /** Field 3, repeated message tarn_ethsw_mgmt_bridge_egress_counters. Egress counters. */
    tarn_ethsw_mgmt_bridge_egress_counters *egress;
    /** Number of elements of egress. */
    uint32_t egress_count;
    /** Field 4, repeated message tarn_ethsw_mgmt_bridge_sec_breach_counters. Security-breach
     *  counters. */
    tarn_ethsw_mgmt_bridge_sec_breach_counters *sec_breach_counters;
    /** Number of elements of sec_breach_counters. */
    uint32_t sec_breach_counters_count;
    /** Field 5, repeated message tarn_ethsw_mgmt_bridge_sec_breach_details. Security-breach
     *  details. */
    tarn_ethsw_mgmt_bridge_sec_breach_details *sec_breach_details;
    /** Number of elements of sec_breach_details. */
    uint32_t sec_breach_details_count;
    unsigned has_field_1 : 1;
    unsigned has_ingress : 1;
    unsigned has_egress : 1;
    unsigned has_sec_breach_counters : 1;
    unsigned has_sec_breach_details : 1;
} tarn_ethsw_mgmt_bridge_get_counters_response;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_bridge_get_counters_response);

/** Clears the bridge counters; carries nothing. Answered by
 *  tarn_ethsw_mgmt_clear_bridge_counters_resp. */
typedef struct tarn_ethsw_mgmt_clear_bridge_counters tarn_ethsw_mgmt_clear_bridge_counters;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_clear_bridge_counters);

/** Answer to tarn_ethsw_mgmt_clear_bridge_counters. */
typedef struct tarn_ethsw_mgmt_clear_bridge_counters_resp {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    unsigned has_field_1 : 1;
} tarn_ethsw_mgmt_clear_bridge_counters_resp;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_clear_bridge_counters_resp);

/** Requests the VLAN test mode, for debugging. Answered by
 *  tarn_ethsw_mgmt_debug_vlan_test_mode_response. */
typedef struct tarn_ethsw_mgmt_debug_vlan_test_mode {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    /** Field 3, uint32. A 32-bit value. */
    uint32_t field_3;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_field_3 : 1;
} tarn_ethsw_mgmt_debug_vlan_test_mode;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_debug_vlan_test_mode);

/** Answer to tarn_ethsw_mgmt_debug_vlan_test_mode. */
typedef struct tarn_ethsw_mgmt_debug_vlan_test_mode_response {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    unsigned has_field_1 : 1;
} tarn_ethsw_mgmt_debug_vlan_test_mode_response;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_debug_vlan_test_mode_response);

/** Requests the restore after the VLAN test mode; carries nothing. Answered by
 *  tarn_ethsw_mgmt_debug_vlan_test_mode_restore_response. */
typedef struct tarn_ethsw_mgmt_debug_vlan_test_mode_restore tarn_ethsw_mgmt_debug_vlan_test_mode_restore;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_debug_vlan_test_mode_restore);

/** Answer to tarn_ethsw_mgmt_debug_vlan_test_mode_restore. */
typedef struct tarn_ethsw_mgmt_debug_vlan_test_mode_restore_response {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    unsigned has_field_1 : 1;
} tarn_ethsw_mgmt_debug_vlan_test_mode_restore_response;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_debug_vlan_test_mode_restore_response);

/** Flushes the forwarding tables. Answered by tarn_ethsw_mgmt_fdb_flush_fwding_tables_resp. */
typedef struct tarn_ethsw_mgmt_fdb_flush_fwding_tables {
    /** Field 1, bool. A truth value. */
    uint8_t field_1;
    unsigned has_field_1 : 1;
} tarn_ethsw_mgmt_fdb_flush_fwding_tables;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_fdb_flush_fwding_tables);

/** Answer to tarn_ethsw_mgmt_fdb_flush_fwding_tables. */
typedef struct tarn_ethsw_mgmt_fdb_flush_fwding_tables_resp {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    unsigned has_field_1 : 1;
} tarn_ethsw_mgmt_fdb_flush_fwding_tables_resp;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_fdb_flush_fwding_tables_resp);

/** Asks for the FDB counters; carries nothing. Answered by
 *  tarn_ethsw_mgmt_fdb_get_counters_response. */
typedef struct tarn_ethsw_mgmt_fdb_get_counters tarn_ethsw_mgmt_fdb_get_counters;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_fdb_get_counters);

/** Counters of an FDB table. Element of tarn_ethsw_mgmt_fdb_get_counters_response (table_counters). */
typedef struct tarn_ethsw_mgmt_fdb_table_counters {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    /** Field 3, uint32. A 32-bit value. */
    uint32_t field_3;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_field_3 : 1;
} tarn_ethsw_mgmt_fdb_table_counters;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_fdb_table_counters);

/** Answer to tarn_ethsw_mgmt_fdb_get_counters. */
typedef struct tarn_ethsw_mgmt_fdb_get_counters_response {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, message tarn_ethsw_mgmt_bridge_fdb_counters. The counter block. */
    tarn_ethsw_mgmt_bridge_fdb_counters fdb_counters;
    /** Field 3, repeated message tarn_ethsw_mgmt_fdb_table_counters. Counters of the tables. */
    tarn_ethsw_mgmt_fdb_table_counters *table_counters;
    /** Number of elements of table_counters. */
    uint32_t table_counters_count;
    unsigned has_field_1 : 1;
    unsigned has_fdb_counters : 1;
    unsigned has_table_counters : 1;
} tarn_ethsw_mgmt_fdb_get_counters_response;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_fdb_get_counters_response);

/** Asks for entries of the FDB table. Answered by tarn_ethsw_mgmt_fdb_get_table_entry_resp. */
typedef struct tarn_ethsw_mgmt_fdb_get_table_entry {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    /** Field 3, uint32. A 32-bit value. */
    uint32_t field_3;
    /** Field 4, uint32. A 32-bit value. */
    uint32_t field_4;
    /** Field 5, uint64. A 64-bit value. */
    TARN_ALIGNED_8 uint64_t field_5;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_field_3 : 1;
    unsigned has_field_4 : 1;
    unsigned has_field_5 : 1;
} tarn_ethsw_mgmt_fdb_get_table_entry;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_fdb_get_table_entry);

/** One entry of the FDB table. Element of tarn_ethsw_mgmt_fdb_get_table_entry_resp (entries). */
typedef struct tarn_ethsw_mgmt_fdb_table_entry {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    /** Field 3, uint64. A 64-bit value. */
    TARN_ALIGNED_8 uint64_t field_3;
    /** Field 4, uint32. A 32-bit value. */
    uint32_t field_4;
    /** Field 5, uint32. A 32-bit value. */
    uint32_t field_5;
    /** Field 6, uint32. A 32-bit value. */
    uint32_t field_6;
    /** Field 7, uint32. A 32-bit value. */
    uint32_t field_7;
    /** Field 8, bool. A truth value. */
    uint8_t field_8;
    /** Field 9, uint32. A 32-bit value. */
    uint32_t field_9;
    /** Field 10, uint32. A 32-bit value. */
    uint32_t field_10;
    /** Field 11, uint32. A 32-bit value. */
    uint32_t field_11;
    /** Field 12, uint32. A 32-bit value. */
    uint32_t field_12;
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
} tarn_ethsw_mgmt_fdb_table_entry;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_fdb_table_entry);

/** Answer to tarn_ethsw_mgmt_fdb_get_table_entry. */
typedef struct tarn_ethsw_mgmt_fdb_get_table_entry_resp {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, repeated message tarn_ethsw_mgmt_fdb_table_entry. The table entries. */
    tarn_ethsw_mgmt_fdb_table_entry *entries;
    /** Number of elements of entries. */
    uint32_t entries_count;
    /** Field 3, uint32. A 32-bit value. */
    uint32_t field_3;
    /** Field 4, string. A text. */
    const char *field_4;
    unsigned has_field_1 : 1;
    unsigned has_entries : 1;
    unsigned has_field_3 : 1;
    unsigned has_field_4 : 1;
} tarn_ethsw_mgmt_fdb_get_table_entry_resp;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_fdb_get_table_entry_resp);

/** Asks about the FDB table; carries nothing. Answered by tarn_ethsw_mgmt_fdb_get_table_info_resp. */
typedef struct tarn_ethsw_mgmt_fdb_get_table_info tarn_ethsw_mgmt_fdb_get_table_info;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_fdb_get_table_info);

/** Answer to tarn_ethsw_mgmt_fdb_get_table_info. */
typedef struct tarn_ethsw_mgmt_fdb_get_table_info_resp {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    /** Field 3, uint32. A 32-bit value. */
    uint32_t field_3;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_field_3 : 1;
} tarn_ethsw_mgmt_fdb_get_table_info_resp;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_fdb_get_table_info_resp);

/** Asks for the VLAN settings of ports. Answered by tarn_ethsw_mgmt_port_get_vlan_info_resp. */
typedef struct tarn_ethsw_mgmt_port_get_vlan_info {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    /** Field 3, uint32. A 32-bit value. */
    uint32_t field_3;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_field_3 : 1;
} tarn_ethsw_mgmt_port_get_vlan_info;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_port_get_vlan_info);

/** One VLAN setting of a port. Element of tarn_ethsw_mgmt_port_get_vlan_info_resp (vlans). */
typedef struct tarn_ethsw_mgmt_port_vlan_info {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    /** Field 3, bool. A truth value. */
    uint8_t field_3;
    /** Field 4, uint32. A 32-bit value. */
    uint32_t field_4;
    /** Field 5, uint32. A 32-bit value. */
    uint32_t field_5;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_field_3 : 1;
    unsigned has_field_4 : 1;
    unsigned has_field_5 : 1;
} tarn_ethsw_mgmt_port_vlan_info;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_port_vlan_info);

/** Answer to tarn_ethsw_mgmt_port_get_vlan_info. */
typedef struct tarn_ethsw_mgmt_port_get_vlan_info_resp {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, repeated message tarn_ethsw_mgmt_port_vlan_info. The VLAN settings. */
    tarn_ethsw_mgmt_port_vlan_info *vlans;
    /** Number of elements of vlans. */
    uint32_t vlans_count;
    unsigned has_field_1 : 1;
    unsigned has_vlans : 1;
} tarn_ethsw_mgmt_port_get_vlan_info_resp;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_port_get_vlan_info_resp);

/** Asks for the VLAN rules of ports. Answered by tarn_ethsw_mgmt_port_vlan_rules_resp. */
typedef struct tarn_ethsw_mgmt_port_get_vlan_rules {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
} tarn_ethsw_mgmt_port_get_vlan_rules;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_port_get_vlan_rules);

/** Sets the VLAN of a port. Answered by tarn_ethsw_mgmt_port_set_vlan_resp. */
typedef struct tarn_ethsw_mgmt_port_set_vlan {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    /** Field 3, bool. A truth value. */
    uint8_t field_3;
    /** Field 4, bool. A truth value. */
    uint8_t field_4;
    /** Field 5, bool. A truth value. */
    uint8_t field_5;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_field_3 : 1;
    unsigned has_field_4 : 1;
    unsigned has_field_5 : 1;
} tarn_ethsw_mgmt_port_set_vlan;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_port_set_vlan);

/** Answer to tarn_ethsw_mgmt_port_set_vlan. */
typedef struct tarn_ethsw_mgmt_port_set_vlan_resp {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    unsigned has_field_1 : 1;
} tarn_ethsw_mgmt_port_set_vlan_resp;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_port_set_vlan_resp);

/** VLAN part of a VLAN rule. Element of tarn_ethsw_mgmt_port_vlan_rule_info (vlans). */
typedef struct tarn_ethsw_mgmt_port_vlan_rule_vlan_info {
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
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_field_3 : 1;
    unsigned has_field_4 : 1;
    unsigned has_field_5 : 1;
    unsigned has_field_6 : 1;
    unsigned has_field_7 : 1;
} tarn_ethsw_mgmt_port_vlan_rule_vlan_info;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_port_vlan_rule_vlan_info);

/** One entry of the VLAN rules. Element of tarn_ethsw_mgmt_port_vlan_rules_resp (rules). */
typedef struct tarn_ethsw_mgmt_port_vlan_rule_info {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, repeated message tarn_ethsw_mgmt_port_vlan_rule_vlan_info. The VLAN parts of the
     *  rule. */
    tarn_ethsw_mgmt_port_vlan_rule_vlan_info *vlans;
    /** Number of elements of vlans. */
    uint32_t vlans_count;
    unsigned has_field_1 : 1;
    unsigned has_vlans : 1;
} tarn_ethsw_mgmt_port_vlan_rule_info;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_port_vlan_rule_info);

/** Answer to tarn_ethsw_mgmt_port_get_vlan_rules. */
typedef struct tarn_ethsw_mgmt_port_vlan_rules_resp {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, repeated message tarn_ethsw_mgmt_port_vlan_rule_info. The VLAN rules. */
    tarn_ethsw_mgmt_port_vlan_rule_info *rules;
    /** Number of elements of rules. */
    uint32_t rules_count;
    unsigned has_field_1 : 1;
    unsigned has_rules : 1;
} tarn_ethsw_mgmt_port_vlan_rules_resp;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_port_vlan_rules_resp);

/** Asks for the members of the trunks; carries nothing. Answered by
 *  tarn_ethsw_mgmt_show_trunk_resp. */
typedef struct tarn_ethsw_mgmt_show_trunk tarn_ethsw_mgmt_show_trunk;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_show_trunk);

/** One member of a trunk. Element of tarn_ethsw_mgmt_show_trunk_resp (members). */
typedef struct tarn_ethsw_mgmt_trunk_member_entry {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
} tarn_ethsw_mgmt_trunk_member_entry;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_trunk_member_entry);

/** Answer to tarn_ethsw_mgmt_show_trunk. */
typedef struct tarn_ethsw_mgmt_show_trunk_resp {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    /** Field 3, repeated message tarn_ethsw_mgmt_trunk_member_entry. The trunk members. */
    tarn_ethsw_mgmt_trunk_member_entry *members;
    /** Number of elements of members. */
    uint32_t members_count;
    /** Field 4, string. A text. */
    const char *field_4;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_members : 1;
    unsigned has_field_4 : 1;
} tarn_ethsw_mgmt_show_trunk_resp;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_show_trunk_resp);

/** Asks for entries of the VLAN table. Answered by tarn_ethsw_mgmt_vlan_get_table_entry_resp. */
typedef struct tarn_ethsw_mgmt_vlan_get_table_entry {
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
} tarn_ethsw_mgmt_vlan_get_table_entry;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_vlan_get_table_entry);

/** One entry of the VLAN table. Element of tarn_ethsw_mgmt_vlan_get_table_entry_resp (entries). */
typedef struct tarn_ethsw_mgmt_vlan_table_entry {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, repeated uint32. A list of 32-bit values. */
    uint32_t *field_2;
    /** Number of elements of field_2. */
    uint32_t field_2_count;
    /** Field 3, string. A text. */
    const char *field_3;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_field_3 : 1;
} tarn_ethsw_mgmt_vlan_table_entry;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_vlan_table_entry);

/** Answer to tarn_ethsw_mgmt_vlan_get_table_entry. */
typedef struct tarn_ethsw_mgmt_vlan_get_table_entry_resp {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, repeated message tarn_ethsw_mgmt_vlan_table_entry. The table entries. */
    tarn_ethsw_mgmt_vlan_table_entry *entries;
    /** Number of elements of entries. */
    uint32_t entries_count;
    unsigned has_field_1 : 1;
    unsigned has_entries : 1;
} tarn_ethsw_mgmt_vlan_get_table_entry_resp;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_vlan_get_table_entry_resp);

/** Asks for entries of the VLAN translation table. Answered by
 *  tarn_ethsw_mgmt_vlan_translation_get_table_entry_resp. */
typedef struct tarn_ethsw_mgmt_vlan_translation_get_table_entry {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    /** Field 3, uint32. A 32-bit value. */
    uint32_t field_3;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_field_3 : 1;
} tarn_ethsw_mgmt_vlan_translation_get_table_entry;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_vlan_translation_get_table_entry);

/** One entry of the VLAN translation table. Element of
 *  tarn_ethsw_mgmt_vlan_translation_get_table_entry_resp (entries). */
typedef struct tarn_ethsw_mgmt_vlan_translation_table_entry {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    /** Field 3, uint32. A 32-bit value. */
    uint32_t field_3;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_field_3 : 1;
} tarn_ethsw_mgmt_vlan_translation_table_entry;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_vlan_translation_table_entry);

/** Answer to tarn_ethsw_mgmt_vlan_translation_get_table_entry. */
typedef struct tarn_ethsw_mgmt_vlan_translation_get_table_entry_resp {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, repeated message tarn_ethsw_mgmt_vlan_translation_table_entry. The table entries. */
    tarn_ethsw_mgmt_vlan_translation_table_entry *entries;
    /** Number of elements of entries. */
    uint32_t entries_count;
    unsigned has_field_1 : 1;
    unsigned has_entries : 1;
} tarn_ethsw_mgmt_vlan_translation_get_table_entry_resp;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_vlan_translation_get_table_entry_resp);

#endif
