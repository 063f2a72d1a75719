// SPDX-License-Identifier: MIT
// What is particular about the records of ethsw_mgmt/integrity.proto.
#include "ethsw_mgmt/integrity.h"

#include "tests/catalogue/comparison.hpp"
#include "tests/catalogue/filled_record.hpp"
#include "tests/catalogue/operations.hpp"
#include "tests/catalogue/typed.hpp"

namespace catalogue {

TARN_TEST_RECORD(EmonStats, tarn_ethsw_mgmt_show_emon_stats_resp);
TARN_TEST_RECORD(EmonCard, tarn_ethsw_mgmt_emon_card_entry);
TARN_TEST_RECORD(EmonPath, tarn_ethsw_mgmt_emon_path_entry);
TARN_TEST_RECORD(HistoryEntry, tarn_data_integrity_error_history_entry);

namespace {

// Two cards with three paths each: the paths' counters are 1 to 6.
const Bytes kCards{
    0x12, 15, 0x0A, 1, 'A', 0x12, 2, 0x10, 1, 0x12, 2, 0x10, 2, 0x12, 2, 0x10, 3,
    0x12, 15, 0x0A, 1, 'B', 0x12, 2, 0x10, 4, 0x12, 2, 0x10, 5, 0x12, 2, 0x10, 6,
};

TEST(integrity_records, write_cards_with_their_paths_inside)
{
    EmonPath paths[6] = {};
    for (uint32_t i = 0; i < 6; i++)
        SET(paths[i], field_2, i + 1);
    EmonCard cards[2] = {};
    SET(cards[0], field_1, "A");
    SET_LIST(cards[0], paths, paths, 3);
    SET(cards[1], field_1, "B");
    SET_LIST(cards[1], paths, paths + 3, 3);
    EmonStats stats{};
    SET_LIST(stats, cards, cards, 2);
    EXPECT_EQ(encoded(stats), kCards);
}

TEST(integrity_records, rebuild_cards_in_arrays_of_the_exact_length)
{
    const Received<EmonStats> received(kCards);
    ASSERT_EQ(received.result, WIRE_OK);
    ASSERT_EQ(received.record.cards_count, 2u);
    uint32_t counter = 1;
    for (uint32_t card = 0; card < 2; card++) {
        ASSERT_EQ(received.record.cards[card].paths_count, 3u);
        for (uint32_t path = 0; path < 3; path++)
            EXPECT_EQ(received.record.cards[card].paths[path].field_2, counter++);
    }
    EXPECT_STREQ(received.record.cards[1].field_1, "B");
    EXPECT_EQ(received.blocks.asked(),
              (std::vector<uint32_t>{2 * sizeof(EmonCard), 2, 3 * sizeof(EmonPath), 2,
                                     3 * sizeof(EmonPath)}));
    EXPECT_EQ(encoded(received.record), kCards);
}

TEST(integrity_records, carry_counters_that_need_more_than_32_bits)
{
    const struct {
        const char *type;
        uint32_t first;
        uint32_t last;
    } rows[] = {
        {"tarn_ethsw_mgmt_emon_path_entry", 2, 10},
        {"tarn_ethsw_mgmt_get_mlap_statistics_resp", 3, 10},
    };
    for (const auto &row : rows) {
        const RecordType &type = find_type(row.type);
        for (uint32_t number = row.first; number <= row.last; number++) {
            ASSERT_EQ(type.members[number - 1].number, number);
            Content content = empty_content(type);
            content.values[number - 1] = number_value(uint64_t{1} << 32 | 1);
            const FilledRecord filled(content);
            const Bytes expected{static_cast<uint8_t>(number << 3), 0x81, 0x80, 0x80, 0x80, 0x10};
            EXPECT_EQ(encode(type, filled.record()), expected) << row.type << " " << number;
            OwnedRecord decoded(type);
            EXPECT_EQ(decoded.decode(expected), WIRE_OK);
            EXPECT_EQ(difference(content, decoded.record()), "");
        }
    }
}

TEST(integrity_records, write_the_time_stamp_of_an_entry_behind_a_tag_of_two_bytes)
{
    HistoryEntry entry{};
    SET(entry.timestamp, field_1, 1);
    EXPECT_EQ(encoded(entry), (Bytes{0x82, 1, 2, 0x08, 1}));
}

TEST(integrity_records, leave_out_texts_that_are_null)
{
    HistoryEntry entry{};
    SET(entry, field_2, nullptr);
    SET(entry, field_7, nullptr);
    SET(entry, field_10, nullptr);
    EXPECT_EQ(encoded(entry), Bytes{});
    entry.field_2 = entry.field_7 = entry.field_10 = "";
    EXPECT_EQ(encoded(entry), (Bytes{0x12, 0, 0x3A, 0, 0x52, 0}));
}

} // namespace

} // namespace catalogue
