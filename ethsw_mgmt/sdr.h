/* SPDX-License-Identifier: MIT */
/* Generated from ethsw_mgmt/sdr.proto by generator/regenerate. Do not edit: change the schema and run it. */

/** @file
 * SDR definitions, the setting and reading of them, and the SDR statistics of the whole switch and
 * of its ports.
 */

#ifndef TARN_ETHSW_MGMT_SDR_H
#define TARN_ETHSW_MGMT_SDR_H

#include "runtime/record.h"

/** Asks for the SDR definitions. Answered by tarn_ethsw_mgmt_sdr_info. */
typedef struct tarn_ethsw_mgmt_get_sdr_info {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    unsigned has_field_1 : 1;
} tarn_ethsw_mgmt_get_sdr_info;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_get_sdr_info);

/** Asks for the global SDR statistics. Answered by tarn_ethsw_mgmt_glbl_sdr_statistics_resp. */
typedef struct tarn_ethsw_mgmt_glbl_get_sdr_statistics {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    unsigned has_field_1 : 1;
} tarn_ethsw_mgmt_glbl_get_sdr_statistics;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_glbl_get_sdr_statistics);

/** Counters of one traffic class. Element of tarn_ethsw_mgmt_sdr_statistics_pg_info
 *  (traffic_classes) and tarn_ethsw_mgmt_sdr_statistics_sdr_info (traffic_classes). */
typedef struct tarn_ethsw_mgmt_sdr_statistics_tc_data {
    /** Field 1, uint64. A 64-bit counter. */
    TARN_ALIGNED_8 uint64_t field_1;
    /** Field 2, uint64. A 64-bit counter. */
    TARN_ALIGNED_8 uint64_t field_2;
    /** Field 3, uint64. A 64-bit counter. */
    TARN_ALIGNED_8 uint64_t field_3;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_field_3 : 1;
} tarn_ethsw_mgmt_sdr_statistics_tc_data;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_sdr_statistics_tc_data);

/** SDR statistics of one priority group. Element of tarn_ethsw_mgmt_glbl_sdr_statistics_info (pgs). */
typedef struct tarn_ethsw_mgmt_sdr_statistics_pg_info {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    /** Field 3, uint32. A 32-bit value. */
    uint32_t field_3;
    /** Field 4, repeated message tarn_ethsw_mgmt_sdr_statistics_tc_data. Counters per traffic
     *  class. */
    tarn_ethsw_mgmt_sdr_statistics_tc_data *traffic_classes;
    /** Number of elements of traffic_classes. */
    uint32_t traffic_classes_count;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_field_3 : 1;
    unsigned has_traffic_classes : 1;
} tarn_ethsw_mgmt_sdr_statistics_pg_info;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_sdr_statistics_pg_info);

/** One entry of the global SDR statistics. Element of tarn_ethsw_mgmt_glbl_sdr_statistics_resp
 *  (statistics). */
typedef struct tarn_ethsw_mgmt_glbl_sdr_statistics_info {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, repeated message tarn_ethsw_mgmt_sdr_statistics_pg_info. Statistics per priority
     *  group. */
    tarn_ethsw_mgmt_sdr_statistics_pg_info *pgs;
    /** Number of elements of pgs. */
    uint32_t pgs_count;
    unsigned has_field_1 : 1;
    unsigned has_pgs : 1;
} tarn_ethsw_mgmt_glbl_sdr_statistics_info;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_glbl_sdr_statistics_info);

/** Answer to tarn_ethsw_mgmt_glbl_get_sdr_statistics. */
typedef struct tarn_ethsw_mgmt_glbl_sdr_statistics_resp {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, repeated message tarn_ethsw_mgmt_glbl_sdr_statistics_info. The global statistics
     *  entries. */
    tarn_ethsw_mgmt_glbl_sdr_statistics_info *statistics;
    /** Number of elements of statistics. */
    uint32_t statistics_count;
    unsigned has_field_1 : 1;
    unsigned has_statistics : 1;
} tarn_ethsw_mgmt_glbl_sdr_statistics_resp;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_glbl_sdr_statistics_resp);

/** Clears SDR statistics of ports. Answered by tarn_ethsw_mgmt_port_clear_sdr_statistics_resp. */
typedef struct tarn_ethsw_mgmt_port_clear_sdr_statistics {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
} tarn_ethsw_mgmt_port_clear_sdr_statistics;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_port_clear_sdr_statistics);

/** Answer to tarn_ethsw_mgmt_port_clear_sdr_statistics. */
typedef struct tarn_ethsw_mgmt_port_clear_sdr_statistics_resp {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    unsigned has_field_1 : 1;
} tarn_ethsw_mgmt_port_clear_sdr_statistics_resp;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_port_clear_sdr_statistics_resp);

/** Asks for SDR statistics of ports. Answered by tarn_ethsw_mgmt_port_sdr_statistics_resp. */
typedef struct tarn_ethsw_mgmt_port_get_sdr_statistics {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
} tarn_ethsw_mgmt_port_get_sdr_statistics;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_port_get_sdr_statistics);

/** Statistics of one SDR on a port. Element of tarn_ethsw_mgmt_port_sdr_statistics_info (sdrs). */
typedef struct tarn_ethsw_mgmt_sdr_statistics_sdr_info {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    /** Field 3, uint32. A 32-bit value. */
    uint32_t field_3;
    /** Field 4, repeated message tarn_ethsw_mgmt_sdr_statistics_tc_data. Counters per traffic
     *  class. */
    tarn_ethsw_mgmt_sdr_statistics_tc_data *traffic_classes;
    /** Number of elements of traffic_classes. */
    uint32_t traffic_classes_count;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_field_3 : 1;
    unsigned has_traffic_classes : 1;
} tarn_ethsw_mgmt_sdr_statistics_sdr_info;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_sdr_statistics_sdr_info);

/** One entry of the per-port SDR statistics. Element of tarn_ethsw_mgmt_port_sdr_statistics_resp
 *  (statistics). */
typedef struct tarn_ethsw_mgmt_port_sdr_statistics_info {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, repeated message tarn_ethsw_mgmt_sdr_statistics_sdr_info. Statistics per SDR. */
    tarn_ethsw_mgmt_sdr_statistics_sdr_info *sdrs;
    /** Number of elements of sdrs. */
    uint32_t sdrs_count;
    unsigned has_field_1 : 1;
    unsigned has_sdrs : 1;
} tarn_ethsw_mgmt_port_sdr_statistics_info;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_port_sdr_statistics_info);

/** Answer to tarn_ethsw_mgmt_port_get_sdr_statistics. */
typedef struct tarn_ethsw_mgmt_port_sdr_statistics_resp {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, repeated message tarn_ethsw_mgmt_port_sdr_statistics_info. The per-port statistics
     *  entries. */
    tarn_ethsw_mgmt_port_sdr_statistics_info *statistics;
    /** Number of elements of statistics. */
    uint32_t statistics_count;
    unsigned has_field_1 : 1;
    unsigned has_statistics : 1;
} tarn_ethsw_mgmt_port_sdr_statistics_resp;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_port_sdr_statistics_resp);

/** One VLAN entry of an SDR definition. Element of tarn_ethsw_mgmt_sdr_data (vlans). */
typedef struct tarn_ethsw_mgmt_sdr_vlan {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, string. A text. */
    const char *field_2;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
} tarn_ethsw_mgmt_sdr_vlan;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_sdr_vlan);

/** One SDR definition. Element of tarn_ethsw_mgmt_sdr_cfg (sdrs) and tarn_ethsw_mgmt_sdr_info
 *  (sdrs). */
typedef struct tarn_ethsw_mgmt_sdr_data {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
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
    /** Field 7, repeated message tarn_ethsw_mgmt_sdr_vlan. The VLAN entries. */
    tarn_ethsw_mgmt_sdr_vlan *vlans;
    /** Number of elements of vlans. */
    uint32_t vlans_count;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_field_3 : 1;
    unsigned has_field_4 : 1;
    unsigned has_field_5 : 1;
    unsigned has_field_6 : 1;
    unsigned has_vlans : 1;
} tarn_ethsw_mgmt_sdr_data;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_sdr_data);

/** Sets SDR definitions. Answered by tarn_ethsw_mgmt_sdr_cfg_resp. */
typedef struct tarn_ethsw_mgmt_sdr_cfg {
    /** Field 1, repeated message tarn_ethsw_mgmt_sdr_data. The SDR definitions to set. */
    tarn_ethsw_mgmt_sdr_data *sdrs;
    /** Number of elements of sdrs. */
    uint32_t sdrs_count;
    unsigned has_sdrs : 1;
} tarn_ethsw_mgmt_sdr_cfg;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_sdr_cfg);

/** Result for one SDR definition. Element of tarn_ethsw_mgmt_sdr_cfg_resp (results). */
typedef struct tarn_ethsw_mgmt_sdr_cfg_result {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
} tarn_ethsw_mgmt_sdr_cfg_result;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_sdr_cfg_result);

/** Answer to tarn_ethsw_mgmt_sdr_cfg. */
typedef struct tarn_ethsw_mgmt_sdr_cfg_resp {
    /** Field 1, repeated message tarn_ethsw_mgmt_sdr_cfg_result. The results, per definition. */
    tarn_ethsw_mgmt_sdr_cfg_result *results;
    /** Number of elements of results. */
    uint32_t results_count;
    unsigned has_results : 1;
} tarn_ethsw_mgmt_sdr_cfg_resp;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_sdr_cfg_resp);

/** The SDR definitions as read back. Answer to tarn_ethsw_mgmt_get_sdr_info. */
typedef struct tarn_ethsw_mgmt_sdr_info {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, repeated message tarn_ethsw_mgmt_sdr_data. The SDR definitions. */
    tarn_ethsw_mgmt_sdr_data *sdrs;
    /** Number of elements of sdrs. */
    uint32_t sdrs_count;
    unsigned has_field_1 : 1;
    unsigned has_sdrs : 1;
} tarn_ethsw_mgmt_sdr_info;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_sdr_info);

#endif
