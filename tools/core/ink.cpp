// SPDX-License-Identifier: MIT
#include "tools/core/ink.hpp"

namespace inspect {

namespace {

// Of the sixteen that every terminal has, so that its theme holds.
std::string_view start_of(Ink ink)
{
    switch (ink) {
    case Ink::quiet:
        return "\033[90m";
    case Ink::heading:
        return "\033[1m";
    case Ink::tag:
        return "\033[34m";
    case Ink::length:
        return "\033[33m";
    case Ink::value:
        return "\033[32m";
    case Ink::text:
        return "\033[36m";
    case Ink::name:
        return "\033[1m";
    case Ink::note:
        return "\033[35m";
    case Ink::error:
        return "\033[1;31m";
    case Ink::plain:
        break;
    }
    return {};
}

} // namespace

std::string Palette::paint(Ink ink, std::string_view text) const
{
    const std::string_view start = coloured_ ? start_of(ink) : std::string_view{};
    if (start.empty() || text.empty())
        return std::string(text);
    return std::string(start).append(text).append("\033[0m");
}

} // namespace inspect
