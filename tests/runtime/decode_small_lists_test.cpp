// SPDX-License-Identifier: MIT
// Numbers below 128 in lists are counted and read four at a time, as long as another one like them
// follows. What is not like them, wherever it stands, is seen as if each were read alone.
#include "tests/runtime/panel_cases.hpp"

using namespace test;

namespace {

// Of lists with the lowest tag of one byte, the highest, and one of two bytes.
constexpr Firsts<1, 7, 8> kBeforeLists;

} // namespace

TEST(small_elements, are_counted_and_read_in_lists_of_every_length)
{
    for_each_first(kBeforeLists, []<uint8_t first>() {
        for (uint32_t count = 1; count <= 14; count++) {
            const Bytes list = list_of(first + 8, count);
            for (const Bytes &behind :
                 {Bytes{}, row_of(first), Bytes{0xF8, 0x0F, 0x01}, Bytes{0x80}, Bytes{0x78},
                  join({{0x78, 0x01}, list_of(first + 8, 1)})})
                ASSERT_TRUE(is_decoded_plainly<first>(join({list, behind})));
            for (size_t at = 0; at < list.size(); at++) {
                for (const Bytes &other : kOtherValues)
                    ASSERT_TRUE(is_decoded_plainly<first>(replaced(list, at, other)));
                for (const Bytes &other : other_tags(list[at]))
                    ASSERT_TRUE(is_decoded_plainly<first>(replaced(list, at, other)));
                for (uint32_t bit = 0; bit < 8; bit++)
                    ASSERT_TRUE(is_decoded_plainly<first>(
                        replaced(list, at, {static_cast<uint8_t>(list[at] ^ 1u << bit)})));
            }
        }
    });
}

// Of the array, every element is written, and it is asked for once.
TEST(small_elements, fill_an_array_of_just_their_size)
{
    for (uint32_t count = 1; count <= 40; count++) {
        Owner<Panel<1>> owner;
        ASSERT_EQ(owner.decode(list_of(9, count)), WIRE_OK);
        EXPECT_EQ(owner.blocks.sizes(), (std::vector<uint32_t>{count * 4}));
        ASSERT_EQ(owner.record.list_count, count);
        for (uint32_t i = 0; i < count; i++)
            EXPECT_EQ(owner.record.list[i], 0x21 + i);
    }
}

// Only the field number tells what belongs to a run, also in a row of small ones.
TEST(small_elements, may_have_other_wire_types_but_for_the_first)
{
    for (uint32_t count = 1; count <= 12; count++) {
        for (uint32_t from = 0; from <= count; from++) {
            for (uint8_t wire_type : Bytes{1, 2, 5, 7}) {
                Bytes list = list_of(9, count);
                for (size_t at = size_t{2} * from; at < list.size(); at += 2)
                    list[at] = static_cast<uint8_t>(list[at] | wire_type);
                ASSERT_TRUE(is_decoded_plainly<1>(list));
                ASSERT_TRUE(is_decoded_plainly<1>(join({list, row_of(1)})));
            }
        }
    }
}
