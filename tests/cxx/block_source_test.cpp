// SPDX-License-Identifier: MIT
// Where the blocks of an Owner come from.
#include "cxx/block_source.hpp"

#include "cxx/owner.hpp"
#include "tests/cxx/samples.hpp"
#include "tests/support/blocks.hpp"

#include <gtest/gtest.h>

#include <cstdlib>

using samples::Text;
using tarn::BlockSource;
using tarn::Owner;

namespace {

// Counts, and takes from the heap.
class Counter {
public:
    void *take(uint32_t size)
    {
        taken++;
        return std::malloc(size ? size : 1);
    }

    void give_back(void *block)
    {
        given_back++;
        std::free(block);
    }

    int taken = 0;
    int given_back = 0;
};

// Takes nothing back singly.
class Room {
public:
    void *take(uint32_t size) { return size <= sizeof room_ ? room_ : nullptr; }

private:
    alignas(8) uint8_t room_[16] = {};
};

TEST(block_source, is_malloc_and_free_unless_told_otherwise)
{
    const Owner<Text> owner;
    const BlockSource heap = tarn::heap();
    EXPECT_EQ(owner.source().alloc_fn, heap.alloc_fn);
    EXPECT_EQ(owner.source().free_fn, heap.free_fn);
    void *block = heap.alloc_fn(100, heap.context);
    ASSERT_NE(block, nullptr);
    EXPECT_EQ(reinterpret_cast<uintptr_t>(block) % 8, 0u);
    heap.free_fn(block, heap.context);
}

TEST(block_source, has_a_block_for_an_empty_byte_string)
{
    const BlockSource heap = tarn::heap();
    void *block = heap.alloc_fn(0, heap.context);
    EXPECT_NE(block, nullptr);
    heap.free_fn(block, heap.context);

    Owner<samples::Details> owner;
    EXPECT_EQ(owner.decode(samples::Bytes{0x1A, 0}), WIRE_OK);
}

TEST(block_source, can_be_an_object_with_take_and_give_back)
{
    Counter counter;
    {
        Owner<Text> owner(counter);
        ASSERT_EQ(owner.decode(samples::kText), WIRE_OK);
        EXPECT_EQ(counter.taken, 1);
        EXPECT_EQ(counter.given_back, 0);
    }
    EXPECT_EQ(counter.given_back, 1);
}

TEST(block_source, can_be_an_object_that_takes_nothing_back)
{
    Room room;
    Owner<Text> owner(room);
    EXPECT_EQ(owner.source().free_fn, nullptr);
    ASSERT_EQ(owner.decode(samples::kText), WIRE_OK);
    EXPECT_STREQ(owner->command, "ports");
    owner.clear();
    EXPECT_EQ(owner->command, nullptr);
}

TEST(block_source, may_be_empty_for_records_that_need_no_block)
{
    Owner<samples::Numbers> numbers{BlockSource()};
    EXPECT_EQ(numbers.decode(samples::kNumbers), WIRE_OK);
    Owner<Text> text{BlockSource()};
    EXPECT_EQ(text.decode(samples::kText), WIRE_ERR_NO_MEMORY);
}

} // namespace
