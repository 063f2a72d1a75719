// SPDX-License-Identifier: MIT
// Whether a message is as the library would write it, and whether JSON can hold its record.
#include "tests/tools/hex_bytes.hpp"
#include "tools/core/check.hpp"

#include <algorithm>
#include <gtest/gtest.h>

namespace inspect {

namespace {

Check check_hex(const char *type, const char *message)
{
    return check(*find_type(type), from_hex(message), SIZE_MAX);
}

bool tells(const Check &check, uint32_t offset, std::string_view path, std::string_view text)
{
    return std::ranges::any_of(check.findings, [&](const Finding &finding) {
        return finding.offset == offset && finding.path == path &&
               finding.text.find(text) != std::string::npos;
    });
}

TEST(check, finds_nothing_in_what_the_library_writes)
{
    for (const char *message : {"", "08 05", "08 05 10 01"}) {
        const Check found = check_hex("port_enable", message);
        EXPECT_TRUE(found.is_canonical && found.fits_json) << message;
        EXPECT_TRUE(found.findings.empty()) << message;
    }
}

TEST(check, says_where_encoding_gives_other_bytes)
{
    const Check found = check_hex("port_enable", "08 05 10 02");
    EXPECT_FALSE(found.is_canonical);
    EXPECT_TRUE(tells(found, 3, "", "01 instead of 02"));
    EXPECT_TRUE(tells(found, 3, "enable", "not 0 or 1"));
}

TEST(check, says_that_encoding_leaves_out_unknown_fields)
{
    const Check found = check_hex("port_enable", "08 05 18 01");
    EXPECT_FALSE(found.is_canonical);
    EXPECT_TRUE(tells(found, 2, "", "nothing more instead of 18 01"));
    EXPECT_TRUE(tells(found, 2, "(field 3)", "unknown"));
}

TEST(check, takes_a_message_in_another_order_for_not_canonical)
{
    const Check found = check_hex("port_enable", "10 01 08 05");
    EXPECT_FALSE(found.is_canonical);
    EXPECT_TRUE(tells(found, 2, "port", "out of order"));
}

TEST(check, gives_the_verdict_on_a_message_that_is_refused)
{
    const Check found = check_hex("port_enable", "08 05 10");
    EXPECT_EQ(found.verdict.result, WIRE_ERR_MALFORMED);
    EXPECT_EQ(found.verdict.offset, 3u);
    EXPECT_FALSE(found.is_canonical);
}

TEST(check, tells_of_text_that_json_cannot_hold)
{
    const Check found = check_hex("bcm_shell_cmd", "0a 02 61 ff");
    EXPECT_TRUE(found.is_canonical);
    EXPECT_FALSE(found.fits_json);
    EXPECT_TRUE(tells(found, 2, "command", "not UTF-8"));
}

TEST(check, ends_a_list_of_findings_that_would_be_endless)
{
    std::vector<uint8_t> message;
    for (int i = 0; i < 5000; i++)
        message.insert(message.end(), {0x08, 0x81, 0x00});
    const Check found = check(*find_type("port_enable"), message, SIZE_MAX);
    EXPECT_LT(found.findings.size(), 200u);
}

TEST(beyond_json, is_a_flagged_text_that_is_null_and_a_bool_above_one)
{
    Record texts(*find_type("bcm_shell_cmd"), SIZE_MAX);
    texts.editor().set_text(texts.type().members[0], nullptr);
    ASSERT_EQ(beyond_json(texts.view()).size(), 1u);
    EXPECT_EQ(beyond_json(texts.view())[0].path, "command");

    Record bools(*find_type("port_enable"), SIZE_MAX);
    bools.editor().set_number(bools.type().members[1], 2);
    ASSERT_EQ(beyond_json(bools.view()).size(), 1u);
    EXPECT_EQ(beyond_json(bools.view())[0].path, "enable");
}

} // namespace

} // namespace inspect
