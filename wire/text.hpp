// SPDX-License-Identifier: MIT
// The length of a text as the wire counts it.

#pragma once

#include <stdint.h>
#include <string.h>

namespace [[gnu::visibility("hidden")]] tarn {

// Lengths are 32-bit: that of a text of 4 GiB or more wraps, as every length on the wire does.
inline uint32_t wire_strlen(const char *text)
{
    return static_cast<uint32_t>(strlen(text));
}

} // namespace tarn
