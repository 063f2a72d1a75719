// SPDX-License-Identifier: MIT
// Pointer members as the runtime sees them: it knows where they stand, not what they point to.

#pragma once

#include <stdint.h>
#include <string.h>

namespace [[gnu::visibility("hidden")]] tarn {

// Read and written by bytes: the member is declared with a pointer type of its own.
inline void *load_pointer(const uint8_t *member)
{
    void *pointer;
    memcpy(&pointer, member, sizeof pointer);
    return pointer;
}

inline void store_pointer(uint8_t *member, const void *pointer)
{
    memcpy(member, &pointer, sizeof pointer);
}

// The length of a byte string or the count of a list stands right behind its pointer.
inline uint32_t load_count(const uint8_t *member)
{
    uint32_t count;
    memcpy(&count, member + sizeof(void *), sizeof count);
    return count;
}

inline void store_count(uint8_t *member, uint32_t count)
{
    memcpy(member + sizeof(void *), &count, sizeof count);
}

inline void store_block(uint8_t *member, const void *block, uint32_t count)
{
    store_pointer(member, block);
    store_count(member, count);
}

} // namespace tarn
