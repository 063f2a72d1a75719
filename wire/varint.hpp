// SPDX-License-Identifier: MIT
// The bytes of the Protocol Buffers wire format: varints in and out, tags, and the step over a
// field that nobody knows. Positions and offsets are 32-bit and wrap like the lengths they count.

#pragma once

#include "wire/call.hpp"
#include "wire/result.h"

#include <stdint.h>

namespace [[gnu::visibility("hidden")]] tarn {

enum WireType : uint32_t {
    kVarint = 0,
    kFixed64 = 1,
    kLengthDelimited = 2,
    kFixed32 = 5,
};

constexpr uint32_t make_tag(uint32_t number, WireType type)
{
    return number << 3 | type;
}

// From the tag of a field to that of the next number.
constexpr uint32_t kTagStep = make_tag(1, kVarint);

constexpr uint32_t wire_type_of(uint32_t tag)
{
    return tag & 7;
}

constexpr uint32_t field_number_of(uint32_t tag)
{
    return tag >> 3;
}

// How many bytes a value takes, one for every seven bits, behind so many others. The quotient by 64
// is that of (bits + 6) / 7 for all lengths up to 64, without a division.
TARN_INLINE constexpr uint32_t wire_varint32_size(uint32_t value, uint32_t behind = 0)
{
    const uint32_t highest_bit = 31 ^ static_cast<uint32_t>(__builtin_clz(value | 1));
    return (highest_bit * 9 + 73 + behind * 64) / 64;
}

TARN_INLINE constexpr uint32_t wire_varint64_size(uint64_t value, uint32_t behind = 0)
{
    if constexpr (sizeof(uintptr_t) == sizeof(value)) {
        const uint32_t highest_bit = 63 ^ static_cast<uint32_t>(__builtin_clzll(value | 1));
        return (highest_bit * 9 + 73 + behind * 64) / 64;
    } else { // without a branch: in which half it is cannot be guessed
        const uint32_t upper = static_cast<uint32_t>(value >> 32);
        const uint32_t lower = static_cast<uint32_t>(value) | 1;
        const uint32_t is_upper = 0 - static_cast<uint32_t>(upper != 0);
        const uint32_t half = lower ^ ((lower ^ upper) & is_upper);
        const uint32_t highest_bit =
            (31 ^ static_cast<uint32_t>(__builtin_clz(half))) + (is_upper & 32);
        return (highest_bit * 9 + 73 + behind * 64) / 64;
    }
}

// The same by the width of the value; narrower ones count as 32 bits, as on the wire.
template <typename Value>
TARN_INLINE constexpr uint32_t wire_varint_size(Value value, uint32_t behind = 0)
{
    if constexpr (sizeof(Value) == sizeof(uint64_t))
        return wire_varint64_size(value, behind);
    else
        return wire_varint32_size(value, behind);
}

// Readers. They move `position` and store `value` (which may be null) only when they succeed. A
// varint may be longer than its value needs: surplus bits and bytes are dropped without complaint.
int32_t wire_read_varint32(uint32_t *value, uint32_t *position, const uint8_t *buffer,
                           uint32_t length);
int32_t wire_read_varint64(uint64_t *value, uint32_t *position, const uint8_t *buffer,
                           uint32_t length);

// Steps over the value of an unknown field. Deliberately lenient: the new position may lie beyond
// the end, where it ends the message, or wrap around and lie before the field.
int32_t wire_skip_field(uint32_t wire_type, uint32_t *position, const uint8_t *buffer,
                        uint32_t length);

// Writers. A byte is stored only where it is below the capacity, but every byte counts: the offset
// behind the whole value is returned either way, so that a null buffer of capacity 0 measures.
uint32_t wire_put_byte(uint8_t value, uint32_t offset, uint8_t *buffer, uint32_t capacity);
uint32_t wire_put_varint8(uint8_t value, uint32_t offset, uint8_t *buffer, uint32_t capacity);
uint32_t wire_put_varint32(uint32_t value, uint32_t offset, uint8_t *buffer, uint32_t capacity);
uint32_t wire_put_varint64(uint64_t value, uint32_t offset, uint8_t *buffer, uint32_t capacity);

// A tag takes the narrowest writer that holds it.
uint32_t wire_put_tag(uint32_t tag, uint32_t offset, uint8_t *buffer, uint32_t capacity);

} // namespace tarn
