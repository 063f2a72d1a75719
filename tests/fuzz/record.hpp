// SPDX-License-Identifier: MIT
// A record under test: storage of exactly its size, blocks of its own, and the operations, each
// with the claims that always hold about it.

#pragma once

#include "tests/fuzz/input.hpp"

namespace fuzz {

class Record {
public:
    // Storage from the arena, every byte of it `fill`.
    void begin(const Type &type, FailurePlan plan, uint8_t fill);

    int32_t decode(Span message, uint32_t flags);
    int32_t copy(const Record &original);
    // Hands everything back, twice, with the flags of the decoding.
    void release();

    const Type &type() const { return *type_; }
    // Null for a type without members.
    uint8_t *data() const { return type_->size ? storage_ : nullptr; }
    Blocks &blocks() { return blocks_; }
    bool in_place() const { return flags_ & WIRE_FLAG_BYTES_IN_PLACE; }
    // What was decoded.
    Span message() const { return message_; }

private:
    void require_padding() const;
    wire_alloc_fn callback() const { return blocks_.has_callback() ? Blocks::allocate : nullptr; }

    const Type *type_ = nullptr;
    uint8_t *storage_ = nullptr;
    Blocks blocks_;
    Span message_{};
    uint32_t flags_ = 0;
    uint8_t fill_ = 0;
};

// Whether all bits of a structure that belong to nobody are those of `fill`.
bool is_padding(const Type &type, const uint8_t *record, uint8_t fill);

// How many bytes the encoding has.
uint32_t measure(const Record &record, uint32_t flags);

// The encoding, in memory of exactly its size.
Span encode(const Record &record);

bool equal(Span left, Span right);

// A copy of the bytes with nothing readable behind it.
Span exact_copy(Span bytes);

} // namespace fuzz
