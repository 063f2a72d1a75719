// SPDX-License-Identifier: MIT
// Hardware and diagnostics: sensors, registers, the health of a port, and lists of paths.
#include "bench/workloads/fill.hpp"

namespace bench {

void fill(Maker &make, tarn_ethsw_mgmt_show_emon_stats_resp &answer)
{
    BENCH_SET(answer, field_1, 0);
    uint32_t slot = 0;
    for (auto &card : BENCH_LIST(answer, cards, 8)) {
        BENCH_SET(card, field_1, make.text("0/%u/CPU0", slot++));
        uint32_t number = 0;
        for (auto &path : BENCH_LIST(card, paths, 64)) {
            BENCH_SET(path, field_1, make.text("asic%u/port%u", make.below(8), number++));
            BENCH_SET_EACH(path, make.counter(), field_2, field_3, field_4, field_5, field_6,
                           field_7);
            BENCH_SET_EACH(path, make.errors(), field_8, field_9, field_10);
        }
    }
}

static void fill(Maker &make, tarn_ethsw_mgmt_timespec &stamp)
{
    BENCH_SET(stamp, field_1, 1'700'000'000 + make.below(40'000'000));
    BENCH_SET(stamp, field_2, make.below(1'000'000'000));
    BENCH_SET(stamp, text,
              make.text("2024-%02u-%02u %02u:%02u:%02u.%03u", 1 + make.below(12),
                        1 + make.below(28), make.below(24), make.below(60), make.below(60),
                        make.below(1000)));
}

static void fill(Maker &make, tarn_ethsw_mgmt_port_link_fault_status &status)
{
    BENCH_SET_EACH(status, make.one_in(4), field_1, field_2, field_3, field_4, field_5, field_6);
}

static void fill(Maker &make, tarn_ethsw_mgmt_port_health_history_entry &entry)
{
    entry.has_timestamp = 1;
    fill(make, entry.timestamp);
    BENCH_SET_EACH(entry, make.code(), field_2, field_3, field_4);
    BENCH_SET_EACH(entry, make.amount(), field_5, field_6, field_7);
    // Absent where the link was fine.
    if (make.one_in(3)) {
        entry.has_link_fault_status = 1;
        fill(make, entry.link_fault_status);
    }
}

void fill(Maker &make, tarn_ethsw_mgmt_debug_get_health_state_rsp &answer)
{
    BENCH_SET(answer, field_1, 0);
    BENCH_SET(answer, field_2, make.text("TenGigE0/%u/0/%u", make.below(16), make.below(48)));
    BENCH_SET_EACH(answer, make.truth(), field_3, field_4, field_22, field_23, field_24, field_25,
                   field_26, field_27, field_39, field_40, field_41, field_44, field_45);
    BENCH_SET_EACH(answer, make.code(), field_5, field_6, field_8, field_10, field_12, field_14);
    BENCH_SET_EACH(answer, make.amount(), field_15, field_16, field_17, field_18, field_20,
                   field_21, field_28);
    BENCH_SET_EACH(answer, make.word(), field_30, field_31);
    BENCH_SET_EACH(answer, make.amount(), field_32, field_33, field_34, field_35, field_36,
                   field_37, field_38);
    answer.has_timestamp_7 = answer.has_timestamp_9 = answer.has_timestamp_11 = 1;
    fill(make, answer.timestamp_7);
    fill(make, answer.timestamp_9);
    fill(make, answer.timestamp_11);
    answer.has_timestamp_13 = answer.has_timestamp_19 = 1;
    fill(make, answer.timestamp_13);
    fill(make, answer.timestamp_19);
    // What may not have happened yet.
    if (make.one_in(2)) {
        answer.has_timestamp_29 = 1;
        fill(make, answer.timestamp_29);
    }
    answer.has_link_fault_status = 1;
    fill(make, answer.link_fault_status);
    for (auto &entry : BENCH_LIST(answer, history, 32))
        fill(make, entry);
}

static void fill(Maker &make, tarn_ethsw_mgmt_reg_value_data &value, uint32_t number)
{
    BENCH_SET(value, field_1, number);
    BENCH_SET(value, field_2, make.text("REG_%04X", make.below(0x1'0000)));
    BENCH_SET_EACH(value, make.below(64), field_3, field_4);
    BENCH_SET(value, field_5, make.code());
    BENCH_SET_EACH(value, make.word(), field_6, field_7);
    BENCH_SET(value, field_8, make.counter());
    BENCH_SET(value, field_9, make.truth());
    // Registers wider than 64 bits.
    if (make.one_in(4))
        BENCH_BYTES(value, field_10, 16 + 8 * make.below(5));
}

void fill(Maker &make, tarn_ethsw_mgmt_reg_info_rsp &answer)
{
    BENCH_SET(answer, field_1, 0);
    uint32_t number = 0;
    for (auto &section : BENCH_LIST(answer, sections, 16)) {
        BENCH_SET(section, field_1, make.text("section %u", number++));
        for (auto &column : BENCH_LIST(section, columns, 16)) {
            BENCH_SET(column, field_1, make.text("block%u.col%u", number, make.below(256)));
            BENCH_SET(column, field_2, make.code());
            uint32_t row = 0;
            for (auto &value : BENCH_LIST(column, values, 16))
                fill(make, value, row++);
        }
    }
}

void fill(Maker &make, tarn_ethsw_mgmt_fpd_cmp_to_file &request)
{
    const auto path = [&] {
        static const char *const kFolders[] = {"fpd", "fpd/backup", "pkg/fpd/golden", "fpd/v2/bin"};
        return make.text("/opt/images/%s/card%u-rev%u.%s", kFolders[make.below(4)], make.below(100),
                         make.below(100), make.one_in(4) ? "bin.gz" : "img");
    };
    BENCH_SET(request, field_1, make.code());
    for (const char *&text : BENCH_LIST(request, field_2, 64))
        text = path();
    for (const char *&text : BENCH_LIST(request, field_3, 64))
        text = path();
    for (const char *&text : BENCH_LIST(request, field_4, 64))
        text = path();
    for (const char *&text : BENCH_LIST(request, field_5, 64))
        text = path();
}

} // namespace bench
