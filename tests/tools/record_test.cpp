// SPDX-License-Identifier: MIT
// Records with their memory: what decoding leaves, what editing writes, and how much memory there
// is.
#include "tests/tools/hex_bytes.hpp"
#include "tools/core/record.hpp"

#include <gtest/gtest.h>

namespace inspect {

namespace {

TEST(arena, hands_out_blocks_that_are_aligned_and_apart)
{
    Arena arena(SIZE_MAX);
    auto *const first = static_cast<std::byte *>(arena.take(3));
    auto *const second = static_cast<std::byte *>(arena.take(100000));
    auto *const third = static_cast<std::byte *>(arena.take(8));
    for (const std::byte *block : {first, second, third})
        EXPECT_EQ(reinterpret_cast<uintptr_t>(block) % 8, 0u);
    EXPECT_GE(third, first + 8);
    EXPECT_EQ(arena.blocks(), 3u);
}

TEST(arena, gives_a_block_for_nothing)
{
    Arena arena(64);
    EXPECT_NE(arena.take(0), nullptr);
}

TEST(arena, gives_no_more_than_its_limit)
{
    Arena arena(64);
    EXPECT_EQ(arena.take(65), nullptr);
    EXPECT_EQ(arena.take(SIZE_MAX), nullptr);
    EXPECT_NE(arena.take(60), nullptr);
    EXPECT_EQ(arena.take(1), nullptr);
    EXPECT_EQ(arena.blocks(), 1u);
}

TEST(record, begins_with_the_defaults_of_what_it_embeds)
{
    const Record record(*find_type("esd_location_info"), SIZE_MAX);
    EXPECT_EQ(record.view().number(record.type().members[2]), UINT32_MAX);
    EXPECT_FALSE(record.view().has_content());
    EXPECT_TRUE(record.encode().empty());
}

TEST(record, is_read_member_by_member)
{
    Record record(*find_type("vlan_table_entry"), SIZE_MAX);
    ASSERT_EQ(record.decode(from_hex("08 ac 02 10 05 10 06 1a 02 68 69")), WIRE_OK);
    const RecordView view = record.view();
    const auto members = record.type().members;
    EXPECT_EQ(view.number(members[0]), 300u);
    EXPECT_EQ(view.count(members[1]), 2u);
    EXPECT_EQ(view.number_at(members[1], 1), 6u);
    EXPECT_STREQ(view.text(members[2]), "hi");
}

TEST(record, writes_what_was_put_into_it)
{
    Record record(*find_type("vlan_table_entry"), SIZE_MAX);
    const uint32_t list[] = {5, 6};
    RecordEditor editor = record.editor();
    editor.set_number(record.type().members[0], 300);
    editor.set_list(record.type().members[1], list, 2);
    editor.set_text(record.type().members[2], "hi");
    EXPECT_EQ(record.encode(), from_hex("08 ac 02 10 05 10 06 1a 02 68 69"));
}

TEST(record, has_content_where_an_embedded_record_has_some_though_its_flag_is_clear)
{
    Record record(*find_type("fdb_get_counters_response"), SIZE_MAX);
    const Member &counters = *record.type().member_of_number(2);
    const RecordView child = record.view().child(counters);
    RecordEditor inside(*counters.child, const_cast<std::byte *>(child.address()));
    inside.set_number(counters.child->members[0], 7);
    EXPECT_FALSE(record.view().has(counters));
    EXPECT_TRUE(record.view().is_written(counters));
    EXPECT_EQ(record.encode(), from_hex("12 02 08 07"));
}

TEST(record, keeps_what_arrived_before_an_error)
{
    Record record(*find_type("port_enable"), SIZE_MAX);
    EXPECT_EQ(record.decode(from_hex("08 05 10")), WIRE_ERR_MALFORMED);
    EXPECT_TRUE(record.view().has(record.type().members[0]));
    EXPECT_FALSE(record.view().has(record.type().members[1]));
}

TEST(record, takes_no_more_memory_than_it_may)
{
    Record record(*find_type("bcm_shell_cmd"), 16);
    EXPECT_EQ(record.decode(from_hex("0a 10 61616161616161616161616161616161")),
              WIRE_ERR_NO_MEMORY);
    EXPECT_EQ(record.decode(from_hex("0a 02 6161")), WIRE_OK);
}

} // namespace

} // namespace inspect
