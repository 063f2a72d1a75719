// SPDX-License-Identifier: MIT
// Makes the operations of a record type callable by address.

#pragma once

#include "tools/core/schema.hpp"

namespace inspect {

template <typename Record>
using EncodeExt = uint32_t (*)(const Record *, uint8_t *, uint32_t, WireSegment *, uint32_t *,
                               uint32_t);
template <typename Record>
using DecodeExt = int32_t (*)(Record *, const uint8_t *, uint32_t, wire_alloc_fn, void *, uint32_t);
template <typename Record>
using FreeExt = void (*)(Record *, wire_free_fn, void *, uint32_t);

// All three have to be of one record type, or this does not compile.
template <auto encode_ext, auto decode_ext, auto free_ext, typename Record>
constexpr Operations operations_of(EncodeExt<Record>, DecodeExt<Record>, FreeExt<Record>)
{
    return {
        [](const void *record, uint8_t *buffer, uint32_t capacity, WireSegment *segments,
           uint32_t *segment_count, uint32_t flags) {
            return encode_ext(static_cast<const Record *>(record), buffer, capacity, segments,
                              segment_count, flags);
        },
        [](void *record, const uint8_t *buf, uint32_t len, wire_alloc_fn alloc_fn, void *alloc_ctx,
           uint32_t flags) {
            return decode_ext(static_cast<Record *>(record), buf, len, alloc_fn, alloc_ctx, flags);
        },
        [](void *record, wire_free_fn free_fn, void *free_ctx, uint32_t flags) {
            free_ext(static_cast<Record *>(record), free_fn, free_ctx, flags);
        },
    };
}

template <auto encode_ext, auto decode_ext, auto free_ext>
constexpr Operations operations()
{
    return operations_of<encode_ext, decode_ext, free_ext>(encode_ext, decode_ext, free_ext);
}

} // namespace inspect
