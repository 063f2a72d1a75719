// SPDX-License-Identifier: MIT
// Decoding, for every record type: what was encoded comes back, in blocks that the record owns.
#include "tests/catalogue/comparison.hpp"
#include "tests/catalogue/filled_record.hpp"
#include "tests/catalogue/operations.hpp"
#include "tests/catalogue/ownership.hpp"

namespace catalogue {

namespace {

Bytes encoding_of(const Content &content)
{
    return encode(*content.type, FilledRecord(content).record());
}

TEST(decoding, gives_back_every_value_flag_and_default)
{
    for_each_case([](const Case &test_case, const Content &content) {
        OwnedRecord decoded(*test_case.type);
        EXPECT_EQ(decoded.decode(encoding_of(content)), WIRE_OK);
        EXPECT_EQ(difference(content, decoded.record()), "");
    });
}

TEST(decoding, takes_one_block_of_the_right_size_for_all_that_needs_one)
{
    for_each_case([](const Case &test_case, const Content &content) {
        OwnedRecord decoded(*test_case.type);
        EXPECT_EQ(decoded.decode(encoding_of(content)), WIRE_OK);
        EXPECT_EQ(decoded.blocks().out(), attached_blocks(*test_case.type, decoded.record()));
    });
}

TEST(decoding, leaves_byte_strings_in_the_input_when_told_to)
{
    for_each_case([](const Case &test_case, const Content &content) {
        const Bytes input = encoding_of(content);
        OwnedRecord decoded(*test_case.type);
        EXPECT_EQ(decoded.decode(input, WIRE_FLAG_BYTES_IN_PLACE), WIRE_OK);
        EXPECT_EQ(difference(content, decoded.record()), "");
        for (const WireSegment &string : byte_strings(*test_case.type, decoded.record())) {
            EXPECT_GE(string.data, input.data());
            EXPECT_LE(string.data + string.length, input.data() + input.size());
        }
        EXPECT_EQ(decoded.blocks().out(),
                  attached_blocks(*test_case.type, decoded.record(), WIRE_FLAG_BYTES_IN_PLACE));
    });
}

TEST(decoding, yields_a_record_that_encodes_to_the_same_bytes)
{
    for_each_case([](const Case &test_case, const Content &content) {
        const Bytes input = encoding_of(content);
        OwnedRecord decoded(*test_case.type);
        EXPECT_EQ(decoded.decode(input), WIRE_OK);
        EXPECT_EQ(encode(*test_case.type, decoded.record()), input);
    });
}

TEST(decoding, needs_no_allocator_for_records_without_blocks)
{
    for_each_case([](const Case &test_case, const Content &content) {
        const RecordType &type = *test_case.type;
        const Bytes input = encoding_of(content);
        OwnedRecord with_allocator(type);
        EXPECT_EQ(with_allocator.decode(input), WIRE_OK);
        const bool needs_blocks = !with_allocator.blocks().out().empty();

        Bytes storage(type.size + 8);
        void *record = type.size ? storage.data() : nullptr;
        EXPECT_EQ(type.decode(record, input.data(), static_cast<uint32_t>(input.size()), nullptr,
                              nullptr, 0),
                  needs_blocks ? WIRE_ERR_NO_MEMORY : WIRE_OK);
    });
}

} // namespace

} // namespace catalogue
