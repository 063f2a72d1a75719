// SPDX-License-Identifier: MIT
// Measures an encoding without writing it. Every function takes the offset at which its run starts
// and returns the one behind it; each node of a record is visited once.

#pragma once

#include "runtime/member.hpp"
#include "runtime/record.h"
#include "wire/call.hpp"
#include "wire/text.hpp"
#include "wire/varint.hpp"

#include <stdint.h>

namespace [[gnu::visibility("hidden")]] tarn {

// Measures a whole record of some type.
using MeasureRecord = TARN_CALL uint32_t (*)(const void *record, uint32_t flags);

// `tag` is that of the run's first member, `present` holds the presence flags of its members.
TARN_CALL uint32_t measure_uint32s(uint32_t offset, const uint32_t *members, uint32_t present,
                                   uint32_t tag);
TARN_CALL uint32_t measure_uint64s(uint32_t offset, const uint64_t *members, uint32_t present,
                                   uint32_t tag);
TARN_CALL uint32_t measure_bools(uint32_t offset, const uint8_t *members, uint32_t present,
                                 uint32_t tag);

// Members that are present, with tags that take `tag_size` bytes.
TARN_INLINE inline uint32_t measure_text(const char *text, uint32_t tag_size)
{
    const uint32_t length = wire_strlen(text);
    return wire_varint32_size(length, tag_size) + length;
}

TARN_INLINE inline uint32_t measure_string(uint32_t offset, const uint8_t *member,
                                           uint32_t tag_size)
{
    const char *text = static_cast<const char *>(load_pointer(member));
    return text ? offset + measure_text(text, tag_size) : offset;
}

TARN_INLINE inline uint32_t measure_bytes(uint32_t offset, const uint8_t *member, uint32_t flags,
                                          uint32_t tag_size)
{
    const uint32_t length = load_count(member);
    offset = offset + wire_varint32_size(length, tag_size);
    if (flags & WIRE_FLAG_BYTES_IN_PLACE)
        return offset;
    // A length that would wrap around counts for nothing.
    const uint32_t end = offset + length;
    return end > offset ? end : offset;
}

TARN_CALL uint32_t measure_uint32_list(uint32_t offset, const uint8_t *member, uint32_t tag_size);
TARN_CALL uint32_t measure_string_list(uint32_t offset, const uint8_t *member, uint32_t tag_size);
TARN_CALL uint32_t measure_message_list(uint32_t offset, const uint8_t *member, uint32_t flags,
                                        uint32_t tag_size, uint32_t element_size,
                                        MeasureRecord measure);

// An embedded record of this length, present or not.
TARN_INLINE inline uint32_t measure_message(uint32_t offset, uint32_t length, uint32_t present,
                                            uint32_t tag_size)
{
    if (!present && !length)
        return offset;
    return offset + wire_varint32_size(length, tag_size) + length;
}

} // namespace tarn
