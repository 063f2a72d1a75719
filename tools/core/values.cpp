// SPDX-License-Identifier: MIT
#include "tools/core/values.hpp"

#include <algorithm>
#include <fmt/format.h>

namespace inspect {

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

size_t unit_size(std::string_view text)
{
    constexpr size_t kLongest = 4;
    const auto continues = [text](size_t i) { return (text[i] & '\xC0') == '\x80'; };
    size_t size = 1;
    if (static_cast<uint8_t>(text[0]) < 0xC0)
        return size;
    while (size < std::min(text.size(), kLongest) && continues(size))
        size++;
    return size;
}

std::string_view fitting_part(std::string_view text, size_t width)
{
    constexpr size_t kQuotes = 2;
    size_t used = kQuotes;
    size_t end = 0;
    while (end < text.size()) {
        const size_t size = unit_size(text.substr(end));
        used += screen_width(quoted(text.substr(end, size))) - kQuotes;
        if (used > width && end != 0)
            break;
        end += size;
    }
    return text.substr(0, end);
}

} // namespace inspect
