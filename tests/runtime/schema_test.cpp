// SPDX-License-Identifier: MIT
// How lists of fields become runs and spans. All of it happens while this file is compiled; the
// tests look at what came out.
#include "runtime/schema.hpp"

#include "tests/support/records.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <tuple>

using namespace tarn;
using test::Every;

namespace {

// 40 numbers in a row: more than the flags in a word.
struct Long {
    uint32_t members[40];
    uint8_t flags[5];
};

template <uint32_t... i>
consteval auto long_layout(std::integer_sequence<uint32_t, i...>)
{
    constexpr Field fields[] = {
        Field{Kind::uint32, static_cast<uint8_t>(i + 1), static_cast<uint16_t>(i * 4), 4}...};
    return make_layout<count_runs(fields), count_spans(fields)>(fields, sizeof(Long));
}

// Neighbours in memory whose numbers are not, neighbours by number that are not in memory, and two
// kinds side by side.
constexpr Field kBroken[] = {
    field<Kind::uint32, uint32_t>(1, 0),
    field<Kind::uint32, uint32_t>(3, 4),
    field<Kind::uint32, uint32_t>(4, 12),
    field<Kind::boolean, uint8_t>(5, 16),
    field<Kind::boolean, uint8_t>(6, 17),
    field<Kind::uint64, uint64_t>(7, 24),
    field<Kind::string, const char *>(8, 32),
    field<Kind::string, const char *>(9, 32 + sizeof(char *)),
};

using RunRow = std::tuple<Kind, int, int, int, size_t>;

template <typename Layout>
std::vector<RunRow> runs_of(const Layout &layout)
{
    std::vector<RunRow> rows;
    for (uint32_t i = 0; i < layout.run_count; i++) {
        const Run &run = layout.runs[i];
        rows.emplace_back(run.kind, run.count, run.number, run.first_bit, run.offset);
    }
    return rows;
}

template <typename Layout>
std::vector<std::pair<size_t, size_t>> spans_of(const Layout &layout)
{
    std::vector<std::pair<size_t, size_t>> rows;
    for (uint32_t i = 0; i < layout.span_count; i++)
        rows.emplace_back(layout.spans[i].offset, layout.spans[i].size);
    return rows;
}

// Where the compiler puts a flag, as a bit number counted from the first byte of a record.
template <typename Record, typename Set>
size_t bit_of(Set set)
{
    Record record;
    memset(&record, 0, sizeof record);
    set(record);
    uint8_t bytes[sizeof record];
    memcpy(bytes, &record, sizeof record);
    const uint8_t *byte = std::find_if(bytes, bytes + sizeof bytes, [](uint8_t b) { return b; });
    return static_cast<size_t>(byte - bytes) * 8 + static_cast<size_t>(__builtin_ctz(*byte));
}

} // namespace

TEST(kinds, know_what_they_are)
{
    struct Row {
        Kind kind;
        bool scalar, number, nested, pointer, pair;
    };
    for (const Row &row : {Row{Kind::uint32, true, true, false, false, false},
                           Row{Kind::uint64, true, true, false, false, false},
                           Row{Kind::boolean, true, true, false, false, false},
                           Row{Kind::string, false, false, false, true, false},
                           Row{Kind::bytes, false, false, false, true, true},
                           Row{Kind::message, false, false, true, false, false},
                           Row{Kind::repeated_uint32, false, true, false, true, true},
                           Row{Kind::repeated_string, false, false, false, true, true},
                           Row{Kind::repeated_message, false, false, true, true, true}}) {
        EXPECT_EQ(is_scalar(row.kind), row.scalar);
        EXPECT_EQ(is_number(row.kind), row.number);
        EXPECT_EQ(is_nested(row.kind), row.nested);
        EXPECT_EQ(has_pointer(row.kind), row.pointer);
        EXPECT_EQ(is_pair(row.kind), row.pair);
    }
}

// What is nested answers for itself: see the codecs.
TEST(a_layout, knows_whether_its_own_members_point_somewhere_or_are_only_numbers)
{
    struct Row {
        Kind kind;
        bool pointers, numbers;
    };
    for (const Row &row :
         {Row{Kind::uint32, false, true}, Row{Kind::uint64, false, true},
          Row{Kind::boolean, false, true}, Row{Kind::string, true, false},
          Row{Kind::bytes, true, false}, Row{Kind::message, false, true},
          Row{Kind::repeated_uint32, true, true}, Row{Kind::repeated_string, true, false},
          Row{Kind::repeated_message, true, true}}) {
        Layout<2, 1> layout{};
        layout.runs[0] = {Kind::uint32, 1, 1, 0, 0};
        layout.runs[1] = {row.kind, 1, 2, 1, 8};
        EXPECT_EQ(layout.has_pointers(), row.pointers);
        EXPECT_EQ(layout.has_only_numbers(), row.numbers);
    }
    EXPECT_FALSE(layout_of<test::Nothing>().has_pointers());
    EXPECT_TRUE(layout_of<test::Nothing>().has_only_numbers());
}

TEST(kinds, go_with_one_type_of_member_each)
{
    EXPECT_TRUE((kind_fits<Kind::uint32, uint32_t>()));
    EXPECT_FALSE((kind_fits<Kind::uint32, int32_t>()));
    EXPECT_FALSE((kind_fits<Kind::uint32, uint64_t>()));
    EXPECT_FALSE((kind_fits<Kind::boolean, bool>()));
    EXPECT_FALSE((kind_fits<Kind::string, const uint8_t *>()));
    EXPECT_FALSE((kind_fits<Kind::bytes, const char *>()));
    EXPECT_FALSE((kind_fits<Kind::message, test::Leaf *>()));
    EXPECT_FALSE((kind_fits<Kind::repeated_message, test::Leaf>()));
    EXPECT_FALSE((kind_fits<Kind::repeated_message, uint32_t *>()));
    EXPECT_FALSE((kind_fits<Kind::repeated_string, const char *>()));
}

TEST(a_layout, makes_neighbouring_scalars_of_one_kind_a_run)
{
    constexpr auto layout = layout_of<test::Rows>();
    using Rows = test::Rows;
    EXPECT_EQ(runs_of(layout), (std::vector<RunRow>{
                                   {Kind::uint32, 2, 1, 0, offsetof(Rows, field_1)},
                                   {Kind::uint32, 2, 10, 2, offsetof(Rows, field_10)},
                                   {Kind::uint64, 2, 20, 4, offsetof(Rows, field_20)},
                                   {Kind::boolean, 2, 30, 6, offsetof(Rows, field_30)},
                                   {Kind::boolean, 1, 33, 8, offsetof(Rows, field_33)},
                               }));
    EXPECT_EQ(layout.members, 9);
    EXPECT_EQ(layout.size, sizeof(Rows));
}

TEST(a_layout, has_a_run_for_every_member_that_is_no_scalar)
{
    EXPECT_EQ(runs_of(layout_of<Every>()),
              (std::vector<RunRow>{
                  {Kind::uint32, 1, 1, 0, offsetof(Every, number)},
                  {Kind::uint64, 1, 2, 1, offsetof(Every, wide)},
                  {Kind::boolean, 1, 3, 2, offsetof(Every, truth)},
                  {Kind::string, 1, 4, 3, offsetof(Every, text)},
                  {Kind::bytes, 1, 5, 4, offsetof(Every, blob)},
                  {Kind::message, 1, 6, 5, offsetof(Every, leaf)},
                  {Kind::repeated_uint32, 1, 7, 6, offsetof(Every, numbers)},
                  {Kind::repeated_string, 1, 8, 7, offsetof(Every, texts)},
                  {Kind::repeated_message, 1, 9, 8, offsetof(Every, leaves)},
              }));
}

TEST(a_layout, breaks_a_run_at_gaps_between_numbers_and_in_memory)
{
    constexpr auto layout = make_layout<count_runs(kBroken), count_spans(kBroken)>(kBroken, 64);
    EXPECT_EQ(runs_of(layout), (std::vector<RunRow>{
                                   {Kind::uint32, 1, 1, 0, 0},
                                   {Kind::uint32, 1, 3, 1, 4},
                                   {Kind::uint32, 1, 4, 2, 12},
                                   {Kind::boolean, 2, 5, 3, 16},
                                   {Kind::uint64, 1, 7, 5, 24},
                                   {Kind::string, 1, 8, 6, 32},
                                   {Kind::string, 1, 9, 7, 32 + sizeof(char *)},
                               }));
    EXPECT_EQ(spans_of(layout), (std::vector<std::pair<size_t, size_t>>{
                                    {0, 8}, {12, 6}, {24, 8 + 2 * sizeof(char *)}}));
}

TEST(a_layout, breaks_a_run_whose_flags_would_not_fit_into_a_word)
{
    constexpr auto layout = long_layout(std::make_integer_sequence<uint32_t, 40>());
    EXPECT_EQ(runs_of(layout), (std::vector<RunRow>{{Kind::uint32, 32, 1, 0, 0},
                                                    {Kind::uint32, 8, 33, 32, 32 * 4}}));
    EXPECT_EQ(layout.flags, offsetof(Long, flags));
}

// Neither the holes nor the embedded record, which has holes of its own.
TEST(a_layout, has_spans_that_cover_the_members_and_nothing_else)
{
    constexpr size_t kPair = sizeof(void *) + sizeof(uint32_t);
    std::vector<std::pair<size_t, size_t>> expected;
    for (auto [offset, size] : {std::pair{offsetof(Every, number), sizeof(uint32_t)},
                                {offsetof(Every, wide), sizeof(uint64_t)},
                                {offsetof(Every, truth), sizeof(uint8_t)},
                                {offsetof(Every, text), sizeof(char *)},
                                {offsetof(Every, blob), kPair},
                                {offsetof(Every, numbers), kPair},
                                {offsetof(Every, texts), kPair},
                                {offsetof(Every, leaves), kPair}}) {
        const bool joins = !expected.empty() && offset != offsetof(Every, numbers) &&
                           expected.back().first + expected.back().second == offset;
        if (joins)
            expected.back().second += size;
        else
            expected.emplace_back(offset, size);
    }
    EXPECT_EQ(spans_of(layout_of<Every>()), expected);
}

TEST(a_layout, finds_the_flags_where_the_compiler_puts_them)
{
    const size_t every = layout_of<Every>().flags * size_t{8};
    EXPECT_EQ(bit_of<Every>([](Every &r) { r.has_number = 1; }), every);
    EXPECT_EQ(bit_of<Every>([](Every &r) { r.has_texts = 1; }), every + 7);
    EXPECT_EQ(bit_of<Every>([](Every &r) { r.has_leaves = 1; }), every + 8);
    // Right behind a single byte.
    EXPECT_EQ(layout_of<test::Shell>().flags, offsetof(test::Shell, closing) + 1);
    EXPECT_EQ(bit_of<test::Shell>([](test::Shell &r) { r.has_every = 1; }),
              layout_of<test::Shell>().flags * size_t{8});
    EXPECT_EQ(bit_of<test::Rows>([](test::Rows &r) { r.has_field_33 = 1; }),
              layout_of<test::Rows>().flags * size_t{8} + 8);
}

TEST(a_layout, of_a_type_without_fields_is_empty)
{
    constexpr auto layout = layout_of<test::Nothing>();
    EXPECT_EQ(layout.run_count, 0u);
    EXPECT_EQ(layout.span_count, 0u);
    EXPECT_EQ(layout.members, 0u);
}
