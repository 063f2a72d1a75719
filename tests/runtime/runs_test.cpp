// SPDX-License-Identifier: MIT
// Which function serves a run, and with which tag and flags: those of the run's first member.
#include "runtime/runs.hpp"

#include "tests/support/bytes.hpp"

#include <gtest/gtest.h>

using namespace tarn;
using test::Bytes;

namespace {

// Numbers 30 to 33 of a record, of which the flags are 6 to 9.
struct Record {
    uint32_t other[2];
    uint32_t members[4];
    uint8_t flags[2];
};
constexpr Run kRun = {Kind::uint32, 4, 30, 6, offsetof(Record, members)};

} // namespace

TEST(a_tag, of_a_run_goes_by_its_kind)
{
    struct Row {
        Kind kind;
        uint32_t tag;
    };
    for (const Row &row : {Row{Kind::uint32, 0x80},
                           {Kind::uint64, 0x80},
                           {Kind::boolean, 0x80},
                           {Kind::string, 0x82},
                           {Kind::bytes, 0x82},
                           {Kind::message, 0x82},
                           {Kind::repeated_uint32, 0x80},
                           {Kind::repeated_string, 0x82},
                           {Kind::repeated_message, 0x82}})
        EXPECT_EQ(tag_of({row.kind, 1, 16, 0, 0}), row.tag);
}

TEST(a_run_of_numbers, is_measured_and_written_from_its_own_tag_and_flag_on)
{
    // Flags 5 and 10 are those of neighbours.
    const Record record = {{}, {1, 2, 300, 4}, {0xA0, 0x05}};
    const uint8_t *bytes = reinterpret_cast<const uint8_t *>(&record);
    EXPECT_EQ((measure_run<kRun, void>(7, bytes, record.flags, 0)), 7u + 3 + 4);
    Bytes buffer(7);
    Encoder out(buffer.data(), 7, nullptr, nullptr, 0);
    EXPECT_EQ((write_run<kRun, void>(0, out, out.roomy(), bytes, record.flags)), 7u);
    EXPECT_EQ(buffer, (Bytes{0xF8, 0x01, 0x02, 0x80, 0x02, 0xAC, 0x02}));
}

TEST(a_run_of_numbers, is_decoded_to_its_own_members_and_flags)
{
    Record record = {};
    const uint8_t input[] = {0x05, 0x88, 0x02, 0x06, 0x90, 0x02};
    Decoder in(input, sizeof input, {nullptr, nullptr}, 0);
    // Fields 30 and 33; field 34 is handed on.
    const Cursor next = decode_run<kRun, void>(
        {input, 0xF0}, in, reinterpret_cast<uint8_t *>(&record), offsetof(Record, flags));
    EXPECT_EQ(next.tag(), 0x110u);
    EXPECT_EQ(next.at, input + sizeof input);
    EXPECT_EQ(record.members[0], 5u);
    EXPECT_EQ(record.members[3], 6u);
    EXPECT_EQ(record.other[1], 0u);
    EXPECT_EQ(record.flags[0], 0x40);
    EXPECT_EQ(record.flags[1], 0x02);
}

TEST(a_run_of_numbers, hands_on_a_tag_that_is_not_its_own)
{
    Record record = {};
    const uint8_t input[] = {0x05};
    Decoder in(input, 1, {nullptr, nullptr}, 0);
    for (uint32_t tag : {0x00u, 0x08u, 0xE8u, 0x110u, 0xFFFFFFF8u, kStop}) {
        const Cursor cursor = decode_run<kRun, void>(
            {input, tag}, in, reinterpret_cast<uint8_t *>(&record), offsetof(Record, flags));
        EXPECT_EQ(cursor.tag(), tag);
        EXPECT_EQ(cursor.at, input);
    }
    EXPECT_EQ(record.flags[0] | record.flags[1], 0);
}
