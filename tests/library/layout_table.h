/* SPDX-License-Identifier: MIT */
/* Turns the rows of a layout table (abi/<target>.def) into assertions. */

#ifndef TARN_TESTS_LIBRARY_LAYOUT_TABLE_H
#define TARN_TESTS_LIBRARY_LAYOUT_TABLE_H

#include "ethsw_mgmt/ethsw_mgmt.h"

#include <stddef.h>

#ifdef __cplusplus
#define LAYOUT_ASSERT static_assert
#define LAYOUT_ALIGNOF alignof
#else
#define LAYOUT_ASSERT _Static_assert
#define LAYOUT_ALIGNOF _Alignof
#endif

#define TARN_ABI_RECORD(type, size)                                                                \
    LAYOUT_ASSERT(sizeof(type) == (size), #type);                                                  \
    LAYOUT_ASSERT(sizeof(type) % LAYOUT_ALIGNOF(unsigned) == 0, #type);
#define TARN_ABI_MEMBER(type, member, offset)                                                      \
    LAYOUT_ASSERT(offsetof(type, member) == (offset), #type "." #member);
/* A bit-field has no address: where the flags are is seen when the catalogue tests run. */
#define TARN_ABI_FLAGS(type, offset) LAYOUT_ASSERT(sizeof(type) > (offset), #type);
#define TARN_ABI_EMPTY(type) typedef const type *pointer_to_##type;

#endif
