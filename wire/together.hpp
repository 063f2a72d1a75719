// SPDX-License-Identifier: MIT
// Up to four neighbouring fields at once, for values whose sizes nobody can guess, as those of
// counters: without a branch that depends on them. Eight bytes are stored for each value, whatever
// it takes; the next field covers what is too much, and whoever calls keeps what is behind the
// last.

#pragma once

#include "wire/call.hpp"
#include "wire/fast.hpp"

#include <stdint.h>
#include <string.h>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace [[gnu::visibility("hidden")]] tarn {

// How many bytes are stored for a value, and the longest value for which they are enough.
constexpr uint32_t kStored = 8;
constexpr uint64_t kMostTogether = ~uint64_t{0} >> 8;

#ifdef __SSE2__

template <typename Value>
constexpr bool kTogether = true;

// Two values of up to 56 bits, in the halves of a register.
class VarintPair {
public:
    explicit VarintPair(__m128i values)
    {
        // Masks are put together from ones when they are needed: a constant would be data, and the
        // library has none.
        __m128i ones = _mm_set1_epi32(-1);
        asm("" : "+x"(ones));
        const __m128i upper_28 = _mm_slli_epi64(_mm_srli_epi64(ones, 64 - 28), 28);
        const __m128i upper_14 = _mm_slli_epi32(_mm_srli_epi32(ones, 32 - 14), 14);
        const __m128i upper_7 = _mm_slli_epi16(_mm_srli_epi16(ones, 16 - 7), 7);
        const __m128i words = _mm_slli_epi16(ones, 15);
        const __m128i continuation_bits = _mm_packs_epi16(words, words);
        const __m128i zero = _mm_setzero_si128();

        // As spread_sevens() does it.
        __m128i upper = _mm_and_si128(values, upper_28);
        values = _mm_add_epi64(values, _mm_sub_epi64(_mm_slli_epi64(upper, 4), upper));
        upper = _mm_and_si128(values, upper_14);
        values = _mm_add_epi64(values, _mm_sub_epi64(_mm_slli_epi64(upper, 2), upper));
        values = _mm_add_epi64(values, _mm_and_si128(values, upper_7));

        // A byte goes on when anything behind it is not 0.
        __m128i behind = _mm_srli_epi64(values, 8);
        behind = _mm_or_si128(behind, _mm_srli_epi64(behind, 8));
        behind = _mm_or_si128(behind, _mm_srli_epi64(behind, 16));
        behind = _mm_or_si128(behind, _mm_srli_epi64(behind, 32));
        const __m128i goes_on = _mm_cmpgt_epi8(behind, zero);
        bytes_ = _mm_or_si128(values, _mm_and_si128(goes_on, continuation_bits));
        going_on_ = _mm_sad_epu8(_mm_sub_epi8(zero, goes_on), zero);
    }

    uint32_t size(uint32_t place) const
    {
        const int going_on =
            place == 0 ? _mm_cvtsi128_si32(going_on_) : _mm_extract_epi16(going_on_, 4);
        return static_cast<uint32_t>(going_on) + 1;
    }

    void store(uint8_t *to, uint32_t place) const
    {
        if (place == 0)
            _mm_storel_epi64(reinterpret_cast<__m128i *>(to), bytes_);
        else
            _mm_storeh_pi(reinterpret_cast<__m64 *>(to), _mm_castsi128_ps(bytes_));
    }

private:
    __m128i bytes_;
    __m128i going_on_; // how many bytes do
};

inline __m128i load_pair(const uint64_t *values)
{
    return _mm_loadu_si128(reinterpret_cast<const __m128i *>(values));
}

inline __m128i load_pair(const uint32_t *values)
{
    const __m128i pair = _mm_loadl_epi64(reinterpret_cast<const __m128i *>(values));
    return _mm_unpacklo_epi32(pair, _mm_setzero_si128());
}

inline __m128i load_single(const uint64_t *value)
{
    return _mm_loadl_epi64(reinterpret_cast<const __m128i *>(value));
}

inline __m128i load_single(const uint32_t *value)
{
    return _mm_cvtsi32_si128(static_cast<int>(*value));
}

// Two to four values, none of them above kMostTogether.
template <typename Value>
class Varints {
public:
    TARN_INLINE explicit Varints(const Value *values, uint32_t count)
        : first_(load_pair(values)), second_(count == 4   ? load_pair(values + 2)
                                             : count == 3 ? load_single(values + 2)
                                                          : _mm_setzero_si128())
    {}

    uint32_t size(uint32_t place) const { return pair(place).size(place % 2); }
    void store(uint8_t *to, uint32_t place) const { pair(place).store(to, place % 2); }

private:
    const VarintPair &pair(uint32_t place) const { return place < 2 ? first_ : second_; }

    VarintPair first_;
    VarintPair second_;
};

#else

// In words it is only worth it for values that take two.
template <typename Value>
constexpr bool kTogether = sizeof(Value) > sizeof(uint32_t);

// A value of up to 56 bits as two words of the wire.
struct StorableVarint {
    StorableVarint() = default;
    explicit StorableVarint(uint64_t value)
    {
        const uint32_t lower = static_cast<uint32_t>(value) & 0x0FFFFFFF;
        const uint32_t upper = static_cast<uint32_t>(value >> 28);
        const uint32_t is_long = 0 - static_cast<uint32_t>(upper != 0);
        size = wire_varint32_size(lower ^ ((lower ^ upper) & is_long)) + (is_long & 4);
        // Those of the word in which the value ends.
        const uint32_t continuation_bits = 0x00808080 >> (8 * (0 - size) & 31);
        low = spread_sevens(lower) | (is_long & 0x80808080) | (~is_long & continuation_bits);
        high = spread_sevens(upper) | (is_long & continuation_bits);
    }

    uint32_t low;
    uint32_t high;
    uint32_t size;
};

template <typename Value>
class Varints {
public:
    TARN_INLINE explicit Varints(const Value *values, uint32_t count)
    {
#pragma GCC unroll 4
        for (uint32_t i = 0; i < count; i++)
            varints_[i] = StorableVarint(values[i]);
    }

    uint32_t size(uint32_t place) const
    {
        return varints_[place].size;
    }
    void store(uint8_t *to, uint32_t place) const
    {
        store_4(to, varints_[place].low);
        store_4(to + 4, varints_[place].high);
    }

private:
    StorableVarint varints_[4];
};

#endif

// A field of two bytes, as it stands in memory: a tag and a value.
constexpr uint32_t kOneSmall = 2;

inline bool is_small(const uint8_t *at, uint32_t tag)
{
    uint16_t field;
    memcpy(&field, at, sizeof field);
    return (field & 0x80FF) == tag;
}

// Four of them. Tags are `step` apart: there are lists, whose tags are all the same, and
// neighbouring members.
constexpr uint32_t kFourSmall = 4 * kOneSmall;

constexpr uint64_t small_tags(uint32_t tag, uint32_t step)
{
    return tag * 0x0001000100010001 + step * 0x0003000200010000;
}

// Whether such fields stand here, with these tags.
inline bool are_four_small(const uint8_t *at, uint32_t tag, uint32_t step)
{
    uint64_t fields;
    memcpy(&fields, at, sizeof fields);
    return ((fields ^ small_tags(tag, step)) & 0x80FF80FF80FF80FF) == 0;
}

inline void load_four_small(uint32_t *values, const uint8_t *at)
{
#ifdef __SSE2__
    const __m128i fields = _mm_loadl_epi64(reinterpret_cast<const __m128i *>(at));
    const __m128i words = _mm_unpacklo_epi16(_mm_srli_epi16(fields, 8), _mm_setzero_si128());
    _mm_storeu_si128(reinterpret_cast<__m128i *>(values), words);
#else
    for (uint32_t i = 0; i < 4; i++)
        values[i] = at[2 * i + 1];
#endif
}

// How many elements of a list are stored at once when all are below 128.
#ifdef __SSE2__
constexpr uint32_t kSmallElements = 8;
#else
constexpr uint32_t kSmallElements = 4;
#endif

// Stores that many, with the tag of one byte before each. False where one is not small: then
// nothing is stored.
TARN_INLINE inline bool store_small_elements(uint8_t *to, const uint32_t *elements, uint32_t tag)
{
#ifdef __SSE2__
    const __m128i *from = reinterpret_cast<const __m128i *>(elements);
    const __m128i first = _mm_loadu_si128(from);
    const __m128i second = _mm_loadu_si128(from + 1);
    const __m128i above = _mm_srli_epi32(_mm_or_si128(first, second), 7);
    if (_mm_movemask_epi8(_mm_cmpeq_epi32(above, _mm_setzero_si128())) != 0xFFFF)
        return false;
    const __m128i values = _mm_slli_epi16(_mm_packs_epi32(first, second), 8);
    const __m128i tags = _mm_set1_epi16(static_cast<int16_t>(tag));
    _mm_storeu_si128(reinterpret_cast<__m128i *>(to), _mm_or_si128(values, tags));
#else
    if ((elements[0] | elements[1] | elements[2] | elements[3]) >= 0x80)
        return false;
    const uint32_t tags = tag * 0x00010001;
    store_4(to, elements[0] << 8 | elements[1] << 24 | tags);
    store_4(to + 4, elements[2] << 8 | elements[3] << 24 | tags);
#endif
    return true;
}

// Stores two to four of them, and returns the place behind.
template <typename Value>
TARN_INLINE inline uint8_t *store_small(uint8_t *to, const Value *values, uint32_t count,
                                        uint32_t tag, uint32_t step)
{
#ifdef __SSE2__
    if (count == 4 && sizeof(Value) == sizeof(uint32_t)) {
        const __m128i words = _mm_loadu_si128(reinterpret_cast<const __m128i *>(values));
        const __m128i bytes = _mm_slli_epi16(_mm_packs_epi32(words, words), 8);
        const __m128i tags = _mm_cvtsi64_si128(static_cast<int64_t>(small_tags(tag, step)));
        _mm_storel_epi64(reinterpret_cast<__m128i *>(to), _mm_or_si128(bytes, tags));
        return to + kFourSmall;
    }
#endif
#pragma GCC unroll 4
    for (uint32_t i = 0; i < count; i++, to += 2)
        store_2(to, values[i] << 8 | (tag + i * step));
    return to;
}

} // namespace tarn
