/* SPDX-License-Identifier: MIT */
/* Generated from ethsw_mgmt/classification.proto by generator/regenerate. Do not edit: change the schema and run it. */

/** @file
 * Packet classification and protection: PCL flows and rules, policing with its statistics, and port
 * security.
 */

#ifndef TARN_ETHSW_MGMT_CLASSIFICATION_H
#define TARN_ETHSW_MGMT_CLASSIFICATION_H

#include "runtime/record.h"

/** Adds a PCL flow. Answered by tarn_ethsw_mgmt_add_pcl_flow_resp. */
typedef struct tarn_ethsw_mgmt_add_pcl_flow {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    /** Field 3, bytes. A byte string. */
    const uint8_t *field_3;
    /** Number of bytes at field_3. */
    uint32_t field_3_length;
    /** Field 4, bytes. A byte string. */
    const uint8_t *field_4;
    /** Number of bytes at field_4. */
    uint32_t field_4_length;
    /** Field 5, bytes. A byte string. */
    const uint8_t *field_5;
    /** Number of bytes at field_5. */
    uint32_t field_5_length;
    /** Field 6, bytes. A byte string. */
    const uint8_t *field_6;
    /** Number of bytes at field_6. */
    uint32_t field_6_length;
    /** Field 7, uint32. A 32-bit value. */
    uint32_t field_7;
    /** Field 8, uint32. A 32-bit value. */
    uint32_t field_8;
    /** Field 9, bytes. A byte string. */
    const uint8_t *field_9;
    /** Number of bytes at field_9. */
    uint32_t field_9_length;
    /** Field 10, bytes. A byte string. */
    const uint8_t *field_10;
    /** Number of bytes at field_10. */
    uint32_t field_10_length;
    /** Field 11, bytes. A byte string. */
    const uint8_t *field_11;
    /** Number of bytes at field_11. */
    uint32_t field_11_length;
    /** Field 12, bytes. A byte string. */
    const uint8_t *field_12;
    /** Number of bytes at field_12. */
    uint32_t field_12_length;
    /** Field 13, uint32. A 32-bit value. */
    uint32_t field_13;
    /** Field 14, uint32. A 32-bit value. */
    uint32_t field_14;
    /** Field 15, uint32. A 32-bit value. */
    uint32_t field_15;
    /** Field 16, bytes. A byte string. */
    const uint8_t *field_16;
    /** Number of bytes at field_16. */
    uint32_t field_16_length;
    /** Field 17, bytes. A byte string. */
    const uint8_t *field_17;
    /** Number of bytes at field_17. */
    uint32_t field_17_length;
    /** Field 18, bytes. A byte string. */
    const uint8_t *field_18;
    /** Number of bytes at field_18. */
    uint32_t field_18_length;
    /** Field 19, uint32. A 32-bit value. */
    uint32_t field_19;
    /** Field 20, uint32. A 32-bit value. */
    uint32_t field_20;
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
} tarn_ethsw_mgmt_add_pcl_flow;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_add_pcl_flow);

/** Answer to tarn_ethsw_mgmt_add_pcl_flow. */
typedef struct tarn_ethsw_mgmt_add_pcl_flow_resp {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
} tarn_ethsw_mgmt_add_pcl_flow_resp;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_add_pcl_flow_resp);

/** Clears a PCL flow. Answered by tarn_ethsw_mgmt_clear_pcl_flow_resp. */
typedef struct tarn_ethsw_mgmt_clear_pcl_flow {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    unsigned has_field_1 : 1;
} tarn_ethsw_mgmt_clear_pcl_flow;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_clear_pcl_flow);

/** Answer to tarn_ethsw_mgmt_clear_pcl_flow. */
typedef struct tarn_ethsw_mgmt_clear_pcl_flow_resp {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
} tarn_ethsw_mgmt_clear_pcl_flow_resp;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_clear_pcl_flow_resp);

/** Deletes a PCL flow. Answered by tarn_ethsw_mgmt_del_pcl_flow_resp. */
typedef struct tarn_ethsw_mgmt_del_pcl_flow {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    unsigned has_field_1 : 1;
} tarn_ethsw_mgmt_del_pcl_flow;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_del_pcl_flow);

/** Answer to tarn_ethsw_mgmt_del_pcl_flow. */
typedef struct tarn_ethsw_mgmt_del_pcl_flow_resp {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
} tarn_ethsw_mgmt_del_pcl_flow_resp;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_del_pcl_flow_resp);

/** Dynamic counter data per UP. Element of tarn_ethsw_mgmt_policer_dynamic_counter_stats
 *  (per_up_data). */
typedef struct tarn_ethsw_mgmt_dynamic_counter_per_up_data {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    /** Field 3, uint64. A 64-bit value. */
    TARN_ALIGNED_8 uint64_t field_3;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_field_3 : 1;
} tarn_ethsw_mgmt_dynamic_counter_per_up_data;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_dynamic_counter_per_up_data);

/** Asks for the PCL configuration. Answered by tarn_ethsw_mgmt_get_pcl_resp. */
typedef struct tarn_ethsw_mgmt_get_pcl {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    /** Field 3, uint32. A 32-bit value. */
    uint32_t field_3;
    /** Field 4, bool. A truth value. */
    uint8_t field_4;
    /** Field 5, bool. A truth value. */
    uint8_t field_5;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_field_3 : 1;
    unsigned has_field_4 : 1;
    unsigned has_field_5 : 1;
} tarn_ethsw_mgmt_get_pcl;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_get_pcl);

/** One entry of the PCL configuration. Element of tarn_ethsw_mgmt_get_pcl_resp (configs). */
typedef struct tarn_ethsw_mgmt_pcl_cfg_info {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    /** Field 3, uint32. A 32-bit value. */
    uint32_t field_3;
    /** Field 4, bool. A truth value. */
    uint8_t field_4;
    /** Field 5, uint32. A 32-bit value. */
    uint32_t field_5;
    /** Field 6, bool. A truth value. */
    uint8_t field_6;
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
    /** Field 12, bool. A truth value. */
    uint8_t field_12;
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
} tarn_ethsw_mgmt_pcl_cfg_info;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_pcl_cfg_info);

/** Match part of a PCL rule. Embedded in tarn_ethsw_mgmt_pcl_rule_info (match_1, match_2). */
typedef struct tarn_ethsw_mgmt_pcl_rule_match {
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
    /** Field 8, uint64. A 64-bit value. */
    TARN_ALIGNED_8 uint64_t field_8;
    /** Field 9, uint64. A 64-bit value. */
    TARN_ALIGNED_8 uint64_t field_9;
    /** Field 10, uint32. A 32-bit value. */
    uint32_t field_10;
    /** Field 11, uint32. A 32-bit value. */
    uint32_t field_11;
    /** Field 12, uint32. A 32-bit value. */
    uint32_t field_12;
    /** Field 13, uint32. A 32-bit value. */
    uint32_t field_13;
    /** Field 14, uint64. A 64-bit value. */
    TARN_ALIGNED_8 uint64_t field_14;
    /** Field 15, uint64. A 64-bit value. */
    TARN_ALIGNED_8 uint64_t field_15;
    /** Field 16, uint64. A 64-bit value. */
    TARN_ALIGNED_8 uint64_t field_16;
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
} tarn_ethsw_mgmt_pcl_rule_match;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_pcl_rule_match);

/** Action part of a PCL rule. Embedded in tarn_ethsw_mgmt_pcl_rule_info (action). */
typedef struct tarn_ethsw_mgmt_pcl_rule_action {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, bool. A truth value. */
    uint8_t field_2;
    /** Field 3, bool. A truth value. */
    uint8_t field_3;
    /** Field 4, bool. A truth value. */
    uint8_t field_4;
    /** Field 5, bool. A truth value. */
    uint8_t field_5;
    /** Field 6, uint32. A 32-bit value. */
    uint32_t field_6;
    /** Field 7, uint32. A 32-bit value. */
    uint32_t field_7;
    /** Field 8, uint32. A 32-bit value. */
    uint32_t field_8;
    /** Field 9, bool. A truth value. */
    uint8_t field_9;
    /** Field 10, uint32. A 32-bit value. */
    uint32_t field_10;
    /** Field 11, uint32. A 32-bit value. */
    uint32_t field_11;
    /** Field 12, uint32. A 32-bit value. */
    uint32_t field_12;
    /** Field 13, uint32. A 32-bit value. */
    uint32_t field_13;
    /** Field 14, bool. A truth value. */
    uint8_t field_14;
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
} tarn_ethsw_mgmt_pcl_rule_action;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_pcl_rule_action);

/** Policing part of a PCL rule. Embedded in tarn_ethsw_mgmt_pcl_rule_info (policing_4, policing_5,
 *  policing_6). */
typedef struct tarn_ethsw_mgmt_policing {
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
    /** Field 16, bool. A truth value. */
    uint8_t field_16;
    /** Field 17, bool. A truth value. */
    uint8_t field_17;
    /** Field 18, uint32. A 32-bit value. */
    uint32_t field_18;
    /** Field 19, uint32. A 32-bit value. */
    uint32_t field_19;
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
} tarn_ethsw_mgmt_policing;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_policing);

/** One PCL rule: two match parts, an action part and three policing parts, all embedded. Element of
 *  tarn_ethsw_mgmt_get_pcl_resp (rules_4, rules_5). */
typedef struct tarn_ethsw_mgmt_pcl_rule_info {
    /** Field 1, message tarn_ethsw_mgmt_pcl_rule_match. First match part. */
    tarn_ethsw_mgmt_pcl_rule_match match_1;
    /** Field 2, message tarn_ethsw_mgmt_pcl_rule_match. Second match part. */
    tarn_ethsw_mgmt_pcl_rule_match match_2;
    /** Field 3, message tarn_ethsw_mgmt_pcl_rule_action. The action part. */
    tarn_ethsw_mgmt_pcl_rule_action action;
    /** Field 4, message tarn_ethsw_mgmt_policing. First policing part. */
    tarn_ethsw_mgmt_policing policing_4;
    /** Field 5, message tarn_ethsw_mgmt_policing. Second policing part. */
    tarn_ethsw_mgmt_policing policing_5;
    /** Field 6, message tarn_ethsw_mgmt_policing. Third policing part. */
    tarn_ethsw_mgmt_policing policing_6;
    unsigned has_match_1 : 1;
    unsigned has_match_2 : 1;
    unsigned has_action : 1;
    unsigned has_policing_4 : 1;
    unsigned has_policing_5 : 1;
    unsigned has_policing_6 : 1;
} tarn_ethsw_mgmt_pcl_rule_info;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_pcl_rule_info);

/** Answer to tarn_ethsw_mgmt_get_pcl. */
typedef struct tarn_ethsw_mgmt_get_pcl_resp {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    /** Field 3, repeated message tarn_ethsw_mgmt_pcl_cfg_info. The configuration entries. */
    tarn_ethsw_mgmt_pcl_cfg_info *configs;
    /** Number of elements of configs. */
    uint32_t configs_count;
    /** Field 4, repeated message tarn_ethsw_mgmt_pcl_rule_info. First list of rules. */
    tarn_ethsw_mgmt_pcl_rule_info *rules_4;
    /** Number of elements of rules_4. */
    uint32_t rules_4_count;
    /** Field 5, repeated message tarn_ethsw_mgmt_pcl_rule_info. Second list of rules. */
    tarn_ethsw_mgmt_pcl_rule_info *rules_5;
    /** Number of elements of rules_5. */
    uint32_t rules_5_count;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_configs : 1;
    unsigned has_rules_4 : 1;
    unsigned has_rules_5 : 1;
} tarn_ethsw_mgmt_get_pcl_resp;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_get_pcl_resp);

/** Statistics of the dynamic counters of a policer. Element of
 *  tarn_ethsw_mgmt_port_policer_statistics_info (dynamic_counters). */
typedef struct tarn_ethsw_mgmt_policer_dynamic_counter_stats {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, repeated message tarn_ethsw_mgmt_dynamic_counter_per_up_data. The per-UP entries. */
    tarn_ethsw_mgmt_dynamic_counter_per_up_data *per_up_data;
    /** Number of elements of per_up_data. */
    uint32_t per_up_data_count;
    unsigned has_field_1 : 1;
    unsigned has_per_up_data : 1;
} tarn_ethsw_mgmt_policer_dynamic_counter_stats;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_policer_dynamic_counter_stats);

/** Asks for the policer statistics of ports. Answered by
 *  tarn_ethsw_mgmt_port_policer_statistics_resp. */
typedef struct tarn_ethsw_mgmt_port_get_policer_statistics {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
} tarn_ethsw_mgmt_port_get_policer_statistics;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_port_get_policer_statistics);

/** Policer statistics of a port. The gap in the numbering belongs to the format. Element of
 *  tarn_ethsw_mgmt_port_policer_statistics_resp (statistics). */
typedef struct tarn_ethsw_mgmt_port_policer_statistics_info {
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
    /** Field 6, uint64. A 64-bit value. */
    TARN_ALIGNED_8 uint64_t field_6;
    /** Field 7, uint64. A 64-bit value. */
    TARN_ALIGNED_8 uint64_t field_7;
    /** Field 8, bool. A truth value. */
    uint8_t field_8;
    /** Field 9, repeated message tarn_ethsw_mgmt_policer_dynamic_counter_stats. Dynamic counter
     *  statistics. */
    tarn_ethsw_mgmt_policer_dynamic_counter_stats *dynamic_counters;
    /** Number of elements of dynamic_counters. */
    uint32_t dynamic_counters_count;
    /** Field 10, uint32. A 32-bit value. */
    uint32_t field_10;
    /** Field 11, uint32. A 32-bit value. */
    uint32_t field_11;
    /** Field 13, uint64. A 64-bit value. */
    TARN_ALIGNED_8 uint64_t field_13;
    /** Field 14, uint64. A 64-bit value. */
    TARN_ALIGNED_8 uint64_t field_14;
    /** Field 15, uint64. A 64-bit value. */
    TARN_ALIGNED_8 uint64_t field_15;
    /** Field 16, uint64. A 64-bit value. */
    TARN_ALIGNED_8 uint64_t field_16;
    /** Field 17, string. A text. */
    const char *field_17;
    /** Field 18, uint32. A 32-bit value. */
    uint32_t field_18;
    /** Field 19, uint32. A 32-bit value. */
    uint32_t field_19;
    /** Field 20, uint32. A 32-bit value. */
    uint32_t field_20;
    /** Field 21, uint32. A 32-bit value. */
    uint32_t field_21;
    /** Field 22, bool. A truth value. */
    uint8_t field_22;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_field_3 : 1;
    unsigned has_field_4 : 1;
    unsigned has_field_5 : 1;
    unsigned has_field_6 : 1;
    unsigned has_field_7 : 1;
    unsigned has_field_8 : 1;
    unsigned has_dynamic_counters : 1;
    unsigned has_field_10 : 1;
    unsigned has_field_11 : 1;
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
} tarn_ethsw_mgmt_port_policer_statistics_info;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_port_policer_statistics_info);

/** Answer to tarn_ethsw_mgmt_port_get_policer_statistics. */
typedef struct tarn_ethsw_mgmt_port_policer_statistics_resp {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, repeated message tarn_ethsw_mgmt_port_policer_statistics_info. The policer
     *  statistics. */
    tarn_ethsw_mgmt_port_policer_statistics_info *statistics;
    /** Number of elements of statistics. */
    uint32_t statistics_count;
    /** Field 3, bool. A truth value. */
    uint8_t field_3;
    unsigned has_field_1 : 1;
    unsigned has_statistics : 1;
    unsigned has_field_3 : 1;
} tarn_ethsw_mgmt_port_policer_statistics_resp;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_port_policer_statistics_resp);

/** SDR part of the policing to set. Element of tarn_ethsw_mgmt_set_policing (sdrs). */
typedef struct tarn_ethsw_mgmt_set_policing_sdr {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    /** Field 3, uint32. A 32-bit value. */
    uint32_t field_3;
    /** Field 4, repeated uint32. A list of 32-bit values. */
    uint32_t *field_4;
    /** Number of elements of field_4. */
    uint32_t field_4_count;
    /** Field 5, repeated uint32. A list of 32-bit values. */
    uint32_t *field_5;
    /** Number of elements of field_5. */
    uint32_t field_5_count;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_field_3 : 1;
    unsigned has_field_4 : 1;
    unsigned has_field_5 : 1;
} tarn_ethsw_mgmt_set_policing_sdr;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_set_policing_sdr);

/** Dynamic-counter part of the policing to set. Element of tarn_ethsw_mgmt_set_policing
 *  (dynamic_counters). */
typedef struct tarn_ethsw_mgmt_set_policing_dynamic_counters {
    /** Field 1, bool. A truth value. */
    uint8_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    /** Field 3, uint32. A 32-bit value. */
    uint32_t field_3;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_field_3 : 1;
} tarn_ethsw_mgmt_set_policing_dynamic_counters;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_set_policing_dynamic_counters);

/** Sets up policing. Answered by tarn_ethsw_mgmt_set_policing_resp. */
typedef struct tarn_ethsw_mgmt_set_policing {
    /** Field 1, bool. A truth value. */
    uint8_t field_1;
    /** Field 2, bool. A truth value. */
    uint8_t field_2;
    /** Field 3, uint32. A 32-bit value. */
    uint32_t field_3;
    /** Field 4, uint32. A 32-bit value. */
    uint32_t field_4;
    /** Field 5, uint32. A 32-bit value. */
    uint32_t field_5;
    /** Field 6, uint32. A 32-bit value. */
    uint32_t field_6;
    /** Field 7, repeated message tarn_ethsw_mgmt_set_policing_sdr. The SDR parts. */
    tarn_ethsw_mgmt_set_policing_sdr *sdrs;
    /** Number of elements of sdrs. */
    uint32_t sdrs_count;
    /** Field 8, repeated message tarn_ethsw_mgmt_set_policing_dynamic_counters. The dynamic-counter
     *  parts. */
    tarn_ethsw_mgmt_set_policing_dynamic_counters *dynamic_counters;
    /** Number of elements of dynamic_counters. */
    uint32_t dynamic_counters_count;
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
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_field_3 : 1;
    unsigned has_field_4 : 1;
    unsigned has_field_5 : 1;
    unsigned has_field_6 : 1;
    unsigned has_sdrs : 1;
    unsigned has_dynamic_counters : 1;
    unsigned has_field_9 : 1;
    unsigned has_field_10 : 1;
    unsigned has_field_11 : 1;
    unsigned has_field_12 : 1;
    unsigned has_field_13 : 1;
    unsigned has_field_14 : 1;
    unsigned has_field_15 : 1;
} tarn_ethsw_mgmt_set_policing;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_set_policing);

/** Answer to tarn_ethsw_mgmt_set_policing. */
typedef struct tarn_ethsw_mgmt_set_policing_resp {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, bool. A truth value. */
    uint8_t field_2;
    /** Field 3, bool. A truth value. */
    uint8_t field_3;
    /** Field 4, bool. A truth value. */
    uint8_t field_4;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_field_3 : 1;
    unsigned has_field_4 : 1;
} tarn_ethsw_mgmt_set_policing_resp;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_set_policing_resp);

/** Sets up port security. Answered by tarn_ethsw_mgmt_set_security_resp. */
typedef struct tarn_ethsw_mgmt_set_security {
    /** Field 1, bool. A truth value. */
    uint8_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
} tarn_ethsw_mgmt_set_security;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_set_security);

/** Answer to tarn_ethsw_mgmt_set_security. */
typedef struct tarn_ethsw_mgmt_set_security_resp {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    unsigned has_field_1 : 1;
} tarn_ethsw_mgmt_set_security_resp;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_set_security_resp);

/** Asks for PCL flows. Answered by tarn_ethsw_mgmt_show_pcl_flow_resp. */
typedef struct tarn_ethsw_mgmt_show_pcl_flow {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    unsigned has_field_1 : 1;
} tarn_ethsw_mgmt_show_pcl_flow;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_show_pcl_flow);

/** Port entry of a PCL flow. Element of tarn_ethsw_mgmt_show_pcl_flow_info (ports). */
typedef struct tarn_ethsw_mgmt_show_pcl_flow_port_info {
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
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_field_3 : 1;
    unsigned has_field_4 : 1;
    unsigned has_field_5 : 1;
} tarn_ethsw_mgmt_show_pcl_flow_port_info;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_show_pcl_flow_port_info);

/** One PCL flow. Element of tarn_ethsw_mgmt_show_pcl_flow_resp (flows). */
typedef struct tarn_ethsw_mgmt_show_pcl_flow_info {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    /** Field 3, repeated message tarn_ethsw_mgmt_show_pcl_flow_port_info. The port entries of the
     *  flow. */
    tarn_ethsw_mgmt_show_pcl_flow_port_info *ports;
    /** Number of elements of ports. */
    uint32_t ports_count;
    /** Field 4, bool. A truth value. */
    uint8_t field_4;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_ports : 1;
    unsigned has_field_4 : 1;
} tarn_ethsw_mgmt_show_pcl_flow_info;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_show_pcl_flow_info);

/** Answer to tarn_ethsw_mgmt_show_pcl_flow. */
typedef struct tarn_ethsw_mgmt_show_pcl_flow_resp {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, repeated message tarn_ethsw_mgmt_show_pcl_flow_info. The flows. */
    tarn_ethsw_mgmt_show_pcl_flow_info *flows;
    /** Number of elements of flows. */
    uint32_t flows_count;
    unsigned has_field_1 : 1;
    unsigned has_flows : 1;
} tarn_ethsw_mgmt_show_pcl_flow_resp;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_show_pcl_flow_resp);

/** Asks to show policing. Answered by tarn_ethsw_mgmt_show_policing_resp. */
typedef struct tarn_ethsw_mgmt_show_policing {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    /** Field 3, uint32. A 32-bit value. */
    uint32_t field_3;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_field_3 : 1;
} tarn_ethsw_mgmt_show_policing;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_show_policing);

/** Port part of the policing shown. Element of tarn_ethsw_mgmt_show_policing_resp (ports_13,
 *  ports_14). */
typedef struct tarn_ethsw_mgmt_show_policing_port {
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
    /** Field 11, string. A text. */
    const char *field_11;
    /** Field 12, uint32. A 32-bit value. */
    uint32_t field_12;
    /** Field 13, uint32. A 32-bit value. */
    uint32_t field_13;
    /** Field 14, bool. A truth value. */
    uint8_t field_14;
    /** Field 15, uint32. A 32-bit value. */
    uint32_t field_15;
    /** Field 16, uint32. A 32-bit value. */
    uint32_t field_16;
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
} tarn_ethsw_mgmt_show_policing_port;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_show_policing_port);

/** SDR part of the policing shown. Element of tarn_ethsw_mgmt_show_policing_resp (sdrs). */
typedef struct tarn_ethsw_mgmt_show_policing_sdr {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    /** Field 3, uint32. A 32-bit value. */
    uint32_t field_3;
    /** Field 4, repeated uint32. A list of 32-bit values. */
    uint32_t *field_4;
    /** Number of elements of field_4. */
    uint32_t field_4_count;
    /** Field 5, repeated uint32. A list of 32-bit values. */
    uint32_t *field_5;
    /** Number of elements of field_5. */
    uint32_t field_5_count;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_field_3 : 1;
    unsigned has_field_4 : 1;
    unsigned has_field_5 : 1;
} tarn_ethsw_mgmt_show_policing_sdr;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_show_policing_sdr);

/** Answer to tarn_ethsw_mgmt_show_policing. */
typedef struct tarn_ethsw_mgmt_show_policing_resp {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, bool. A truth value. */
    uint8_t field_2;
    /** Field 3, bool. A truth value. */
    uint8_t field_3;
    /** Field 4, bool. A truth value. */
    uint8_t field_4;
    /** Field 5, bool. A truth value. */
    uint8_t field_5;
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
    /** Field 12, repeated message tarn_ethsw_mgmt_show_policing_sdr. The SDR parts. */
    tarn_ethsw_mgmt_show_policing_sdr *sdrs;
    /** Number of elements of sdrs. */
    uint32_t sdrs_count;
    /** Field 13, repeated message tarn_ethsw_mgmt_show_policing_port. First list of port parts. */
    tarn_ethsw_mgmt_show_policing_port *ports_13;
    /** Number of elements of ports_13. */
    uint32_t ports_13_count;
    /** Field 14, repeated message tarn_ethsw_mgmt_show_policing_port. Second list of port parts. */
    tarn_ethsw_mgmt_show_policing_port *ports_14;
    /** Number of elements of ports_14. */
    uint32_t ports_14_count;
    /** Field 15, bool. A truth value. */
    uint8_t field_15;
    /** Field 16, bool. A truth value. */
    uint8_t field_16;
    /** Field 17, uint32. A 32-bit value. */
    uint32_t field_17;
    /** Field 18, bool. A truth value. */
    uint8_t field_18;
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
    unsigned has_sdrs : 1;
    unsigned has_ports_13 : 1;
    unsigned has_ports_14 : 1;
    unsigned has_field_15 : 1;
    unsigned has_field_16 : 1;
    unsigned has_field_17 : 1;
    unsigned has_field_18 : 1;
} tarn_ethsw_mgmt_show_policing_resp;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_show_policing_resp);

/** Asks to show port security; carries nothing. Answered by tarn_ethsw_mgmt_show_security_resp. */
typedef struct tarn_ethsw_mgmt_show_security tarn_ethsw_mgmt_show_security;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_show_security);

/** Address-learning part of port security. Embedded in tarn_ethsw_mgmt_show_security_resp (au). */
typedef struct tarn_ethsw_mgmt_show_security_au {
    /** Field 1, bool. A truth value. */
    uint8_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
} tarn_ethsw_mgmt_show_security_au;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_show_security_au);

/** CPU part of port security. Element of tarn_ethsw_mgmt_show_security_resp (cpus). */
typedef struct tarn_ethsw_mgmt_show_security_cpu {
    /** Field 1, bool. A truth value. */
    uint8_t field_1;
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
} tarn_ethsw_mgmt_show_security_cpu;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_show_security_cpu);

/** Answer to tarn_ethsw_mgmt_show_security. */
typedef struct tarn_ethsw_mgmt_show_security_resp {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    /** Field 3, message tarn_ethsw_mgmt_show_security_au. The address-learning part. */
    tarn_ethsw_mgmt_show_security_au au;
    /** Field 4, repeated message tarn_ethsw_mgmt_show_security_cpu. The CPU parts. */
    tarn_ethsw_mgmt_show_security_cpu *cpus;
    /** Number of elements of cpus. */
    uint32_t cpus_count;
    /** Field 5, uint32. A 32-bit value. */
    uint32_t field_5;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_au : 1;
    unsigned has_cpus : 1;
    unsigned has_field_5 : 1;
} tarn_ethsw_mgmt_show_security_resp;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_show_security_resp);

#endif
