// SPDX-License-Identifier: MIT
// The functions that turn lists of fields into layouts. In the library only the compiler calls
// them, and nothing tells which of their lines it came along. Here they are constexpr instead of
// consteval, and are called with lists that no compiler knows.
#include "runtime/runs.hpp"

#include "tests/support/records.hpp"

#include <gtest/gtest.h>

#include <ostream>

using namespace tarn;

namespace {

struct Cut {
    uint32_t runs;
    uint32_t spans;

    bool operator==(const Cut &) const = default;
};

std::ostream &operator<<(std::ostream &out, const Cut &cut)
{
    return out << cut.runs << " runs, " << cut.spans << " spans";
}

// Into how many pieces two neighbours are cut.
Cut cut(Field first, Field second)
{
    const Field fields[] = {first, second};
    return {count_runs(fields), count_spans(fields)};
}

// A member with a number and an offset; four bytes whatever it is.
Field member(Kind kind, uint8_t number, uint16_t offset)
{
    return {kind, number, offset, 4};
}

} // namespace

TEST(two_neighbours, are_one_run_only_as_scalars_of_a_kind_in_a_row)
{
    const Field first = member(Kind::uint32, 1, 0);
    EXPECT_EQ(cut(first, member(Kind::uint32, 2, 4)), (Cut{1, 1}));
    EXPECT_EQ(cut(first, member(Kind::uint64, 2, 4)), (Cut{2, 1}));
    EXPECT_EQ(cut(first, member(Kind::uint32, 3, 4)), (Cut{2, 1}));
    EXPECT_EQ(cut(first, member(Kind::uint32, 2, 8)), (Cut{2, 2}));
    EXPECT_EQ(cut(member(Kind::string, 1, 0), member(Kind::string, 2, 4)), (Cut{2, 1}));
}

TEST(two_neighbours, are_one_span_only_without_an_embedded_record)
{
    EXPECT_EQ(cut(member(Kind::string, 1, 0), member(Kind::message, 2, 4)), (Cut{2, 1}));
    EXPECT_EQ(cut(member(Kind::message, 1, 0), member(Kind::string, 2, 4)), (Cut{2, 1}));
    EXPECT_EQ(cut(member(Kind::message, 1, 0), member(Kind::message, 2, 4)), (Cut{2, 0}));
    const Field fields[] = {member(Kind::string, 1, 0), member(Kind::message, 2, 4),
                            member(Kind::string, 3, 8), member(Kind::string, 4, 12)};
    EXPECT_FALSE(continues_span(fields, 1));
    EXPECT_FALSE(continues_span(fields, 2));
    EXPECT_TRUE(continues_span(fields, 3));
}

TEST(a_run, ends_with_the_word_that_holds_its_flags)
{
    Field fields[33];
    for (uint32_t i = 0; i < 33; i++)
        fields[i] = member(Kind::uint32, static_cast<uint8_t>(i + 1), static_cast<uint16_t>(i * 4));
    EXPECT_EQ(run_length(fields, 0), 32u);
    EXPECT_EQ(run_length(fields, 1), 32u);
    EXPECT_EQ(run_length(fields, 2), 31u);
    EXPECT_EQ(count_runs(fields), 2u);
    EXPECT_EQ(count_spans(fields), 1u);
}

TEST(a_layout, has_what_the_cuts_leave)
{
    const Field fields[] = {member(Kind::uint32, 1, 0),  member(Kind::uint32, 2, 4),
                            member(Kind::message, 3, 8), member(Kind::string, 5, 12),
                            member(Kind::bytes, 6, 16),  member(Kind::repeated_message, 7, 24)};
    const auto layout = make_layout<5, 3>(fields, 32);
    EXPECT_EQ(layout.size, 32u);
    EXPECT_EQ(layout.members, 6u);
    EXPECT_EQ(layout.flags, 28u);

    const tarn::Run runs[] = {{Kind::uint32, 2, 1, 0, 0},
                              {Kind::message, 1, 3, 2, 8},
                              {Kind::string, 1, 5, 3, 12},
                              {Kind::bytes, 1, 6, 4, 16},
                              {Kind::repeated_message, 1, 7, 5, 24}};
    for (uint32_t i = 0; i < layout.run_count; i++) {
        EXPECT_EQ(layout.runs[i].kind, runs[i].kind);
        EXPECT_EQ(layout.runs[i].count, runs[i].count);
        EXPECT_EQ(layout.runs[i].number, runs[i].number);
        EXPECT_EQ(layout.runs[i].first_bit, runs[i].first_bit);
        EXPECT_EQ(layout.runs[i].offset, runs[i].offset);
    }
    const Span spans[] = {{0, 8}, {12, 8}, {24, 4}};
    for (uint32_t i = 0; i < layout.span_count; i++) {
        EXPECT_EQ(layout.spans[i].offset, spans[i].offset);
        EXPECT_EQ(layout.spans[i].size, spans[i].size);
    }
    const uint32_t nested[] = {0, 0, 1, 1, 1, 2};
    for (uint32_t run = 0; run <= layout.run_count; run++)
        EXPECT_EQ(nested_runs_before(layout, run), nested[run]);
}

TEST(a_layout, of_a_type_without_fields_still_has_arrays)
{
    EXPECT_EQ(at_least_one(0), 1u);
    EXPECT_EQ(at_least_one(2), 2u);
    EXPECT_EQ(layout_of<test::Nothing>().members, 0u);
    EXPECT_EQ(layout_of<test::Every>().members, 9u);
}

TEST(a_field, counts_what_stands_behind_a_pointer)
{
    const uint32_t pointer = sizeof(void *);
    EXPECT_EQ((field<Kind::uint32, uint32_t>(1, 0).size), 4u);
    EXPECT_EQ((field<Kind::uint64, uint64_t>(1, 0).size), 8u);
    EXPECT_EQ((field<Kind::boolean, uint8_t>(1, 0).size), 1u);
    EXPECT_EQ((field<Kind::string, const char *>(1, 0).size), pointer);
    EXPECT_EQ((field<Kind::bytes, const uint8_t *>(1, 0).size), pointer + 4);
    EXPECT_EQ((field<Kind::message, test::Leaf>(1, 0).size), sizeof(test::Leaf));
    EXPECT_EQ((field<Kind::repeated_uint32, uint32_t *>(1, 0).size), pointer + 4);
    EXPECT_EQ((field<Kind::repeated_string, const char **>(1, 0).size), pointer + 4);
    EXPECT_EQ((field<Kind::repeated_message, test::Leaf *>(1, 0).size), pointer + 4);

    const Field last = field<Kind::uint32, uint32_t>(255, 65535);
    EXPECT_EQ(last.kind, Kind::uint32);
    EXPECT_EQ(last.number, 255u);
    EXPECT_EQ(last.offset, 65535u);
}

TEST(a_kind, fits_the_type_of_its_member_and_no_other)
{
    EXPECT_TRUE((kind_fits<Kind::uint32, uint32_t>()));
    EXPECT_TRUE((kind_fits<Kind::uint64, uint64_t>()));
    EXPECT_TRUE((kind_fits<Kind::boolean, uint8_t>()));
    EXPECT_TRUE((kind_fits<Kind::string, const char *>()));
    EXPECT_TRUE((kind_fits<Kind::bytes, const uint8_t *>()));
    EXPECT_TRUE((kind_fits<Kind::message, test::Leaf>()));
    EXPECT_TRUE((kind_fits<Kind::repeated_uint32, uint32_t *>()));
    EXPECT_TRUE((kind_fits<Kind::repeated_string, const char **>()));
    EXPECT_TRUE((kind_fits<Kind::repeated_message, test::Leaf *>()));
    EXPECT_FALSE((kind_fits<Kind::repeated_message, uint32_t *>()));
}
