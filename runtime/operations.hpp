// SPDX-License-Identifier: MIT
// Defines the four exported functions of a record type. What they do is told in runtime/record.h.

#pragma once

#include "runtime/codec.hpp"

#define TARN_DEFINE_OPERATIONS(T)                                                                  \
    uint32_t T##_encode_ext(const T *record, uint8_t *buffer, uint32_t capacity,                   \
                            WireSegment *segments, uint32_t *segment_count, uint32_t flags)        \
    {                                                                                              \
        return tarn::CodecOf<T>::Type::encode(record, buffer, capacity, segments, segment_count,   \
                                              flags);                                              \
    }                                                                                              \
    int32_t T##_decode_ext(T *record, const uint8_t *buf, uint32_t len, wire_alloc_fn alloc_fn,    \
                           void *alloc_ctx, uint32_t flags)                                        \
    {                                                                                              \
        return tarn::CodecOf<T>::Type::decode(record, buf, len, alloc_fn, alloc_ctx, flags);       \
    }                                                                                              \
    int32_t T##_duplicate(T *dst, const T *src, wire_alloc_fn alloc_fn, void *alloc_ctx)           \
    {                                                                                              \
        return tarn::CodecOf<T>::Type::duplicate(dst, src, alloc_fn, alloc_ctx);                   \
    }                                                                                              \
    void T##_free_ext(T *record, wire_free_fn free_fn, void *free_ctx, uint32_t flags)             \
    {                                                                                              \
        tarn::CodecOf<T>::Type::release(record, free_fn, free_ctx, flags);                         \
    }                                                                                              \
    static_assert(true, "takes the semicolon")
