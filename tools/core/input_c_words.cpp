// SPDX-License-Identifier: MIT
#include "tools/core/input_c_words.hpp"

#include <algorithm>
#include <fmt/format.h>

namespace inspect {

namespace {

uint32_t take_radix(std::string_view &digits)
{
    const std::string_view prefix = digits.substr(0, 2);
    const bool is_hex = prefix == "0x" || prefix == "0X";
    if (is_hex || prefix == "0b" || prefix == "0B") {
        digits.remove_prefix(2);
        return is_hex ? 16 : 2;
    }
    return digits.starts_with('0') ? 8 : 10;
}

} // namespace

void CReader::skip_space()
{
    for (cursor_.skip_blanks(); cursor_.peek() == '/'; cursor_.skip_blanks())
        skip_comment();
}

void CReader::skip_words()
{
    for (skip_space(); is_name_character(cursor_.peek()) || cursor_.peek() == '*'; skip_space())
        cursor_.skip();
}

bool CReader::skip_sign(std::string_view sign)
{
    skip_space();
    return cursor_.skip_if(sign);
}

std::string_view CReader::take_word()
{
    const size_t begin = cursor_.position();
    while (is_name_character(cursor_.peek()))
        cursor_.skip();
    return cursor_.since(begin);
}

uint64_t CReader::take_number()
{
    const size_t begin = cursor_.position();
    const std::string_view word = take_word();
    if (word.empty())
        cursor_.fail_expecting("number");
    std::string_view digits = word.substr(0, word.find_last_not_of("uUlL") + 1);
    const uint32_t radix = take_radix(digits);
    uint64_t value = 0;
    for (const char c : digits) {
        if (digit_value(c) >= radix)
            cursor_.fail_at_position(begin, quoted_word(word) + " is no number");
        value = value > UINT32_MAX ? UINT64_MAX : value * radix + digit_value(c);
    }
    if (digits.empty())
        cursor_.fail_at_position(begin, quoted_word(word) + " is no number");
    return value;
}

uint8_t CReader::take_escape(Dialect dialect)
{
    const size_t begin = cursor_.position();
    cursor_.skip();
    const char c = cursor_.peek();
    uint64_t value = 0;
    if (c == 'x') {
        cursor_.skip();
        value = take_digits(16, dialect == Dialect::c ? SIZE_MAX : 2);
    } else if (is_decimal_digit(c)) {
        value = take_digits(8, 3);
    } else {
        value = take_named_escape();
    }
    if (value > kMostOfByte)
        cursor_.fail_at_position(begin, "an escape that is more than a byte");
    return static_cast<uint8_t>(value);
}

void CReader::skip_comment()
{
    const size_t begin = cursor_.position();
    const bool is_block = cursor_.sees("/*");
    if (!is_block && !cursor_.sees("//"))
        cursor_.fail("'/' that begins no comment");
    cursor_.skip(2);
    const size_t length = cursor_.rest().find(is_block ? "*/" : "\n");
    if (length != std::string_view::npos)
        cursor_.skip(length + (is_block ? 2 : 1));
    else if (is_block)
        cursor_.fail_at_position(begin, "a comment without an end");
    else
        cursor_.skip(cursor_.left());
}

// Too many of them are more than a byte.
uint64_t CReader::take_digits(uint32_t radix, size_t most)
{
    uint64_t value = 0;
    size_t count = 0;
    for (; count < most && digit_value(cursor_.peek()) < radix; count++) {
        value = std::min(value * radix + digit_value(cursor_.peek()), kMostOfByte + 1);
        cursor_.skip();
    }
    if (count == 0)
        cursor_.fail_expecting(radix == 8 ? "octal digit" : "hex digit");
    return value;
}

uint8_t CReader::take_named_escape()
{
    static constexpr std::string_view names = "abefnrtv\\'\"?";
    static constexpr std::string_view values = "\a\b\033\f\n\r\t\v\\'\"?";
    const size_t index = cursor_.at_end() ? names.npos : names.find(cursor_.peek());
    if (index == names.npos)
        cursor_.fail("an escape that C does not have");
    cursor_.skip();
    return static_cast<uint8_t>(values[index]);
}

std::string quoted_word(std::string_view word)
{
    constexpr size_t kMostShown = 20;
    return fmt::format("'{}{}'", word.substr(0, kMostShown), word.size() > kMostShown ? "..." : "");
}

} // namespace inspect
