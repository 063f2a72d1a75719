// SPDX-License-Identifier: MIT
// Where the members of a record lie, computed from the rules alone: members in order, each on its
// own alignment, the presence flags in the first free bytes behind the last.

#pragma once

#include "tests/catalogue/catalogue.hpp"

#include <vector>

namespace catalogue {

struct Layout {
    std::vector<size_t> offsets;
    size_t flags; // the first byte of presence flags
    size_t alignment;
    size_t size;
};

const Layout &layout_of(const RecordType &type);

// The second half of a member that is a pointer and a length or count.
size_t count_offset(const Member &member);

bool flag(const RecordType &type, const void *record, const Member &member);

} // namespace catalogue
