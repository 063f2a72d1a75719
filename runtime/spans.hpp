// SPDX-License-Identifier: MIT
// Copies and clears bytes whose number is known when the library is compiled. Where size is asked
// for, compilers do it with instructions that take long to begin; long spans are worth a call.

#pragma once

#include "wire/call.hpp"

#include <stdint.h>
#include <string.h>

namespace [[gnu::visibility("hidden")]] tarn {

constexpr uint32_t kLongSpan = 64;

TARN_CALL void copy_long_span(void *to, const void *from, uint32_t size);
TARN_CALL void clear_long_span(void *at, uint32_t size);

template <uint32_t size>
TARN_INLINE inline void copy_span(void *to, const void *from)
{
    if constexpr (size >= kLongSpan)
        copy_long_span(to, from, size);
    else
        memcpy(to, from, size);
}

template <uint32_t size>
TARN_INLINE inline void clear_span(void *at)
{
    if constexpr (size >= kLongSpan)
        clear_long_span(at, size);
    else
        memset(at, 0, size);
}

} // namespace tarn
