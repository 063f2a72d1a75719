/* SPDX-License-Identifier: MIT */
/* Shown in docs/arenas.md: one arena, three messages, the last two of them hostile. */

#include "arena.h"

#include "ethsw_mgmt/classification.h"
#include "ethsw_mgmt/integrity.h"

#include <stdio.h>

static void read_an_entry(struct arena *arena)
{
    /* The time stamp, field 16, comes twice, each time with a text. */
    static const uint8_t input[] = {0x82, 0x01, 0x05, 0x1A, 0x03, 'o', 'n', 'e',
                                    0x82, 0x01, 0x05, 0x1A, 0x03, 't', 'w', 'o'};
    tarn_data_integrity_error_history_entry entry;
    for (uint32_t length = 8; length <= sizeof input; length += 8) {
        const int32_t result = tarn_data_integrity_error_history_entry_decode_ext(
            &entry, input, length, arena_take, arena, 0);
        printf("%2u bytes: result %d, text %s, %u bytes of the arena used\n", (unsigned)length,
               (int)result, entry.timestamp.text, (unsigned)arena->used);
        arena_reset(arena);
    }
}

static void read_rules(struct arena *arena)
{
    /* Two bytes for each element of a list: field 4, nothing in it. */
    static uint8_t input[64];
    for (uint32_t i = 0; i < sizeof input; i += 2) {
        input[i] = 0x22;
        input[i + 1] = 0x00;
    }
    tarn_ethsw_mgmt_get_pcl_resp answer;
    const int32_t result =
        tarn_ethsw_mgmt_get_pcl_resp_decode_ext(&answer, input, sizeof input, arena_take, arena, 0);
    printf("%2u bytes: result %d, %u rules, %u bytes of the arena used\n", (unsigned)sizeof input,
           (int)result, (unsigned)answer.rules_4_count, (unsigned)arena->used);
    arena_reset(arena);
}

int main(void)
{
    struct arena arena;
    if (!arena_create(&arena, 4096))
        return 1;
    read_an_entry(&arena);
    read_rules(&arena);
    arena_destroy(&arena);
    return 0;
}
