// SPDX-License-Identifier: MIT
// Up to four values at once are on the wire what each is alone, whatever their sizes.
#include "wire/together.hpp"

#include "tests/support/bytes.hpp"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

using namespace tarn;
using test::Bytes;
using test::join;

namespace {

constexpr uint8_t kGuard = 0xA5;

template <typename Value>
constexpr uint32_t kMostBytes = sizeof(Value) == sizeof(uint64_t) ? kStored : 5;

// Values of just this size: the least, the largest, and one in which no two bytes are the same.
template <typename Value>
Value value_of_size(uint32_t size, uint32_t variant)
{
    const uint32_t bits = std::min<uint32_t>(7 * size, sizeof(Value) * 8);
    const uint64_t largest = UINT64_MAX >> (64 - bits);
    const uint64_t least = size == 1 ? 0 : uint64_t{1} << 7 * (size - 1);
    if (variant == 0)
        return static_cast<Value>(least);
    if (variant == 1)
        return static_cast<Value>(largest);
    return static_cast<Value>(least | (largest & 0x35C99A4D2B17E1));
}

Bytes written_plainly(uint64_t value)
{
    Bytes bytes(10);
    bytes.resize(wire_put_varint64(value, 0, bytes.data(), bytes.length()));
    return bytes;
}

// Out of a block that has no value more. Each is stored by itself, between bytes that must stay.
template <typename Value>
void expect_each_as_alone(const std::vector<Value> &values)
{
    const uint32_t count = static_cast<uint32_t>(values.size());
    const auto block = std::make_unique<Value[]>(count);
    std::copy(values.begin(), values.end(), block.get());
    const Varints<Value> varints(block.get(), count);
    for (uint32_t place = 0; place < count; place++) {
        const Bytes expected = written_plainly(values[place]);
        uint8_t stored[1 + kStored + 1];
        memset(stored, kGuard, sizeof stored);
        varints.store(stored + 1, place);
        const bool is_as_alone = varints.size(place) == expected.length() &&
                                 memcmp(stored + 1, expected.data(), expected.size()) == 0 &&
                                 stored[0] == kGuard && stored[1 + kStored] == kGuard;
        ASSERT_TRUE(is_as_alone) << "place " << place << " of " << testing::PrintToString(values)
                                 << ": " << varints.size(place) << " of "
                                 << testing::PrintToString(Bytes(stored, stored + sizeof stored));
    }
}

template <typename Value>
void expect_any_sizes_beside_each_other(uint32_t count)
{
    constexpr uint32_t kMost = kMostBytes<Value>;
    uint32_t combinations = 1;
    for (uint32_t i = 0; i < count; i++)
        combinations *= kMost;
    for (uint32_t variant = 0; variant < 3; variant++) {
        for (uint32_t combination = 0; combination < combinations; combination++) {
            std::vector<Value> values;
            for (uint32_t i = 0, rest = combination; i < count; i++, rest /= kMost)
                values.push_back(value_of_size<Value>(1 + rest % kMost, variant));
            expect_each_as_alone(values);
            if (testing::Test::HasFatalFailure())
                return;
        }
    }
}

// What is in the other places, nothing or everything, does not get into this one.
template <typename Value>
void expect_both_sides_of_every_bit(uint32_t count)
{
    const uint64_t most = sizeof(Value) == sizeof(uint64_t) ? kMostTogether : UINT32_MAX;
    for (uint32_t place = 0; place < count; place++) {
        for (const uint64_t others : {uint64_t{0}, most}) {
            for (uint64_t bit = 1; bit <= most; bit <<= 1) {
                for (const uint64_t value : {bit - 1, bit, (bit + 1) & most, most - bit}) {
                    std::vector<Value> values(count, static_cast<Value>(others));
                    values[place] = static_cast<Value>(value);
                    expect_each_as_alone(values);
                    if (testing::Test::HasFatalFailure())
                        return;
                }
            }
        }
    }
}

// Four fields of two bytes each, as whoever knows nothing of words writes them.
Bytes four_small(uint32_t tag, uint32_t step, const uint8_t (&values)[4])
{
    Bytes bytes;
    for (uint32_t i = 0; i < 4; i++) {
        bytes.push_back(static_cast<uint8_t>(tag + i * step));
        bytes.push_back(values[i]);
    }
    return bytes;
}

constexpr uint8_t kSmallValues[][4] = {
    {0, 0, 0, 0}, {0x7F, 0x7F, 0x7F, 0x7F}, {1, 2, 3, 4}, {0x7F, 0, 0x40, 0x55}};

// Calls function(tag, step) for all four tags that take a byte each: members, and lists.
template <typename Function>
void for_each_small_tag(Function function)
{
    for (uint32_t tag = 1; tag < 0x80; tag++)
        for (uint32_t step : {0u, kTagStep})
            if (tag + 3 * step < 0x80)
                function(tag, step);
}

template <typename Value>
void expect_small_stored(uint32_t count, uint32_t tag, uint32_t step, const uint8_t (&small)[4])
{
    const auto values = std::make_unique<Value[]>(count);
    std::copy_n(small, count, values.get());
    const size_t size = size_t{2} * count;
    Bytes buffer(size + 2, kGuard);
    const uint8_t *end = store_small(buffer.data() + 1, values.get(), count, tag, step);
    EXPECT_EQ(end, buffer.data() + 1 + size);
    EXPECT_EQ(buffer, join({{kGuard}, four_small(tag, step, small).first(size), {kGuard}}));
}

} // namespace

TEST(varints_together, are_what_each_is_alone_for_any_sizes_beside_each_other)
{
    for (uint32_t count = 2; count <= 4; count++) {
        expect_any_sizes_beside_each_other<uint64_t>(count);
        if constexpr (kTogether<uint32_t>)
            expect_any_sizes_beside_each_other<uint32_t>(count);
    }
}

TEST(varints_together, change_their_sizes_where_single_ones_do)
{
    for (uint32_t count = 2; count <= 4; count++) {
        expect_both_sides_of_every_bit<uint64_t>(count);
        if constexpr (kTogether<uint32_t>)
            expect_both_sides_of_every_bit<uint32_t>(count);
    }
}

TEST(varints_together, are_as_long_as_what_is_stored_allows)
{
    EXPECT_EQ(wire_varint64_size(kMostTogether), kStored);
    EXPECT_EQ(wire_varint64_size(kMostTogether + 1), kStored + 1);
    EXPECT_TRUE(kTogether<uint64_t>);
}

TEST(four_small_fields, are_known_by_every_bit_of_their_tags_and_the_top_bits_of_their_values)
{
    for_each_small_tag([](uint32_t tag, uint32_t step) {
        for (const auto &values : kSmallValues) {
            Bytes fields = four_small(tag, step, values);
            EXPECT_TRUE(are_four_small(fields.data(), tag, step)) << testing::PrintToString(fields);
            for (uint32_t at = 0; at < kFourSmall; at++) {
                const uint8_t right = fields[at];
                for (uint32_t byte = 0; byte < 0x100; byte++) {
                    fields[at] = static_cast<uint8_t>(byte);
                    const bool fits = at % 2 ? byte < 0x80 : byte == right;
                    ASSERT_EQ(are_four_small(fields.data(), tag, step), fits)
                        << "tag " << tag << ": " << testing::PrintToString(fields);
                }
                fields[at] = right;
            }
        }
    });
}

TEST(four_small_fields, are_loaded_one_value_after_the_other)
{
    constexpr uint32_t kAround = 0xA5A5A5A5;
    for (const auto &values : kSmallValues) {
        for (uint8_t tag : Bytes{0x00, 0x08, 0x7F, 0xFF}) {
            const Bytes fields = four_small(tag, 0, values);
            uint32_t loaded[6] = {kAround, 7, 7, 7, 7, kAround};
            load_four_small(loaded + 1, fields.data());
            const uint32_t expected[6] = {kAround,   values[0], values[1],
                                          values[2], values[3], kAround};
            EXPECT_TRUE(std::equal(loaded, loaded + 6, expected)) << testing::PrintToString(fields);
        }
    }
}

TEST(small_fields, are_stored_to_the_last_byte_and_no_further)
{
    for_each_small_tag([](uint32_t tag, uint32_t step) {
        for (const auto &values : kSmallValues) {
            for (uint32_t count = 2; count <= 4; count++) {
                expect_small_stored<uint32_t>(count, tag, step, values);
                expect_small_stored<uint64_t>(count, tag, step, values);
            }
        }
    });
}

// The block has no element more.
TEST(small_elements, are_stored_with_their_tag_when_there_is_no_other_among_them)
{
    const auto elements = std::make_unique<uint32_t[]>(kSmallElements);
    for (uint8_t tag : Bytes{0x08, 0x40, 0x78}) {
        Bytes expected = {kGuard};
        for (uint32_t i = 0; i < kSmallElements; i++) {
            elements[i] = i * 0x7F / (kSmallElements - 1);
            expected = join({expected, {tag, static_cast<uint8_t>(elements[i])}});
        }
        expected.push_back(kGuard);
        Bytes buffer(expected.size(), kGuard);
        EXPECT_TRUE(store_small_elements(buffer.data() + 1, elements.get(), tag));
        EXPECT_EQ(buffer, expected);
    }
}

TEST(small_elements, are_not_stored_when_there_is_another_among_them)
{
    for (uint32_t place = 0; place < kSmallElements; place++) {
        for (uint32_t bit = 7; bit < 32; bit++) {
            const auto elements = std::make_unique<uint32_t[]>(kSmallElements);
            elements[place] = 1u << bit;
            Bytes buffer(size_t{kSmallElements} * kOneSmall, kGuard);
            EXPECT_FALSE(store_small_elements(buffer.data(), elements.get(), 0x08))
                << "bit " << bit << " of element " << place;
            EXPECT_EQ(buffer, Bytes(buffer.size(), kGuard));
        }
    }
}

TEST(a_small_field, is_known_by_its_tag_and_the_top_bit_of_its_value)
{
    for (uint32_t tag = 0; tag < 0x80; tag++) {
        for (uint32_t field = 0; field < 0x10000; field++) {
            const uint8_t bytes[] = {static_cast<uint8_t>(field), static_cast<uint8_t>(field >> 8)};
            ASSERT_EQ(is_small(bytes, tag), bytes[0] == tag && bytes[1] < 0x80) << field;
        }
    }
}
