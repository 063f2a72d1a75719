// SPDX-License-Identifier: MIT
// Records as no decoder leaves them but a caller may fill them: flags without content, content
// without flags, bools other than 0 and 1.

#pragma once

#include "tests/fuzz/record.hpp"

namespace fuzz {

// Alters a record that has been decoded whole; the same number alters it in the same way.
void alter(Record &record, uint64_t number);

// Appends the byte strings of a record and of all records in it.
void find_byte_strings(const Type &type, const uint8_t *record, std::vector<WireSegment> &found);

} // namespace fuzz
