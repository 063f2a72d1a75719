/* SPDX-License-Identifier: MIT */

/** @file
 * What every record type shares: the callbacks, the gather list, and the four operations, which are
 * told here once for all types.
 */

#ifndef TARN_RUNTIME_RECORD_H
#define TARN_RUNTIME_RECORD_H

/* Public headers include each other by where they stand beside each other, never by a path from the
 * include directory: a user's own runtime/record.h that comes first there must not be taken. */
#include "../wire/result.h"

#include <stdint.h>

#if defined(__BYTE_ORDER__) && __BYTE_ORDER__ != __ORDER_LITTLE_ENDIAN__
#error "ethsw_mgmt supports little-endian targets only."
#endif

/** Of 64-bit members: they stand on multiples of eight on every target, i386 included. */
#ifdef __cplusplus
#define TARN_ALIGNED_8 alignas(8)
#else
#define TARN_ALIGNED_8 _Alignas(8)
#endif

/**
 * @defgroup records Records
 *
 * A record type is a plain structure, its members in the order of their field numbers. Behind them
 * stands a flag `has_<member>` for each. Strings end with a zero byte; byte strings and lists are a
 * pointer and a second member `<member>_length` or `<member>_count`. A bool is a uint8_t, since any
 * value may be in memory: encoding writes the byte as it is, decoding stores 0 or 1. To start a
 * record, fill it with zero bytes or decode an empty message into it. A type without fields is
 * declared but has no structure: pass a null pointer, no operation looks at it.
 */

/**
 * @defgroup operations The four operations
 *
 * Each record type T has these four, under its own name: tarn_ethsw_mgmt_port_reset has
 * tarn_ethsw_mgmt_port_reset_encode_ext(), and so on. None of them keeps state: any number of
 * threads may call them at once, as long as no two write the same record, buffer or segment array.
 *
 * @{
 */

/** In the flags word: byte strings are referenced, not copied. Encoding hands them out as segments
 * of their own, decoding leaves them pointing into its input, release leaves them alone. The other
 * bits of the word are not examined. */
#define WIRE_FLAG_BYTES_IN_PLACE ((uint32_t)1)

/** A piece of an encoding. */
typedef struct WireSegment {
    const uint8_t *data; /**< The first byte, in the caller's buffer or in a byte string. */
    uint32_t length;     /**< How many bytes there are. */
} WireSegment;

/** Supplies a block of `size` bytes, aligned to 8, or null. The size may be 0: an empty byte string
 * asks for that, and null is then a failure like any other. `alloc_ctx` is what the operation was
 * given beside the callback. */
typedef void *(*wire_alloc_fn)(uint32_t size, void *alloc_ctx);

/** Takes back a block that the alloc_fn of the same record supplied; never called with null.
 * `free_ctx` is what the operation was given beside the callback. */
typedef void (*wire_free_fn)(void *block, void *free_ctx);

/* For the reference and for you to read; what declares them for each type stands below. */
#ifdef TARN_REFERENCE

/**
 * Writes a record into a buffer, or measures it. It cannot fail.
 *
 * A scalar, a byte string or a list is written when its flag is set; a string when, besides, it is
 * not null; a list of strings likewise; an embedded record when its flag is set or when it has
 * something to write. Byte strings, other lists and the strings in a list must be there when flag
 * and length or count say so: their pointers are not tested.
 *
 * Every record that writes something adds a segment, nested records before those that hold them;
 * the last covers the whole encoding. With #WIRE_FLAG_BYTES_IN_PLACE the segments of a record
 * without nested records are instead a gather list: byte strings stay where they are and are pieces
 * of their own between pieces of the buffer; the result then counts only what is in the buffer. The
 * length in front of a nested record leaves its byte strings out, too.
 *
 * @param record         The record; it is only read.
 * @param buffer         Where the encoding goes. During the call all of it is the library's; behind
 *                       the encoding it holds afterwards what it held before. May be null when
 *                       `capacity` is 0: then the record is only measured.
 * @param capacity       How many bytes the buffer has.
 * @param segments       Where the pieces are stored. May be null when none are wanted.
 * @param segment_count  On entry the capacity of `segments`, on return the number of pieces, of
 *                       which at most the capacity are stored. May be null when none are wanted.
 * @param flags          #WIRE_FLAG_BYTES_IN_PLACE or 0.
 * @return The number of bytes of the encoding that belong in the buffer: always the full number,
 *         also when it exceeds `capacity`; what the buffer then holds is of no use.
 */
uint32_t T_encode_ext(const T *record, uint8_t *buffer, uint32_t capacity, WireSegment *segments,
                      uint32_t *segment_count, uint32_t flags);

/**
 * Reads a record from bytes, whoever they come from.
 *
 * Sets every member to its default and clears every flag, then reads the bytes. Strings, byte
 * strings and lists are copied into blocks from `alloc_fn`. The record owns every block it holds,
 * after an error, too, until T_free_ext().
 *
 * Fields that the type does not have are skipped, even where they claim to reach past the end. Of a
 * scalar that comes twice the last stays; a string, byte string or list that comes twice, or a list
 * that does not come in one run, is #WIRE_ERR_MALFORMED. A record that is embedded and comes twice
 * is replaced, not merged, and the blocks of the first are lost to the record: a service that reads
 * hostile input takes memory from an arena with a budget.
 *
 * @param record     Where to. What it held before is overwritten, not released.
 * @param buf        The bytes; may be null when there are none. With #WIRE_FLAG_BYTES_IN_PLACE
 *                   byte strings point into them, and they must then outlive the record.
 * @param len        How many bytes there are.
 * @param alloc_fn   Supplies the blocks; may be null when none is needed.
 * @param alloc_ctx  Handed to each call of `alloc_fn`.
 * @param flags      #WIRE_FLAG_BYTES_IN_PLACE or 0; the same word goes to T_free_ext() later.
 * @return #WIRE_OK or the first error: #WIRE_ERR_MALFORMED, #WIRE_ERR_WIRE_TYPE,
 *         #WIRE_ERR_TYPE_MISMATCH or #WIRE_ERR_NO_MEMORY. What was read before it stays.
 */
int32_t T_decode_ext(T *record, const uint8_t *buf, uint32_t len, wire_alloc_fn alloc_fn,
                     void *alloc_ctx, uint32_t flags);

/**
 * Makes a copy of a record that shares nothing with it and owns all its blocks. It is released with
 * T_free_ext() and flags 0, whatever the result, and however the original was decoded.
 *
 * @param dst        Where to. What it held before is overwritten, not released.
 * @param src        The original; it is only read.
 * @param alloc_fn   Supplies the blocks; may be null when none is needed.
 * @param alloc_ctx  Handed to each call of `alloc_fn`.
 * @return #WIRE_OK, or #WIRE_ERR_NO_MEMORY when something could not be copied: that member is then
 *         null or empty with its flag clear (a string in a list: null), everything else is there.
 */
int32_t T_duplicate(T *dst, const T *src, wire_alloc_fn alloc_fn, void *alloc_ctx);

/**
 * Hands every block that decoding or duplicating attached back to the caller, and sets its pointer
 * to null, so that a second call does nothing. Numbers and flags stay as they are, but for the
 * counts of lists of records and strings, which become 0. The record itself is the caller's.
 *
 * @param record    The record, after success or after an error.
 * @param free_fn   Takes the blocks, what a list holds before the list; may be null when no block
 *                  is attached.
 * @param free_ctx  Handed to each call of `free_fn`.
 * @param flags     The word that was given to T_decode_ext(); 0 after T_duplicate().
 */
void T_free_ext(T *record, wire_free_fn free_fn, void *free_ctx, uint32_t flags);

#endif

/** @} */

/** Of each operation: an exported name with the linkage of C. */
#ifdef __cplusplus
#define TARN_C_INTERFACE extern "C" __attribute__((visibility("default")))
#else
#define TARN_C_INTERFACE __attribute__((visibility("default")))
#endif

/** Declares the operations of the record type T: T_encode_ext(), T_decode_ext(), T_duplicate() and
 * T_free_ext(), which are told above. */
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
