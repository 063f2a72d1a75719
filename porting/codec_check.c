/* SPDX-License-Identifier: MIT */
/* The second program to run on a new target: does the library work there? Links the library and the
 * sibling library. Bytes that it must write and read stand beside what they mean. */

#include "porting/check.h"

#include "ethsw_mgmt/forwarding.h"
#include "ethsw_mgmt/hardware.h"
#include "ethsw_mgmt/switch.h"

#include <stdint.h>
#include <string.h>

/* Memory for decoding, of which nothing is used twice. */
struct memory {
    _Alignas(8) uint8_t bytes[512];
    uint32_t used;
    uint32_t blocks;
};

static void *take(uint32_t size, void *context)
{
    struct memory *memory = context;
    const uint32_t room = size + (8u - size % 8u);
    if (room > sizeof memory->bytes - memory->used)
        return NULL;
    void *block = memory->bytes + memory->used;
    memory->used += room;
    memory->blocks++;
    return block;
}

static void give_back(void *block, void *context)
{
    struct memory *memory = context;
    (void)block;
    memory->blocks--;
}

static bool is_piece(WireSegment segment, const uint8_t *data, uint32_t length)
{
    return segment.data == data && segment.length == length;
}

/* A list of two records. */
static const uint8_t summary_bytes[] = {0x08, 3,           /* field 1: 3 */
                                        0x12, 2, 0x08, 1,  /* field 2: a record with field 1: 1 */
                                        0x12, 2, 0x08, 2}; /* field 2: a record with field 1: 2 */

static void check_writing_nested(void)
{
    tarn_ethsw_mgmt_sfp_summary_entry entries[2] = {{.field_1 = 1, .has_field_1 = 1},
                                                    {.field_1 = 2, .has_field_1 = 1}};
    const tarn_ethsw_mgmt_sfp_summary_response summary = {
        .field_1 = 3, .has_field_1 = 1, .entries = entries, .entries_count = 2, .has_entries = 1};
    uint8_t buffer[sizeof summary_bytes];
    WireSegment segments[8];
    uint32_t count = 8;
    const uint32_t length = tarn_ethsw_mgmt_sfp_summary_response_encode_ext(
        &summary, buffer, sizeof buffer, segments, &count, 0);
    check(tarn_ethsw_mgmt_sfp_summary_response_encode_ext(&summary, NULL, 0, NULL, NULL, 0) ==
              sizeof summary_bytes,
          "a list of records is measured");
    check(length == sizeof summary_bytes && memcmp(buffer, summary_bytes, length) == 0,
          "a list of records is written");
    check(count == 3 && is_piece(segments[0], buffer + 4, 2) &&
              is_piece(segments[1], buffer + 8, 2) && is_piece(segments[2], buffer, 10),
          "nested records report their pieces before the record around them");
}

static void check_reading_nested(void)
{
    struct memory memory = {.used = 0};
    tarn_ethsw_mgmt_sfp_summary_response summary, copy;
    const int32_t read = tarn_ethsw_mgmt_sfp_summary_response_decode_ext(
        &summary, summary_bytes, sizeof summary_bytes, take, &memory, 0);
    check(read == WIRE_OK && summary.has_field_1 && summary.field_1 == 3 && summary.has_entries &&
              summary.entries_count == 2 && summary.entries[1].has_field_1 &&
              summary.entries[1].field_1 == 2 && !summary.entries[1].has_field_2,
          "a list of records is read");
    const int32_t copied =
        tarn_ethsw_mgmt_sfp_summary_response_duplicate(&copy, &summary, take, &memory);
    check(copied == WIRE_OK && copy.entries != summary.entries && copy.entries_count == 2 &&
              copy.entries[1].field_1 == 2,
          "it is copied");
    tarn_ethsw_mgmt_sfp_summary_response_free_ext(&summary, give_back, &memory, 0);
    tarn_ethsw_mgmt_sfp_summary_response_free_ext(&copy, give_back, &memory, 0);
    check(memory.blocks == 0 && !summary.entries && summary.entries_count == 0,
          "all blocks are given back");
}

/* Numbers around a byte string. */
static const uint8_t breach_bytes[] = {0x08, 5,                         /* field 1: 5 */
                                       0x1A, 4, 0xDE, 0xAD, 0xBE, 0xEF, /* field 3: four bytes */
                                       0x20, 1};                        /* field 4: 1 */

static void check_writing_in_place(void)
{
    static const uint8_t in_buffer[] = {0x08, 5, 0x1A, 4, 0x20, 1};
    uint8_t data[] = {0xDE, 0xAD, 0xBE, 0xEF};
    const tarn_ethsw_mgmt_bridge_sec_breach_details breach = {.field_1 = 5,
                                                              .has_field_1 = 1,
                                                              .field_3 = data,
                                                              .field_3_length = sizeof data,
                                                              .has_field_3 = 1,
                                                              .field_4 = 1,
                                                              .has_field_4 = 1};
    uint8_t buffer[sizeof breach_bytes];
    WireSegment segments[8];
    uint32_t count = 8;
    uint32_t length = tarn_ethsw_mgmt_bridge_sec_breach_details_encode_ext(
        &breach, buffer, sizeof buffer, NULL, NULL, 0);
    check(length == sizeof breach_bytes && memcmp(buffer, breach_bytes, length) == 0,
          "a byte string is written");
    length = tarn_ethsw_mgmt_bridge_sec_breach_details_encode_ext(
        &breach, buffer, sizeof buffer, segments, &count, WIRE_FLAG_BYTES_IN_PLACE);
    check(length == sizeof in_buffer && memcmp(buffer, in_buffer, length) == 0 && count == 3 &&
              is_piece(segments[0], buffer, 4) && is_piece(segments[1], data, 4) &&
              is_piece(segments[2], buffer + 4, 2),
          "it stays in its place when asked to");
}

static void check_reading_in_place(void)
{
    tarn_ethsw_mgmt_bridge_sec_breach_details breach;
    const int32_t read = tarn_ethsw_mgmt_bridge_sec_breach_details_decode_ext(
        &breach, breach_bytes, sizeof breach_bytes, NULL, NULL, WIRE_FLAG_BYTES_IN_PLACE);
    check(read == WIRE_OK && breach.field_3 == breach_bytes + 4 && breach.field_3_length == 4 &&
              breach.field_4 == 1 && !breach.has_field_5,
          "and when it is read");
    check(tarn_ethsw_mgmt_bridge_sec_breach_details_decode_ext(
              &breach, breach_bytes, sizeof breach_bytes, NULL, NULL, 0) == WIRE_ERR_NO_MEMORY,
          "without memory it is refused");
    check(tarn_ethsw_mgmt_bridge_sec_breach_details_decode_ext(
              &breach, breach_bytes, 5, NULL, NULL, WIRE_FLAG_BYTES_IN_PLACE) == WIRE_ERR_MALFORMED,
          "a message that is cut off is refused");
}

/* Wide numbers stand behind five narrow ones: here layouts of different compilers part first. */
static void check_wide_numbers(void)
{
    static const uint8_t bytes[] = {0x28, 7,                            /* field 5: 7 */
                                    0x30, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, /* field 6: all ones */
                                    0xFF, 0xFF, 0xFF, 0xFF, 0x01, 0xB8, 0x02, 9}; /* field 39: 9 */
    uint8_t buffer[sizeof bytes];
    tarn_ethsw_mgmt_port_get_statistics_resp statistics;
    const int32_t read = tarn_ethsw_mgmt_port_get_statistics_resp_decode_ext(
        &statistics, bytes, sizeof bytes, NULL, NULL, 0);
    check(read == WIRE_OK && statistics.has_field_5 && statistics.field_5 == 7 &&
              statistics.has_field_6 && statistics.field_6 == UINT64_MAX &&
              statistics.has_field_39 && statistics.field_39 == 9 && !statistics.has_field_7,
          "numbers of 64 bits are read");
    check(tarn_ethsw_mgmt_port_get_statistics_resp_encode_ext(&statistics, buffer, sizeof buffer,
                                                              NULL, NULL, 0) == sizeof bytes &&
              memcmp(buffer, bytes, sizeof bytes) == 0,
          "and written");
}

int main(void)
{
    check_writing_nested();
    check_reading_nested();
    check_writing_in_place();
    check_reading_in_place();
    check_wide_numbers();
    return verdict("The library works here.");
}
