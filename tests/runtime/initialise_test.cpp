// SPDX-License-Identifier: MIT
// What a record holds before anything is read into it, and which of its bytes belong to nobody: the
// gaps between members and the bits behind the flags are never written.
#include "ethsw_mgmt/diagnostics.h"
#include "ethsw_mgmt/switch.h"
#include "tests/support/operations.hpp"
#include "tests/support/samples.hpp"
#include "tests/support/stranger.hpp"

#include <gtest/gtest.h>

using namespace test;

namespace {

// Some bits of a record.
struct Bits {
    size_t offset;
    Bytes mask;
};

// All bits of a Leaf that are members or flags, `at` being where it is.
std::vector<Bits> bits_of_leaf(size_t at)
{
    return {{at + offsetof(Leaf, number), Bytes(4, 0xFF)},
            {at + offsetof(Leaf, text), Bytes(sizeof(char *), 0xFF)},
            {at + offsetof(Leaf, text) + sizeof(char *), {0x03}}};
}

std::vector<Bits> bits_of_every()
{
    const Bytes pointer(sizeof(void *), 0xFF);
    const Bytes pair(sizeof(void *) + 4, 0xFF);
    std::vector<Bits> all = bits_of_leaf(offsetof(Every, leaf));
    all.insert(all.end(), {{offsetof(Every, number), Bytes(4, 0xFF)},
                           {offsetof(Every, wide), Bytes(8, 0xFF)},
                           {offsetof(Every, truth), {0xFF}},
                           {offsetof(Every, text), pointer},
                           {offsetof(Every, blob), pair},
                           {offsetof(Every, numbers), pair},
                           {offsetof(Every, texts), pair},
                           {offsetof(Every, leaves), pair},
                           {offsetof(Every, leaves_count) + 4, {0xFF, 0x01}}});
    return all;
}

// A record of which only these bits are left as they are.
template <typename Record>
Bytes without(const std::vector<Bits> &bits, const Record &record)
{
    Bytes bytes(sizeof record);
    memcpy(bytes.data(), &record, sizeof record);
    make_defined(bytes.data(), bytes.size());
    for (const Bits &some : bits)
        for (size_t i = 0; i < some.mask.size(); i++)
            bytes[some.offset + i] = static_cast<uint8_t>(bytes[some.offset + i] & ~some.mask[i]);
    return bytes;
}

template <typename Record>
Bytes all_rubbish(const std::vector<Bits> &bits, uint8_t rubbish)
{
    Record record;
    memset(&record, rubbish, sizeof record);
    return without(bits, record);
}

} // namespace

TEST(a_fresh_record, has_neither_members_nor_flags)
{
    for (uint8_t rubbish : Bytes{0xFF, 0xA5}) {
        Every record;
        memset(&record, rubbish, sizeof record);
        CodecFor<Every>::initialise(&record);
        EXPECT_EQ(record.number, 0u);
        EXPECT_EQ(record.wide, 0u);
        EXPECT_EQ(record.truth, 0);
        EXPECT_EQ(record.text, nullptr);
        EXPECT_EQ(record.blob, nullptr);
        EXPECT_EQ(record.blob_length, 0u);
        EXPECT_EQ(record.leaf.number, 0u);
        EXPECT_EQ(record.leaf.text, nullptr);
        EXPECT_EQ(record.numbers, nullptr);
        EXPECT_EQ(record.numbers_count, 0u);
        EXPECT_EQ(record.texts, nullptr);
        EXPECT_EQ(record.texts_count, 0u);
        EXPECT_EQ(record.leaves, nullptr);
        EXPECT_EQ(record.leaves_count, 0u);
        EXPECT_FALSE(record.has_number || record.has_wide || record.has_truth || record.has_text ||
                     record.has_blob || record.has_leaf || record.has_numbers || record.has_texts ||
                     record.has_leaves || record.leaf.has_number || record.leaf.has_text);
    }
}

TEST(the_gaps_of_a_record, are_not_written_by_any_operation)
{
    const std::vector<Bits> bits = bits_of_every();
    for (uint8_t rubbish : Bytes{0x00, 0xFF}) {
        const Bytes expected = all_rubbish<Every>(bits, rubbish);
        Owner<Every> fresh(rubbish), decoded(rubbish), copied(rubbish);
        EXPECT_EQ(fresh.decode({}), WIRE_OK);
        EXPECT_EQ(without(bits, fresh.record), expected);
        EXPECT_EQ(decoded.decode(kSampleBytes), WIRE_OK);
        EXPECT_EQ(without(bits, decoded.record), expected);
        EXPECT_EQ(copied.duplicate(Sample().record), WIRE_OK);
        EXPECT_EQ(without(bits, copied.record), expected);
        copied.release();
        EXPECT_EQ(without(bits, copied.record), expected);
    }
}

// What the copy has in its gaps is its own, too.
TEST(the_gaps_of_a_record, are_not_copied)
{
    const std::vector<Bits> bits = bits_of_every();
    Owner<Every> source(0x00), copy(0xFF);
    EXPECT_EQ(source.decode(kSampleBytes), WIRE_OK);
    EXPECT_EQ(copy.duplicate(source.record), WIRE_OK);
    EXPECT_EQ(without(bits, copy.record), all_rubbish<Every>(bits, 0xFF));
    EXPECT_EQ(encode(copy.record), kSampleBytes);
}

// The array of a list of records is cleared, gaps and all.
TEST(the_gaps_of_a_record, are_zero_in_a_decoded_list)
{
    Owner<Every> owner;
    EXPECT_EQ(owner.decode(kSampleBytes), WIRE_OK);
    const std::vector<Bits> bits = bits_of_leaf(0);
    EXPECT_EQ(without(bits, owner.record.leaves[0]), Bytes(sizeof(Leaf), 0));
    EXPECT_EQ(without(bits, owner.record.leaves[1]), Bytes(sizeof(Leaf), 0));
}

TEST(a_fresh_record, has_the_defaults_of_a_location_where_one_is_embedded)
{
    tarn_ethsw_mgmt_yield_switch_to_peer_response record;
    memset(&record, 0xA5, sizeof record);
    const auto decode_ext = tarn_ethsw_mgmt_yield_switch_to_peer_response_decode_ext;
    EXPECT_EQ(decode_ext(&record, nullptr, 0, nullptr, nullptr, 0), WIRE_OK);
    const tarn_esd_location_info &location = record.location;
    EXPECT_EQ(record.field_1, 0u);
    EXPECT_EQ(location.field_1, 7u);
    EXPECT_EQ(location.field_2, 1u);
    EXPECT_EQ(location.field_3, 0xFFFFFFFF);
    EXPECT_EQ(location.field_4, 1u);
    EXPECT_EQ(location.field_5, 0xFFFFFFFF);
    EXPECT_EQ(location.field_6, 1u);
    EXPECT_EQ(location.field_7, 0xFFFFFFFF);
    EXPECT_EQ(location.field_8, 0u);
    EXPECT_FALSE(record.has_field_1 || record.has_location || location.has_field_1 ||
                 location.has_field_2 || location.has_field_3 || location.has_field_4 ||
                 location.has_field_5 || location.has_field_6 || location.has_field_7 ||
                 location.has_field_8);
    // Without flags it is nothing on the wire.
    const auto encode_ext = tarn_ethsw_mgmt_yield_switch_to_peer_response_encode_ext;
    EXPECT_EQ(encode_ext(&record, nullptr, 0, nullptr, nullptr, 0), 0u);
}

TEST(a_fresh_record, has_a_zero_identity_where_one_is_embedded)
{
    tarn_ethsw_mgmt_switch_info record;
    memset(&record, 0xA5, sizeof record);
    EXPECT_EQ(tarn_ethsw_mgmt_switch_info_decode_ext(&record, nullptr, 0, nullptr, nullptr, 0),
              WIRE_OK);
    const tarn_calv_eid_st &identity = record.identity;
    EXPECT_EQ(identity.field_1, 0u);
    EXPECT_EQ(identity.field_5, 0u);
    EXPECT_EQ(identity.field_6, nullptr);
    EXPECT_EQ(identity.field_6_count, 0u);
    EXPECT_FALSE(identity.has_field_1 || identity.has_field_5 || identity.has_field_6);
}

// Elements are started by their own decoding, members by their record's.
TEST(a_fresh_record, starts_embedded_records_of_others_by_their_own_rule)
{
    Owner<Host> owner;
    EXPECT_EQ(owner.decode({0x30, 1}), WIRE_OK);
    EXPECT_EQ(owner.record.stranger.result, kStrangerDefault);
    EXPECT_EQ(owner.record.second.result, kStrangerDefault);
}

TEST(flags, follow_the_last_member_one_bit_each)
{
    tarn_ethsw_mgmt_debug_get_health_state_rsp record;
    const size_t first = offsetof(tarn_ethsw_mgmt_debug_get_health_state_rsp, field_45) + 1;
    const auto flag_bytes = [&] {
        uint8_t bytes[sizeof record];
        memcpy(bytes, &record, sizeof record);
        return Bytes(bytes + first, bytes + first + 6);
    };
    memset(&record, 0, sizeof record);
    record.has_field_45 = 1; // the 45th: bit 4 of the sixth byte
    EXPECT_EQ(flag_bytes(), (Bytes{0, 0, 0, 0, 0, 0x10}));
    memset(&record, 0, sizeof record);
    record.has_timestamp_9 = 1; // the 9th: bit 0 of the second byte
    EXPECT_EQ(flag_bytes(), (Bytes{0, 0x01, 0, 0, 0, 0}));

    const Bytes input = {0xE8, 0x02, 0x01}; // field 45
    memset(&record, 0xFF, sizeof record);
    EXPECT_EQ(tarn_ethsw_mgmt_debug_get_health_state_rsp_decode_ext(&record, input.data(), 3,
                                                                    nullptr, nullptr, 0),
              WIRE_OK);
    EXPECT_EQ(record.field_45, 1);
    EXPECT_EQ(flag_bytes(), (Bytes{0, 0, 0, 0, 0, 0xF0}));
}
