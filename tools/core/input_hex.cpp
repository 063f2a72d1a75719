// SPDX-License-Identifier: MIT
// Hex digits, however they are separated.
#include "tools/core/input_formats.hpp"
#include "tools/core/input_text.hpp"

namespace inspect {

namespace {

class HexReader {
public:
    HexReader(std::string_view input, std::vector<uint8_t> &out)
        : cursor_(without_quotes(input)), out_(out)
    {}

    void read()
    {
        for (bool is_first = true;; is_first = false) {
            skip_separators(is_first);
            if (cursor_.at_end())
                return;
            const size_t begin = cursor_.position();
            const std::string_view prefix = take_prefix();
            if (is_first)
                prefix_ = prefix;
            // Those without it may be decimal, or characters.
            if (prefix != prefix_)
                cursor_.fail_at_position(begin, "a prefix is on some numbers and not on others");
            read_group();
        }
    }

private:
    void skip_separators(bool is_first)
    {
        // One minus between two bytes, and not the sign of a number.
        if (!is_first && cursor_.peek() == '-' && is_hex_digit(cursor_.peek(1)))
            cursor_.skip();
        after_blank_ = is_first || is_blank(cursor_.peek());
        while (is_blank(cursor_.peek()) || cursor_.peek() == ',' || cursor_.peek() == ':') {
            after_blank_ = after_blank_ && is_blank(cursor_.peek());
            cursor_.skip();
        }
    }

    std::string_view take_prefix()
    {
        if (cursor_.skip_if("0x") || cursor_.skip_if("0X"))
            return "0x";
        return cursor_.skip_if("\\x") ? "\\x" : std::string_view{};
    }

    void read_group()
    {
        const size_t begin = cursor_.position();
        cursor_.skip_hex_digits();
        const std::string_view digits = cursor_.since(begin);
        if (digits.empty() || !is_behind_group())
            cursor_.fail_expecting("hex digit");
        if (prefix_ == "\\x" && digits.size() > 2)
            cursor_.fail_at_position(begin + 2, "more than two digits behind \\x");
        if (digits.size() == 1 && may_be_alone())
            out_.push_back(static_cast<uint8_t>(digit_value(digits[0])));
        else if (digits.size() % 2 != 0)
            cursor_.fail_at_position(begin, "an odd number of hex digits");
        else
            append_hex(digits, out_);
    }

    bool is_behind_group() const
    {
        const char c = cursor_.peek();
        return cursor_.at_end() || is_blank(c) || c == ',' || c == ':' ||
               (c == '-' && is_hex_digit(cursor_.peek(1))) || (c == '\\' && prefix_ == "\\x");
    }

    // With commas it may as well be decimal.
    bool may_be_alone() const
    {
        const bool before_blank = cursor_.at_end() || is_blank(cursor_.peek());
        return !prefix_.empty() || (after_blank_ && before_blank);
    }

    Cursor cursor_;
    std::vector<uint8_t> &out_;
    std::string_view prefix_;
    bool after_blank_ = true;
};

} // namespace

void append_hex(std::string_view digits, std::vector<uint8_t> &out)
{
    for (size_t i = 0; i + 1 < digits.size(); i += 2)
        out.push_back(
            static_cast<uint8_t>(digit_value(digits[i]) << 4 | digit_value(digits[i + 1])));
}

void read_hex(std::string_view input, std::vector<uint8_t> &out)
{
    HexReader(input, out).read();
}

} // namespace inspect
