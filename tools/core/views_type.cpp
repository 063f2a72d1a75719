// SPDX-License-Identifier: MIT
// One type in full.
#include "tools/core/views.hpp"

#include "tools/core/phrase.hpp"

#include <fmt/format.h>

namespace inspect {

namespace {

constexpr std::string_view kMargin = "  ";

// As the schema has it, with the short name of what is nested.
std::string kind_in_schema(const Member &member)
{
    if (!member.child)
        return std::string(kind_words(member.kind));
    return fmt::format("{}{}", is_list(member.kind) ? "repeated " : "", member.child->short_name());
}

std::string names_of(const std::vector<const RecordType *> &types)
{
    std::string names;
    for (const RecordType *type : types)
        names.append(names.empty() ? "" : ", ").append(type->short_name());
    return names;
}

std::string embedder_names(const RecordType &type)
{
    std::string names;
    for (const Embedder &embedder : embedders(type))
        names += fmt::format("{}{} ({})", names.empty() ? "" : ", ", embedder.type->short_name(),
                             embedder.member->name);
    return names;
}

void write_names(const RecordType &type, const Palette &palette, const Sink &sink)
{
    constexpr size_t kLabels = 13; // with the gap behind them
    Table table;
    const auto add = [&table](std::string_view label, std::string_view words) {
        Phrase start(Ink::quiet, label);
        for (const std::string &line : lines_of_text(words, kScreenWidth - kLabels - 2)) {
            table.add({start, {Ink::plain, line}});
            start = {};
        }
    };
    add("in C", type.name);
    add("message", fmt::format("tarn.{}", type.message_name()));
    add("files", fmt::format("{0}.proto, {0}.h", type.file));
    if (type.answer)
        add("answered by", type.answer->short_name());
    add("answers", names_of(requests(type)));
    add("embedded in", embedder_names(type));
    if (type.is_foreign)
        add("whose it is", "The sibling library's. Its layout is relied on; the field numbers are "
                           "an assumption, since they are that library's to define.");
    table.write(kMargin, palette, sink);
}

// A number for each target in columns of their own.
void add_row(Table &table, const Phrase &number, const Phrase &name, const Phrase &kind,
             const PerTarget &places, std::string_view comment)
{
    std::vector<Phrase> row = {number, name, kind};
    for (const uint32_t place : places)
        row.emplace_back(Ink::plain, fmt::format("{}", place));
    row.emplace_back(Ink::quiet, comment);
    table.add(std::move(row));
}

// Where the length or the count is, which stands behind the pointer.
PerTarget second_place(const Member &member)
{
    PerTarget places = member.offsets;
    for (size_t i = 0; i < kTargetCount; i++)
        places[i] += i == static_cast<size_t>(Target::x86_64) ? 8 : 4;
    return places;
}

void add_member(Table &table, const Member &member)
{
    add_row(table, {Ink::tag, fmt::format("{}", member.number)}, {Ink::name, member.name},
            {Ink::value, kind_in_schema(member)}, member.offsets, short_comment(member.comment));
    if (is_pair(member.kind))
        add_row(table, {},
                {Ink::plain,
                 fmt::format("{}_{}", member.name, is_list(member.kind) ? "count" : "length")},
                {}, second_place(member), "");
}

void write_members(const RecordType &type, const Palette &palette, const Sink &sink)
{
    if (type.members.empty()) {
        sink(fmt::format("{}It has no fields, and no structure in C.\n", kMargin));
        return;
    }
    Table table({Side::right, Side::left, Side::left, Side::right, Side::right, Side::right});
    std::vector<Phrase> heading = {
        {Ink::quiet, "field"}, {Ink::quiet, "member"}, {Ink::quiet, "kind"}};
    for (const std::string_view target : kTargetNames)
        heading.emplace_back(Ink::quiet, target);
    table.add(std::move(heading));
    for (const Member &member : type.members)
        add_member(table, member);
    add_row(table, {}, {Ink::quiet, fmt::format("flags ({})", type.members.size())}, {}, type.flags,
            "");
    add_row(table, {}, {Ink::quiet, "size in bytes"}, {}, type.sizes, "");
    table.write(kMargin, palette, sink);
}

} // namespace

void write_type(const RecordType &type, const Palette &palette, const Sink &sink)
{
    sink(palette.paint(Ink::heading, type.short_name()) + "\n");
    for (const std::string &line : lines_of_text(short_comment(type.comment), kScreenWidth))
        sink(line + "\n");
    sink("\n");
    write_names(type, palette, sink);
    sink("\n");
    write_members(type, palette, sink);
    sink("\n");
    sink(type.declaration);
}

} // namespace inspect
