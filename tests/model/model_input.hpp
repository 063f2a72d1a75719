// SPDX-License-Identifier: MIT
// The input of one record's field loop, read plainly: varints of any length, lengths that are
// checked, and skips that are not.

#pragma once

#include "tests/model/codec.hpp"
#include "tests/model/sightings.hpp"

namespace model {

class Input {
public:
    Input(const uint8_t *bytes, uint32_t length, Sightings &sightings)
        : bytes_(bytes), length_(length), sightings_(sightings)
    {}

    // What lies above `bits` is dropped.
    int32_t read_varint(uint64_t *value, uint32_t bits)
    {
        uint32_t at = position;
        uint64_t result = 0;
        uint8_t byte;
        uint32_t shift = 0;
        do {
            if (at >= length_)
                return fail(kMalformed, Reason::cut_varint);
            byte = bytes_[at++];
            if (shift < bits)
                result |= uint64_t(byte & 0x7F) << shift;
            shift = shift < 70 ? shift + 7 : shift;
        } while (byte & 0x80);
        *value = bits == 32 ? uint32_t(result) : result;
        position = at;
        return kOk;
    }

    int32_t read_length(uint32_t *length)
    {
        uint64_t value = 0;
        if (int32_t error = read_varint(&value, 32))
            return error;
        *length = uint32_t(value);
        const uint32_t end = position + *length;
        if (end < position)
            return fail(kMalformed, Reason::length_wraps);
        return end > length_ ? fail(kMalformed, Reason::length_past_end) : kOk;
    }

    int32_t skip(uint32_t wire_type)
    {
        uint64_t value = 0;
        switch (wire_type) {
        case 0:
            return read_varint(&value, 32);
        case 1:
            position += 8;
            return kOk;
        case 2:
            if (int32_t error = read_varint(&value, 32))
                return error;
            position += uint32_t(value);
            return kOk;
        case 5:
            position += 4;
            return kOk;
        default:
            return fail(kBadWireType, Reason::bad_wire_type);
        }
    }

    int32_t fail(int32_t error, Reason reason)
    {
        sightings_.reason = reason;
        return error;
    }

    bool at_end() const { return position == length_; }
    bool is_over() const { return position >= length_; }
    const uint8_t *here() const { return bytes_ + position; }

    uint32_t position = 0;

private:
    const uint8_t *bytes_;
    uint32_t length_;
    Sightings &sightings_;
};

} // namespace model
