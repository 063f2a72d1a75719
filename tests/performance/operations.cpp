// SPDX-License-Identifier: MIT
// Runs single operations of the shared library on records that are always the same, for callgrind:
// each call is a part of its own in what callgrind writes, named workload/operation, and nothing is
// recorded in between. See scripts/check-performance.
#include "bench/bump.hpp"
#include "bench/workloads/fill.hpp"

#include <stdio.h>
#include <stdlib.h>

#include <algorithm>
#include <string>
#include <vector>

#include <valgrind/callgrind.h>

namespace {

constexpr uint64_t kSeed = 20'260'101;
constexpr uint32_t kMostSegments = 16'384;
constexpr uint32_t kArena = 4 << 20;

template <typename Record>
struct Operations {
    const char *workload;
    uint32_t (*encode)(const Record *record, uint8_t *buffer, uint32_t capacity,
                       WireSegment *segments, uint32_t *segment_count, uint32_t flags);
    int32_t (*decode)(Record *record, const uint8_t *buf, uint32_t len, wire_alloc_fn alloc_fn,
                      void *alloc_ctx, uint32_t flags);
    int32_t (*duplicate)(Record *dst, const Record *src, wire_alloc_fn alloc_fn, void *alloc_ctx);
    void (*release)(Record *record, wire_free_fn free_fn, void *free_ctx, uint32_t flags);
};

void *allocate_from(uint32_t size, void *bump)
{
    return static_cast<bench::Bump *>(bump)->allocate(size);
}

void leave_to_the_arena(void *, void *) {}

// A count of something else than the operation would be worth nothing.
void require(bool holds, const char *workload, const char *what)
{
    if (holds)
        return;
    fprintf(stderr, "%s: %s\n", workload, what);
    exit(1);
}

template <typename Call>
void count(const char *workload, const char *operation, Call call)
{
    const std::string name = std::string(workload) + '/' + operation;
    CALLGRIND_START_INSTRUMENTATION;
    call();
    CALLGRIND_STOP_INSTRUMENTATION;
    CALLGRIND_DUMP_STATS_AT(name.c_str());
}

template <typename Record>
void count_encoding(const Operations<Record> &does, const Record &record,
                    std::vector<uint8_t> &bytes)
{
    uint32_t size = 0;
    count(does.workload, "measure",
          [&] { size = does.encode(&record, nullptr, 0, nullptr, nullptr, 0); });
    bytes.resize(size);
    uint32_t written = 0;
    count(does.workload, "encode",
          [&] { written = does.encode(&record, bytes.data(), size, nullptr, nullptr, 0); });
    require(written == size, does.workload, "encoding is not what was measured");

    std::vector<uint8_t> again(size);
    std::vector<WireSegment> segments(kMostSegments);
    uint32_t segment_count = kMostSegments;
    count(does.workload, "encode_segments", [&] {
        written = does.encode(&record, again.data(), size, segments.data(), &segment_count, 0);
    });
    require(written == size && again == bytes, does.workload, "segments make a difference");
    require(segment_count <= kMostSegments && segments[segment_count - 1].length == size,
            does.workload, "the last segment is not the whole");
}

template <typename Record>
void count_operations(const Operations<Record> &does)
{
    bench::Maker make(kSeed);
    Record &record = *make.record<Record>();
    bench::fill(make, record);
    std::vector<uint8_t> bytes;
    count_encoding(does, record, bytes);
    const uint32_t size = static_cast<uint32_t>(bytes.size());

    bench::Bump arena(kArena);
    Record decoded;
    Record copy;
    int32_t result = -1;
    count(does.workload, "decode",
          [&] { result = does.decode(&decoded, bytes.data(), size, allocate_from, &arena, 0); });
    require(result == WIRE_OK, does.workload, "is not decoded");
    count(does.workload, "duplicate",
          [&] { result = does.duplicate(&copy, &decoded, allocate_from, &arena); });
    require(result == WIRE_OK, does.workload, "is not duplicated");
    std::vector<uint8_t> again(size);
    require(does.encode(&copy, again.data(), size, nullptr, nullptr, 0) == size && again == bytes,
            does.workload, "the copy of what was decoded is another record");
    count(does.workload, "free", [&] { does.release(&copy, leave_to_the_arena, nullptr, 0); });
}

} // namespace

#define COUNT_OPERATIONS(type)                                                                     \
    count_operations<tarn_ethsw_mgmt_##type>(                                                      \
        {#type, tarn_ethsw_mgmt_##type##_encode_ext, tarn_ethsw_mgmt_##type##_decode_ext,          \
         tarn_ethsw_mgmt_##type##_duplicate, tarn_ethsw_mgmt_##type##_free_ext})

int main()
{
    COUNT_OPERATIONS(port_reset);
    COUNT_OPERATIONS(port_get_statistics_resp);
    COUNT_OPERATIONS(switch_info);
    COUNT_OPERATIONS(fdb_get_table_entry_resp);
    COUNT_OPERATIONS(get_pcl_resp);
    COUNT_OPERATIONS(show_txq_resp);
    COUNT_OPERATIONS(fpd_cmp_to_file);
}
