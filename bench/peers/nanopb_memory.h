/* SPDX-License-Identifier: MIT */
/* Where nanopb gets its memory, chosen when it is compiled: see nanopb_memory.cpp. */

#ifndef BENCH_PEERS_NANOPB_MEMORY_H
#define BENCH_PEERS_NANOPB_MEMORY_H

#include <stddef.h>

#ifdef __cplusplus
extern "C" {
#endif

void *bench_nanopb_realloc(void *block, size_t size);
void bench_nanopb_free(void *block);

#ifdef __cplusplus
}
#endif

#endif
