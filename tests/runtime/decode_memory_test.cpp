// SPDX-License-Identifier: MIT
// What decoding asks of alloc_fn, and that everything hangs on the record wherever it stops: every
// Owner checks in the end that one release gives all blocks back.
#include "tests/support/operations.hpp"
#include "tests/support/samples.hpp"

#include <gtest/gtest.h>

using namespace test;

namespace {

using Sizes = std::vector<uint32_t>;

// What kSampleBytes asks for, member by member, arrays before what is in them.
const Sizes kSampleSizes = {
    3,                // "hi"
    2,                // the byte string
    8,                // two numbers
    2 * kPointerSize, // two texts:
    3,                // "ab"
    1,                // ""
    2 * kLeafSize,    // two leaves:
    2,                // "x"
};

// Each request of a message fails once; nothing more is asked for then.
template <typename Record>
void expect_each_request_may_fail(const Bytes &input, uint32_t flags, const Sizes &sizes)
{
    for (size_t failing = 0; failing < sizes.size(); failing++) {
        SCOPED_TRACE("request " + std::to_string(failing));
        Owner<Record> owner;
        owner.blocks.fail_only(failing);
        EXPECT_EQ(owner.decode(input, flags), WIRE_ERR_NO_MEMORY);
        EXPECT_EQ(owner.blocks.sizes(),
                  Sizes(sizes.begin(), sizes.begin() + static_cast<long>(failing) + 1));
        EXPECT_EQ(owner.blocks.held(), failing);
    }
    Owner<Record> owner;
    EXPECT_EQ(owner.decode(input, flags), WIRE_OK);
    EXPECT_EQ(owner.blocks.sizes(), sizes);
    EXPECT_EQ(owner.blocks.held(), sizes.size());
}

} // namespace

TEST(memory_for_decoding, is_asked_for_in_the_order_of_the_input)
{
    expect_each_request_may_fail<Every>(kSampleBytes, 0, kSampleSizes);
    expect_each_request_may_fail<Parcel>(kSampleParcelBytes, 0, {2, 2 * sizeof(Blobs), 1, 1});
    expect_each_request_may_fail<Shell>(kSampleShellBytes, 0, {2 * sizeof(Every), kLeafSize});
}

TEST(memory_for_decoding, is_not_asked_for_byte_strings_in_place)
{
    Sizes sizes = kSampleSizes;
    sizes.erase(sizes.begin() + 1);
    expect_each_request_may_fail<Every>(kSampleBytes, WIRE_FLAG_BYTES_IN_PLACE, sizes);
    expect_each_request_may_fail<Parcel>(kSampleParcelBytes, WIRE_FLAG_BYTES_IN_PLACE,
                                         {2 * sizeof(Blobs)});
}

TEST(memory_for_decoding, is_attached_when_the_message_ends_early)
{
    for (uint32_t length = 0; length <= kSampleBytes.length(); length++) {
        Owner<Every> owner;
        const int32_t result = owner.decode(kSampleBytes.first(length));
        EXPECT_TRUE(result == WIRE_OK || result == WIRE_ERR_MALFORMED) << length;
        Owner<Every> in_place;
        EXPECT_EQ(in_place.decode(kSampleBytes.first(length), WIRE_FLAG_BYTES_IN_PLACE), result);
    }
}

TEST(memory_for_decoding, leaves_a_member_that_gets_none_as_it_was)
{
    struct Row {
        size_t failing;
        void (*expect_empty)(const Every &record);
    };
    for (const Row &row : {
             Row{0,
                 [](const Every &r) {
                     EXPECT_EQ(r.text, nullptr);
                     EXPECT_TRUE(r.has_truth && !r.has_text && !r.has_blob);
                 }},
             {1,
              [](const Every &r) {
                  EXPECT_EQ(r.blob, nullptr);
                  EXPECT_EQ(r.blob_length, 0u);
                  EXPECT_TRUE(r.has_text && !r.has_blob && !r.has_leaf);
              }},
             {2,
              [](const Every &r) {
                  EXPECT_EQ(r.numbers, nullptr);
                  EXPECT_EQ(r.numbers_count, 0u);
                  EXPECT_TRUE(r.has_leaf && !r.has_numbers && !r.has_texts);
              }},
             {3,
              [](const Every &r) {
                  EXPECT_EQ(r.texts, nullptr);
                  EXPECT_EQ(r.texts_count, 0u);
                  EXPECT_TRUE(r.has_numbers && !r.has_texts && !r.has_leaves);
              }},
             {6,
              [](const Every &r) {
                  EXPECT_EQ(r.leaves, nullptr);
                  EXPECT_EQ(r.leaves_count, 0u);
                  EXPECT_TRUE(r.has_texts && !r.has_leaves);
              }},
             {7,
              [](const Every &r) {
                  ASSERT_EQ(r.leaves_count, 2u);
                  EXPECT_EQ(r.leaves[0].number, 7u);
                  EXPECT_EQ(r.leaves[0].text, nullptr);
                  EXPECT_FALSE(r.leaves[0].has_text || r.has_leaves);
              }},
         }) {
        SCOPED_TRACE("request " + std::to_string(row.failing));
        Owner<Every> owner;
        owner.blocks.fail_only(row.failing);
        EXPECT_EQ(owner.decode(kSampleBytes), WIRE_ERR_NO_MEMORY);
        row.expect_empty(owner.record);
    }
}

// An allocator may have nothing for nobody.
TEST(memory_for_decoding, of_size_0_may_be_refused)
{
    Owner<Every> refused;
    refused.blocks.refuse_empty();
    EXPECT_EQ(refused.decode({0x2A, 0}), WIRE_ERR_NO_MEMORY);
    EXPECT_EQ(refused.blocks.sizes(), Sizes{0});
    EXPECT_FALSE(refused.record.has_blob);

    Owner<Every> granted;
    EXPECT_EQ(granted.decode({0x2A, 0}), WIRE_OK);
    EXPECT_NE(granted.record.blob, nullptr);
    EXPECT_EQ(granted.record.blob_length, 0u);
    EXPECT_TRUE(granted.record.has_blob);

    // In place nobody is asked.
    Owner<Every> in_place;
    in_place.blocks.refuse_empty();
    EXPECT_EQ(in_place.decode({0x2A, 0}, WIRE_FLAG_BYTES_IN_PLACE), WIRE_OK);
    EXPECT_TRUE(in_place.blocks.sizes().empty());
}

TEST(decoding_again, starts_from_the_defaults_and_forgets_what_was_there)
{
    Owner<Every> owner;
    owner.blocks.expect_lost(kSampleSizes.size());
    EXPECT_EQ(owner.decode(kSampleBytes), WIRE_OK);
    EXPECT_EQ(owner.decode({0x08, 0x05}), WIRE_OK);
    EXPECT_EQ(encode(owner.record), (Bytes{0x08, 0x05}));
    EXPECT_EQ(owner.record.text, nullptr);
    EXPECT_EQ(owner.record.leaves_count, 0u);
}

TEST(decoding_again, is_possible_after_a_release)
{
    Owner<Every> owner;
    EXPECT_EQ(owner.decode(kSampleBytes), WIRE_OK);
    owner.release();
    EXPECT_EQ(owner.decode(kSampleBytes), WIRE_OK);
    EXPECT_EQ(encode(owner.record), kSampleBytes);
}
