// SPDX-License-Identifier: MIT
// Texts as tools print them and people paste them: what they are taken for, and what they say.
#include "tools/core/input.hpp"

#include "tests/tools/hex_bytes.hpp"
#include "tools/core/error.hpp"
#include "tools/core/text.hpp"

#include <gtest/gtest.h>

namespace inspect {

namespace {

const char kShort[] = "08051a04deadbeef20012a036162632a0a";
// The same with 64 zero bytes in the middle, and once more.
const std::string kLong = std::string(kShort) + "000000" + std::string(122, '0') + kShort;

struct Paste {
    const char *what;
    InputFormat format;
    std::string bytes;
    std::string text;
};

std::string digits_of(std::string_view text, InputFormat format)
{
    std::vector<uint8_t> storage;
    return hex(parse_input(text, format, storage), "");
}

// As they are, and indented by an editor that has line breaks of its own.
void expect_taken(const std::vector<Paste> &pastes)
{
    for (const Paste &paste : pastes) {
        SCOPED_TRACE(paste.what);
        EXPECT_EQ(recognise(paste.text), paste.format);
        EXPECT_EQ(digits_of(paste.text, paste.format), paste.bytes);
        std::string indented = "\r\n  ";
        for (const char c : paste.text)
            indented += c == '\n' ? "\r\n  " : std::string(1, c);
        EXPECT_EQ(recognise(indented), paste.format);
        EXPECT_EQ(digits_of(indented, paste.format), paste.bytes);
    }
}

TEST(input, takes_dumps_as_xxd_prints_them)
{
    expect_taken({
        {"xxd", InputFormat::xxd, kShort,
         "00000000: 0805 1a04 dead beef 2001 2a03 6162 632a  ........ .*.abc*\n"
         "00000010: 0a                                       .\n"},
        {"xxd -g1", InputFormat::xxd, kShort,
         "00000000: 08 05 1a 04 de ad be ef 20 01 2a 03 61 62 63 2a  ........ .*.abc*\n"
         "00000010: 0a                                               .\n"},
        {"xxd -g0 -u", InputFormat::xxd, kShort,
         "00000000: 08051A04DEADBEEF20012A036162632A  ........ .*.abc*\n"
         "00000010: 0A                                .\n"},
        {"xxd -c8 -g1", InputFormat::xxd, kShort,
         "00000000: 08 05 1a 04 de ad be ef  ........\n"
         "00000008: 20 01 2a 03 61 62 63 2a   .*.abc*\n"
         "00000010: 0a                       .\n"},
        {"xxd -c8 -g1 with characters that could be bytes", InputFormat::xxd, "6162206364206566",
         "00000000: 61 62 20 63 64 20 65 66  ab cd ef\n"},
        {"xxd -d", InputFormat::xxd, kShort,
         "00000000: 0805 1a04 dead beef 2001 2a03 6162 632a  ........ .*.abc*\n"
         "00000016: 0a                                       .\n"},
        {"xxd -s 4", InputFormat::xxd, "deadbeef20012a036162632a0a",
         "00000004: dead beef 2001 2a03 6162 632a 0a         .... .*.abc*.\n"},
        {"xxd -a", InputFormat::xxd, kLong,
         "00000000: 0805 1a04 dead beef 2001 2a03 6162 632a  ........ .*.abc*\n"
         "00000010: 0a00 0000 0000 0000 0000 0000 0000 0000  ................\n"
         "00000020: 0000 0000 0000 0000 0000 0000 0000 0000  ................\n"
         "*\n"
         "00000050: 0008 051a 04de adbe ef20 012a 0361 6263  ......... .*.abc\n"
         "00000060: 2a0a                                     *.\n"},
    });
}

TEST(input, takes_dumps_as_hexdump_and_od_print_them)
{
    expect_taken({
        {"hexdump -C", InputFormat::xxd, kLong,
         "00000000  08 05 1a 04 de ad be ef  20 01 2a 03 61 62 63 2a  |........ .*.abc*|\n"
         "00000010  0a 00 00 00 00 00 00 00  00 00 00 00 00 00 00 00  |................|\n"
         "00000020  00 00 00 00 00 00 00 00  00 00 00 00 00 00 00 00  |................|\n"
         "*\n"
         "00000050  00 08 05 1a 04 de ad be  ef 20 01 2a 03 61 62 63  |......... .*.abc|\n"
         "00000060  2a 0a                                             |*.|\n"
         "00000062\n"},
        {"hexdump -C of macOS, which leaves out parts of lines, too", InputFormat::xxd,
         std::string(40, '0'),
         "00000000  00 00 00 00 00 00 00 00  00 00 00 00 00 00 00 00  |................|\n"
         "*\n"
         "00000014\n"},
        {"hexdump", InputFormat::xxd, kShort,
         "0000000 0508 041a adde efbe 0120 032a 6261 2a63\n"
         "0000010 000a                                   \n"
         "0000011\n"},
        {"hexdump -x", InputFormat::xxd, kShort,
         "0000000    0508    041a    adde    efbe    0120    032a    6261    2a63\n"
         "0000010    000a                                                        \n"
         "0000011\n"},
        {"od -A x -t x1z", InputFormat::xxd, kShort,
         "000000 08 05 1a 04 de ad be ef 20 01 2a 03 61 62 63 2a  >........ .*.abc*<\n"
         "000010 0a                                               >.<\n"
         "000011\n"},
        {"od -t x1", InputFormat::xxd, kLong,
         "0000000 08 05 1a 04 de ad be ef 20 01 2a 03 61 62 63 2a\n"
         "0000020 0a 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00\n"
         "0000040 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00\n"
         "*\n"
         "0000120 00 08 05 1a 04 de ad be ef 20 01 2a 03 61 62 63\n"
         "0000140 2a 0a\n"
         "0000142\n"},
        {"od -t x1, only zeros", InputFormat::xxd, std::string(128, '0'),
         "0000000 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00\n"
         "*\n"
         "0000100\n"},
        {"od -A d -t x1z", InputFormat::xxd, kShort,
         "0000000 08 05 1a 04 de ad be ef 20 01 2a 03 61 62 63 2a  >........ .*.abc*<\n"
         "0000016 0a                                               >.<\n"
         "0000017\n"},
        {"od -t x4", InputFormat::xxd, kShort,
         "0000000 041a0508 efbeadde 032a0120 2a636261\n"
         "0000020 0000000a\n"
         "0000021\n"},
    });
}

TEST(input, takes_dumps_of_other_tools)
{
    expect_taken({
        {"tcpdump -X", InputFormat::xxd, "08051a04deadbeef20012a036162632a0a",
         "\t0x0000:  0805 1a04 dead beef 2001 2a03 6162 632a  ..........*.abc*\n"
         "\t0x0010:  0a                                       .\n"},
        {"a packet copied with offsets", InputFormat::xxd, kShort,
         "0000   08 05 1a 04 de ad be ef 20 01 2a 03 61 62 63 2a   ........ .*.abc*\n"
         "0010   0a                                                .\n"},
        {"a colon, and a gap in the middle", InputFormat::xxd, kShort,
         "00000000: 08 05 1A 04 DE AD BE EF  20 01 2A 03 61 62 63 2A  ........ .*.abc*\n"
         "00000010: 0A                                                .\n"},
        {"a debugger", InputFormat::xxd, "08051a04deadbeef2001",
         "0x7ffe5c00:\t0x08\t0x05\t0x1a\t0x04\t0xde\t0xad\t0xbe\t0xef\n"
         "0x7ffe5c08:\t0x20\t0x01\n"},
        {"a debugger, words", InputFormat::xxd, "08051a04deadbeef",
         "0x7ffe5c00:\t0x041a0508\t0xefbeadde\n"},
    });
}

TEST(input, takes_hex_digits_however_they_are_separated)
{
    const char four[] = "08051a04";
    for (const char *text : {
             "08051a04",
             "08051A04\n",
             "08 05 1a 04",
             "08 051a 04",
             "08\n05\n1a\n04\n",
             "08:05:1a:04",
             "    08:05:\n    1a:04",
             "08-05-1A-04",
             "08, 05, 1a, 04",
             "08,05,1a,04,",
             "0x08 0x05 0x1a 0x04",
             "0x8, 0x5, 0x1A, 0x4",
             "0X08,0X05,0X1A,0X04",
             "0x08051a04",
             "\\x08\\x05\\x1a\\x04",
             "\"\\x08\\x05\\x1a\\x04\"",
             "\"08051a04\"",
             "'08 05 1a 04'\n",
             "8 5 1a 4",
             "0805 1a04",
         }) {
        EXPECT_EQ(recognise(text), InputFormat::hex) << text;
        EXPECT_EQ(digits_of(text, InputFormat::hex), four) << text;
    }
    EXPECT_EQ(recognise(kLong), InputFormat::hex);
}

TEST(input, takes_groups_of_digits_for_hex_unless_the_first_is_an_offset)
{
    for (const char *text : {
             "00000000 041a0508 efbeadde\n",
             "0805 1a 04 de ad",
             "1a04 deadbeef\n2001",
             "00000000\n00000000\n",
             "0000 0010\n0010 0000\n",
             "0000000000000000 01\n0000000000000005 01\n",
         })
        EXPECT_EQ(recognise(text), InputFormat::hex) << text;
    for (const char *text : {
             "0000 08 05",
             "00000000 041a0508 efbeadde\n00000008\n",
             "0805: 1a04",
             "00000400  08 05  |..|",
         })
        EXPECT_EQ(recognise(text), InputFormat::xxd) << text;
}

TEST(input, takes_base64)
{
    expect_taken({
        {"padded", InputFormat::base64, kShort, "CAUaBN6tvu8gASoDYWJjKgo=\n"},
        {"not padded", InputFormat::base64, kShort, "CAUaBN6tvu8gASoDYWJjKgo"},
        {"quoted", InputFormat::base64, kShort, "\"CAUaBN6tvu8gASoDYWJjKgo=\""},
        {"in lines", InputFormat::base64, kShort, "CAUaBN6tvu8gASoDYWJj\nKgo=\n"},
        {"the other alphabet", InputFormat::base64, "fbff", "-_8="},
        {"this alphabet", InputFormat::base64, "fbff", "+/8="},
        {"one byte", InputFormat::base64, "08", "CA=="},
        {"a whole group", InputFormat::base64, "080510", "CAUQ"},
    });
}

TEST(input, takes_c_arrays)
{
    expect_taken({
        {"a declaration", InputFormat::c_array, "08030a610a08",
         "static const uint8_t x[] = { 0x08, 0x03, 10, 'a', '\\n', 010 };\n"},
        {"xxd -i", InputFormat::c_array, kShort,
         "unsigned char m_bin[] = {\n"
         "  0x08, 0x05, 0x1a, 0x04, 0xde, 0xad, 0xbe, 0xef, 0x20, 0x01, 0x2a, 0x03,\n"
         "  0x61, 0x62, 0x63, 0x2a, 0x0a\n"
         "};\n"
         "unsigned int m_bin_len = 17;\n"},
        {"braces alone", InputFormat::c_array, "0803", "{0x08, 0x03}"},
        {"what is between them", InputFormat::c_array, "080a03", "0x08, 10, 0x03,\n"},
        {"decimal", InputFormat::c_array, "0810c8", "8, 16, 200"},
        {"a cast", InputFormat::c_array, "0803", "decode(&record, (const uint8_t[]){8, 3}, 2);"},
        {"a slice of Go", InputFormat::c_array, "0803", "x := []byte{0x08, 0x03,}"},
        {"comments", InputFormat::c_array, "08ff",
         "/* the { answer */ uint8_t x[2] = { // \"two\"\n 0x08, /* tag */ -1 };"},
        {"suffixes and bits", InputFormat::c_array, "08ff02", "{8u, 0xFFUL, 0b10}"},
        {"characters", InputFormat::c_array, "275c0041ff80",
         R"({'\'', '\\', '\0', '\x41', '\377', -128})"},
        {"a literal", InputFormat::c_array, "0803610a", R"(const char x[] = "\x08\x03" "a\n";)"},
        {"escapes", InputFormat::c_array, "07080c0a0d090b1b5c27223f0001",
         R"("\a\b\f\n\r\t\v\e\\\'\"\?\0\001")"},
        {"Python", InputFormat::c_array, "08056162630a", R"(data = b'\x08\x05abc\n')"},
    });
}

TEST(input, takes_what_is_no_text_as_it_is)
{
    const std::string zeros(100, '\0');
    for (const std::string_view raw :
         {std::string_view("\x08\x05", 2), std::string_view("08 05\0", 6), std::string_view(zeros),
          std::string_view("\x0a\x02hi"), std::string_view(""), std::string_view("hello, world"),
          std::string_view("\x7f"), std::string_view("{}"),
          // Well-formed fields that are printable.
          std::string_view(" \n"), std::string_view("  "), std::string_view("8 "),
          std::string_view("0"), std::string_view("0-"), std::string_view("8,"),
          std::string_view("PA"), std::string_view("\"\"")}) {
        EXPECT_EQ(recognise(raw), InputFormat::raw) << quoted(raw);
        std::vector<uint8_t> storage{1};
        const Bytes bytes = parse_input(raw, InputFormat::raw, storage);
        EXPECT_EQ(reinterpret_cast<const char *>(bytes.data()), raw.data());
        EXPECT_EQ(bytes.size(), raw.size());
    }
}

TEST(input, takes_a_lone_line_break_for_no_bytes)
{
    for (const char *text : {"\n", "\r\n"}) {
        EXPECT_EQ(recognise(text), InputFormat::hex);
        EXPECT_EQ(digits_of(text, InputFormat::hex), "");
    }
}

TEST(input, takes_an_empty_text_for_no_bytes_in_every_format_that_has_a_text_for_them)
{
    EXPECT_EQ(digits_of("", InputFormat::raw), "");
    EXPECT_EQ(digits_of("", InputFormat::hex), "");
    EXPECT_EQ(digits_of("", InputFormat::base64), "");
    EXPECT_EQ(digits_of("", InputFormat::xxd), "");
    EXPECT_EQ(digits_of("", InputFormat::c_array), "");
    EXPECT_EQ(digits_of("00000000\n", InputFormat::xxd), "");
    EXPECT_EQ(digits_of("{}", InputFormat::c_array), "");
    EXPECT_EQ(digits_of("\"\"", InputFormat::c_array), "");
}

TEST(input, knows_broken_texts_that_can_be_nothing_else)
{
    EXPECT_EQ(recognise("00000000: 0805 1a04\n00000005: zz\n"), InputFormat::xxd);
    EXPECT_EQ(recognise("00000000  08 05 |..|\nand more"), InputFormat::xxd);
    EXPECT_EQ(recognise("0000 08 05\n*\n10000000 08 05"), InputFormat::xxd);
    EXPECT_EQ(recognise("uint8_t x[] = { 400 };"), InputFormat::c_array);
    EXPECT_EQ(recognise("08051a04dea"), InputFormat::hex);
}

} // namespace

} // namespace inspect
