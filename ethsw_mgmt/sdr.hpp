// SPDX-License-Identifier: MIT
// Generated from ethsw_mgmt/sdr.proto by generator/regenerate. Do not edit: change the schema and run it.
// The field lists from which the codecs of these record types are made.

#pragma once

#include "ethsw_mgmt/sdr.h"
#include "runtime/schema.hpp"

#include <stddef.h>

namespace [[gnu::visibility("hidden")]] tarn {

template <>
struct Schema<tarn_ethsw_mgmt_get_sdr_info> {
    using Record = tarn_ethsw_mgmt_get_sdr_info;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_glbl_get_sdr_statistics> {
    using Record = tarn_ethsw_mgmt_glbl_get_sdr_statistics;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_sdr_statistics_tc_data> {
    using Record = tarn_ethsw_mgmt_sdr_statistics_tc_data;
    static constexpr Field fields[] = {
        field<Kind::uint64, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint64, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::uint64, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_sdr_statistics_pg_info> {
    using Record = tarn_ethsw_mgmt_sdr_statistics_pg_info;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::uint32, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
        field<Kind::repeated_message, decltype(Record::traffic_classes)>(4, offsetof(Record, traffic_classes)),
    };
    using Children = RecordTypes<tarn_ethsw_mgmt_sdr_statistics_tc_data>;
};

template <>
struct Schema<tarn_ethsw_mgmt_glbl_sdr_statistics_info> {
    using Record = tarn_ethsw_mgmt_glbl_sdr_statistics_info;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::repeated_message, decltype(Record::pgs)>(2, offsetof(Record, pgs)),
    };
    using Children = RecordTypes<tarn_ethsw_mgmt_sdr_statistics_pg_info>;
};

template <>
struct Schema<tarn_ethsw_mgmt_glbl_sdr_statistics_resp> {
    using Record = tarn_ethsw_mgmt_glbl_sdr_statistics_resp;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::repeated_message, decltype(Record::statistics)>(2, offsetof(Record, statistics)),
    };
    using Children = RecordTypes<tarn_ethsw_mgmt_glbl_sdr_statistics_info>;
};

template <>
struct Schema<tarn_ethsw_mgmt_port_clear_sdr_statistics> {
    using Record = tarn_ethsw_mgmt_port_clear_sdr_statistics;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_port_clear_sdr_statistics_resp> {
    using Record = tarn_ethsw_mgmt_port_clear_sdr_statistics_resp;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_port_get_sdr_statistics> {
    using Record = tarn_ethsw_mgmt_port_get_sdr_statistics;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_sdr_statistics_sdr_info> {
    using Record = tarn_ethsw_mgmt_sdr_statistics_sdr_info;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::uint32, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
        field<Kind::repeated_message, decltype(Record::traffic_classes)>(4, offsetof(Record, traffic_classes)),
    };
    using Children = RecordTypes<tarn_ethsw_mgmt_sdr_statistics_tc_data>;
};

template <>
struct Schema<tarn_ethsw_mgmt_port_sdr_statistics_info> {
    using Record = tarn_ethsw_mgmt_port_sdr_statistics_info;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::repeated_message, decltype(Record::sdrs)>(2, offsetof(Record, sdrs)),
    };
    using Children = RecordTypes<tarn_ethsw_mgmt_sdr_statistics_sdr_info>;
};

template <>
struct Schema<tarn_ethsw_mgmt_port_sdr_statistics_resp> {
    using Record = tarn_ethsw_mgmt_port_sdr_statistics_resp;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::repeated_message, decltype(Record::statistics)>(2, offsetof(Record, statistics)),
    };
    using Children = RecordTypes<tarn_ethsw_mgmt_port_sdr_statistics_info>;
};

template <>
struct Schema<tarn_ethsw_mgmt_sdr_vlan> {
    using Record = tarn_ethsw_mgmt_sdr_vlan;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::string, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_sdr_data> {
    using Record = tarn_ethsw_mgmt_sdr_data;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::boolean, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::uint32, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
        field<Kind::uint32, decltype(Record::field_4)>(4, offsetof(Record, field_4)),
        field<Kind::uint32, decltype(Record::field_5)>(5, offsetof(Record, field_5)),
        field<Kind::uint32, decltype(Record::field_6)>(6, offsetof(Record, field_6)),
        field<Kind::repeated_message, decltype(Record::vlans)>(7, offsetof(Record, vlans)),
    };
    using Children = RecordTypes<tarn_ethsw_mgmt_sdr_vlan>;
};

template <>
struct Schema<tarn_ethsw_mgmt_sdr_cfg> {
    using Record = tarn_ethsw_mgmt_sdr_cfg;
    static constexpr Field fields[] = {
        field<Kind::repeated_message, decltype(Record::sdrs)>(1, offsetof(Record, sdrs)),
    };
    using Children = RecordTypes<tarn_ethsw_mgmt_sdr_data>;
};

template <>
struct Schema<tarn_ethsw_mgmt_sdr_cfg_result> {
    using Record = tarn_ethsw_mgmt_sdr_cfg_result;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_sdr_cfg_resp> {
    using Record = tarn_ethsw_mgmt_sdr_cfg_resp;
    static constexpr Field fields[] = {
        field<Kind::repeated_message, decltype(Record::results)>(1, offsetof(Record, results)),
    };
    using Children = RecordTypes<tarn_ethsw_mgmt_sdr_cfg_result>;
};

template <>
struct Schema<tarn_ethsw_mgmt_sdr_info> {
    using Record = tarn_ethsw_mgmt_sdr_info;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::repeated_message, decltype(Record::sdrs)>(2, offsetof(Record, sdrs)),
    };
    using Children = RecordTypes<tarn_ethsw_mgmt_sdr_data>;
};

} // namespace tarn
