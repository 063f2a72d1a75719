// SPDX-License-Identifier: MIT
// Duplicating and releasing, for every record type: copies share nothing, blocks come back once.
#include "tests/catalogue/comparison.hpp"
#include "tests/catalogue/filled_record.hpp"
#include "tests/catalogue/operations.hpp"
#include "tests/catalogue/ownership.hpp"

namespace catalogue {

namespace {

bool needs_block(const Member &member, const Value &value)
{
    return member.kind == Kind::bytes ? !value.text.empty() : is_on_wire(member, value);
}

// Takes away what needs a block, in embedded records, too. Tells whether there was any.
bool take_away_blocks(Content &content)
{
    bool any = false;
    for (size_t i = 0; i < content.values.size(); i++) {
        const Member &member = content.type->members[i];
        std::optional<Value> &value = content.values[i];
        if (!value || is_scalar(member.kind))
            continue;
        if (member.kind == Kind::message) {
            any = take_away_blocks(value->records[0]) || any;
        } else if (needs_block(member, *value)) {
            value.reset();
            any = true;
        }
    }
    return any;
}

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

TEST(duplicating, copies_without_memory_what_needs_no_block)
{
    const wire_alloc_fn allocators[] = {nullptr,
                                        [](uint32_t, void *) -> void * { return nullptr; }};
    for_each_case([&](const Case &test_case, const Content &content) {
        const RecordType &type = *test_case.type;
        const FilledRecord original(content);
        Content rest = content;
        const int32_t expected = take_away_blocks(rest) ? WIRE_ERR_NO_MEMORY : WIRE_OK;
        for (const wire_alloc_fn alloc_fn : allocators) {
            OwnedRecord copy(type);
            void *record = const_cast<void *>(copy.record());
            EXPECT_EQ(type.duplicate(record, original.record(), alloc_fn, nullptr), expected);
            EXPECT_EQ(copy_difference(type, record, FilledRecord(rest).record()), "");
        }
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
