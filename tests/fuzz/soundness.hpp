// SPDX-License-Identifier: MIT
// Whether a record is sound: members and flags agree, and what it points to is what it claims.

#pragma once

#include "tests/fuzz/record.hpp"

namespace fuzz {

// A record that decoding has left, with that result. Finds the blocks that hang on it; where some
// do not, the message must give a reason.
void require_sound(Record &record, int32_t result);

// A record that has been decoded whole says what the message says.
void require_reading(const Record &record);

// A record copied with that result from one that is sound. It is the same and shares nothing;
// where memory was missing it has gaps. Finds its blocks, too.
void require_copy(Record &copy, const Record &original, int32_t result);

// Two sound records that say the same.
void require_same(const Record &left, const Record &right);

} // namespace fuzz
