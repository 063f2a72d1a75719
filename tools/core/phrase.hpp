// SPDX-License-Identifier: MIT
// Texts in several inks, tables of them, and lines of words: what views for people are made of.

#pragma once

#include "tools/core/ink.hpp"
#include "tools/core/text.hpp"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace inspect {

// What terminals are taken to have.
constexpr size_t kScreenWidth = 100;

// How many columns a text takes that is UTF-8.
size_t screen_width(std::string_view text);

// A text in several inks that knows how wide it is.
class Phrase {
public:
    Phrase() = default;
    Phrase(Ink ink, std::string_view text) { add(ink, text); }

    Phrase &add(Ink ink, std::string_view text);
    Phrase &add(const Phrase &other);

    bool empty() const { return width_ == 0; }
    size_t width() const { return width_; }
    std::string painted(const Palette &palette) const;

private:
    struct Piece {
        Ink ink;
        std::string text;
    };

    std::vector<Piece> pieces_;
    size_t width_ = 0;
};

enum class Side { left, right };

// Rows with aligned columns. A row may be shorter than the others.
class Table {
public:
    // `sides` says on which side the columns are flush; those that it leaves out are so on the
    // left.
    explicit Table(std::vector<Side> sides = {}) : sides_(std::move(sides)) {}

    void add(std::vector<Phrase> row);
    // Each line begins with `indent`; none ends with blanks.
    void write(std::string_view indent, const Palette &palette, const Sink &sink) const;

private:
    Side side_of(size_t column) const;

    std::vector<Side> sides_;
    std::vector<std::vector<Phrase>> rows_;
    std::vector<size_t> widths_;
};

// The words in lines of at most `width` columns, if each of them fits.
std::vector<std::string> lines_of_words(const std::vector<std::string_view> &words, size_t width,
                                        std::string_view separator = " ");
// The same for a text with blanks between its words.
std::vector<std::string> lines_of_text(std::string_view text, size_t width);

} // namespace inspect
