// SPDX-License-Identifier: MIT
// Writes the members of a record, run by run, in the order of their field numbers. Every function
// takes the offset at which its run starts and returns the one behind it.

#pragma once

#include "runtime/encoder.hpp"
#include "runtime/measure.hpp"

#include <stdint.h>

namespace [[gnu::visibility("hidden")]] tarn {

// Writes a whole record of some type.
using WriteRecord = TARN_CALL uint32_t (*)(uint32_t offset, Encoder &out, const void *record);

// The encoding of a whole record.
using EncodeRecord = uint32_t (*)(WriteRecord write, const void *record, uint8_t *buffer,
                                  uint32_t capacity, WireSegment *segments, uint32_t *segment_count,
                                  uint32_t flags);

uint32_t encode_record(WriteRecord write, const void *record, uint8_t *buffer, uint32_t capacity,
                       WireSegment *segments, uint32_t *segment_count, uint32_t flags);

// For records with records of another library in them: that writes into the caller's buffer only.
uint32_t encode_in_place(WriteRecord write, const void *record, uint8_t *buffer, uint32_t capacity,
                         WireSegment *segments, uint32_t *segment_count, uint32_t flags);

// One of them, or only the size, if that is what is asked for and there is a function for it.
template <EncodeRecord encode>
[[gnu::noinline]] TARN_REGISTERS(2) uint32_t
    measure_or_encode(WriteRecord write, MeasureRecord measure, const void *record, uint8_t *buffer,
                      uint32_t capacity, WireSegment *segments, uint32_t *segment_count,
                      uint32_t flags)
{
    if (measure && capacity == 0 && !segment_count)
        return measure(record, flags);
    return encode(write, record, buffer, capacity, segments, segment_count, flags);
}

// In a library as small as possible there is no function for it: to measure is to write nowhere.
inline uint32_t measure_by(MeasureRecord measure, WriteRecord write, const void *record,
                           uint32_t flags)
{
    if constexpr (kIsSmall)
        if (!measure) {
            Encoder nowhere(nullptr, 0, nullptr, nullptr, flags);
            return write(0, nowhere, record);
        }
    return measure(record, flags);
}

// How a nested record is written. It fits in a register.
struct NestedRun {
    uint16_t tag;
    uint16_t element_size; // of lists
    bool is_plain;         // nothing but numbers all the way down
    bool present;          // of embedded records
};

// `tag` is that of the run's first member, `present` holds the presence flags of its members.
TARN_CALL uint32_t write_uint32s(uint32_t offset, Encoder &out, const uint32_t *members,
                                 uint32_t present, uint32_t tag);
TARN_CALL uint32_t write_uint64s(uint32_t offset, Encoder &out, const uint64_t *members,
                                 uint32_t present, uint32_t tag);
TARN_CALL uint32_t write_bools(uint32_t offset, Encoder &out, const uint8_t *members,
                               uint32_t present, uint32_t tag);

// Members that are present. Those of small value in the midst of the buffer are written on the
// spot.
TARN_CALL uint32_t put_uint32(uint32_t offset, Encoder &out, uint32_t value, uint32_t tag);
TARN_CALL uint32_t put_uint64(uint32_t offset, Encoder &out, const uint64_t *value, uint32_t tag);

template <uint32_t tag>
TARN_INLINE inline uint32_t write_small(uint32_t offset, const Encoder::Roomy &roomy,
                                        uint32_t value)
{
    uint8_t *to = roomy.buffer + offset;
    if constexpr (tag < 0x80) {
        to[0] = tag;
        to[1] = static_cast<uint8_t>(value);
        return offset + 2;
    } else {
        to[0] = (tag & 0x7F) | 0x80;
        to[1] = tag >> 7;
        to[2] = static_cast<uint8_t>(value);
        return offset + 3;
    }
}

template <uint32_t tag>
TARN_INLINE inline uint32_t write_uint32(uint32_t offset, Encoder &out, const Encoder::Roomy &roomy,
                                         uint32_t value)
{
    if (value < 0x80 && offset < roomy.until)
        return write_small<tag>(offset, roomy, value);
    return put_uint32(offset, out, value, tag);
}

template <uint32_t tag>
TARN_INLINE inline uint32_t write_uint64(uint32_t offset, Encoder &out, const Encoder::Roomy &roomy,
                                         const uint64_t *value)
{
    if (*value < 0x80 && offset < roomy.until)
        return write_small<tag>(offset, roomy, static_cast<uint32_t>(*value));
    return put_uint64(offset, out, value, tag);
}

TARN_CALL uint32_t write_string(uint32_t offset, Encoder &out, const uint8_t *member, uint32_t tag);
TARN_CALL uint32_t write_bytes(uint32_t offset, Encoder &out, const uint8_t *member, uint32_t tag);
TARN_CALL uint32_t write_uint32_list(uint32_t offset, Encoder &out, const uint8_t *member,
                                     uint32_t tag);
TARN_CALL uint32_t write_string_list(uint32_t offset, Encoder &out, const uint8_t *member,
                                     uint32_t tag);
TARN_CALL uint32_t write_message_list(uint32_t offset, Encoder &out, const uint8_t *member,
                                      NestedRun run, MeasureRecord measure, WriteRecord write);

// Present or not.
TARN_CALL uint32_t write_message(uint32_t offset, Encoder &out, const uint8_t *member,
                                 NestedRun run, MeasureRecord measure, WriteRecord write);

} // namespace tarn
