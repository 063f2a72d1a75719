// SPDX-License-Identifier: MIT
#include "tools/core/tree_rows.hpp"

#include "tools/core/values.hpp"

#include <algorithm>
#include <cstring>
#include <fmt/format.h>

namespace inspect {

namespace {

constexpr size_t kGap = 2;            // between columns
constexpr size_t kWidestAligned = 32; // wider values do not move the kinds of the others
constexpr size_t kWidestList = 48;    // of numbers beside their name
constexpr size_t kMostBytesInRow = 16;
constexpr size_t kMostBytesShown = 64;
constexpr size_t kNarrowest = 24; // for what is in lines of its own, however deep

void fill_text(TreeRow &row, const char *text, size_t room)
{
    const size_t room_for_kind = kGap + row.kind.width();
    row.value = text_inline(text, room - std::min(room, room_for_kind));
    if (!row.value.empty())
        return;
    row.has_block = true;
    row.value = {Ink::quiet, text_length(text)};
}

void fill_bytes(TreeRow &row, Bytes bytes)
{
    const std::string length = counted(bytes.size(), "byte");
    row.has_block = bytes.size() > kMostBytesInRow;
    row.value = row.has_block ? Phrase(Ink::quiet, length) : Phrase(Ink::value, hex(bytes));
    if (!row.has_block)
        row.kind = {Ink::quiet, length};
}

// The numbers in one line, or nothing when that is longer than a row should be.
std::string numbers_inline(RecordView record, const Member &list, uint32_t count)
{
    std::string line;
    for (uint32_t i = 0; i < count; i++) {
        line += fmt::format("{}{}", i == 0 ? "" : " ", record.number_at(list, i));
        if (line.size() > kWidestList)
            return {};
    }
    return line;
}

std::string_view noun_of(Kind list)
{
    return list == Kind::repeated_message  ? "record"
           : list == Kind::repeated_string ? "text"
                                           : "number";
}

void fill_list(TreeRow &row, RecordView record, const Trail &trail)
{
    const Member &list = *row.member;
    const uint32_t reached = elements_reached(record, list, trail);
    const uint32_t count = record.count(list);
    std::string words = counted(count, noun_of(list.kind));
    if (reached != count)
        words = fmt::format("{} of {}", reached, words);
    if (list.kind == Kind::repeated_uint32) {
        const std::string line = numbers_inline(record, list, reached);
        if (!line.empty()) {
            row.value = {Ink::value, line};
            row.kind = {Ink::quiet, words};
            return;
        }
    }
    row.value = {Ink::quiet, words};
    row.has_block = reached != 0;
    row.elements = std::max<uint32_t>(reached, 1);
}

void fill(TreeRow &row, RecordView record, const Trail &trail, size_t room)
{
    const Member &member = *row.member;
    row.kind = {Ink::quiet, member.child ? member.child->short_name() : kind_words(member.kind)};
    switch (member.kind) {
    case Kind::string:
        fill_text(row, record.text(member), room);
        break;
    case Kind::bytes:
        fill_bytes(row, record.bytes(member));
        break;
    case Kind::message:
        break;
    case Kind::repeated_uint32:
    case Kind::repeated_string:
    case Kind::repeated_message:
        fill_list(row, record, trail);
        break;
    default:
        row.value = number_value(member.kind, record.number(member));
    }
}

// Where decoding stopped in the record itself, or in a member that has no lines of its own to say
// so.
void add_stop(TreeRows &out, RecordView record, const Trail &trail)
{
    const Step *next = trail.next();
    if (!trail.ends_here() && (!next || is_entered(record, *next->member, trail)))
        return;
    std::string label = next ? path_text({*next}) : std::string{};
    if (next && record.has(*next->member))
        label = next->member->name;
    out.rows.push_back({nullptr, label, {Ink::error, "decoding stopped here"}, {}});
}

void write_bytes_block(Bytes bytes, const LineSink &sink)
{
    const Bytes shown = bytes.first(std::min(bytes.size(), kMostBytesShown));
    for (size_t i = 0; i < shown.size(); i += kMostBytesInRow)
        sink({Ink::value, hex(shown.subspan(i, std::min(kMostBytesInRow, shown.size() - i)))});
    if (shown.size() != bytes.size())
        sink({Ink::quiet, fmt::format("and {} more", bytes.size() - shown.size())});
}

// In columns as wide as the largest number.
void write_number_block(RecordView record, const Member &list, uint32_t count, size_t width,
                        const LineSink &sink)
{
    uint32_t largest = 0;
    for (uint32_t i = 0; i < count; i++)
        largest = std::max(largest, record.number_at(list, i));
    const size_t column = fmt::formatted_size("{}", largest);
    const size_t in_line = std::max<size_t>(1, (width + 1) / (column + 1));
    std::string line;
    for (uint32_t i = 0; i < count; i++) {
        line += fmt::format("{}{:>{}}", line.empty() ? "" : " ", record.number_at(list, i), column);
        if ((i + 1) % in_line == 0 || i + 1 == count) {
            sink({Ink::value, line});
            line.clear();
        }
    }
}

} // namespace

Phrase text_inline(const char *text, size_t room)
{
    // A character has four bytes at most.
    if (text && std::strlen(text) > 4 * room)
        return {};
    Phrase value = text_value(text);
    return value.width() <= room ? value : Phrase{};
}

std::string text_length(const char *text)
{
    return "text of " + counted(std::strlen(text), "byte");
}

void write_text_block(std::string_view text, size_t width, const LineSink &sink)
{
    while (!text.empty()) {
        const std::string_view part = fitting_part(text, std::max(width, kNarrowest));
        sink({Ink::text, quoted(part)});
        text.remove_prefix(part.size());
    }
}

void write_block(RecordView record, const Member &member, const Trail &trail, size_t width,
                 const LineSink &sink)
{
    if (member.kind == Kind::string)
        write_text_block(record.text(member), width, sink);
    else if (member.kind == Kind::bytes)
        write_bytes_block(record.bytes(member), sink);
    else
        write_number_block(record, member, elements_reached(record, member, trail),
                           std::max(width, kNarrowest), sink);
}

size_t TreeRows::value_column() const
{
    return label_width + kGap;
}

Phrase TreeRows::line(const TreeRow &row) const
{
    const auto blanks = [](size_t wanted, size_t used) {
        return std::string(wanted - std::min(wanted, used) + kGap, ' ');
    };
    Phrase line(Ink::name, row.label);
    if (!row.value.empty() || !row.kind.empty())
        line.add(Ink::plain, blanks(label_width, line.width()));
    line.add(row.value);
    if (!row.kind.empty())
        line.add(Ink::plain, blanks(value_width, row.value.width())).add(row.kind);
    return line;
}

TreeRows rows_of(RecordView record, const Trail &trail, size_t width)
{
    TreeRows out;
    for (const Member &member : record.type().members)
        if (is_shown(record, member, trail))
            out.rows.push_back({&member, std::string(member.name), {}, {}});
    add_stop(out, record, trail);
    for (const TreeRow &row : out.rows)
        out.label_width = std::max(out.label_width, row.label.size());
    const size_t room = width - std::min(width, out.value_column());
    for (TreeRow &row : out.rows)
        if (row.member)
            fill(row, record, trail, room);
    for (const TreeRow &row : out.rows) {
        out.elements += row.elements;
        if (!row.kind.empty() && row.value.width() <= kWidestAligned)
            out.value_width = std::max(out.value_width, row.value.width());
    }
    return out;
}

} // namespace inspect
