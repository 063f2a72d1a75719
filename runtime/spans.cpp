// SPDX-License-Identifier: MIT
#include "runtime/spans.hpp"

namespace tarn {

void copy_long_span(void *to, const void *from, uint32_t size)
{
    memcpy(to, from, size);
}

void clear_long_span(void *at, uint32_t size)
{
    memset(at, 0, size);
}

} // namespace tarn
