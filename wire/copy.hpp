// SPDX-License-Identifier: MIT
// Copies what is usually short without a call.

#pragma once

#include <stdint.h>
#include <string.h>

namespace [[gnu::visibility("hidden")]] tarn {

// In blocks from both ends, which may overlap: sizes are told apart only by powers of two.
inline void copy_short(void *to, const void *from, uint32_t length)
{
    uint8_t *target = static_cast<uint8_t *>(to);
    const uint8_t *source = static_cast<const uint8_t *>(from);
    if (length < 8 || length > 64) {
        memcpy(target, source, length);
    } else if (length <= 16) {
        memcpy(target, source, 8);
        memcpy(target + length - 8, source + length - 8, 8);
    } else {
        const uint32_t inner = length > 32 ? 16 : 0;
        memcpy(target, source, 16);
        memcpy(target + inner, source + inner, 16);
        memcpy(target + length - 16 - inner, source + length - 16 - inner, 16);
        memcpy(target + length - 16, source + length - 16, 16);
    }
}

} // namespace tarn
