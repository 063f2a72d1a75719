// SPDX-License-Identifier: MIT
#include "tools/core/views.hpp"

#include "tools/core/pattern.hpp"
#include "tools/core/phrase.hpp"

#include <algorithm>
#include <fmt/format.h>

namespace inspect {

namespace {

constexpr std::string_view kIndent = "  ";

// Up to the first full stop that ends a word.
std::string_view first_sentence(std::string_view text)
{
    const size_t end = std::min(text.find(". "), text.size());
    text = text.substr(0, end);
    return text.ends_with('.') ? text.substr(0, text.size() - 1) : text;
}

std::string size_words(const RecordType &type, Target target)
{
    const uint32_t size = type.sizes[static_cast<size_t>(target)];
    return size == 0 ? "-" : fmt::format("{}", size);
}

void write_group(std::string_view heading, const std::vector<std::string_view> &names,
                 const Palette &palette, const Sink &sink)
{
    sink("\n" + palette.paint(Ink::heading, fmt::format("{}: {}", heading, names.size())) + "\n");
    for (const std::string &line : lines_of_words(names, kScreenWidth - kIndent.size(), "  "))
        sink(fmt::format("{}{}\n", kIndent, line));
}

const std::vector<const RecordType *> &types_by_short_name()
{
    static const std::vector<const RecordType *> types = [] {
        std::vector<const RecordType *> sorted = own_types();
        std::ranges::sort(sorted, {}, [](const RecordType *type) { return type->short_name(); });
        return sorted;
    }();
    return types;
}

} // namespace

std::string_view role(const RecordType &type)
{
    if (type.answer)
        return "request";
    if (!requests(type).empty())
        return "answer";
    return embedders(type).empty() ? "" : "part";
}

std::string short_comment(std::string_view comment)
{
    constexpr std::string_view kPrefix = "tarn_";
    constexpr std::string_view kLetters = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ"
                                          "0123456789_";
    std::string text;
    while (!comment.empty()) {
        const size_t begin = std::min(comment.find(kPrefix), comment.size());
        text += comment.substr(0, begin);
        comment.remove_prefix(begin);
        const std::string_view name =
            comment.substr(0, std::min(comment.find_first_not_of(kLetters), comment.size()));
        const RecordType *const type = find_type(name);
        text += type ? type->short_name() : name;
        comment.remove_prefix(name.size());
    }
    return text;
}

size_t write_list(std::string_view pattern, const Palette &palette, const Sink &sink)
{
    Table table({Side::left, Side::right, Side::right, Side::right});
    table.add({{Ink::quiet, "type"},
               {Ink::quiet, "members"},
               {Ink::quiet, "64-bit"},
               {Ink::quiet, "32-bit"},
               {Ink::quiet, "role"}});
    size_t count = 0;
    for (const RecordType *type : types_by_short_name()) {
        if (!fits(pattern, *type))
            continue;
        count++;
        table.add({{Ink::name, type->short_name()},
                   {Ink::plain, fmt::format("{}", type->members.size())},
                   {Ink::plain, size_words(*type, Target::x86_64)},
                   {Ink::plain, size_words(*type, Target::i686)},
                   {Ink::note, role(*type)},
                   {Ink::quiet, short_comment(first_sentence(type->comment))}});
    }
    if (count != 0)
        table.write("", palette, sink);
    return count;
}

void write_names(const Sink &sink)
{
    for (const RecordType *type : types_by_short_name())
        sink(fmt::format("{}\n", type->short_name()));
}

void write_pairs(const Palette &palette, const Sink &sink)
{
    Table pairs;
    size_t pair_count = 0;
    std::vector<std::string_view> parts;
    std::vector<std::string_view> others;
    for (const RecordType *type : types_by_short_name()) {
        if (type->answer) {
            pair_count++;
            pairs.add({{Ink::name, type->short_name()},
                       {Ink::quiet, "->"},
                       {Ink::name, type->answer->short_name()}});
        }
        if (role(*type) == "part")
            parts.push_back(type->short_name());
        if (role(*type).empty())
            others.push_back(type->short_name());
    }
    sink(palette.paint(Ink::heading, fmt::format("Requests and their answers: {}", pair_count)) +
         "\n");
    pairs.write(kIndent, palette, sink);
    write_group("Parts of other records", parts, palette, sink);
    write_group("Neither requests, nor answers, nor parts", others, palette, sink);
}

void write_schema(const RecordType *type, const Sink &sink)
{
    std::vector<const RecordType *> needed;
    if (type) {
        needed = with_nested(*type);
    } else {
        for (const RecordType &each : every_type())
            for (const RecordType *nested : with_nested(each))
                if (std::ranges::find(needed, nested) == needed.end())
                    needed.push_back(nested);
    }
    sink("// SPDX-License-Identifier: MIT\n\n");
    sink(type ? fmt::format("// {} and what is embedded in it.\n", type->message_name())
              : "// All record types, those of the sibling library included.\n");
    sink("\nsyntax = \"proto2\";\n\npackage tarn;\n");
    for (const RecordType *each : needed)
        sink(fmt::format("\n{}", each->schema));
}

} // namespace inspect
