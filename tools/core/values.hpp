// SPDX-License-Identifier: MIT
// Values of members in the inks in which people see them.

#pragma once

#include "tools/core/phrase.hpp"

#include <cstdint>

namespace inspect {

// "7", "4096 (0x1000)", "true". A bool is written as the byte that is in memory; one that is
// neither 0 nor 1 says so.
Phrase number_value(Kind kind, uint64_t number);

// In quotes, or "(null)".
Phrase text_value(const char *text);

// As much of the text as fits into `width` columns with its quotes and escapes, but at least one
// character.
std::string_view fitting_part(std::string_view text, size_t width);

} // namespace inspect
