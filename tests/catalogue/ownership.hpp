// SPDX-License-Identifier: MIT
// What a record owns: its blocks, its byte strings, and what is left when they are released.

#pragma once

#include "tests/catalogue/catalogue.hpp"
#include "tests/support/bytes.hpp"

#include <map>
#include <vector>

namespace catalogue {

// The blocks that hang on a record, with the sizes they need to have. With
// WIRE_FLAG_BYTES_IN_PLACE byte strings are not among them.
std::map<const void *, uint32_t> attached_blocks(const RecordType &type, const void *record,
                                                 uint32_t flags = 0);

// The byte strings of a record and of all records in it.
std::vector<WireSegment> byte_strings(const RecordType &type, const void *record);

// The bytes of the structure as release has to leave them.
test::Bytes released_image(const RecordType &type, const void *record, uint32_t flags = 0);

} // namespace catalogue
