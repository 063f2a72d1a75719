// SPDX-License-Identifier: MIT
// Generated from ethsw_mgmt/integrity.proto by generator/regenerate. Do not edit: change the schema and run it.
// The field lists from which the codecs of these record types are made.

#pragma once

#include "ethsw_mgmt/integrity.h"
#include "ethsw_mgmt/switch.hpp"
#include "runtime/schema.hpp"

#include <stddef.h>

namespace [[gnu::visibility("hidden")]] tarn {

template <>
struct Schema<tarn_data_integrity_error_history_entry> {
    using Record = tarn_data_integrity_error_history_entry;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::string, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::uint32, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
        field<Kind::uint32, decltype(Record::field_4)>(4, offsetof(Record, field_4)),
        field<Kind::uint32, decltype(Record::field_5)>(5, offsetof(Record, field_5)),
        field<Kind::uint32, decltype(Record::field_6)>(6, offsetof(Record, field_6)),
        field<Kind::string, decltype(Record::field_7)>(7, offsetof(Record, field_7)),
        field<Kind::uint32, decltype(Record::field_8)>(8, offsetof(Record, field_8)),
        field<Kind::uint32, decltype(Record::field_9)>(9, offsetof(Record, field_9)),
        field<Kind::string, decltype(Record::field_10)>(10, offsetof(Record, field_10)),
        field<Kind::uint32, decltype(Record::field_11)>(11, offsetof(Record, field_11)),
        field<Kind::uint32, decltype(Record::field_12)>(12, offsetof(Record, field_12)),
        field<Kind::uint32, decltype(Record::field_13)>(13, offsetof(Record, field_13)),
        field<Kind::uint32, decltype(Record::field_14)>(14, offsetof(Record, field_14)),
        field<Kind::uint32, decltype(Record::field_15)>(15, offsetof(Record, field_15)),
        field<Kind::message, decltype(Record::timestamp)>(16, offsetof(Record, timestamp)),
    };
    using Children = RecordTypes<tarn_ethsw_mgmt_timespec>;
};

template <>
struct Schema<tarn_data_integrity_error_info_entry> {
    using Record = tarn_data_integrity_error_info_entry;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::string, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::uint32, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
        field<Kind::string, decltype(Record::field_4)>(4, offsetof(Record, field_4)),
        field<Kind::uint32, decltype(Record::field_5)>(5, offsetof(Record, field_5)),
        field<Kind::string, decltype(Record::field_6)>(6, offsetof(Record, field_6)),
        field<Kind::uint32, decltype(Record::field_7)>(7, offsetof(Record, field_7)),
        field<Kind::uint32, decltype(Record::field_8)>(8, offsetof(Record, field_8)),
        field<Kind::uint32, decltype(Record::field_9)>(9, offsetof(Record, field_9)),
        field<Kind::uint32, decltype(Record::field_10)>(10, offsetof(Record, field_10)),
        field<Kind::uint32, decltype(Record::field_11)>(11, offsetof(Record, field_11)),
        field<Kind::uint32, decltype(Record::field_12)>(12, offsetof(Record, field_12)),
        field<Kind::message, decltype(Record::timestamp)>(13, offsetof(Record, timestamp)),
    };
    using Children = RecordTypes<tarn_ethsw_mgmt_timespec>;
};

template <>
struct Schema<tarn_ethsw_mgmt_clear_emon_stats> {
    static constexpr NoFields fields{};
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_clear_emon_stats_resp> {
    using Record = tarn_ethsw_mgmt_clear_emon_stats_resp;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_clear_mlap_statistics> {
    using Record = tarn_ethsw_mgmt_clear_mlap_statistics;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_clear_mlap_statistics_resp> {
    using Record = tarn_ethsw_mgmt_clear_mlap_statistics_resp;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_emon_path_entry> {
    using Record = tarn_ethsw_mgmt_emon_path_entry;
    static constexpr Field fields[] = {
        field<Kind::string, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint64, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::uint64, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
        field<Kind::uint64, decltype(Record::field_4)>(4, offsetof(Record, field_4)),
        field<Kind::uint64, decltype(Record::field_5)>(5, offsetof(Record, field_5)),
        field<Kind::uint64, decltype(Record::field_6)>(6, offsetof(Record, field_6)),
        field<Kind::uint64, decltype(Record::field_7)>(7, offsetof(Record, field_7)),
        field<Kind::uint64, decltype(Record::field_8)>(8, offsetof(Record, field_8)),
        field<Kind::uint64, decltype(Record::field_9)>(9, offsetof(Record, field_9)),
        field<Kind::uint64, decltype(Record::field_10)>(10, offsetof(Record, field_10)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_emon_card_entry> {
    using Record = tarn_ethsw_mgmt_emon_card_entry;
    static constexpr Field fields[] = {
        field<Kind::string, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::repeated_message, decltype(Record::paths)>(2, offsetof(Record, paths)),
    };
    using Children = RecordTypes<tarn_ethsw_mgmt_emon_path_entry>;
};

template <>
struct Schema<tarn_ethsw_mgmt_event_stats_req> {
    static constexpr NoFields fields{};
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_event_stats_info> {
    using Record = tarn_event_stats_info;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::string, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::uint32, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
        field<Kind::uint32, decltype(Record::field_4)>(4, offsetof(Record, field_4)),
        field<Kind::uint32, decltype(Record::field_5)>(5, offsetof(Record, field_5)),
        field<Kind::uint32, decltype(Record::field_6)>(6, offsetof(Record, field_6)),
        field<Kind::uint32, decltype(Record::field_7)>(7, offsetof(Record, field_7)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_event_stats_rsp> {
    using Record = tarn_ethsw_mgmt_event_stats_rsp;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::repeated_message, decltype(Record::events)>(2, offsetof(Record, events)),
        field<Kind::uint32, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
        field<Kind::message, decltype(Record::timestamp)>(4, offsetof(Record, timestamp)),
    };
    using Children = RecordTypes<tarn_event_stats_info, tarn_ethsw_mgmt_timespec>;
};

template <>
struct Schema<tarn_ethsw_mgmt_fault_stats_req> {
    static constexpr NoFields fields{};
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_faults_stats_info> {
    using Record = tarn_faults_stats_info;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint64, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_fault_stats_rsp> {
    using Record = tarn_ethsw_mgmt_fault_stats_rsp;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::repeated_message, decltype(Record::faults)>(2, offsetof(Record, faults)),
    };
    using Children = RecordTypes<tarn_faults_stats_info>;
};

template <>
struct Schema<tarn_ethsw_mgmt_get_data_integrity_error_history> {
    using Record = tarn_ethsw_mgmt_get_data_integrity_error_history;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::uint32, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_get_data_integrity_error_history_resp> {
    using Record = tarn_ethsw_mgmt_get_data_integrity_error_history_resp;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::repeated_message, decltype(Record::entries)>(2, offsetof(Record, entries)),
    };
    using Children = RecordTypes<tarn_data_integrity_error_history_entry>;
};

template <>
struct Schema<tarn_ethsw_mgmt_get_data_integrity_error_info> {
    using Record = tarn_ethsw_mgmt_get_data_integrity_error_info;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::uint32, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_get_data_integrity_error_info_resp> {
    using Record = tarn_ethsw_mgmt_get_data_integrity_error_info_resp;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::repeated_message, decltype(Record::entries)>(2, offsetof(Record, entries)),
    };
    using Children = RecordTypes<tarn_data_integrity_error_info_entry>;
};

template <>
struct Schema<tarn_ethsw_mgmt_get_data_integrity_error_inject_status> {
    using Record = tarn_ethsw_mgmt_get_data_integrity_error_inject_status;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::uint32, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_get_data_integrity_error_inject_status_resp> {
    using Record = tarn_ethsw_mgmt_get_data_integrity_error_inject_status_resp;
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
struct Schema<tarn_ethsw_mgmt_get_mlap_statistics> {
    using Record = tarn_ethsw_mgmt_get_mlap_statistics;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_get_mlap_statistics_resp> {
    using Record = tarn_ethsw_mgmt_get_mlap_statistics_resp;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::uint64, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
        field<Kind::uint64, decltype(Record::field_4)>(4, offsetof(Record, field_4)),
        field<Kind::uint64, decltype(Record::field_5)>(5, offsetof(Record, field_5)),
        field<Kind::uint64, decltype(Record::field_6)>(6, offsetof(Record, field_6)),
        field<Kind::uint64, decltype(Record::field_7)>(7, offsetof(Record, field_7)),
        field<Kind::uint64, decltype(Record::field_8)>(8, offsetof(Record, field_8)),
        field<Kind::uint64, decltype(Record::field_9)>(9, offsetof(Record, field_9)),
        field<Kind::uint64, decltype(Record::field_10)>(10, offsetof(Record, field_10)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_inject_ser> {
    using Record = tarn_ethsw_mgmt_inject_ser;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::uint32, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_inject_ser_response> {
    using Record = tarn_ethsw_mgmt_inject_ser_response;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_set_data_integrity_error_inject> {
    using Record = tarn_ethsw_mgmt_set_data_integrity_error_inject;
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
struct Schema<tarn_ethsw_mgmt_set_data_integrity_error_inject_resp> {
    using Record = tarn_ethsw_mgmt_set_data_integrity_error_inject_resp;
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
struct Schema<tarn_ethsw_mgmt_show_emon_stats> {
    static constexpr NoFields fields{};
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_show_emon_stats_resp> {
    using Record = tarn_ethsw_mgmt_show_emon_stats_resp;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::repeated_message, decltype(Record::cards)>(2, offsetof(Record, cards)),
    };
    using Children = RecordTypes<tarn_ethsw_mgmt_emon_card_entry>;
};

} // namespace tarn
