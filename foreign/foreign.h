/* SPDX-License-Identifier: MIT */

/** @file
 * The two record types of the sibling interface library that records of this library embed.
 *
 * Their layouts are what this library was built with; their operations are the sibling library's,
 * which a program links beside this one. Where that library's own header is at hand, define
 * TARN_SIBLING_HEADER as its name, in quotes or brackets: it is then included instead of the
 * declarations below, and this library checks when it is built that the layouts agree.
 */

#ifndef TARN_FOREIGN_FOREIGN_H
#define TARN_FOREIGN_FOREIGN_H

#include "../runtime/record.h" /* from here, not from the include path: see there */

#ifdef TARN_SIBLING_HEADER
#include TARN_SIBLING_HEADER
#else

/** Identity record. Every member defaults to 0. The members stand in the order of their field
 * numbers; which numbers those are, only the sibling library knows. */
typedef struct tarn_calv_eid_st {
    uint32_t field_1;       /**< uint32. */
    uint32_t field_2;       /**< uint32. */
    uint32_t field_3;       /**< uint32. */
    uint32_t field_4;       /**< uint32. */
    uint32_t field_5;       /**< uint32. */
    uint32_t *field_6;      /**< A list, taken to be repeated uint32. */
    uint32_t field_6_count; /**< Number of elements of field_6. */
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_field_3 : 1;
    unsigned has_field_4 : 1;
    unsigned has_field_5 : 1;
    unsigned has_field_6 : 1;
} tarn_calv_eid_st;
TARN_DECLARE_OPERATIONS(tarn_calv_eid_st);

/** Location record. Most of its members do not default to 0: see each. They stand in the order of
 * their field numbers; which numbers those are, only the sibling library knows. */
typedef struct tarn_esd_location_info {
    uint32_t field_1; /**< uint32, default 7. */
    uint32_t field_2; /**< uint32, default 1. */
    uint32_t field_3; /**< uint32, default 0xFFFFFFFF. */
    uint32_t field_4; /**< uint32, default 1. */
    uint32_t field_5; /**< uint32, default 0xFFFFFFFF. */
    uint32_t field_6; /**< uint32, default 1. */
    uint32_t field_7; /**< uint32, default 0xFFFFFFFF. */
    uint32_t field_8; /**< uint32, default 0. */
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_field_3 : 1;
    unsigned has_field_4 : 1;
    unsigned has_field_5 : 1;
    unsigned has_field_6 : 1;
    unsigned has_field_7 : 1;
    unsigned has_field_8 : 1;
} tarn_esd_location_info;
TARN_DECLARE_OPERATIONS(tarn_esd_location_info);

#endif

#endif
