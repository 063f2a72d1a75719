// SPDX-License-Identifier: MIT
// The one road to the caller's memory.

#pragma once

#include "runtime/record.h"

namespace [[gnu::visibility("hidden")]] tarn {

struct Memory {
    wire_alloc_fn alloc_fn;
    void *alloc_ctx;

    // A block, or null when there is none to be had. Sizes are computed in 64 bits: the callback
    // takes 32, and is not asked for a size that does not fit.
    void *allocate(uint64_t size) const
    {
        if (!alloc_fn || size > UINT32_MAX)
            return nullptr;
        return alloc_fn(static_cast<uint32_t>(size), alloc_ctx);
    }
};

} // namespace tarn
