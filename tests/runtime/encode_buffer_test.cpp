// SPDX-License-Identifier: MIT
// Encoding into buffers that are too short: the result is always the full length, and of the bytes
// below the capacity all are written but those of texts and byte strings that do not fit whole.
#include "tests/support/operations.hpp"
#include "tests/support/samples.hpp"

#include <gtest/gtest.h>

using namespace test;

namespace {

// Where the characters of a text or the bytes of a byte string lie in an encoding.
struct Payload {
    uint32_t start;
    uint32_t end;
};

Bytes cut(const Bytes &full, uint32_t capacity, const std::vector<Payload> &payloads)
{
    Bytes expected = full.first(capacity);
    for (const Payload &payload : payloads)
        for (uint32_t at = payload.start; payload.end > capacity && at < payload.end; at++)
            if (at < capacity)
                expected[at] = Encoding::kUntouched;
    return expected;
}

template <typename Record>
void expect_cut(const Record &record, uint32_t flags, const Bytes &full,
                const std::vector<Payload> &payloads)
{
    EXPECT_EQ(measure(record, flags), full.size());
    for (uint32_t capacity = 0; capacity <= full.length(); capacity++) {
        SCOPED_TRACE("capacity " + std::to_string(capacity));
        const Bytes expected = cut(full, capacity, payloads);
        // With and without a wish for pieces, and with bytes behind the capacity to be left alone.
        const Encoding encoding = encode_into(capacity, 10, record, flags);
        EXPECT_EQ(encoding.length, full.size());
        EXPECT_EQ(encoding.buffer, expected);
        Bytes buffer(full.size() + 20, Encoding::kUntouched);
        EXPECT_EQ(
            CodecFor<Record>::encode(&record, buffer.data(), capacity, nullptr, nullptr, flags),
            full.size());
        EXPECT_EQ(buffer, join({expected, Bytes(buffer.size() - capacity, Encoding::kUntouched)}));
    }
}

// In the place of a record: how often somebody wanted something of it.
struct CallsOf {
    uint32_t measure;
    uint32_t write;
};

TARN_CALL uint32_t count_measure(const void *calls, uint32_t)
{
    const_cast<CallsOf *>(static_cast<const CallsOf *>(calls))->measure++;
    return 3;
}

TARN_CALL uint32_t count_write(uint32_t offset, tarn::Encoder &, const void *calls)
{
    const_cast<CallsOf *>(static_cast<const CallsOf *>(calls))->write++;
    return offset + 3;
}

template <tarn::EncodeRecord encode_whole>
void expect_measured_where_nothing_else_is_asked_for()
{
    CallsOf calls = {};
    uint8_t buffer[4] = {};
    uint32_t count = 0;
    const auto encode = [&](tarn::MeasureRecord by, uint32_t capacity, uint32_t *segment_count) {
        return tarn::measure_or_encode<encode_whole>(count_write, by, &calls, buffer, capacity,
                                                     nullptr, segment_count, 0);
    };
    EXPECT_EQ(encode(count_measure, 0, nullptr), 3u);
    EXPECT_TRUE(calls.measure == 1 && calls.write == 0);
    EXPECT_EQ(encode(count_measure, 4, nullptr), 3u);
    EXPECT_EQ(encode(count_measure, 0, &count), 3u);
    EXPECT_EQ(count, 1u);
    EXPECT_EQ(encode(nullptr, 0, nullptr), 3u);
    EXPECT_TRUE(calls.measure == 1 && calls.write == 3);
}

} // namespace

TEST(a_short_buffer, gets_what_fits_of_every_kind)
{
    const std::vector<Payload> payloads = {{13, 15}, {17, 19}, {30, 32}, {40, 41}};
    expect_cut(Sample().record, 0, kSampleBytes, payloads);
}

TEST(a_short_buffer, gets_what_fits_of_records_in_records)
{
    expect_cut(SampleShell().record, 0, kSampleShellBytes, {});
    expect_cut(SampleParcel().record, 0, kSampleParcelBytes, {{8, 10}, {16, 17}, {21, 22}});
    expect_cut(SampleParcel().record, WIRE_FLAG_BYTES_IN_PLACE, kSampleParcelBytesInPlace, {});
}

TEST(a_short_buffer, gets_no_part_of_a_last_text)
{
    const Leaf leaf = {1, "abc", 1, 1};
    const Encoding encoding = encode_into(6, 0, leaf);
    EXPECT_EQ(encoding.length, 7u);
    EXPECT_EQ(encoding.buffer, (Bytes{0x08, 0x01, 0x12, 0x03, 0xA5, 0xA5}));
}

// The prefix is written as far as it fits, what follows the text as well: only the text is not.
TEST(a_short_buffer, gets_the_bytes_behind_a_text_that_does_not_fit)
{
    const std::string text(20, 'x');
    const char *texts[] = {text.c_str(), "y"};
    Every record = {};
    record.texts = texts;
    record.texts_count = 2;
    record.has_texts = 1;
    const Encoding encoding = encode_into(21, 0, record);
    EXPECT_EQ(encoding.length, 25u);
    EXPECT_EQ(encoding.buffer, join({{0x42, 0x14}, Bytes(19, 0xA5)}));
}

TEST(a_buffer, may_be_longer_than_the_encoding)
{
    const Encoding encoding = encode_into(50, 10, Sample().record);
    EXPECT_EQ(encoding.length, 43u);
    EXPECT_EQ(encoding.buffer, join({kSampleBytes, Bytes(7, Encoding::kUntouched)}));
}

TEST(measuring, needs_no_buffer_and_gives_the_length)
{
    EXPECT_EQ(measure(Sample().record), 43u);
    EXPECT_EQ(measure(SampleShell().record), 18u);
    EXPECT_EQ(measure(SampleParcel().record), 22u);
    EXPECT_EQ(measure(SampleParcel().record, WIRE_FLAG_BYTES_IN_PLACE), 18u);
    EXPECT_EQ(measure(Every{}), 0u);
}

// Whoever has a function that measures has it called for that, and for nothing else.
TEST(encoding_a_record, measures_where_nothing_else_is_asked_for)
{
    expect_measured_where_nothing_else_is_asked_for<tarn::encode_record>();
    expect_measured_where_nothing_else_is_asked_for<tarn::encode_in_place>();
}
