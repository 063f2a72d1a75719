// SPDX-License-Identifier: MIT
// Bytes as texts to paste, and gather lists.
#include "tools/core/output.hpp"

#include "tests/tools/hex_bytes.hpp"
#include "tools/core/input.hpp"

#include <gtest/gtest.h>
#include <numeric>

namespace inspect {

namespace {

std::string written(Bytes bytes, OutputFormat format, std::string_view name = "message")
{
    std::string out;
    write_bytes(bytes, format, name, [&out](std::string_view text) { out += text; });
    return out;
}

std::string segments_of(const char *type, const char *message, bool in_place)
{
    Record record(*find_type(type), SIZE_MAX);
    EXPECT_EQ(record.decode(from_hex(message)), WIRE_OK);
    std::string out;
    write_segments(gather(record, in_place), [&out](std::string_view text) { out += text; });
    return out;
}

// Every byte once, in an order in which nothing looks like an offset.
std::vector<uint8_t> all_bytes()
{
    std::vector<uint8_t> bytes(256);
    std::iota(bytes.rbegin(), bytes.rend(), uint8_t{0});
    return bytes;
}

TEST(output, writes_raw_bytes_as_they_are)
{
    EXPECT_EQ(written(from_hex("08 00 0a"), OutputFormat::raw), std::string("\x08\0\n", 3));
    EXPECT_EQ(written({}, OutputFormat::raw), "");
}

TEST(output, writes_hex_in_lines)
{
    EXPECT_EQ(written(from_hex("08 05 1a"), OutputFormat::hex), "08051a\n");
    EXPECT_EQ(written({}, OutputFormat::hex), "\n");
    const std::vector<uint8_t> bytes(33, 0xab);
    std::string line;
    for (int i = 0; i < 32; i++)
        line += "ab";
    EXPECT_EQ(written(bytes, OutputFormat::hex), line + "\nab\n");
}

TEST(output, writes_arrays_that_c_compiles)
{
    EXPECT_EQ(written(from_hex("00 01 02 03 04 05 06 07 08 09 0a 0b 0c"), OutputFormat::c_array,
                      "port_reset"),
              "const uint8_t port_reset[] = {\n"
              "    0x00, 0x01, 0x02, 0x03, 0x04, 0x05, 0x06, 0x07, 0x08, 0x09, 0x0a, 0x0b,\n"
              "    0x0c,\n"
              "};\n"
              "const uint32_t port_reset_length = 13;\n");
    EXPECT_EQ(written({}, OutputFormat::c_array, "x"), "const uint8_t x[] = \"\";\n"
                                                       "const uint32_t x_length = 0;\n");
}

TEST(output, makes_identifiers_of_names)
{
    const std::pair<const char *, const char *> names[] = {
        {"port_reset", "port_reset"}, {"a-b c.bin", "a_b_c_bin"},
        {"3com", "message3com"},      {"", "message"},
        {"switch", "switch_"},        {"gr\xc3\xbcn", "gr__n"},
    };
    for (const auto &[name, identifier] : names)
        EXPECT_TRUE(written({}, OutputFormat::c_array, name)
                        .starts_with(std::string("const uint8_t ") + identifier + "[]"))
            << name;
}

TEST(output, is_recognised_and_read_back)
{
    for (const size_t size : std::vector<size_t>{0, 1, 2, 31, 32, 33, 64, 256}) {
        std::vector<uint8_t> bytes = all_bytes();
        bytes.resize(size);
        const std::pair<OutputFormat, InputFormat> formats[] = {
            {OutputFormat::hex, InputFormat::hex}, {OutputFormat::c_array, InputFormat::c_array}};
        for (const auto &[out, in] : formats) {
            const std::string text = written(bytes, out);
            EXPECT_EQ(recognise(text), in) << text;
            std::vector<uint8_t> storage;
            EXPECT_EQ(hex(parse_input(text, in, storage)), hex(bytes));
        }
    }
}

TEST(segments, are_the_buffer_and_what_stays_in_place)
{
    EXPECT_EQ(segments_of("bridge_sec_breach_details", "08051a04deadbeef20012a03616263", true),
              "0  buffer +0  4 bytes  08 05 1a 04\n"
              "1  in place   4 bytes  de ad be ef\n"
              "2  buffer +4  7 bytes  20 01 2a 03 61 62 63\n");
    EXPECT_EQ(segments_of("bridge_sec_breach_details", "08051a04deadbeef20012a03616263", false),
              "0  buffer +0  15 bytes  08 05 1a 04 de ad be ef 20 01 2a 03 61 62 63\n");
}

TEST(segments, are_cut_short_where_they_are_long)
{
    EXPECT_EQ(
        segments_of("bridge_sec_breach_details", "1a12 000102030405060708090a0b0c0d0e0f1011", true),
        "0  buffer +0   2 bytes  1a 12\n"
        "1  in place   18 bytes  00 01 02 03 04 05 06 07 08 09 0a 0b 0c 0d 0e 0f and 2 more\n");
}

TEST(segments, of_nested_records_come_before_those_that_hold_them)
{
    EXPECT_EQ(segments_of("switch_info", "0807 1202 0801", false),
              "0  buffer +4  2 bytes  08 01\n"
              "1  buffer +0  6 bytes  08 07 12 02 08 01\n");
}

TEST(segments, are_none_where_nothing_is_written)
{
    EXPECT_EQ(segments_of("switch_info", "", true), "");
}

} // namespace

} // namespace inspect
