// SPDX-License-Identifier: MIT
// What an input says: the first bytes choose record type, flags, failures and room, the rest is the
// message.

#pragma once

#include "tests/fuzz/memory.hpp"
#include "tests/fuzz/wire.hpp"

#include <optional>

namespace fuzz {

struct Input {
    // Bytes of the header.
    enum Place : uint8_t {
        kTypeLow,
        kTypeHigh,
        kFlags,
        kFailure,
        kCapacityLow,
        kCapacityHigh,
        kSegments,
        kChoice,
        kHeader
    };

    const Type *type;
    uint32_t flags;
    FailurePlan failure;
    uint32_t capacity;
    uint32_t segments;
    uint8_t choice; // for what each target has to choose besides
    Span message;

    bool in_place() const { return flags & WIRE_FLAG_BYTES_IN_PLACE; }
};

// Nothing when the bytes are no input, or one that only costs time.
std::optional<Input> read_input(const uint8_t *data, size_t size);

} // namespace fuzz
