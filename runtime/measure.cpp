// SPDX-License-Identifier: MIT
#include "runtime/measure.hpp"

#include "runtime/member.hpp"
#include "runtime/record.h"
#include "wire/text.hpp"
#include "wire/varint.hpp"

namespace tarn {

namespace {

uint32_t measure_text(const char *text)
{
    const uint32_t length = wire_strlen(text);
    return wire_varint32_size(length) + length;
}

template <typename Member>
uint32_t scalar_size(Member value)
{
    if constexpr (sizeof(Member) == sizeof(uint64_t))
        return wire_varint64_size(value);
    else
        return wire_varint32_size(value);
}

// One body for the three kinds of scalars: they differ in the width of the member.
template <typename Member>
uint32_t measure_scalars(uint32_t offset, const Member *members, uint32_t present, uint32_t tag)
{
    for (; present; present >>= 1, members++, tag += kTagStep)
        if (present & 1)
            offset += wire_varint32_size(tag) + scalar_size(*members);
    return offset;
}

} // namespace

uint32_t measure_uint32s(uint32_t offset, const uint32_t *members, uint32_t present, uint32_t tag)
{
    return measure_scalars(offset, members, present, tag);
}

uint32_t measure_uint64s(uint32_t offset, const uint64_t *members, uint32_t present, uint32_t tag)
{
    return measure_scalars(offset, members, present, tag);
}

uint32_t measure_bools(uint32_t offset, const uint8_t *members, uint32_t present, uint32_t tag)
{
    return measure_scalars(offset, members, present, tag);
}

uint32_t measure_string(uint32_t offset, const uint8_t *member, uint32_t present, uint32_t tag)
{
    const char *text = static_cast<const char *>(load_pointer(member));
    if (!present || !text)
        return offset;
    return offset + wire_varint32_size(tag) + measure_text(text);
}

uint32_t measure_bytes(uint32_t offset, const uint8_t *member, uint32_t present, uint32_t tag,
                       uint32_t flags)
{
    if (!present)
        return offset;
    const uint32_t length = load_count(member);
    offset += wire_varint32_size(tag) + wire_varint32_size(length);
    if (flags & WIRE_FLAG_BYTES_IN_PLACE)
        return offset;
    // A length that would wrap around counts for nothing.
    const uint32_t end = offset + length;
    return end > offset ? end : offset;
}

uint32_t measure_message(uint32_t offset, uint32_t length, uint32_t present, uint32_t tag)
{
    if (!present && !length)
        return offset;
    return offset + wire_varint32_size(tag) + wire_varint32_size(length) + length;
}

uint32_t measure_uint32_list(uint32_t offset, const uint8_t *member, uint32_t present, uint32_t tag)
{
    if (!present)
        return offset;
    const uint32_t count = load_count(member);
    const uint32_t *elements = static_cast<const uint32_t *>(load_pointer(member));
    const uint32_t tag_size = wire_varint32_size(tag);
    for (uint32_t i = 0; i < count; i++)
        offset += tag_size + wire_varint32_size(elements[i]);
    return offset;
}

uint32_t measure_string_list(uint32_t offset, const uint8_t *member, uint32_t present, uint32_t tag)
{
    const char *const *elements = static_cast<const char *const *>(load_pointer(member));
    if (!present || !elements)
        return offset;
    const uint32_t count = load_count(member);
    for (uint32_t i = 0; i < count; i++)
        offset += wire_varint32_size(tag) + measure_text(elements[i]);
    return offset;
}

uint32_t measure_message_list(uint32_t offset, const uint8_t *member, uint32_t present,
                              uint32_t tag, uint32_t element_size, MeasureRecord measure,
                              uint32_t flags)
{
    if (!present)
        return offset;
    const uint32_t count = load_count(member);
    const uint8_t *element = static_cast<const uint8_t *>(load_pointer(member));
    for (uint32_t i = 0; i < count; i++, element += element_size)
        offset = measure_message(offset, measure(element, flags), 1, tag);
    return offset;
}

} // namespace tarn
