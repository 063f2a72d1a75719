// SPDX-License-Identifier: MIT
// What stands in the lines of a tree, without the guides: a row for each member, and the values
// that are too long for a row.

#pragma once

#include "tools/core/phrase.hpp"
#include "tools/core/trail.hpp"

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace inspect {

struct TreeRow {
    const Member *member; // null: decoding stopped here
    std::string label;
    Phrase value;
    Phrase kind;
    bool has_block = false; // the value follows, in lines of its own
    size_t elements = 1;    // what it is in size, as far as that is known
};

// Aligned in three columns.
struct TreeRows {
    std::vector<TreeRow> rows;
    size_t label_width = 0;
    size_t value_width = 0;
    size_t elements = 0;

    Phrase line(const TreeRow &row) const;
    // Where values begin.
    size_t value_column() const;
};

// The members that there are, in rows of at most `width` columns where that is possible.
TreeRows rows_of(RecordView record, const Trail &trail, size_t width);

// The lines of a text, a byte string or a list of numbers that has a block.
using LineSink = std::function<void(const Phrase &)>;
void write_block(RecordView record, const Member &member, const Trail &trail, size_t width,
                 const LineSink &sink);
void write_text_block(std::string_view text, size_t width, const LineSink &sink);

// A text for which `room` columns are there, or nothing when it needs lines of its own.
Phrase text_inline(const char *text, size_t room);
// What stands there then.
std::string text_length(const char *text);

} // namespace inspect
