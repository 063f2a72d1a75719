// SPDX-License-Identifier: MIT
// Numbers below 128 in runs are read four at a time as long as they come in a row. What
// ends the row, wherever it stands, is seen as if each were read alone.
#include "tests/runtime/panel_cases.hpp"

#include <random>

using namespace test;

namespace {

// Four fields as they would stand in a row if there were fields before its first: of wire type 7.
Bytes four_before(uint8_t tag)
{
    return {tag,
            5,
            static_cast<uint8_t>(tag + 8),
            6,
            static_cast<uint8_t>(tag + 16),
            7,
            static_cast<uint8_t>(tag + 24),
            8,
            0};
}

} // namespace

TEST(small_numbers, end_where_the_input_ends)
{
    for_each_first(kFirsts, []<uint8_t first>() {
        const Bytes full = full_panel(first);
        for (size_t length = 0; length <= full.size(); length++)
            ASSERT_TRUE(is_decoded_plainly<first>(full.first(length)));
        for (uint32_t from = 0; from < 8; from++)
            for (size_t length = 0; length <= 16; length++)
                ASSERT_TRUE(is_decoded_plainly<first>(
                    row_of(first, from).first(std::min(length, row_of(first, from).size()))));
    });
}

// Each byte by each other byte: tags of other fields and wire types, values that go on.
TEST(small_numbers, are_seen_to_be_others_in_every_byte)
{
    for_each_first(kFirsts, []<uint8_t first>() {
        const Bytes full = full_panel(first);
        for (size_t at = 0; at < full.size(); at++) {
            Bytes changed = full;
            for (uint32_t byte = 0; byte < 0x100; byte++) {
                changed[at] = static_cast<uint8_t>(byte);
                ASSERT_TRUE(is_decoded_plainly<first>(changed));
                if (byte % 8 == 0 || byte % 8 == 7) { // and an end soon after
                    ASSERT_TRUE(is_decoded_plainly<first>(
                        changed.first(std::min<size_t>(at + 1 + byte / 8, full.size()))));
                }
            }
        }
    });
}

TEST(small_numbers, have_longer_ones_and_longer_tags_among_them)
{
    for_each_first(kFirsts, []<uint8_t first>() {
        const Bytes full = full_panel(first);
        for (size_t at = 0; at < full.size(); at++) {
            for (const Bytes &other : kOtherValues)
                ASSERT_TRUE(is_decoded_plainly<first>(replaced(full, at, other)));
            for (const Bytes &other : other_tags(full[at]))
                ASSERT_TRUE(is_decoded_plainly<first>(replaced(full, at, other)));
        }
    });
}

// The tag behind four numbers is no member's, though it seems to be one that is before the first.
TEST(small_numbers, are_not_continued_by_tags_of_fields_before_them)
{
    for_each_first(kFirsts, []<uint8_t first>() {
        for (uint32_t from = 0; from <= 4; from++) {
            const Bytes four = row_of(first, from).first(8);
            for (uint32_t tag = 0; tag < 0x68; tag++)
                ASSERT_TRUE(is_decoded_plainly<first>(
                    join({four, four_before(static_cast<uint8_t>(tag)), row_of(first)})));
        }
    });
}

// The last byte of an over-long tag is not a tag, though it may look like that of the first of
// four.
TEST(small_numbers, are_not_begun_by_the_end_of_a_longer_tag)
{
    const Bytes four = {0x05, 0x08, 0x06, 0x10, 0x07, 0x18, 0x08};
    ASSERT_TRUE(is_decoded_plainly<16>(join({{0x80, 0x81, 0x00}, four})));
    ASSERT_TRUE(is_decoded_plainly<32>(join({{0x80, 0x82, 0x00}, four})));
}

// Nor by a tag that ends too early, or by the largest there is.
TEST(small_numbers, are_not_continued_where_no_tag_can_be_read)
{
    const Bytes ends[] = {{0xFF},
                          {0x80},
                          {0xFF, 0xFF, 0xFF, 0xFF},
                          {0xFF, 0xFF, 0xFF, 0xFF, 0x0F},
                          {0xF7, 0xFF, 0xFF, 0xFF, 0x0F}};
    for_each_first(kFirsts, [&]<uint8_t first>() {
        for (uint32_t from = 0; from <= 4; from++)
            for (const Bytes &end : ends)
                for (const Bytes &behind : {Bytes{}, Bytes{0x01}, row_of(first)})
                    ASSERT_TRUE(is_decoded_plainly<first>(
                        join({row_of(first, from).first(8), end, behind})));
    });
}

TEST(small_numbers, may_come_in_any_order_and_again)
{
    // NOLINTNEXTLINE(cert-msc32-c,cert-msc51-cpp): what fails is to fail again
    std::mt19937 engine(10);
    const auto below = [&](uint32_t limit) { return static_cast<uint32_t>(engine() % limit); };
    for_each_first(kFirsts, [&]<uint8_t first>() {
        for (uint32_t round = 0; round < 1000; round++) {
            // Rows that start and end anywhere, now and then with something else in them.
            Bytes input;
            for (uint32_t part = 1 + below(4); part; part--) {
                uint32_t place = below(9);
                for (uint32_t count = below(9); count; count--, place = (place + 1) % 9) {
                    const uint32_t odd = below(24);
                    const uint32_t here = odd == 0 ? below(14) : place;
                    append(&input, first + here, odd == 1 ? engine() : below(0x80));
                    if (here == 8)
                        input = join({input, list_of(first + 8, below(14))});
                }
            }
            ASSERT_TRUE(is_decoded_plainly<first>(input));
            ASSERT_TRUE(is_decoded_plainly<first>(
                input.first(below(static_cast<uint32_t>(input.size()) + 1))));
        }
    });
}

// A record ends anywhere, and what is behind it seems to go on with it.
TEST(small_numbers, are_not_taken_from_behind_their_record)
{
    for_each_first(kFirsts, []<uint8_t first>() {
        const Bytes full = full_panel(first);
        const Bytes of_nobody = {0xF8, 0x0F, 0x01};
        for (size_t length = 0; length <= full.size(); length++) {
            const Bytes inner = full.first(length);
            const Bytes rest(full.begin() + static_cast<long>(length), full.end());
            for (const Bytes &behind : {Bytes{}, rest, join({rest, full}), of_nobody, full})
                ASSERT_TRUE(is_decoded_plainly_inside<first>(inner, behind));
        }
        for (uint32_t count = 1; count <= 12; count++) {
            const Bytes list = list_of(first + 8, 14);
            const size_t size = list.size() / 14 * count;
            for (size_t length : {size - 1, size})
                ASSERT_TRUE(is_decoded_plainly_inside<first>(
                    list.first(length),
                    Bytes(list.begin() + static_cast<long>(length), list.end())));
        }
        for (uint32_t from = 0; from < 8; from++) {
            const Bytes row = row_of(first, from);
            for (size_t length = 0; length <= row.size(); length++)
                ASSERT_TRUE(is_decoded_plainly_inside<first>(
                    row.first(length), Bytes(row.begin() + static_cast<long>(length), row.end())));
        }
    });
}
