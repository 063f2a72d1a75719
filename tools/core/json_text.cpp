// SPDX-License-Identifier: MIT
#include "tools/core/json_text.hpp"

#include "tools/core/text.hpp"

#include <algorithm>
#include <fmt/format.h>
#include <nlohmann/json.hpp>

namespace inspect {

namespace {

bool is_json_blank(char c)
{
    return c == ' ' || c == '\n' || c == '\r' || c == '\t';
}

// Of a number, or of true, false and null.
bool is_of_word(char c)
{
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '.' ||
           c == '+' || c == '-';
}

// In characters, not bytes.
std::string place(std::string_view json, size_t offset)
{
    const std::string_view before = json.substr(0, offset);
    const auto lines = std::ranges::count(before, '\n');
    const std::string_view line = before.substr(before.rfind('\n') + 1);
    const auto columns = std::ranges::count_if(
        line, [](char c) { return (static_cast<uint8_t>(c) & 0xC0) != 0x80; });
    return fmt::format("line {}, column {}", lines + 1, columns + 1);
}

struct Token {
    size_t start;
    size_t last; // its last character that was read
    bool in_string;
};

Token token_at(std::string_view json, size_t characters_read)
{
    JsonCharacters here(json);
    const char *start = here.position();
    for (size_t i = 1; i < characters_read && !here.at_end(); i++) {
        const char before = *here;
        ++here;
        const bool goes_on = !here.at_end() && is_of_word(before) && is_of_word(*here);
        if (!here.in_string() && !goes_on)
            start = here.position();
    }
    return {static_cast<size_t>(start - json.data()),
            static_cast<size_t>(here.position() - json.data()), here.in_string()};
}

std::string_view text_of(std::string_view json, const Token &token)
{
    return json.substr(token.start, token.last + 1 - token.start);
}

// Of one in which the parser has stopped.
std::string_view fault_of_string(std::string_view read)
{
    if (!is_utf8(read))
        return "a string that is not UTF-8";
    if (static_cast<uint8_t>(read.back()) < ' ')
        return "a control character in a string, where it has to be escaped";
    return "an escape that JSON does not have";
}

// What to blame: a word that is none is noticed only at the character behind it.
Token blamed(std::string_view json, Token token)
{
    size_t start = token.start;
    while (start > 0 && is_of_word(json[start - 1]))
        start--;
    const std::string_view before = json.substr(start, token.start - start);
    if (!before.empty() && !nlohmann::json::accept(before))
        return {start, token.start - 1, false};
    token.last += std::max<size_t>(character_size(json.substr(token.last)), 1) - 1;
    while (is_of_word(json[token.last]) && token.last + 1 < json.size() &&
           is_of_word(json[token.last + 1]))
        token.last++;
    return token;
}

} // namespace

JsonCharacters &JsonCharacters::operator++()
{
    const char before = *at_++;
    if (is_escaped_) {
        is_escaped_ = false;
    } else if (in_string_) {
        is_escaped_ = before == '\\';
        in_string_ = before != '"';
    } else if (is_json_blank(before)) {
        at_ = std::find_if_not(at_, end_, is_json_blank);
    } else {
        in_string_ = before == '"';
    }
    return *this;
}

std::string json_fault(std::string_view json, size_t characters_read)
{
    const Token token = token_at(json, characters_read);
    if (token.last == json.size())
        return fmt::format("{}: the text ends too early", place(json, token.last));
    if (!token.in_string) {
        const Token whole = blamed(json, token);
        return fmt::format("{}: unexpected {}", place(json, whole.start),
                           excerpt(text_of(json, whole)));
    }
    const std::string_view read = text_of(json, token);
    if (!nlohmann::json::accept(read))
        return fmt::format("{}: {}", place(json, token.last), fault_of_string(read));
    return fmt::format("{}: unexpected string {}", place(json, token.start),
                       excerpt(read.substr(1, read.size() - 2)));
}

std::string json_surplus(std::string_view json, size_t characters_read)
{
    const Token token = token_at(json, characters_read);
    return fmt::format("{}: there is more behind the end", place(json, token.start));
}

std::string json_zero_byte(std::string_view json, size_t offset)
{
    return fmt::format("{}: a zero byte", place(json, offset));
}

std::string excerpt(std::string_view text)
{
    constexpr size_t kMost = 40;
    if (text.size() <= kMost)
        return quoted(text);
    size_t size = kMost;
    while (size > 0 && (static_cast<uint8_t>(text[size]) & 0xC0) == 0x80)
        size--;
    return quoted(text.substr(0, size)) + "...";
}

} // namespace inspect
