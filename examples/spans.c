/* SPDX-License-Identifier: MIT */
/* Shown in docs/gather-lists.md: the segments of records that hold records. */

#include "ethsw_mgmt/ethsw_mgmt.h"

#include <stdio.h>

#define CAPACITY 8u

static const uint8_t evidence[] = {0xDE, 0xAD, 0xBE, 0xEF};
static uint8_t buffer[32];
static WireSegment segments[CAPACITY];

static void show(const char *what, uint32_t length, uint32_t count)
{
    printf("%s: %u bytes:", what, (unsigned)length);
    for (uint32_t i = 0; i < length; i++)
        printf(" %02X", buffer[i]);
    printf("\n");
    for (uint32_t i = 0; i < count && i < CAPACITY; i++) {
        const unsigned size = segments[i].length;
        if (segments[i].data == evidence)
            printf("  the byte string, %u\n", size);
        else
            printf("  buffer + %d, %u\n", (int)(segments[i].data - buffer), size);
    }
}

static void two_modules(void)
{
    tarn_ethsw_mgmt_sfp_summary_entry entries[2] = {{.field_1 = 1, .has_field_1 = 1},
                                                    {.field_1 = 2, .has_field_1 = 1}};
    tarn_ethsw_mgmt_sfp_summary_response answer = {
        .field_1 = 3, .has_field_1 = 1, .entries = entries, .entries_count = 2, .has_entries = 1};
    uint32_t count = CAPACITY;
    const uint32_t length = tarn_ethsw_mgmt_sfp_summary_response_encode_ext(
        &answer, buffer, sizeof buffer, segments, &count, 0);
    show("two modules", length, count);

    count = 1;
    tarn_ethsw_mgmt_sfp_summary_response_encode_ext(&answer, buffer, sizeof buffer, segments,
                                                    &count, 0);
    printf("  with room for 1 segment: there are %u\n", (unsigned)count);
}

static void a_breach(const char *what, uint32_t flags)
{
    tarn_ethsw_mgmt_bridge_sec_breach_details details = {
        .field_3 = evidence, .field_3_length = sizeof evidence, .has_field_3 = 1};
    tarn_ethsw_mgmt_bridge_get_counters_response answer = {
        .sec_breach_details = &details, .sec_breach_details_count = 1, .has_sec_breach_details = 1};
    uint32_t count = CAPACITY;
    const uint32_t length = tarn_ethsw_mgmt_bridge_get_counters_response_encode_ext(
        &answer, buffer, sizeof buffer, segments, &count, flags);
    show(what, length, count);
}

int main(void)
{
    two_modules();
    a_breach("a breach, copied", 0);
    a_breach("a breach, in place", WIRE_FLAG_BYTES_IN_PLACE);
    return 0;
}
