// SPDX-License-Identifier: MIT
// The annotated hex dump, as it looks.
#include "tests/tools/golden.hpp"
#include "tests/tools/hex_bytes.hpp"
#include "tools/core/dump.hpp"

#include <gtest/gtest.h>

namespace inspect {

namespace {

struct Screen {
    const char *name;
    const char *type;
    std::string message;
};

// A switch with nearly all kinds of members, which another protocol library has encoded.
const char kSwitchInfo[] =
    "0801120f08ffffffff0f2805303d30ac023000188001222061207377697463682074686174207072"
    "6f746f632068617320656e636f64656428003001422e0a02080b10021a0a666972737420706f7274"
    "220b08910312031092033096032a0708f50318012000300638808001420c1a00220608ffffffff0f"
    "2a00420048ffffffffffffffffff01";

const Screen kScreens[] = {
    {"dump_switch_info", "switch_info", kSwitchInfo},
    {"dump_byte_strings", "bridge_sec_breach_details",
     "08051a"
     "28"
     "000102030405060708090a0b0c0d0e0f101112131415161718191a1b1c1d1e1f2021222324252627"
     "2001"
     "2a00"},
    {"dump_empty", "port_enable", ""},
    {"dump_unusual", "port_enable", "08810008020a"},
    {"dump_leniency", "port_enable",
     "10057a02aabb088180808010"
     "1d0102"},
    {"dump_text", "bcm_shell_cmd", "0a0a1b5b316d2200c3a4ff0a"},
    {"dump_malformed_inside", "sfp_summary_response", "080312020801120208"},
    {"dump_list_past_the_end", "sfp_summary_response", "08031202080112050801"},
    {"dump_jump", "port_enable", "08011afaffffff0f"},
};

std::string dumped(const Screen &screen, bool coloured)
{
    std::string text;
    DumpOptions options;
    options.palette = Palette(coloured);
    write_dump(*find_type(screen.type), from_hex(screen.message), options,
               [&text](std::string_view part) { text += part; });
    return text;
}

TEST(dump, looks_as_it_should)
{
    for (const Screen &screen : kScreens)
        expect_golden(std::string(screen.name) + ".txt", dumped(screen, false));
}

TEST(dump, has_colours)
{
    expect_golden("dump_switch_info.ansi", dumped(kScreens[0], true));
}

// Whatever is in a message: what a terminal would obey is shown, not sent.
TEST(dump, sends_no_control_character_of_the_message)
{
    std::string message = "0aff01";
    for (int i = 0; i < 255; i++) {
        static const char digits[] = "0123456789abcdef";
        message += {digits[i >> 4], digits[i & 15]};
    }
    const std::string text = dumped({"", "bcm_shell_cmd", message}, false);
    for (const char c : text)
        EXPECT_TRUE(c == '\n' || static_cast<unsigned char>(c) >= ' ');
}

TEST(dump, shows_all_bytes_when_asked)
{
    const std::vector<uint8_t> message = from_hex("0a64" + std::string(200, '6'));
    std::string text;
    DumpOptions options;
    options.all_bytes = true;
    const Sink sink = [&text](std::string_view part) { text += part; };
    write_dump(*find_type("bcm_shell_cmd"), message, options, sink);
    EXPECT_EQ(text.find(" more"), std::string::npos);
    EXPECT_NE(text.find("00005a  66"), std::string::npos);
}

} // namespace

} // namespace inspect
