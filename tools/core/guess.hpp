// SPDX-License-Identifier: MIT
// Which types a message may be of. The bytes do not say: many types share a shape.

#pragma once

#include "tools/core/ink.hpp"
#include "tools/core/text.hpp"

#include <cstddef>
#include <vector>

namespace inspect {

// Types that no bytes can tell apart: the same numbers and kinds, at every depth.
using ShapeClass = std::vector<const RecordType *>;
const std::vector<ShapeClass> &shape_classes();

struct Guess {
    const ShapeClass *types;
    bool is_canonical;  // encoding gives the same bytes again
    size_t bytes_known; // of the message, in fields that the type has
    size_t members_present;
    bool has_odd_text; // a string that is not UTF-8, or has control characters
};

// All classes whose types take the message, the likeliest first.
std::vector<Guess> guess(Bytes message, size_t memory_limit);

void write_guesses(const std::vector<Guess> &guesses, size_t message_size, const Palette &palette,
                   const Sink &sink);

} // namespace inspect
