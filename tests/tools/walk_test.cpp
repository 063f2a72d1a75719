// SPDX-License-Identifier: MIT
// Which bytes are which field, what is unusual about them, and where decoding ends and why.
#include "tests/tools/hex_bytes.hpp"
#include "tools/core/text.hpp"
#include "tools/core/walk.hpp"

#include <fmt/format.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace inspect {

namespace {

std::string_view part_words(Part part)
{
    static constexpr std::string_view words[] = {"tag", "length", "value", "skipped", "unread"};
    return words[static_cast<size_t>(part)];
}

// A line for each piece: offset, part, path, bytes.
class Lines : public Visitor {
public:
    bool visit(const Piece &piece) override
    {
        lines.push_back(fmt::format("{} {} {} {}", piece.offset, part_words(piece.part),
                                    path_text(*piece.path), hex(piece.bytes, "")));
        notes.add(piece.notes);
        return lines.size() < most;
    }

    std::vector<std::string> lines;
    Notes notes;
    size_t most = SIZE_MAX;
};

TEST(walk, shows_each_tag_length_and_value_with_its_path)
{
    Lines seen;
    const std::vector<uint8_t> message = from_hex("08 03  12 02 08 01  12 02 08 02");
    const Verdict verdict = walk(*find_type("sfp_summary_response"), message, seen);
    EXPECT_EQ(verdict.result, WIRE_OK);
    const std::vector<std::string> expected = {
        "0 tag field_1 08",
        "1 value field_1 03",
        "2 tag entries[0] 12",
        "3 length entries[0] 02",
        "4 tag entries[0].field_1 08",
        "5 value entries[0].field_1 01",
        "6 tag entries[1] 12",
        "7 length entries[1] 02",
        "8 tag entries[1].field_1 08",
        "9 value entries[1].field_1 02",
    };
    EXPECT_EQ(seen.lines, expected);
    EXPECT_FALSE(seen.notes.any());
}

TEST(walk, shows_skipped_fields_without_a_path)
{
    Lines seen;
    EXPECT_EQ(walk(*find_type("port_enable"), from_hex("7a 02 aa bb 08 01"), seen).result, WIRE_OK);
    const std::vector<std::string> expected = {
        "0 tag  7a", "1 length  02", "2 skipped  aabb", "4 tag port 08", "5 value port 01",
    };
    EXPECT_EQ(seen.lines, expected);
}

struct Noted {
    const char *type;
    const char *message;
    Note note;
};

const Noted kNoted[] = {
    {"port_enable", "08 81 00", Note::overlong_varint},
    {"port_enable", "88 00 01", Note::overlong_varint},
    {"port_enable", "08 81 80 80 80 10", Note::dropped_bits},
    {"port_enable", "08 ff ff ff ff ff ff ff ff ff 01", Note::dropped_bits},
    {"port_enable", "10 02", Note::bool_above_one},
    {"port_enable", "18 05", Note::unknown_field},
    {"port_enable", "00 05", Note::unknown_field},
    {"port_enable", "19 01 02 03", Note::past_the_end},
    {"port_enable", "1d 01 02 03", Note::past_the_end},
    {"port_enable", "1a 7f", Note::past_the_end},
    {"port_enable", "08 01 1a fe ff ff ff 0f 08 01 1a fe ff ff ff 0f", Note::backward_jump},
    {"port_enable", "08 01 08 02", Note::met_again},
    {"port_enable", "10 01 08 02", Note::out_of_order},
    {"fdb_get_counters_response", "12 00 12 00", Note::replaced_record},
    {"vlan_table_entry", "12 01 05", Note::packed_run},
    {"vlan_table_entry", "10 05 08 01 10 06", Note::broken_run},
    {"vlan_table_entry", "10 05 12 06", Note::other_wire_type},
    {"vlan_table_entry", "1a 02 61 00", Note::zero_byte_in_text},
    {"vlan_table_entry", "1a 01 ff", Note::not_utf8},
};

TEST(walk, notes_what_is_unusual)
{
    for (const Noted &each : kNoted) {
        Lines seen;
        walk(*find_type(each.type), from_hex(each.message), seen);
        EXPECT_TRUE(seen.notes.has(each.note)) << each.message << ": " << note_words(each.note);
    }
}

TEST(walk, notes_nothing_in_a_message_as_the_library_writes_it)
{
    for (const char *message : {"", "08 00", "08 80 01 10 01", "08 ff ff ff ff 0f"}) {
        Lines seen;
        walk(*find_type("port_enable"), from_hex(message), seen);
        EXPECT_FALSE(seen.notes.any()) << message;
    }
}

struct Ended {
    const char *type;
    const char *message;
    const char *text; // of the verdict
};

const Ended kEnded[] = {
    {"port_enable", "", "WIRE_OK"},
    {"port_enable", "08",
     "at offset 0x1 (1), in port: WIRE_ERR_MALFORMED: it ends inside a number"},
    {"port_enable", "08 01 80", "at offset 0x2 (2): WIRE_ERR_MALFORMED: it ends inside a tag"},
    {"port_enable", "1b",
     "at offset 0x0 (0): WIRE_ERR_WIRE_TYPE: unknown field 3: a group cannot be "
     "skipped"},
    {"port_enable", "0a 00",
     "at offset 0x0 (0), in port: WIRE_ERR_TYPE_MISMATCH: uint32 cannot come as something with a "
     "length"},
    {"port_enable", "1a 80",
     "at offset 0x1 (1): WIRE_ERR_MALFORMED: it ends inside unknown field 3"},
    {"vlan_table_entry", "1a",
     "at offset 0x1 (1), in field_3: WIRE_ERR_MALFORMED: it ends inside a length"},
    {"vlan_table_entry", "1a 05 61",
     "at offset 0x1 (1), in field_3: WIRE_ERR_MALFORMED: its length is 5, but 1 byte is left"},
    {"vlan_table_entry", "1a 05",
     "at offset 0x1 (1), in field_3: WIRE_ERR_MALFORMED: its length is 5, but 0 bytes are left"},
    {"vlan_table_entry", "1a 00 1a 00",
     "at offset 0x2 (2), in field_3: WIRE_ERR_MALFORMED: it comes a second time"},
    {"vlan_table_entry", "10 05 08 01 10 06",
     "at offset 0x4 (4), in field_2[0]: WIRE_ERR_MALFORMED: the list goes on after another field"},
    {"vlan_table_entry", "10 05 10 80",
     "at offset 0x3 (3), in field_2[1]: WIRE_ERR_MALFORMED: an element reaches past the end"},
    {"sfp_summary_response", "12 02 08 01 12 02 0a 00",
     "at offset 0x6 (6), in entries[1].field_1: WIRE_ERR_TYPE_MISMATCH: uint32 cannot come as "
     "something with a length"},
    // The run is counted before its first element is looked at.
    {"sfp_summary_response", "12 02 0a 00 12 02 08",
     "at offset 0x5 (5), in entries[1]: WIRE_ERR_MALFORMED: an element reaches past the end"},
    {"port_enable", "1a fa ff ff ff 0f",
     "at offset 0x1 (1): WIRE_ERR_MALFORMED: it jumps back for ever"},
};

TEST(walk, says_where_decoding_ends_and_why_and_agrees_with_the_library)
{
    for (const Ended &each : kEnded) {
        const std::vector<uint8_t> message = from_hex(each.message);
        Record record(*find_type(each.type), SIZE_MAX);
        const int32_t result = record.decode(message);
        Lines seen;
        EXPECT_EQ(walk(record.type(), message, seen).text(), each.text) << each.message;
        EXPECT_EQ(explain(record, message, result).text(), each.text) << each.message;
    }
}

TEST(walk, tells_which_block_of_memory_was_refused)
{
    const std::vector<uint8_t> message = from_hex("10 05 10 06 1a 20" + std::string(64, '6'));
    Record record(*find_type("vlan_table_entry"), 16); // enough for the list, not for the text
    const int32_t result = record.decode(message);
    EXPECT_EQ(result, WIRE_ERR_NO_MEMORY);
    EXPECT_EQ(explain(record, message, result).text(),
              "at offset 0x5 (5), in field_3: WIRE_ERR_NO_MEMORY: 33 bytes of memory were refused");
}

TEST(walk, ends_when_the_visitor_does)
{
    Lines seen;
    seen.most = 1;
    const Verdict verdict = walk(*find_type("port_enable"), from_hex("08 01 10 01"), seen);
    EXPECT_EQ(seen.lines.size(), 1u);
    EXPECT_EQ(verdict.result, WIRE_OK);
    EXPECT_EQ(verdict.reason, "it is not read any further");
}

// Each field jumps back to just behind the one before it, onto a record that spans nearly all.
TEST(walk, gives_up_on_a_message_that_jumps_back_too_often)
{
    std::vector<uint8_t> message = from_hex("12 ff ff 03");
    message.resize(size_t{4} + 0xFFFF, 0x08);
    const std::vector<uint8_t> field = from_hex("08 01 7a");
    const auto append = [&message](const std::vector<uint8_t> &bytes) {
        message.insert(message.end(), bytes.begin(), bytes.end());
    };
    for (int i = 0; i < 40; i++) {
        append(field);
        const uint64_t behind = message.size() + 5;
        const uint64_t back = (uint64_t{1} << 32) - behind;
        for (int shift = 0; shift < 35; shift += 7)
            message.push_back(
                static_cast<uint8_t>((back >> shift & 0x7F) | (shift < 28 ? 0x80 : 0)));
    }
    Lines seen;
    const Verdict verdict = walk(*find_type("fdb_get_counters_response"), message, seen);
    EXPECT_LT(seen.lines.size(), 3u << 20);
    EXPECT_NE(verdict.text(), "");
}

} // namespace

} // namespace inspect
