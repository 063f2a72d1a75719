// SPDX-License-Identifier: MIT
// Memory with a budget.
#include "cxx/arena.hpp"

#include "cxx/owner.hpp"
#include "tests/cxx/samples.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <iterator>
#include <type_traits>
#include <vector>

using tarn::Arena;
using tarn::Owner;

namespace {

uintptr_t address_of(const void *place)
{
    return reinterpret_cast<uintptr_t>(place);
}

TEST(arena, hands_out_pieces_aligned_to_8_that_do_not_overlap)
{
    Arena arena(1024);
    const void *end = nullptr;
    for (const uint32_t size : {1u, 7u, 8u, 9u, 100u}) {
        void *piece = arena.take(size);
        ASSERT_NE(piece, nullptr);
        EXPECT_EQ(address_of(piece) % 8, 0u);
        EXPECT_GE(address_of(piece), address_of(end));
        std::memset(piece, 0xA5, size);
        end = static_cast<uint8_t *>(piece) + size;
    }
}

TEST(arena, counts_what_it_hands_out_in_steps_of_8)
{
    Arena arena(64);
    EXPECT_EQ(arena.budget(), 64u);
    arena.take(1);
    EXPECT_EQ(arena.used(), 8u);
    arena.take(8);
    EXPECT_EQ(arena.used(), 16u);
    arena.take(9);
    EXPECT_EQ(arena.used(), 32u);
    arena.take(0);
    EXPECT_EQ(arena.used(), 32u);
    EXPECT_EQ(arena.left(), 32u);
}

TEST(arena, hands_out_all_of_its_budget_and_not_a_byte_more)
{
    Arena arena(24);
    EXPECT_EQ(arena.take(25), nullptr);
    EXPECT_NE(arena.take(16), nullptr);
    EXPECT_EQ(arena.take(9), nullptr);
    EXPECT_NE(arena.take(8), nullptr);
    EXPECT_EQ(arena.take(1), nullptr);
    EXPECT_EQ(arena.used(), 24u);
}

TEST(arena, rounds_its_budget_down_to_a_multiple_of_8)
{
    EXPECT_EQ(Arena(31).budget(), 24u);
    EXPECT_EQ(Arena(7).budget(), 0u);
}

TEST(arena, refuses_sizes_near_the_end_of_32_bits)
{
    Arena arena(64);
    arena.take(8);
    for (const uint32_t size : {UINT32_MAX, UINT32_MAX - 1, UINT32_MAX - 7, UINT32_MAX - 8})
        EXPECT_EQ(arena.take(size), nullptr);
    EXPECT_EQ(arena.used(), 8u);
}

TEST(arena, has_a_piece_of_0_bytes_even_when_it_is_used_up)
{
    Arena arena(8);
    EXPECT_NE(arena.take(0), nullptr);
    EXPECT_NE(arena.take(8), nullptr);
    EXPECT_NE(arena.take(0), nullptr);
}

TEST(arena, takes_every_piece_back_at_once)
{
    Arena arena(64);
    void *first = arena.take(64);
    arena.reset();
    EXPECT_EQ(arena.used(), 0u);
    EXPECT_EQ(arena.take(64), first);
}

TEST(arena, stays_inside_the_memory_of_its_caller)
{
    alignas(8) uint8_t room[64];
    for (size_t start = 0; start < 9; start++) {
        for (size_t size = 0; size + start <= sizeof room; size++) {
            std::memset(room, 0xEE, sizeof room);
            Arena arena(tarn::ByteBuffer(room + start, size));
            uint32_t bytes = 0;
            while (void *piece = arena.take(1)) {
                EXPECT_EQ(address_of(piece) % 8, 0u);
                std::memset(piece, 0, 8); // all of it is the piece's
                bytes += 8;
            }
            EXPECT_EQ(bytes, arena.budget());
            EXPECT_EQ(std::count(room, room + start, 0xEE), static_cast<long>(start));
            EXPECT_EQ(std::count(room + start + size, std::end(room), 0xEE),
                      std::end(room) - (room + start + size));
            const size_t first = (start + 7) / 8 * 8;
            const size_t end = (start + size) / 8 * 8;
            EXPECT_EQ(bytes, end > first ? end - first : 0) << start << ' ' << size;
        }
    }
}

TEST(arena, hands_out_nothing_of_no_memory)
{
    Arena arena{tarn::ByteBuffer()};
    EXPECT_EQ(arena.budget(), 0u);
    EXPECT_EQ(arena.take(1), nullptr);
    EXPECT_EQ(arena.take(0), nullptr);
}

TEST(arena, stays_where_it_is)
{
    static_assert(!std::is_copy_constructible_v<Arena>);
    static_assert(!std::is_move_constructible_v<Arena>);
    static_assert(!std::is_move_assignable_v<Arena>);
}

TEST(arena, gives_an_owner_its_blocks_within_the_budget)
{
    alignas(8) uint8_t room[32];
    Arena arena(room);
    Owner<samples::Details> owner(arena);
    ASSERT_EQ(owner.decode(samples::kDetails), WIRE_OK);
    EXPECT_EQ(arena.used(), 16u);
    EXPECT_STREQ(owner->field_5, "x");
    ASSERT_EQ(owner.decode(samples::kDetails), WIRE_OK);
    EXPECT_EQ(owner.decode(samples::kDetails), WIRE_ERR_NO_MEMORY);
}

TEST(arena, may_be_reset_while_an_owner_still_has_its_record)
{
    Arena arena(1024);
    Owner<samples::Summary> owner(arena);
    ASSERT_EQ(owner.decode(samples::kSummary), WIRE_OK);
    arena.reset();
    std::memset(arena.take(1024), 0xA5, 1024);
} // The owner releases nothing, so it does not look at what the list has become.

} // namespace
