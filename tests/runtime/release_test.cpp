// SPDX-License-Identifier: MIT
// Releases: which blocks are handed back in which order, and what stays in the record. Blocks are
// known by the request that they came from: those of a message are counted in its own order.
#include "runtime/release.hpp"

#include "ethsw_mgmt/forwarding.h"
#include "ethsw_mgmt/switch.h"
#include "tests/support/operations.hpp"
#include "tests/support/samples.hpp"
#include "tests/support/stranger.hpp"

#include <gtest/gtest.h>

using namespace test;

namespace {

using Requests = std::vector<size_t>;

// Gaps and all.
Bytes memory_of(const Every &record)
{
    Bytes bytes(sizeof record);
    memcpy(bytes.data(), &record, sizeof record);
    make_defined(bytes.data(), bytes.size());
    return bytes;
}

// Every call is a mistake.
void never(void *, void *)
{
    ADD_FAILURE() << "free_fn called";
}

} // namespace

TEST(releasing, gives_blocks_back_in_the_order_of_the_members_and_what_is_inside_before)
{
    // Text, byte string, numbers, texts (of requests 4 and 5, then their array), leaves (the text
    // of the first, then the array).
    Owner<Every> decoded;
    EXPECT_EQ(decoded.decode(kSampleBytes), WIRE_OK);
    decoded.release();
    EXPECT_EQ(decoded.blocks.returned(), (Requests{0, 1, 2, 4, 5, 3, 7, 6}));
    EXPECT_EQ(decoded.blocks.held(), 0u);

    Owner<Every> copied;
    EXPECT_EQ(copied.duplicate(Sample().record), WIRE_OK);
    copied.release();
    EXPECT_EQ(copied.blocks.returned(), (Requests{0, 1, 2, 4, 5, 3, 7, 6}));
}

// Not in that of the message.
TEST(releasing, goes_by_the_members_however_they_came)
{
    Owner<Every> owner;
    EXPECT_EQ(owner.decode({0x4A, 3, 0x12, 1, 'x', 0x42, 0, 0x38, 1, 0x32, 3, 0x12, 1, 'y', //
                            0x2A, 1, 'b', 0x22, 0}),
              WIRE_OK);
    owner.release();
    // Text 7, byte string 6, the leaf's text 5, numbers 4, texts 3 in 2, the leaves' text 1 in 0.
    EXPECT_EQ(owner.blocks.returned(), (Requests{7, 6, 5, 4, 3, 2, 1, 0}));
}

TEST(releasing, goes_through_records_in_records)
{
    Owner<Parcel> parcel;
    EXPECT_EQ(parcel.decode(kSampleParcelBytes), WIRE_OK);
    parcel.release();
    EXPECT_EQ(parcel.blocks.returned(), (Requests{0, 2, 1, 3}));
    Owner<Shell> shell;
    EXPECT_EQ(shell.decode(kSampleShellBytes), WIRE_OK);
    shell.release();
    EXPECT_EQ(shell.blocks.returned(), (Requests{1, 0}));
}

TEST(releasing, leaves_null_pointers_and_everything_else_but_the_counts_of_some_lists)
{
    Owner<Every> owner;
    EXPECT_EQ(owner.decode(kSampleBytes), WIRE_OK);
    owner.release();
    const Every &r = owner.record;
    EXPECT_EQ(r.text, nullptr);
    EXPECT_EQ(r.blob, nullptr);
    EXPECT_EQ(r.blob_length, 2u);
    EXPECT_EQ(r.numbers, nullptr);
    EXPECT_EQ(r.numbers_count, 2u);
    EXPECT_EQ(r.texts, nullptr);
    EXPECT_EQ(r.texts_count, 0u);
    EXPECT_EQ(r.leaves, nullptr);
    EXPECT_EQ(r.leaves_count, 0u);
    EXPECT_EQ(r.number, 9u);
    EXPECT_EQ(r.wide, uint64_t{1} << 35);
    EXPECT_EQ(r.truth, 1);
    EXPECT_EQ(r.leaf.number, 5u);
    EXPECT_TRUE(r.has_number && r.has_wide && r.has_truth && r.has_text && r.has_blob &&
                r.has_leaf && r.leaf.has_number && r.has_numbers && r.has_texts && r.has_leaves);
}

TEST(releasing, writes_nothing_but_those_pointers_and_counts)
{
    Owner<Every> owner(0xFF);
    EXPECT_EQ(owner.decode(kSampleBytes), WIRE_OK);
    Every expected;
    memcpy(&expected, &owner.record, sizeof expected);
    owner.release();
    expected.text = nullptr;
    expected.blob = nullptr;
    expected.numbers = nullptr;
    expected.texts = nullptr;
    expected.texts_count = 0;
    expected.leaves = nullptr;
    expected.leaves_count = 0;
    EXPECT_EQ(memory_of(owner.record), memory_of(expected));
}

TEST(releasing, leaves_bytes_in_place_as_they_are)
{
    Owner<Parcel> owner;
    EXPECT_EQ(owner.decode(kSampleParcelBytes, WIRE_FLAG_BYTES_IN_PLACE), WIRE_OK);
    owner.release();
    EXPECT_EQ(owner.record.blob, owner.input().data() + 21);
    EXPECT_EQ(owner.record.blob_length, 1u);
    EXPECT_EQ(owner.record.blobs.first, owner.input().data() + 8);
    EXPECT_EQ(owner.blocks.returned(), (Requests{0}));
}

TEST(releasing, looks_at_the_lowest_bit_of_the_flags_word_only)
{
    for (uint32_t flags : {0u, 0xFFFFFFFEu}) {
        Owner<Every> owner;
        EXPECT_EQ(owner.decode({0x2A, 1, 'a'}, flags), WIRE_OK);
        owner.release();
        EXPECT_EQ(owner.blocks.held(), 0u);
        EXPECT_EQ(owner.record.blob, nullptr);
    }
    for (uint32_t flags : {1u, 0xFFFFFFFFu}) {
        Owner<Every> owner;
        EXPECT_EQ(owner.decode({0x2A, 1, 'a'}, flags), WIRE_OK);
        owner.release();
        EXPECT_TRUE(owner.blocks.returned().empty());
        EXPECT_NE(owner.record.blob, nullptr);
    }
}

// Presence does not matter: a member that failed half-way has a block and no flag.
TEST(releasing, does_not_look_at_presence_flags)
{
    Owner<Every> owner;
    EXPECT_EQ(owner.decode(kSampleBytes), WIRE_OK);
    owner.record.has_text = owner.record.has_blob = owner.record.has_numbers = 0;
    owner.record.has_texts = owner.record.has_leaves = owner.record.leaves[0].has_text = 0;
    owner.release();
    EXPECT_EQ(owner.blocks.held(), 0u);
}

TEST(releasing, passes_over_null_texts_and_stale_counts)
{
    const char *texts[] = {nullptr, nullptr};
    Every record = {};
    record.numbers_count = record.texts_count = record.leaves_count = 3;
    record.blob_length = 3;
    CodecFor<Every>::release(&record, never, nullptr, 0);
    EXPECT_EQ(record.numbers_count, 3u);
    EXPECT_EQ(record.texts_count, 3u);
    EXPECT_EQ(record.leaves_count, 3u);

    record.texts = texts;
    record.texts_count = 2;
    std::vector<void *> returned;
    const auto note = [](void *block, void *all) {
        static_cast<std::vector<void *> *>(all)->push_back(block);
    };
    CodecFor<Every>::release(&record, note, &returned, 0);
    EXPECT_EQ(returned, (std::vector<void *>{texts}));
}

TEST(releasing, calls_nobody_when_there_is_nothing)
{
    Rows rows = {};
    rows.field_1 = 1;
    rows.has_field_1 = 1;
    CodecFor<Rows>::release(&rows, never, nullptr, 0);
    CodecFor<Rows>::release(&rows, nullptr, nullptr, 0);
    Every every = {};
    EXPECT_EQ(CodecFor<Every>::decode(&every, nullptr, 0, nullptr, nullptr, 0), WIRE_OK);
    CodecFor<Every>::release(&every, never, nullptr, 0);
    CodecFor<Every>::release(&every, nullptr, nullptr, 0);
    CodecFor<Nothing>::release(nullptr, nullptr, nullptr, 0);
    tarn_ethsw_mgmt_get_switch_info_free_ext(nullptr, nullptr, nullptr, 0);
}

TEST(releasing, calls_nobody_after_a_decoding_that_failed_before_its_first_block)
{
    const uint8_t input[] = {0x08, 0x05, 0x7B};
    Every every = {};
    EXPECT_EQ(CodecFor<Every>::decode(&every, input, 3, Blocks::take, nullptr, 0),
              WIRE_ERR_WIRE_TYPE);
    CodecFor<Every>::release(&every, never, nullptr, 0);
}

TEST(releasing, reaches_every_embedded_record_and_element_with_the_same_flags)
{
    Stranger list[] = {{0, 3}, {0, 4}};
    Host host = {};
    host.stranger = {0, 1};
    host.second = {0, 2};
    host.list = list;
    host.list_count = 2;
    stranger_calls().clear();
    CodecFor<Host>::release(
        &host, [](void *, void *) {}, nullptr, 5);
    EXPECT_EQ(stranger_calls(), (std::vector<std::string>{"free 1 flags 5", "free 2 flags 5",
                                                          "free 3 flags 5", "free 4 flags 5"}));
}

// A name, and a port with an identity and a name: the port's own blocks go before the array.
TEST(releasing, a_switch_gives_back_what_its_ports_hold_before_the_ports)
{
    Bytes input = {0x12, 2, 0x30, 1,            // the identity of the switch, with a list
                   0x22, 2, 's',  'w',          // its name
                   0x42, 7, 0x0A, 2,   0x30, 2, // a port: identity with a list,
                   0x1A, 1, 'p'};               // name
    tarn_ethsw_mgmt_switch_info record;
    Blocks blocks;
    ASSERT_EQ(tarn_ethsw_mgmt_switch_info_decode_ext(&record, input.data(), input.length(),
                                                     Blocks::take, &blocks, 0),
              WIRE_OK);
    EXPECT_EQ(blocks.sizes(),
              (std::vector<uint32_t>{4, 3, sizeof(tarn_ethsw_mgmt_port_info), 4, 2}));
    tarn_ethsw_mgmt_switch_info_free_ext(&record, Blocks::give_back, &blocks, 0);
    EXPECT_EQ(blocks.returned(), (Requests{0, 1, 3, 4, 2}));
}

TEST(releasing, a_security_breach_gives_back_its_text_always_and_its_address_unless_in_place)
{
    const Bytes input = {0x1A, 2, 0xDE, 0xAD, 0x2A, 1, 'x'};
    for (auto [flags, expected] :
         {std::pair{0u, Requests{0, 1}}, {WIRE_FLAG_BYTES_IN_PLACE, Requests{0}}}) {
        tarn_ethsw_mgmt_bridge_sec_breach_details record;
        Blocks blocks;
        EXPECT_EQ(tarn_ethsw_mgmt_bridge_sec_breach_details_decode_ext(
                      &record, input.data(), input.length(), Blocks::take, &blocks, flags),
                  WIRE_OK);
        tarn_ethsw_mgmt_bridge_sec_breach_details_free_ext(&record, Blocks::give_back, &blocks,
                                                           flags);
        EXPECT_EQ(blocks.returned(), expected);
    }
}
