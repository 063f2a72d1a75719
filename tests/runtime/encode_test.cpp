// SPDX-License-Identifier: MIT
// Encoding whole records: which members are written, in which order, and the records of the
// catalogue by example.
#include "ethsw_mgmt/forwarding.h"
#include "ethsw_mgmt/hardware.h"
#include "ethsw_mgmt/switch.h"
#include "tests/support/boxes.hpp"
#include "tests/support/huge_text.hpp"
#include "tests/support/operations.hpp"
#include "tests/support/plain_encoder.hpp"
#include "tests/support/samples.hpp"

#include <gtest/gtest.h>

using namespace test;

TEST(encoding, writes_every_kind_with_tags_of_every_width)
{
    EXPECT_EQ(encode(SampleFrom<1>().record), kSampleBytes);
    EXPECT_EQ(encode(SampleFrom<16>().record), kSampleBytesFrom16);
    EXPECT_EQ(encode(SampleFrom<32>().record), kSampleBytesFrom32);
}

TEST(encoding, goes_as_deep_as_the_records_do)
{
    EXPECT_EQ(encode(SampleShell().record), kSampleShellBytes);
    EXPECT_EQ(encode(SampleParcel().record), kSampleParcelBytes);
}

TEST(encoding, gives_nothing_without_flags)
{
    Sample sample;
    Every &record = sample.record;
    record.has_number = record.has_wide = record.has_truth = record.has_text = 0;
    record.has_blob = record.has_numbers = record.has_texts = record.has_leaves = 0;
    // The embedded record goes by its own flags.
    record.has_leaf = 0;
    EXPECT_EQ(encode(record), (Bytes{0x32, 0x02, 0x08, 0x05}));
    record.leaf.has_number = 0;
    EXPECT_EQ(encode(record), Bytes{});
    EXPECT_EQ(pieces(record), "");
}

TEST(encoding, does_not_follow_pointers_without_flags)
{
    const auto nowhere = reinterpret_cast<void *>(16);
    Every record = {};
    record.text = static_cast<const char *>(nowhere);
    record.blob = static_cast<const uint8_t *>(nowhere);
    record.leaf.text = static_cast<const char *>(nowhere);
    record.numbers = static_cast<uint32_t *>(nowhere);
    record.texts = static_cast<const char **>(nowhere);
    record.leaves = static_cast<Leaf *>(nowhere);
    record.blob_length = record.numbers_count = record.texts_count = record.leaves_count = 5;
    EXPECT_EQ(encode(record), Bytes{});
    // Nor those to what is empty.
    record.blob_length = record.numbers_count = record.texts_count = record.leaves_count = 0;
    record.has_blob = record.has_numbers = record.has_texts = record.has_leaves = 1;
    EXPECT_EQ(encode(record), (Bytes{0x2A, 0x00}));
}

TEST(encoding, tests_each_flag_for_its_own_member)
{
    struct Row {
        void (*set)(Every &record);
        Bytes expected;
    };
    const Row rows[] = {
        {[](Every &r) { r.has_number = 1; }, {0x08, 0x09}},
        {[](Every &r) { r.has_wide = 1; }, {0x10, 0x80, 0x80, 0x80, 0x80, 0x80, 0x01}},
        {[](Every &r) { r.has_truth = 1; }, {0x18, 0x01}},
        {[](Every &r) { r.has_text = 1; }, {0x22, 0x02, 'h', 'i'}},
        {[](Every &r) { r.has_blob = 1; }, {0x2A, 0x02, 0xDE, 0xAD}},
        {[](Every &r) { r.has_leaf = 1; }, {0x32, 0x00}},
        {[](Every &r) { r.has_numbers = 1; }, {0x38, 0x01, 0x38, 0xAC, 0x02}},
        {[](Every &r) { r.has_texts = 1; }, {0x42, 0x02, 'a', 'b', 0x42, 0x00}},
        {[](Every &r) { r.has_leaves = 1; }, {0x4A, 0x05, 0x08, 0x07, 0x12, 0x01, 'x', 0x4A, 0x00}},
    };
    for (const Row &row : rows) {
        Sample sample;
        Every &record = sample.record;
        record.has_number = record.has_wide = record.has_truth = record.has_text = 0;
        record.has_blob = record.has_leaf = record.has_numbers = record.has_texts = 0;
        record.has_leaves = 0;
        record.leaf = {};
        row.set(record);
        EXPECT_EQ(encode(record), row.expected);
    }
}

TEST(encoding, writes_an_empty_record_when_its_flag_is_set)
{
    Every record = {};
    record.has_leaf = 1;
    EXPECT_EQ(encode(record), (Bytes{0x32, 0x00}));
    Shell shell = {};
    shell.has_every = 1;
    EXPECT_EQ(encode(shell), (Bytes{0x0A, 0x00}));
}

TEST(encoding, finds_content_at_any_depth)
{
    Shell shell = {};
    shell.every.leaf = {0, "", 0, 1};
    EXPECT_EQ(encode(shell), (Bytes{0x0A, 0x04, 0x32, 0x02, 0x12, 0x00}));
}

TEST(encoding, writes_rows_with_gaps)
{
    Rows rows = {};
    rows.field_2 = 2;
    rows.field_10 = 10;
    rows.field_21 = 21;
    rows.field_30 = 1;
    rows.field_33 = 0;
    rows.has_field_2 = rows.has_field_10 = rows.has_field_21 = 1;
    rows.has_field_30 = rows.has_field_33 = 1;
    EXPECT_EQ(encode(rows), (Bytes{0x10, 0x02, 0x50, 0x0A, 0xA8, 0x01, 0x15, 0xF0, 0x01, 0x01, 0x88,
                                   0x02, 0x00}));
}

TEST(encoding, gives_a_long_record_a_longer_prefix)
{
    const std::string text(300, 'x');
    Leaf leaves[] = {{0, text.c_str(), 0, 1}};
    Every record = {};
    record.leaf = leaves[0];
    record.leaves = leaves;
    record.leaves_count = 1;
    record.has_leaves = 1;
    const Bytes body = join({{0x12, 0xAC, 0x02}, Bytes(300, 'x')});
    EXPECT_EQ(encode(record), join({{0x32, 0xAF, 0x02}, body, {0x4A, 0xAF, 0x02}, body}));
}

TEST(encoding, does_not_look_at_a_record_without_fields)
{
    uint32_t count = 3;
    WireSegment segments[3] = {};
    EXPECT_EQ(CodecFor<Nothing>::encode(nullptr, nullptr, 0, nullptr, nullptr, 0), 0u);
    EXPECT_EQ(CodecFor<Nothing>::encode(nullptr, nullptr, 0, segments, &count, 1), 0u);
    EXPECT_EQ(count, 0u);
    count = 3;
    EXPECT_EQ(tarn_ethsw_mgmt_get_switch_info_encode_ext(nullptr, nullptr, 0, segments, &count, 0),
              0u);
    EXPECT_EQ(count, 0u);
}

// The 32 bits of an offset may overflow; byte strings are not looked at where they do not fit.
TEST(encoding, lets_numbers_wrap_around)
{
    Blobs record = {};
    record.number = 5;
    record.first = reinterpret_cast<const uint8_t *>(16);
    record.first_length = 0xFFFFFFF0;
    record.middle = 1;
    record.last = UINT64_MAX;
    record.has_number = record.has_first = record.has_middle = record.has_last = 1;
    // 2 bytes, 6 and the byte string, 2, and 11 of which the last five come to lie at the front.
    EXPECT_EQ(measure(record), 5u);
    const Encoding encoding = encode_into(10, 4, record);
    EXPECT_EQ(encoding.length, 5u);
    EXPECT_EQ(encoding.buffer, (Bytes{0xFF, 0xFF, 0xFF, 0xFF, 0x01, 0xFF, 0xFF, 0x0F, 0xA5, 0xA5}));
    EXPECT_EQ(encoding.pieces, "(buffer, 5)");
    EXPECT_EQ(encode_into(0, 4, record).length, 5u);
    Bytes buffer(10, Encoding::kUntouched);
    EXPECT_EQ(CodecFor<Blobs>::encode(&record, buffer.data(), 10, nullptr, nullptr, 0), 5u);
    EXPECT_EQ(buffer, encoding.buffer);
}

TEST(encoding, takes_byte_strings_that_would_wrap_for_empty)
{
    const uint8_t *const nowhere = reinterpret_cast<const uint8_t *>(16);
    Blobs twice = {};
    twice.first = twice.second = nowhere;
    twice.first_length = twice.second_length = 0x80000000;
    twice.has_first = twice.has_second = 1;
    for (uint32_t capacity : {0u, 1u, 10u})
        EXPECT_EQ(encode_into(capacity, 0, twice).length, 0x8000000Cu);
    EXPECT_EQ(measure(twice), 0x8000000Cu);

    // Six bytes of prefix, then a record of 0xFFFFFFF6, then a byte string that just fits or not.
    Parcel parcel = {};
    parcel.blobs.first = parcel.blob = nowhere;
    parcel.blobs.first_length = 0xFFFFFFF0;
    parcel.blobs.has_first = parcel.has_blob = 1;
    for (auto [length, expected] : {std::pair{1u, 0xFFFFFFFF}, {2u, 0xFFFFFFFE}}) {
        parcel.blob_length = length;
        EXPECT_EQ(measure(parcel), expected);
        EXPECT_EQ(encode_into(0, 4, parcel).length, expected);
        EXPECT_EQ(encode_into(10, 0, parcel).length, expected);
    }
}

TEST(encoding, lets_texts_wrap_around)
{
    if (!HugeText::possible)
        GTEST_SKIP() << "a text of 4 GiB needs 64-bit addresses";
    HugeText text;
    ASSERT_NE(text.of_length(0), nullptr);
    // One that reads as of two bytes, and one that takes the offset once round.
    const Leaf two = {0, text.of_length(0x100000002), 0, 1};
    EXPECT_EQ(encode(two), (Bytes{0x12, 0x02, 'a', 'a'}));
    const Leaf round = {0, text.of_length(0xFFFFFFFF), 0, 1};
    EXPECT_EQ(measure(round), 5u);
    const Encoding encoding = encode_into(8, 0, round);
    EXPECT_EQ(encoding.length, 5u);
    EXPECT_EQ(encoding.buffer, (Bytes{0x12, 0xFF, 0xFF, 0xFF, 0xFF, 0x0F, 0xA5, 0xA5}));
}

// Five bytes of length and 2^32 - 1 characters: measured, the innermost is five bytes long. It
// seems to fit then, near the end of a buffer in which what is around it is tried.
TEST(encoding, is_not_misled_by_a_nested_text_that_wraps_around)
{
    if (!HugeText::possible)
        GTEST_SKIP() << "a text of 4 GiB needs 64-bit addresses";
    HugeText text;
    ASSERT_NE(text.of_length(0), nullptr);
    Box<2> record = {};
    record.inner.inner.text = text.of_length(0xFFFFFFFF);
    record.inner.inner.has_text = 1;
    constexpr uint32_t kCapacity = 130; // all of it is room enough to try, less is not
    Bytes found(kCapacity + 20, Encoding::kUntouched), plain = found;
    const uint32_t length =
        plain_encode<Box<2>>(&record, plain.data(), kCapacity, nullptr, nullptr, 0);
    EXPECT_EQ(length, 9u);
    EXPECT_EQ(CodecFor<Box<2>>::encode(&record, found.data(), kCapacity, nullptr, nullptr, 0),
              length);
    EXPECT_EQ(found, plain);
}

TEST(encoding, gives_high_field_numbers_longer_tags)
{
    tarn_ethsw_mgmt_port_get_statistics_resp record = {};
    record.field_15 = record.field_16 = record.field_31 = record.field_32 = 3;
    record.field_39 = 3;
    record.has_field_15 = record.has_field_16 = record.has_field_31 = record.has_field_32 = 1;
    record.has_field_39 = 1;
    Bytes buffer(14);
    EXPECT_EQ(tarn_ethsw_mgmt_port_get_statistics_resp_encode_ext(&record, buffer.data(), 14,
                                                                  nullptr, nullptr, 0),
              14u);
    EXPECT_EQ(buffer, (Bytes{0x78, 0x03, 0x80, 0x01, 0x03, 0xF8, 0x01, 0x03, 0x80, 0x02, 0x03, 0xB8,
                             0x02, 0x03}));
}
