// SPDX-License-Identifier: MIT
// All record types with random content: both libraries write the same bytes, and each reads what
// the other has written. To try other contents: TARN_SEED=N (the first seed) and TARN_SEEDS=N (how
// many).

#include "tests/catalogue/comparison.hpp"
#include "tests/catalogue/filled_record.hpp"
#include "tests/catalogue/operations.hpp"
#include "tests/protobuf/both_sides.hpp"
#include "tests/protobuf/random_content.hpp"

#include <algorithm>
#include <cstdlib>
#include <google/protobuf/util/message_differencer.h>
#include <iostream>
#include <random>

namespace protobuf {

namespace {

using catalogue::Content;
using catalogue::RecordType;

uint64_t setting(const char *name, uint64_t otherwise)
{
    const char *text = std::getenv(name);
    return text ? std::stoull(text) : otherwise;
}

// Calls check(type, content, seed) for some contents of each type, up to the first that fails.
template <typename Check>
void for_random_contents(Check check)
{
    const uint64_t first = setting("TARN_SEED", 1);
    const uint64_t count = setting("TARN_SEEDS", 25);
    std::cout << count << " seeds from " << first << ", each for all types\n";
    for (uint64_t seed = first; seed < first + count; seed++)
        catalogue::for_each_type([&](const RecordType &type) {
            SCOPED_TRACE("TARN_SEED=" + std::to_string(seed) + " TARN_SEEDS=1");
            check(type, random_content(type, seed), seed);
        });
}

void expect_that_they_read(const Bytes &bytes, const Content &content)
{
    const auto expected = referee().message(content);
    const auto message = referee().message(*content.type);
    ASSERT_TRUE(message->ParseFromArray(bytes.data(), static_cast<int>(bytes.size())));
    std::string report;
    google::protobuf::util::MessageDifferencer differencer;
    differencer.ReportDifferencesToString(&report);
    EXPECT_TRUE(differencer.Compare(*expected, *message)) << report;
}

void expect_that_we_read(const Bytes &bytes, const Content &content)
{
    catalogue::OwnedRecord record(*content.type);
    ASSERT_EQ(record.decode(bytes), WIRE_OK);
    EXPECT_EQ(catalogue::difference(content, record.record()), "");
}

// The fields of the outermost record, each written by itself, in random order.
Bytes shuffled(const Content &content, uint64_t seed)
{
    std::vector<Bytes> fields;
    for (size_t i = 0; i < content.values.size(); i++) {
        Content alone = catalogue::empty_content(*content.type);
        alone.values[i] = content.values[i];
        fields.push_back(referee().encode(alone));
    }
    std::shuffle(fields.begin(), fields.end(), std::mt19937_64(seed));
    Bytes all;
    for (const Bytes &field : fields)
        all.insert(all.end(), field.begin(), field.end());
    return all;
}

TEST(random_content, is_written_to_the_same_bytes_and_read_by_each_from_the_other)
{
    Occurrences occurrences;
    for_random_contents([&](const RecordType &type, const Content &content, uint64_t) {
        occurrences.add(content);
        const catalogue::FilledRecord filled(content);
        const Bytes written = catalogue::encode(type, filled.record());
        const Bytes written_by_them = referee().encode(content);
        EXPECT_EQ(written, written_by_them);
        expect_that_they_read(written, content);
        expect_that_we_read(written_by_them, content);
    });
    EXPECT_EQ(occurrences.missing(), "");
}

TEST(random_content, is_read_in_any_order_of_fields)
{
    size_t out_of_order = 0;
    for_random_contents([&](const RecordType &, const Content &content, uint64_t seed) {
        const Bytes bytes = shuffled(content, seed);
        out_of_order += bytes != referee().encode(content);
        expect_that_they_read(bytes, content);
        expect_that_we_read(bytes, content);
    });
    EXPECT_GT(out_of_order, 100u);
}

} // namespace

} // namespace protobuf
