// SPDX-License-Identifier: MIT
// The walk itself: one function for each step of decoding, as in the library, but for the storing.

#pragma once

#include "tools/core/varint.hpp"
#include "tools/core/walk.hpp"

#include <optional>
#include <string>

namespace inspect {

// A part of the message that is read as if it were all. Offsets are those of the whole message.
struct Extent {
    uint32_t begin;
    uint32_t end;
};

// Recognises a field loop that would never end: when position and flags come back after a jump,
// they will for ever. Remembers one state, and another one after 1, 2, 4, 8 ... jumps.
class Landings {
public:
    bool comes_back(uint32_t position, uint64_t present);

private:
    uint64_t steps_ = 0;
    uint64_t limit_ = 0;
    uint32_t position_ = 0;
    uint64_t present_ = 0;
};

// What the field loop of one record knows.
struct Loop {
    const RecordType *type;
    Extent extent;
    size_t depth;
    uint64_t present = 0; // the flags
    uint32_t last_number = 0;
    Landings landings = {};

    bool has(const Member &member) const { return (present >> member.bit & 1) != 0; }
};

struct Tag {
    uint32_t number;
    uint32_t wire_type;
};

Tag tag_of(const Varint &varint);
// "a varint", "32 bits", ...
std::string_view wire_type_words(uint32_t wire_type);

class Walker {
public:
    Walker(Bytes message, Visitor &visitor, const WalkOptions &options);

    Verdict run(const RecordType &type);

private:
    // All that return bool return whether to go on; all that take `at` leave it behind what they
    // have read.
    bool walk_record(Loop &loop);
    bool walk_field(Loop &loop, const Member &member, Tag tag, uint32_t &at);
    bool walk_content(const Loop &loop, const Member &member, uint32_t &at);
    bool walk_number(const Loop &loop, const Member &member, uint32_t &at);
    bool walk_bytes(const Loop &loop, const Member &member, uint32_t &at);
    bool walk_message(const Loop &loop, const Member &member, uint32_t &at);

    bool walk_list(const Loop &loop, const Member &member, uint32_t &at);
    bool count_run(const Loop &loop, const Member &member, uint32_t at, uint32_t &count);
    bool step_over_element(const Loop &loop, const Member &member, uint32_t &at);
    bool fail_in_run(const Loop &loop, const Member &member, uint32_t begin, uint32_t at,
                     std::string reason);

    bool walk_unknown(Loop &loop, Tag tag, uint32_t &at);
    bool walk_skipped(const Loop &loop, Tag tag, uint32_t size, uint32_t &at);
    bool walk_skipped_length(Loop &loop, Tag tag, const Varint &length, uint32_t &at);

    bool show_tag(const Loop &loop, const Member *member, Notes notes, uint32_t &at);
    bool read_length(const Loop &loop, const Member &member, uint32_t &at, uint32_t &length);

    bool show(const Piece &piece);
    // Shows what is left of the record, unread, and ends with this result.
    bool fail_at_end(const Loop &loop, const Member *member, uint32_t at, std::string reason);
    bool fail(int32_t result, uint32_t at, std::string reason);
    bool take_block(uint64_t size, uint32_t at);

    std::optional<Varint> varint_at(const Loop &loop, uint32_t at) const;
    Piece piece(const Loop &loop, const Member *member, Part what, uint32_t begin,
                uint32_t end) const;
    // Of a varint that is read into so many bits.
    Piece varint_piece(const Loop &loop, const Member *member, Part what, uint32_t at,
                       const Varint &varint, uint32_t bits) const;

    Bytes message_;
    Visitor &visitor_;
    uint64_t blocks_;
    uint64_t work_left_;
    std::vector<Step> path_;
    Verdict verdict_;
};

} // namespace inspect
