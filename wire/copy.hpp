// SPDX-License-Identifier: MIT
// Copies what is usually short without a call.

#pragma once

#include <stdint.h>
#include <string.h>

namespace [[gnu::visibility("hidden")]] tarn {

// In blocks, of which the last two may overlap.
inline void copy_short(void *to, const void *from, uint32_t length)
{
    constexpr uint32_t kBlock = 16;
    constexpr uint32_t kLongest = 128;
    if (length < kBlock || length > kLongest) {
        memcpy(to, from, length);
        return;
    }
    uint8_t *target = static_cast<uint8_t *>(to);
    const uint8_t *source = static_cast<const uint8_t *>(from);
    for (uint32_t i = 0; i + kBlock < length; i += kBlock)
        memcpy(target + i, source + i, kBlock);
    memcpy(target + length - kBlock, source + length - kBlock, kBlock);
}

} // namespace tarn
