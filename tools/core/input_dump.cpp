// SPDX-License-Identifier: MIT
// Dumps with an offset in front of each line, and often with the characters behind the bytes.
#include "tools/core/error.hpp"
#include "tools/core/input_dump_line.hpp"
#include "tools/core/input_formats.hpp"

#include <array>
#include <fmt/format.h>
#include <optional>

namespace inspect {

namespace {

constexpr uint64_t kMostRepeated = uint64_t{64} << 20;

// Nothing where the digits are none of this radix.
std::optional<uint64_t> value_of(std::string_view digits, uint32_t radix)
{
    uint64_t value = 0;
    for (const char c : digits) {
        const uint32_t digit = digit_value(c);
        if (digit >= radix)
            return {};
        value = value * radix + digit;
    }
    return value;
}

class DumpReader {
public:
    DumpReader(std::string_view input, uint32_t radix, std::vector<uint8_t> &out)
        : cursor_(input), radix_(radix), out_(out), begin_(out.size())
    {}

    void read()
    {
        while (!cursor_.at_end())
            read_line();
        if (star_)
            cursor_.fail_at_position(*star_, "a * without an offset behind it");
    }

    void read_first_line()
    {
        cursor_.skip_blanks();
        read_line();
    }

    // A colon behind an offset or bars around characters, as nothing else has them.
    bool has_mark() const { return has_colon_ || has_bars_; }
    // Offsets that count what is before them tell a dump from groups of hex digits. Without these,
    // an offset of 0 in front of bytes does.
    bool is_certain() const { return has_mark() || lines_ > 1 || (base_ == 0 && word_size_ == 1); }

    bool is_too_long() const { return is_too_long_; }

private:
    size_t count() const { return out_.size() - begin_; }

    void read_line()
    {
        Cursor line = cursor_.take_line();
        line.skip_blanks();
        if (line.at_end())
            return;
        if (line.peek() == '*')
            read_star(line);
        else
            read_bytes(line);
    }

    void read_star(Cursor line)
    {
        if (last_line_ == 0)
            line.fail("a * without a line before it");
        star_ = line.position();
        line.skip();
        line.skip_blanks();
        if (!line.at_end())
            line.fail("something behind a *");
    }

    void read_bytes(Cursor line)
    {
        const DumpOffset offset = take_offset(line);
        reach(offset, line);
        DumpLineReader reader(line, offset.has_colon, out_);
        reader.read();
        has_colon_ = has_colon_ || offset.has_colon;
        has_bars_ = has_bars_ || reader.has_bars();
        lines_++;
        last_line_ = reader.count();
        if (last_line_ != 0)
            word_size_ = reader.word_size();
    }

    // Gets to where the line says that it is.
    void reach(const DumpOffset &offset, const Cursor &line)
    {
        const std::optional<uint64_t> value = value_of(offset.digits, radix_);
        if (!value)
            line.fail_at_position(offset.position, "an offset of hex digits among others");
        if (lines_ == 0)
            base_ = *value;
        const uint64_t expected = base_ + count();
        if (*value == expected && !star_)
            return;
        if (star_ && *value >= expected)
            repeat(*value - expected, offset, line);
        else if (*value < expected && expected - *value < word_size_)
            cut(static_cast<size_t>(expected - *value));
        else
            line.fail_at_position(
                offset.position,
                fmt::format("the offset {}, where 0x{:x} is next", offset.digits, expected));
    }

    void repeat(uint64_t length, const DumpOffset &offset, const Cursor &line)
    {
        is_too_long_ = length > kMostRepeated - repeated_;
        if (is_too_long_)
            line.fail_at_position(offset.position, "more than 64 MiB of repeated lines");
        // Only hexdump, whose offsets are hex, has part of a line in it.
        if (radix_ != 16 && length % last_line_ != 0)
            line.fail_at_position(offset.position, "repeated lines that do not end here");
        repeated_ += length;
        for (uint64_t i = 0; i < length; i++)
            out_.push_back(out_[out_.size() - last_line_]);
        star_.reset();
    }

    // What fills the last word is not of the message.
    void cut(size_t length)
    {
        out_.resize(out_.size() - length);
        word_size_ = 1;
    }

    Cursor cursor_;
    uint32_t radix_;
    std::vector<uint8_t> &out_;
    size_t begin_;
    uint64_t base_ = 0;
    uint64_t repeated_ = 0;
    size_t lines_ = 0;
    size_t last_line_ = 0; // how many bytes it has
    size_t word_size_ = 1;
    std::optional<size_t> star_; // where it is, until an offset tells what it stands for
    bool has_colon_ = false;
    bool has_bars_ = false;
    bool is_too_long_ = false;
};

// Seven digits in front of bytes are from od, which counts in octal when it is not told otherwise.
std::array<uint32_t, 3> likely_radices(std::string_view input)
{
    Cursor cursor(input);
    cursor.skip_blanks();
    size_t begin = cursor.position();
    cursor.skip_hex_digits();
    const bool is_from_od = cursor.position() - begin == 7;
    cursor.skip_blanks();
    begin = cursor.position();
    cursor.skip_hex_digits();
    if (is_from_od && cursor.position() - begin == 2)
        return {8, 10, 16};
    return {16, 10, 8};
}

enum class Outcome { wrong, read, certain };

// With the first radix in which all offsets are right. One in which lines are repeated too often is
// the right one, too, though nothing comes of it.
Outcome try_radices(std::string_view input, std::vector<uint8_t> &out)
{
    const size_t begin = out.size();
    for (const uint32_t radix : likely_radices(input)) {
        DumpReader reader(input, radix, out);
        try {
            reader.read();
            return reader.is_certain() ? Outcome::certain : Outcome::read;
        } catch (const Error &) {
            if (reader.is_too_long())
                throw;
            out.resize(begin);
        }
    }
    return Outcome::wrong;
}

} // namespace

void read_dump(std::string_view input, std::vector<uint8_t> &out)
{
    // What is wrong is told for the likeliest.
    if (try_radices(input, out) == Outcome::wrong)
        DumpReader(input, likely_radices(input)[0], out).read();
}

bool is_dump(std::string_view input)
{
    try {
        std::vector<uint8_t> out;
        return try_radices(input, out) == Outcome::certain && !out.empty();
    } catch (const Error &) {
        return true;
    }
}

bool begins_like_dump(std::string_view input)
{
    try {
        std::vector<uint8_t> out;
        DumpReader reader(input, 16, out);
        reader.read_first_line();
        return reader.has_mark() && !out.empty();
    } catch (const Error &) {
        return false;
    }
}

} // namespace inspect
