// SPDX-License-Identifier: MIT
// The JSON of another Protocol Buffers library, which reads the same .proto files, side by side
// with this one's, in both directions.
#include "tests/catalogue/operations.hpp"
#include "tests/catalogue/referee.hpp"
#include "tests/catalogue/vectors.hpp"
#include "tests/protobuf/random_content.hpp"
#include "tests/tools/json_support.hpp"

#include <google/protobuf/util/json_util.h>
#include <gtest/gtest.h>
#include <memory>
#include <nlohmann/json.hpp>

namespace inspect {

namespace {

namespace util = google::protobuf::util;
using google::protobuf::Message;

std::string written_by_them(const Message &message, bool lower_camel_case, bool indented)
{
    util::JsonPrintOptions options;
    options.preserve_proto_field_names = !lower_camel_case;
    options.add_whitespace = indented;
    std::string json;
    EXPECT_TRUE(util::MessageToJsonString(message, &json, options).ok());
    return json;
}

class json_referee : public testing::Test {
protected:
    struct Both {
        const RecordType *type;
        std::unique_ptr<Message> message;
        std::vector<uint8_t> bytes;
        std::string ours; // in one line, without its end
    };

    Both both(const catalogue::Content &content)
    {
        Both sides{find_type(content.type->name), referee_.message(content), {}, {}};
        const std::string encoding = sides.message->SerializeAsString();
        sides.bytes.assign(encoding.begin(), encoding.end());
        Record record(*sides.type, kTestLimit);
        EXPECT_EQ(record.decode(sides.bytes), WIRE_OK);
        sides.ours = written(record.view());
        sides.ours.pop_back();
        return sides;
    }

    // Calls check(sides) for cases of every type and for random content, up to the first that
    // fails.
    template <typename Check>
    void for_all(Check check)
    {
        for (const catalogue::Case &test_case : catalogue::vector_cases()) {
            SCOPED_TRACE(catalogue::name_of(test_case));
            check(both(catalogue::content_of(test_case)));
            if (HasFailure())
                return;
        }
        uint64_t seed = 0;
        catalogue::for_each_type([&](const catalogue::RecordType &type) {
            check(both(protobuf::random_content(type, seed++)));
        });
    }

    catalogue::Referee referee_;
};

TEST_F(json_referee, writes_the_same_json)
{
    size_t compared = 0;
    size_t same = 0;
    for_all([&](const Both &sides) {
        const std::string theirs = written_by_them(*sides.message, false, false);
        EXPECT_EQ(nlohmann::json::parse(sides.ours), nlohmann::json::parse(theirs));
        compared++;
        // Which characters are escaped though they need not be is up to each.
        if (theirs.find('\\') != std::string::npos || sides.ours.find('\\') != std::string::npos)
            return;
        EXPECT_EQ(sides.ours, theirs);
        same++;
    });
    EXPECT_GT(same, compared / 2);
    EXPECT_LT(same, compared);
}

TEST_F(json_referee, reads_what_this_library_writes)
{
    for_all([&](const Both &sides) {
        const std::unique_ptr<Message> read(sides.message->New());
        EXPECT_TRUE(util::JsonStringToMessage(sides.ours, read.get()).ok());
        EXPECT_EQ(read->SerializeAsString(), sides.message->SerializeAsString());
    });
}

TEST_F(json_referee, is_read_by_this_library_with_both_names_of_members)
{
    for_all([&](const Both &sides) {
        for (const bool lower_camel_case : {false, true})
            EXPECT_EQ(
                read(*sides.type, written_by_them(*sides.message, lower_camel_case, true)).encode(),
                sides.bytes);
    });
}

} // namespace

} // namespace inspect
