// SPDX-License-Identifier: MIT
// Texts for terminals, and names that are nearly right.
#include "tools/core/text.hpp"

#include <gtest/gtest.h>

namespace inspect {

namespace {

TEST(text, quotes_what_a_terminal_would_obey)
{
    const std::pair<std::string_view, const char *> cases[] = {
        {"", R"("")"},
        {"port 1", R"("port 1")"},
        {"say \"hi\" \\", R"("say \"hi\" \\")"},
        {"\n\r\t", R"("\n\r\t")"},
        {"\033[31m", R"("\x1b[31m")"},
        {std::string_view("\0\x7f", 2), R"("\x00\x7f")"},
        {"gr\xc3\xbc\xc3\x9f", "\"gr\xc3\xbc\xc3\x9f\""},
        {"\xe2\x82\xac \xf0\x9f\x98\x80", "\"\xe2\x82\xac \xf0\x9f\x98\x80\""},
        {"\xc2\x9b"
         "31m",
         R"("\xc2\x9b31m")"}, // one character that begins a control sequence
        {"\xff\xc3", R"("\xff\xc3")"},
    };
    for (const auto &[text, expected] : cases)
        EXPECT_EQ(quoted(text), expected);
}

TEST(text, quotes_marks_that_turn_the_direction_of_writing)
{
    for (const char last : {'\x8e', '\x8f', '\xaa', '\xae'}) {
        const std::string mark = {'\xe2', '\x80', last};
        EXPECT_EQ(inspect::quoted(mark).size(), 14U) << int{last};
    }
}

TEST(text, knows_utf8)
{
    // NOLINTBEGIN(bugprone-suspicious-missing-comma): no two of these belong together
    for (const std::string_view good :
         {"", "a", "\x7f", "\xc2\x80", "\xdf\xbf", "\xe0\xa0\x80", "\xed\x9f\xbf", "\xee\x80\x80",
          "\xef\xbf\xbf", "\xf0\x90\x80\x80", "\xf4\x8f\xbf\xbf"})
        EXPECT_TRUE(is_utf8(good)) << quoted(good);
    for (const std::string_view bad :
         {"\x80", "\xbf", "\xc0\x80", "\xc1\xbf", "\xc2", "\xc2.", "\xe0\x9f\xbf", "\xe0\xa0",
          "\xed\xa0\x80", "\xf0\x8f\xbf\xbf", "\xf4\x90\x80\x80", "\xf5\x80\x80\x80",
          "\xf0\x90\x80", "\xe2\x82.", "\xff"})
        EXPECT_FALSE(is_utf8(bad)) << quoted(bad);
    // NOLINTEND(bugprone-suspicious-missing-comma)
    EXPECT_TRUE(is_utf8(std::string_view("\0", 1)));
}

TEST(text, writes_bytes_as_digits)
{
    const std::vector<uint8_t> bytes{0xde, 0xad, 0x00, 0x0f};
    EXPECT_EQ(hex(bytes), "de ad 00 0f");
    EXPECT_EQ(hex(bytes, ""), "dead000f");
    EXPECT_EQ(hex({}), "");
}

TEST(text, finds_the_name_that_was_meant)
{
    const std::vector<std::string_view> names{"port_reset", "port_enable", "switch_info", "vlan"};
    const std::pair<const char *, const char *> cases[] = {
        {"port_rest", "port_reset"},    // a letter is missing
        {"port_resset", "port_reset"},  // one too many
        {"prot_reset", "port_reset"},   // two are swapped
        {"swatch_info", "switch_info"}, // one is wrong
        {"vlna", "vlan"},
        {"sw", ""},
        {"", ""},
        {"something_else", ""},
    };
    for (const auto &[wanted, meant] : cases)
        EXPECT_EQ(nearest(wanted, names), meant) << wanted;
    EXPECT_EQ(did_you_mean("vlam", names), " (did you mean vlan?)");
    EXPECT_EQ(did_you_mean("x", names), "");
}

TEST(text, does_not_compare_names_that_are_too_long_to_be_any)
{
    EXPECT_EQ(nearest(std::string(1000000, 'a'), {std::string_view("port_reset")}), "");
}

} // namespace

} // namespace inspect
