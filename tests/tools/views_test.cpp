// SPDX-License-Identifier: MIT
// The catalogue as people see it: complete, and with the numbers of the binary interface.
#include "tools/core/views.hpp"

#include "tests/tools/golden.hpp"
#include "tools/core/pattern.hpp"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <set>
#include <sstream>

namespace inspect {

namespace {

std::vector<std::string> lines_of(const std::string &text)
{
    std::vector<std::string> lines;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);)
        lines.push_back(line);
    return lines;
}

std::vector<std::string> words_of(std::string_view line)
{
    std::vector<std::string> words;
    size_t end = 0;
    for (size_t at; (at = line.find_first_not_of(' ', end)) != std::string_view::npos;) {
        end = std::min(line.find(' ', at), line.size());
        words.emplace_back(line.substr(at, end - at));
    }
    return words;
}

template <typename Write>
std::string written(Write write)
{
    std::string text;
    write(Sink([&text](std::string_view part) { text += part; }));
    return text;
}

std::string list_of(std::string_view pattern)
{
    return written([=](const Sink &sink) { write_list(pattern, Palette(false), sink); });
}

std::string type_view(const RecordType &type, bool coloured = false)
{
    return written([&](const Sink &sink) { write_type(type, Palette(coloured), sink); });
}

std::string schema_text(const RecordType *type)
{
    return written([=](const Sink &sink) { write_schema(type, sink); });
}

// What abi/*.def say: a number for each target, by type and member. The size is that of the member
// "size", the place of the flags that of "flags".
using Abi = std::map<std::string_view, std::map<std::string_view, PerTarget>>;

Abi read_abi()
{
    Abi abi;
    Target target = Target::i686;
    const auto set = [&](const char *type, const char *member, uint32_t number) {
        abi[type][member][static_cast<size_t>(target)] = number;
    };
#define TARN_ABI_RECORD(type, size) set(#type, "size", size);
#define TARN_ABI_MEMBER(type, member, offset) set(#type, #member, offset);
#define TARN_ABI_FLAGS(type, offset) set(#type, "flags", offset);
#define TARN_ABI_EMPTY(type) abi[#type];
#include "abi/i686.def"
    target = Target::armhf;
#include "abi/armhf.def"
    target = Target::x86_64;
#include "abi/x86_64.def"
#undef TARN_ABI_RECORD
#undef TARN_ABI_MEMBER
#undef TARN_ABI_FLAGS
#undef TARN_ABI_EMPTY
    return abi;
}

const Abi &abi()
{
    static const Abi read = read_abi();
    return read;
}

std::string in_words(const PerTarget &numbers)
{
    std::string text;
    for (const uint32_t each : numbers)
        text += " " + std::to_string(each);
    return text;
}

// The lines of a type's table, by the member that they are about, with one blank between words.
std::map<std::string, std::string> rows_of_table(const std::string &view)
{
    std::map<std::string, std::string> rows;
    for (const std::string &line : lines_of(view.substr(view.find("\n\n")))) {
        const std::vector<std::string> words = words_of(line);
        if (!line.starts_with("  ") || words.size() < 2)
            continue;
        const bool has_number = words[0].find_first_not_of("0123456789") == std::string::npos;
        std::string &row = rows[words[has_number ? 1 : 0]];
        for (const std::string &word : words)
            row += word + " ";
    }
    return rows;
}

TEST(views, list_has_a_line_for_each_type)
{
    std::map<std::string, std::vector<std::string>> rows;
    for (const std::string &line : lines_of(list_of("")))
        rows[words_of(line).at(0)] = words_of(line);
    EXPECT_EQ(rows.size(), own_types().size() + 1); // with the heading
    for (const RecordType *type : own_types()) {
        const std::vector<std::string> &row = rows[std::string(type->short_name())];
        ASSERT_GE(row.size(), 4u) << type->name;
        EXPECT_EQ(row[1], std::to_string(type->members.size())) << type->name;
        const auto found = abi().at(type->name).find("size");
        const bool has_size = found != abi().at(type->name).end();
        EXPECT_EQ(has_size, !type->members.empty());
        EXPECT_EQ(row[2], has_size ? std::to_string(found->second[2]) : "-") << type->name;
        EXPECT_EQ(row[3], has_size ? std::to_string(found->second[0]) : "-") << type->name;
    }
}

TEST(views, list_says_how_many_there_are)
{
    for (const char *pattern : {"", "PORT_*", "no such type"}) {
        size_t count = 0;
        const std::string text =
            written([&](const Sink &sink) { count = write_list(pattern, Palette(false), sink); });
        EXPECT_EQ(lines_of(text).size(), count == 0 ? 0 : count + 1) << pattern;
    }
    EXPECT_EQ(write_list("", Palette(false), [](std::string_view) {}), 259u);
}

TEST(views, know_the_role_of_a_type)
{
    EXPECT_EQ(role(*find_type("port_reset")), "request");
    EXPECT_EQ(role(*find_type("port_reset_resp")), "answer");
    EXPECT_EQ(role(*find_type("port_info")), "part");
    EXPECT_EQ(role(*find_type("interface_status_notif")), "");
}

struct PatternCase {
    const char *pattern;
    const char *type;
    bool fits;
};

TEST(views, pick_types_by_a_pattern)
{
    const PatternCase cases[] = {
        {"", "port_reset", true},
        // Parts of names and of comments, in capitals and small letters.
        {"reset", "port_reset", true},
        {"Port_RESET", "port_reset", true},
        {"resetting", "port_reset", false},
        {"ethsw_mgmt_port_reset", "port_reset", true},
        {"tarn.ethsw_mgmt_port_reset", "port_reset", true},
        {"tarn_ethsw_mgmt_port_reset", "port_reset", true},
        {"identity, name", "switch_info", true},
        {"esd_mgmt", "ESD_MGMT_RESULT_resp", true},
        // With * and ? whole names, and names only.
        {"port_*", "port_reset", true},
        {"PORT_*", "port_reset", true},
        {"port*", "sfp_info", false},
        {"*reset", "port_reset", true},
        {"*rese", "port_reset", false},
        {"*", "port_reset", true},
        {"port_rese?", "port_reset", true},
        {"port_reset?", "port_reset", false},
        {"?ort?r*t", "port_reset", true},
        {"ethsw_mgmt_port_r*", "port_reset", true},
        {"tarn_*_port_reset", "port_reset", true},
        {"tarn.*_port_reset", "port_reset", true},
        {"*identity, name*", "switch_info", false},
    };
    for (const PatternCase &each : cases)
        EXPECT_EQ(fits(each.pattern, *find_type(each.type)), each.fits) << each.pattern;
}

TEST(views, match_patterns_with_several_stars)
{
    EXPECT_TRUE(fits_whole("*a*b*c", "xxaxxbxxbxc"));
    EXPECT_FALSE(fits_whole("*a*b*c", "xxaxxbxxbx"));
    EXPECT_TRUE(fits_whole("**", ""));
    EXPECT_FALSE(fits_whole("?", ""));
    EXPECT_TRUE(fits_whole("", ""));
    EXPECT_FALSE(fits_whole("", "a"));
    // Would take for ever if each star were tried with each length.
    std::string stars;
    for (int i = 0; i < 2000; i++)
        stars += "a*";
    EXPECT_FALSE(fits_whole(stars + "b", std::string(2000, 'a')));
}

TEST(views, shorten_the_names_in_comments)
{
    EXPECT_EQ(short_comment("Answer to tarn_ethsw_mgmt_port_reset."), "Answer to port_reset.");
    EXPECT_EQ(short_comment("tarn_calv_eid_st, tarn_esd_location_info"),
              "calv_eid_st, esd_location_info");
    EXPECT_EQ(short_comment("A tarn_unknown one."), "A tarn_unknown one.");
    EXPECT_EQ(short_comment(""), "");
    EXPECT_EQ(short_comment("tarn_"), "tarn_");
}

TEST(views, names_are_those_of_all_types)
{
    const std::vector<std::string> names =
        lines_of(written([](const Sink &sink) { write_names(sink); }));
    EXPECT_EQ(names.size(), 259u);
    EXPECT_TRUE(std::ranges::is_sorted(names));
    for (const std::string &name : names)
        EXPECT_NE(find_type(name), nullptr) << name;
}

TEST(views, type_has_the_places_of_the_binary_interface)
{
    for (const auto &[name, members] : abi()) {
        const std::string view = type_view(*find_type(name));
        EXPECT_EQ(members.empty(), view.find("no fields") != std::string::npos) << name;
        std::map<std::string, std::string> rows = rows_of_table(view);
        for (const auto &[member, places] : members) {
            const std::string &row = rows[std::string(member)];
            EXPECT_NE(row.find(in_words(places) + " "), std::string::npos)
                << name << " " << member << ": " << row;
        }
    }
    EXPECT_EQ(abi().size(), every_type().size());
}

TEST(views, type_has_each_member_with_number_kind_and_comment)
{
    for (const RecordType &type : every_type()) {
        const std::string view = type_view(type);
        std::map<std::string, std::string> rows = rows_of_table(view);
        for (const Member &member : type.members) {
            const std::string &row = rows[std::string(member.name)];
            EXPECT_TRUE(row.starts_with(std::to_string(member.number) + " ")) << row;
            const std::string_view kind =
                member.child ? member.child->short_name() : kind_words(member.kind);
            EXPECT_NE(row.find(kind), std::string::npos) << row;
            EXPECT_EQ(row.find(" repeated ") != std::string::npos, is_list(member.kind)) << row;
            EXPECT_NE(row.find(short_comment(member.comment)), std::string::npos) << row;
        }
        EXPECT_TRUE(view.ends_with("\n\n" + std::string(type.declaration))) << type.name;
        EXPECT_NE(view.find(std::string(type.name) + "\n"), std::string::npos) << type.name;
        EXPECT_NE(view.find("tarn." + std::string(type.message_name()) + "\n"), std::string::npos)
            << type.name;
    }
}

TEST(views, type_says_what_it_has_to_do_with_others)
{
    EXPECT_NE(type_view(*find_type("port_reset")).find("answered by  port_reset_resp\n"),
              std::string::npos);
    EXPECT_NE(type_view(*find_type("port_reset_resp")).find("answers  port_reset\n"),
              std::string::npos);
    EXPECT_NE(type_view(*find_type("port_info")).find("embedded in  switch_info (ports)\n"),
              std::string::npos);
    for (const RecordType &type : every_type())
        EXPECT_EQ(type_view(type).find("sibling library's") != std::string::npos, type.is_foreign)
            << type.name;
}

TEST(views, type_looks_as_it_should)
{
    for (const char *name : {"switch_info", "port_reset", "get_switch_info", "calv_eid_st"})
        expect_golden("type_" + std::string(name) + ".txt", type_view(*find_type(name)));
    expect_golden("type_port_reset.ansi", type_view(*find_type("port_reset"), true));
}

TEST(views, pairs_have_each_type)
{
    const std::string text = written([](const Sink &sink) { write_pairs(Palette(false), sink); });
    std::set<std::string> names;
    size_t pairs = 0;
    for (const std::string &line : lines_of(text)) {
        const std::vector<std::string> words = words_of(line);
        if (words.size() == 3 && words[1] == "->") {
            pairs++;
            EXPECT_EQ(find_type(words[0])->answer, find_type(words[2])) << line;
        }
        if (line.starts_with("  "))
            names.insert(words.begin(), words.end());
    }
    EXPECT_EQ(pairs, 92u);
    for (const RecordType *type : own_types())
        EXPECT_TRUE(names.contains(std::string(type->short_name()))) << type->name;
}

// Each message once, and before it is used.
void expect_ordered(const std::string &schema, const std::vector<const RecordType *> &types)
{
    for (const RecordType *type : types) {
        const std::string name(type->message_name());
        const size_t at = schema.find("\nmessage " + name + " {");
        ASSERT_NE(at, std::string::npos) << name;
        EXPECT_EQ(schema.find("\nmessage " + name + " {", at + 1), std::string::npos) << name;
        EXPECT_GT(
            std::min(schema.find("optional " + name + " "), schema.find("repeated " + name + " ")),
            at)
            << name;
    }
}

TEST(views, schema_has_what_a_type_needs_before_it)
{
    for (const RecordType &type : every_type()) {
        const std::string schema = schema_text(&type);
        expect_ordered(schema, with_nested(type));
        size_t messages = 0;
        for (const std::string &line : lines_of(schema))
            messages += line.starts_with("message ");
        EXPECT_EQ(messages, with_nested(type).size()) << type.name;
    }
    std::vector<const RecordType *> all;
    for (const RecordType &type : every_type())
        all.push_back(&type);
    expect_ordered(schema_text(nullptr), all);
}

} // namespace

} // namespace inspect
