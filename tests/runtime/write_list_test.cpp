// SPDX-License-Identifier: MIT
// Lists of numbers, which are written in groups as runs are, 32 elements at a time: it is what the
// plain rule writes for every number of elements and in every buffer.
#include "tests/runtime/plain_numbers.hpp"

#include "runtime/member.hpp"

using namespace tarn;
using namespace test;

namespace {

using Elements = std::vector<uint32_t>;

struct Mix {
    const char *name;
    uint32_t (*element)(uint32_t place, uint32_t count);
};

const Mix kMixes[] = {
    {"all small", [](uint32_t place, uint32_t) { return place * 37 % 0x80; }},
    {"all of two bytes", [](uint32_t place, uint32_t) { return 0x80 + place; }},
    {"of every size",
     [](uint32_t place, uint32_t) { return UINT32_MAX >> (place * 7 + place / 5) % 32; }},
    {"all as long as can be", [](uint32_t, uint32_t) { return UINT32_MAX; }},
    {"small but for the first",
     [](uint32_t place, uint32_t) { return place == 0 ? 0x80 : place % 0x80; }},
    {"small but for the last",
     [](uint32_t place, uint32_t count) { return place + 1 == count ? 0x4000 : place % 0x80; }},
    {"small but for every fifth",
     [](uint32_t place, uint32_t) { return place % 5 == 4 ? 0x10000000 : place % 0x80; }},
};

Elements elements_of(const Mix &mix, uint32_t count)
{
    Elements elements(count);
    for (uint32_t place = 0; place < count; place++)
        elements[place] = mix.element(place, count);
    return elements;
}

// A list as it stands in a record.
auto list_writer_of(const Elements &elements, uint32_t number)
{
    return [&elements, number](uint32_t offset, Encoder &out) {
        uint8_t member[sizeof(void *) + sizeof(uint32_t)];
        store_block(member, elements.data(), static_cast<uint32_t>(elements.size()));
        return write_uint32_list(offset, out, member, make_tag(number, kVarint));
    };
}

// The last numbers with tags of one byte and of two.
constexpr uint32_t kListNumbers[] = {1, 15, 16, 255};

} // namespace

TEST(a_list_of_numbers, is_written_by_the_plain_rule_whatever_its_length)
{
    for (const Mix &mix : kMixes) {
        for (uint32_t count = 0; count <= 70; count++) {
            const Elements elements = elements_of(mix, count);
            for (uint32_t number : kListNumbers) {
                const Bytes expected = plain_numbers(elements, 0, number, 0);
                ASSERT_TRUE(is_written_near_the_end(expected, 12, list_writer_of(elements, number)))
                    << count << " elements, " << mix.name << ", number " << number;
            }
        }
    }
}

TEST(a_list_of_numbers, is_written_by_the_plain_rule_into_any_buffer)
{
    for (const Mix &mix : kMixes) {
        for (uint32_t count : {0u, 1u, 3u, 4u, 5u, 8u, 31u, 32u, 33u, 36u, 66u}) {
            const Elements elements = elements_of(mix, count);
            for (uint32_t number : {15u, 16u}) {
                const Bytes expected = plain_numbers(elements, 0, number, 0);
                ASSERT_TRUE(is_written_into_any(expected, 20, list_writer_of(elements, number)))
                    << count << " elements, " << mix.name << ", number " << number;
            }
        }
    }
}

// While it is tried, what does not fit ends the list, and nothing is written behind the capacity.
TEST(a_list_of_numbers, gives_up_where_it_is_tried_and_does_not_fit)
{
    for (const Mix &mix : kMixes) {
        const Elements elements = elements_of(mix, 70);
        const auto write = list_writer_of(elements, 15);
        const uint32_t length = plain_numbers(elements, 0, 15, 0).length();
        for (uint32_t capacity = 0; capacity <= length + 1; capacity++) {
            Bytes buffer(length + kBehindTheBuffer, 0xA5);
            Encoder out(buffer.data(), capacity, nullptr, nullptr, 0);
            const uint32_t outer = out.begin_try();
            EXPECT_EQ(write(0, out), capacity < length ? capacity : length);
            ASSERT_EQ(out.end_try(outer), capacity < length) << mix.name << " into " << capacity;
            EXPECT_EQ(Bytes(buffer.begin() + capacity, buffer.end()),
                      Bytes(buffer.size() - capacity, 0xA5));
        }
    }
}
