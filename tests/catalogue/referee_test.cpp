// SPDX-License-Identifier: MIT
// Another Protocol Buffers library, fed with the same .proto files, on every case.
#include "tests/catalogue/referee.hpp"

#include "tests/catalogue/comparison.hpp"
#include "tests/catalogue/filled_record.hpp"
#include "tests/catalogue/operations.hpp"
#include "tests/catalogue/vectors.hpp"

#include <fstream>
#include <sstream>

namespace catalogue {

namespace {

class referee : public testing::Test {
protected:
    Referee referee_;
};

TEST_F(referee, knows_the_same_types_members_and_kinds)
{
    for_each_type([&](const RecordType &type) { EXPECT_EQ(referee_.disagreement(type), ""); });
    for (const RecordType &type : foreign_types())
        EXPECT_EQ(referee_.disagreement(type), "") << type.name;
    EXPECT_EQ(referee_.message_count(), record_types().size() + foreign_types().size());
}

TEST_F(referee, encodes_every_case_to_the_same_bytes)
{
    size_t compared = 0;
    for_each_case([&](const Case &test_case, const Content &content) {
        const FilledRecord filled(content);
        EXPECT_EQ(encode(*test_case.type, filled.record()), referee_.encode(content));
        compared++;
    });
    RecordProperty("compared", std::to_string(compared));
    EXPECT_EQ(compared, all_cases().size());
}

TEST_F(referee, encodes_what_this_library_decodes_to_the_same_values)
{
    for_each_case([&](const Case &test_case, const Content &content) {
        OwnedRecord decoded(*test_case.type);
        EXPECT_EQ(decoded.decode(referee_.encode(content)), WIRE_OK);
        EXPECT_EQ(difference(content, decoded.record()), "");
    });
}

TEST_F(referee, has_written_the_committed_vectors)
{
    std::ifstream file(vectors_path());
    std::ostringstream committed;
    committed << file.rdbuf();
    EXPECT_TRUE(committed.str() == vectors_text(referee_))
        << vectors_path() << " is out of date; its first lines tell how to write it anew.";
}

} // namespace

} // namespace catalogue
