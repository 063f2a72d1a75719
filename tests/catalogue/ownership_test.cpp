// SPDX-License-Identifier: MIT
// Duplicating and releasing, for every record type: copies share nothing, blocks come back once.
#include "tests/catalogue/comparison.hpp"
#include "tests/catalogue/filled_record.hpp"
#include "tests/catalogue/operations.hpp"
#include "tests/catalogue/ownership.hpp"

namespace catalogue {

namespace {

TEST(duplicating, copies_every_member_and_shares_no_block)
{
    for_each_case([](const Case &test_case, const Content &content) {
        const RecordType &type = *test_case.type;
        const FilledRecord original(content, Absent::leftovers);
        OwnedRecord copy(type);
        EXPECT_EQ(copy.copy(original.record()), WIRE_OK);
        EXPECT_EQ(copy_difference(type, copy.record(), original.record()), "");
        EXPECT_EQ(copy.blocks().out(), attached_blocks(type, copy.record()));
        EXPECT_EQ(encode(type, copy.record()), encode(type, original.record()));
    });
}

TEST(duplicating, copies_what_was_decoded_in_place_into_blocks_of_its_own)
{
    for_each_case([](const Case &test_case, const Content &content) {
        const RecordType &type = *test_case.type;
        Bytes input = encode(type, FilledRecord(content).record());
        OwnedRecord decoded(type);
        EXPECT_EQ(decoded.decode(input, WIRE_FLAG_BYTES_IN_PLACE), WIRE_OK);
        OwnedRecord copy(type);
        EXPECT_EQ(copy.copy(decoded.record()), WIRE_OK);
        EXPECT_EQ(copy_difference(type, copy.record(), decoded.record()), "");

        const Bytes sent = input;
        decoded.release();
        input.assign(input.size(), 0xA5);
        EXPECT_EQ(encode(type, copy.record()), sent);
    });
}

TEST(releasing, hands_every_block_back_once)
{
    for_each_case([](const Case &test_case, const Content &content) {
        const RecordType &type = *test_case.type;
        OwnedRecord decoded(type);
        EXPECT_EQ(decoded.decode(encode(type, FilledRecord(content).record())), WIRE_OK);
        const Bytes expected = released_image(type, decoded.record());
        const size_t attached = decoded.blocks().out().size();

        decoded.release();
        EXPECT_TRUE(decoded.blocks().out().empty());
        EXPECT_EQ(decoded.blocks().returned().size(), attached);
        EXPECT_EQ(decoded.image(), expected);

        decoded.release();
        EXPECT_EQ(decoded.blocks().returned().size(), attached);
    });
}

TEST(releasing, leaves_byte_strings_that_were_decoded_in_place)
{
    for_each_case([](const Case &test_case, const Content &content) {
        const RecordType &type = *test_case.type;
        const Bytes input = encode(type, FilledRecord(content).record());
        OwnedRecord decoded(type);
        EXPECT_EQ(decoded.decode(input, WIRE_FLAG_BYTES_IN_PLACE), WIRE_OK);
        const Bytes expected = released_image(type, decoded.record(), WIRE_FLAG_BYTES_IN_PLACE);
        decoded.release();
        EXPECT_TRUE(decoded.blocks().out().empty());
        EXPECT_EQ(decoded.image(), expected);
    });
}

// 172 of them, those without members included.
TEST(releasing, calls_nobody_for_types_of_nothing_but_numbers)
{
    size_t plain = 0;
    for_each_type([&](const RecordType &type) {
        for (const Member &member : type.members)
            if (!is_scalar(member.kind))
                return;
        plain++;
        OwnedRecord decoded(type);
        const Case complete{&type, Shape::all, 1, 0};
        EXPECT_EQ(decoded.decode(encode(type, FilledRecord(content_of(complete)).record())),
                  WIRE_OK);
        const Bytes before = decoded.image();
        void *record = const_cast<void *>(decoded.record());
        type.release(record, nullptr, nullptr, 0);
        EXPECT_EQ(decoded.image(), before);
    });
    EXPECT_EQ(plain, 172u);
}

} // namespace

} // namespace catalogue
