// SPDX-License-Identifier: MIT
// The gather list: which pieces an encoding reports, in which order, and into how much room.
#include "ethsw_mgmt/forwarding.h"
#include "ethsw_mgmt/hardware.h"
#include "tests/support/operations.hpp"
#include "tests/support/samples.hpp"

#include <gtest/gtest.h>

using namespace test;

namespace {

constexpr uint32_t kInPlace = WIRE_FLAG_BYTES_IN_PLACE;

// Of `full` pieces an array for n receives the first n, and always the same count is reported.
template <typename Record>
void expect_pieces_in_every_array(const Record &record, uint32_t flags,
                                  const std::vector<Named> &others,
                                  const std::vector<std::string> &full)
{
    const uint32_t length = measure(record, flags);
    Bytes buffer(length);
    const WireSegment untouched = {reinterpret_cast<const uint8_t *>(16), 77};
    for (uint32_t room = 0; room <= full.size() + 1; room++) {
        SCOPED_TRACE("room for " + std::to_string(room));
        std::vector<WireSegment> segments(full.size() + 2, untouched);
        uint32_t count = room;
        EXPECT_EQ(CodecFor<Record>::encode(&record, buffer.data(), length, segments.data(), &count,
                                           flags),
                  length);
        EXPECT_EQ(count, full.size());
        for (size_t i = 0; i < segments.size(); i++)
            EXPECT_EQ(describe(segments[i], buffer.data(), length, others),
                      i < room && i < full.size() ? full[i] : "(null+16, 77)");
    }
    for (uint32_t claimed : {0u, 5u}) {
        uint32_t count = claimed;
        EXPECT_EQ(CodecFor<Record>::encode(&record, buffer.data(), length, nullptr, &count, flags),
                  length);
        EXPECT_EQ(count, full.size()) << "without an array";
    }
}

} // namespace

TEST(pieces, cover_each_record_after_those_inside_it)
{
    expect_pieces_in_every_array(Sample().record, 0, {},
                                 {"(buffer+21, 2)", "(buffer+36, 5)", "(buffer, 43)"});
    expect_pieces_in_every_array(SampleShell().record, 0, {},
                                 {"(buffer+4, 2)", "(buffer+2, 4)", "(buffer+8, 2)",
                                  "(buffer+14, 2)", "(buffer+12, 4)", "(buffer, 18)"});
    expect_pieces_in_every_array(SampleParcel().record, 0, {},
                                 {"(buffer+4, 8)", "(buffer+14, 3)", "(buffer, 22)"});
    expect_pieces_in_every_array(Every{}, 0, {}, {});
}

TEST(pieces, of_bytes_in_place_are_those_around_each_byte_string_and_itself)
{
    Sample sample;
    expect_pieces_in_every_array(
        sample.record, kInPlace, {{sample.blob, "blob"}},
        {"(buffer, 17)", "(blob, 2)", "(buffer+19, 2)", "(buffer+34, 5)", "(buffer+17, 24)"});
}

TEST(pieces, of_bytes_in_place_inside_nested_records_come_before_those_around_them)
{
    SampleParcel parcel;
    const std::vector<Named> others = {
        {parcel.inner, "inner"}, {parcel.element, "element"}, {parcel.outer, "outer"}};
    expect_pieces_in_every_array(parcel.record, kInPlace, others,
                                 {"(buffer+4, 4)", "(inner, 2)", "(buffer+8, 2)", "(buffer+12, 2)",
                                  "(element, 1)", "(buffer, 18)", "(outer, 1)"});
}

TEST(bytes_in_place, are_left_out_of_the_buffer_and_of_every_length_around_them)
{
    SampleParcel parcel;
    // Not only bit 0 set, and whether or not somebody asks for pieces.
    for (uint32_t flags : {1u, 3u, 0xFFFFFFFFu}) {
        EXPECT_EQ(encode(parcel.record, flags), kSampleParcelBytesInPlace);
        EXPECT_EQ(encode_into(18, 10, parcel.record, flags).buffer, kSampleParcelBytesInPlace);
    }
    for (uint32_t flags : {2u, 0xFFFFFFFEu})
        EXPECT_EQ(encode(parcel.record, flags), kSampleParcelBytes);
}

TEST(bytes_in_place, are_no_piece_when_there_are_none)
{
    const uint8_t data[] = {1};
    Blobs record = {};
    record.first = data;
    record.second = data;
    record.second_length = 1;
    record.has_first = record.has_second = 1;
    EXPECT_EQ(encode(record, kInPlace), (Bytes{0x12, 0x00, 0x22, 0x01}));
    EXPECT_EQ(pieces(record, kInPlace, {{data, "data"}}), "(buffer, 4) (data, 1)");
}

TEST(bytes_in_place, may_be_of_any_length)
{
    const uint8_t *const nowhere = reinterpret_cast<const uint8_t *>(16);
    Blobs record = {};
    record.first = record.second = nowhere;
    record.first_length = record.second_length = 0xFFFFFFFF;
    record.has_first = record.has_second = 1;
    EXPECT_EQ(measure(record, kInPlace), 12u);
    EXPECT_EQ(pieces(record, kInPlace, {{nowhere, "data"}}),
              "(buffer, 6) (data, 4294967295) (buffer+6, 6) (data, 4294967295)");
}

// A record that starts at or behind the capacity has no buffer: its pieces count from null.
TEST(pieces, of_records_that_start_behind_the_capacity_count_from_null)
{
    struct Row {
        uint32_t first, last;
        const char *expected;
    };
    for (const Row &row : {Row{0, 0, "(null, 2) (null, 5) (null, 43)"},
                           Row{1, 21, "(null, 2) (null, 5) (buffer, 43)"},
                           Row{22, 36, "(buffer+21, 2) (null, 5) (buffer, 43)"},
                           Row{37, 45, "(buffer+21, 2) (buffer+36, 5) (buffer, 43)"}})
        for (uint32_t capacity = row.first; capacity <= row.last; capacity++)
            EXPECT_EQ(encode_into(capacity, 5, Sample().record).pieces, row.expected)
                << "capacity " << capacity;
}

TEST(pieces, can_be_counted_before_there_is_a_buffer)
{
    Sample sample;
    EXPECT_EQ(encode_into(0, 9, sample.record, kInPlace, {{sample.blob, "blob"}}).pieces,
              "(null, 17) (blob, 2) (null, 2) (null, 5) (null+17, 24)");
    EXPECT_EQ(encode_into(0, 0, sample.record, kInPlace).count, 5u);
}

// Number 3 and two entries, numbered 1 and 2.
TEST(pieces, of_a_summary_with_two_entries)
{
    tarn_ethsw_mgmt_sfp_summary_entry entries[2] = {};
    entries[0].field_1 = 1;
    entries[1].field_1 = 2;
    entries[0].has_field_1 = entries[1].has_field_1 = 1;
    tarn_ethsw_mgmt_sfp_summary_response record = {};
    record.field_1 = 3;
    record.entries = entries;
    record.entries_count = 2;
    record.has_field_1 = record.has_entries = 1;

    const auto encode_ext = tarn_ethsw_mgmt_sfp_summary_response_encode_ext;
    EXPECT_EQ(encode_ext(&record, nullptr, 0, nullptr, nullptr, 0), 10u);
    Bytes buffer(10);
    for (auto [room, expected] :
         {std::pair{8u, "(buffer+4, 2) (buffer+8, 2) (buffer, 10) "}, {1u, "(buffer+4, 2) "}}) {
        WireSegment segments[8];
        uint32_t count = room;
        EXPECT_EQ(encode_ext(&record, buffer.data(), 10, segments, &count, 0), 10u);
        EXPECT_EQ(buffer, (Bytes{0x08, 0x03, 0x12, 0x02, 0x08, 0x01, 0x12, 0x02, 0x08, 0x02}));
        EXPECT_EQ(count, 3u);
        std::string found;
        for (uint32_t i = 0; i < count && i < room; i++)
            found += describe(segments[i], buffer.data(), 10, {}) + " ";
        EXPECT_EQ(found, expected);
    }
}

// Port 5, four bytes of address, number 1: first copied, then left in place.
TEST(pieces, of_a_security_breach_with_an_address)
{
    const uint8_t data[] = {0xDE, 0xAD, 0xBE, 0xEF};
    tarn_ethsw_mgmt_bridge_sec_breach_details record = {};
    record.field_1 = 5;
    record.field_3 = data;
    record.field_3_length = 4;
    record.field_4 = 1;
    record.has_field_1 = record.has_field_3 = record.has_field_4 = 1;

    const auto encode_ext = tarn_ethsw_mgmt_bridge_sec_breach_details_encode_ext;
    struct Row {
        uint32_t flags;
        Bytes bytes;
        std::vector<std::string> pieces;
    };
    for (const Row &row :
         {Row{0, {0x08, 0x05, 0x1A, 0x04, 0xDE, 0xAD, 0xBE, 0xEF, 0x20, 0x01}, {"(buffer, 10)"}},
          Row{kInPlace,
              {0x08, 0x05, 0x1A, 0x04, 0x20, 0x01},
              {"(buffer, 4)", "(data, 4)", "(buffer+4, 2)"}}}) {
        EXPECT_EQ(encode_ext(&record, nullptr, 0, nullptr, nullptr, row.flags), row.bytes.size());
        Bytes buffer(row.bytes.size());
        WireSegment segments[4];
        uint32_t count = 4;
        EXPECT_EQ(encode_ext(&record, buffer.data(), buffer.length(), segments, &count, row.flags),
                  row.bytes.size());
        EXPECT_EQ(buffer, row.bytes);
        ASSERT_EQ(count, row.pieces.size());
        for (uint32_t i = 0; i < count; i++)
            EXPECT_EQ(describe(segments[i], buffer.data(), buffer.length(), {{data, "data"}}),
                      row.pieces[i]);
    }
}
