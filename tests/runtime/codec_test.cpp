// SPDX-License-Identifier: MIT
// What is chosen for which record type, how records of other libraries are called, and the exported
// functions that come of it.
#include "runtime/codec.hpp"

#include "ethsw_mgmt/switch.h"
#include "runtime/operations.hpp"
#include "tests/support/boxes.hpp"
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

TEST(record_types, are_known_by_what_is_in_them_at_any_depth)
{
    using Numbers = CodecFor<Crate<0>>;
    EXPECT_TRUE(CodecFor<Rows>::is_plain && Numbers::is_plain && CodecFor<Crate<3>>::is_plain);
    EXPECT_FALSE(CodecFor<Leaf>::is_plain || CodecFor<Shell>::is_plain ||
                 CodecFor<Box<3>>::is_plain);
    EXPECT_TRUE(CodecFor<Leaf>::owns_memory && Numbers::owns_memory &&
                CodecFor<Shell>::owns_memory);
    EXPECT_FALSE(CodecFor<Rows>::owns_memory || CodecFor<Nothing>::owns_memory);
    EXPECT_TRUE(CodecFor<Rows>::defaults_are_zero && CodecFor<Shell>::defaults_are_zero);
    EXPECT_FALSE(CodecFor<Host>::defaults_are_zero);
}

TEST(a_record, is_surely_empty_without_flags_at_any_depth)
{
    Crate<2> crate = {};
    crate.inner.inner.number = 5;
    EXPECT_TRUE(CodecFor<Crate<2>>::is_surely_empty(&crate));
    crate.inner.inner.has_number = 1;
    EXPECT_FALSE(CodecFor<Crate<2>>::is_surely_empty(&crate));
    // Bits behind its own flags are nobody's.
    Leaf leaf;
    memset(&leaf, 0xFF, sizeof leaf);
    leaf.has_number = leaf.has_text = 0;
    EXPECT_TRUE(CodecFor<Leaf>::is_surely_empty(&leaf));
    leaf.has_text = 1;
    EXPECT_FALSE(CodecFor<Leaf>::is_surely_empty(&leaf));
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

TEST(a_record_of_another_library, is_called_once_where_it_fits)
{
    const Host host = host_of(2, 1);
    stranger_calls().clear();
    const Encoding encoding = encode_into(10, 5, host, 8);
    EXPECT_EQ(encoding.length, 7u);
    EXPECT_EQ(encoding.buffer, (Bytes{0x12, 2, 0xCC, 0xCC, 0x22, 1, 0xCC, 0xA5, 0xA5, 0xA5}));
    EXPECT_EQ(encoding.pieces,
              "(buffer+2, 1) (buffer+2, 2) (buffer+6, 1) (buffer+6, 1) (buffer, 7)");
    EXPECT_EQ(stranger_calls(),
              (Calls{"encode buffer yes capacity 8 segments yes count 5 flags 8",
                     "encode buffer yes capacity 4 segments yes count 3 flags 8"}));
}

TEST(a_record_of_another_library, moves_with_its_pieces_where_its_length_takes_two_bytes)
{
    const Host host = host_of(127, 128);
    const Encoding encoding = encode_into(300, 5, host);
    EXPECT_EQ(encoding.length, 260u);
    EXPECT_EQ(encoding.buffer, join({{0x12, 0x7F},
                                     Bytes(127, 0xCC),
                                     {0x22, 0x80, 0x01},
                                     Bytes(128, 0xCC),
                                     Bytes(40, Encoding::kUntouched)}));
    EXPECT_EQ(encoding.pieces,
              "(buffer+2, 1) (buffer+2, 127) (buffer+132, 1) (buffer+132, 128) (buffer, 260)");
}

TEST(a_record_of_another_library, gets_a_count_but_no_array_when_there_is_no_room_or_no_wish)
{
    const Host host = host_of(2, 1);
    stranger_calls().clear();
    EXPECT_EQ(encode_into(3, 2, host).count, 5u);
    EXPECT_EQ(stranger_calls(), (Calls{"encode buffer yes capacity 1 segments yes count 2 flags 0",
                                       "encode buffer no capacity 0 segments no count null flags 0",
                                       "encode buffer yes capacity 1 segments yes count 2 flags 0",
                                       "encode buffer no capacity 0 segments no count null flags 0",
                                       "encode buffer no capacity 0 segments no count 0 flags 0"}));

    uint8_t buffer[10];
    stranger_calls().clear();
    EXPECT_EQ(CodecFor<Host>::encode(&host, buffer, 10, nullptr, nullptr, 0), 7u);
    EXPECT_EQ(stranger_calls()[0], "encode buffer yes capacity 8 segments no count 0 flags 0");
}

// What is written of it is its own affair, and so is whether there is anything to write.
TEST(a_record_of_another_library, is_asked_even_when_it_seems_empty)
{
    const Host host = host_of(0, 0);
    stranger_calls().clear();
    EXPECT_EQ(encode_into(10, 5, host).length, 0u);
    EXPECT_EQ(stranger_calls().size(), 2u);
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

TEST(a_location, that_is_empty_is_written_when_its_flag_is_set)
{
    tarn_ethsw_mgmt_yield_switch_to_peer_response record = {};
    const auto encode_ext = tarn_ethsw_mgmt_yield_switch_to_peer_response_encode_ext;
    uint8_t buffer[40];
    EXPECT_EQ(encode_ext(&record, buffer, 40, nullptr, nullptr, 0), 0u);
    record.has_location = 1;
    EXPECT_EQ(encode_ext(&record, buffer, 40, nullptr, nullptr, 0), 2u);
    EXPECT_EQ(Bytes(buffer, buffer + 2), (Bytes{0x12, 0x00}));
}

TEST(a_location, ends_decoding_with_its_own_error)
{
    tarn_ethsw_mgmt_yield_switch_to_peer_response record;
    const auto decode_ext = tarn_ethsw_mgmt_yield_switch_to_peer_response_decode_ext;
    const Bytes cut = {0x12, 0x01, 0x08};
    EXPECT_EQ(decode_ext(&record, cut.data(), 3, nullptr, nullptr, 0), WIRE_ERR_MALFORMED);
    const Bytes text = {0x12, 0x02, 0x0A, 0x00, 0x08, 0x01};
    EXPECT_EQ(decode_ext(&record, text.data(), 6, nullptr, nullptr, 0), WIRE_ERR_TYPE_MISMATCH);
    EXPECT_FALSE(record.has_location || record.has_field_1);
}
