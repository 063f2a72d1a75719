// SPDX-License-Identifier: MIT
// Records as trees, as they look.
#include "tests/tools/golden.hpp"
#include "tests/tools/message.hpp"
#include "tests/tools/sample_record.hpp"
#include "tools/core/phrase.hpp"
#include "tools/core/tree.hpp"
#include "tools/core/walk.hpp"

#include <algorithm>
#include <gtest/gtest.h>

namespace inspect {

namespace {

constexpr size_t kTreeMemory = size_t{1} << 24;

struct TreeScreen {
    const char *name;
    const char *type;
    std::string message;
};

// Nearly all kinds of members; embedded records and elements, with and without content.
std::string switch_message()
{
    const std::string identity =
        number(1, UINT32_MAX) + number(5, 5) + number(6, 61) + number(6, 300) + number(6, 0);
    const std::string phy = number(1, 401) + piece(2, number(2, 402)) + number(6, 406);
    const std::string sfp = number(1, 501) + number(3, 1) + number(4, 0);
    const std::string port = piece(1, number(1, 11)) + number(2, 2) + piece(3, "first port") +
                             piece(4, phy) + piece(5, sfp) + number(7, 16384);
    return number(1, 1) + piece(2, identity) + number(3, 128) + piece(4, "the switch in rack 7") +
           number(5, 0) + number(6, 1) + piece(8, port) + piece(8, piece(3, "") + piece(5, "")) +
           piece(8, "") + number(9, UINT64_MAX);
}

// Four levels of lists.
std::string registers_message()
{
    const std::string value = number(1, 0x1000) + piece(2, "\xFF\x01\xAB");
    const std::string column = piece(1, "status") + piece(3, value) + piece(3, value);
    const std::string section = piece(1, "MAC") + piece(2, column) + piece(2, piece(1, "empty"));
    return number(1, 0) + piece(2, section) + piece(2, "");
}

std::string numbers_message()
{
    std::string message;
    for (uint64_t i = 0; i < 40; i++)
        message += number(6, i * i * i * i);
    return message;
}

// Counters; more elements than have one digit.
std::string names_message()
{
    std::string message = number(1, 255);
    for (int i = 0; i < 10; i++)
        message += piece(3, "image_" + std::to_string(i) + ".bin");
    return message + piece(3, "") + piece(3, repeated(30, "a/long/path/"));
}

std::string byte_strings_message()
{
    return piece(3, "") + piece(4, repeated(16, "\xA5")) + piece(5, repeated(17, "\x5A")) +
           piece(6, repeated(64, "\x01")) + piece(9, repeated(300, "\xFF"));
}

std::vector<TreeScreen> tree_screens()
{
    // The string literals are apart where a digit would belong to what is before it.
    const std::string odd = "a\xC3\xA4\xE2\x82\xAC \x1B[31m \"\\\" \xFF \xC2\x9B \x7F\t\n "
                            "\xF0\x9F\x98\x80";
    return {
        {"tree_switch_info", "switch_info", switch_message()},
        {"tree_empty", "switch_info", ""},
        {"tree_no_fields", "get_switch_info", ""},
        {"tree_registers", "reg_info_rsp", registers_message()},
        {"tree_numbers", "calv_eid_st", numbers_message()},
        {"tree_list_of_texts", "fpd_cmp_to_file", names_message()},
        {"tree_byte_strings", "add_pcl_flow", byte_strings_message()},
        {"tree_odd_text", "bcm_shell_cmd", piece(1, odd)},
        {"tree_long_text", "bcm_shell_cmd", piece(1, repeated(120, "\xC3\xA4 "))},
        // The second port ends within its name; with what is there of it.
        {"tree_stopped_in_element", "switch_info",
         number(1, 1) + piece(8, number(2, 1)) +
             piece(8, number(2, 2) + "\x1A\x05"
                                     "ab") +
             piece(8, number(2, 3))},
        {"tree_stopped_in_record", "switch_info",
         number(1, 1) + piece(2, number(1, 7) + number(6, 1) + "\x30")},
        {"tree_stopped_at_text", "fpd_cmp_to_file", number(1, 1) + piece(3, "a") + "\x1A\x09"},
        {"tree_stopped_at_number", "port_enable", number(1, 1) + "\x10"},
        {"tree_stopped_at_second_list", "switch_info",
         piece(8, number(2, 1)) + number(9, 1) + piece(8, number(2, 2))},
    };
}

std::string tree_of(RecordView record, const std::vector<Step> &stopped_at, bool coloured)
{
    std::string text;
    write_tree(record, Palette(coloured), stopped_at,
               [&text](std::string_view part) { text += part; });
    return text;
}

std::string decoded_tree(const char *type, std::string_view message, bool coloured = false)
{
    Record record(*find_type(type), kTreeMemory);
    const int32_t result = record.decode(bytes_of(message));
    const Verdict verdict = explain(record, bytes_of(message), result);
    return tree_of(record.view(), verdict.path, coloured);
}

std::string without_colours(std::string text)
{
    for (size_t at; (at = text.find('\033')) != std::string::npos;)
        text.erase(at, text.find('m', at) + 1 - at);
    return text;
}

size_t widest_line(std::string_view text)
{
    size_t widest = 0;
    while (!text.empty()) {
        const size_t end = text.find('\n');
        widest = std::max(widest, screen_width(text.substr(0, end)));
        text.remove_prefix(end + 1);
    }
    return widest;
}

bool has_word(const std::string &text, std::string_view word)
{
    return text.find(" " + std::string(word)) != std::string::npos;
}

TEST(tree, looks_as_it_should)
{
    for (const TreeScreen &screen : tree_screens())
        expect_golden(std::string(screen.name) + ".txt", decoded_tree(screen.type, screen.message));
}

TEST(tree, looks_as_it_should_in_colour)
{
    for (const TreeScreen &screen : tree_screens()) {
        const std::string coloured = decoded_tree(screen.type, screen.message, true);
        EXPECT_EQ(without_colours(coloured), decoded_tree(screen.type, screen.message));
        if (std::string_view(screen.name) == "tree_switch_info" ||
            std::string_view(screen.name) == "tree_stopped_in_element")
            expect_golden(std::string(screen.name) + ".ansi", coloured);
    }
}

TEST(tree, shows_every_member_of_every_type)
{
    for (const RecordType &type : every_type()) {
        const std::string text = tree_of(Samples().record(type).view(), {}, false);
        for (const Member &member : type.members)
            EXPECT_TRUE(has_word(text, member.name)) << type.name << " " << member.name;
        EXPECT_EQ(has_word(text, "(empty)"), type.members.empty()) << type.name;
    }
}

TEST(tree, fits_on_a_screen_whatever_the_type)
{
    for (const RecordType &type : every_type()) {
        Samples samples(UINT32_MAX - 10000, repeated(20, "text of some length, "));
        const std::string text = tree_of(samples.record(type).view(), {}, false);
        EXPECT_LE(widest_line(text), kScreenWidth) << text;
    }
}

TEST(tree, shows_what_is_written_and_nothing_else)
{
    for (const RecordType &type : every_type())
        for (const Member &member : type.members) {
            Record record(type, kTreeMemory);
            Samples().fill(record.editor(), member, record.arena());
            const std::string text = tree_of(record.view(), {}, false);
            // Lines of the record itself have no more than the branch in front.
            EXPECT_NE(text.find("\n└─ " + std::string(member.name)), std::string::npos) << text;
            EXPECT_EQ(text.find("\n├─ "), std::string::npos) << text;
        }
}

TEST(tree, shows_nothing_that_a_terminal_would_obey)
{
    const std::string hostile = "\033[2J\x07\b\r\x9B\xC2\x9B\x7F";
    for (const RecordType &type : every_type()) {
        const std::string text = tree_of(Samples(1, hostile).record(type).view(), {}, false);
        EXPECT_TRUE(is_utf8(text)) << type.name;
        EXPECT_EQ(text.find("\xC2\x9B"), std::string::npos) << type.name;
        EXPECT_TRUE(std::ranges::none_of(text, [](char c) {
            return (c >= 0 && c < ' ' && c != '\n') || c == 0x7F;
        })) << type.name;
    }
}

// Every byte at which a message may end: what was read is shown, and nothing that was not.
TEST(tree, says_where_decoding_stopped)
{
    for (const char *name : {"switch_info", "reg_info_rsp", "debug_get_health_state_rsp",
                             "fpd_cmp_to_file", "pcl_rule_info", "show_txq_enq_global",
                             "yield_switch_to_peer_response", "bridge_sec_breach_details"}) {
        const std::vector<uint8_t> whole = Samples().record(*find_type(name)).encode();
        // Of long ones some.
        for (size_t length = 0; length < whole.size(); length += 1 + whole.size() / 100) {
            // In a block of its own, so that a sanitizer sees who reads beyond it.
            const std::vector<uint8_t> cut(whole.begin(),
                                           whole.begin() + static_cast<ptrdiff_t>(length));
            Record record(*find_type(name), kTreeMemory);
            const Verdict verdict = explain(record, cut, record.decode(cut));
            const std::string text = tree_of(record.view(), verdict.path, false);
            EXPECT_EQ(has_word(text, "decoding stopped here"), !verdict.path.empty())
                << name << " " << length << " " << verdict.text() << "\n"
                << text;
        }
    }
}

TEST(tree, shows_texts_that_are_missing)
{
    const RecordType &type = *find_type("bcm_shell_cmd");
    Record record(type, kTreeMemory);
    record.editor().set_text(type.members[0], nullptr);
    EXPECT_TRUE(has_word(tree_of(record.view(), {}, false), "(null)"));
}

TEST(tree, shows_a_bool_that_is_neither_true_nor_false)
{
    const RecordType &type = *find_type("port_enable");
    Record record(type, kTreeMemory);
    record.editor().set_number(*type.member_of_name("enable"), 2);
    EXPECT_TRUE(has_word(tree_of(record.view(), {}, false), "true (byte 0x02)"));
}

TEST(tree, comes_in_small_pieces_and_tells_how_far_it_is)
{
    const std::string port = piece(8, piece(1, number(6, 1)) + piece(3, repeated(100, "name")));
    const std::string message = repeated(300, port) + number(9, 1);
    Record record(*find_type("switch_info"), kTreeMemory);
    ASSERT_EQ(record.decode(bytes_of(message)), WIRE_OK);
    size_t largest = 0;
    std::vector<double> told;
    write_tree(
        record.view(), Palette(true), {},
        [&largest](std::string_view part) { largest = std::max(largest, part.size()); },
        [&told](double done) { told.push_back(done); });
    EXPECT_LT(largest, 500u);
    EXPECT_GE(told.size(), 80u);
    EXPECT_LE(told.size(), 100u);
    EXPECT_TRUE(std::ranges::is_sorted(told));
    EXPECT_TRUE(std::ranges::all_of(told, [](double done) { return done >= 0 && done <= 1; }));
}

} // namespace

} // namespace inspect
