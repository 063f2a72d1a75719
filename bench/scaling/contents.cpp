// SPDX-License-Identifier: MIT
#include "bench/scaling/contents.hpp"

#include "bench/workloads/fill.hpp"

#include <algorithm>

namespace bench {

namespace {

using Table = tarn_ethsw_mgmt_fdb_get_table_entry_resp;
using Triple = tarn_ethsw_mgmt_sdr_statistics_tc_data;
using Group = tarn_ethsw_mgmt_sdr_statistics_pg_info;
using Info = tarn_ethsw_mgmt_glbl_sdr_statistics_info;
using Response = tarn_ethsw_mgmt_glbl_sdr_statistics_resp;

// So many tables, or fewer when that would be more bytes than these.
constexpr uint32_t kMostTables = 64;
constexpr uint32_t kAllTables = 256 << 10;

// One for each thread that makes records.
thread_local Maker make(20'260'101);

// So many entries, beginning with one of the long table, which is begun again when it is over.
const Table *make_table(const Table &source, uint32_t first, uint32_t count)
{
    Table &table = *make.record<Table>();
    BENCH_SET(table, field_1, 0);
    for (auto &entry : BENCH_LIST(table, entries, count))
        entry = source.entries[first++ % source.entries_count];
    BENCH_SET(table, field_3, count);
    return &table;
}

// The records that hold leaves, in one row, whatever else is made around them.
std::span<Triple> make_leaves()
{
    Triple *triples = nullptr;
    uint32_t count = 0;
    for (Triple &triple : make.list(triples, count, kLeafRecords)) {
        BENCH_SET_EACH(triple, make.counter(), field_1, field_2);
        BENCH_SET(triple, field_3, make.errors());
    }
    return {triples, count};
}

void hold(Group &group, std::span<Triple> triples)
{
    group.has_traffic_classes = 1;
    group.traffic_classes = triples.data();
    group.traffic_classes_count = static_cast<uint32_t>(triples.size());
}

void hold(Info &info, std::span<Triple> triples, uint32_t groups)
{
    const size_t each = triples.size() / groups;
    for (Group &group : BENCH_LIST(info, pgs, groups)) {
        hold(group, triples.first(each));
        triples = triples.subspan(each);
    }
}

void hold(Response &response, std::span<Triple> triples, uint32_t infos, uint32_t groups)
{
    const size_t each = triples.size() / infos;
    for (Info &info : BENCH_LIST(response, statistics, infos)) {
        hold(info, triples.first(each), groups);
        triples = triples.subspan(each);
    }
}

// A workload of one record that holds all leaves.
template <typename Record, typename... Lengths>
Workload of_one(Workload workload, Lengths... lengths)
{
    Record *record = make.record<Record>();
    hold(*record, make_leaves(), lengths...);
    workload.variants.push_back(record);
    return workload;
}

} // namespace

Workload make_tables(uint32_t size)
{
    Workload workload = BENCH_OF_TYPE(fdb_get_table_entry_resp, Workload{});
    const Table &source = *[] {
        Table *filled = make.record<Table>();
        fill(make, *filled);
        return filled;
    }();
    const uint32_t entry_size =
        workload.encode(&source, nullptr, 0, nullptr, nullptr, 0) / source.entries_count;
    const uint32_t entries = std::max((size + entry_size / 2) / entry_size, 1U);
    const uint32_t tables = std::clamp(kAllTables / size, 1U, kMostTables);
    for (uint32_t i = 0; i < tables; i++)
        workload.variants.push_back(make_table(source, i * entries, entries));
    return workload;
}

Workload make_nested(uint32_t levels)
{
    switch (levels) {
    case 2:
        return of_one<Group>(BENCH_OF_TYPE(sdr_statistics_pg_info, Workload{}));
    case 3:
        return of_one<Info>(BENCH_OF_TYPE(glbl_sdr_statistics_info, Workload{}), 64U);
    case 4:
        return of_one<Response>(BENCH_OF_TYPE(glbl_sdr_statistics_resp, Workload{}), 16U, 16U);
    default:
        Workload workload = BENCH_OF_TYPE(sdr_statistics_tc_data, Workload{});
        for (const Triple &triple : make_leaves())
            workload.variants.push_back(&triple);
        return workload;
    }
}

} // namespace bench
