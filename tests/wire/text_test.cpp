// SPDX-License-Identifier: MIT
// Lengths of texts.
#include "wire/text.hpp"

#include "tests/support/huge_text.hpp"

#include <gtest/gtest.h>

using tarn::wire_strlen;

TEST(length_of_a_text, counts_bytes_up_to_the_first_zero)
{
    EXPECT_EQ(wire_strlen(""), 0u);
    EXPECT_EQ(wire_strlen("a"), 1u);
    EXPECT_EQ(wire_strlen("port 7"), 6u);
    EXPECT_EQ(wire_strlen("ab\0cd"), 2u);
    EXPECT_EQ(wire_strlen("\xFF\x80"), 2u);
}

TEST(length_of_a_text, is_32_bits_wide_and_wraps)
{
    if (!test::HugeText::possible)
        GTEST_SKIP() << "a text of 4 GiB needs 64-bit addresses";
    test::HugeText text;
    ASSERT_NE(text.of_length(0), nullptr);
    EXPECT_EQ(wire_strlen(text.of_length(0xFFFFFFFF)), 0xFFFFFFFF);
    EXPECT_EQ(wire_strlen(text.of_length(0x100000000)), 0u);
    EXPECT_EQ(wire_strlen(text.of_length(0x100000003)), 3u);
}
