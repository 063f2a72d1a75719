// SPDX-License-Identifier: MIT
// A record that owns its blocks.
#include "cxx/owner.hpp"

#include "tests/cxx/samples.hpp"
#include "tests/support/blocks.hpp"

#include <gtest/gtest.h>

#include <type_traits>
#include <utility>
#include <vector>

using samples::Bytes;
using samples::Details;
using samples::Fieldless;
using samples::Numbers;
using samples::Summary;
using samples::Text;
using tarn::BlockSource;
using tarn::Owner;
using test::Blocks;

namespace {

BlockSource from(Blocks &blocks)
{
    return {Blocks::take, Blocks::give_back, &blocks};
}

// What lies side by side in an Owner, and nothing else.
template <typename T>
struct SideBySide {
    T record;
    BlockSource source;
    uint32_t flags;
};

TEST(owner, is_as_large_as_record_callbacks_and_flags)
{
    EXPECT_EQ(sizeof(Owner<Numbers>), sizeof(SideBySide<Numbers>));
    EXPECT_EQ(sizeof(Owner<Details>), sizeof(SideBySide<Details>));
    EXPECT_EQ(sizeof(Owner<tarn_ethsw_mgmt_switch_info>),
              sizeof(SideBySide<tarn_ethsw_mgmt_switch_info>));
    EXPECT_EQ(sizeof(Owner<Fieldless>), sizeof(BlockSource) + sizeof(void *));
}

TEST(owner, holds_zero_bytes_until_it_is_decoded_into)
{
    const Owner<Details> owner;
    EXPECT_EQ(owner->field_1, 0u);
    EXPECT_EQ(owner->field_3, nullptr);
    EXPECT_EQ(owner->field_5, nullptr);
    EXPECT_EQ(owner->has_field_5, 0u);
    EXPECT_EQ(owner.flags(), 0u);
}

TEST(owner, is_decoded_into_and_read_like_a_pointer)
{
    Owner<Details> owner;
    ASSERT_EQ(owner.decode(samples::kDetails), WIRE_OK);
    EXPECT_EQ(owner->field_1, 5u);
    EXPECT_STREQ(owner->field_5, "x");
    EXPECT_EQ((*owner).field_4, 1u);
    EXPECT_EQ(owner.get(), &*owner);
}

TEST(owner, asks_for_the_blocks_of_the_plain_operations_and_for_no_others)
{
    Blocks plain_blocks;
    Details plain = {};
    ASSERT_EQ(tarn_ethsw_mgmt_bridge_sec_breach_details_decode_ext(&plain, samples::kDetails.data(),
                                                                   samples::kDetails.length(),
                                                                   Blocks::take, &plain_blocks, 0),
              WIRE_OK);
    Blocks blocks;
    {
        Owner<Details> owner(from(blocks));
        ASSERT_EQ(owner.decode(samples::kDetails), WIRE_OK);
        EXPECT_EQ(blocks.sizes(), plain_blocks.sizes());
    }
    tarn_ethsw_mgmt_bridge_sec_breach_details_free_ext(&plain, Blocks::give_back, &plain_blocks, 0);
    EXPECT_EQ(blocks.returned(), plain_blocks.returned());
}

TEST(owner, gives_every_block_back_at_the_end_of_its_scope)
{
    Blocks blocks;
    {
        Owner<Summary> owner(from(blocks));
        ASSERT_EQ(owner.decode(samples::kSummary), WIRE_OK);
        EXPECT_EQ(blocks.held(), 1u);
    }
    EXPECT_EQ(blocks.held(), 0u);
}

TEST(owner, releases_what_it_holds_before_it_decodes_again)
{
    Blocks blocks;
    Owner<Text> owner(from(blocks));
    ASSERT_EQ(owner.decode(samples::kText), WIRE_OK);
    ASSERT_EQ(owner.decode(samples::kText), WIRE_OK);
    EXPECT_EQ(blocks.held(), 1u);
    EXPECT_EQ(blocks.returned(), std::vector<size_t>{0});
}

TEST(owner, keeps_and_releases_what_was_decoded_before_an_error)
{
    Blocks blocks;
    Owner<Details> owner(from(blocks));
    // The byte string arrives twice.
    const Bytes input = {0x08, 5, 0x1A, 1, 0xDE, 0x1A, 1, 0xDE};
    EXPECT_EQ(owner.decode(input), WIRE_ERR_MALFORMED);
    EXPECT_EQ(owner->field_1, 5u);
    EXPECT_EQ(blocks.held(), 1u);
}

TEST(owner, reports_that_there_is_no_memory)
{
    Blocks blocks;
    blocks.fail_from(1);
    Owner<Details> owner(from(blocks));
    EXPECT_EQ(owner.decode(samples::kDetails), WIRE_ERR_NO_MEMORY);
    EXPECT_EQ(owner.duplicate(samples::details()), WIRE_ERR_NO_MEMORY);
}

TEST(owner, takes_no_block_for_byte_strings_in_place)
{
    Blocks blocks;
    Owner<Details> owner(from(blocks));
    ASSERT_EQ(owner.decode(samples::kDetails, WIRE_FLAG_BYTES_IN_PLACE), WIRE_OK);
    EXPECT_EQ(owner->field_3, samples::kDetails.data() + 4);
    EXPECT_EQ(blocks.sizes(), std::vector<uint32_t>{2});
    EXPECT_EQ(owner.flags(), WIRE_FLAG_BYTES_IN_PLACE);
} // Blocks fails the test if the place in the input is given back.

TEST(owner, forgets_the_flags_of_a_record_when_it_holds_another)
{
    Blocks blocks;
    Owner<Details> owner(from(blocks));
    ASSERT_EQ(owner.decode(samples::kDetails, WIRE_FLAG_BYTES_IN_PLACE), WIRE_OK);
    ASSERT_EQ(owner.decode(samples::kDetails), WIRE_OK);
    EXPECT_EQ(blocks.held(), 2u);
    ASSERT_EQ(owner.decode(samples::kDetails, WIRE_FLAG_BYTES_IN_PLACE), WIRE_OK);
    ASSERT_EQ(owner.duplicate(samples::details()), WIRE_OK);
    EXPECT_EQ(owner.flags(), 0u);
    EXPECT_EQ(blocks.held(), 2u);
}

TEST(owner, holds_zero_bytes_after_clear)
{
    Blocks blocks;
    Owner<Details> owner(from(blocks));
    ASSERT_EQ(owner.decode(samples::kDetails, WIRE_FLAG_BYTES_IN_PLACE), WIRE_OK);
    owner.clear();
    EXPECT_EQ(blocks.held(), 0u);
    EXPECT_EQ(owner->field_3, nullptr);
    EXPECT_EQ(owner->has_field_1, 0u);
    EXPECT_EQ(owner.flags(), 0u);
}

TEST(owner, duplicates_a_record_that_was_filled_by_hand)
{
    Blocks blocks;
    Owner<Details> owner(from(blocks));
    const Details original = samples::details();
    ASSERT_EQ(owner.duplicate(original), WIRE_OK);
    EXPECT_NE(owner->field_5, original.field_5);
    EXPECT_STREQ(owner->field_5, "x");
    EXPECT_EQ(blocks.held(), 2u);
}

TEST(owner, can_be_made_a_copy_of_another)
{
    Blocks blocks;
    Owner<Text> original(from(blocks));
    ASSERT_EQ(original.decode(samples::kText), WIRE_OK);
    Owner<Text> copy(from(blocks));
    ASSERT_EQ(copy.duplicate(original), WIRE_OK);
    original.clear();
    EXPECT_STREQ(copy->command, "ports");
}

TEST(owner, can_be_made_a_copy_of_itself_and_so_leaves_its_input_behind)
{
    Blocks blocks;
    Owner<Details> owner(from(blocks));
    {
        const Bytes input = samples::kDetails;
        ASSERT_EQ(owner.decode(input, WIRE_FLAG_BYTES_IN_PLACE), WIRE_OK);
        ASSERT_EQ(owner.duplicate(owner), WIRE_OK);
    }
    EXPECT_EQ(owner->field_3[0], 0xDE);
    EXPECT_EQ(blocks.held(), 2u);
}

TEST(owner, can_be_made_a_copy_of_a_structure_that_shares_its_blocks)
{
    Blocks blocks;
    Owner<Details> owner(from(blocks));
    ASSERT_EQ(owner.decode(samples::kDetails), WIRE_OK);
    Details changed = *owner;
    changed.field_5 = "changed";
    ASSERT_EQ(owner.duplicate(changed), WIRE_OK);
    EXPECT_STREQ(owner->field_5, "changed");
    EXPECT_EQ(owner->field_3[3], 0xEF);
    EXPECT_EQ(blocks.held(), 2u);
}

TEST(owner, moves_without_touching_a_block)
{
    Blocks blocks;
    Owner<Details> first(from(blocks));
    ASSERT_EQ(first.decode(samples::kDetails, WIRE_FLAG_BYTES_IN_PLACE), WIRE_OK);
    const char *const text = first->field_5;
    Owner<Details> second(std::move(first));
    EXPECT_EQ(second->field_5, text);
    EXPECT_EQ(second.flags(), WIRE_FLAG_BYTES_IN_PLACE);
    EXPECT_EQ(blocks.sizes().size(), 1u);
    EXPECT_EQ(blocks.returned().size(), 0u);
}

TEST(owner, can_be_used_anew_after_a_move)
{
    Blocks blocks;
    Owner<Text> first(from(blocks));
    ASSERT_EQ(first.decode(samples::kText), WIRE_OK);
    const Owner<Text> second(std::move(first));
    EXPECT_EQ(first->command, nullptr); // NOLINT(bugprone-use-after-move): promised
    EXPECT_EQ(first->has_command, 0u);
    ASSERT_EQ(first.decode(samples::kText), WIRE_OK);
    EXPECT_EQ(blocks.held(), 2u);
}

TEST(owner, releases_what_it_holds_before_it_takes_over_by_a_move)
{
    Blocks old_blocks;
    Blocks new_blocks;
    Owner<Text> owner(from(old_blocks));
    ASSERT_EQ(owner.decode(samples::kText), WIRE_OK);
    Owner<Text> other(from(new_blocks));
    ASSERT_EQ(other.decode(samples::kText), WIRE_OK);
    owner = std::move(other);
    EXPECT_EQ(old_blocks.held(), 0u);
    EXPECT_EQ(new_blocks.held(), 1u);
    EXPECT_STREQ(owner->command, "ports");
}

TEST(owner, takes_over_the_flags_by_a_move)
{
    Blocks blocks;
    Owner<Details> owner(from(blocks));
    ASSERT_EQ(owner.decode(samples::kDetails), WIRE_OK);
    Owner<Details> other(from(blocks));
    ASSERT_EQ(other.decode(samples::kDetails, WIRE_FLAG_BYTES_IN_PLACE), WIRE_OK);
    owner = std::move(other);
    EXPECT_EQ(owner.flags(), WIRE_FLAG_BYTES_IN_PLACE);
    EXPECT_EQ(other.flags(), 0u); // NOLINT(bugprone-use-after-move): promised
    EXPECT_EQ(blocks.held(), 1u);
}

TEST(owner, survives_a_move_onto_itself)
{
    Blocks blocks;
    Owner<Text> owner(from(blocks));
    ASSERT_EQ(owner.decode(samples::kText), WIRE_OK);
    Owner<Text> &same = owner;
    owner = std::move(same);
    EXPECT_STREQ(owner->command, "ports");
}

TEST(owner, lives_in_a_vector_that_grows)
{
    Blocks blocks;
    {
        std::vector<Owner<Text>> owners;
        for (int i = 0; i < 20; i++) {
            owners.emplace_back(from(blocks));
            ASSERT_EQ(owners.back().decode(samples::kText), WIRE_OK);
        }
        for (const Owner<Text> &owner : owners)
            EXPECT_STREQ(owner->command, "ports");
        EXPECT_EQ(blocks.sizes().size(), 20u);
    }
    EXPECT_EQ(blocks.held(), 0u);
}

TEST(owner, moves_but_does_not_copy_and_nothing_of_it_throws)
{
    static_assert(!std::is_copy_constructible_v<Owner<Text>>);
    static_assert(!std::is_copy_assignable_v<Owner<Text>>);
    static_assert(std::is_nothrow_move_constructible_v<Owner<Text>>);
    static_assert(std::is_nothrow_move_assignable_v<Owner<Text>>);
    static_assert(std::is_nothrow_default_constructible_v<Owner<Text>>);
    static_assert(noexcept(std::declval<Owner<Text> &>().decode({})));
    static_assert(noexcept(std::declval<Owner<Text> &>().duplicate(Text{})));
}

TEST(owner, does_not_let_its_pointers_be_overwritten_in_passing)
{
    Owner<Text> owner;
    static_assert(std::is_same_v<decltype(*owner), const Text &>);
    static_assert(std::is_same_v<decltype(owner.operator->()), const Text *>);
    static_assert(std::is_same_v<decltype(owner.get()), const Text *>);
    static_assert(std::is_same_v<decltype(owner.writable()), Text *>);
}

TEST(owner, lets_numbers_be_written_when_asked)
{
    Owner<Numbers> owner;
    ASSERT_EQ(owner.decode(samples::kNumbers), WIRE_OK);
    owner.writable()->port = 4;
    EXPECT_EQ(owner->port, 4u);
}

TEST(owner, gives_members_the_defaults_of_decoding)
{
    Owner<tarn_ethsw_mgmt_yield_switch_to_peer_response> owner;
    ASSERT_EQ(owner.decode({}), WIRE_OK);
    EXPECT_EQ(owner->location.field_1, 7u);
    EXPECT_EQ(owner->location.field_7, UINT32_MAX);
}

TEST(owner, refuses_input_that_is_longer_than_the_library_can_be_told)
{
    if constexpr (sizeof(size_t) > sizeof(uint32_t)) {
        Blocks blocks;
        Owner<Text> owner(from(blocks));
        ASSERT_EQ(owner.decode(samples::kText), WIRE_OK);
        const size_t size = size_t{UINT32_MAX} + 1 + samples::kText.size();
        EXPECT_EQ(owner.decode({samples::kText.data(), size}), WIRE_ERR_MALFORMED);
        EXPECT_EQ(owner->command, nullptr);
        EXPECT_EQ(blocks.held(), 0u);
    }
}

TEST(owner_of_a_fieldless_type, has_no_record)
{
    Owner<Fieldless> owner;
    EXPECT_EQ(owner.get(), nullptr);
    EXPECT_EQ(owner.writable(), nullptr);
    static_assert(!tarn::has_fields<Fieldless>);
    static_assert(tarn::has_fields<Numbers>);
}

TEST(owner_of_a_fieldless_type, checks_its_input_and_skips_it)
{
    Owner<Fieldless> owner;
    EXPECT_EQ(owner.decode({}), WIRE_OK);
    EXPECT_EQ(owner.decode(samples::kText), WIRE_OK);
    EXPECT_EQ(owner.decode(Bytes{0x0B}), WIRE_ERR_WIRE_TYPE);
    EXPECT_EQ(owner.decode(Bytes{0x08}), WIRE_ERR_MALFORMED);
}

TEST(owner_of_a_fieldless_type, moves_and_is_duplicated)
{
    Owner<Fieldless> first;
    Owner<Fieldless> second(std::move(first));
    EXPECT_EQ(second.duplicate(Owner<Fieldless>()), WIRE_OK);
    Owner<Fieldless> third;
    third = std::move(second);
    third.clear();
    EXPECT_EQ(third.get(), nullptr);
}

} // namespace
