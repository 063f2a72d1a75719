// SPDX-License-Identifier: MIT
// All types as JSON and back, from encodings that another Protocol Buffers library has made.
#include "tests/catalogue/vectors.hpp"
#include "tests/tools/json_support.hpp"

#include <fstream>
#include <gtest/gtest.h>
#include <set>
#include <sstream>

namespace inspect {

namespace {

struct Vector {
    const RecordType *type;
    std::string what; // type and case
    std::vector<uint8_t> message;
};

const std::vector<Vector> &vectors()
{
    static const std::vector<Vector> all = [] {
        std::vector<Vector> read;
        std::ifstream file(catalogue::vectors_path());
        for (std::string line; std::getline(file, line);)
            if (!line.starts_with('#'))
                read.push_back({find_type(line.substr(0, line.find(' '))),
                                line.substr(0, line.rfind(' ')), catalogue::bytes_in(line)});
        return read;
    }();
    return all;
}

void expect_to_come_back(const Vector &vector, const JsonOptions &options)
{
    Record record(*vector.type, kTestLimit);
    ASSERT_EQ(record.decode(vector.message), WIRE_OK) << vector.what;
    const std::string json = written(record.view(), options);
    EXPECT_EQ(read(*vector.type, json, options).encode(), vector.message) << vector.what << "\n"
                                                                          << json;
    EXPECT_TRUE(!options.one_line || json.find('\n') == json.size() - 1) << vector.what;
}

// All combinations in turn, two for each vector, since under an emulator all eight take long.
TEST(json_vectors, come_back_with_the_same_bytes)
{
    const auto options = [](size_t turn) {
        return JsonOptions{(turn & 1) != 0, (turn & 2) != 0, (turn & 4) != 0};
    };
    for (size_t i = 0; i < vectors().size(); i++)
        for (const size_t turn : {i, i + 3})
            expect_to_come_back(vectors()[i], options(turn));
}

TEST(json_vectors, are_of_every_type_that_has_members)
{
    std::set<const RecordType *> types;
    for (const Vector &vector : vectors())
        types.insert(vector.type);
    EXPECT_EQ(types.count(nullptr), 0u);
    EXPECT_EQ(types.size(), 259u - 24);
    EXPECT_GE(vectors().size(), 2279u);
}

TEST(json_vectors, need_none_of_types_without_members_which_come_back_empty)
{
    size_t without_members = 0;
    for (const RecordType *type : own_types()) {
        if (!type->members.empty())
            continue;
        EXPECT_EQ(written(Record(*type, 0).view()), "{}\n") << type->name;
        EXPECT_TRUE(read(*type, "{}").encode().empty()) << type->name;
        without_members++;
    }
    EXPECT_EQ(without_members, 24u);
}

TEST(json_page, has_an_example_as_it_is_written)
{
    std::ostringstream page;
    page << std::ifstream(TARN_SOURCE_DIR "/docs/inspect-json.md").rdbuf();
    const std::string text = page.str();
    const std::string begin = "```json\n";
    const size_t at = text.find(begin) + begin.size();
    const std::string example = text.substr(at, text.find("```", at) - at);
    EXPECT_EQ(written(read(*find_type("switch_info"), example).view(), {}), example);
}

} // namespace

} // namespace inspect
