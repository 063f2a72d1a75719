/* SPDX-License-Identifier: MIT */
/* Generated from ethsw_mgmt/queue.proto by generator/regenerate. Do not edit: change the schema and run it. */

/** @file
 * Transmit queues (TXQ): their configuration and statistics as one tree of records, and the
 * clearing of the statistics.
 */

#ifndef TARN_ETHSW_MGMT_QUEUE_H
#define TARN_ETHSW_MGMT_QUEUE_H

#include "runtime/record.h"

/** Clears the transmit-queue statistics. Answered by tarn_ethsw_mgmt_clear_txq_stats_resp. */
typedef struct tarn_ethsw_mgmt_clear_txq_stats {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
} tarn_ethsw_mgmt_clear_txq_stats;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_clear_txq_stats);

/** Answer to tarn_ethsw_mgmt_clear_txq_stats. */
typedef struct tarn_ethsw_mgmt_clear_txq_stats_resp {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    unsigned has_field_1 : 1;
} tarn_ethsw_mgmt_clear_txq_stats_resp;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_clear_txq_stats_resp);

/** Asks for the transmit-queue picture. Answered by tarn_ethsw_mgmt_show_txq_resp. */
typedef struct tarn_ethsw_mgmt_show_txq {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
} tarn_ethsw_mgmt_show_txq;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_show_txq);

/** The bcm view of the global queue configuration. Embedded in tarn_ethsw_mgmt_show_txq_resp
 *  (bcm_global). */
typedef struct tarn_ethsw_mgmt_show_txq_bcm_gbl_cfg {
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
} tarn_ethsw_mgmt_show_txq_bcm_gbl_cfg;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_show_txq_bcm_gbl_cfg);

/** The bcm view of the configuration of one cosq. Element of tarn_ethsw_mgmt_show_txq_bcm_port_cfg
 *  (cosqs). */
typedef struct tarn_ethsw_mgmt_show_txq_bcm_per_cosq_cfg {
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
} tarn_ethsw_mgmt_show_txq_bcm_per_cosq_cfg;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_show_txq_bcm_per_cosq_cfg);

/** The bcm view of the queue configuration of one port. Element of tarn_ethsw_mgmt_show_txq_resp
 *  (bcm_ports). */
typedef struct tarn_ethsw_mgmt_show_txq_bcm_port_cfg {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    /** Field 3, bool. A truth value. */
    uint8_t field_3;
    /** Field 4, repeated uint32. A list of 32-bit values. */
    uint32_t *field_4;
    /** Number of elements of field_4. */
    uint32_t field_4_count;
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
    /** Field 13, repeated message tarn_ethsw_mgmt_show_txq_bcm_per_cosq_cfg. The per-cosq entries. */
    tarn_ethsw_mgmt_show_txq_bcm_per_cosq_cfg *cosqs;
    /** Number of elements of cosqs. */
    uint32_t cosqs_count;
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
    unsigned has_cosqs : 1;
} tarn_ethsw_mgmt_show_txq_bcm_port_cfg;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_show_txq_bcm_port_cfg);

/** Global transmit-queue configuration. Embedded in tarn_ethsw_mgmt_show_txq_resp (cfg_global). */
typedef struct tarn_ethsw_mgmt_show_txq_cfg_global {
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
} tarn_ethsw_mgmt_show_txq_cfg_global;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_show_txq_cfg_global);

/** Settings of a queue profile for one traffic class. Element of
 *  tarn_ethsw_mgmt_show_txq_cfg_profile (traffic_classes). */
typedef struct tarn_ethsw_mgmt_show_txq_profile_per_tc {
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
} tarn_ethsw_mgmt_show_txq_profile_per_tc;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_show_txq_profile_per_tc);

/** One queue profile. Element of tarn_ethsw_mgmt_show_txq_resp (profiles). */
typedef struct tarn_ethsw_mgmt_show_txq_cfg_profile {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, bool. A truth value. */
    uint8_t field_2;
    /** Field 3, uint32. A 32-bit value. */
    uint32_t field_3;
    /** Field 4, uint32. A 32-bit value. */
    uint32_t field_4;
    /** Field 5, repeated message tarn_ethsw_mgmt_show_txq_profile_per_tc. The per-traffic-class
     *  settings. */
    tarn_ethsw_mgmt_show_txq_profile_per_tc *traffic_classes;
    /** Number of elements of traffic_classes. */
    uint32_t traffic_classes_count;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_field_3 : 1;
    unsigned has_field_4 : 1;
    unsigned has_traffic_classes : 1;
} tarn_ethsw_mgmt_show_txq_cfg_profile;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_show_txq_cfg_profile);

/** Global enqueue settings. Embedded in tarn_ethsw_mgmt_show_txq_resp (enq_global). */
typedef struct tarn_ethsw_mgmt_show_txq_enq_global {
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
    /** Field 11, repeated uint32. A list of 32-bit values. */
    uint32_t *field_11;
    /** Number of elements of field_11. */
    uint32_t field_11_count;
    /** Field 12, repeated uint32. A list of 32-bit values. */
    uint32_t *field_12;
    /** Number of elements of field_12. */
    uint32_t field_12_count;
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
} tarn_ethsw_mgmt_show_txq_enq_global;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_show_txq_enq_global);

/** Queue settings of one port. Element of tarn_ethsw_mgmt_show_txq_resp (ports). */
typedef struct tarn_ethsw_mgmt_show_txq_port {
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
    /** Field 6, repeated uint32. A list of 32-bit values. */
    uint32_t *field_6;
    /** Number of elements of field_6. */
    uint32_t field_6_count;
    /** Field 7, repeated uint32. A list of 32-bit values. */
    uint32_t *field_7;
    /** Number of elements of field_7. */
    uint32_t field_7_count;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_field_3 : 1;
    unsigned has_field_4 : 1;
    unsigned has_field_5 : 1;
    unsigned has_field_6 : 1;
    unsigned has_field_7 : 1;
} tarn_ethsw_mgmt_show_txq_port;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_show_txq_port);

/** Transmit-queue statistics of one pg. Element of tarn_ethsw_mgmt_show_txq_stats_sdr (pgs). */
typedef struct tarn_ethsw_mgmt_show_txq_stats_pg {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint64. A 64-bit counter. */
    TARN_ALIGNED_8 uint64_t field_2;
    /** Field 3, uint64. A 64-bit counter. */
    TARN_ALIGNED_8 uint64_t field_3;
    /** Field 4, uint64. A 64-bit counter. */
    TARN_ALIGNED_8 uint64_t field_4;
    /** Field 5, uint64. A 64-bit counter. */
    TARN_ALIGNED_8 uint64_t field_5;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_field_3 : 1;
    unsigned has_field_4 : 1;
    unsigned has_field_5 : 1;
} tarn_ethsw_mgmt_show_txq_stats_pg;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_show_txq_stats_pg);

/** Transmit-queue statistics of one SDR. Element of tarn_ethsw_mgmt_show_txq_resp (sdr_stats). */
typedef struct tarn_ethsw_mgmt_show_txq_stats_sdr {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, repeated message tarn_ethsw_mgmt_show_txq_stats_pg. Statistics per pg. */
    tarn_ethsw_mgmt_show_txq_stats_pg *pgs;
    /** Number of elements of pgs. */
    uint32_t pgs_count;
    unsigned has_field_1 : 1;
    unsigned has_pgs : 1;
} tarn_ethsw_mgmt_show_txq_stats_sdr;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_show_txq_stats_sdr);

/** Transmit-queue statistics of one colour. Element of tarn_ethsw_mgmt_show_txq_stats_tc (colors). */
typedef struct tarn_ethsw_mgmt_show_txq_stats_color {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint64. A 64-bit counter. */
    TARN_ALIGNED_8 uint64_t field_2;
    /** Field 3, uint64. A 64-bit counter. */
    TARN_ALIGNED_8 uint64_t field_3;
    /** Field 4, uint64. A 64-bit counter. */
    TARN_ALIGNED_8 uint64_t field_4;
    /** Field 5, uint64. A 64-bit counter. */
    TARN_ALIGNED_8 uint64_t field_5;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_field_3 : 1;
    unsigned has_field_4 : 1;
    unsigned has_field_5 : 1;
} tarn_ethsw_mgmt_show_txq_stats_color;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_show_txq_stats_color);

/** Transmit-queue statistics of one traffic class. Element of tarn_ethsw_mgmt_show_txq_stats_port
 *  (traffic_classes). */
typedef struct tarn_ethsw_mgmt_show_txq_stats_tc {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, repeated message tarn_ethsw_mgmt_show_txq_stats_color. Statistics per colour. */
    tarn_ethsw_mgmt_show_txq_stats_color *colors;
    /** Number of elements of colors. */
    uint32_t colors_count;
    /** Field 3, uint64. A 64-bit counter. */
    TARN_ALIGNED_8 uint64_t field_3;
    /** Field 4, uint64. A 64-bit counter. */
    TARN_ALIGNED_8 uint64_t field_4;
    /** Field 5, uint64. A 64-bit counter. */
    TARN_ALIGNED_8 uint64_t field_5;
    /** Field 6, uint64. A 64-bit counter. */
    TARN_ALIGNED_8 uint64_t field_6;
    unsigned has_field_1 : 1;
    unsigned has_colors : 1;
    unsigned has_field_3 : 1;
    unsigned has_field_4 : 1;
    unsigned has_field_5 : 1;
    unsigned has_field_6 : 1;
} tarn_ethsw_mgmt_show_txq_stats_tc;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_show_txq_stats_tc);

/** Transmit-queue statistics of one port. Element of tarn_ethsw_mgmt_show_txq_resp (port_stats). */
typedef struct tarn_ethsw_mgmt_show_txq_stats_port {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, repeated message tarn_ethsw_mgmt_show_txq_stats_tc. Statistics per traffic class. */
    tarn_ethsw_mgmt_show_txq_stats_tc *traffic_classes;
    /** Number of elements of traffic_classes. */
    uint32_t traffic_classes_count;
    /** Field 3, uint64. A 64-bit counter. */
    TARN_ALIGNED_8 uint64_t field_3;
    /** Field 4, uint64. A 64-bit counter. */
    TARN_ALIGNED_8 uint64_t field_4;
    /** Field 5, uint64. A 64-bit counter. */
    TARN_ALIGNED_8 uint64_t field_5;
    /** Field 6, uint64. A 64-bit counter. */
    TARN_ALIGNED_8 uint64_t field_6;
    /** Field 7, uint64. A 64-bit counter. */
    TARN_ALIGNED_8 uint64_t field_7;
    unsigned has_field_1 : 1;
    unsigned has_traffic_classes : 1;
    unsigned has_field_3 : 1;
    unsigned has_field_4 : 1;
    unsigned has_field_5 : 1;
    unsigned has_field_6 : 1;
    unsigned has_field_7 : 1;
} tarn_ethsw_mgmt_show_txq_stats_port;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_show_txq_stats_port);

/** The root of the transmit-queue tree. Answer to tarn_ethsw_mgmt_show_txq. */
typedef struct tarn_ethsw_mgmt_show_txq_resp {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, bool. A truth value. */
    uint8_t field_2;
    /** Field 3, message tarn_ethsw_mgmt_show_txq_cfg_global. The global queue configuration. */
    tarn_ethsw_mgmt_show_txq_cfg_global cfg_global;
    /** Field 4, repeated message tarn_ethsw_mgmt_show_txq_cfg_profile. The queue profiles. */
    tarn_ethsw_mgmt_show_txq_cfg_profile *profiles;
    /** Number of elements of profiles. */
    uint32_t profiles_count;
    /** Field 5, message tarn_ethsw_mgmt_show_txq_enq_global. The global enqueue settings. */
    tarn_ethsw_mgmt_show_txq_enq_global enq_global;
    /** Field 6, repeated message tarn_ethsw_mgmt_show_txq_port. The per-port queue settings. */
    tarn_ethsw_mgmt_show_txq_port *ports;
    /** Number of elements of ports. */
    uint32_t ports_count;
    /** Field 7, repeated message tarn_ethsw_mgmt_show_txq_stats_sdr. Statistics per SDR. */
    tarn_ethsw_mgmt_show_txq_stats_sdr *sdr_stats;
    /** Number of elements of sdr_stats. */
    uint32_t sdr_stats_count;
    /** Field 8, repeated message tarn_ethsw_mgmt_show_txq_stats_port. Statistics per port. */
    tarn_ethsw_mgmt_show_txq_stats_port *port_stats;
    /** Number of elements of port_stats. */
    uint32_t port_stats_count;
    /** Field 9, message tarn_ethsw_mgmt_show_txq_bcm_gbl_cfg. The bcm view of the global
     *  configuration. */
    tarn_ethsw_mgmt_show_txq_bcm_gbl_cfg bcm_global;
    /** Field 10, repeated message tarn_ethsw_mgmt_show_txq_bcm_port_cfg. The bcm view of the
     *  per-port configuration. */
    tarn_ethsw_mgmt_show_txq_bcm_port_cfg *bcm_ports;
    /** Number of elements of bcm_ports. */
    uint32_t bcm_ports_count;
    /** Field 11, uint32. A 32-bit value. */
    uint32_t field_11;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_cfg_global : 1;
    unsigned has_profiles : 1;
    unsigned has_enq_global : 1;
    unsigned has_ports : 1;
    unsigned has_sdr_stats : 1;
    unsigned has_port_stats : 1;
    unsigned has_bcm_global : 1;
    unsigned has_bcm_ports : 1;
    unsigned has_field_11 : 1;
} tarn_ethsw_mgmt_show_txq_resp;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_show_txq_resp);

#endif
