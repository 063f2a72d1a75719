// SPDX-License-Identifier: MIT
#include "tools/core/output.hpp"

#include "tools/core/input_text.hpp"

#include <algorithm>
#include <fmt/format.h>
#include <functional>

namespace inspect {

namespace {

constexpr size_t kHexLine = 32;
constexpr size_t kArrayLine = 12;
constexpr size_t kShownOfPiece = 16;

// Calls `write` with each line's bytes.
void write_lines(Bytes bytes, size_t length, const std::function<void(Bytes)> &write)
{
    for (size_t i = 0; i < bytes.size(); i += length)
        write(bytes.subspan(i, std::min(length, bytes.size() - i)));
}

// Without blanks, as one word when it is short: so it goes into command lines, too.
void write_hex(Bytes bytes, const Sink &sink)
{
    if (bytes.empty())
        sink("\n");
    write_lines(bytes, kHexLine, [&sink](Bytes line) { sink(hex(line, "") + "\n"); });
}

bool is_keyword(std::string_view name)
{
    static constexpr std::string_view keywords[] = {
        "auto",    "break",  "case",     "char",   "const",    "continue", "default",
        "do",      "double", "else",     "enum",   "extern",   "float",    "for",
        "goto",    "if",     "inline",   "int",    "long",     "register", "restrict",
        "return",  "short",  "signed",   "sizeof", "static",   "struct",   "switch",
        "typedef", "union",  "unsigned", "void",   "volatile", "while",
    };
    return std::ranges::find(keywords, name) != std::end(keywords);
}

std::string identifier(std::string_view name)
{
    std::string out(name);
    std::ranges::replace_if(
        out, [](char c) { return !is_name_character(c); }, '_');
    if (out.empty() || is_decimal_digit(out[0]))
        out.insert(0, "message");
    return is_keyword(out) ? out + '_' : out;
}

// An array without elements is not C. A literal is: the zero byte behind it is not counted.
void write_c_array(Bytes bytes, const std::string &name, const Sink &sink)
{
    if (bytes.empty()) {
        sink(fmt::format("const uint8_t {}[] = \"\";\n", name));
    } else {
        sink(fmt::format("const uint8_t {}[] = {{\n", name));
        write_lines(bytes, kArrayLine, [&sink](Bytes line) {
            sink(fmt::format("    {:#04x},\n", fmt::join(line, ", ")));
        });
        sink("};\n");
    }
    sink(fmt::format("const uint32_t {}_length = {};\n", name, bytes.size()));
}

bool is_within(const std::vector<uint8_t> &buffer, const WireSegment &segment)
{
    // Pointers into different arrays; only this comparison is defined for them.
    const std::less_equal<> not_behind;
    return not_behind(buffer.data(), segment.data) &&
           not_behind(segment.data + segment.length, buffer.data() + buffer.size());
}

std::string bytes_of(const WireSegment &segment)
{
    const Bytes bytes(segment.data, segment.length);
    if (bytes.size() <= kShownOfPiece)
        return hex(bytes);
    return fmt::format("{} and {} more", hex(bytes.first(kShownOfPiece)),
                       bytes.size() - kShownOfPiece);
}

std::string place_of(const Gathered &gathered, const WireSegment &segment)
{
    if (!is_within(gathered.buffer, segment))
        return "in place";
    return fmt::format("buffer +{}", segment.data - gathered.buffer.data());
}

} // namespace

void write_bytes(Bytes bytes, OutputFormat format, std::string_view name, const Sink &sink)
{
    switch (format) {
    case OutputFormat::raw:
        sink({reinterpret_cast<const char *>(bytes.data()), bytes.size()});
        break;
    case OutputFormat::hex:
        write_hex(bytes, sink);
        break;
    case OutputFormat::c_array:
        write_c_array(bytes, identifier(name), sink);
        break;
    }
}

Gathered gather(const Record &record, bool in_place)
{
    const auto encode = record.type().operations.encode;
    const std::byte *const from = record.view().address();
    const uint32_t flags = in_place ? WIRE_FLAG_BYTES_IN_PLACE : 0;
    uint32_t count = 0;
    const uint32_t length = encode(from, nullptr, 0, nullptr, &count, flags);
    Gathered gathered{std::vector<uint8_t>(length), std::vector<WireSegment>(count)};
    encode(from, gathered.buffer.data(), length, gathered.segments.data(), &count, flags);
    return gathered;
}

void write_segments(const Gathered &gathered, const Sink &sink)
{
    size_t widest_place = 0;
    uint32_t longest = 0;
    for (const WireSegment &segment : gathered.segments) {
        widest_place = std::max(widest_place, place_of(gathered, segment).size());
        longest = std::max(longest, segment.length);
    }
    const size_t last = gathered.segments.empty() ? 0 : gathered.segments.size() - 1;
    const size_t index_width = fmt::formatted_size("{}", last);
    const size_t length_width = fmt::formatted_size("{}", longest);
    for (size_t i = 0; i < gathered.segments.size(); i++) {
        const WireSegment &segment = gathered.segments[i];
        sink(fmt::format("{:>{}}  {:<{}}  {:>{}} {:<5}  {}\n", i, index_width,
                         place_of(gathered, segment), widest_place, segment.length, length_width,
                         segment.length == 1 ? "byte" : "bytes", bytes_of(segment)));
    }
}

} // namespace inspect
