// SPDX-License-Identifier: MIT
// The committed encodings, which another library has made: this one writes and reads the same.
#include "tests/catalogue/comparison.hpp"
#include "tests/catalogue/filled_record.hpp"
#include "tests/catalogue/operations.hpp"
#include "tests/catalogue/vectors.hpp"

#include <fstream>

namespace catalogue {

namespace {

std::vector<std::string> committed_lines()
{
    std::ifstream file(vectors_path());
    EXPECT_TRUE(file) << vectors_path() << " cannot be read";
    std::vector<std::string> lines;
    for (std::string line; std::getline(file, line);)
        if (!line.starts_with('#'))
            lines.push_back(line);
    return lines;
}

// Calls check(case, line) for each line, up to the first that fails.
template <typename Check>
void for_each_vector(Check check)
{
    const std::vector<std::string> lines = committed_lines();
    const std::vector<Case> cases = vector_cases();
    ASSERT_EQ(lines.size(), cases.size());
    ASSERT_GE(lines.size(), 1104u + 2 * (259 - 24));
    for (size_t i = 0; i < lines.size() && !testing::Test::HasFailure(); i++) {
        SCOPED_TRACE(name_of(cases[i]));
        check(cases[i], lines[i]);
    }
}

TEST(vectors, are_what_this_library_encodes)
{
    for_each_vector([](const Case &test_case, const std::string &line) {
        const FilledRecord filled(content_of(test_case));
        EXPECT_EQ(vector_line(test_case, encode(*test_case.type, filled.record())), line);
    });
}

TEST(vectors, decode_to_the_values_they_were_made_of)
{
    for_each_vector([](const Case &test_case, const std::string &line) {
        OwnedRecord decoded(*test_case.type);
        EXPECT_EQ(decoded.decode(bytes_in(line)), WIRE_OK);
        EXPECT_EQ(difference(content_of(test_case), decoded.record()), "");
    });
}

} // namespace

} // namespace catalogue
