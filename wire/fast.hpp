// SPDX-License-Identifier: MIT
// The readers and writers of wire/varint.hpp once more, without a look at each byte: for the middle
// of the input, and for values that fit into what is left of the buffer. Everything that is longer,
// or nearer to an end, is left to the others: the rules are told there.

#pragma once

#include "wire/call.hpp"
#include "wire/varint.hpp"

#include <stdint.h>
#include <string.h>

namespace [[gnu::visibility("hidden")]] tarn {

constexpr uint32_t kFastRead = 8;

// Varints are read in words of the machine.
using Word = uintptr_t;
constexpr uint32_t kWordSize = sizeof(Word);
constexpr Word kContinuationBits = ~Word{0} / 0xFF * 0x80;

inline Word load_word(const uint8_t *at)
{
    Word word;
    memcpy(&word, at, sizeof word);
    return word;
}

// Joins the lower seven bits of each byte: first in pairs of bytes, then in pairs of those, and so
// on. In each step the upper half of every pair moves down to the lower, as a difference.
constexpr uint32_t join_sevens(uint32_t word)
{
    word &= 0x7F7F7F7F;
    word -= (word & 0x7F007F00) >> 1;
    return word - ((word & 0x3FFF0000) >> 2) * 3;
}

constexpr uint64_t join_sevens(uint64_t word)
{
    word &= 0x7F7F7F7F7F7F7F7F;
    word -= (word & 0x7F007F007F007F00) >> 1;
    word -= ((word & 0x3FFF00003FFF0000) >> 2) * 3;
    return word - ((word & 0x0FFFFFFF00000000) >> 4) * 15;
}

// The first varint of a word, when it ends there.
struct WordVarint {
    explicit WordVarint(Word word) : ends(~word & kContinuationBits), bytes(word) {}

    bool is_whole() const { return ends != 0; }
    // Up to the first end bit.
    auto value() const { return join_sevens(bytes & (ends ^ (ends - 1))); }
    uint32_t size() const { return static_cast<uint32_t>(__builtin_ctzl(ends) + 1) / 8; }

    Word ends;
    Word bytes;
};

// Reads a varint of two bytes or more. Returns the position behind it, or null where it is one of
// the longer ones. What does not fit in the value is dropped.
template <typename Value>
TARN_INLINE inline const uint8_t *fast_read_long(Value *value, const uint8_t *at)
{
    const WordVarint first(load_word(at));
    if (first.is_whole()) {
        *value = static_cast<Value>(first.value());
        return at + first.size();
    }
    if constexpr (sizeof(Word) == kFastRead) {
        return nullptr;
    } else {
        const WordVarint second(load_word(at + kWordSize));
        if (!second.is_whole())
            return nullptr;
        *value = static_cast<Value>(join_sevens(first.bytes) | uint64_t{second.value()}
                                                                   << kWordSize * 7);
        return at + kWordSize + second.size();
    }
}

inline void store_2(uint8_t *to, uint64_t bytes)
{
    const uint16_t low = static_cast<uint16_t>(bytes);
    memcpy(to, &low, sizeof low);
}

inline void store_4(uint8_t *to, uint64_t bytes)
{
    const uint32_t low = static_cast<uint32_t>(bytes);
    memcpy(to, &low, sizeof low);
}

// Tags of records take one byte or two.
constexpr uint32_t tag_size(uint32_t tag)
{
    return tag < 0x80 ? 1 : 2;
}

// As it is stored, the first byte below the second.
constexpr uint32_t tag_bytes(uint32_t tag)
{
    const uint32_t upper = tag & ~0x7Fu;
    return tag + upper + (upper ? 0x80 : 0);
}

inline uint8_t *store_tag(uint8_t *to, uint32_t tag)
{
    if (tag < 0x80) {
        *to = static_cast<uint8_t>(tag);
        return to + 1;
    }
    store_2(to, tag_bytes(tag));
    return to + 2;
}

// Gives every seven bits a byte: the same steps the other way round.
constexpr uint32_t spread_sevens(uint32_t value)
{
    value &= 0x0FFFFFFF;
    value += (value & 0x0FFFC000) * 3;
    return value + (value & 0x3F803F80);
}

constexpr uint64_t spread_sevens(uint64_t value)
{
    value &= 0x00FFFFFFFFFFFFFF;
    value += (value & 0x00FFFFFFF0000000) * 15;
    value += (value & 0x0FFFC0000FFFC000) * 3;
    return value + (value & 0x3F803F803F803F80);
}

// Writes a varint that is known to fit, and returns the place behind it. Only the shortest are told
// apart by branches: short ones come in patterns, the lengths of long ones cannot be guessed.
template <typename Value>
uint8_t *store_varint(uint8_t *to, Value value);

// Three to eight bytes at once, the last ones perhaps twice.
[[gnu::noinline]] inline uint8_t *store_long_varint(uint8_t *to, uint64_t value)
{
    const uint32_t size = wire_varint64_size(value);
    const uint64_t continued = uint64_t{0x0080808080808080} >> 8 * (8 - size);
    const uint64_t bytes = spread_sevens(value) | continued;
    if (size == 3) {
        store_2(to, bytes);
        to[2] = static_cast<uint8_t>(bytes >> 16);
    } else {
        store_4(to, bytes);
        store_4(to + size - 4, bytes >> 8 * (size - 4));
    }
    return to + size;
}

// The same in 32 bits: the first four bytes, and what is left behind them.
template <typename Value>
inline uint8_t *store_long_varint_by_words(uint8_t *to, Value value)
{
    const uint32_t bytes = spread_sevens(static_cast<uint32_t>(value)) | 0x00808080;
    if (value < 1u << 21) {
        store_2(to, bytes);
        to[2] = static_cast<uint8_t>(bytes >> 16 & 0x7F);
        return to + 3;
    }
    if (value < 1u << 28) {
        store_4(to, bytes);
        return to + 4;
    }
    store_4(to, bytes | 0x80000000);
    return store_varint(to + 4, value >> 28);
}

template <typename Value>
inline uint8_t *store_varint(uint8_t *to, Value value)
{
    if (value < 0x80) {
        *to = static_cast<uint8_t>(value);
        return to + 1;
    }
    if (value < 0x4000) {
        store_2(to, (value & 0x7F) | 0x80 | (value << 1 & 0x7F00));
        return to + 2;
    }
    if constexpr (sizeof(Word) < sizeof(uint64_t)) {
        return store_long_varint_by_words(to, value);
    } else {
        if constexpr (sizeof(Value) == sizeof(uint64_t)) {
            if (value >> 56) { // nine or ten bytes
                store_4(to, spread_sevens(value) | 0x80808080);
                return store_long_varint(to + 4, value >> 28);
            }
        }
        return store_long_varint(to, value);
    }
}

} // namespace tarn
