// SPDX-License-Identifier: MIT
// Deep copies. The bytes of a record are copied first, pointers and presence flags included; then
// each member that points somewhere is given a block of its own. A block that is not to be had
// leaves its member empty, and the copy goes on.

#pragma once

#include "runtime/memory.hpp"
#include "wire/call.hpp"

#include <stdint.h>

namespace [[gnu::visibility("hidden")]] tarn {

class Copier;

// Gives a record of some type blocks of its own: its bytes have been copied already.
using CopyBlocks = TARN_CALL void (*)(Copier &copier, void *dst, const void *src);

class Copier {
public:
    explicit Copier(Memory memory) : memory_(memory) {}

    // A block of `size` bytes. Null is remembered: it is the result, whatever came before it.
    void *allocate(uint64_t size);
    // Copies a nested record. Its error is the result if there was none before.
    void copy_record(void *dst, const void *src, CopyBlocks copy_blocks);
    // The error of a nested record.
    void fail(int32_t error) { result_ = error; }

    const Memory &memory() const { return memory_; }

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
// Of elements that hold no pointers: numbers, or whole records.
void duplicate_flat_list(Copier &copier, uint8_t *dst, const uint8_t *src, MemberFlag flag,
                         uint32_t element_size);
void duplicate_string_list(Copier &copier, uint8_t *dst, const uint8_t *src, MemberFlag flag);
void duplicate_message_list(Copier &copier, uint8_t *dst, const uint8_t *src, MemberFlag flag,
                            uint32_t element_size, CopyBlocks copy_blocks);

} // namespace tarn
