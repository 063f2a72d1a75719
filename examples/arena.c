/* SPDX-License-Identifier: MIT */
/* The arena of a service: see arena.h. */

#include "arena.h"

#include <stddef.h>
#include <stdlib.h>

/* Records hold 64-bit members. */
#define ALIGNMENT 8u

bool arena_create(struct arena *arena, uint32_t budget)
{
    arena->block = malloc(budget);
    arena->budget = arena->block ? budget : 0;
    arena->used = 0;
    return arena->block != NULL;
}

void arena_reset(struct arena *arena)
{
    arena->used = 0;
}

void arena_destroy(struct arena *arena)
{
    free(arena->block);
    *arena = (struct arena){0};
}

void *arena_take(uint32_t size, void *context)
{
    struct arena *arena = context;
    const uint32_t left = arena->budget - arena->used;
    if (size > left)
        return NULL;
    uint8_t *piece = arena->block + arena->used;
    /* Rounded up without leaving the budget: the sum of size and alignment could wrap around. */
    const uint32_t padding = (ALIGNMENT - size % ALIGNMENT) % ALIGNMENT;
    arena->used += padding > left - size ? left : size + padding;
    return piece;
}

void arena_keep(void *piece, void *context)
{
    (void)piece;
    (void)context;
}
