// SPDX-License-Identifier: MIT
#include "wire/varint.hpp"

namespace tarn {

namespace {

// Both readers are this one rule: seven bits a byte, lowest first, until a byte without the top
// bit. Bytes whose bits would land above the value are read and dropped, however many there are.
template <typename Value>
int32_t read_varint(Value *value, uint32_t *position, const uint8_t *buffer, uint32_t length)
{
    constexpr uint32_t kBits = sizeof(Value) * 8;
    Value sum = 0;
    uint32_t shift = 0;
    uint32_t at = *position;
    uint8_t byte;
    do {
        if (at >= length)
            return WIRE_ERR_MALFORMED;
        byte = buffer[at++];
        if (shift < kBits) {
            sum |= static_cast<Value>(byte & 0x7F) << shift;
            shift += 7;
        }
    } while (byte & 0x80);
    if (value)
        *value = sum;
    *position = at;
    return WIRE_OK;
}

template <typename Value>
uint32_t put_varint(Value value, uint32_t offset, uint8_t *buffer, uint32_t capacity)
{
    while (value > 0x7F) {
        offset = wire_put_byte(static_cast<uint8_t>(value | 0x80), offset, buffer, capacity);
        value >>= 7;
    }
    return wire_put_byte(static_cast<uint8_t>(value), offset, buffer, capacity);
}

} // namespace

int32_t wire_read_varint32(uint32_t *value, uint32_t *position, const uint8_t *buffer,
                           uint32_t length)
{
    return read_varint(value, position, buffer, length);
}

int32_t wire_read_varint64(uint64_t *value, uint32_t *position, const uint8_t *buffer,
                           uint32_t length)
{
    return read_varint(value, position, buffer, length);
}

int32_t wire_skip_field(uint32_t wire_type, uint32_t *position, const uint8_t *buffer,
                        uint32_t length)
{
    uint32_t size;
    switch (wire_type) {
    case kVarint:
        return wire_read_varint32(nullptr, position, buffer, length);
    case kFixed64:
        size = 8;
        break;
    case kLengthDelimited:
        if (int32_t error = wire_read_varint32(&size, position, buffer, length))
            return error;
        break;
    case kFixed32:
        size = 4;
        break;
    default:
        return WIRE_ERR_WIRE_TYPE;
    }
    *position += size;
    return WIRE_OK;
}

uint32_t wire_put_byte(uint8_t value, uint32_t offset, uint8_t *buffer, uint32_t capacity)
{
    if (offset < capacity)
        buffer[offset] = value;
    return offset + 1;
}

// For tags of two bytes: a value of 128 and more has the continuation bit where it belongs.
uint32_t wire_put_varint8(uint8_t value, uint32_t offset, uint8_t *buffer, uint32_t capacity)
{
    offset = wire_put_byte(value, offset, buffer, capacity);
    return value < 0x80 ? offset : wire_put_byte(1, offset, buffer, capacity);
}

uint32_t wire_put_varint32(uint32_t value, uint32_t offset, uint8_t *buffer, uint32_t capacity)
{
    return put_varint(value, offset, buffer, capacity);
}

uint32_t wire_put_varint64(uint64_t value, uint32_t offset, uint8_t *buffer, uint32_t capacity)
{
    return put_varint(value, offset, buffer, capacity);
}

uint32_t wire_put_tag(uint32_t tag, uint32_t offset, uint8_t *buffer, uint32_t capacity)
{
    if (tag < 0x80)
        return wire_put_byte(static_cast<uint8_t>(tag), offset, buffer, capacity);
    if (tag < 0x100)
        return wire_put_varint8(static_cast<uint8_t>(tag), offset, buffer, capacity);
    return wire_put_varint32(tag, offset, buffer, capacity);
}

} // namespace tarn
