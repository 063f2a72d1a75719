// SPDX-License-Identifier: MIT
// The same content given to both libraries, which write it differently. Each test is an entry of
// docs/protobuf.md.

#include "ethsw_mgmt/forwarding.h"
#include "ethsw_mgmt/switch.h"
#include "tests/protobuf/both_sides.hpp"

namespace catalogue {

TARN_TEST_RECORD(BreachDetails, tarn_ethsw_mgmt_bridge_sec_breach_details);
TARN_TEST_RECORD(BridgeCounters, tarn_ethsw_mgmt_bridge_get_counters_response);
TARN_TEST_RECORD(SwitchInfo, tarn_ethsw_mgmt_switch_info);
TARN_TEST_RECORD(VlanEntry, tarn_ethsw_mgmt_vlan_table_entry);

} // namespace catalogue

namespace protobuf {

using catalogue::BreachDetails;
using catalogue::BridgeCounters;
using catalogue::encoded;
using catalogue::SwitchInfo;
using catalogue::VlanEntry;

namespace {

uint8_t kPayload[] = {0xDE, 0xAD, 0xBE, 0xEF};
constexpr char kPayloadText[] = R"(field_1: 5 field_3: "\336\255\276\357" field_4: 1)";

BreachDetails details_with_payload()
{
    BreachDetails details{};
    SET(details, field_1, 5);
    SET_BYTES(details, field_3, kPayload, sizeof kPayload);
    SET(details, field_4, 1);
    return details;
}

TEST(writing_differences, a_bool_is_written_as_the_byte_that_it_is)
{
    EXPECT_EQ(written_by_them("switch_info", "field_6: true"), (Bytes{0x30, 1}));
    SwitchInfo info{};
    SET(info, field_6, 2);
    EXPECT_EQ(encoded(info), (Bytes{0x30, 2}));
}

TEST(writing_differences, a_list_is_written_only_when_it_is_flagged)
{
    EXPECT_EQ(written_by_them("vlan_table_entry", "field_2: 7"), (Bytes{0x10, 7}));
    uint32_t numbers[] = {7};
    VlanEntry entry{};
    SET_LIST(entry, field_2, numbers, 1);
    EXPECT_EQ(encoded(entry), (Bytes{0x10, 7}));
    entry.has_field_2 = 0;
    EXPECT_EQ(encoded(entry), Bytes{});
}

TEST(writing_differences, a_string_that_is_flagged_and_null_is_not_written)
{
    // There, a string that is present has a text, if an empty one.
    EXPECT_EQ(written_by_them("switch_info", "name: \"\""), (Bytes{0x22, 0}));
    SwitchInfo info{};
    SET(info, name, "");
    EXPECT_EQ(encoded(info), (Bytes{0x22, 0}));
    info.name = nullptr;
    EXPECT_EQ(encoded(info), Bytes{});
}

TEST(writing_differences, an_embedded_record_is_written_without_its_flag_when_it_holds_something)
{
    const auto message = referee().message(type_named("switch_info"));
    const auto *identity = message->GetDescriptor()->FindFieldByName("identity");
    auto *inner = message->GetReflection()->MutableMessage(message.get(), identity);
    inner->GetReflection()->SetUInt32(inner, inner->GetDescriptor()->field(0), 5);
    EXPECT_EQ(message->SerializeAsString(), "\x12\x02\x08\x05");
    message->GetReflection()->ClearField(message.get(), identity);
    EXPECT_EQ(message->SerializeAsString(), "");

    SwitchInfo info{};
    SET(info.identity, field_1, 5);
    info.has_identity = 0;
    EXPECT_EQ(encoded(info), (Bytes{0x12, 2, 0x08, 5}));
}

TEST(writing_differences, a_string_ends_at_its_first_zero_byte)
{
    EXPECT_EQ(written_by_them("switch_info", R"(name: "a\000b")"), (Bytes{0x22, 3, 'a', 0, 'b'}));
    SwitchInfo info{};
    SET(info, name, "a\0b");
    EXPECT_EQ(encoded(info), (Bytes{0x22, 1, 'a'}));
}

TEST(writing_differences, too_small_a_buffer_is_not_an_error)
{
    const auto message = referee().message(type_named("switch_info"));
    message->GetReflection()->SetUInt32(message.get(), message->GetDescriptor()->field(0), 300);
    Bytes buffer(2);
    EXPECT_FALSE(message->SerializeToArray(buffer.data(), 2));

    SwitchInfo info{};
    SET(info, field_1, 300);
    EXPECT_EQ(tarn_ethsw_mgmt_switch_info_encode_ext(&info, buffer.data(), 2, nullptr, nullptr, 0),
              3u);
}

TEST(writing_differences, byte_strings_may_be_handed_out_instead_of_copied)
{
    const Bytes whole = written_by_them("bridge_sec_breach_details", kPayloadText);
    const BreachDetails details = details_with_payload();
    EXPECT_EQ(encoded(details), whole);

    Bytes buffer(whole.size());
    WireSegment pieces[4];
    uint32_t count = 4;
    EXPECT_EQ(tarn_ethsw_mgmt_bridge_sec_breach_details_encode_ext(&details, buffer.data(),
                                                                   buffer.length(), pieces, &count,
                                                                   WIRE_FLAG_BYTES_IN_PLACE),
              whole.size() - sizeof kPayload);
    ASSERT_EQ(count, 3u);
    EXPECT_EQ(pieces[1].data, kPayload);
    Bytes joined;
    for (const WireSegment &piece : {pieces[0], pieces[1], pieces[2]})
        joined.insert(joined.end(), piece.data, piece.data + piece.length);
    EXPECT_EQ(joined, whole);
}

TEST(writing_differences, the_length_of_a_nested_record_leaves_out_what_is_handed_out)
{
    const Bytes whole = written_by_them("bridge_get_counters_response",
                                        "sec_breach_details { " + std::string(kPayloadText) + " }");
    EXPECT_EQ(whole[1], 10);
    BreachDetails details = details_with_payload();
    BridgeCounters counters{};
    SET_LIST(counters, sec_breach_details, &details, 1);
    EXPECT_EQ(encoded(counters), whole);

    Bytes buffer(whole.size());
    EXPECT_EQ(
        tarn_ethsw_mgmt_bridge_get_counters_response_encode_ext(
            &counters, buffer.data(), buffer.length(), nullptr, nullptr, WIRE_FLAG_BYTES_IN_PLACE),
        8u);
    EXPECT_EQ(buffer.first(8), (Bytes{0x2A, 6, 0x08, 5, 0x1A, 4, 0x20, 1}));
    EXPECT_EQ(theirs("bridge_get_counters_response", buffer.first(8)), "refused");
}

} // namespace

} // namespace protobuf
