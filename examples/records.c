/* SPDX-License-Identifier: MIT */
/* The operations of the record types that client and service have agreed on: see records.h. */

#include "records.h"

#define OPERATIONS(name)                                                                           \
    static uint32_t encode_##name(const void *record, uint8_t *buffer, uint32_t capacity,          \
                                  WireSegment *segments, uint32_t *segment_count, uint32_t flags)  \
    {                                                                                              \
        return tarn_ethsw_mgmt_##name##_encode_ext(record, buffer, capacity, segments,             \
                                                   segment_count, flags);                          \
    }                                                                                              \
    static int32_t decode_##name(void *record, const uint8_t *buf, uint32_t len,                   \
                                 wire_alloc_fn alloc_fn, void *alloc_ctx, uint32_t flags)          \
    {                                                                                              \
        return tarn_ethsw_mgmt_##name##_decode_ext(record, buf, len, alloc_fn, alloc_ctx, flags);  \
    }                                                                                              \
    static void release_##name(void *record, wire_free_fn free_fn, void *free_ctx, uint32_t flags) \
    {                                                                                              \
        tarn_ethsw_mgmt_##name##_free_ext(record, free_fn, free_ctx, flags);                       \
    }
EACH_RECORD(OPERATIONS)

const struct record_type *record_type_of(enum record_id id)
{
#define ROW(name) [record_##name] = {#name, encode_##name, decode_##name, release_##name},
    static const struct record_type types[record_id_end] = {EACH_RECORD(ROW)};
    return &types[id];
}
