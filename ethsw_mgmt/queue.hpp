// SPDX-License-Identifier: MIT
// Generated from ethsw_mgmt/queue.proto by generator/regenerate. Do not edit: change the schema and run it.
// The field lists from which the codecs of these record types are made.

#pragma once

#include "ethsw_mgmt/queue.h"
#include "runtime/schema.hpp"

#include <stddef.h>

namespace [[gnu::visibility("hidden")]] tarn {

template <>
struct Schema<tarn_ethsw_mgmt_clear_txq_stats> {
    using Record = tarn_ethsw_mgmt_clear_txq_stats;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_clear_txq_stats_resp> {
    using Record = tarn_ethsw_mgmt_clear_txq_stats_resp;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_show_txq> {
    using Record = tarn_ethsw_mgmt_show_txq;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_show_txq_bcm_gbl_cfg> {
    using Record = tarn_ethsw_mgmt_show_txq_bcm_gbl_cfg;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::uint32, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
        field<Kind::uint32, decltype(Record::field_4)>(4, offsetof(Record, field_4)),
        field<Kind::uint32, decltype(Record::field_5)>(5, offsetof(Record, field_5)),
        field<Kind::uint32, decltype(Record::field_6)>(6, offsetof(Record, field_6)),
        field<Kind::uint32, decltype(Record::field_7)>(7, offsetof(Record, field_7)),
        field<Kind::uint32, decltype(Record::field_8)>(8, offsetof(Record, field_8)),
        field<Kind::uint32, decltype(Record::field_9)>(9, offsetof(Record, field_9)),
        field<Kind::uint32, decltype(Record::field_10)>(10, offsetof(Record, field_10)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_show_txq_bcm_per_cosq_cfg> {
    using Record = tarn_ethsw_mgmt_show_txq_bcm_per_cosq_cfg;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::uint32, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
        field<Kind::uint32, decltype(Record::field_4)>(4, offsetof(Record, field_4)),
        field<Kind::uint32, decltype(Record::field_5)>(5, offsetof(Record, field_5)),
        field<Kind::uint32, decltype(Record::field_6)>(6, offsetof(Record, field_6)),
        field<Kind::uint32, decltype(Record::field_7)>(7, offsetof(Record, field_7)),
        field<Kind::uint32, decltype(Record::field_8)>(8, offsetof(Record, field_8)),
        field<Kind::uint32, decltype(Record::field_9)>(9, offsetof(Record, field_9)),
        field<Kind::uint32, decltype(Record::field_10)>(10, offsetof(Record, field_10)),
        field<Kind::uint32, decltype(Record::field_11)>(11, offsetof(Record, field_11)),
        field<Kind::uint32, decltype(Record::field_12)>(12, offsetof(Record, field_12)),
        field<Kind::uint32, decltype(Record::field_13)>(13, offsetof(Record, field_13)),
        field<Kind::uint32, decltype(Record::field_14)>(14, offsetof(Record, field_14)),
        field<Kind::uint32, decltype(Record::field_15)>(15, offsetof(Record, field_15)),
        field<Kind::uint32, decltype(Record::field_16)>(16, offsetof(Record, field_16)),
        field<Kind::uint32, decltype(Record::field_17)>(17, offsetof(Record, field_17)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_show_txq_bcm_port_cfg> {
    using Record = tarn_ethsw_mgmt_show_txq_bcm_port_cfg;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::boolean, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
        field<Kind::repeated_uint32, decltype(Record::field_4)>(4, offsetof(Record, field_4)),
        field<Kind::uint32, decltype(Record::field_5)>(5, offsetof(Record, field_5)),
        field<Kind::uint32, decltype(Record::field_6)>(6, offsetof(Record, field_6)),
        field<Kind::uint32, decltype(Record::field_7)>(7, offsetof(Record, field_7)),
        field<Kind::uint32, decltype(Record::field_8)>(8, offsetof(Record, field_8)),
        field<Kind::uint32, decltype(Record::field_9)>(9, offsetof(Record, field_9)),
        field<Kind::uint32, decltype(Record::field_10)>(10, offsetof(Record, field_10)),
        field<Kind::uint32, decltype(Record::field_11)>(11, offsetof(Record, field_11)),
        field<Kind::uint32, decltype(Record::field_12)>(12, offsetof(Record, field_12)),
        field<Kind::repeated_message, decltype(Record::cosqs)>(13, offsetof(Record, cosqs)),
    };
    using Children = RecordTypes<tarn_ethsw_mgmt_show_txq_bcm_per_cosq_cfg>;
};

template <>
struct Schema<tarn_ethsw_mgmt_show_txq_cfg_global> {
    using Record = tarn_ethsw_mgmt_show_txq_cfg_global;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::uint32, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
        field<Kind::uint32, decltype(Record::field_4)>(4, offsetof(Record, field_4)),
        field<Kind::uint32, decltype(Record::field_5)>(5, offsetof(Record, field_5)),
        field<Kind::uint32, decltype(Record::field_6)>(6, offsetof(Record, field_6)),
        field<Kind::uint32, decltype(Record::field_7)>(7, offsetof(Record, field_7)),
        field<Kind::uint32, decltype(Record::field_8)>(8, offsetof(Record, field_8)),
        field<Kind::uint32, decltype(Record::field_9)>(9, offsetof(Record, field_9)),
        field<Kind::uint32, decltype(Record::field_10)>(10, offsetof(Record, field_10)),
        field<Kind::uint32, decltype(Record::field_11)>(11, offsetof(Record, field_11)),
        field<Kind::uint32, decltype(Record::field_12)>(12, offsetof(Record, field_12)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_show_txq_profile_per_tc> {
    using Record = tarn_ethsw_mgmt_show_txq_profile_per_tc;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::uint32, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
        field<Kind::uint32, decltype(Record::field_4)>(4, offsetof(Record, field_4)),
        field<Kind::uint32, decltype(Record::field_5)>(5, offsetof(Record, field_5)),
        field<Kind::uint32, decltype(Record::field_6)>(6, offsetof(Record, field_6)),
        field<Kind::uint32, decltype(Record::field_7)>(7, offsetof(Record, field_7)),
        field<Kind::uint32, decltype(Record::field_8)>(8, offsetof(Record, field_8)),
        field<Kind::uint32, decltype(Record::field_9)>(9, offsetof(Record, field_9)),
        field<Kind::uint32, decltype(Record::field_10)>(10, offsetof(Record, field_10)),
        field<Kind::uint32, decltype(Record::field_11)>(11, offsetof(Record, field_11)),
        field<Kind::uint32, decltype(Record::field_12)>(12, offsetof(Record, field_12)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_show_txq_cfg_profile> {
    using Record = tarn_ethsw_mgmt_show_txq_cfg_profile;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::boolean, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::uint32, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
        field<Kind::uint32, decltype(Record::field_4)>(4, offsetof(Record, field_4)),
        field<Kind::repeated_message, decltype(Record::traffic_classes)>(5, offsetof(Record, traffic_classes)),
    };
    using Children = RecordTypes<tarn_ethsw_mgmt_show_txq_profile_per_tc>;
};

template <>
struct Schema<tarn_ethsw_mgmt_show_txq_enq_global> {
    using Record = tarn_ethsw_mgmt_show_txq_enq_global;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::uint32, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
        field<Kind::uint32, decltype(Record::field_4)>(4, offsetof(Record, field_4)),
        field<Kind::uint32, decltype(Record::field_5)>(5, offsetof(Record, field_5)),
        field<Kind::uint32, decltype(Record::field_6)>(6, offsetof(Record, field_6)),
        field<Kind::uint32, decltype(Record::field_7)>(7, offsetof(Record, field_7)),
        field<Kind::uint32, decltype(Record::field_8)>(8, offsetof(Record, field_8)),
        field<Kind::uint32, decltype(Record::field_9)>(9, offsetof(Record, field_9)),
        field<Kind::uint32, decltype(Record::field_10)>(10, offsetof(Record, field_10)),
        field<Kind::repeated_uint32, decltype(Record::field_11)>(11, offsetof(Record, field_11)),
        field<Kind::repeated_uint32, decltype(Record::field_12)>(12, offsetof(Record, field_12)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_show_txq_port> {
    using Record = tarn_ethsw_mgmt_show_txq_port;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::uint32, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
        field<Kind::uint32, decltype(Record::field_4)>(4, offsetof(Record, field_4)),
        field<Kind::uint32, decltype(Record::field_5)>(5, offsetof(Record, field_5)),
        field<Kind::repeated_uint32, decltype(Record::field_6)>(6, offsetof(Record, field_6)),
        field<Kind::repeated_uint32, decltype(Record::field_7)>(7, offsetof(Record, field_7)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_show_txq_stats_pg> {
    using Record = tarn_ethsw_mgmt_show_txq_stats_pg;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint64, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::uint64, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
        field<Kind::uint64, decltype(Record::field_4)>(4, offsetof(Record, field_4)),
        field<Kind::uint64, decltype(Record::field_5)>(5, offsetof(Record, field_5)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_show_txq_stats_sdr> {
    using Record = tarn_ethsw_mgmt_show_txq_stats_sdr;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::repeated_message, decltype(Record::pgs)>(2, offsetof(Record, pgs)),
    };
    using Children = RecordTypes<tarn_ethsw_mgmt_show_txq_stats_pg>;
};

template <>
struct Schema<tarn_ethsw_mgmt_show_txq_stats_color> {
    using Record = tarn_ethsw_mgmt_show_txq_stats_color;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint64, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::uint64, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
        field<Kind::uint64, decltype(Record::field_4)>(4, offsetof(Record, field_4)),
        field<Kind::uint64, decltype(Record::field_5)>(5, offsetof(Record, field_5)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<tarn_ethsw_mgmt_show_txq_stats_tc> {
    using Record = tarn_ethsw_mgmt_show_txq_stats_tc;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::repeated_message, decltype(Record::colors)>(2, offsetof(Record, colors)),
        field<Kind::uint64, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
        field<Kind::uint64, decltype(Record::field_4)>(4, offsetof(Record, field_4)),
        field<Kind::uint64, decltype(Record::field_5)>(5, offsetof(Record, field_5)),
        field<Kind::uint64, decltype(Record::field_6)>(6, offsetof(Record, field_6)),
    };
    using Children = RecordTypes<tarn_ethsw_mgmt_show_txq_stats_color>;
};

template <>
struct Schema<tarn_ethsw_mgmt_show_txq_stats_port> {
    using Record = tarn_ethsw_mgmt_show_txq_stats_port;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::repeated_message, decltype(Record::traffic_classes)>(2, offsetof(Record, traffic_classes)),
        field<Kind::uint64, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
        field<Kind::uint64, decltype(Record::field_4)>(4, offsetof(Record, field_4)),
        field<Kind::uint64, decltype(Record::field_5)>(5, offsetof(Record, field_5)),
        field<Kind::uint64, decltype(Record::field_6)>(6, offsetof(Record, field_6)),
        field<Kind::uint64, decltype(Record::field_7)>(7, offsetof(Record, field_7)),
    };
    using Children = RecordTypes<tarn_ethsw_mgmt_show_txq_stats_tc>;
};

template <>
struct Schema<tarn_ethsw_mgmt_show_txq_resp> {
    using Record = tarn_ethsw_mgmt_show_txq_resp;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::boolean, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::message, decltype(Record::cfg_global)>(3, offsetof(Record, cfg_global)),
        field<Kind::repeated_message, decltype(Record::profiles)>(4, offsetof(Record, profiles)),
        field<Kind::message, decltype(Record::enq_global)>(5, offsetof(Record, enq_global)),
        field<Kind::repeated_message, decltype(Record::ports)>(6, offsetof(Record, ports)),
        field<Kind::repeated_message, decltype(Record::sdr_stats)>(7, offsetof(Record, sdr_stats)),
        field<Kind::repeated_message, decltype(Record::port_stats)>(8, offsetof(Record, port_stats)),
        field<Kind::message, decltype(Record::bcm_global)>(9, offsetof(Record, bcm_global)),
        field<Kind::repeated_message, decltype(Record::bcm_ports)>(10, offsetof(Record, bcm_ports)),
        field<Kind::uint32, decltype(Record::field_11)>(11, offsetof(Record, field_11)),
    };
    using Children = RecordTypes<tarn_ethsw_mgmt_show_txq_cfg_global, tarn_ethsw_mgmt_show_txq_cfg_profile, tarn_ethsw_mgmt_show_txq_enq_global, tarn_ethsw_mgmt_show_txq_port, tarn_ethsw_mgmt_show_txq_stats_sdr, tarn_ethsw_mgmt_show_txq_stats_port, tarn_ethsw_mgmt_show_txq_bcm_gbl_cfg, tarn_ethsw_mgmt_show_txq_bcm_port_cfg>;
};

} // namespace tarn
