// SPDX-License-Identifier: MIT
// The characters of a JSON text as the parser gets them, and what is wrong where it stops.

#pragma once

#include <cstddef>
#include <iterator>
#include <string>
#include <string_view>

namespace inspect {

// The parser keeps all that it reads between two strings or numbers, and more than once when it
// stops there. So that this is not much, a run of blanks is cut to one.
class JsonCharacters {
public:
    using iterator_category = std::input_iterator_tag;
    using value_type = char;
    using difference_type = std::ptrdiff_t;
    using pointer = const char *;
    using reference = const char &;

    explicit JsonCharacters(std::string_view text)
        : at_(text.data()), end_(text.data() + text.size())
    {}

    const char &operator*() const { return *at_; }
    JsonCharacters &operator++();
    bool operator==(const JsonCharacters &other) const { return at_ == other.at_; }

    const char *position() const { return at_; }
    bool at_end() const { return at_ == end_; }
    // Whether the character is behind the quote that begins a string, its last quote included.
    bool in_string() const { return in_string_; }

private:
    const char *at_;
    const char *end_;
    bool in_string_ = false;
    bool is_escaped_ = false;
};

// What is wrong with the text, and where: "line 3, column 7: unexpected "}"". The parser has read
// that many characters, the last of them in vain.
std::string json_fault(std::string_view json, size_t characters_read);
// The same where the value is complete and something follows.
std::string json_surplus(std::string_view json, size_t characters_read);
// The same for a zero byte, which the parser would take for the end.
std::string json_zero_byte(std::string_view json, size_t offset);

// The text in quotes, and of a long one the beginning.
std::string excerpt(std::string_view text);

} // namespace inspect
