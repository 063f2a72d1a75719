// SPDX-License-Identifier: MIT
// A message byte by byte: which of them are which field, under the rules by which the library
// decodes. It reads along with the library, never instead of it; tests and a fuzzer hold its
// verdict against the library's.

#pragma once

#include "tools/core/record.hpp"
#include "tools/core/verdict.hpp"

#include <cstdint>
#include <string_view>
#include <vector>

namespace inspect {

// What is unusual about a piece of a message, though it may well be legal.
enum class Note : uint32_t {
    overlong_varint,   // more bytes than its value needs
    dropped_bits,      // bits that do not fit the member
    unknown_field,     // skipped
    past_the_end,      // a skipped field claims more bytes than there are
    backward_jump,     // the length of a skipped field wraps around
    met_again,         // a scalar or embedded record that was there already
    replaced_record,   // what the first one held is lost
    zero_byte_in_text, // C reads the text up to there
    not_utf8,
    out_of_order, // a lower number than the field before
    packed_run,
    broken_run, // a list that goes on after another field
    bool_above_one,
};
constexpr uint32_t kNoteCount = 13;

class Notes {
public:
    void add(Note note) { bits_ |= uint32_t{1} << static_cast<uint32_t>(note); }
    bool has(Note note) const { return (bits_ >> static_cast<uint32_t>(note) & 1) != 0; }
    bool any() const { return bits_ != 0; }
    std::vector<Note> list() const;

private:
    uint32_t bits_ = 0;
};

// A few words, to stand beside the bytes.
std::string_view note_words(Note note);

enum class Part { tag, length, value, skipped, unread };

// A piece of the message that means one thing.
struct Piece {
    Part part;
    uint32_t offset; // in the whole message
    Bytes bytes;
    size_t depth;                  // of records around it
    const std::vector<Step> *path; // of its field; without it, of the record around it
    const Member *member;          // null: the record does not have this field
    uint32_t number;               // of the field
    uint32_t wire_type;
    uint64_t value; // of a varint
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
    // How many blocks of memory the decoder gets before it is refused one.
    uint64_t blocks = UINT64_MAX;
    // Only what is found on the way to the verdict: how many backward jumps are followed.
    uint32_t most_jumps = 10000;
};

// How decoding ends. After more jumps than are followed, or when the visitor ends it, WIRE_OK.
Verdict walk(const RecordType &type, Bytes message, Visitor &visitor,
             const WalkOptions &options = {});

// The verdict on a decoding that the library has done: its result, and where and why.
Verdict explain(const Record &record, Bytes message, int32_t result);

} // namespace inspect
