// SPDX-License-Identifier: MIT
// Which types a message may be of. The bytes do not say: many types share a shape.

#pragma once

#include "tools/core/ink.hpp"
#include "tools/core/text.hpp"
#include "tools/core/verdict.hpp"

#include <cstddef>
#include <vector>

namespace inspect {

// Types that no bytes can tell apart: the same numbers and kinds, at every depth.
using ShapeClass = std::vector<const RecordType *>;
// Of the types of this library; the two of the sibling library come inside of others only.
const std::vector<ShapeClass> &shape_classes();

struct Guess {
    const ShapeClass *types;
    bool is_canonical;  // encoding gives the same bytes again
    size_t bytes_known; // of the message, in fields that the type has
    size_t members_present;
    bool has_odd_text;          // a string that is not UTF-8, or has control characters
    size_t bytes_opaque = 0;    // in byte strings, which take anything
    size_t members_missing = 0; // of all records, the nested ones, too
};

// All classes whose types take the message, the likeliest first. That is, in this order:
//  - encoding gives the same bytes again, so that all of them are in fields that the type has;
//  - more of the message is in fields that the type has;
//  - texts look like texts;
//  - less of it is in byte strings: that a text or a record fits by chance is rarer;
//  - fewer members are missing, at all depths: peers fill most of a record;
//  - more types have the shape;
//  - the name, so that the order is always the same.
std::vector<Guess> guess(Bytes message, size_t memory_limit, const Progress &progress = {});

void write_guesses(const std::vector<Guess> &guesses, size_t message_size, const Palette &palette,
                   const Sink &sink);

// A class whose types do not take the message.
struct Refusal {
    const ShapeClass *types;
    Verdict verdict;    // WIRE_OK, with a reason, where finding out would take too long
    size_t bytes_known; // up to where decoding stopped
};

// Those first that knew the most of the message up to where they stopped, or came furthest.
std::vector<Refusal> refusals(Bytes message, size_t memory_limit, const Progress &progress = {});

// The first few of them.
void write_refusals(const std::vector<Refusal> &refusals, const Palette &palette, const Sink &sink);

} // namespace inspect
