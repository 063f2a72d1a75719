// SPDX-License-Identifier: MIT
#include "tools/core/json_output.hpp"

#include "tools/core/base64.hpp"

#include <algorithm>
#include <fmt/format.h>

namespace inspect {

namespace {

constexpr size_t kPiece = size_t{16} << 10;
// Of byte strings; a multiple of three, so that base64 can go on behind it.
constexpr size_t kBytesAtOnce = size_t{3} << 10;
constexpr std::string_view kReplacement = "\xEF\xBF\xBD";

bool is_plain(char c)
{
    return c >= ' ' && c < 0x7F && c != '"' && c != '\\';
}

std::string escape(uint8_t code)
{
    switch (code) {
    case '"':
        return "\\\"";
    case '\\':
        return "\\\\";
    case '\b':
        return "\\b";
    case '\f':
        return "\\f";
    case '\n':
        return "\\n";
    case '\r':
        return "\\r";
    case '\t':
        return "\\t";
    default:
        return fmt::format("\\u{:04x}", code);
    }
}

// Of the second block, which are two bytes in UTF-8.
bool is_control(std::string_view character)
{
    return character[0] == '\xC2' && static_cast<uint8_t>(character[1]) < 0xA0;
}

} // namespace

void JsonOutput::open(char bracket)
{
    put({&bracket, 1});
    depth_++;
    is_empty_ = true;
}

void JsonOutput::close(char bracket)
{
    depth_--;
    if (!is_empty_)
        put_line_break();
    put({&bracket, 1});
    is_empty_ = false;
}

void JsonOutput::next()
{
    if (!is_empty_)
        put(",");
    is_empty_ = false;
    put_line_break();
}

void JsonOutput::next(std::string_view name)
{
    next();
    text(name);
    put(one_line_ ? ":" : ": ");
}

void JsonOutput::text(std::string_view value)
{
    put("\"");
    for (put_plain(value); !value.empty(); put_plain(value))
        put_character(value);
    put("\"");
}

void JsonOutput::base64(Bytes value)
{
    put("\"");
    for (size_t at = 0; at < value.size(); at += kBytesAtOnce) {
        append_base64(buffer_, value.subspan(at, std::min(kBytesAtOnce, value.size() - at)));
        put({});
    }
    put("\"");
}

void JsonOutput::hex(Bytes value)
{
    put("\"");
    for (size_t at = 0; at < value.size(); at += kBytesAtOnce)
        put(inspect::hex(value.subspan(at, std::min(kBytesAtOnce, value.size() - at)), ""));
    put("\"");
}

void JsonOutput::finish()
{
    put("\n");
    flush();
}

void JsonOutput::put(std::string_view piece)
{
    if (piece.size() >= kPiece) {
        flush();
        sink_(piece);
        return;
    }
    buffer_ += piece;
    if (buffer_.size() >= kPiece)
        flush();
}

void JsonOutput::put_line_break()
{
    if (one_line_)
        return;
    put("\n");
    for (size_t i = 0; i < depth_; i++)
        put("  ");
}

// Up to the first character that needs care, which most texts do not have.
void JsonOutput::put_plain(std::string_view &text)
{
    const auto *const end = std::ranges::find_if_not(text, is_plain);
    const auto size = static_cast<size_t>(end - text.begin());
    put(text.substr(0, size));
    text.remove_prefix(size);
}

void JsonOutput::put_character(std::string_view &text)
{
    const size_t size = character_size(text);
    if (size == 0)
        put(kReplacement);
    else if (size == 1)
        put(escape(static_cast<uint8_t>(text[0])));
    else if (is_control(text))
        put(escape(static_cast<uint8_t>(text[1])));
    else
        put(text.substr(0, size));
    text.remove_prefix(std::max<size_t>(size, 1));
}

void JsonOutput::flush()
{
    if (!buffer_.empty())
        sink_(buffer_);
    buffer_.clear();
}

} // namespace inspect
