/* SPDX-License-Identifier: MIT */
/* What client and service of the demo know of each other's values, so that the client can tell
 * whether everything has arrived, and in its place. What most members mean is not recorded: theirs
 * are some values, each different from its neighbours'. */

#ifndef EXAMPLES_VALUES_H
#define EXAMPLES_VALUES_H

#include <stdint.h>

#define SWITCH_PORTS 48u
#define TABLE_ENTRIES 1000u
#define SDR_COUNT 3u
#define BREACH_BYTES 1024u

#define SWITCH_NAME "demo switch"
#define PORT_TEXT "demo port"
#define TABLE_TEXT "demo table"
#define BREACH_TEXT "demo breach"

/* Some value for field `field` of the `place`th record. */
static inline uint32_t some_value(uint32_t place, uint32_t field)
{
    return place * 100 + field;
}

/* The same for 64 bits, with something in the upper half. */
static inline uint64_t some_wide_value(uint32_t place, uint32_t field)
{
    return (uint64_t)field << 40 | some_value(place, field);
}

static inline uint8_t some_byte(uint32_t place)
{
    return (uint8_t)(place * 7);
}

/* The members of port_get_statistics_resp by width. */
#define EACH_STATISTIC(X) X(1) X(2) X(3) X(4) X(5) X(39)
/* clang-format off */
#define EACH_WIDE_STATISTIC(X)                                                                     \
    X(6) X(7) X(8) X(9) X(10) X(11) X(12) X(13) X(14) X(15) X(16) X(17) X(18) X(19) X(20) X(21)    \
    X(22) X(23) X(24) X(25) X(26) X(27) X(28) X(29) X(30) X(31) X(32) X(33) X(34) X(35) X(36)      \
    X(37) X(38)
/* clang-format on */

/* The members of fdb_table_entry that are 32 bits wide; the others are 3 (64 bits) and 8 (bool). */
#define EACH_ENTRY_VALUE(X) X(1) X(2) X(4) X(5) X(6) X(7) X(9) X(10) X(11) X(12)

#endif
