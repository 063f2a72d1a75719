// SPDX-License-Identifier: MIT
// Flag k is bit k % 8 of byte k / 8; whoever changes flags leaves all other bits alone.
#include "runtime/presence.hpp"

#include "tests/support/bytes.hpp"

#include <gtest/gtest.h>

using namespace tarn;
using test::Bytes;

namespace {

template <uint32_t members>
Bytes cleared(Bytes flags)
{
    clear_flags<members>(flags.data());
    return flags;
}

template <uint32_t members>
Bytes filled(Bytes flags)
{
    set_all_flags<members>(flags.data());
    return flags;
}

template <uint32_t members>
Bytes copied(Bytes to, const Bytes &from)
{
    copy_flags<members>(to.data(), from.data());
    return to;
}

// From a block in which just the bytes of these flags exist.
template <uint32_t first, uint32_t count>
uint32_t present(const Bytes &flags)
{
    return present_members<first, count>(flags.data());
}

} // namespace

TEST(a_flag, is_one_bit_and_changes_alone)
{
    for (uint32_t bit = 0; bit < 24; bit++) {
        Bytes clear(3, 0x00);
        Bytes set(3, 0xFF);
        set_flag(clear.data(), bit);
        clear_flag(set.data(), bit);
        for (uint32_t byte = 0; byte < 3; byte++) {
            const uint32_t mask = byte == bit / 8 ? 1u << bit % 8 : 0;
            EXPECT_EQ(clear[byte], mask) << "flag " << bit;
            EXPECT_EQ(set[byte], 0xFF & ~mask) << "flag " << bit;
        }
    }
}

TEST(a_flag, may_be_set_and_cleared_again)
{
    Bytes flags = {0x5A};
    set_flag(flags.data(), 1);
    set_flag(flags.data(), 1);
    EXPECT_EQ(flags, (Bytes{0x5A}));
    clear_flag(flags.data(), 1);
    clear_flag(flags.data(), 1);
    EXPECT_EQ(flags, (Bytes{0x58}));
}

TEST(a_flag, tells_its_own_bit)
{
    for (uint32_t bit = 0; bit < 24; bit++) {
        Bytes flags(3, 0x00);
        set_flag(flags.data(), bit);
        for (uint32_t other = 0; other < 24; other++)
            EXPECT_EQ(has_flag(flags.data(), other), other == bit) << bit << " and " << other;
    }
}

// The block has no byte more than the flags that are set reach.
TEST(flags, of_members_in_a_row_are_set_together_and_alone)
{
    struct Row {
        uint32_t first, present;
        Bytes before, after;
    };
    for (const Row &row : {Row{0, 0x1, {0x00}, {0x01}},
                           {3, 0x5, {0x02}, {0x2A}},
                           {7, 0x3, {0x00, 0x40}, {0x80, 0x41}},
                           {6, 0x3, {0x01}, {0xC1}},
                           {9, 0x1, {0xFF, 0x00}, {0xFF, 0x02}},
                           {0, 0x12345678, {0, 0, 0, 0}, {0x78, 0x56, 0x34, 0x12}},
                           {15, 0x80000001, {0, 0, 0, 0, 0, 0}, {0, 0x80, 0, 0, 0, 0x40}},
                           {7, 0xFFFFFFFF, {0, 0, 0, 0, 0}, {0x80, 0xFF, 0xFF, 0xFF, 0x7F}},
                           {4, 0, {0x5A}, {0x5A}}}) {
        Bytes flags = row.before;
        set_flags(flags.data(), row.first, row.present);
        EXPECT_EQ(flags, row.after) << row.first;
    }
}

TEST(all_flags, are_those_of_the_members_and_of_nobody_else)
{
    const Bytes full(8, 0xFF);
    for (uint32_t members = 1; members <= 64; members++) {
        const Bytes flags = full.first((members + 7) / 8);
        EXPECT_EQ(all_flags(flags.data(), members), ~uint64_t{0} >> (64 - members));
    }
    const Bytes some = {0x78, 0x56, 0x34, 0x12, 0xF0, 0xDE, 0xBC, 0x9A};
    EXPECT_EQ(all_flags(some.data(), 64), 0x9ABCDEF012345678u);
    EXPECT_EQ(all_flags(some.data(), 37), 0x1012345678u);
    EXPECT_EQ(all_flags(nullptr, 0), 0u);
}

TEST(the_flags_of_a_run, start_with_its_first_member_and_hold_no_others)
{
    EXPECT_EQ((present<0, 1>({0x01})), 1u);
    EXPECT_EQ((present<0, 1>({0xFE})), 0u);
    EXPECT_EQ((present<3, 4>({0xF7})), 0xEu);
    EXPECT_EQ((present<3, 4>({0x87})), 0u);
    EXPECT_EQ((present<7, 2>({0x80, 0xFE})), 1u);
    EXPECT_EQ((present<7, 2>({0x7F, 0x01})), 2u);
    EXPECT_EQ((present<8, 3>({0xFF, 0x05})), 5u);
    EXPECT_EQ((present<17, 3>({0xFF, 0xFF, 0x0A})), 5u);
    EXPECT_EQ((present<0, 32>({0x78, 0x56, 0x34, 0x12})), 0x12345678u);
    EXPECT_EQ((present<0, 32>({0xFF, 0xFF, 0xFF, 0xFF})), 0xFFFFFFFFu);
    // A run of 32 may lie in five bytes.
    EXPECT_EQ((present<7, 32>({0x80, 0x00, 0x00, 0x00, 0x40})), 0x80000001u);
    EXPECT_EQ((present<4, 32>({0x0F, 0x00, 0x00, 0x00, 0xF0})), 0u);
}

TEST(clearing_flags, leaves_bits_that_belong_to_no_member)
{
    EXPECT_EQ(cleared<1>({0xFF}), (Bytes{0xFE}));
    EXPECT_EQ(cleared<5>({0xFF}), (Bytes{0xE0}));
    EXPECT_EQ(cleared<8>({0xFF, 0xFF}), (Bytes{0x00, 0xFF}));
    EXPECT_EQ(cleared<9>({0xFF, 0xFF}), (Bytes{0x00, 0xFE}));
    EXPECT_EQ(cleared<16>({0xFF, 0xFF, 0xFF}), (Bytes{0x00, 0x00, 0xFF}));
    EXPECT_EQ(cleared<45>({0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF}), (Bytes{0, 0, 0, 0, 0, 0xE0}));
}

TEST(setting_all_flags, leaves_bits_that_belong_to_no_member)
{
    EXPECT_EQ(filled<1>({0x00}), (Bytes{0x01}));
    EXPECT_EQ(filled<5>({0x80}), (Bytes{0x9F}));
    EXPECT_EQ(filled<8>({0x00, 0x00}), (Bytes{0xFF, 0x00}));
    EXPECT_EQ(filled<9>({0x00, 0x00}), (Bytes{0xFF, 0x01}));
    EXPECT_EQ(filled<16>({0x00, 0x00, 0x00}), (Bytes{0xFF, 0xFF, 0x00}));
}

TEST(copying_flags, leaves_bits_that_belong_to_no_member)
{
    EXPECT_EQ(copied<1>({0xFF}, {0x00}), (Bytes{0xFE}));
    EXPECT_EQ(copied<1>({0x00}, {0xFF}), (Bytes{0x01}));
    EXPECT_EQ(copied<5>({0xA0}, {0x5F}), (Bytes{0xBF}));
    EXPECT_EQ(copied<8>({0xFF, 0xFF}, {0x12}), (Bytes{0x12, 0xFF}));
    EXPECT_EQ(copied<9>({0x00, 0xFE}, {0x34, 0x01}), (Bytes{0x34, 0xFF}));
    EXPECT_EQ(copied<16>({0x00, 0x00}, {0x12, 0x34}), (Bytes{0x12, 0x34}));
}
