// SPDX-License-Identifier: MIT
// Copies that do not succeed: they go on to the end, leave empty what they could not copy, and
// return the first error of a nested record unless memory was short anywhere.
#include "runtime/duplicate.hpp"

#include "tests/support/operations.hpp"
#include "tests/support/samples.hpp"
#include "tests/support/stranger.hpp"

#include <gtest/gtest.h>

using namespace test;

namespace {

// A copy of the sample of which some requests for memory failed.
struct Row {
    size_t failing;
    Bytes copy;      // as it is encoded
    size_t requests; // in all
};

} // namespace

TEST(a_copy_without_some_memory, lacks_just_what_was_to_be_in_it)
{
    const Bytes scalars = kSampleBytes.first(11);
    const Bytes text = {0x22, 0x02, 'h', 'i'};
    const Bytes blob = {0x2A, 0x02, 0xDE, 0xAD};
    const Bytes leaf = {0x32, 0x02, 0x08, 0x05};
    const Bytes numbers = {0x38, 0x01, 0x38, 0xAC, 0x02};
    const Bytes texts = {0x42, 0x02, 'a', 'b', 0x42, 0x00};
    const Bytes leaves = {0x4A, 0x05, 0x08, 0x07, 0x12, 0x01, 'x', 0x4A, 0x00};
    for (const Row &row : {
             Row{0, join({scalars, blob, leaf, numbers, texts, leaves}), 8},
             {1, join({scalars, text, leaf, numbers, texts, leaves}), 8},
             {2, join({scalars, text, blob, leaf, texts, leaves}), 8},
             {3, join({scalars, text, blob, leaf, numbers, leaves}), 6},
             {6, join({scalars, text, blob, leaf, numbers, texts}), 7},
             {7, join({scalars, text, blob, leaf, numbers, texts, {0x4A, 2, 0x08, 7, 0x4A, 0}}), 8},
         }) {
        SCOPED_TRACE("request " + std::to_string(row.failing));
        Owner<Every> copy;
        copy.blocks.fail_only(row.failing);
        EXPECT_EQ(copy.duplicate(Sample().record), WIRE_ERR_NO_MEMORY);
        EXPECT_EQ(encode(copy.record), row.copy);
        EXPECT_EQ(copy.blocks.sizes().size(), row.requests);
        EXPECT_EQ(copy.blocks.held(), row.requests - 1);
    }
}

TEST(a_copy_without_some_memory, has_neither_pointer_nor_count_nor_flag_for_it)
{
    for (const bool has_allocator : {true, false}) {
        Owner<Every> copy;
        copy.blocks.fail_from(0);
        EXPECT_EQ(has_allocator ? copy.duplicate(Sample().record)
                                : copy.duplicate_without_memory(Sample().record),
                  WIRE_ERR_NO_MEMORY);
        const Every &r = copy.record;
        EXPECT_EQ(r.text, nullptr);
        EXPECT_EQ(r.blob, nullptr);
        EXPECT_EQ(r.blob_length, 0u);
        EXPECT_EQ(r.numbers, nullptr);
        EXPECT_EQ(r.numbers_count, 0u);
        EXPECT_EQ(r.texts, nullptr);
        EXPECT_EQ(r.texts_count, 0u);
        EXPECT_EQ(r.leaves, nullptr);
        EXPECT_EQ(r.leaves_count, 0u);
        EXPECT_FALSE(r.has_text || r.has_blob || r.has_numbers || r.has_texts || r.has_leaves);
        EXPECT_TRUE(r.has_number && r.has_wide && r.has_truth && r.has_leaf && r.leaf.has_number);
        // Every member is tried, elements of a list that is not there are not.
        EXPECT_EQ(copy.blocks.sizes().size(), has_allocator ? 5u : 0u);
    }
}

TEST(a_copy_without_some_memory, has_null_for_a_text_in_a_list)
{
    for (size_t failing : {4u, 5u}) {
        Owner<Every> copy;
        copy.blocks.fail_only(failing);
        EXPECT_EQ(copy.duplicate(Sample().record), WIRE_ERR_NO_MEMORY);
        EXPECT_TRUE(copy.record.has_texts);
        ASSERT_EQ(copy.record.texts_count, 2u);
        EXPECT_EQ(copy.record.texts[0] == nullptr, failing == 4);
        EXPECT_EQ(copy.record.texts[1] == nullptr, failing == 5);
    }
}

TEST(a_copy_without_some_memory, has_an_element_without_its_text)
{
    Owner<Every> copy;
    copy.blocks.fail_only(7);
    EXPECT_EQ(copy.duplicate(Sample().record), WIRE_ERR_NO_MEMORY);
    EXPECT_TRUE(copy.record.has_leaves);
    ASSERT_EQ(copy.record.leaves_count, 2u);
    EXPECT_EQ(copy.record.leaves[0].text, nullptr);
    EXPECT_FALSE(copy.record.leaves[0].has_text);
    EXPECT_TRUE(copy.record.leaves[0].has_number);
}

// Whatever fails first and whatever fails then, one release gives everything back.
TEST(a_copy_without_some_memory, can_be_released)
{
    for (size_t failing = 0; failing <= 8; failing++) {
        Owner<Every> once, onwards;
        once.blocks.fail_only(failing);
        onwards.blocks.fail_from(failing);
        const int32_t expected = failing < 8 ? WIRE_ERR_NO_MEMORY : WIRE_OK;
        EXPECT_EQ(once.duplicate(Sample().record), expected);
        EXPECT_EQ(onwards.duplicate(Sample().record), expected);
        EXPECT_EQ(onwards.blocks.held(), failing);
    }
    for (size_t failing = 0; failing <= 4; failing++) {
        Owner<Parcel> parcel;
        parcel.blocks.fail_only(failing);
        EXPECT_EQ(parcel.duplicate(SampleParcel().record),
                  failing < 4 ? WIRE_ERR_NO_MEMORY : WIRE_OK);
    }
}

TEST(the_error_of_a_nested_record, is_the_first_unless_memory_was_short)
{
    struct ErrorRow {
        int32_t first, second;
        std::vector<int32_t> list;
        size_t failing; // the two texts are requests 0 and 1, the list is 2
        int32_t expected;
    };
    constexpr size_t kNone = 100;
    constexpr int32_t kNoMemory = WIRE_ERR_NO_MEMORY;
    for (const ErrorRow &row : {
             ErrorRow{0, 0, {0, 0, 0}, kNone, WIRE_OK},
             {-1, 0, {0, 0, 0}, kNone, -1},
             {-1, -2, {-3, 0, 0}, kNone, -1},
             {0, -2, {-3, 0, 0}, kNone, -2},
             {0, 0, {0, -3, -5}, kNone, -3},
             {5, -2, {0, 0, 0}, kNone, 5}, // anything but 0 is an error
             // A shortage before, between and behind takes the place of any other error.
             {-1, -1, {0, 0, 0}, 0, kNoMemory},
             {-1, -1, {0, 0, 0}, 1, kNoMemory},
             {-1, 0, {0, 0, 0}, 2, kNoMemory},
             {0, -1, {-3, -3, -3}, 1, kNoMemory},
         }) {
        std::vector<Stranger> list;
        for (int32_t result : row.list)
            list.push_back({result, 4});
        Host host = {};
        host.before = host.text = "a";
        host.stranger = {row.first, 1};
        host.second = {row.second, 2};
        host.list = list.data();
        host.list_count = 3;
        host.number = 6;
        host.has_before = host.has_stranger = host.has_text = host.has_second = 1;
        host.has_list = host.has_number = 1;

        Owner<Host> copy;
        copy.blocks.fail_only(row.failing);
        EXPECT_EQ(copy.duplicate(host), row.expected);
        // Whatever failed, the rest was copied, and of what failed elsewhere the flags as well.
        EXPECT_EQ(copy.record.stranger.length, 1u);
        EXPECT_EQ(copy.record.second.length, 2u);
        EXPECT_TRUE(copy.record.has_stranger && copy.record.has_second && copy.record.has_number);
        EXPECT_EQ(copy.record.number, 6u);
        EXPECT_EQ(copy.record.has_before, row.failing != 0);
        EXPECT_EQ(copy.record.has_text, row.failing != 1);
        EXPECT_EQ(copy.record.has_list, row.failing != 2);
        EXPECT_EQ(copy.record.list_count, row.failing != 2 ? 3u : 0u);
        for (uint32_t i = 0; i < copy.record.list_count; i++)
            EXPECT_EQ(copy.record.list[i].result, row.list[i]);
    }
}
