// SPDX-License-Identifier: MIT
// Stepping over the values of fields that nobody knows.
#include "wire/varint.hpp"

#include "tests/support/bytes.hpp"

#include <gtest/gtest.h>

using namespace tarn;
using test::Bytes;

namespace {

struct Row {
    uint32_t wire_type;
    Bytes bytes;
    uint32_t start;
    uint32_t end;
};

void expect_skips(std::initializer_list<Row> rows)
{
    for (const Row &row : rows) {
        SCOPED_TRACE(testing::PrintToString(row.bytes));
        uint32_t position = row.start;
        EXPECT_EQ(wire_skip_field(row.wire_type, &position, row.bytes.data(), row.bytes.length()),
                  WIRE_OK);
        EXPECT_EQ(position, row.end);
    }
}

void expect_failure(int32_t error, uint32_t wire_type, const Bytes &bytes)
{
    SCOPED_TRACE(testing::PrintToString(bytes));
    uint32_t position = 0;
    EXPECT_EQ(wire_skip_field(wire_type, &position, bytes.data(), bytes.length()), error);
    EXPECT_EQ(position, 0u);
}

} // namespace

TEST(skipping, steps_over_the_value)
{
    expect_skips({
        {kVarint, {0x05}, 0, 1},
        {kVarint, {0xFF, 0xAC, 0x02, 0x00}, 1, 3},
        {kVarint, {0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x01}, 0, 12},
        {kFixed64, {1, 2, 3, 4, 5, 6, 7, 8, 9}, 1, 9},
        {kLengthDelimited, {0x00}, 0, 1},
        {kLengthDelimited, {0x02, 'a', 'b', 'c'}, 0, 3},
        {kLengthDelimited, {0xFF, 0x82, 0x00, 'a', 'b', 'c'}, 1, 5},
        {kFixed32, {1, 2, 3, 4, 5}, 1, 5},
    });
}

TEST(skipping, does_not_mind_the_end_of_the_input)
{
    expect_skips({
        // Three bytes are left, eight are skipped.
        {kFixed64, {1, 2, 3, 4}, 1, 9},
        {kFixed64, {}, 0, 8},
        {kFixed32, {1, 2, 3, 4}, 1, 5},
        {kFixed32, {}, 0, 4},
        {kLengthDelimited, {0x05, 'a'}, 0, 6},
        {kLengthDelimited, {0xFF, 0xFF, 0xFF, 0xFF, 0x07}, 0, 0x80000004},
    });
}

TEST(skipping, wraps_around_with_the_position)
{
    expect_skips({
        // Sixteen bytes back from behind the length.
        {kLengthDelimited, {0xF0, 0xFF, 0xFF, 0xFF, 0x0F}, 0, 0xFFFFFFF5},
        {kLengthDelimited, {0, 0, 0xF0, 0xFF, 0xFF, 0xFF, 0x0F}, 2, 0xFFFFFFF7},
        {kLengthDelimited, {0xFB, 0xFF, 0xFF, 0xFF, 0x0F}, 0, 0},
        {kLengthDelimited, {0, 0, 0xF9, 0xFF, 0xFF, 0xFF, 0x0F}, 2, 0},
        {kLengthDelimited, {0xFF, 0xFF, 0xFF, 0xFF, 0x0F}, 0, 4},
        {kFixed64, {}, UINT32_MAX, 7},
        {kFixed32, {}, UINT32_MAX, 3},
    });
}

TEST(skipping, fails_where_a_varint_cannot_be_read)
{
    for (uint32_t wire_type : {kVarint, kLengthDelimited}) {
        expect_failure(WIRE_ERR_MALFORMED, wire_type, {});
        expect_failure(WIRE_ERR_MALFORMED, wire_type, {0x80});
        expect_failure(WIRE_ERR_MALFORMED, wire_type, {0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF});
    }
}

TEST(skipping, refuses_groups_and_wire_types_that_do_not_exist)
{
    for (uint32_t wire_type : {3u, 4u, 6u, 7u, 8u, 10u, UINT32_MAX}) {
        expect_failure(WIRE_ERR_WIRE_TYPE, wire_type, {1, 2, 3});
        expect_failure(WIRE_ERR_WIRE_TYPE, wire_type, {});
    }
}
