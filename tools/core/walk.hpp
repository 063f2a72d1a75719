// SPDX-License-Identifier: MIT
// A message byte by byte: which of them are which field, under the rules by which the library
// decodes. It reads along with the library, never instead of it; tests and a fuzzer hold its
// verdict against the library's.

#pragma once

#include "tools/core/notes.hpp"
#include "tools/core/record.hpp"
#include "tools/core/verdict.hpp"

#include <cstdint>
#include <vector>

namespace inspect {

enum class Part { tag, length, value, skipped, unread };

// A piece of the message that means one thing.
struct Piece {
    Part part;
    uint32_t offset; // in the whole message
    Bytes bytes;
    size_t depth;                  // of records around it
    const std::vector<Step> *path; // of the field; of the record, where it has no such field
    const Member *member;          // null: the record has no such field
    uint32_t number;               // of the field
    uint32_t wire_type;
    uint64_t value; // of a tag, a length or a number: what is left of it
    Notes notes;
};

// Is shown the pieces in the order in which they are read.
class Visitor {
public:
    virtual ~Visitor() = default;
    // Returns whether to go on.
    virtual bool visit(const Piece &piece) = 0;
    // Around the pieces of an embedded record or an element; the path is that of its field.
    virtual void enter(const RecordType & /*type*/, const std::vector<Step> & /*path*/) {}
    virtual void leave() {}
};

struct WalkOptions {
    // How many blocks of memory the decoder is granted before it is refused one.
    uint64_t blocks = UINT64_MAX;
};

// How decoding ends. When the visitor ends it, and when a message jumps back so often that
// following it would take long, the verdict is WIRE_OK with a reason.
Verdict walk(const RecordType &type, Bytes message, Visitor &visitor,
             const WalkOptions &options = {});

// The verdict on a decoding that the library has done into `record`: its result, and where and why.
Verdict explain(const Record &record, Bytes message, int32_t result);

} // namespace inspect
