/* SPDX-License-Identifier: MIT */
/* A sibling library with a header of its own: the same layouts, and other names of members but for
 * those that the consumer uses. */

#ifndef THEIR_HEADER_H
#define THEIR_HEADER_H

#ifndef THEIR_NUMBERS
#define THEIR_NUMBERS 7
#endif

typedef struct tarn_calv_eid_st {
    uint32_t field_1;
    uint32_t others[4];
    uint32_t *list;
    uint32_t list_count;
    unsigned has_field_1 : 1;
    unsigned other_flags : 5;
} tarn_calv_eid_st;
TARN_DECLARE_OPERATIONS(tarn_calv_eid_st);

typedef struct tarn_esd_location_info {
    uint32_t first;
    uint32_t others[THEIR_NUMBERS];
    unsigned flags : 8;
} tarn_esd_location_info;
TARN_DECLARE_OPERATIONS(tarn_esd_location_info);

#endif
