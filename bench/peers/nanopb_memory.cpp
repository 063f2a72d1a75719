// SPDX-License-Identifier: MIT
#include "bench/peers/nanopb_memory.h"

#include "bench/peers/nanopb_memory.hpp"

#include <stdlib.h>
#include <string.h>

namespace bench {

Bump *nanopb_memory = nullptr;

namespace {

// In front of each block: for how many bytes there is room.
struct Header {
    uint64_t capacity;
};

Header *header_of(void *block)
{
    return static_cast<Header *>(block) - 1;
}

void *allocate(Bump &bump, uint32_t capacity)
{
    void *memory = bump.allocate(static_cast<uint32_t>(sizeof(Header)) + capacity);
    if (!memory)
        return nullptr;
    Header *header = new (memory) Header{capacity};
    return header + 1;
}

// nanopb lets a list grow by one element at a time. What is last is made longer where it is;
// anything else moves to twice the room.
void *grow(Bump &bump, void *block, uint32_t size)
{
    Header &header = *header_of(block);
    if (size <= header.capacity)
        return block;
    const uint32_t old = static_cast<uint32_t>(header.capacity);
    if (bump.is_end(static_cast<uint8_t *>(block) + old) && bump.extend_last(block, 2 * size)) {
        header.capacity = (2 * size + 7) & ~UINT32_C(7);
        return block;
    }
    void *longer = allocate(bump, 2 * size);
    return longer ? memcpy(longer, block, old) : nullptr;
}

} // namespace

} // namespace bench

void *bench_nanopb_realloc(void *block, size_t size)
{
    bench::Bump *bump = bench::nanopb_memory;
    if (!bump)
        return realloc(block, size);
    const uint32_t rounded = (static_cast<uint32_t>(size) + 7) & ~UINT32_C(7);
    return block ? bench::grow(*bump, block, rounded) : bench::allocate(*bump, rounded);
}

void bench_nanopb_free(void *block)
{
    if (!bench::nanopb_memory)
        free(block);
}
