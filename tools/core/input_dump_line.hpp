// SPDX-License-Identifier: MIT
// One line of a dump: its offset, its groups of digits, and where these end.

#pragma once

#include "tools/core/input_text.hpp"

#include <cstdint>
#include <string_view>
#include <vector>

namespace inspect {

struct DumpOffset {
    size_t position;         // in the text
    std::string_view digits; // without 0x
    bool has_colon;
};

DumpOffset take_offset(Cursor &line);

// Appends the bytes of a line of which the offset was taken.
class DumpLineReader {
public:
    DumpLineReader(const Cursor &line, bool has_colon, std::vector<uint8_t> &out)
        : line_(line), has_colon_(has_colon), out_(out), begin_(out.size())
    {}

    void read();

    size_t count() const { return out_.size() - begin_; }
    // Around the column of characters.
    bool has_bars() const { return has_bars_; }
    // How many bytes a group has that is turned round, or 1.
    size_t word_size() const { return word_size_; }

private:
    bool ends_bytes(size_t gap, bool is_first);
    bool is_middle() const;
    void read_group();
    void swap_word(size_t position, size_t size);

    Cursor line_;
    bool has_colon_;
    std::vector<uint8_t> &out_;
    size_t begin_;
    size_t word_size_ = 1;
    bool has_bars_ = false;
};

} // namespace inspect
