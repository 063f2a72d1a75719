/* SPDX-License-Identifier: MIT */
/* Generated from ethsw_mgmt/integrity.proto by generator/regenerate. Do not edit: change the schema and run it. */

/** @file
 * Data-integrity errors and their injection, EMON and MLAP statistics, and the statistics of events
 * and faults.
 */

#ifndef TARN_ETHSW_MGMT_INTEGRITY_H
#define TARN_ETHSW_MGMT_INTEGRITY_H

#include "ethsw_mgmt/switch.h"
#include "runtime/record.h"

/** One entry of the data-integrity error history. Element of
 *  tarn_ethsw_mgmt_get_data_integrity_error_history_resp (entries). */
typedef struct tarn_data_integrity_error_history_entry {
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
    /** Field 6, uint32. A 32-bit value. */
    uint32_t field_6;
    /** Field 7, string. A text. */
    const char *field_7;
    /** Field 8, uint32. A 32-bit value. */
    uint32_t field_8;
    /** Field 9, uint32. A 32-bit value. */
    uint32_t field_9;
    /** Field 10, string. A text. */
    const char *field_10;
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
    /** Field 16, message tarn_ethsw_mgmt_timespec. Time stamp of the entry. */
    tarn_ethsw_mgmt_timespec timestamp;
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
    unsigned has_timestamp : 1;
} tarn_data_integrity_error_history_entry;
TARN_DECLARE_OPERATIONS(tarn_data_integrity_error_history_entry);

/** One entry of the data-integrity error information. Element of
 *  tarn_ethsw_mgmt_get_data_integrity_error_info_resp (entries). */
typedef struct tarn_data_integrity_error_info_entry {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, string. A text. */
    const char *field_2;
    /** Field 3, uint32. A 32-bit value. */
    uint32_t field_3;
    /** Field 4, string. A text. */
    const char *field_4;
    /** Field 5, uint32. A 32-bit value. */
    uint32_t field_5;
    /** Field 6, string. A text. */
    const char *field_6;
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
    /** Field 13, message tarn_ethsw_mgmt_timespec. Time stamp of the entry. */
    tarn_ethsw_mgmt_timespec timestamp;
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
    unsigned has_timestamp : 1;
} tarn_data_integrity_error_info_entry;
TARN_DECLARE_OPERATIONS(tarn_data_integrity_error_info_entry);

/** Clears the EMON statistics; carries nothing. Answered by tarn_ethsw_mgmt_clear_emon_stats_resp. */
typedef struct tarn_ethsw_mgmt_clear_emon_stats tarn_ethsw_mgmt_clear_emon_stats;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_clear_emon_stats);

/** Answer to tarn_ethsw_mgmt_clear_emon_stats. */
typedef struct tarn_ethsw_mgmt_clear_emon_stats_resp {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    unsigned has_field_1 : 1;
} tarn_ethsw_mgmt_clear_emon_stats_resp;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_clear_emon_stats_resp);

/** Clears the MLAP statistics. Answered by tarn_ethsw_mgmt_clear_mlap_statistics_resp. */
typedef struct tarn_ethsw_mgmt_clear_mlap_statistics {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    unsigned has_field_1 : 1;
} tarn_ethsw_mgmt_clear_mlap_statistics;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_clear_mlap_statistics);

/** Answer to tarn_ethsw_mgmt_clear_mlap_statistics. */
typedef struct tarn_ethsw_mgmt_clear_mlap_statistics_resp {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    unsigned has_field_1 : 1;
} tarn_ethsw_mgmt_clear_mlap_statistics_resp;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_clear_mlap_statistics_resp);

/** EMON statistics of one path of a card. Element of tarn_ethsw_mgmt_emon_card_entry (paths). */
typedef struct tarn_ethsw_mgmt_emon_path_entry {
    /** Field 1, string. A text. */
    const char *field_1;
    /** Field 2, uint64. A 64-bit counter. */
    TARN_ALIGNED_8 uint64_t field_2;
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
    /** Field 8, uint64. A 64-bit counter. */
    TARN_ALIGNED_8 uint64_t field_8;
    /** Field 9, uint64. A 64-bit counter. */
    TARN_ALIGNED_8 uint64_t field_9;
    /** Field 10, uint64. A 64-bit counter. */
    TARN_ALIGNED_8 uint64_t field_10;
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
} tarn_ethsw_mgmt_emon_path_entry;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_emon_path_entry);

/** EMON statistics of one card. Element of tarn_ethsw_mgmt_show_emon_stats_resp (cards). */
typedef struct tarn_ethsw_mgmt_emon_card_entry {
    /** Field 1, string. A text. */
    const char *field_1;
    /** Field 2, repeated message tarn_ethsw_mgmt_emon_path_entry. The paths of the card. */
    tarn_ethsw_mgmt_emon_path_entry *paths;
    /** Number of elements of paths. */
    uint32_t paths_count;
    unsigned has_field_1 : 1;
    unsigned has_paths : 1;
} tarn_ethsw_mgmt_emon_card_entry;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_emon_card_entry);

/** Asks for the event statistics; carries nothing. Answered by tarn_ethsw_mgmt_event_stats_rsp. */
typedef struct tarn_ethsw_mgmt_event_stats_req tarn_ethsw_mgmt_event_stats_req;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_event_stats_req);

/** One entry of the event statistics. Element of tarn_ethsw_mgmt_event_stats_rsp (events). */
typedef struct tarn_event_stats_info {
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
} tarn_event_stats_info;
TARN_DECLARE_OPERATIONS(tarn_event_stats_info);

/** Answer to tarn_ethsw_mgmt_event_stats_req. */
typedef struct tarn_ethsw_mgmt_event_stats_rsp {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, repeated message tarn_event_stats_info. The event entries. */
    tarn_event_stats_info *events;
    /** Number of elements of events. */
    uint32_t events_count;
    /** Field 3, uint32. A 32-bit value. */
    uint32_t field_3;
    /** Field 4, message tarn_ethsw_mgmt_timespec. A time stamp. */
    tarn_ethsw_mgmt_timespec timestamp;
    unsigned has_field_1 : 1;
    unsigned has_events : 1;
    unsigned has_field_3 : 1;
    unsigned has_timestamp : 1;
} tarn_ethsw_mgmt_event_stats_rsp;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_event_stats_rsp);

/** Asks for the fault statistics; carries nothing. Answered by tarn_ethsw_mgmt_fault_stats_rsp. */
typedef struct tarn_ethsw_mgmt_fault_stats_req tarn_ethsw_mgmt_fault_stats_req;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_fault_stats_req);

/** One entry of the fault statistics. Element of tarn_ethsw_mgmt_fault_stats_rsp (faults). */
typedef struct tarn_faults_stats_info {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint64. A 64-bit value. */
    TARN_ALIGNED_8 uint64_t field_2;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
} tarn_faults_stats_info;
TARN_DECLARE_OPERATIONS(tarn_faults_stats_info);

/** Answer to tarn_ethsw_mgmt_fault_stats_req. */
typedef struct tarn_ethsw_mgmt_fault_stats_rsp {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, repeated message tarn_faults_stats_info. The fault entries. */
    tarn_faults_stats_info *faults;
    /** Number of elements of faults. */
    uint32_t faults_count;
    unsigned has_field_1 : 1;
    unsigned has_faults : 1;
} tarn_ethsw_mgmt_fault_stats_rsp;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_fault_stats_rsp);

/** Asks for the data-integrity error history. Answered by
 *  tarn_ethsw_mgmt_get_data_integrity_error_history_resp. */
typedef struct tarn_ethsw_mgmt_get_data_integrity_error_history {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    /** Field 3, uint32. A 32-bit value. */
    uint32_t field_3;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_field_3 : 1;
} tarn_ethsw_mgmt_get_data_integrity_error_history;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_get_data_integrity_error_history);

/** Answer to tarn_ethsw_mgmt_get_data_integrity_error_history. */
typedef struct tarn_ethsw_mgmt_get_data_integrity_error_history_resp {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, repeated message tarn_data_integrity_error_history_entry. The entries of the
     *  history. */
    tarn_data_integrity_error_history_entry *entries;
    /** Number of elements of entries. */
    uint32_t entries_count;
    unsigned has_field_1 : 1;
    unsigned has_entries : 1;
} tarn_ethsw_mgmt_get_data_integrity_error_history_resp;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_get_data_integrity_error_history_resp);

/** Asks for the data-integrity error information. Answered by
 *  tarn_ethsw_mgmt_get_data_integrity_error_info_resp. */
typedef struct tarn_ethsw_mgmt_get_data_integrity_error_info {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    /** Field 3, uint32. A 32-bit value. */
    uint32_t field_3;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_field_3 : 1;
} tarn_ethsw_mgmt_get_data_integrity_error_info;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_get_data_integrity_error_info);

/** Answer to tarn_ethsw_mgmt_get_data_integrity_error_info. */
typedef struct tarn_ethsw_mgmt_get_data_integrity_error_info_resp {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, repeated message tarn_data_integrity_error_info_entry. The error entries. */
    tarn_data_integrity_error_info_entry *entries;
    /** Number of elements of entries. */
    uint32_t entries_count;
    unsigned has_field_1 : 1;
    unsigned has_entries : 1;
} tarn_ethsw_mgmt_get_data_integrity_error_info_resp;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_get_data_integrity_error_info_resp);

/** Asks for the status of data-integrity error injection. Answered by
 *  tarn_ethsw_mgmt_get_data_integrity_error_inject_status_resp. */
typedef struct tarn_ethsw_mgmt_get_data_integrity_error_inject_status {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    /** Field 3, uint32. A 32-bit value. */
    uint32_t field_3;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_field_3 : 1;
} tarn_ethsw_mgmt_get_data_integrity_error_inject_status;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_get_data_integrity_error_inject_status);

/** Answer to tarn_ethsw_mgmt_get_data_integrity_error_inject_status. */
typedef struct tarn_ethsw_mgmt_get_data_integrity_error_inject_status_resp {
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
} tarn_ethsw_mgmt_get_data_integrity_error_inject_status_resp;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_get_data_integrity_error_inject_status_resp);

/** Asks for the MLAP statistics. Answered by tarn_ethsw_mgmt_get_mlap_statistics_resp. */
typedef struct tarn_ethsw_mgmt_get_mlap_statistics {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    unsigned has_field_1 : 1;
} tarn_ethsw_mgmt_get_mlap_statistics;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_get_mlap_statistics);

/** Answer to tarn_ethsw_mgmt_get_mlap_statistics. */
typedef struct tarn_ethsw_mgmt_get_mlap_statistics_resp {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
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
    /** Field 8, uint64. A 64-bit counter. */
    TARN_ALIGNED_8 uint64_t field_8;
    /** Field 9, uint64. A 64-bit counter. */
    TARN_ALIGNED_8 uint64_t field_9;
    /** Field 10, uint64. A 64-bit counter. */
    TARN_ALIGNED_8 uint64_t field_10;
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
} tarn_ethsw_mgmt_get_mlap_statistics_resp;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_get_mlap_statistics_resp);

/** Asks for a SER injection. Answered by tarn_ethsw_mgmt_inject_ser_response. */
typedef struct tarn_ethsw_mgmt_inject_ser {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    /** Field 3, uint32. A 32-bit value. */
    uint32_t field_3;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_field_3 : 1;
} tarn_ethsw_mgmt_inject_ser;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_inject_ser);

/** Answer to tarn_ethsw_mgmt_inject_ser. */
typedef struct tarn_ethsw_mgmt_inject_ser_response {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    unsigned has_field_1 : 1;
} tarn_ethsw_mgmt_inject_ser_response;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_inject_ser_response);

/** Sets up the injection of data-integrity errors. Answered by
 *  tarn_ethsw_mgmt_set_data_integrity_error_inject_resp. */
typedef struct tarn_ethsw_mgmt_set_data_integrity_error_inject {
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
} tarn_ethsw_mgmt_set_data_integrity_error_inject;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_set_data_integrity_error_inject);

/** Answer to tarn_ethsw_mgmt_set_data_integrity_error_inject. */
typedef struct tarn_ethsw_mgmt_set_data_integrity_error_inject_resp {
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
} tarn_ethsw_mgmt_set_data_integrity_error_inject_resp;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_set_data_integrity_error_inject_resp);

/** Asks for the EMON statistics; carries nothing. Answered by tarn_ethsw_mgmt_show_emon_stats_resp. */
typedef struct tarn_ethsw_mgmt_show_emon_stats tarn_ethsw_mgmt_show_emon_stats;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_show_emon_stats);

/** Answer to tarn_ethsw_mgmt_show_emon_stats. */
typedef struct tarn_ethsw_mgmt_show_emon_stats_resp {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, repeated message tarn_ethsw_mgmt_emon_card_entry. One entry per card. */
    tarn_ethsw_mgmt_emon_card_entry *cards;
    /** Number of elements of cards. */
    uint32_t cards_count;
    unsigned has_field_1 : 1;
    unsigned has_cards : 1;
} tarn_ethsw_mgmt_show_emon_stats_resp;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_show_emon_stats_resp);

#endif
