/* SPDX-License-Identifier: MIT */

/** @file
 * The result codes of every operation that can fail.
 */

#ifndef TARN_WIRE_RESULT_H
#define TARN_WIRE_RESULT_H

#include <stdint.h>

/** Done. */
#define WIRE_OK ((int32_t)0)
/** The input ends inside a varint, a known field runs past its end, a string, byte string or
 * repeated member arrives a second time, or the input would keep the decoder busy for ever. */
#define WIRE_ERR_MALFORMED ((int32_t)-1)
/** An unknown field has a wire type that cannot be skipped: 3, 4, 6 or 7. */
#define WIRE_ERR_WIRE_TYPE ((int32_t)-2)
/** A known field arrives with another wire type than its kind has. */
#define WIRE_ERR_TYPE_MISMATCH ((int32_t)-3)
/** Memory is needed and there is no alloc_fn, it returned null, or the size does not fit its
 * argument. */
#define WIRE_ERR_NO_MEMORY ((int32_t)-4)

#endif
