// SPDX-License-Identifier: MIT
// The same bytes given to both libraries, which read them differently. Each test is an entry of
// docs/protobuf.md.

#include "ethsw_mgmt/forwarding.h"
#include "ethsw_mgmt/switch.h"
#include "tests/protobuf/both_sides.hpp"

#include <google/protobuf/io/zero_copy_stream_impl.h>
#include <sys/mman.h>

namespace catalogue {

TARN_TEST_RECORD(BreachDetails, tarn_ethsw_mgmt_bridge_sec_breach_details);
TARN_TEST_RECORD(SwitchInfo, tarn_ethsw_mgmt_switch_info);

} // namespace catalogue

namespace protobuf {

using catalogue::BreachDetails;
using catalogue::SwitchInfo;

namespace {

TEST(reading_differences, unknown_fields_are_dropped)
{
    const Bytes input{0x08, 5, 0xF8, 0x01, 9};
    EXPECT_EQ(theirs("switch_info", input), "field_1: 5 31: 9");
    EXPECT_EQ(ours("switch_info", input), "field_1: 5");

    const auto message = referee().message(type_named("switch_info"));
    EXPECT_TRUE(message->ParseFromArray(input.data(), 5));
    EXPECT_EQ(test::characters(message->SerializeAsString()), input);
    EXPECT_EQ(catalogue::resent<SwitchInfo>(input), (Bytes{0x08, 5}));
}

TEST(reading_differences, an_unknown_field_may_claim_to_end_behind_the_message)
{
    for (const Bytes &input : {
             Bytes{0x08, 5, 0xFA, 0x01, 100, 1}, // a hundred bytes, of which there is one
             Bytes{0x08, 5, 0xF9, 0x01, 1, 2},   // eight, of which there are two
             Bytes{0x08, 5, 0xFD, 0x01},         // four, and there are none
         }) {
        EXPECT_EQ(theirs("switch_info", input), "refused");
        EXPECT_EQ(ours("switch_info", input), "field_1: 5");
    }
}

TEST(reading_differences, groups_are_refused)
{
    const Bytes input{0xFB, 0x01, 0x08, 1, 0xFC, 0x01};
    EXPECT_EQ(theirs("switch_info", input), "31 { 1: 1 }");
    EXPECT_EQ(ours("switch_info", input), "wire type");
}

TEST(reading_differences, field_number_0_is_unknown_like_any_other)
{
    const Bytes input{0x00, 7, 0x02, 1, 'a', 0x08, 5};
    EXPECT_EQ(theirs("switch_info", input), "refused");
    EXPECT_EQ(ours("switch_info", input), "field_1: 5");
}

TEST(reading_differences, tags_may_take_more_than_five_bytes)
{
    const Bytes input{0x88, 0x80, 0x80, 0x80, 0x80, 0x00, 5};
    EXPECT_EQ(theirs("switch_info", input), "refused");
    EXPECT_EQ(ours("switch_info", input), "field_1: 5");
}

TEST(reading_differences, values_may_take_more_than_ten_bytes)
{
    const Bytes input{0x08, 0x85, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x00};
    EXPECT_EQ(theirs("switch_info", input), "refused");
    EXPECT_EQ(ours("switch_info", input), "field_1: 5");
}

TEST(reading_differences, lengths_may_take_more_than_five_bytes)
{
    const Bytes input{0x22, 0x82, 0x80, 0x80, 0x80, 0x80, 0x00, 'h', 'i'};
    EXPECT_EQ(theirs("switch_info", input), "refused");
    EXPECT_EQ(ours("switch_info", input), "name: \"hi\"");
}

TEST(reading_differences, lengths_lose_what_32_bits_do_not_hold)
{
    const Bytes input{0x22, 0x82, 0x80, 0x80, 0x80, 0x70, 'h', 'i'};
    EXPECT_EQ(theirs("switch_info", input), "refused");
    EXPECT_EQ(ours("switch_info", input), "name: \"hi\"");
}

TEST(reading_differences, a_bool_is_what_the_low_32_bits_say)
{
    const Bytes input{0x30, 0x80, 0x80, 0x80, 0x80, 0x10}; // 1 << 32
    EXPECT_EQ(theirs("switch_info", input), "field_6: true");
    EXPECT_EQ(ours("switch_info", input), "field_6: false");
}

TEST(reading_differences, a_known_field_of_another_wire_type_is_an_error)
{
    const Bytes input{0x0A, 1, 'a', 0x18, 3};
    EXPECT_EQ(theirs("switch_info", input), "field_3: 3 1: \"a\"");
    EXPECT_EQ(ours("switch_info", input), "type mismatch");
}

TEST(reading_differences, a_packed_list_is_an_error)
{
    const Bytes input{0x12, 2, 1, 2};
    EXPECT_EQ(theirs("vlan_table_entry", input), "field_2: 1 field_2: 2");
    EXPECT_EQ(ours("vlan_table_entry", input), "type mismatch");
}

TEST(reading_differences, inside_a_list_only_the_field_number_of_a_tag_counts)
{
    // The second tag is that of a varint.
    const Bytes input{0x12, 2, 0x08, 1, 0x10, 2, 0x08, 2};
    EXPECT_EQ(theirs("sfp_summary_response", input), "field_1: 2 entries { field_1: 1 } 2: 2");
    EXPECT_EQ(ours("sfp_summary_response", input), "entries { field_1: 1 } entries { field_1: 2 }");
}

TEST(reading_differences, a_list_must_come_in_one_piece)
{
    const Bytes input{0x10, 1, 0x08, 5, 0x10, 2};
    EXPECT_EQ(theirs("vlan_table_entry", input), "field_1: 5 field_2: 1 field_2: 2");
    EXPECT_EQ(ours("vlan_table_entry", input), "malformed");
}

TEST(reading_differences, a_string_must_not_come_twice)
{
    const Bytes input{0x22, 1, 'a', 0x22, 1, 'b'};
    EXPECT_EQ(theirs("switch_info", input), "name: \"b\"");
    EXPECT_EQ(ours("switch_info", input), "malformed");
}

TEST(reading_differences, a_byte_string_must_not_come_twice)
{
    const Bytes input{0x1A, 1, 'a', 0x1A, 1, 'b'};
    EXPECT_EQ(theirs("bridge_sec_breach_details", input), "field_3: \"b\"");
    EXPECT_EQ(ours("bridge_sec_breach_details", input), "malformed");
}

TEST(reading_differences, an_embedded_record_that_comes_twice_is_replaced)
{
    const Bytes input{0x12, 2, 0x08, 1, 0x12, 2, 0x10, 2};
    EXPECT_EQ(theirs("switch_info", input), "identity { field_1: 1 field_2: 2 }");
    EXPECT_EQ(ours("switch_info", input), "identity { field_2: 2 }");
}

TEST(reading_differences, a_zero_byte_ends_a_string)
{
    const Bytes input{0x22, 3, 'a', 0, 'b'};
    EXPECT_EQ(theirs("switch_info", input), "name: \"a\\000b\"");
    EXPECT_EQ(ours("switch_info", input), "name: \"a\"");
    EXPECT_EQ(catalogue::resent<SwitchInfo>(input), (Bytes{0x22, 1, 'a'}));
}

TEST(reading_differences, an_empty_byte_string_asks_for_a_block)
{
    const Bytes input{0x1A, 0};
    EXPECT_EQ(theirs("bridge_sec_breach_details", input), "field_3: \"\"");
    BreachDetails record;
    catalogue::Blocks blocks;
    blocks.refuse(0);
    EXPECT_EQ(tarn_ethsw_mgmt_bridge_sec_breach_details_decode_ext(
                  &record, input.data(), input.length(), catalogue::Blocks::allocate, &blocks, 0),
              WIRE_ERR_NO_MEMORY);
    EXPECT_EQ(blocks.asked(), std::vector<uint32_t>{0});
}

TEST(reading_differences, byte_strings_may_stay_in_the_input)
{
    const Bytes input{0x1A, 2, 'a', 'b'};
    const auto message = referee().message(type_named("bridge_sec_breach_details"));
    ASSERT_TRUE(message->ParseFromArray(input.data(), 4));
    std::string scratch;
    const auto *field = message->GetDescriptor()->field(2);
    const std::string &copy =
        message->GetReflection()->GetStringReference(*message, field, &scratch);
    EXPECT_EQ(copy, "ab");
    EXPECT_NE(static_cast<const void *>(copy.data()), input.data() + 2);

    BreachDetails record;
    EXPECT_EQ(tarn_ethsw_mgmt_bridge_sec_breach_details_decode_ext(&record, input.data(),
                                                                   input.length(), nullptr, nullptr,
                                                                   WIRE_FLAG_BYTES_IN_PLACE),
              WIRE_OK);
    EXPECT_EQ(record.field_3, input.data() + 2);
    EXPECT_EQ(record.field_3_length, 2u);
}

TEST(reading_differences, what_a_record_held_before_is_lost)
{
    const Bytes input{0x22, 1, 'a'};
    const auto message = referee().message(type_named("switch_info"));
    catalogue::Received<SwitchInfo> received(input);
    const char *first = received.record.name;
    for (int i = 0; i < 2; i++) {
        EXPECT_TRUE(message->ParseFromArray(input.data(), 3)); // it clears what was there
        EXPECT_EQ(message->ShortDebugString(), "name: \"a\"");
    }
    EXPECT_EQ(tarn_ethsw_mgmt_switch_info_decode_ext(&received.record, input.data(), 3,
                                                     catalogue::Blocks::allocate, &received.blocks,
                                                     0),
              WIRE_OK);
    EXPECT_NE(received.record.name, first);
    received.release();
    ASSERT_EQ(received.blocks.out().size(), 1u);
    EXPECT_EQ(received.blocks.out().begin()->first, first);
    catalogue::Blocks::release(const_cast<char *>(first), &received.blocks);
}

TEST(reading_differences, the_defaults_of_a_location_come_with_decoding)
{
    const auto message = referee().message(type_named("yield_switch_to_peer_response"));
    const auto *location = message->GetDescriptor()->FindFieldByName("location");
    const auto &empty = message->GetReflection()->GetMessage(*message, location);
    const auto *first = empty.GetDescriptor()->field(0);
    EXPECT_EQ(empty.GetReflection()->GetUInt32(empty, first), 7u);

    tarn_ethsw_mgmt_yield_switch_to_peer_response record{};
    EXPECT_EQ(record.location.field_1, 0u);
    EXPECT_EQ(tarn_ethsw_mgmt_yield_switch_to_peer_response_decode_ext(&record, nullptr, 0, nullptr,
                                                                       nullptr, 0),
              WIRE_OK);
    EXPECT_EQ(record.location.field_1, 7u);
}

TEST(reading_differences, the_length_of_an_unknown_field_may_lead_back)
{
    // The first field leads over the second, the last leads back to it, and the third to the end.
    const Bytes input{0xFA, 0x01, 5,    0x08, 5,    0xFA, 0x01, 7,
                      0xFA, 0x01, 0xF4, 0xFF, 0xFF, 0xFF, 0x0F};
    EXPECT_EQ(theirs("switch_info", input), "refused");
    EXPECT_EQ(ours("switch_info", input), "field_1: 5");
}

TEST(reading_differences, a_message_may_be_longer_than_2_gib)
{
    constexpr uint32_t kLength = 0x80000010;
    constexpr uint32_t kHeader = 6;
    void *pages = mmap(nullptr, kLength + kHeader, PROT_READ | PROT_WRITE,
                       MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    ASSERT_NE(pages, MAP_FAILED);
    auto *input = static_cast<uint8_t *>(pages);
    memcpy(input, (Bytes{0x1A, 0x90, 0x80, 0x80, 0x80, 0x08}).data(), kHeader);

    // In two parts, since the interface has no number for the whole.
    google::protobuf::io::ArrayInputStream start(input, 1 << 30);
    google::protobuf::io::ArrayInputStream rest(input + (1 << 30), 0x40000016);
    google::protobuf::io::ZeroCopyInputStream *both[] = {&start, &rest};
    google::protobuf::io::ConcatenatingInputStream whole(both, 2);
    const auto message = referee().message(type_named("bridge_sec_breach_details"));
    EXPECT_FALSE(message->ParseFromZeroCopyStream(&whole));

    BreachDetails record;
    EXPECT_EQ(tarn_ethsw_mgmt_bridge_sec_breach_details_decode_ext(
                  &record, input, kLength + kHeader, nullptr, nullptr, WIRE_FLAG_BYTES_IN_PLACE),
              WIRE_OK);
    EXPECT_EQ(record.field_3_length, kLength);
    EXPECT_EQ(record.field_3, input + kHeader);
    munmap(pages, kLength + kHeader);
}

} // namespace

} // namespace protobuf
