// SPDX-License-Identifier: MIT
#include "tools/core/excerpt.hpp"

#include "tools/core/values.hpp"

#include <algorithm>
#include <fmt/format.h>

namespace inspect {

namespace {

// Longer ones are shown from where they differ.
constexpr size_t kTextShown = 48;
constexpr size_t kBytesShown = 16;

size_t first_difference(Bytes before, Bytes after)
{
    return static_cast<size_t>(std::ranges::mismatch(before, after).in1 - before.begin());
}

// At the beginning of a character.
size_t first_difference(std::string_view before, std::string_view after)
{
    const auto found = std::ranges::mismatch(before, after);
    auto at = static_cast<size_t>(found.in1 - before.begin());
    const auto is_within = [at](std::string_view text) {
        return at < text.size() && (text[at] & '\xC0') == '\x80';
    };
    if (!is_within(before) && !is_within(after))
        return at;
    constexpr size_t kLongest = 4;
    size_t back = 1;
    while (back < std::min(at, kLongest) && (before[at - back] & '\xC0') == '\x80')
        back++;
    return at - std::min(at, back);
}

// A text or a byte string from a position on, cut short, with what is left out.
Phrase excerpt(std::string_view text, size_t from)
{
    const std::string_view rest = text.substr(from);
    const std::string_view part = fitting_part(rest, kTextShown);
    Phrase shown(Ink::text, quoted(part));
    if (part.size() != rest.size())
        shown.add(Ink::quiet, fmt::format(" and {} more", rest.size() - part.size()));
    return shown;
}

Phrase excerpt(Bytes bytes, size_t from)
{
    const Bytes rest = bytes.subspan(from);
    const Bytes part = rest.first(std::min(rest.size(), kBytesShown));
    Phrase shown = part.empty() ? Phrase(Ink::quiet, "nothing") : Phrase(Ink::value, hex(part));
    if (part.size() != rest.size())
        shown.add(Ink::quiet, fmt::format(" and {} more", rest.size() - part.size()));
    return shown;
}

// Where they differ only behind what would be shown of them, it is shown from there on.
template <typename Value>
Phrase differing(const Value &before, const Value &after, size_t shown)
{
    if (std::max(before.size(), after.size()) <= shown)
        return changed(excerpt(before, 0), excerpt(after, 0));
    const size_t from = first_difference(before, after);
    return Phrase(Ink::quiet, fmt::format("from byte {}: ", from))
        .add(changed(excerpt(before, from), excerpt(after, from)));
}

} // namespace

Phrase beginning(std::string_view text)
{
    return excerpt(text, 0);
}

Phrase beginning(Bytes bytes)
{
    return excerpt(bytes, 0);
}

Phrase changed(const Phrase &before, const Phrase &after)
{
    return Phrase(before).add(Ink::quiet, " -> ").add(after);
}

Phrase changed(std::string_view before, std::string_view after)
{
    return differing(before, after, kTextShown);
}

Phrase changed(Bytes before, Bytes after)
{
    return differing(before, after, kBytesShown);
}

} // namespace inspect
