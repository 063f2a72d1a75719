// SPDX-License-Identifier: MIT
// Runs of numbers, which are written four at a time: whatever is present, whatever its size, and
// wherever the buffer ends, it is what the plain rule writes, and no other byte changes.
#include "tests/runtime/plain_numbers.hpp"

#include <random>

using namespace tarn;
using namespace test;

namespace {

// Tags of one byte, a change to two bytes at each place of a group of four, and none but long ones.
constexpr uint32_t kFirstNumbers[] = {1, 9, 12, 13, 14, 15, 16, 248};

// What counters look like: one after the other longer, and none like its neighbour.
constexpr uint64_t kCounters[] = {7,           300,           0x12345,         0xABCDEF1,
                                  0x987654321, 0x3FEDCBA9876, 0x1A2B3C4D5E6F7, 0xFEDCBA98765432};

constexpr uint64_t kNarrowBorders[] = {0,        0x7F,     0x80,      0x3FFF,     0x4000,
                                       0x1FFFFF, 0x200000, 0xFFFFFFF, 0x10000000, UINT32_MAX};
constexpr uint64_t kWideBorders[] = {0,
                                     0x7F,
                                     0x80,
                                     0x3FFFFFFFF,
                                     0xFFFFFFF,
                                     0x7FFFFFFFF,
                                     0x800000000,
                                     uint64_t{1} << 42,
                                     uint64_t{1} << 49,
                                     (uint64_t{1} << 56) - 1};

template <typename Member>
using Members = std::vector<Member>;

template <typename Member, size_t N>
Members<Member> members_of(const uint64_t (&values)[N], uint32_t first, uint32_t count)
{
    Members<Member> members(count);
    for (uint32_t i = 0; i < count; i++)
        members[i] = static_cast<Member>(values[(first + i) % N]);
    return members;
}

template <typename Member>
struct Writer;

template <>
struct Writer<uint32_t> {
    static constexpr auto measure = measure_uint32s;
    static constexpr auto write = write_uint32s;
};

template <>
struct Writer<uint64_t> {
    static constexpr auto measure = measure_uint64s;
    static constexpr auto write = write_uint64s;
};

template <>
struct Writer<uint8_t> {
    static constexpr auto measure = measure_bools;
    static constexpr auto write = write_bools;
};

template <typename Member>
auto writer_of(const Members<Member> &members, uint32_t present, uint32_t number)
{
    return [&members, present, number](uint32_t offset, Encoder &out) {
        return Writer<Member>::write(offset, out, members.data(), present,
                                     make_tag(number, kVarint));
    };
}

// Every eight flags, around every tag.
template <typename Member>
void expect_patterns_near_the_end(const Members<Member> &members, uint32_t near)
{
    for (uint32_t number : kFirstNumbers) {
        for (uint32_t present = 0; present < 0x100; present++) {
            const Bytes expected = plain_numbers(members, present, number, 1);
            ASSERT_EQ(
                Writer<Member>::measure(7, members.data(), present, make_tag(number, kVarint)),
                7 + expected.size());
            ASSERT_TRUE(
                is_written_near_the_end(expected, near, writer_of(members, present, number)))
                << "number " << number << ", present " << present;
        }
    }
}

template <typename Member>
void expect_patterns_in_any_buffer(const Members<Member> &members)
{
    for (uint32_t number : {1u, 14u, 16u}) {
        for (uint32_t present = 0; present < 0x100; present++) {
            const Bytes expected = plain_numbers(members, present, number, 1);
            ASSERT_TRUE(is_written_into_any(expected, 20, writer_of(members, present, number)))
                << "number " << number << ", present " << present;
        }
    }
}

// Of small ones, and of one among them that is as long as can be.
template <typename Member>
Members<Member> small_but_one(uint32_t place, Member value)
{
    Members<Member> members = {1, 0x7F, 0, 5, 0x40, 9, 0x7E, 3};
    members[place] = value;
    return members;
}

} // namespace

TEST(a_run_of_small_numbers, is_written_by_the_plain_rule)
{
    ASSERT_NO_FATAL_FAILURE(expect_patterns_in_any_buffer(small_but_one<uint32_t>(0, 1)));
    ASSERT_NO_FATAL_FAILURE(expect_patterns_in_any_buffer(small_but_one<uint64_t>(0, 1)));
    ASSERT_NO_FATAL_FAILURE(expect_patterns_in_any_buffer(small_but_one<uint8_t>(0, 0)));
    ASSERT_NO_FATAL_FAILURE(expect_patterns_near_the_end(small_but_one<uint32_t>(0, 1), 12));
    ASSERT_NO_FATAL_FAILURE(expect_patterns_near_the_end(small_but_one<uint64_t>(0, 1), 12));
    ASSERT_NO_FATAL_FAILURE(expect_patterns_near_the_end(small_but_one<uint8_t>(0, 0), 12));
}

TEST(a_run_of_counters, is_written_by_the_plain_rule)
{
    const Members<uint64_t> counters = members_of<uint64_t>(kCounters, 0, 8);
    ASSERT_NO_FATAL_FAILURE(expect_patterns_in_any_buffer(counters));
    ASSERT_NO_FATAL_FAILURE(expect_patterns_near_the_end(counters, 12));
    ASSERT_NO_FATAL_FAILURE(expect_patterns_in_any_buffer(members_of<uint32_t>(kCounters, 0, 8)));
}

TEST(a_run_of_numbers, is_written_by_the_plain_rule_with_values_at_every_border)
{
    for (uint32_t first = 0; first < std::size(kNarrowBorders); first++) {
        ASSERT_NO_FATAL_FAILURE(
            expect_patterns_near_the_end(members_of<uint32_t>(kNarrowBorders, first, 8), 3));
        ASSERT_NO_FATAL_FAILURE(
            expect_patterns_near_the_end(members_of<uint64_t>(kWideBorders, first, 8), 3));
    }
    const uint64_t truths[] = {1, 0x80, 0, 0x7F, 0xFF};
    ASSERT_NO_FATAL_FAILURE(expect_patterns_near_the_end(members_of<uint8_t>(truths, 0, 8), 12));
}

// One that is too long for its group, in each place; its neighbours are small or counters.
TEST(a_run_of_numbers, may_have_one_that_is_longer_than_eight_bytes)
{
    for (uint32_t place = 0; place < 8; place++) {
        for (const uint64_t value : {uint64_t{1} << 56, UINT64_MAX}) {
            ASSERT_NO_FATAL_FAILURE(expect_patterns_near_the_end(small_but_one(place, value), 2));
            Members<uint64_t> counters = members_of<uint64_t>(kCounters, 3, 8);
            counters[place] = value;
            ASSERT_NO_FATAL_FAILURE(expect_patterns_near_the_end(counters, 2));
        }
        ASSERT_NO_FATAL_FAILURE(expect_patterns_near_the_end(small_but_one(place, UINT32_MAX), 2));
    }
}

// Flags and values of each group of four by chance, so that every kind of group follows every
// other.
TEST(a_run_of_32_numbers, is_written_by_the_plain_rule)
{
    // NOLINTNEXTLINE(cert-msc32-c,cert-msc51-cpp): what fails is to fail again
    std::mt19937 engine(20);
    const auto below = [&](uint32_t limit) { return static_cast<uint32_t>(engine() % limit); };
    for (uint32_t round = 0; round < 2000; round++) {
        Members<uint64_t> wide = members_of<uint64_t>(kCounters, below(8), 32);
        Members<uint32_t> narrow = members_of<uint32_t>(kNarrowBorders, below(10), 32);
        uint32_t present = 0;
        for (uint32_t first = 0; first < 32; first += 4) {
            const uint32_t likely[] = {0xF, 0xF, 0x7, 0x3, 0x1, 0x0, 0xA, below(16)};
            present |= likely[below(8)] << first;
            if (below(2))
                for (uint32_t i = 0; i < 4; i++)
                    wide[first + i] = narrow[first + i] = below(0x80);
            if (below(8) == 0)
                wide[first + below(4)] = UINT64_MAX >> below(10);
        }
        const uint32_t number = 1 + below(20), capacity = below(300);
        const Bytes of_wide = plain_numbers(wide, present, number, 1);
        const Bytes of_narrow = plain_numbers(narrow, present, number, 1);
        const auto write_wide = writer_of(wide, present, number);
        const auto write_narrow = writer_of(narrow, present, number);
        ASSERT_TRUE(is_written_near_the_end(of_wide, 9, write_wide));
        ASSERT_TRUE(is_written_near_the_end(of_narrow, 9, write_narrow));
        ASSERT_TRUE(is_written_into(capacity, kBehindTheBuffer, 0, of_wide, write_wide));
        ASSERT_TRUE(is_written_into(capacity, kBehindTheBuffer, 0, of_narrow, write_narrow));
    }
}

// What is behind its last member is not looked at, nor what stands between members that are there.
TEST(a_run_of_numbers, is_all_that_is_read)
{
    for (uint32_t count = 1; count <= 8; count++) {
        const Members<uint64_t> wide = members_of<uint64_t>(kCounters, 0, count);
        const Members<uint32_t> numbers = members_of<uint32_t>(kNarrowBorders, 0, count);
        for (uint32_t present = 0; present < 1u << count; present++) {
            ASSERT_TRUE(is_written_into_any(plain_numbers(wide, present, 1, 1), 10,
                                            writer_of(wide, present, 1)));
            ASSERT_TRUE(is_written_into_any(plain_numbers(numbers, present, 1, 1), 10,
                                            writer_of(numbers, present, 1)));
        }
    }
}
