// SPDX-License-Identifier: MIT
#include "tools/core/text.hpp"

#include <algorithm>
#include <fmt/format.h>
#include <numeric>

namespace inspect {

size_t character_size(std::string_view text)
{
    const auto byte = [text](size_t i) { return static_cast<uint8_t>(text[i]); };
    const uint8_t first = byte(0);
    if (first < 0x80)
        return 1;
    const size_t size = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
    if (first < 0xC2 || first > 0xF4 || size > text.size())
        return 0;
    for (size_t i = 1; i < size; i++)
        if ((byte(i) & 0xC0) != 0x80)
            return 0;
    const uint8_t second = byte(1);
    const bool overlong = (first == 0xE0 && second < 0xA0) || (first == 0xF0 && second < 0x90);
    const bool surrogate = first == 0xED && second > 0x9F;
    const bool too_large = first == 0xF4 && second > 0x8F;
    return overlong || surrogate || too_large ? 0 : size;
}

namespace {

std::string escaped(char c)
{
    switch (c) {
    case '"':
        return "\\\"";
    case '\\':
        return "\\\\";
    case '\n':
        return "\\n";
    case '\r':
        return "\\r";
    case '\t':
        return "\\t";
    default:
        return fmt::format("\\x{:02x}", static_cast<uint8_t>(c));
    }
}

// Marks that turn the direction of writing, and with it the order in which a terminal shows a line.
bool is_direction_mark(std::string_view character)
{
    if (character.size() != 3)
        return false;
    const auto last = static_cast<uint8_t>(character[2]);
    if (character.starts_with("\xE2\x80"))
        return last == 0x8E || last == 0x8F || (last >= 0xAA && last <= 0xAE);
    return character.starts_with("\xE2\x81") && last >= 0xA6 && last <= 0xA9;
}

// Control characters of the second block are two bytes in UTF-8, and terminals obey them, too.
bool is_shown(std::string_view character)
{
    if (character.size() == 1)
        return character[0] >= ' ' && character[0] != '"' && character[0] != '\\' &&
               character[0] != 0x7F;
    const bool is_control = character[0] == '\xC2' && static_cast<uint8_t>(character[1]) < 0xA0;
    return !is_control && !is_direction_mark(character);
}

// How many characters have to be inserted, deleted, replaced or swapped with their neighbour.
size_t distance(std::string_view a, std::string_view b)
{
    std::vector<size_t> before(b.size() + 1);
    std::vector<size_t> last(b.size() + 1);
    std::vector<size_t> row(b.size() + 1);
    std::iota(last.begin(), last.end(), size_t{0});
    for (size_t i = 1; i <= a.size(); i++) {
        row[0] = i;
        for (size_t j = 1; j <= b.size(); j++) {
            row[j] = std::min({last[j] + 1, row[j - 1] + 1, last[j - 1] + (a[i - 1] != b[j - 1])});
            if (i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1])
                row[j] = std::min(row[j], before[j - 2] + 1);
        }
        before.swap(last);
        last.swap(row);
    }
    return last[b.size()];
}

} // namespace

std::string quoted(std::string_view text)
{
    std::string out = "\"";
    while (!text.empty()) {
        const size_t size = character_size(text);
        if (size != 0 && is_shown(text.substr(0, size))) {
            out += text.substr(0, size);
            text.remove_prefix(size);
            continue;
        }
        out += escaped(text[0]);
        text.remove_prefix(1);
    }
    return out + "\"";
}

bool is_utf8(std::string_view text)
{
    while (!text.empty()) {
        const size_t size = character_size(text);
        if (size == 0)
            return false;
        text.remove_prefix(size);
    }
    return true;
}

std::string hex(Bytes bytes, std::string_view separator)
{
    return fmt::format("{:02x}", fmt::join(bytes, separator));
}

std::string counted(uint64_t count, std::string_view noun)
{
    return fmt::format("{} {}{}", count, noun, count == 1 ? "" : "s");
}

std::string_view nearest(std::string_view wanted, const std::vector<std::string_view> &candidates)
{
    // A third of the letters may be wrong: beyond that, a guess is more of a puzzle than a help.
    // Names that long are nobody's, and comparing them takes long.
    constexpr size_t kLongest = 200;
    if (wanted.size() > kLongest)
        return {};
    size_t least = std::max<size_t>(wanted.size(), 3) / 3 + 1;
    std::string_view best;
    for (const std::string_view candidate : candidates) {
        const size_t away = distance(wanted, candidate);
        if (away < least) {
            least = away;
            best = candidate;
        }
    }
    return best;
}

std::string did_you_mean(std::string_view wanted, const std::vector<std::string_view> &candidates)
{
    const std::string_view best = nearest(wanted, candidates);
    return best.empty() ? std::string{} : fmt::format(" (did you mean {}?)", best);
}

} // namespace inspect
