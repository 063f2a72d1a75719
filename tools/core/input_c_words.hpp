// SPDX-License-Identifier: MIT
// The words of C in a text: comments, numbers and escapes.

#pragma once

#include "tools/core/input_text.hpp"

#include <cstdint>
#include <string>
#include <string_view>

namespace inspect {

constexpr uint64_t kMostOfByte = 0xFF;

// Literals of Python's bytes have exactly two digits behind \x. C takes all that follow.
enum class Dialect { c, python };

class CReader {
public:
    explicit CReader(std::string_view input) : cursor_(input) {}

    Cursor &cursor() { return cursor_; }

    // Blanks and comments.
    void skip_space();
    // Names, keywords and stars with what is between them.
    void skip_words();
    // With the space before it.
    bool skip_sign(std::string_view sign);
    // Empty where there is none.
    std::string_view take_word();
    // What is too large is UINT64_MAX.
    uint64_t take_number();
    // What a backslash and what is behind it stand for.
    uint8_t take_escape(Dialect dialect);

private:
    void skip_comment();
    uint64_t take_digits(uint32_t radix, size_t most);
    uint8_t take_named_escape();

    Cursor cursor_;
};

// In quotes, and not all of it when it is long.
std::string quoted_word(std::string_view word);

} // namespace inspect
