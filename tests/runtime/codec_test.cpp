// SPDX-License-Identifier: MIT
// What is chosen for which record type, how records of other libraries are called, and the exported
// functions that come of it.
#include "runtime/codec.hpp"

#include "runtime/operations.hpp"
#include "tests/support/operations.hpp"
#include "tests/support/samples.hpp"
#include "tests/support/stranger.hpp"

#include <gtest/gtest.h>

#include <type_traits>

using namespace tarn;
using namespace test;

// Of the same layout as Leaf, but a type of its own, with the functions that C callers call.
extern "C" {
typedef struct tarn_test_twig {
    uint32_t number;
    const char *text;
    unsigned has_number : 1;
    unsigned has_text : 1;
} tarn_test_twig;
}
TARN_DECLARE_OPERATIONS(tarn_test_twig);

namespace [[gnu::visibility("hidden")]] tarn {

template <>
struct Schema<tarn_test_twig> {
    using Record = tarn_test_twig;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::number)>(1, offsetof(Record, number)),
        field<Kind::string, decltype(Record::text)>(2, offsetof(Record, text)),
    };
    using Children = RecordTypes<>;
};

} // namespace tarn

TARN_DEFINE_OPERATIONS(tarn_test_twig);

namespace {

using Calls = std::vector<std::string>;

Host host_of(uint32_t first, uint32_t second)
{
    Host host = {};
    host.stranger.length = first;
    host.second.length = second;
    return host;
}

} // namespace

TEST(nested_runs, find_the_codecs_of_their_own_types)
{
    EXPECT_TRUE((std::is_same_v<ChildAt<0, int, char, long>::Type, int>));
    EXPECT_TRUE((std::is_same_v<ChildAt<2, int, char, long>::Type, long>));
    EXPECT_TRUE((std::is_same_v<ChildAt<1, int>::Type, void>));
    constexpr auto layout = layout_of<Every>();
    static_assert(nested_runs_before(layout, 5) == 0);
    static_assert(nested_runs_before(layout, 6) == 1);
    static_assert(nested_runs_before(layout, 9) == 2);
    SUCCEED();
}

TEST(record_types, of_one_layout_share_their_code)
{
    EXPECT_TRUE((std::is_same_v<CodecFor<Leaf>, CodecFor<tarn_test_twig>>));
    EXPECT_FALSE((std::is_same_v<CodecFor<Every>, CodecFor<EveryFrom<16>>>));
}

// Two runs, of 32 and of 30; the flags of the second start in their fifth byte.
TEST(a_long_row, goes_through_every_operation)
{
    Large record = {};
    record.members[0] = 1;
    record.members[31] = 2;
    record.members[32] = 3;
    record.members[61] = 4;
    record.members[60] = 5; // not present
    for (uint32_t member : {0u, 31u, 32u, 61u})
        tarn::set_flag(record.flags, member);
    const Bytes bytes = {0x08, 1, 0x80, 0x02, 2, 0x88, 0x02, 3, 0xF0, 0x03, 4};
    EXPECT_EQ(encode(record), bytes);

    Owner<Large> copied, decoded;
    EXPECT_EQ(copied.duplicate(record), WIRE_OK);
    EXPECT_EQ(encode(copied.record), bytes);
    EXPECT_EQ(copied.record.members[60], 5u);
    EXPECT_EQ(decoded.decode(bytes), WIRE_OK);
    EXPECT_EQ(encode(decoded.record), bytes);
    EXPECT_EQ(decoded.record.members[32], 3u);
    EXPECT_EQ(decoded.record.members[60], 0u);
}

TEST(exported_functions, are_the_operations_of_the_type)
{
    const tarn_test_twig twig = {5, "ab", 1, 1};
    uint8_t bytes[6];
    uint32_t count = 1;
    WireSegment segment;
    ASSERT_EQ(tarn_test_twig_encode_ext(&twig, bytes, 6, &segment, &count, 0), 6u);
    EXPECT_EQ(Bytes(bytes, bytes + 6), (Bytes{0x08, 5, 0x12, 2, 'a', 'b'}));
    EXPECT_EQ(count, 1u);
    EXPECT_EQ(segment.data, bytes);
    EXPECT_EQ(segment.length, 6u);

    Blocks blocks;
    tarn_test_twig decoded, copied;
    ASSERT_EQ(tarn_test_twig_decode_ext(&decoded, bytes, 6, Blocks::take, &blocks, 0), WIRE_OK);
    ASSERT_EQ(tarn_test_twig_duplicate(&copied, &decoded, Blocks::take, &blocks), WIRE_OK);
    EXPECT_EQ(decoded.number, 5u);
    EXPECT_STREQ(copied.text, "ab");
    tarn_test_twig_free_ext(&decoded, Blocks::give_back, &blocks, 0);
    tarn_test_twig_free_ext(&copied, Blocks::give_back, &blocks, 0);
    EXPECT_EQ(copied.text, nullptr);
}

// Measured without buffer and count; nothing else is done when nobody wants more than the length.
TEST(a_record_of_another_library, is_measured_by_its_own_function)
{
    const Host host = host_of(2, 0);
    stranger_calls().clear();
    EXPECT_EQ(measure(host, 9), 4u);
    EXPECT_EQ(stranger_calls(),
              (Calls{"encode buffer no capacity 0 segments no count null flags 9",
                     "encode buffer no capacity 0 segments no count null flags 9"}));
}

TEST(a_record_of_another_library, is_written_where_its_parent_is_and_counts_as_it_was_measured)
{
    const Host host = host_of(2, 1);
    stranger_calls().clear();
    const Encoding encoding = encode_into(10, 5, host, 9);
    EXPECT_EQ(encoding.length, 7u);
    EXPECT_EQ(encoding.buffer, (Bytes{0x12, 2, 0xCC, 0xCC, 0x22, 1, 0xCC, 0xA5, 0xA5, 0xA5}));
    EXPECT_EQ(encoding.count, 5u); // two of each, and the parent's
    EXPECT_EQ(stranger_calls(),
              (Calls{"encode buffer no capacity 0 segments no count null flags 9",
                     "encode buffer yes capacity 8 segments yes count 5 flags 9",
                     "encode buffer no capacity 0 segments no count null flags 9",
                     "encode buffer yes capacity 4 segments yes count 3 flags 9"}));
}

TEST(a_record_of_another_library, gets_a_count_but_no_array_when_there_is_no_room_or_no_wish)
{
    const Host host = host_of(2, 1);
    stranger_calls().clear();
    EXPECT_EQ(encode_into(3, 2, host).count, 5u);
    EXPECT_EQ(stranger_calls()[1], "encode buffer yes capacity 1 segments yes count 2 flags 0");
    EXPECT_EQ(stranger_calls()[3], "encode buffer no capacity 0 segments no count 0 flags 0");

    uint8_t buffer[10];
    stranger_calls().clear();
    EXPECT_EQ(CodecFor<Host>::encode(&host, buffer, 10, nullptr, nullptr, 0), 7u);
    EXPECT_EQ(stranger_calls()[1], "encode buffer yes capacity 8 segments no count 0 flags 0");
}

TEST(a_record_of_another_library, is_decoded_by_its_own_function)
{
    Owner<Host> owner;
    stranger_calls().clear();
    EXPECT_EQ(owner.decode({0x12, 2, 0, 0, 0x2A, 1, 0, 0x2A, 0, 0x30, 6}, 4), WIRE_OK);
    // An element comes out of a cleared array.
    EXPECT_EQ(stranger_calls(),
              (Calls{"decode length 2 default 77 flags 4", "decode length 1 default 0 flags 4",
                     "decode length 0 default 0 flags 4"}));
    EXPECT_EQ(owner.record.list_count, 2u);
    EXPECT_EQ(owner.record.number, 6u);
    // Its errors are its own, whatever they are.
    EXPECT_EQ(decode<Host>({0x12, 3, 0, 0, 0}), -33);
    EXPECT_EQ(decode<Host>({0x2A, 0, 0x2A, 3, 0, 0, 0}), -33);
}
