/* SPDX-License-Identifier: MIT */
/* What every record type shares: the callbacks, the gather list, and the four operations, which are
 * told here once for all types. */

#ifndef TARN_RUNTIME_RECORD_H
#define TARN_RUNTIME_RECORD_H

#include "wire/result.h"

#include <stdint.h>

#if defined(__BYTE_ORDER__) && __BYTE_ORDER__ != __ORDER_LITTLE_ENDIAN__
#error "ethsw_mgmt supports little-endian targets only."
#endif

/* 64-bit members stand on multiples of eight on every target, i386 included. */
#ifdef __cplusplus
#define TARN_ALIGNED_8 alignas(8)
#else
#define TARN_ALIGNED_8 _Alignas(8)
#endif

/* In the flags word: byte strings are referenced, not copied. Encoding hands them out as segments
 * of their own, decoding leaves them pointing into its input, release leaves them alone. The other
 * bits of the word are not examined. */
#define WIRE_FLAG_BYTES_IN_PLACE ((uint32_t)1)

/* A piece of an encoding: `length` bytes at `data`. */
typedef struct WireSegment {
    const uint8_t *data;
    uint32_t length;
} WireSegment;

/* Supplies a block of `size` bytes, aligned to 8, or null. The size may be 0: an empty byte string
 * asks for that, and null is then a failure like any other. */
typedef void *(*wire_alloc_fn)(uint32_t size, void *alloc_ctx);

/* Takes back a block that the alloc_fn of the same record supplied; never called with null. */
typedef void (*wire_free_fn)(void *block, void *free_ctx);

/* Records.
 *
 * A record type is a plain structure, its members in the order of their field numbers. Behind them
 * stands a flag has_<member> for each. Strings end with a zero byte; byte strings and lists are a
 * pointer and a second member <member>_length or <member>_count. A bool is a uint8_t, since any
 * value may be in memory: encoding writes the byte as it is, decoding stores 0 or 1. To start a
 * record, fill it with zero bytes or decode an empty message into it. A type without fields is
 * declared but has no structure: pass a null pointer, no operation looks at it.
 *
 * The operations, for a record type T. None of them keeps state: any number of threads may call
 * them at once, as long as no two write the same record, buffer or segment array.
 *
 * uint32_t T_encode_ext(record, buffer, capacity, segments, segment_count, flags)
 *
 *   Writes the record and returns the number of bytes of its encoding that belong in the buffer:
 *   always the full number, also when it exceeds `capacity`; what the buffer then holds is of no
 *   use. It cannot fail. With a null buffer and capacity 0 it only measures. During the call all
 *   of the buffer is the library's; behind the encoding it holds afterwards what it held before.
 *
 *   A scalar, a byte string or a list is written when its flag is set; a string when, besides, it
 *   is not null; a list of strings likewise; an embedded record when its flag is set or when it
 *   has something to write. Byte strings, other lists and the strings in a list must be there when
 *   flag and length or count say so: their pointers are not tested.
 *
 *   `segments` and `segment_count` may be null when no gather list is wanted. Else *segment_count
 *   holds the capacity of `segments` on entry, and on return the number of pieces, of which at most
 *   the capacity are stored. Every record that writes something adds a piece, nested records
 *   before those that hold them; the last covers the whole encoding. With
 *   WIRE_FLAG_BYTES_IN_PLACE the pieces of a record without nested records are instead a gather
 *   list: byte strings stay where they are and are pieces of their own between pieces of the
 *   buffer; the result then counts only what is in the buffer. The length in front of a nested
 *   record leaves its byte strings out, too.
 *
 * int32_t T_decode_ext(record, buf, len, alloc_fn, alloc_ctx, flags)
 *
 *   Sets every member to its default and clears every flag, then reads the `len` bytes at `buf`.
 *   What the record held before is overwritten, not released. Returns WIRE_OK or the first error.
 *   Strings, byte strings and lists are copied into blocks from `alloc_fn`, which may be null when
 *   none is needed. The record owns every block it holds, after an error, too, until T_free_ext.
 *   With WIRE_FLAG_BYTES_IN_PLACE byte strings point into `buf`, which must then outlive them.
 *
 *   Fields that the type does not have are skipped, even where they claim to reach past the end.
 *   Of a scalar that comes twice the last stays; a string, byte string or list that comes twice,
 *   or a list that does not come in one run, is WIRE_ERR_MALFORMED. A record that is embedded and
 *   comes twice is replaced, not merged, and the blocks of the first are lost to the record: a
 *   service that reads hostile input takes memory from an arena with a budget.
 *
 * int32_t T_duplicate(dst, src, alloc_fn, alloc_ctx)
 *
 *   Makes `dst` a copy of `src` that shares nothing with it and owns all its blocks, which come
 *   from `alloc_fn`. What `dst` held before is overwritten, not released. Returns WIRE_OK, or
 *   WIRE_ERR_NO_MEMORY when something could not be copied: that member is then null or empty with
 *   its flag clear (a string in a list: null), everything else is there. Either way the copy is
 *   released with T_free_ext and flags 0.
 *
 * void T_free_ext(record, free_fn, free_ctx, flags)
 *
 *   Hands every block that decoding or duplicating attached to `free_fn` and sets its pointer to
 *   null, so that a second call does nothing. Numbers and flags stay as they are, but for the
 *   counts of lists of records and strings, which become 0. `flags` is the word that was given to
 *   T_decode_ext. `free_fn` is not called, and may be null, when no block is attached. */

#ifdef __cplusplus
#define TARN_C_INTERFACE extern "C" __attribute__((visibility("default")))
#else
#define TARN_C_INTERFACE __attribute__((visibility("default")))
#endif

/* The operations of one record type. */
#define TARN_DECLARE_OPERATIONS(T)                                                                 \
    TARN_C_INTERFACE uint32_t T##_encode_ext(const T *record, uint8_t *buffer, uint32_t capacity,  \
                                             WireSegment *segments, uint32_t *segment_count,       \
                                             uint32_t flags);                                      \
    TARN_C_INTERFACE int32_t T##_decode_ext(T *record, const uint8_t *buf, uint32_t len,           \
                                            wire_alloc_fn alloc_fn, void *alloc_ctx,               \
                                            uint32_t flags);                                       \
    TARN_C_INTERFACE int32_t T##_duplicate(T *dst, const T *src, wire_alloc_fn alloc_fn,           \
                                           void *alloc_ctx);                                       \
    TARN_C_INTERFACE void T##_free_ext(T *record, wire_free_fn free_fn, void *free_ctx,            \
                                       uint32_t flags)

#endif
