/* SPDX-License-Identifier: MIT */
/* Reads the bytes of a switch_info that somebody else has encoded, decodes them, shows a few
 * members, encodes the record again and compares. Fails when the bytes are not the same. */

#include "arena.h"
#include "ethsw_mgmt/switch.h"

#include <inttypes.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#define INPUT_MAX (64u * 1024u)
#define BUDGET (1024u * 1024u)

static void show(const tarn_ethsw_mgmt_switch_info *info)
{
    if (info->has_name)
        printf("  name                  \"%s\"\n", info->name);
    if (info->has_field_9)
        printf("  field_9               %" PRIu64 "\n", info->field_9);
    printf("  number of ports       %" PRIu32 "\n", info->ports_count);
    for (uint32_t i = 0; i < info->ports_count; i++)
        if (info->ports[i].phy.has_field_1)
            printf("  ports[%" PRIu32 "].phy.field_1  %" PRIu32 "\n", i,
                   info->ports[i].phy.field_1);
}

/* The arena is for the record and for the bytes it is encoded into. */
static bool recode(const uint8_t *input, uint32_t length, struct arena *arena)
{
    tarn_ethsw_mgmt_switch_info info;
    const int32_t result =
        tarn_ethsw_mgmt_switch_info_decode_ext(&info, input, length, arena_take, arena, 0);
    if (result != WIRE_OK) {
        fprintf(stderr, "recode: the input cannot be decoded, result %" PRId32 "\n", result);
        return false;
    }
    show(&info);
    const uint32_t size = tarn_ethsw_mgmt_switch_info_encode_ext(&info, NULL, 0, NULL, NULL, 0);
    uint8_t *output = arena_take(size, arena);
    if (!output)
        return false;
    tarn_ethsw_mgmt_switch_info_encode_ext(&info, output, size, NULL, NULL, 0);
    const bool same = size == length && memcmp(input, output, size) == 0;
    printf("  %" PRIu32 " bytes decoded, %" PRIu32 " bytes encoded again: %s\n", length, size,
           same ? "the same bytes" : "NOT THE SAME");
    return same;
}

int main(void)
{
    static uint8_t input[INPUT_MAX];
    struct arena arena;
    const size_t length = fread(input, 1, sizeof input, stdin);
    if (length == sizeof input || ferror(stdin)) {
        fprintf(stderr, "recode: the input cannot be read, or is too long\n");
        return EXIT_FAILURE;
    }
    if (!arena_create(&arena, BUDGET))
        return EXIT_FAILURE;
    const bool same = recode(input, (uint32_t)length, &arena);
    arena_destroy(&arena);
    return same ? EXIT_SUCCESS : EXIT_FAILURE;
}
