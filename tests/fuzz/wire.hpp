// SPDX-License-Identifier: MIT
// A message seen as pieces, one per field, by a reader of the fuzzers' own. It is what the mutator
// moves about, and the judge of whether a record may have lost blocks.

#pragma once

#include "tests/fuzz/types.hpp"

#include <stddef.h>
#include <stdint.h>
#include <vector>

namespace fuzz {

using Bytes = std::vector<uint8_t>;

struct Span {
    const uint8_t *data;
    size_t size;
};

struct Piece {
    uint32_t begin;     // of the tag
    uint32_t after_tag; // where value or length stand
    uint32_t content;   // behind the length; the same as after_tag where there is none
    uint32_t end;       // not beyond the message
    uint32_t wire_type; // by which it is read
    const Field *field; // null when the type does not have it
    bool overruns;      // its length says more than is left, or leads back
};

// A varint of any length; false where the message ends inside it.
bool read_varint(Span message, uint32_t &position, uint64_t &value);

// The pieces in the order in which they stand, up to the first place that cannot be read. A field
// that overruns ends at the end of the message.
void split(const Type &type, Span message, std::vector<Piece> &pieces);

// Whether the length of a piece, as an unknown field, wraps the position.
bool leads_back(Span message, const Piece &piece);

// Whether a record that is embedded and has blocks comes twice, here or in a nested record; jumps
// backwards count as that, since they may make it come twice.
bool may_replace_blocks(const Type &type, Span message);

// Whether there are so many jumps backwards in a message that all a run would show is how long they
// take.
bool jumps_too_often(Span message);

} // namespace fuzz
