// SPDX-License-Identifier: MIT
#include "tools/core/input_text.hpp"

#include "tools/core/error.hpp"

#include <algorithm>
#include <array>
#include <fmt/format.h>

namespace inspect {

namespace {

constexpr std::array<uint8_t, 256> kDigits = [] {
    std::array<uint8_t, 256> digits{};
    digits.fill(kNotHex);
    for (uint8_t i = 0; i < 10; i++)
        digits['0' + i] = i;
    for (uint8_t i = 0; i < 6; i++)
        digits['a' + i] = digits['A' + i] = static_cast<uint8_t>(10 + i);
    return digits;
}();

} // namespace

uint32_t digit_value(char c)
{
    return kDigits[static_cast<uint8_t>(c)];
}

std::string character_words(char c)
{
    if (c == '\n' || c == '\r')
        return "the end of the line";
    if (c >= ' ' && c < 0x7F)
        return fmt::format("'{}'", c);
    return fmt::format("the byte 0x{:02x}", static_cast<uint8_t>(c));
}

void fail_at(std::string_view input, size_t position, std::string_view what)
{
    const std::string_view before = input.substr(0, position);
    const auto line = std::ranges::count(before, '\n') + 1;
    const size_t line_break = before.rfind('\n');
    const size_t column = position - (line_break == before.npos ? 0 : line_break + 1) + 1;
    throw Error(fmt::format("line {}, column {}: {}", line, column, what));
}

bool Cursor::skip_if(std::string_view text)
{
    const bool is_there = sees(text);
    if (is_there)
        skip(text.size());
    return is_there;
}

void Cursor::skip_blanks()
{
    while (!at_end() && is_blank(input_[position_]))
        position_++;
}

void Cursor::skip_hex_digits()
{
    while (!at_end() && is_hex_digit(input_[position_]))
        position_++;
}

void Cursor::narrow(size_t begin, size_t end)
{
    position_ = begin;
    end_ = end;
}

Cursor Cursor::take_line()
{
    Cursor line = *this;
    const size_t line_break = rest().find('\n');
    line.end_ = line_break == std::string_view::npos ? end_ : position_ + line_break;
    position_ = std::min(line.end_ + 1, end_);
    if (line.rest().ends_with('\r'))
        line.end_--;
    return line;
}

void Cursor::fail_expecting(std::string_view noun) const
{
    if (at_end())
        fail(fmt::format("the text ends where a {} has to be", noun));
    fail(fmt::format("{} is no {}", character_words(peek()), noun));
}

Cursor without_quotes(std::string_view input)
{
    Cursor cursor(input);
    size_t begin = 0;
    size_t end = input.size();
    while (begin < end && is_blank(input[begin]))
        begin++;
    while (begin < end && is_blank(input[end - 1]))
        end--;
    const bool is_quoted = end - begin >= 2 && input[begin] == input[end - 1] &&
                           (input[begin] == '"' || input[begin] == '\'');
    cursor.narrow(begin + is_quoted, end - is_quoted);
    return cursor;
}

} // namespace inspect
