// SPDX-License-Identifier: MIT
// Pointers and the counts behind them, as they lie in a record.
#include "runtime/member.hpp"

#include <gtest/gtest.h>

using namespace tarn;

namespace {

struct List {
    uint8_t before[8];
    uint32_t *elements;
    uint32_t count;
    uint8_t after[4];
};

uint8_t *member_of(List &list)
{
    return reinterpret_cast<uint8_t *>(&list.elements);
}

} // namespace

TEST(a_pointer_member, is_what_the_record_declares)
{
    uint32_t elements[2];
    List list = {{}, elements, 2, {}};
    EXPECT_EQ(load_pointer(member_of(list)), elements);
    EXPECT_EQ(load_count(member_of(list)), 2u);

    store_pointer(member_of(list), nullptr);
    EXPECT_EQ(list.elements, nullptr);
    EXPECT_EQ(list.count, 2u);

    store_count(member_of(list), 0xFFFFFFFF);
    EXPECT_EQ(list.elements, nullptr);
    EXPECT_EQ(list.count, 0xFFFFFFFF);

    store_block(member_of(list), elements + 1, 1);
    EXPECT_EQ(list.elements, elements + 1);
    EXPECT_EQ(list.count, 1u);
}

TEST(a_pointer_member, is_stored_without_touching_its_neighbours)
{
    List list;
    memset(&list, 0xA5, sizeof list);
    store_block(member_of(list), nullptr, 0);
    for (uint8_t byte : list.before)
        EXPECT_EQ(byte, 0xA5);
    for (uint8_t byte : list.after)
        EXPECT_EQ(byte, 0xA5);
}
