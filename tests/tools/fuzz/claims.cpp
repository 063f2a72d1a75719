// SPDX-License-Identifier: MIT
#include "tests/tools/fuzz/claims.hpp"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace inspect {

namespace {

bool is_control(char c)
{
    return (static_cast<uint8_t>(c) < ' ' && c != '\n') || c == 0x7F;
}

// Two bytes, of which the second is below 0xA0, are control characters in UTF-8.
bool has_second_block(std::string_view text)
{
    const auto first = std::ranges::adjacent_find(text, [](char a, char b) {
        return a == '\xC2' && static_cast<uint8_t>(b) >= 0x80 && static_cast<uint8_t>(b) < 0xA0;
    });
    return first != text.end();
}

} // namespace

void require(bool claim, const char *what)
{
    if (claim)
        return;
    std::fprintf(stderr, "WRONG: %s\n", what);
    std::abort();
}

void require_tame(std::string_view text)
{
    require(std::ranges::none_of(text, is_control), "a text has no control character");
    require(is_utf8(text), "a text is UTF-8");
    require(!has_second_block(text), "a text has no control character of two bytes");
}

void require_message(std::string_view text)
{
    require_tame(text);
    require(!text.empty() && text.find('\n') == text.npos, "an error is one line");
}

Sink TameOutput::sink()
{
    return [this](std::string_view text) {
        require_tame(text);
        size_ += text.size();
    };
}

} // namespace inspect
