// SPDX-License-Identifier: MIT
// The presence flags of a record: flag k is bit k % 8 of byte k / 8, counted from the first byte
// behind the last member. Bits of the last byte that belong to no member are left as they are.

#pragma once

#include "wire/call.hpp"

#include <stdint.h>
#include <string.h>

namespace [[gnu::visibility("hidden")]] tarn {

TARN_INLINE inline bool has_flag(const uint8_t *flags, uint32_t bit)
{
    return flags[bit / 8] >> bit % 8 & 1;
}

inline void set_flag(uint8_t *flags, uint32_t bit)
{
    flags[bit / 8] = static_cast<uint8_t>(flags[bit / 8] | 1u << bit % 8);
}

// Bit k of `present` is for the member behind the first by k.
inline void set_flags(uint8_t *flags, uint32_t first, uint32_t present)
{
    uint8_t *at = flags + first / 8;
    uint64_t bits = uint64_t{present} << first % 8;
    do
        *at = static_cast<uint8_t>(*at | bits), at++;
    while (bits >>= 8);
}

inline void clear_flag(uint8_t *flags, uint32_t bit)
{
    flags[bit / 8] = static_cast<uint8_t>(flags[bit / 8] & ~(1u << bit % 8));
}

// The flags of up to 32 members from `first` on, that of the first in bit 0.
template <uint32_t first, uint32_t count>
TARN_INLINE inline uint32_t present_members(const uint8_t *flags)
{
    static_assert(count >= 1 && count <= 32);
    constexpr uint32_t kShift = first % 8;
    constexpr uint32_t kBytes = (kShift + count + 7) / 8;
    constexpr uint32_t kMask = ~0u >> (32 - count);
    uint64_t bits = 0;
    memcpy(&bits, flags + first / 8, kBytes);
    return static_cast<uint32_t>(bits >> kShift) & kMask;
}

// All flags of a record that has up to 64 members.
template <uint32_t members>
TARN_INLINE inline uint64_t all_flags(const uint8_t *flags)
{
    if constexpr (members == 0) {
        return 0;
    } else {
        uint64_t bits = 0;
        memcpy(&bits, flags, (members + 7) / 8);
        return bits & ~uint64_t{0} >> (64 - members);
    }
}

inline uint64_t all_flags(const uint8_t *flags, uint32_t members)
{
    uint64_t bits = 0;
    if (members == 0) // such a record may be null
        return bits;
    memcpy(&bits, flags, (members + 7) / 8);
    return bits & ~uint64_t{0} >> (64 - members);
}

// The member bits of the last flag byte.
constexpr uint8_t last_flags_mask(uint32_t members)
{
    return static_cast<uint8_t>(0xFF >> (7 - (members - 1) % 8));
}

template <uint32_t members>
void clear_flags(uint8_t *flags)
{
    constexpr uint32_t kLast = (members - 1) / 8;
    memset(flags, 0, kLast);
    flags[kLast] = static_cast<uint8_t>(flags[kLast] & ~last_flags_mask(members));
}

template <uint32_t members>
TARN_INLINE inline void set_all_flags(uint8_t *flags)
{
    constexpr uint32_t kLast = (members - 1) / 8;
    memset(flags, 0xFF, kLast);
    flags[kLast] = static_cast<uint8_t>(flags[kLast] | last_flags_mask(members));
}

template <uint32_t members>
void copy_flags(uint8_t *to, const uint8_t *from)
{
    constexpr uint32_t kLast = (members - 1) / 8;
    constexpr uint8_t kMask = last_flags_mask(members);
    memcpy(to, from, kLast);
    to[kLast] = static_cast<uint8_t>((to[kLast] & ~kMask) | (from[kLast] & kMask));
}

} // namespace tarn
