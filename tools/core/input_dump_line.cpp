// SPDX-License-Identifier: MIT
#include "tools/core/input_dump_line.hpp"

#include "tools/core/input_formats.hpp"

#include <algorithm>
#include <bit>

namespace inspect {

namespace {

constexpr size_t kShortestOffset = 4;
constexpr size_t kLongestOffset = 16;

size_t skip_gap(Cursor &line)
{
    const size_t begin = line.position();
    line.skip_blanks();
    return line.position() - begin;
}

} // namespace

DumpOffset take_offset(Cursor &line)
{
    DumpOffset offset{line.position(), {}, false};
    line.skip_if("0x");
    const size_t begin = line.position();
    line.skip_hex_digits();
    offset.digits = line.since(begin);
    if (offset.digits.size() < kShortestOffset || offset.digits.size() > kLongestOffset)
        line.fail_at_position(offset.position, "a line of a dump begins with an offset of 4 to 16 "
                                               "hex digits");
    offset.has_colon = line.skip_if(":");
    if (!line.at_end() && !is_blank(line.peek()))
        line.fail("an offset ends with a blank, or with a colon and a blank");
    return offset;
}

void DumpLineReader::read()
{
    for (bool is_first = true;; is_first = false) {
        const size_t gap = skip_gap(line_);
        if (line_.at_end() || ends_bytes(gap, is_first))
            return;
        read_group();
    }
}

// Whether the column of characters is next. It may itself look like bytes.
bool DumpLineReader::ends_bytes(size_t gap, bool is_first)
{
    has_bars_ = line_.peek() == '|' || line_.peek() == '>';
    if (has_bars_)
        return true;
    if (is_first || gap == 1 || word_size_ > 1)
        return false;
    return gap != 2 || !is_middle();
}

// Many leave two blanks behind the eighth byte. Others end their lines there; then the column
// has eight characters.
bool DumpLineReader::is_middle() const
{
    const bool is_pair = is_hex_digit(line_.peek()) && is_hex_digit(line_.peek(1)) &&
                         (line_.left() == 2 || is_blank(line_.peek(2)));
    return count() == 8 && is_pair && !(has_colon_ && line_.left() == count());
}

void DumpLineReader::read_group()
{
    // Debuggers print numbers, bytes or words.
    const bool is_number = has_colon_ && line_.skip_if("0x");
    const size_t begin = line_.position();
    line_.skip_hex_digits();
    const std::string_view digits = line_.since(begin);
    if (digits.empty() || !(line_.at_end() || is_blank(line_.peek())))
        line_.fail_expecting("hex digit");
    if (digits.size() % 2 != 0)
        line_.fail_at_position(begin, "an odd number of hex digits");
    append_hex(digits, out_);
    if (!has_colon_ || is_number)
        swap_word(begin, digits.size() / 2);
}

void DumpLineReader::swap_word(size_t position, size_t size)
{
    const bool is_first = count() == size;
    if (!std::has_single_bit(size) || size > 8 || (!is_first && size != word_size_))
        line_.fail_at_position(position, "neither a byte nor a word like those before it");
    word_size_ = size;
    std::reverse(out_.end() - static_cast<ptrdiff_t>(size), out_.end());
}

} // namespace inspect
