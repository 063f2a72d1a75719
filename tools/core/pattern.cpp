// SPDX-License-Identifier: MIT
#include "tools/core/pattern.hpp"

#include <algorithm>
#include <array>
#include <fmt/format.h>
#include <string>

namespace inspect {

namespace {

// Of ASCII letters; whatever the locale.
bool is_same_letter(char a, char b)
{
    const auto lower = [](char c) {
        return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    };
    return lower(a) == lower(b);
}

bool is_within(std::string_view part, std::string_view text)
{
    return std::search(text.begin(), text.end(), part.begin(), part.end(), is_same_letter) !=
               text.end() ||
           part.empty();
}

} // namespace

bool fits_whole(std::string_view pattern, std::string_view text)
{
    size_t at = 0;
    size_t star = std::string_view::npos; // the last one met; it stands for text up to `star_end`
    size_t star_end = 0;
    for (size_t i = 0; i < text.size();) {
        const bool is_star = at < pattern.size() && pattern[at] == '*';
        if (is_star) {
            star = at++;
            star_end = i;
        } else if (at < pattern.size() &&
                   (pattern[at] == '?' || is_same_letter(pattern[at], text[i]))) {
            at++;
            i++;
        } else if (star != std::string_view::npos) {
            at = star + 1;
            i = ++star_end;
        } else {
            return false;
        }
    }
    return pattern.find_first_not_of('*', at) == std::string_view::npos;
}

bool fits(std::string_view pattern, const RecordType &type)
{
    const std::string in_package = fmt::format("tarn.{}", type.message_name());
    const std::array<std::string_view, 4> names = {type.short_name(), type.message_name(),
                                                   type.name, in_package};
    const bool is_whole = pattern.find_first_of("*?") != std::string_view::npos;
    const auto matches = [=](std::string_view name) {
        return is_whole ? fits_whole(pattern, name) : is_within(pattern, name);
    };
    return std::ranges::any_of(names, matches) || (!is_whole && matches(type.comment));
}

} // namespace inspect
