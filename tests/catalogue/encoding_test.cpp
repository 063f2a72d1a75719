// SPDX-License-Identifier: MIT
// Encoding, for every record type: lengths, buffers, absent members and the list of pieces. That
// the bytes are the right ones is for vectors_test.cpp and referee_test.cpp to say.
#include "tests/catalogue/filled_record.hpp"
#include "tests/catalogue/operations.hpp"
#include "tests/catalogue/ownership.hpp"

#include <algorithm>

namespace catalogue {

namespace {

constexpr uint8_t kUntouched = 0xEE;

TEST(encoding, fits_exactly_into_what_it_measured)
{
    for_each_case([](const Case &test_case, const Content &content) {
        const RecordType &type = *test_case.type;
        const FilledRecord filled(content);
        const uint32_t length = type.encode(filled.record(), nullptr, 0, nullptr, nullptr, 0);
        EXPECT_EQ(length != 0, writes_something(content));
        Bytes buffer(length + 8, kUntouched);
        EXPECT_EQ(type.encode(filled.record(), buffer.data(), length, nullptr, nullptr, 0), length);
        EXPECT_EQ(std::count(buffer.end() - 8, buffer.end(), kUntouched), 8);
    });
}

TEST(encoding, returns_the_full_length_whatever_the_capacity)
{
    for_each_case([](const Case &test_case, const Content &content) {
        const RecordType &type = *test_case.type;
        const FilledRecord filled(content);
        const uint32_t length = type.encode(filled.record(), nullptr, 0, nullptr, nullptr, 0);
        for (const uint32_t capacity : {length - 1, length / 2, 0u}) {
            if (length == 0)
                continue;
            Bytes buffer(length, kUntouched);
            EXPECT_EQ(type.encode(filled.record(), buffer.data(), capacity, nullptr, nullptr, 0),
                      length);
            EXPECT_EQ(std::count(buffer.begin() + capacity, buffer.end(), kUntouched),
                      length - capacity);
        }
    });
}

bool has_nothing_but_numbers(const RecordType &type)
{
    return std::all_of(type.members.begin(), type.members.end(), [](const Member &member) {
        return is_nested(member.kind) ? has_nothing_but_numbers(find_type(member.child))
                                      : member.kind != Kind::string && member.kind != Kind::bytes &&
                                            member.kind != Kind::repeated_string;
    });
}

// Wherever the capacity ends, numbers go as far as it does, and nothing goes further.
TEST(encoding, writes_numbers_up_to_the_capacity)
{
    for_each_case([](const Case &test_case, const Content &content) {
        const RecordType &type = *test_case.type;
        const bool is_cut_anywhere = has_nothing_but_numbers(type);
        const FilledRecord filled(content);
        const Bytes whole = encode(type, filled.record());
        constexpr uint32_t kSpare = 20;
        for (uint32_t capacity = 0; capacity <= whole.length() + kSpare; capacity++) {
            const uint32_t written = std::min(capacity, whole.length());
            Bytes buffer(whole.size() + kSpare, kUntouched);
            Bytes expected = buffer;
            EXPECT_EQ(type.encode(filled.record(), buffer.data(), capacity, nullptr, nullptr, 0),
                      whole.size());
            if (is_cut_anywhere || capacity >= whole.length())
                std::copy_n(whole.begin(), written, expected.begin());
            else
                std::copy_n(buffer.begin(), written, expected.begin());
            ASSERT_EQ(buffer, expected) << "capacity " << capacity;
        }
    });
}

TEST(encoding, leaves_out_absent_members_whatever_they_hold)
{
    for_each_case([](const Case &test_case, const Content &content) {
        const FilledRecord clean(content);
        const FilledRecord used(content, Absent::leftovers);
        EXPECT_EQ(encode(*test_case.type, used.record()), encode(*test_case.type, clean.record()));
    });
}

TEST(encoding, writes_embedded_records_that_hold_something_without_their_flag)
{
    for_each_case([](const Case &test_case, const Content &content) {
        const FilledRecord flagged(content);
        const FilledRecord implied(content, Absent::zero, Embedded::implied);
        EXPECT_EQ(encode(*test_case.type, implied.record()),
                  encode(*test_case.type, flagged.record()));
    });
}

TEST(encoding, ends_the_list_of_pieces_with_the_whole)
{
    for_each_case([](const Case &test_case, const Content &content) {
        const FilledRecord filled(content);
        Bytes buffer(encode(*test_case.type, filled.record()).size());
        const uint32_t capacity = static_cast<uint32_t>(buffer.size());
        WireSegment pieces[256] = {};
        uint32_t count = 256;
        EXPECT_EQ(
            test_case.type->encode(filled.record(), buffer.data(), capacity, pieces, &count, 0),
            capacity);
        ASSERT_LE(count, 256u);
        EXPECT_EQ(count == 0, capacity == 0);
        if (count) {
            EXPECT_EQ(pieces[count - 1].data, buffer.data());
            EXPECT_EQ(pieces[count - 1].length, capacity);
        }
    });
}

bool has_nested_records(const RecordType &type)
{
    return std::any_of(type.members.begin(), type.members.end(),
                       [](const Member &member) { return is_nested(member.kind); });
}

TEST(encoding, gathers_byte_strings_from_where_they_are)
{
    for_each_case([](const Case &test_case, const Content &content) {
        const RecordType &type = *test_case.type;
        const FilledRecord filled(content);
        const std::vector<WireSegment> strings = byte_strings(type, filled.record());
        if (strings.empty() || has_nested_records(type))
            return;
        Bytes buffer(4096);
        WireSegment pieces[64];
        uint32_t count = 64;
        const uint32_t length = type.encode(filled.record(), buffer.data(), 4096, pieces, &count,
                                            WIRE_FLAG_BYTES_IN_PLACE);
        ASSERT_LE(count, 64u);

        Bytes whole;
        size_t in_place = 0;
        for (uint32_t i = 0; i < count; i++)
            whole.insert(whole.end(), pieces[i].data, pieces[i].data + pieces[i].length);
        for (const WireSegment &string : strings) {
            in_place += string.length;
            EXPECT_EQ(std::count_if(pieces, pieces + count,
                                    [&](const WireSegment &piece) {
                                        return piece.data == string.data &&
                                               piece.length == string.length;
                                    }),
                      string.length ? 1 : 0);
        }
        EXPECT_EQ(whole, encode(type, filled.record()));
        EXPECT_EQ(length + in_place, whole.size());
    });
}

} // namespace

} // namespace catalogue
