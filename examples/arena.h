/* SPDX-License-Identifier: MIT */
/* Memory with a budget for records that strangers send: an alloc_fn that hands out pieces of one
 * block, and takes all of them back at once. When the block is used up, decoding ends with
 * WIRE_ERR_NO_MEMORY, whatever the input asks for. */

#ifndef EXAMPLES_ARENA_H
#define EXAMPLES_ARENA_H

#include <stdbool.h>
#include <stdint.h>

struct arena {
    uint8_t *block;
    uint32_t budget;
    uint32_t used;
};

/* False when the system has no block of that size. */
bool arena_create(struct arena *arena, uint32_t budget);

/* Takes back every piece: records decoded with this arena must not be looked at any more. */
void arena_reset(struct arena *arena);

void arena_destroy(struct arena *arena);

/* A wire_alloc_fn and a wire_free_fn; the arena is their context. The second does nothing: pieces
 * are not taken back singly. */
void *arena_take(uint32_t size, void *arena);
void arena_keep(void *piece, void *arena);

#endif
