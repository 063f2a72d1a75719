// SPDX-License-Identifier: MIT
// The C++ headers with every record type: they do what the operations do, with the same blocks.
#include "tests/cxx/every_type.hpp"

#include "tests/catalogue/comparison.hpp"
#include "tests/catalogue/filled_record.hpp"
#include "tests/catalogue/operations.hpp"
#include "tests/catalogue/ownership.hpp"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <string_view>

namespace every_type {

namespace {

using catalogue::Blocks;
using catalogue::Case;
using catalogue::Content;
using catalogue::FilledRecord;
using catalogue::OwnedRecord;
using catalogue::RecordType;

const Row &row_of(const RecordType &type)
{
    static const std::map<std::string_view, const Row *> by_name = [] {
        std::map<std::string_view, const Row *> map;
        for (const Row &row : rows())
            map.emplace(row.name, &row);
        return map;
    }();
    return *by_name.at(type.name);
}

tarn::BlockSource from(Blocks &blocks)
{
    return {Blocks::allocate, Blocks::release, &blocks};
}

tarn::Shape shape_of(const RecordType &type)
{
    if (type.members.empty())
        return tarn::Shape::fieldless;
    const bool nests =
        std::any_of(type.members.begin(), type.members.end(),
                    [](const auto &member) { return catalogue::is_nested(member.kind); });
    return nests ? tarn::Shape::nesting : tarn::Shape::flat;
}

TEST(every_type, is_there_once_and_has_the_shape_of_its_members)
{
    EXPECT_EQ(rows().size(), catalogue::record_types().size());
    catalogue::for_each_type(
        [](const RecordType &type) { EXPECT_EQ(row_of(type).shape, shape_of(type)); });
}

TEST(every_type, encodes_to_the_bytes_of_its_operation)
{
    catalogue::for_each_case([](const Case &test_case, const Content &content) {
        const FilledRecord filled(content);
        EXPECT_EQ(row_of(*test_case.type).encode(filled.record()),
                  catalogue::encode(*test_case.type, filled.record()));
    });
}

TEST(every_type, goes_through_an_owner_and_back)
{
    catalogue::for_each_case([](const Case &test_case, const Content &content) {
        const Bytes input = catalogue::encode(*test_case.type, FilledRecord(content).record());
        Blocks blocks;
        const auto owner = row_of(*test_case.type).owner(from(blocks));
        EXPECT_EQ(owner->decode(input, 0), WIRE_OK);
        EXPECT_EQ(catalogue::difference(content, owner->record()), "");
        EXPECT_EQ(owner->encoding(), input);
        Bytes buffer(input.size());
        EXPECT_EQ(owner->encode_into(buffer), input.size());
        EXPECT_EQ(buffer, input);
    });
}

TEST(every_type, takes_and_gives_back_the_blocks_of_its_operations_and_no_others)
{
    catalogue::for_each_case([](const Case &test_case, const Content &content) {
        const RecordType &type = *test_case.type;
        const test::Bytes input = catalogue::encode(type, FilledRecord(content).record());
        for (const uint32_t flags : {uint32_t{0}, WIRE_FLAG_BYTES_IN_PLACE}) {
            OwnedRecord plain(type);
            EXPECT_EQ(plain.decode(input, flags), WIRE_OK);
            Blocks blocks;
            auto owner = row_of(type).owner(from(blocks));
            EXPECT_EQ(owner->decode(input, flags), WIRE_OK);
            EXPECT_EQ(blocks.asked(), plain.blocks().asked());
            EXPECT_EQ(blocks.out(), catalogue::attached_blocks(type, owner->record(), flags));
            owner.reset();
            EXPECT_EQ(blocks.returned().size(), plain.blocks().asked().size());
            EXPECT_TRUE(blocks.out().empty());
        }
    });
}

TEST(every_type, is_duplicated_into_blocks_of_the_copy)
{
    catalogue::for_each_case([](const Case &test_case, const Content &content) {
        const RecordType &type = *test_case.type;
        const Bytes input = catalogue::encode(type, FilledRecord(content).record());
        Blocks blocks;
        const auto original = row_of(type).owner(from(blocks));
        EXPECT_EQ(original->decode(input, WIRE_FLAG_BYTES_IN_PLACE), WIRE_OK);
        Blocks copied;
        const auto copy = row_of(type).owner(from(copied));
        EXPECT_EQ(copy->duplicate(*original), WIRE_OK);
        EXPECT_EQ(catalogue::copy_difference(type, copy->record(), original->record()), "");
        EXPECT_EQ(copied.out(), catalogue::attached_blocks(type, copy->record()));
    });
}

TEST(every_type, moves_with_its_blocks)
{
    catalogue::for_each_case([](const Case &test_case, const Content &content) {
        const RecordType &type = *test_case.type;
        const Bytes input = catalogue::encode(type, FilledRecord(content).record());
        Blocks blocks;
        const auto first = row_of(type).owner(from(blocks));
        EXPECT_EQ(first->decode(input, 0), WIRE_OK);
        const auto second = first->moved();
        EXPECT_EQ(catalogue::difference(content, second->record()), "");
        EXPECT_EQ(first->encoding(), Bytes());
        EXPECT_TRUE(blocks.returned().empty());
        first->clear();
        EXPECT_TRUE(blocks.returned().empty());
    });
}

} // namespace

} // namespace every_type
