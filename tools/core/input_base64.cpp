// SPDX-License-Identifier: MIT
// Base64 in one line or in several.
#include "tools/core/base64.hpp"
#include "tools/core/input_formats.hpp"
#include "tools/core/input_text.hpp"

namespace inspect {

namespace {

bool is_base64(char c)
{
    return is_name_character(c) || c == '+' || c == '/' || c == '-' || c == '=';
}

// With the blanks around it. Others are between words, not in base64.
void skip_line_break(Cursor &cursor)
{
    const size_t begin = cursor.position();
    cursor.skip_blanks();
    const std::string_view blanks = cursor.since(begin);
    if (!blanks.empty() && blanks.find_first_of("\r\n") == blanks.npos)
        cursor.fail_at_position(begin, "a blank between base64 characters");
}

std::string without_line_breaks(Cursor &cursor)
{
    std::string text;
    for (; !cursor.at_end(); skip_line_break(cursor)) {
        const size_t begin = cursor.position();
        while (is_base64(cursor.peek()))
            cursor.skip();
        if (!cursor.at_end() && !is_blank(cursor.peek()))
            cursor.fail_expecting("base64 character");
        text += cursor.since(begin);
    }
    return text;
}

} // namespace

void read_base64(std::string_view input, std::vector<uint8_t> &out)
{
    Cursor cursor = without_quotes(input);
    const std::string text = without_line_breaks(cursor);
    if (text.size() % 4 == 1)
        cursor.fail("a base64 character is missing, or one is too many");
    const auto bytes = bytes_of_base64(text);
    // Bits that nobody writes are rather the begin of what was lost.
    if (!bytes)
        cursor.fail("base64 that does not end with a byte");
    out.insert(out.end(), bytes->begin(), bytes->end());
}

} // namespace inspect
