// SPDX-License-Identifier: MIT
// Elements of lists of records: those that own nothing go through copies and releases as one block,
// those with defaults of their own start from them, and what stands in their gaps is copied.
#include "tests/support/boxes.hpp"
#include "tests/support/operations.hpp"
#include "tests/support/records.hpp"
#include "tests/support/samples.hpp"
#include "tests/support/stranger.hpp"

#include <gtest/gtest.h>

using namespace test;

namespace {

// Records that own nothing, embedded and in a list, and records with a stranger inside.
struct Table {
    Rows row;   // field 1
    Rows *list; // field 2
    uint32_t list_count;
    Host *hosts; // field 3
    uint32_t hosts_count;
    unsigned has_row : 1;
    unsigned has_list : 1;
    unsigned has_hosts : 1;
};

} // namespace

namespace [[gnu::visibility("hidden")]] tarn {

template <>
struct Schema<Table> {
    using Record = Table;
    static constexpr Field fields[] = {
        field<Kind::message, decltype(Record::row)>(1, offsetof(Record, row)),
        field<Kind::repeated_message, decltype(Record::list)>(2, offsetof(Record, list)),
        field<Kind::repeated_message, decltype(Record::hosts)>(3, offsetof(Record, hosts)),
    };
    using Children = RecordTypes<Rows, Rows, Host>;
};

} // namespace tarn

namespace {

using Sizes = std::vector<uint32_t>;

const Bytes kTableBytes = {
    0x0A, 0x02, 0x08, 0x01,             // row
    0x12, 0x02, 0x10, 0x02,             // list
    0x12, 0x04, 0x58, 0x03, 0x08, 0x04, //
    0x12, 0x00,                         //
};

template <typename Record>
Bytes bytes_of_record(const Record &record)
{
    Bytes bytes(sizeof record);
    memcpy(bytes.data(), &record, sizeof record);
    make_defined(bytes.data(), bytes.size());
    return bytes;
}

} // namespace

TEST(an_element_that_owns_nothing, is_decoded_like_any_other)
{
    Owner<Table> table;
    EXPECT_EQ(table.decode(kTableBytes), WIRE_OK);
    EXPECT_EQ(table.record.row.field_1, 1u);
    ASSERT_EQ(table.record.list_count, 3u);
    EXPECT_EQ(table.record.list[0].field_2, 2u);
    EXPECT_TRUE(table.record.list[0].has_field_2);
    EXPECT_EQ(table.record.list[1].field_11, 3u);
    EXPECT_EQ(table.record.list[1].field_1, 4u);
    EXPECT_EQ(bytes_of_record(table.record.list[2]), Bytes(sizeof(Rows), 0));
    EXPECT_EQ(table.blocks.sizes(), Sizes{3 * sizeof(Rows)});
}

TEST(an_element_that_owns_nothing, is_copied_with_the_others_in_one_block)
{
    Owner<Table> source, copy;
    EXPECT_EQ(source.decode(kTableBytes), WIRE_OK);
    EXPECT_EQ(copy.duplicate(source.record), WIRE_OK);
    EXPECT_EQ(copy.blocks.sizes(), Sizes{3 * sizeof(Rows)});
    EXPECT_NE(copy.record.list, source.record.list);
    EXPECT_EQ(encode(copy.record), encode(source.record));

    Owner<Table> failed;
    failed.blocks.fail_from(0);
    EXPECT_EQ(failed.duplicate(source.record), WIRE_ERR_NO_MEMORY);
    EXPECT_EQ(failed.record.list, nullptr);
    EXPECT_EQ(failed.record.list_count, 0u);
    EXPECT_FALSE(failed.record.has_list);
    EXPECT_EQ(failed.record.row.field_1, 1u);
    EXPECT_TRUE(failed.record.has_row);
}

TEST(an_element_that_owns_nothing, is_released_with_its_array)
{
    Owner<Table> table;
    EXPECT_EQ(table.decode(kTableBytes), WIRE_OK);
    table.release();
    EXPECT_EQ(table.blocks.returned().size(), 1u);
    EXPECT_EQ(table.record.list, nullptr);
    EXPECT_EQ(table.record.list_count, 0u);
    EXPECT_TRUE(table.record.has_list);
    // A count without an array is left as it is.
    table.record.list_count = 7;
    table.release();
    EXPECT_EQ(table.record.list_count, 7u);
}

TEST(an_element_with_defaults_inside, starts_from_them)
{
    Owner<Table> table;
    EXPECT_EQ(table.decode({0x1A, 0x02, 0x30, 0x05, 0x1A, 0x02, 0x12, 0x00}), WIRE_OK);
    ASSERT_EQ(table.record.hosts_count, 2u);
    EXPECT_EQ(table.record.hosts[0].number, 5u);
    EXPECT_EQ(table.record.hosts[0].stranger.result, kStrangerDefault);
    EXPECT_EQ(table.record.hosts[0].second.result, kStrangerDefault);
    EXPECT_EQ(table.record.hosts[1].stranger.result, WIRE_OK);
    EXPECT_EQ(table.record.hosts[1].second.result, kStrangerDefault);
}

TEST(an_embedded_record, starts_from_its_defaults_whenever_it_comes_again)
{
    Owner<Table> table;
    // Its first occurrence finds the defaults there, the second has to set them again.
    EXPECT_EQ(table.decode({0x0A, 0x02, 0x08, 0x01, 0x0A, 0x02, 0x10, 0x02}), WIRE_OK);
    EXPECT_EQ(table.record.row.field_1, 0u);
    EXPECT_FALSE(table.record.row.has_field_1);
    EXPECT_EQ(table.record.row.field_2, 2u);
    EXPECT_EQ(table.decode({0x0A, 0x02, 0x08, 0x01, 0x0A, 0x00}), WIRE_OK);
    EXPECT_EQ(table.record.row.field_1, 0u);
    EXPECT_TRUE(table.record.has_row);

    Owner<Host> host;
    EXPECT_EQ(host.decode({0x12, 0x02, 0, 0, 0x12, 0x00}), WIRE_OK);
    EXPECT_EQ(host.record.stranger.length, 0u);
}

// Unlike a record itself, which leaves its own gaps as they are.
TEST(the_gaps_of_an_element, are_copied_with_their_array)
{
    for (uint8_t rubbish : Bytes{0x00, 0xFF}) {
        Rows rows[2];
        Leaf leaves[2];
        memset(rows, rubbish, sizeof rows);
        memset(leaves, rubbish, sizeof leaves);
        for (Leaf &leaf : leaves) {
            leaf.text = nullptr;
            leaf.has_text = leaf.has_number = 1;
        }
        Table table = {};
        table.list = rows;
        table.list_count = 2;
        table.has_list = 1;
        Every every = {};
        every.leaves = leaves;
        every.leaves_count = 2;
        every.has_leaves = 1;
        Owner<Table> flat;
        Owner<Every> deep;
        EXPECT_EQ(flat.duplicate(table), WIRE_OK);
        EXPECT_EQ(deep.duplicate(every), WIRE_OK);
        for (uint32_t i = 0; i < 2; i++) {
            EXPECT_EQ(bytes_of_record(flat.record.list[i]), bytes_of_record(rows[i]));
            EXPECT_EQ(bytes_of_record(deep.record.leaves[i]), bytes_of_record(leaves[i]));
        }
    }
}

TEST(a_copy_of_an_element, has_blocks_of_its_own_for_what_is_embedded_in_it)
{
    Sample sample;
    Every list[2] = {sample.record, {}};
    list[0].leaf.text = "leaf";
    list[0].leaf.has_text = 1;
    Shell shell = {};
    shell.list = list;
    shell.list_count = 2;
    shell.has_list = 1;
    Owner<Shell> copy;
    EXPECT_EQ(copy.duplicate(shell), WIRE_OK);
    EXPECT_EQ(encode(copy.record), encode(shell));
    EXPECT_NE(copy.record.list[0].leaf.text, list[0].leaf.text);
    EXPECT_NE(copy.record.list[0].leaves[0].text, list[0].leaves[0].text);
}
