// SPDX-License-Identifier: MIT
// Patterns by which people pick types.

#pragma once

#include "tools/core/schema.hpp"

#include <string_view>

namespace inspect {

// A pattern with * or ? has to match a whole name of the type, any of them; any other has to be in
// a name or in the comment. Capitals and small letters are the same; the empty pattern fits all.
bool fits(std::string_view pattern, const RecordType &type);

// Whether the whole text is what the pattern says: * for any letters, ? for one.
bool fits_whole(std::string_view pattern, std::string_view text);

} // namespace inspect
