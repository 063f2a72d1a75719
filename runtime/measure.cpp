// SPDX-License-Identifier: MIT
#include "runtime/measure.hpp"

#include "runtime/member.hpp"
#include "runtime/record.h"
#include "wire/text.hpp"
#include "wire/varint.hpp"

namespace tarn {

namespace {

// Sizes of four values at a time, where the machine compares so many at once.
#if defined(__SSE2__) || defined(__ARM_NEON)
using Four = int32_t __attribute__((vector_size(16)));
using FourCounts = uint32_t __attribute__((vector_size(16)));

// Put together when it is needed: a constant would be data, and the library has none.
Four four_times(uint32_t value)
{
    asm("" : "+r"(value));
    const int32_t each = static_cast<int32_t>(value);
    return Four{each, each, each, each};
}

// Machines compare signed numbers: the least becomes the lowest of these.
constexpr uint32_t kLowest = 1u << 31;

uint32_t sizes_of_fours(const uint32_t *values, uint32_t fours)
{
    const Four lowest = four_times(kLowest);
    const Four one_byte = four_times(kLowest + 0x7F);
    const Four two_bytes = four_times(kLowest + 0x3FFF);
    const Four three_bytes = four_times(kLowest + 0x1FFFFF);
    const Four four_bytes = four_times(kLowest + 0xFFFFFFF);
    FourCounts more = {};
    for (uint32_t i = 0; i < fours; i++) {
        Four four = {};
        memcpy(&four, values + size_t{4} * i, sizeof four);
        four ^= lowest;
        // A comparison that holds gives -1.
        more -= static_cast<FourCounts>((four > one_byte) + (four > two_bytes) +
                                        (four > three_bytes) + (four > four_bytes));
    }
    return 4 * fours + more[0] + more[1] + more[2] + more[3];
}
#else
uint32_t sizes_of_fours(const uint32_t *values, uint32_t fours)
{
    uint32_t size = 0;
    for (uint32_t i = 0; i < 4 * fours; i++)
        size += wire_varint32_size(values[i]);
    return size;
}
#endif

uint32_t sizes_of(const uint32_t *values, uint32_t count)
{
    const uint32_t fours = count / 4;
    uint32_t size = sizes_of_fours(values, fours);
    for (uint32_t i = 4 * fours; i < count; i++)
        size += wire_varint32_size(values[i]);
    return size;
}

template <typename Member>
uint32_t sizes_of(const Member *values, uint32_t count)
{
    uint32_t size = 0;
#pragma GCC unroll 4
    for (uint32_t i = 0; i < count; i++)
        size += wire_varint_size(values[i]);
    return size;
}

// How many of `count` tags, from this one on, take two bytes.
constexpr uint32_t long_tags(uint32_t tag, uint32_t count)
{
    constexpr uint32_t kFirstLong = 0x80 / kTagStep;
    const uint32_t first = tag / kTagStep;
    const uint32_t behind = first + count;
    return behind <= kFirstLong ? 0 : behind - (first < kFirstLong ? kFirstLong : first);
}

// One body for the three kinds of scalars: they differ in the width of the member.
template <typename Member>
uint32_t measure_scalars(uint32_t offset, const Member *members, uint32_t present, uint32_t tag)
{
    if (!(present & (present + 1))) { // nothing between the first and the last is missing
        const uint32_t count = present ? 32 - static_cast<uint32_t>(__builtin_clz(present)) : 0;
        return offset + count + long_tags(tag, count) + sizes_of(members, count);
    }
    for (; present; present >>= 1, members++, tag += kTagStep)
        if (present & 1)
            offset += wire_varint32_size(tag) + wire_varint_size(*members);
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

uint32_t measure_uint32_list(uint32_t offset, const uint8_t *member, uint32_t tag_size)
{
    const uint32_t count = load_count(member);
    const uint32_t *elements = static_cast<const uint32_t *>(load_pointer(member));
    return offset + count * tag_size + sizes_of(elements, count);
}

uint32_t measure_string_list(uint32_t offset, const uint8_t *member, uint32_t tag_size)
{
    const char *const *elements = static_cast<const char *const *>(load_pointer(member));
    if (!elements)
        return offset;
    const uint32_t count = load_count(member);
    for (uint32_t i = 0; i < count; i++)
        offset += measure_text(elements[i], tag_size);
    return offset;
}

uint32_t measure_message_list(uint32_t offset, const uint8_t *member, uint32_t flags,
                              uint32_t tag_size, uint32_t element_size, MeasureRecord measure)
{
    const uint32_t count = load_count(member);
    const uint8_t *element = static_cast<const uint8_t *>(load_pointer(member));
    for (uint32_t i = 0; i < count; i++, element += element_size) {
        const uint32_t length = measure(element, flags);
        offset += tag_size + wire_varint32_size(length) + length;
    }
    return offset;
}

} // namespace tarn
