// SPDX-License-Identifier: MIT
#include "tools/core/phrase.hpp"

#include <algorithm>
#include <fmt/format.h>

namespace inspect {

size_t screen_width(std::string_view text)
{
    // All bytes of a character but the first have these two bits.
    return static_cast<size_t>(
        std::ranges::count_if(text, [](char c) { return (c & '\xC0') != '\x80'; }));
}

Phrase &Phrase::add(Ink ink, std::string_view text)
{
    if (text.empty())
        return *this;
    width_ += screen_width(text);
    pieces_.push_back({ink, std::string(text)});
    return *this;
}

Phrase &Phrase::add(const Phrase &other)
{
    width_ += other.width_;
    pieces_.insert(pieces_.end(), other.pieces_.begin(), other.pieces_.end());
    return *this;
}

std::string Phrase::painted(const Palette &palette) const
{
    std::string text;
    for (const Piece &piece : pieces_)
        text += palette.paint(piece.ink, piece.text);
    return text;
}

void Table::add(std::vector<Phrase> row)
{
    widths_.resize(std::max(widths_.size(), row.size()));
    for (size_t i = 0; i < row.size(); i++)
        widths_[i] = std::max(widths_[i], row[i].width());
    rows_.push_back(std::move(row));
}

Side Table::side_of(size_t column) const
{
    return column < sides_.size() ? sides_[column] : Side::left;
}

void Table::write(std::string_view indent, const Palette &palette, const Sink &sink) const
{
    constexpr size_t kGap = 2;
    for (const std::vector<Phrase> &row : rows_) {
        std::string line(indent);
        size_t blanks = 0; // not written until something follows
        for (size_t i = 0; i < row.size(); i++) {
            const size_t padding = widths_[i] - row[i].width();
            const bool is_flush_right = side_of(i) == Side::right;
            blanks += is_flush_right ? padding : 0;
            if (!row[i].empty()) {
                line.append(blanks, ' ').append(row[i].painted(palette));
                blanks = 0;
            }
            blanks += kGap + (is_flush_right ? 0 : padding);
        }
        sink(line + "\n");
    }
}

std::vector<std::string> lines_of_words(const std::vector<std::string_view> &words, size_t width,
                                        std::string_view separator)
{
    std::vector<std::string> lines;
    size_t used = 0;
    for (const std::string_view word : words) {
        const size_t wide = screen_width(word);
        if (lines.empty() || used + screen_width(separator) + wide > width) {
            lines.emplace_back();
            used = 0;
        } else {
            lines.back() += separator;
            used += screen_width(separator);
        }
        lines.back() += word;
        used += wide;
    }
    return lines;
}

std::vector<std::string> lines_of_text(std::string_view text, size_t width)
{
    std::vector<std::string_view> words;
    while (!text.empty()) {
        const size_t end = std::min(text.find(' '), text.size());
        if (end != 0)
            words.push_back(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return lines_of_words(words, width);
}

} // namespace inspect
