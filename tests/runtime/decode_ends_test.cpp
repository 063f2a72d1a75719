// SPDX-License-Identifier: MIT
// Numbers and tags wherever the input ends: in the middle of it they are read in words, near its
// end byte by byte, and inside a nested record not a byte behind the end of that.
#include "tests/support/operations.hpp"
#include "tests/support/records.hpp"

#include <gtest/gtest.h>

using namespace test;

namespace {

// Rows inside another record, with texts to stand for all that is no number.
struct Rack {
    Rows rows;        // field 1
    Every every;      // field 2
    const char *text; // field 3
    unsigned has_rows : 1;
    unsigned has_every : 1;
    unsigned has_text : 1;
};

} // namespace

namespace [[gnu::visibility("hidden")]] tarn {

template <>
struct Schema<Rack> {
    using Record = Rack;
    static constexpr Field fields[] = {
        field<Kind::message, decltype(Record::rows)>(1, offsetof(Record, rows)),
        field<Kind::message, decltype(Record::every)>(2, offsetof(Record, every)),
        field<Kind::string, decltype(Record::text)>(3, offsetof(Record, text)),
    };
    using Children = RecordTypes<Rows, Every>;
};

} // namespace tarn

namespace {

// A number, or a tag with its value, and whether it can be read.
struct Ending {
    Bytes bytes;
    bool is_whole;
};

const Ending kNumbers[] = {
    {{0x05}, true},
    {{0x85, 0x01}, true},
    {{0x85, 0x80, 0x01}, true},
    {{0x85, 0x80, 0x80, 0x01}, true},
    {{0x85, 0x80, 0x80, 0x80, 0x01}, true},
    {{0x85, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x01}, true},
    {{0x85, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x01}, true},
    {{}, false},
    {{0x85}, false},
    {{0x85, 0x80}, false},
    {{0x85, 0x80, 0x80, 0x80}, false},
    {{0x85, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80}, false},
};

// Of fields that nobody has.
const Ending kTags[] = {
    {{}, true},
    {{0x78, 0x00}, true},
    {{0xF8, 0x10, 0x00}, true},
    {{0xF8, 0x90, 0x00, 0x00}, true},
    {{0xF8, 0x90, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x00, 0x00}, true},
    {{0xF8}, false},
    {{0xF8, 0x90}, false},
    {{0xF8, 0x90, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80}, false},
};

// More of a varint, or the end of one, for whoever reads on where the record has ended. For whoever
// does not, a tag of nobody's and its value.
const Bytes kBehind[] = {
    {0x81, 0x81, 0x81, 0x81, 0x81, 0x81, 0x81, 0x81, 0x81, 0x01, 1, 2, 3, 4, 5, 6, 7, 8},
    {0x01, 1, 2, 3, 4, 5, 6, 7, 8},
};

template <typename Record>
void expect_result(const Bytes &input, bool is_whole)
{
    EXPECT_EQ(decode<Record>(input), is_whole ? WIRE_OK : WIRE_ERR_MALFORMED)
        << testing::PrintToString(input);
}

// As the whole input, and as field `field` of a Rack, with nothing or something behind it.
template <typename Record>
void expect_result_anywhere(uint8_t field, const Bytes &input, bool is_whole)
{
    expect_result<Record>(input, is_whole);
    const uint8_t tag = static_cast<uint8_t>(field << 3 | 2);
    const Bytes nested = join({{tag, static_cast<uint8_t>(input.size())}, input});
    expect_result<Rack>(nested, is_whole);
    for (const Bytes &behind : kBehind)
        expect_result<Rack>(join({nested, behind}), is_whole);
}

// Every tag that is followed by a number: single ones, rows of each kind, and lists.
const Bytes kTagsOfEvery[] = {{0x08}, {0x10}, {0x18}, {0x38}, {0x38, 0x01, 0x38}};
const Bytes kTagsOfRows[] = {{0x08}, {0x10, 0x01, 0x08}, {0xA0, 0x01}, {0xF0, 0x01}, {0x88, 0x02}};

// What else may stand in front of a tag.
const Bytes kFieldsOfEvery[] = {
    {},
    {0x22, 0x01, 'a'},                   // a text
    {0x2A, 0x01, 'b'},                   // a byte string
    {0x32, 0x02, 0x08, 0x01},            // a record
    {0x42, 0x01, 'c', 0x42, 0x00},       // texts
    {0x4A, 0x00, 0x4A, 0x02, 0x08, 0x01} // records
};

} // namespace

TEST(a_number, is_read_as_far_as_its_record_goes)
{
    for (const Ending &number : kNumbers) {
        for (const Ending &tag : kTags) {
            if (!number.is_whole && !tag.bytes.empty())
                continue;
            const bool is_whole = number.is_whole && tag.is_whole;
            for (const Bytes &field : kTagsOfEvery)
                expect_result_anywhere<Every>(2, join({field, number.bytes, tag.bytes}), is_whole);
            for (const Bytes &field : kTagsOfRows)
                expect_result_anywhere<Rows>(1, join({field, number.bytes, tag.bytes}), is_whole);
        }
    }
}

TEST(a_tag_behind_any_field, is_read_as_far_as_its_record_goes)
{
    for (const Bytes &field : kFieldsOfEvery)
        for (const Ending &first : kTags)
            for (const Ending &second : kTags)
                if (first.is_whole || second.bytes.empty())
                    expect_result_anywhere<Every>(2, join({field, first.bytes, second.bytes}),
                                                  first.is_whole && second.is_whole);
}

// Lists are read twice, by tags of every length.
TEST(a_tag_in_a_list, may_be_longer_than_need_be)
{
    for (uint8_t low : Bytes{0x38, 0x42, 0x4A}) {
        const uint8_t more = low | 0x80;
        const Bytes value = {0x00};
        for (const Bytes &tag : {Bytes{low}, Bytes{more, 0x00}, Bytes{more, 0x80, 0x00},
                                 Bytes{more, 0x80, 0x80, 0x80, 0x80, 0x80, 0x00}}) {
            Owner<Every> owner;
            EXPECT_EQ(owner.decode(join({{low}, value, tag, value, tag, value, {0x08, 0x07}})),
                      WIRE_OK);
            EXPECT_EQ(owner.record.numbers_count + owner.record.texts_count +
                          owner.record.leaves_count,
                      3u);
            EXPECT_EQ(owner.record.number, 7u);
        }
    }
}

TEST(numbers_in_a_list, may_be_of_any_length)
{
    Owner<Every> owner;
    Bytes input;
    for (const Ending &number : kNumbers)
        if (number.is_whole)
            input = join({input, {0x38}, number.bytes});
    EXPECT_EQ(owner.decode(input), WIRE_OK);
    const uint32_t expected[] = {5, 133, 5 + (1 << 14), 5 + (1 << 21), 5 + (1 << 28), 5, 5};
    ASSERT_EQ(owner.record.numbers_count, std::size(expected));
    for (size_t i = 0; i < std::size(expected); i++)
        EXPECT_EQ(owner.record.numbers[i], expected[i]) << i;
}
