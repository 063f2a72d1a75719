// SPDX-License-Identifier: MIT
// What is different between two records, line by line.
#include "tests/tools/message.hpp"
#include "tests/tools/sample_record.hpp"
#include "tools/core/diff.hpp"

#include <algorithm>
#include <gtest/gtest.h>
#include <sstream>

namespace inspect {

namespace {

constexpr size_t kDiffMemory = size_t{1} << 20;

struct Difference {
    size_t count;
    std::string text;
};

Difference difference(RecordView before, RecordView after, bool coloured = false)
{
    Difference out;
    out.count = write_diff(before, after, Palette(coloured),
                           [&out](std::string_view part) { out.text += part; });
    return out;
}

Difference difference(const char *type, std::string_view before, std::string_view after)
{
    Record first(*find_type(type), kDiffMemory);
    Record second(*find_type(type), kDiffMemory);
    EXPECT_EQ(first.decode(bytes_of(before)), WIRE_OK);
    EXPECT_EQ(second.decode(bytes_of(after)), WIRE_OK);
    return difference(first.view(), second.view());
}

struct DiffCase {
    const char *type;
    std::string before;
    std::string after;
    std::string lines;
};

std::vector<DiffCase> diff_cases()
{
    const std::string name = repeated(10, "name ");
    return {
        {"port_enable", number(1, 3), number(1, 3), ""},
        {"port_enable", number(1, 3), number(1, 1000),
         "~ port                      3 -> 1000 (0x3e8)\n"},
        {"port_enable", number(1, 3), number(1, 3) + number(2, 1),
         "+ enable                    true\n"},
        {"port_enable", number(1, 3) + number(2, 0), number(2, 1),
         "- port                      3\n"
         "~ enable                    false -> true\n"},
        // A member that is there with its default is not one that is absent.
        {"port_enable", number(1, 0), "", "- port                      0\n"},
        // Texts.
        {"bcm_shell_cmd", piece(1, "a"), piece(1, "b\n"),
         "~ command                   \"a\" -> \"b\\n\"\n"},
        {"bcm_shell_cmd", piece(1, ""), piece(1, "b"),
         "~ command                   \"\" -> \"b\"\n"},
        {"bcm_shell_cmd", piece(1, name + "one"), piece(1, name + "two"),
         "~ command                   from byte 50: \"one\" -> \"two\"\n"},
        {"bcm_shell_cmd", piece(1, repeated(200, "a")), piece(1, repeated(200, "b")),
         "~ command                   from byte 0: \"" + repeated(46, "a") +
             "\" and 154 more -> \"" + repeated(46, "b") + "\" and 154 more\n"},
        {"bcm_shell_cmd", piece(1, name), piece(1, name + "!"),
         "~ command                   from byte 50: \"\" -> \"!\"\n"},
        // Characters are not cut: the first byte that differs is the second of its letter.
        {"bcm_shell_cmd", piece(1, name + "\xC3\xA4"), piece(1, name + "\xC3\xB6"),
         "~ command                   from byte 50: \"\xC3\xA4\" -> \"\xC3\xB6\"\n"},
        // Byte strings.
        {"bridge_sec_breach_details", piece(3, "\x01\x02"), piece(3, "\x01\x03"),
         "~ field_3                   01 02 -> 01 03\n"},
        {"bridge_sec_breach_details", piece(3, ""), piece(3, repeated(20, "\x01")),
         "~ field_3                   from byte 0: nothing -> 01 01 01 01 01 01 01 01 01 01 01 01 "
         "01 01 01 01 and 4 more\n"},
        {"bridge_sec_breach_details", "", piece(3, ""), "+ field_3                   nothing\n"},
        // Records: the members that only one of them has; one without content counts, too.
        {"switch_info", "", piece(2, number(1, 1) + number(6, 2) + number(6, 3)),
         "+ identity.field_1          1\n"
         "+ identity.field_6[0]       2\n"
         "+ identity.field_6[1]       3\n"},
        {"switch_info", piece(2, ""), "", "- identity                  (empty)\n"},
        {"switch_info", piece(2, ""), piece(2, number(1, 5)), "+ identity.field_1          5\n"},
        // Lists: by index.
        {"switch_info", piece(8, number(2, 1)) + piece(8, number(2, 2)),
         piece(8, number(2, 1)) + piece(8, number(2, 7) + piece(4, number(1, 300))),
         "~ ports[1].field_2          2 -> 7\n"
         "+ ports[1].phy.field_1      300 (0x12c)\n"},
        {"switch_info", piece(8, number(2, 1)) + piece(8, "") + piece(8, number(2, 3)),
         piece(8, number(2, 1)),
         "- ports[1]                  (empty)\n"
         "- ports[2].field_2          3\n"},
        {"calv_eid_st", number(6, 1) + number(6, 2), number(6, 1) + number(6, 4) + number(6, 5),
         "~ field_6[1]                2 -> 4\n"
         "+ field_6[2]                5\n"},
        {"fpd_cmp_to_file", piece(2, "a") + piece(2, "b"), piece(2, "c"),
         "~ field_2[0]                \"a\" -> \"c\"\n"
         "- field_2[1]                \"b\"\n"},
    };
}

std::string line_of(char mark, std::string_view path)
{
    return std::string(1, mark) + " " + std::string(path);
}

std::string marks_and_paths(const std::string &lines)
{
    std::string out;
    std::istringstream in(lines);
    for (std::string line; std::getline(in, line);)
        out += line.substr(0, line.find(' ', 2)) + "\n";
    return out;
}

TEST(diff, shows_what_is_different)
{
    for (const DiffCase &each : diff_cases()) {
        const Difference found = difference(each.type, each.before, each.after);
        EXPECT_EQ(found.text, each.lines);
        EXPECT_EQ(found.count, static_cast<size_t>(std::ranges::count(each.lines, '\n')));
    }
}

TEST(diff, is_the_same_the_other_way_round_but_for_the_signs)
{
    for (const DiffCase &each : diff_cases()) {
        std::string turned = marks_and_paths(difference(each.type, each.after, each.before).text);
        std::ranges::replace(turned, '-', '*');
        std::ranges::replace(turned, '+', '-');
        std::ranges::replace(turned, '*', '+');
        EXPECT_EQ(turned, marks_and_paths(each.lines));
    }
}

TEST(diff, finds_nothing_between_equal_records_of_any_type)
{
    for (const RecordType &type : every_type()) {
        const Record one = Samples().record(type);
        const Record other = Samples().record(type);
        const Difference found = difference(one.view(), other.view());
        EXPECT_EQ(found.count, 0u) << type.name;
        EXPECT_EQ(found.text, "") << type.name;
    }
}

TEST(diff, finds_every_member_of_every_type_that_is_added_or_removed)
{
    for (const RecordType &type : every_type()) {
        const Record empty(type, kDiffMemory);
        const Record full = Samples().record(type);
        const Difference added = difference(empty.view(), full.view());
        const Difference removed = difference(full.view(), empty.view());
        EXPECT_EQ(added.count, removed.count);
        for (const Member &member : type.members) {
            EXPECT_NE(added.text.find(line_of('+', member.name)), std::string::npos) << member.name;
            EXPECT_NE(removed.text.find(line_of('-', member.name)), std::string::npos)
                << member.name;
        }
    }
}

TEST(diff, finds_every_member_of_every_type_that_has_changed)
{
    for (const RecordType &type : every_type()) {
        const Record before = Samples(1).record(type);
        const Record after = Samples(1002).record(type);
        const Difference found = difference(before.view(), after.view());
        for (const Member &member : type.members)
            EXPECT_NE(found.text.find(line_of('~', member.name)), std::string::npos)
                << type.name << " " << member.name;
        EXPECT_EQ(found.text.find("\n+"), std::string::npos);
        EXPECT_EQ(found.text.find("\n-"), std::string::npos);
    }
}

TEST(diff, shows_nothing_that_a_terminal_would_obey)
{
    const std::string hostile = "\033[2J\x07\r\x9B\xC2\x9B\x7F";
    for (const RecordType &type : every_type()) {
        const Record before = Samples(1, "a" + hostile).record(type);
        const Record after = Samples(2, "b" + hostile).record(type);
        const std::string text = difference(before.view(), after.view()).text;
        EXPECT_TRUE(is_utf8(text)) << type.name;
        EXPECT_TRUE(std::ranges::none_of(text, [](char c) {
            return (c >= 0 && c < ' ' && c != '\n') || c == 0x7F;
        })) << type.name;
    }
}

// Where decoding stopped, the record around has content, and not its flag.
TEST(diff, compares_what_would_be_written_flagged_or_not)
{
    const RecordType &type = *find_type("switch_info");
    Record cut_off(type, kDiffMemory);
    ASSERT_NE(cut_off.decode(bytes_of(piece(2, number(1, 7) + "\x10"))), WIRE_OK);
    ASSERT_FALSE(cut_off.view().has(*type.member_of_name("identity")));
    const Record empty(type, kDiffMemory);
    EXPECT_EQ(difference(empty.view(), cut_off.view()).text, "+ identity.field_1          7\n");
    EXPECT_EQ(difference(cut_off.view(), empty.view()).text, "- identity.field_1          7\n");
}

TEST(diff, tells_a_text_that_is_missing_from_an_empty_one)
{
    const RecordType &type = *find_type("bcm_shell_cmd");
    Record missing(type, kDiffMemory);
    missing.editor().set_text(type.members[0], nullptr);
    Record empty(type, kDiffMemory);
    empty.editor().set_text(type.members[0], "");
    EXPECT_EQ(difference(missing.view(), empty.view()).text,
              "~ command                   (null) -> \"\"\n");
    EXPECT_EQ(difference(missing.view(), missing.view()).count, 0u);
}

TEST(diff, has_a_colour_for_each_kind_of_change)
{
    const RecordType &type = *find_type("get_pcl");
    Record before(type, kDiffMemory);
    Record after(type, kDiffMemory);
    ASSERT_EQ(before.decode(bytes_of(number(1, 1) + number(2, 2))), WIRE_OK);
    ASSERT_EQ(after.decode(bytes_of(number(2, 3) + number(3, 4))), WIRE_OK);
    const Palette palette(true);
    const std::string text = difference(before.view(), after.view(), true).text;
    EXPECT_NE(text.find(palette.paint(Ink::error, "- ")), std::string::npos);
    EXPECT_NE(text.find(palette.paint(Ink::length, "~ ")), std::string::npos);
    EXPECT_NE(text.find(palette.paint(Ink::value, "+ ")), std::string::npos);
}

} // namespace

} // namespace inspect
