// SPDX-License-Identifier: MIT

/** @file
 * What belongs to a record type: its four operations and its shape, by the type instead of by name,
 * so that templates can be written over record types. The header of each subject (switch.hpp,
 * queue.hpp, ...) has them for its types; the rest of this folder is built on them.
 */

#pragma once

#include "../runtime/record.h"

#include <cstddef>
#include <cstdint>

/** What makes C++ code out of records; nothing of it is inside the library. */
namespace tarn {

/** What a record type is made of, as far as a caller has to know. */
enum class Shape {
    /** It has no fields, so there is no structure, and a null pointer stands for the record. */
    fieldless,
    /** No member is a record or a list of records: a gather list of it can be sent as it is. */
    flat,
    /** Some member is a record or a list of records. */
    nesting,
};

/** The type of `T_encode_ext`. */
template <typename T>
using EncodeExt = uint32_t (*)(const T *record, uint8_t *buffer, uint32_t capacity,
                               WireSegment *segments, uint32_t *segment_count, uint32_t flags);

/** The type of `T_decode_ext`. */
template <typename T>
using DecodeExt = int32_t (*)(T *record, const uint8_t *buf, uint32_t len, wire_alloc_fn alloc_fn,
                              void *alloc_ctx, uint32_t flags);

/** The type of `T_duplicate`. */
template <typename T>
using Duplicate = int32_t (*)(T *dst, const T *src, wire_alloc_fn alloc_fn, void *alloc_ctx);

/** The type of `T_free_ext`. */
template <typename T>
using FreeExt = void (*)(T *record, wire_free_fn free_fn, void *free_ctx, uint32_t flags);

/**
 * The operations of the record type `T`: `encode_ext`, `decode_ext`, `duplicate`, `free_ext`, and
 * its `shape`. Each is a constant, so that a call through it is the call itself. A type is unknown
 * here until the header of its subject is included.
 */
template <typename T>
struct Operations;

/** Whether the record type `T` has fields, and with them a structure. */
template <typename T>
inline constexpr bool has_fields = Operations<T>::shape != Shape::fieldless;

} // namespace tarn

/**
 * Makes the record type `T` known to the templates of this folder. Stands in namespace tarn, once
 * for each type; `Form` is an enumerator of tarn::Shape.
 */
#define TARN_OPERATIONS(T, Form)                                                                   \
    template <>                                                                                    \
    struct Operations<T> {                                                                         \
        static constexpr Shape shape = Shape::Form;                                                \
        static constexpr EncodeExt<T> encode_ext = T##_encode_ext;                                 \
        static constexpr DecodeExt<T> decode_ext = T##_decode_ext;                                 \
        static constexpr Duplicate<T> duplicate = T##_duplicate;                                   \
        static constexpr FreeExt<T> free_ext = T##_free_ext;                                       \
    }
