// SPDX-License-Identifier: MIT
#include "tools/core/dump.hpp"

#include "tools/core/walk.hpp"

#include <algorithm>
#include <fmt/format.h>

namespace inspect {

namespace {

constexpr size_t kBytesInLine = 8;
constexpr size_t kLinesOfValue = 4; // then it is cut short
constexpr size_t kCharactersOfText = 48;
constexpr size_t kGuideWidth = 2; // for each record around a piece
constexpr size_t kKindWidth = 8;
// Beyond that many, the progress is told once.
constexpr uint32_t kPiecesAtATime = 4096;

size_t nesting(const RecordType &type)
{
    size_t deepest = 0;
    for (const Member &member : type.members)
        if (member.child)
            deepest = std::max(deepest, 1 + nesting(*member.child));
    return deepest;
}

// Of the paths in a record of this type, with list indices of two digits.
size_t longest_path(const RecordType &type)
{
    size_t longest = std::string_view("(unknown)").size();
    for (const Member &member : type.members) {
        const size_t own = member.name.size() + (is_list(member.kind) ? 4 : 0);
        longest = std::max(longest, own + (member.child ? 1 + longest_path(*member.child) : 0));
    }
    return longest;
}

std::string spaces(size_t count)
{
    return std::string(count, ' ');
}

std::string padded(std::string_view text, size_t width)
{
    return std::string(text) + spaces(width - std::min(width, text.size()));
}

std::string_view wire_type_name(uint32_t wire_type)
{
    static constexpr std::string_view names[] = {"varint",    "64 bits", "length", "group begin",
                                                 "group end", "32 bits", "type 6", "type 7"};
    return names[wire_type];
}

Ink ink_of(const Piece &piece)
{
    switch (piece.part) {
    case Part::tag:
        return Ink::tag;
    case Part::length:
        return Ink::length;
    case Part::value:
        return piece.member->kind == Kind::string || piece.member->kind == Kind::repeated_string
                   ? Ink::text
                   : Ink::value;
    case Part::skipped:
        return Ink::quiet;
    case Part::unread:
        break;
    }
    return Ink::error;
}

std::string text_value(Bytes bytes)
{
    const std::string_view text(reinterpret_cast<const char *>(bytes.data()), bytes.size());
    if (text.size() <= kCharactersOfText)
        return quoted(text);
    return fmt::format("{}... {}", quoted(text.substr(0, kCharactersOfText)),
                       counted(text.size(), "byte"));
}

std::string number_value(const Piece &piece)
{
    if (piece.member->kind == Kind::boolean)
        return piece.value != 0 ? "true" : "false";
    constexpr uint64_t kPlain = 256;
    return piece.value < kPlain ? fmt::format("{}", piece.value)
                                : fmt::format("{0}  {0:#x}", piece.value);
}

std::string value_of(const Piece &piece)
{
    if (piece.member->wire_type() == 0)
        return number_value(piece);
    if (piece.member->kind == Kind::bytes)
        return counted(piece.bytes.size(), "byte");
    return text_value(piece.bytes);
}

std::string length_of(const Piece &piece)
{
    std::string text = fmt::format("{}", piece.value);
    if (piece.member && piece.member->child)
        text.append("  ").append(piece.member->child->short_name());
    else if (piece.member && piece.value == 0)
        text += "  empty";
    return text;
}

class Dump : public Visitor {
public:
    Dump(const RecordType &type, size_t size, const DumpOptions &options, const Sink &sink,
         const Progress &progress)
        : size_(size), options_(options), sink_(sink), progress_(progress),
          offset_width_(size > 0xFFFFFF ? 8 : 6),
          bytes_width_(kBytesInLine * 3 + kGuideWidth * nesting(type)),
          path_width_(std::clamp<size_t>(longest_path(type), 12, 30))
    {}

    void heading(const RecordType &type, const Verdict &verdict)
    {
        const bool good = verdict.result == WIRE_OK;
        const Palette &palette = options_.palette;
        sink_(fmt::format(
            "{}  {}  {}\n\n", palette.paint(Ink::heading, type.short_name()),
            counted(size_, "byte"),
            palette.paint(good ? Ink::value : Ink::error, result_name(verdict.result))));
        if (size_ != 0)
            sink_(palette.paint(Ink::quiet, fmt::format("{}  {}  {}  {}  value",
                                                        padded("offset", offset_width_),
                                                        padded("bytes", bytes_width_),
                                                        padded("field", path_width_),
                                                        padded("kind", kKindWidth))) +
                  "\n");
    }

    bool visit(const Piece &piece) override
    {
        const size_t indent = piece.depth * kGuideWidth;
        const size_t first = std::min(kBytesInLine, piece.bytes.size());
        std::string line = offset(piece.offset) + "  " + guides(piece.depth) +
                           options_.palette.paint(ink_of(piece), hex(piece.bytes.first(first))) +
                           spaces(bytes_width_ - indent - (first == 0 ? 0 : first * 3 - 1)) + "  " +
                           described(piece);
        sink_(line + "\n");
        if (piece.notes.any())
            sink_(noted(piece, first));
        if (piece.bytes.size() > first)
            continued(piece, first);
        tell_progress(piece.offset);
        return true;
    }

    void ending(const Verdict &verdict)
    {
        if (verdict.result == WIRE_OK && verdict.reason.empty())
            return;
        const std::string text = verdict.result == WIRE_OK ? verdict.reason : verdict.text();
        sink_("\n" + options_.palette.paint(Ink::error, text) + "\n");
    }

private:
    std::string offset(size_t at) const
    {
        return options_.palette.paint(Ink::quiet, fmt::format("{:0{}x}", at, offset_width_));
    }

    std::string guides(size_t depth) const
    {
        std::string text;
        for (size_t i = 0; i < depth; i++)
            text += "│ ";
        return options_.palette.paint(Ink::quiet, text);
    }

    // Field, kind and value.
    std::string described(const Piece &piece) const
    {
        const Palette &palette = options_.palette;
        std::string path = path_text(*piece.path);
        if (!piece.member)
            path.append(path.empty() ? "" : ".").append("(unknown)");
        std::string kind;
        std::string value;
        switch (piece.part) {
        case Part::tag:
            kind = "tag";
            value = fmt::format("field {}, {}", piece.number, wire_type_name(piece.wire_type));
            break;
        case Part::length:
            kind = "length";
            value = length_of(piece);
            break;
        case Part::value:
            kind = is_list(piece.member->kind) ? kind_words(piece.member->kind).substr(9)
                                               : kind_words(piece.member->kind);
            value = value_of(piece);
            break;
        case Part::skipped:
            kind = "skipped";
            value = counted(piece.bytes.size(), "byte");
            break;
        case Part::unread:
            kind = "unread";
            value = counted(piece.bytes.size(), "byte");
            break;
        }
        const bool is_value = piece.part == Part::value;
        return palette.paint(is_value ? Ink::name : Ink::quiet, path) +
               spaces(path_width_ - std::min(path_width_, path.size())) + "  " +
               palette.paint(Ink::quiet, padded(kind, kKindWidth)) + "  " +
               palette.paint(ink_of(piece), value);
    }

    // Under the bytes that it is about.
    std::string noted(const Piece &piece, size_t bytes) const
    {
        std::string text(bytes == 0 ? 1 : bytes * 3 - 1, '~');
        text[0] = '^';
        std::string_view separator = " ";
        for (const Note note : piece.notes.list()) {
            text.append(separator).append(note_words(note));
            separator = "; ";
        }
        return spaces(offset_width_ + 2) + guides(piece.depth) +
               options_.palette.paint(Ink::note, text) + "\n";
    }

    // The lines of a long value behind its first.
    void continued(const Piece &piece, size_t at)
    {
        const size_t most = options_.all_bytes ? piece.bytes.size() : kBytesInLine * kLinesOfValue;
        const size_t end = std::min(piece.bytes.size(), most);
        for (; at < end; at += kBytesInLine) {
            const Bytes line = piece.bytes.subspan(at, std::min(kBytesInLine, end - at));
            sink_(offset(piece.offset + at) + "  " + guides(piece.depth) +
                  options_.palette.paint(ink_of(piece), hex(line)) + "\n");
        }
        if (end < piece.bytes.size())
            sink_(spaces(offset_width_ + 2) + guides(piece.depth) +
                  options_.palette.paint(Ink::quiet,
                                         fmt::format("... {} more", piece.bytes.size() - end)) +
                  "\n");
    }

    void tell_progress(size_t at)
    {
        if (!progress_ || ++pieces_ % kPiecesAtATime != 0)
            return;
        progress_(static_cast<double>(at) / static_cast<double>(size_));
    }

    size_t size_;
    const DumpOptions &options_;
    const Sink &sink_;
    const Progress &progress_;
    size_t offset_width_;
    size_t bytes_width_;
    size_t path_width_;
    uint32_t pieces_ = 0;
};

} // namespace

Verdict write_dump(const RecordType &type, Bytes message, const DumpOptions &options,
                   const Sink &sink, const Progress &progress)
{
    Record record(type, options.memory_limit);
    const int32_t result = record.decode(message);
    Verdict verdict = explain(record, message, result);
    WalkOptions walk_options;
    if (result == WIRE_ERR_NO_MEMORY)
        walk_options.blocks = record.arena().blocks();

    Dump dump(type, message.size(), options, sink, progress);
    dump.heading(type, verdict);
    const Verdict walked = walk(type, message, dump, walk_options);
    if (verdict.result == WIRE_OK)
        verdict.reason = walked.reason;
    dump.ending(verdict);
    return verdict;
}

} // namespace inspect
