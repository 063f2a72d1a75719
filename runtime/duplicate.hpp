// SPDX-License-Identifier: MIT
// Deep copies. The bytes of a record are copied first, pointers and presence flags included; then
// each member that points somewhere is given a block of its own. A block that is not to be had
// leaves its member empty, and the copy goes on.

#pragma once

#include "runtime/memory.hpp"

#include <stdint.h>

namespace [[gnu::visibility("hidden")]] tarn {

// Copies a whole record of some type: any type's T_duplicate.
using DuplicateRecord = int32_t (*)(void *dst, const void *src, wire_alloc_fn alloc_fn,
                                    void *alloc_ctx);

class Copier {
public:
    explicit Copier(Memory memory) : memory_(memory) {}

    // A block of `size` bytes. Null is remembered: it is the result, whatever came before it.
    void *allocate(uint64_t size);
    // Copies a nested record. Its error is the result if there was none before.
    void copy_record(void *dst, const void *src, DuplicateRecord duplicate);

    int32_t result() const { return result_; }

private:
    Memory memory_;
    int32_t result_ = WIRE_OK;
};

// Where a member's flag is, for when the member stays empty.
struct MemberFlag {
    uint8_t *flags;
    uint32_t bit;
};

void duplicate_string(Copier &copier, uint8_t *dst, const uint8_t *src, MemberFlag flag);
void duplicate_bytes(Copier &copier, uint8_t *dst, const uint8_t *src, MemberFlag flag);
void duplicate_uint32_list(Copier &copier, uint8_t *dst, const uint8_t *src, MemberFlag flag);
void duplicate_string_list(Copier &copier, uint8_t *dst, const uint8_t *src, MemberFlag flag);
void duplicate_message_list(Copier &copier, uint8_t *dst, const uint8_t *src, MemberFlag flag,
                            uint32_t element_size, DuplicateRecord duplicate);

} // namespace tarn
