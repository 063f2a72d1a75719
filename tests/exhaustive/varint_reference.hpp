// SPDX-License-Identifier: MIT
// Varints, form by form: what the library does in loops is written out here by hand.

#pragma once

#include <cstdint>
#include <cstring>

namespace exhaustive {

struct Varint {
    uint32_t size;
    uint8_t bytes[10];
};

// Digit `index` of a number to the base of 128, and the same as a byte that is followed by others.
constexpr uint8_t digit(uint64_t value, uint32_t index)
{
    return static_cast<uint8_t>(value / (uint64_t{1} << 7 * index) % 128);
}

constexpr uint8_t more(uint64_t value, uint32_t index)
{
    return static_cast<uint8_t>(128 + digit(value, index));
}

constexpr Varint varint32(uint32_t v)
{
    if (v <= 127)
        return {1, {digit(v, 0)}};
    if (v <= 16383)
        return {2, {more(v, 0), digit(v, 1)}};
    if (v <= 2097151)
        return {3, {more(v, 0), more(v, 1), digit(v, 2)}};
    if (v <= 268435455)
        return {4, {more(v, 0), more(v, 1), more(v, 2), digit(v, 3)}};
    return {5, {more(v, 0), more(v, 1), more(v, 2), more(v, 3), digit(v, 4)}};
}

constexpr Varint varint64(uint64_t v)
{
    if (v <= 4294967295)
        return varint32(static_cast<uint32_t>(v));
    Varint all = {10,
                  {more(v, 0), more(v, 1), more(v, 2), more(v, 3), more(v, 4), more(v, 5),
                   more(v, 6), more(v, 7), more(v, 8), digit(v, 9)}};
    if (v <= 34359738367)
        all.size = 5;
    else if (v <= 4398046511103)
        all.size = 6;
    else if (v <= 562949953421311)
        all.size = 7;
    else if (v <= 72057594037927935)
        all.size = 8;
    else if (v <= 9223372036854775807)
        all.size = 9;
    all.bytes[all.size - 1] &= 127;
    return all;
}

static_assert(varint32(300).size == 2 && varint32(300).bytes[0] == 0xAC &&
              varint32(300).bytes[1] == 0x02);
static_assert(varint64(UINT64_MAX).size == 10 && varint64(UINT64_MAX).bytes[9] == 0x01);

} // namespace exhaustive
