// SPDX-License-Identifier: MIT
// What the caller's alloc_fn is asked, and what it is not.
#include "runtime/memory.hpp"

#include <gtest/gtest.h>

#include <vector>

using tarn::Memory;

namespace {

void *write_down(uint32_t size, void *sizes)
{
    static_cast<std::vector<uint32_t> *>(sizes)->push_back(size);
    return sizes;
}

void *refuse(uint32_t, void *)
{
    return nullptr;
}

} // namespace

TEST(memory, comes_from_the_callback_with_its_own_context)
{
    std::vector<uint32_t> sizes;
    const Memory memory{write_down, &sizes};
    EXPECT_EQ(memory.allocate(17), &sizes);
    EXPECT_EQ(sizes, (std::vector<uint32_t>{17}));
}

TEST(memory, may_be_asked_for_nothing_and_for_all_that_32_bits_can_say)
{
    std::vector<uint32_t> sizes;
    const Memory memory{write_down, &sizes};
    EXPECT_NE(memory.allocate(0), nullptr);
    EXPECT_NE(memory.allocate(UINT32_MAX), nullptr);
    EXPECT_EQ(sizes, (std::vector<uint32_t>{0, UINT32_MAX}));
}

TEST(memory, is_not_asked_for_more_than_32_bits_can_say)
{
    std::vector<uint32_t> sizes;
    const Memory memory{write_down, &sizes};
    for (uint64_t size : {uint64_t{1} << 32, (uint64_t{1} << 32) + 1, UINT64_MAX})
        EXPECT_EQ(memory.allocate(size), nullptr);
    EXPECT_TRUE(sizes.empty());
}

TEST(memory, is_null_when_the_callback_says_so_or_is_missing)
{
    EXPECT_EQ((Memory{refuse, nullptr}.allocate(1)), nullptr);
    EXPECT_EQ((Memory{nullptr, nullptr}.allocate(1)), nullptr);
}
