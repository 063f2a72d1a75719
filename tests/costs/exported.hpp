// SPDX-License-Identifier: MIT
// The exported functions themselves: where time and stack are measured, the catalogue's wrappers,
// which are not optimised, would be measured too.

#pragma once

#include "tests/catalogue/catalogue.hpp"

namespace costs {

struct Operations {
    uint32_t (*encode)(const void *record, uint8_t *buffer, uint32_t capacity,
                       WireSegment *segments, uint32_t *segment_count, uint32_t flags);
    int32_t (*decode)(void *record, const uint8_t *buf, uint32_t len, wire_alloc_fn alloc_fn,
                      void *alloc_ctx, uint32_t flags);
    int32_t (*duplicate)(void *dst, const void *src, wire_alloc_fn alloc_fn, void *alloc_ctx);
    void (*release)(void *record, wire_free_fn free_fn, void *free_ctx, uint32_t flags);
};

Operations operations_of(const catalogue::RecordType &type);

} // namespace costs
