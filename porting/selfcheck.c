/* SPDX-License-Identifier: MIT */
/* The first program to run on a new target: does its compiler lay records out as the library takes
 * them to be? Needs the headers and the tables in abi/, and no library:
 *     cc -std=c11 -I. porting/selfcheck.c -o selfcheck && ./selfcheck */

#include "porting/check.h"

#include "ethsw_mgmt/ethsw_mgmt.h"

#include <limits.h>
#include <stddef.h>
#include <stdint.h>
#include <string.h>

/* Layouts depend on the width of a pointer and on nothing else: i686 and armhf are alike. */
#ifndef TARN_ABI_TABLE
#if UINTPTR_MAX == UINT32_MAX
#define TARN_ABI_TABLE "abi/i686.def"
#else
#define TARN_ABI_TABLE "abi/x86_64.def"
#endif
#endif

enum row_kind { row_record, row_member, row_flags, row_empty };

/* A row of the table beside what the compiler makes of it. */
struct row {
    enum row_kind kind;
    const char *type;
    const char *member;
    size_t expected;
    size_t found;
    size_t size; /* of a member */
};

#define TARN_ABI_RECORD(type, size) {row_record, #type, "", size, sizeof(type), 0},
#define TARN_ABI_MEMBER(type, member, offset)                                                      \
    {row_member, #type, #member, offset, offsetof(type, member), sizeof(((type *)0)->member)},
#define TARN_ABI_FLAGS(type, offset) {row_flags, #type, "", offset, 0, 0},
#define TARN_ABI_EMPTY(type) {row_empty, #type, "", sizeof(void *), sizeof(const type *), 0},

static const struct row rows[] = {
#include TARN_ABI_TABLE
};

#define ROW_COUNT (sizeof rows / sizeof rows[0])

static void check_basics(void)
{
    const uint32_t one = 1;
    uint8_t first;
    memcpy(&first, &one, 1);
    check(CHAR_BIT == 8, "a byte has 8 bits (found: %d)", CHAR_BIT);
    check(first == 1, "the lowest byte of a number comes first");
    check(sizeof(void *) == 4 || sizeof(void *) == 8, "pointers have 4 or 8 bytes (found: %zu)",
          sizeof(void *));
    check(sizeof(unsigned) == 4, "the unit of the flags, unsigned, has 4 bytes (found: %zu)",
          sizeof(unsigned));
}

/* Each behind something smaller. */
static void check_alignments(void)
{
    const size_t number = offsetof(tarn_ethsw_mgmt_sdr_data, field_3);
    const size_t wide = offsetof(tarn_ethsw_mgmt_core_stats, field_2);
    const size_t pointer = offsetof(tarn_ethsw_mgmt_sdr_vlan, field_2);
    check(number == 8, "32-bit members stand on multiples of 4 (found: one at %zu)", number);
    check(wide == 8, "64-bit members stand on multiples of 8 (found: one at %zu)", wide);
    check(pointer == sizeof(void *),
          "pointers stand on multiples of their size (found: one at %zu)", pointer);
}

static void check_as_in_table(const struct row *row, unsigned *wrong)
{
    if (row->found == row->expected)
        return;
    (*wrong)++;
    if (row->kind == row_member)
        check(false, "%s: %s at %zu, should be %zu", row->type, row->member, row->found,
              row->expected);
    else
        check(false, "%s: %zu bytes, should be %zu", row->type, row->found, row->expected);
}

static void check_table(void)
{
    unsigned records = 0, members = 0, empty = 0, wrong = 0;
    for (size_t i = 0; i < ROW_COUNT; i++) {
        const struct row *row = &rows[i];
        records += row->kind == row_record;
        members += row->kind == row_member;
        empty += row->kind == row_empty;
        if (row->kind != row_flags) {
            check_as_in_table(row, &wrong);
        } else if (row[-1].found + row[-1].size != row->expected) {
            wrong++;
            check(false, "%s: members end at %zu, flags should begin at %zu", row->type,
                  row[-1].found + row[-1].size, row->expected);
        }
    }
    check(wrong == 0,
          "%s: sizes of %u records, places of %u members and of the flags behind them (%u types "
          "have no fields)",
          TARN_ABI_TABLE, records, members, empty);
}

static size_t flags_of(const char *type)
{
    for (size_t i = 0; i < ROW_COUNT; i++)
        if (rows[i].kind == row_flags && strcmp(rows[i].type, type) == 0)
            return rows[i].expected;
    return SIZE_MAX;
}

/* Whether exactly this bit is set in a record that was zero. */
static bool is_only_bit(const uint8_t *record, size_t size, size_t byte, unsigned mask)
{
    for (size_t i = 0; i < size; i++)
        if (record[i] != (i == byte ? mask : 0))
            return false;
    return byte < size;
}

#define CHECK_FLAG(type, place, flag)                                                              \
    do {                                                                                           \
        type record;                                                                               \
        memset(&record, 0, sizeof record);                                                         \
        record.flag = 1;                                                                           \
        const size_t byte = flags_of(#type) + (place) / 8;                                         \
        check(is_only_bit((const uint8_t *)&record, sizeof record, byte, 1u << (place) % 8),       \
              "%s: %s is bit %d of byte %zu", #type, #flag, (place) % 8, byte);                    \
    } while (0)

/* A bit-field has no address, so some flags are set and looked for: behind members that end on each
 * byte of a unit, across the ends of bytes and units, and behind a 64-bit member. */
static void check_flags(void)
{
    CHECK_FLAG(tarn_ethsw_mgmt_bridge_sec_breach_details, 0, has_field_1);
    CHECK_FLAG(tarn_ethsw_mgmt_bridge_sec_breach_details, 4, has_field_5);
    CHECK_FLAG(tarn_ethsw_mgmt_port_enable, 0, has_port);
    CHECK_FLAG(tarn_ethsw_mgmt_port_enable, 1, has_enable);
    CHECK_FLAG(tarn_ethsw_mgmt_sfp_info, 0, has_field_1);
    CHECK_FLAG(tarn_ethsw_mgmt_sfp_info, 3, has_field_4);
    CHECK_FLAG(tarn_ethsw_mgmt_set_policing_resp, 0, has_field_1);
    CHECK_FLAG(tarn_ethsw_mgmt_set_policing_resp, 3, has_field_4);
    CHECK_FLAG(tarn_ethsw_mgmt_port_set_vlan, 4, has_field_5);
    CHECK_FLAG(tarn_ethsw_mgmt_pcl_rule_match, 0, has_field_1);
    CHECK_FLAG(tarn_ethsw_mgmt_pcl_rule_match, 15, has_field_16);
    CHECK_FLAG(tarn_ethsw_mgmt_debug_get_hw_counters_resp, 23, has_field_24);
    CHECK_FLAG(tarn_ethsw_mgmt_debug_get_hw_counters_resp, 24, has_field_25);
    CHECK_FLAG(tarn_ethsw_mgmt_port_get_statistics_resp, 7, has_field_8);
    CHECK_FLAG(tarn_ethsw_mgmt_port_get_statistics_resp, 8, has_field_9);
    CHECK_FLAG(tarn_ethsw_mgmt_port_get_statistics_resp, 31, has_field_32);
    CHECK_FLAG(tarn_ethsw_mgmt_port_get_statistics_resp, 32, has_field_33);
    CHECK_FLAG(tarn_ethsw_mgmt_debug_get_health_state_rsp, 8, has_timestamp_9);
    CHECK_FLAG(tarn_ethsw_mgmt_debug_get_health_state_rsp, 15, has_field_16);
    CHECK_FLAG(tarn_ethsw_mgmt_debug_get_health_state_rsp, 16, has_field_17);
    CHECK_FLAG(tarn_ethsw_mgmt_debug_get_health_state_rsp, 44, has_field_45);
}

int main(void)
{
    check_basics();
    check_alignments();
    check_table();
    check_flags();
    return verdict("This target is fine.");
}
