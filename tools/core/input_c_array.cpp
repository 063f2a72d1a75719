// SPDX-License-Identifier: MIT
// Bytes as a C program has them: numbers between braces, or string literals.
#include "tools/core/error.hpp"
#include "tools/core/input_c_words.hpp"
#include "tools/core/input_formats.hpp"

#include <fmt/format.h>

namespace inspect {

namespace {

constexpr uint64_t kMostBelowZero = 0x80;

class ArrayReader {
public:
    ArrayReader(std::string_view input, std::vector<uint8_t> &out)
        : reader_(input), cursor_(reader_.cursor()), out_(out), begin_(out.size())
    {}

    void read()
    {
        reader_.skip_space();
        if (cursor_.at_end())
            return;
        if (is_decimal_digit(cursor_.peek()) || cursor_.peek() == '\'' || cursor_.peek() == '-')
            return read_list();
        skip_to_content();
        if (cursor_.skip_if("{"))
            read_braces();
        else
            read_literals();
        read_rest();
    }

    // A lone number or a string as others have it, too, is not enough.
    bool is_certain() const { return has_mark_ && count() != 0; }

private:
    size_t count() const { return out_.size() - begin_; }

    void skip_to_content()
    {
        for (reader_.skip_space(); !at_content(); reader_.skip_space()) {
            if (cursor_.at_end())
                cursor_.fail("an array has a { or a \" somewhere");
            if (reader_.take_word().empty())
                cursor_.skip();
        }
    }

    bool at_content() const { return cursor_.peek() == '{' || at_literal(); }
    bool at_literal() const
    {
        return cursor_.peek() == '"' || cursor_.sees("b\"") || cursor_.sees("b'");
    }

    void read_list()
    {
        read_elements();
        if (!cursor_.at_end())
            cursor_.fail_expecting("comma");
        has_mark_ = count() > 1;
    }

    void read_braces()
    {
        has_mark_ = true;
        read_elements();
        if (!cursor_.skip_if("}"))
            cursor_.fail("neither a comma nor a }");
    }

    void read_elements()
    {
        do {
            reader_.skip_space();
            if (cursor_.at_end() || cursor_.peek() == '}')
                return;
            read_element();
        } while (reader_.skip_sign(","));
    }

    void read_element()
    {
        if (cursor_.peek() == '\'')
            return read_character();
        const size_t begin = cursor_.position();
        const bool is_negative = cursor_.skip_if("-");
        const uint64_t value = reader_.take_number();
        if (value > (is_negative ? kMostBelowZero : kMostOfByte))
            cursor_.fail_at_position(begin, quoted_word(cursor_.since(begin)) + " is no byte");
        out_.push_back(static_cast<uint8_t>(is_negative ? 0 - value : value));
    }

    void read_character()
    {
        cursor_.skip();
        const char c = cursor_.peek();
        if (c == '\'' || c == '\n' || cursor_.at_end())
            cursor_.fail("a character is missing");
        if (c == '\\') {
            out_.push_back(reader_.take_escape(Dialect::c));
        } else {
            out_.push_back(static_cast<uint8_t>(c));
            cursor_.skip();
        }
        if (!cursor_.skip_if("'"))
            cursor_.fail("a ' has to end the character");
    }

    void read_literals()
    {
        for (; at_literal(); reader_.skip_space())
            read_literal(cursor_.skip_if("b") ? Dialect::python : Dialect::c);
    }

    void read_literal(Dialect dialect)
    {
        const size_t begin = cursor_.position();
        const char quote = cursor_.peek();
        for (cursor_.skip(); cursor_.peek() != quote;) {
            if (cursor_.at_end() || cursor_.peek() == '\n')
                cursor_.fail_at_position(begin, "a string without an end");
            read_part(dialect);
        }
        cursor_.skip();
    }

    void read_part(Dialect dialect)
    {
        if (cursor_.peek() != '\\') {
            out_.push_back(static_cast<uint8_t>(cursor_.peek()));
            cursor_.skip();
        } else if (!cursor_.skip_if("\\\n") && !cursor_.skip_if("\\\r\n")) {
            has_mark_ = true;
            out_.push_back(reader_.take_escape(dialect));
        }
    }

    // A second array is too much, and a length has to be the right one: the one that xxd prints.
    void read_rest()
    {
        for (reader_.skip_space(); !cursor_.at_end(); reader_.skip_space()) {
            const char c = cursor_.peek();
            if (c == '{' || c == '"')
                cursor_.fail("something behind the array");
            cursor_.skip();
            if (c == '=')
                compare_length();
        }
    }

    void compare_length()
    {
        reader_.skip_space();
        if (!is_decimal_digit(cursor_.peek()))
            return;
        const size_t begin = cursor_.position();
        const uint64_t length = reader_.take_number();
        if (length != count())
            cursor_.fail_at_position(begin,
                                     fmt::format("a length of {}, but {} bytes are there",
                                                 quoted_word(cursor_.since(begin)), count()));
    }

    CReader reader_;
    Cursor &cursor_;
    std::vector<uint8_t> &out_;
    size_t begin_;
    bool has_mark_ = false; // braces, escapes or a list
};

} // namespace

void read_c_array(std::string_view input, std::vector<uint8_t> &out)
{
    ArrayReader(input, out).read();
}

bool is_c_array(std::string_view input)
{
    try {
        std::vector<uint8_t> out;
        ArrayReader reader(input, out);
        reader.read();
        return reader.is_certain();
    } catch (const Error &) {
        return false;
    }
}

bool begins_like_c_array(std::string_view input)
{
    CReader reader(input);
    try {
        reader.skip_words();
        if (!reader.skip_sign("[") || is_decimal_digit(input[0]))
            return false;
        reader.skip_words();
        return reader.skip_sign("]") && reader.skip_sign("=") &&
               (reader.skip_sign("{") || reader.skip_sign("\""));
    } catch (const Error &) {
        return false;
    }
}

} // namespace inspect
