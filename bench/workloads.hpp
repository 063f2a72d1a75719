// SPDX-License-Identifier: MIT
// What is measured: for each workload a ring of records with plausible content, always the same,
// and the operations of their type without the type, so that a driver needs no templates.

#pragma once

#include "runtime/record.h"

#include <stdint.h>

#include <string_view>
#include <vector>

namespace bench {

struct Workload {
    std::string_view name;
    // The record type, without what all their names begin with.
    std::string_view type;
    // What it stands for, for people.
    std::string_view content;
    // Not part of the means: an aspect of its own, beside the fifteen that are.
    bool extra;
    // Different content, so that the branch predictor does not learn one message by heart. All of a
    // small workload fits into the second-level cache.
    std::vector<const void *> variants = {};
    // The flags word for encoding and decoding.
    uint32_t flags = 0;

    uint32_t record_size = 0;
    uint32_t (*encode)(const void *record, uint8_t *buffer, uint32_t capacity,
                       WireSegment *segments, uint32_t *segment_count, uint32_t flags) = nullptr;
    int32_t (*decode)(void *record, const uint8_t *buf, uint32_t len, wire_alloc_fn alloc_fn,
                      void *alloc_ctx, uint32_t flags) = nullptr;
    int32_t (*duplicate)(void *dst, const void *src, wire_alloc_fn alloc_fn,
                         void *alloc_ctx) = nullptr;
    void (*release)(void *record, wire_free_fn free_fn, void *free_ctx, uint32_t flags) = nullptr;
};

// Functions that differ in the type behind a pointer are called alike on all targets.
template <typename Erased, typename Function>
Erased erase(Function *function)
{
    return reinterpret_cast<Erased>(function);
}

// Gives a workload the operations of its record type.
template <typename Record, typename Encode, typename Decode, typename Duplicate, typename Release>
Workload of_type(Workload workload, Encode encode, Decode decode, Duplicate duplicate,
                 Release release)
{
    workload.record_size = sizeof(Record);
    workload.encode = erase<decltype(Workload::encode)>(encode);
    workload.decode = erase<decltype(Workload::decode)>(decode);
    workload.duplicate = erase<decltype(Workload::duplicate)>(duplicate);
    workload.release = erase<decltype(Workload::release)>(release);
    return workload;
}

#define BENCH_OF_TYPE(type, ...)                                                                   \
    of_type<tarn_ethsw_mgmt_##type>(                                                               \
        __VA_ARGS__, tarn_ethsw_mgmt_##type##_encode_ext, tarn_ethsw_mgmt_##type##_decode_ext,     \
        tarn_ethsw_mgmt_##type##_duplicate, tarn_ethsw_mgmt_##type##_free_ext)

// Made when first asked for; everything stays until the program ends.
const std::vector<Workload> &workloads();

} // namespace bench
