// SPDX-License-Identifier: MIT
// What is wrong with a text, and where.
#include "tools/core/error.hpp"
#include "tools/core/input.hpp"
#include "tools/core/text.hpp"

#include <gtest/gtest.h>

namespace inspect {

namespace {

struct Wrong {
    std::string text;
    const char *error;
};

std::string error_of(std::string_view text, InputFormat format)
{
    try {
        std::vector<uint8_t> storage;
        return hex(parse_input(text, format, storage));
    } catch (const Error &error) {
        return error.what();
    }
}

void expect_errors(InputFormat format, const std::vector<Wrong> &all)
{
    for (const Wrong &wrong : all)
        EXPECT_EQ(error_of(wrong.text, format), wrong.error) << quoted(wrong.text);
}

TEST(input_errors, tell_line_and_column_in_hex)
{
    expect_errors(
        InputFormat::hex,
        {
            {"08 05\n1a 04\nde ad z", "line 3, column 7: 'z' is no hex digit"},
            {"08 0g", "line 1, column 5: 'g' is no hex digit"},
            {"08 \033[2J", "line 1, column 4: the byte 0x1b is no hex digit"},
            {"08 \xe2\x80\x93", "line 1, column 4: the byte 0xe2 is no hex digit"},
            {"\n080", "line 2, column 1: an odd number of hex digits"},
            {"8, 5", "line 1, column 1: an odd number of hex digits"},
            {"0x08, 05", "line 1, column 7: a prefix is on some numbers and not on others"},
            {"0x08 \\x05", "line 1, column 6: a prefix is on some numbers and not on others"},
            {"08 0x", "line 1, column 4: a prefix is on some numbers and not on others"},
            {"0x08, 0x", "line 1, column 9: the text ends where a hex digit has to be"},
            {"\\x080", "line 1, column 5: more than two digits behind \\x"},
            {"0x080x05", "line 1, column 6: 'x' is no hex digit"},
            {"08 -5", "line 1, column 4: '-' is no hex digit"},
            {"08--05", "line 1, column 3: '-' is no hex digit"},
            {"\"08", "line 1, column 1: '\"' is no hex digit"},
        });
}

TEST(input_errors, tell_line_and_column_in_dumps)
{
    const std::string line = "00000000: 0805 1a04  ....\n";
    expect_errors(
        InputFormat::xxd,
        {
            {line + "00000004: 08z5\n", "line 2, column 13: 'z' is no hex digit"},
            {line + "00000004: 080\n", "line 2, column 11: an odd number of hex digits"},
            {line + "\n00000005: 08\n", "line 3, column 1: the offset 00000005, where 0x4 is next"},
            {line + "00000003: 08\n", "line 2, column 1: the offset 00000003, where 0x4 is next"},
            {line + "0004:08\n",
             "line 2, column 6: an offset ends with a blank, or with a colon and "
             "a blank"},
            {line + "08 05\n",
             "line 2, column 1: a line of a dump begins with an offset of 4 to 16 hex digits"},
            {line + "00000000000000004 05\n",
             "line 2, column 1: a line of a dump begins with an offset of 4 to 16 hex digits"},
            {"*\n" + line, "line 1, column 1: a * without a line before it"},
            {line + "*\n", "line 2, column 1: a * without an offset behind it"},
            {line + " * 3\n", "line 2, column 4: something behind a *"},
            {line + "*\n00000000\n", "line 3, column 1: the offset 00000000, where 0x4 is next"},
            {line + "*\n04000005\n", "line 3, column 1: more than 64 MiB of repeated lines"},
            {line + "*\nffffffffffffffff: 08\n",
             "line 3, column 1: more than 64 MiB of repeated lines"},
            {"0000 0805 1a\n0003\n",
             "line 1, column 11: neither a byte nor a word like those before it"},
            {"0000 080510 1a0405\n0006\n",
             "line 1, column 6: neither a byte nor a word like those before it"},
        });
}

TEST(input_errors, are_for_all_repeated_lines_together)
{
    EXPECT_EQ(error_of("00000000: 08\n*\n00002001: 08\n*\n04002003: 08\n", InputFormat::xxd),
              "line 5, column 1: more than 64 MiB of repeated lines");
}

TEST(input_errors, tell_line_and_column_in_base64)
{
    expect_errors(
        InputFormat::base64,
        {
            {"CAUa\nBN*t", "line 2, column 3: '*' is no base64 character"},
            {"CAUa BN6t", "line 1, column 5: a blank between base64 characters"},
            {"CAUaB", "line 1, column 6: a base64 character is missing, or one is too many"},
            {"CAV", "line 1, column 4: base64 that does not end with a byte"},
            {"CAU==", "line 1, column 6: a base64 character is missing, or one is too "
                      "many"},
            {"CA=", "line 1, column 4: base64 that does not end with a byte"},
            {"CA==CAU=", "line 1, column 9: base64 that does not end with a byte"},
        });
}

TEST(input_errors, tell_line_and_column_in_c_arrays)
{
    expect_errors(InputFormat::c_array,
                  {
                      {"uint8_t x[] = {\n  0x08,\n  400 };", "line 3, column 3: '400' is no byte"},
                      {"{ 99999999999999999999999999 }",
                       "line 1, column 3: '99999999999999999999...' is no byte"},
                      {"{ -129 }", "line 1, column 3: '-129' is no byte"},
                      {"{ 08 }", "line 1, column 3: '08' is no number"},
                      {"{ 0x }", "line 1, column 3: '0x' is no number"},
                      {"{ x }", "line 1, column 3: 'x' is no number"},
                      {"{ 8 5 }", "line 1, column 5: neither a comma nor a }"},
                      {"{ 8,, 5 }", "line 1, column 5: ',' is no number"},
                      {"{ 8, 5", "line 1, column 7: neither a comma nor a }"},
                      {"{ .x = 5 }", "line 1, column 3: '.' is no number"},
                      {"{ '' }", "line 1, column 4: a character is missing"},
                      {"{ 'ab' }", "line 1, column 5: a ' has to end the character"},
                      {"{ '", "line 1, column 4: a character is missing"},
                      {"8; 5", "line 1, column 2: ';' is no comma"},
                      {"{8} {5}", "line 1, column 5: something behind the array"},
                      {"x[] = {8}; int x_len = 2;",
                       "line 1, column 24: a length of '2', but 1 bytes are there"},
                      {"{8} /* 5", "line 1, column 5: a comment without an end"},
                      {"{8} / 5", "line 1, column 5: '/' that begins no comment"},
                      {"hello", "line 1, column 6: an array has a { or a \" somewhere"},
                      {"\"a\nb\"", "line 1, column 1: a string without an end"},
                      {"\"\\x08abc\"", "line 1, column 2: an escape that is more than a byte"},
                      {"\"\\777\"", "line 1, column 2: an escape that is more than a byte"},
                      {"\"\\q\"", "line 1, column 3: an escape that C does not have"},
                      {"\"\\xg\"", "line 1, column 4: 'g' is no hex digit"},
                      {"\"\\8\"", "line 1, column 3: '8' is no octal digit"},
                      {"\"\\", "line 1, column 3: an escape that C does not have"},
                  });
}

} // namespace

} // namespace inspect
