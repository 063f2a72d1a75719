// SPDX-License-Identifier: MIT
// The numbers behind the names of the results: callers in other languages know only these.
#include "wire/result.h"

#include <gtest/gtest.h>

#include <type_traits>

TEST(results, have_fixed_numbers)
{
    EXPECT_EQ(WIRE_OK, 0);
    EXPECT_EQ(WIRE_ERR_MALFORMED, -1);
    EXPECT_EQ(WIRE_ERR_WIRE_TYPE, -2);
    EXPECT_EQ(WIRE_ERR_TYPE_MISMATCH, -3);
    EXPECT_EQ(WIRE_ERR_NO_MEMORY, -4);
}

TEST(results, are_signed_and_32_bits_wide)
{
    EXPECT_TRUE((std::is_same_v<decltype(WIRE_OK), int32_t>));
    EXPECT_TRUE((std::is_same_v<decltype(WIRE_ERR_NO_MEMORY), int32_t>));
}
