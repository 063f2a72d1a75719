// SPDX-License-Identifier: MIT
#include "tools/core/values.hpp"

#include <algorithm>
#include <fmt/format.h>

namespace inspect {

namespace {

constexpr size_t kQuotes = 2;

bool is_letter_or_digit(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
}

// Of a character, or of a byte that belongs to none.
size_t quoted_width(std::string_view unit)
{
    const bool is_plain = unit.size() == 1 && (unit[0] == ' ' || is_letter_or_digit(unit[0]));
    return is_plain ? 1 : screen_width(quoted(unit)) - kQuotes;
}

} // namespace

Phrase number_value(Kind kind, uint64_t number)
{
    if (kind == Kind::boolean) {
        Phrase truth(Ink::value, number != 0 ? "true" : "false");
        return number > 1 ? truth.add(Ink::note, fmt::format(" (byte {:#04x})", number)) : truth;
    }
    constexpr uint64_t kShortInBoth = 256;
    Phrase value(Ink::value, fmt::format("{}", number));
    return number < kShortInBoth ? value : value.add(Ink::quiet, fmt::format(" ({:#x})", number));
}

Phrase text_value(const char *text)
{
    return text ? Phrase(Ink::text, quoted(text)) : Phrase(Ink::note, "(null)");
}

std::string_view fitting_part(std::string_view text, size_t width)
{
    size_t used = kQuotes;
    size_t end = 0;
    while (end < text.size()) {
        const size_t size = std::max<size_t>(1, character_size(text.substr(end)));
        used += quoted_width(text.substr(end, size));
        if (used > width && end != 0)
            break;
        end += size;
    }
    return text.substr(0, end);
}

} // namespace inspect
