// SPDX-License-Identifier: MIT
// What a record says, held against a content and against the record it is a copy of. Differences
// are told in words; no difference is the empty string.

#pragma once

#include "tests/catalogue/content.hpp"

#include <string>

namespace catalogue {

// Whether a decoded record says what the content says: values and flags of the members that were on
// the wire, defaults and clear flags in all others.
std::string difference(const Content &expected, const void *record);

// Whether a record is what duplicating makes of the original: the same values and flags, in blocks
// of its own, and nothing but null where the original has an empty list or byte string.
std::string copy_difference(const RecordType &type, const void *copy, const void *original);

} // namespace catalogue
