// SPDX-License-Identifier: MIT
// The messages do what they are made for, and cost what the documents say, as far as that can be
// counted: in requests and bytes, not in seconds.
#include "tests/costs/arena.hpp"
#include "tests/costs/attacks.hpp"
#include "tests/support/deadline.hpp"

#include <gtest/gtest.h>
#include <vector>

using namespace costs;
using catalogue::find_type;

namespace {

constexpr uint64_t kBudget = 64 << 20;
constexpr unsigned kSeconds = 300;

struct Decoded {
    int32_t result;
    uint64_t bytes;
    uint64_t requests;
};

Decoded decode(const RecordType &type, const Bytes &input)
{
    Arena arena(kBudget);
    std::vector<uint64_t> record(type.size / 8 + 1);
    const int32_t result =
        type.decode(record.data(), input.data(), input.length(), Arena::allocate, &arena, 0);
    return {result, arena.bytes(), arena.calls()};
}

// Two elements of the list in tarn_calv_eid_st: what a visit to one asks for is 8 bytes.
const Bytes kTwoNumbers = {0x30, 1, 0x30, 2};
constexpr uint32_t kSwitchIdentity = 0x12;
constexpr uint32_t kPhy = 0x22;
constexpr uint32_t kPhyIdentity = 0x12;

} // namespace

TEST(a_message_of_visits, decodes_an_embedded_record_at_every_visit)
{
    const RecordType &type = find_type("tarn_ethsw_mgmt_switch_info");
    for (uint32_t visits : {1u, 2u, 3u, 100u}) {
        const Decoded decoded =
            decode(type, nested_visits({Visits(visits, kSwitchIdentity)}, kTwoNumbers));
        EXPECT_EQ(decoded.result, WIRE_OK);
        EXPECT_EQ(decoded.requests, visits);
        EXPECT_EQ(decoded.bytes, visits * 8);
    }
}

TEST(a_message_of_visits, multiplies_what_each_level_visits)
{
    const RecordType &type = find_type("tarn_ethsw_mgmt_port_info");
    for (uint32_t outer : {1u, 2u, 30u})
        for (uint32_t inner : {1u, 3u, 20u}) {
            const Decoded decoded =
                decode(type, nested_visits({Visits(outer, kPhy), Visits(inner, kPhyIdentity)},
                                           kTwoNumbers));
            EXPECT_EQ(decoded.result, WIRE_OK);
            EXPECT_EQ(decoded.requests, outer * inner);
        }
}

TEST(a_message_of_visits, has_room_for_tags_of_two_bytes)
{
    const RecordType &type = find_type("tarn_data_integrity_error_history_entry");
    const Decoded decoded = decode(type, nested_visits({Visits(5, 0x82)}, {0x1A, 1, 'a'}));
    EXPECT_EQ(decoded.result, WIRE_OK);
    EXPECT_EQ(decoded.requests, 5u);
    EXPECT_EQ(decoded.bytes, 10u);
}

TEST(an_endless_message_of_visits, is_read_four_times_at_most)
{
    const test::Deadline deadline(kSeconds);
    const RecordType &type = find_type("tarn_ethsw_mgmt_switch_info");
    for (uint32_t visits = 1; visits < 300; visits++) {
        const Decoded decoded = decode(type, nested_visits({Visits(visits, kSwitchIdentity)},
                                                           kTwoNumbers, Ending::starts_anew));
        EXPECT_EQ(decoded.result, WIRE_ERR_MALFORMED);
        EXPECT_LE(decoded.requests, 4 * visits);
    }
}

// Twice the input asks for about twice the memory, and for no more than the largest element for
// each two bytes.
TEST(a_message_without_embedded_visits, asks_for_memory_in_proportion_to_its_size)
{
    const test::Deadline deadline(kSeconds);
    constexpr uint32_t kSize = 2048;
    constexpr uint64_t kLargest = 512;
    for (const Attack &attack : all_attacks()) {
        if (attack.family != Family::straight && attack.family != Family::overlapping)
            continue;
        SCOPED_TRACE(std::string(attack.type->name) + ": " + attack.name);
        const Decoded once = decode(*attack.type, attack.build(kSize));
        const Decoded twice = decode(*attack.type, attack.build(2 * kSize));
        EXPECT_LE(once.bytes, kSize / 2 * kLargest);
        EXPECT_LE(once.requests, kSize);
        EXPECT_LE(twice.bytes, once.bytes * 9 / 4 + kLargest);
        EXPECT_LE(twice.requests, once.requests * 2 + 8);
    }
}

TEST(an_attack, is_as_long_as_it_should_be)
{
    for (const Attack &attack : all_attacks())
        for (uint32_t size : {1024u, 4096u}) {
            SCOPED_TRACE(std::string(attack.type->name) + ": " + attack.name);
            EXPECT_LE(attack.build(size).size(), size);
            EXPECT_GE(attack.build(size).size(), size * 3 / 4);
        }
}
