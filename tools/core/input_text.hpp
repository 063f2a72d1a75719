// SPDX-License-Identifier: MIT
// What the readers of texts share: digits, blanks, and where in the text they are.

#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace inspect {

constexpr bool is_decimal_digit(char c)
{
    return c >= '0' && c <= '9';
}
constexpr bool is_blank(char c)
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}
constexpr bool is_name_character(char c)
{
    return is_decimal_digit(c) || c == '_' || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

constexpr uint32_t kNotHex = 0xFF;
// Of a hexadecimal digit.
uint32_t digit_value(char c);
inline bool is_hex_digit(char c)
{
    return digit_value(c) != kNotHex;
}

// The character in quotes, or its number when a terminal might obey it.
std::string character_words(char c);

// "line 3, column 7: 'z' is no hex digit". Columns are counted in bytes.
[[noreturn]] void fail_at(std::string_view input, size_t position, std::string_view what);

// A place in a text. Between its begin and its end only, while positions, as errors tell them, are
// those in the whole input.
class Cursor {
public:
    explicit Cursor(std::string_view input) : input_(input), end_(input.size()) {}

    size_t position() const { return position_; }
    bool at_end() const { return position_ == end_; }
    size_t left() const { return end_ - position_; }
    // A zero byte at the end and beyond.
    char peek(size_t ahead = 0) const { return ahead < left() ? input_[position_ + ahead] : '\0'; }
    bool sees(std::string_view text) const { return rest().starts_with(text); }
    std::string_view rest() const { return input_.substr(position_, left()); }
    std::string_view since(size_t begin) const { return input_.substr(begin, position_ - begin); }

    void skip(size_t count = 1) { position_ += count; }
    bool skip_if(std::string_view text);
    void skip_blanks();
    void skip_hex_digits();
    // From here to there and no further.
    void narrow(size_t begin, size_t end);
    // The same text up to the line break; this cursor goes on behind it.
    Cursor take_line();

    [[noreturn]] void fail(std::string_view what) const { fail_at(input_, position_, what); }
    [[noreturn]] void fail_at_position(size_t position, std::string_view what) const
    {
        fail_at(input_, position, what);
    }
    // "'z' is no hex digit", or that the text ends where one has to be.
    [[noreturn]] void fail_expecting(std::string_view noun) const;

private:
    std::string_view input_;
    size_t position_ = 0;
    size_t end_;
};

// Without blanks around it and then without one pair of quotes, as copied from JSON or a program.
Cursor without_quotes(std::string_view input);

} // namespace inspect
