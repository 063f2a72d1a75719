// SPDX-License-Identifier: MIT
// What is said, and where, about a text that is not JSON.
#include "tests/tools/hex_bytes.hpp"
#include "tests/tools/json_support.hpp"
#include "tools/core/json_text.hpp"

#include <gtest/gtest.h>

namespace inspect {

namespace {

TEST(json_text, says_where_a_text_is_not_json)
{
    expect_refused({
        {"switch_info", "", "line 1, column 1: the text ends too early"},
        {"switch_info", " \n ", "line 2, column 2: the text ends too early"},
        {"switch_info", "{", "line 1, column 2: the text ends too early"},
        {"switch_info", R"({"na)", "line 1, column 5: the text ends too early"},
        {"switch_info", R"({"name")", "line 1, column 8: the text ends too early"},
        {"switch_info", R"({"name":)", "line 1, column 9: the text ends too early"},
        {"switch_info", R"({"name":"a")", "line 1, column 12: the text ends too early"},
        {"switch_info", "{\n  \"name\": }", "line 2, column 11: unexpected \"}\""},
        {"switch_info", R"({"name":"a",})", "line 1, column 13: unexpected \"}\""},
        {"switch_info", R"({"ports":[{},]})", "line 1, column 14: unexpected \"]\""},
        {"switch_info", R"({"ports":[{}})", "line 1, column 13: unexpected \"}\""},
        {"switch_info", R"({"ports":[{} {}]})", "line 1, column 14: unexpected \"{\""},
        {"switch_info", R"({"name" "a"})", "line 1, column 9: unexpected string \"a\""},
        {"switch_info", R"({"name":"a" "b"})", "line 1, column 13: unexpected string \"b\""},
        {"switch_info", R"({name:"a"})", "line 1, column 2: unexpected \"name\""},
        {"switch_info", R"({'name':"a"})", "line 1, column 2: unexpected \"'\""},
        {"switch_info", R"({"field_6":True})", "line 1, column 12: unexpected \"True\""},
        {"switch_info", R"({"field_6":tru})", "line 1, column 12: unexpected \"tru\""},
        {"switch_info", R"({"field_6":truer})", "line 1, column 12: unexpected \"truer\""},
        {"switch_info", R"({"field_1":NaN})", "line 1, column 12: unexpected \"NaN\""},
        {"switch_info", R"({"field_1":01})", "line 1, column 12: unexpected \"01\""},
        {"switch_info", R"({"field_1":-})", "line 1, column 12: unexpected \"-\""},
        {"switch_info", R"({"field_1":1.})", "line 1, column 12: unexpected \"1.\""},
        {"switch_info", R"({"field_1":+1})", "line 1, column 12: unexpected \"+1\""},
        {"switch_info", R"({"field_1":0x1})", "line 1, column 12: unexpected \"0x1\""},
        {"switch_info", R"({} // no)", "line 1, column 4: there is more behind the end"},
        {"switch_info", "{}\n\n{}", "line 3, column 1: there is more behind the end"},
        {"switch_info", R"({}"a")", "line 1, column 3: there is more behind the end"},
        {"switch_info", "{}\x1B", "line 1, column 3: there is more behind the end"},
        {"switch_info", "\x1B[31m", "line 1, column 1: unexpected \"\\x1b\""},
        {"switch_info", "\xC3\xBC", "line 1, column 1: unexpected \"\xC3\xBC\""},
        {"switch_info", "\xEF\xBB", "line 1, column 2: the text ends too early"},
    });
}

TEST(json_text, says_what_is_wrong_in_a_string)
{
    expect_refused({
        {"timespec", "{\"text\":\"a\nb\"}",
         "line 1, column 11: a control character in a string, where it has to be escaped"},
        {"timespec", "{\"text\":\"a\x1Fz\"}",
         "line 1, column 11: a control character in a string, where it has to be escaped"},
        {"timespec", R"({"text":"a\x41"})", "line 1, column 12: an escape that JSON does not have"},
        {"timespec", R"({"text":"a\u00g0"})",
         "line 1, column 15: an escape that JSON does not have"},
        {"timespec", R"({"text":"\ud800"})",
         "line 1, column 16: an escape that JSON does not have"},
        {"timespec", R"({"text":"\udc00\ud800"})",
         "line 1, column 15: an escape that JSON does not have"},
        {"timespec", "{\"text\":\"\xC3\xBC\xFF\"}",
         "line 1, column 11: a string that is not UTF-8"},
        {"timespec", "{\"text\":\"\xE2\x82\"}", "line 1, column 11: a string that is not UTF-8"},
        {"timespec", "{\"text\":\"\xED\xA0\x80\"}",
         "line 1, column 11: a string that is not UTF-8"},
    });
}

TEST(json_text, does_not_take_a_zero_byte_for_the_end)
{
    using namespace std::literals;
    EXPECT_EQ(error_of("switch_info", "{}\0{}"sv), "line 1, column 3: a zero byte");
    EXPECT_EQ(error_of("switch_info", "{}\0"sv), "line 1, column 3: a zero byte");
    EXPECT_EQ(error_of("switch_info", "\0"sv), "line 1, column 1: a zero byte");
}

TEST(json_text, gives_the_parser_one_blank_for_many)
{
    const std::string_view json = "{ \n\t \"a  \\\"  b\" :\r\n[] }  ";
    std::string seen;
    for (JsonCharacters at(json); !at.at_end(); ++at)
        seen += *at;
    EXPECT_EQ(seen, "{ \"a  \\\"  b\" :\r[] } ");
}

TEST(json_text, takes_long_runs_of_blanks_lightly)
{
    const std::string blanks(100000, '\n');
    EXPECT_EQ(encoded("port_reset", "{" + blanks + "\"port\"" + blanks + ":" + blanks + "1" +
                                        blanks + "}" + blanks),
              from_hex("08 01"));
    EXPECT_EQ(error_of("port_reset", "{" + blanks + "]"),
              "line 100001, column 1: unexpected \"]\"");
    EXPECT_EQ(encoded("timespec", R"({"text":"a   \"  \\"   })"),
              from_hex("1a 08 61 20 20 20 22 20 20 5c"));
}

} // namespace

} // namespace inspect
