// SPDX-License-Identifier: MIT
// Deep copies: equal to their source, sharing nothing with it, in blocks of the right sizes.
#include "runtime/duplicate.hpp"

#include "ethsw_mgmt/switch.h"
#include "tests/support/huge_text.hpp"
#include "tests/support/operations.hpp"
#include "tests/support/samples.hpp"

#include <gtest/gtest.h>

using namespace test;

namespace {

using Sizes = std::vector<uint32_t>;

// Never followed where the rules are kept.
template <typename Element>
Element *nowhere()
{
    return reinterpret_cast<Element *>(16);
}

template <typename Record>
Bytes memory_of(const Record &record)
{
    const uint8_t *bytes = reinterpret_cast<const uint8_t *>(&record);
    return Bytes(bytes, bytes + sizeof record);
}

} // namespace

TEST(a_copy, is_equal_and_owns_what_it_points_to)
{
    Sample sample;
    const Bytes before = memory_of(sample.record);
    Owner<Every> copy;
    EXPECT_EQ(copy.duplicate(sample.record), WIRE_OK);
    EXPECT_EQ(encode(copy.record), kSampleBytes);
    EXPECT_EQ(memory_of(sample.record), before);

    EXPECT_NE(copy.record.text, sample.record.text);
    EXPECT_NE(copy.record.blob, sample.record.blob);
    EXPECT_NE(copy.record.numbers, sample.record.numbers);
    EXPECT_NE(copy.record.texts, sample.record.texts);
    EXPECT_NE(copy.record.texts[0], sample.record.texts[0]);
    EXPECT_NE(copy.record.texts[1], sample.record.texts[1]);
    EXPECT_NE(copy.record.leaves, sample.record.leaves);
    EXPECT_NE(copy.record.leaves[0].text, sample.record.leaves[0].text);
}

TEST(a_copy, asks_for_blocks_in_the_order_of_the_members)
{
    Owner<Every> every;
    EXPECT_EQ(every.duplicate(Sample().record), WIRE_OK);
    EXPECT_EQ(every.blocks.sizes(), (Sizes{3, 2, 8, 2 * kPointerSize, 3, 1, 2 * kLeafSize, 2}));
    Owner<Parcel> parcel;
    EXPECT_EQ(parcel.duplicate(SampleParcel().record), WIRE_OK);
    EXPECT_EQ(parcel.blocks.sizes(), (Sizes{2, 2 * sizeof(Blobs), 1, 1}));
    EXPECT_EQ(encode(parcel.record), kSampleParcelBytes);
    Owner<Shell> shell;
    EXPECT_EQ(shell.duplicate(SampleShell().record), WIRE_OK);
    EXPECT_EQ(shell.blocks.sizes(), (Sizes{2 * sizeof(Every), kLeafSize}));
    EXPECT_EQ(encode(shell.record), kSampleShellBytes);
}

TEST(a_copy, of_scalars_needs_no_memory)
{
    Rows rows = {};
    rows.field_2 = 0xFFFFFFFF;
    rows.field_21 = UINT64_MAX;
    rows.field_30 = 200; // as it is, though no truth
    rows.field_33 = 7;   // without a flag
    rows.has_field_2 = rows.has_field_21 = rows.has_field_30 = 1;
    Owner<Rows> copy;
    EXPECT_EQ(copy.duplicate_without_memory(rows), WIRE_OK);
    EXPECT_EQ(encode(copy.record), encode(rows));
    EXPECT_EQ(copy.record.field_33, 7);
    EXPECT_EQ(copy.record.field_1, 0u);
}

TEST(a_copy, has_each_flag_of_its_source_and_no_other)
{
    for (uint32_t member = 0; member <= 9; member++) {
        Every record = {};
        record.has_number = member == 0;
        record.has_wide = member == 1;
        record.has_truth = member == 2;
        record.has_text = member == 3;
        record.has_blob = member == 4;
        record.has_leaf = member == 5;
        record.has_numbers = member == 6;
        record.has_texts = member == 7;
        record.has_leaves = member == 8;
        for (uint8_t rubbish : Bytes{0x00, 0xFF}) {
            Owner<Every> copy(rubbish);
            EXPECT_EQ(copy.duplicate_without_memory(record), WIRE_OK);
            EXPECT_EQ(copy.record.has_number, record.has_number);
            EXPECT_EQ(copy.record.has_wide, record.has_wide);
            EXPECT_EQ(copy.record.has_truth, record.has_truth);
            EXPECT_EQ(copy.record.has_text, record.has_text);
            EXPECT_EQ(copy.record.has_blob, record.has_blob);
            EXPECT_EQ(copy.record.has_leaf, record.has_leaf);
            EXPECT_EQ(copy.record.has_numbers, record.has_numbers);
            EXPECT_EQ(copy.record.has_texts, record.has_texts);
            EXPECT_EQ(copy.record.has_leaves, record.has_leaves);
            EXPECT_FALSE(copy.record.leaf.has_number || copy.record.leaf.has_text);
        }
    }
}

// Flags do not matter for what is copied.
TEST(a_copy, holds_members_without_flags_too)
{
    Sample sample;
    Every &record = sample.record;
    record.has_text = record.has_blob = record.has_numbers = record.has_texts = 0;
    record.has_leaves = 0;
    Owner<Every> copy;
    EXPECT_EQ(copy.duplicate(record), WIRE_OK);
    EXPECT_STREQ(copy.record.text, "hi");
    EXPECT_EQ(copy.record.blob_length, 2u);
    EXPECT_EQ(copy.record.numbers_count, 2u);
    EXPECT_EQ(copy.record.leaves_count, 2u);
    EXPECT_FALSE(copy.record.has_text || copy.record.has_blob || copy.record.has_numbers ||
                 copy.record.has_texts || copy.record.has_leaves);
}

TEST(a_copy, of_null_texts_and_empty_blocks_is_null)
{
    Every record = {};
    record.text = nullptr;
    // Pointers without a length or count: nobody follows them, and they are not copied.
    record.blob = nowhere<uint8_t>();
    record.numbers = nowhere<uint32_t>();
    record.texts = nowhere<const char *>();
    record.leaves = nowhere<Leaf>();
    record.has_text = record.has_blob = record.has_numbers = record.has_texts = 1;
    record.has_leaves = 1;
    Owner<Every> copy;
    EXPECT_EQ(copy.duplicate(record), WIRE_OK);
    EXPECT_EQ(copy.record.text, nullptr);
    EXPECT_EQ(copy.record.blob, nullptr);
    EXPECT_EQ(copy.record.blob_length, 0u);
    EXPECT_EQ(copy.record.numbers, nullptr);
    EXPECT_EQ(copy.record.numbers_count, 0u);
    EXPECT_EQ(copy.record.texts, nullptr);
    EXPECT_EQ(copy.record.texts_count, 0u);
    EXPECT_EQ(copy.record.leaves, nullptr);
    EXPECT_EQ(copy.record.leaves_count, 0u);
    EXPECT_TRUE(copy.record.has_text && copy.record.has_blob && copy.record.has_numbers &&
                copy.record.has_texts && copy.record.has_leaves);
    EXPECT_TRUE(copy.blocks.sizes().empty());
}

TEST(a_copy, of_a_list_keeps_null_texts)
{
    const char *texts[] = {nullptr, "b", nullptr};
    Every record = {};
    record.texts = texts;
    record.texts_count = 3;
    record.has_texts = 1;
    Owner<Every> copy;
    EXPECT_EQ(copy.duplicate(record), WIRE_OK);
    ASSERT_EQ(copy.record.texts_count, 3u);
    EXPECT_EQ(copy.record.texts[0], nullptr);
    EXPECT_STREQ(copy.record.texts[1], "b");
    EXPECT_EQ(copy.record.texts[2], nullptr);
    EXPECT_EQ(copy.blocks.sizes(), (Sizes{3 * kPointerSize, 2}));
}

TEST(a_copy, ends_texts_where_their_first_zero_is)
{
    Every record = {};
    record.text = "ab\0cd";
    Owner<Every> copy;
    EXPECT_EQ(copy.duplicate(record), WIRE_OK);
    EXPECT_EQ(copy.blocks.sizes(), (Sizes{3}));
    EXPECT_STREQ(copy.record.text, "ab");
}

TEST(a_copy, outlives_the_input_that_its_source_was_decoded_from)
{
    Owner<Parcel> copy;
    {
        Owner<Parcel> source;
        EXPECT_EQ(source.decode(kSampleParcelBytes, WIRE_FLAG_BYTES_IN_PLACE), WIRE_OK);
        EXPECT_EQ(copy.duplicate(source.record), WIRE_OK);
        memset(const_cast<uint8_t *>(source.input().data()), 0, source.input().size());
    }
    EXPECT_EQ(encode(copy.record), kSampleParcelBytes);
    EXPECT_EQ(copy.blocks.sizes(), (Sizes{2, 2 * sizeof(Blobs), 1, 1}));
}

TEST(a_copy, of_a_record_without_fields_is_nothing)
{
    EXPECT_EQ(CodecFor<Nothing>::duplicate(nullptr, nullptr, nullptr, nullptr), WIRE_OK);
    EXPECT_EQ(tarn_ethsw_mgmt_get_switch_info_duplicate(nullptr, nullptr, nullptr, nullptr),
              WIRE_OK);
}

TEST(a_block_too_large_for_32_bits, is_not_asked_for)
{
    struct Row {
        void (*set)(Every &record, uint32_t count);
        uint32_t element_size;
    };
    for (const Row &row : {
             Row{[](Every &r, uint32_t count) {
                     r.numbers = nowhere<uint32_t>();
                     r.numbers_count = count;
                     r.has_numbers = 1;
                 },
                 4},
             {[](Every &r, uint32_t count) {
                  r.texts = nowhere<const char *>();
                  r.texts_count = count;
                  r.has_texts = 1;
              },
              kPointerSize},
             {[](Every &r, uint32_t count) {
                  r.leaves = nowhere<Leaf>();
                  r.leaves_count = count;
                  r.has_leaves = 1;
              },
              kLeafSize},
         }) {
        const uint32_t most = UINT32_MAX / row.element_size;
        for (uint32_t count : {most, most + 1, 0x40000000u, UINT32_MAX}) {
            SCOPED_TRACE(count);
            Every record = {};
            row.set(record, count);
            Owner<Every> copy;
            copy.blocks.fail_from(0);
            EXPECT_EQ(copy.duplicate(record), WIRE_ERR_NO_MEMORY);
            EXPECT_EQ(copy.blocks.sizes(),
                      count == most ? Sizes{most * row.element_size} : Sizes{});
            EXPECT_EQ(encode(copy.record), Bytes{});
        }
    }
}

TEST(a_text_too_large_for_32_bits, is_not_asked_for)
{
    if (!HugeText::possible)
        GTEST_SKIP() << "a text of 4 GiB needs 64-bit addresses";
    HugeText text;
    ASSERT_NE(text.of_length(0), nullptr);
    for (uint64_t length : {0xFFFFFFFEull, 0xFFFFFFFFull, 0x100000000ull, 0x100000003ull}) {
        Every record = {};
        record.text = text.of_length(length);
        record.number = 7;
        record.has_text = record.has_number = 1;
        Owner<Every> copy;
        copy.blocks.fail_from(0);
        EXPECT_EQ(copy.duplicate(record), WIRE_ERR_NO_MEMORY);
        EXPECT_EQ(copy.blocks.sizes(), length == 0xFFFFFFFE ? Sizes{0xFFFFFFFF} : Sizes{});
        EXPECT_EQ(copy.record.text, nullptr);
        EXPECT_EQ(encode(copy.record), (Bytes{0x08, 7}));
    }
}
