// SPDX-License-Identifier: MIT
// docs/protobuf.md names the test of each of its claims: all of them exist, and none is left out.

#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <regex>
#include <set>
#include <string>

namespace protobuf {

namespace {

// In backquotes.
std::set<std::string> tests_on_the_page()
{
    std::ifstream file(TARN_SOURCE_DIR "/docs/protobuf.md");
    EXPECT_TRUE(file);
    const std::string page{std::istreambuf_iterator<char>(file), {}};
    const std::regex name("`((reading_differences|writing_differences|agreements)\\.[a-z0-9_]+)`");
    std::set<std::string> found;
    for (std::sregex_iterator match(page.begin(), page.end(), name), end; match != end; ++match)
        EXPECT_TRUE(found.insert((*match)[1]).second) << (*match)[1] << " is named twice";
    return found;
}

std::set<std::string> tests_of_the_program()
{
    const testing::UnitTest &program = *testing::UnitTest::GetInstance();
    std::set<std::string> found;
    for (int i = 0; i < program.total_test_suite_count(); i++) {
        const testing::TestSuite &suite = *program.GetTestSuite(i);
        const std::string name = suite.name();
        if (name != "agreements" && !name.ends_with("_differences"))
            continue;
        for (int j = 0; j < suite.total_test_count(); j++)
            found.insert(name + "." + suite.GetTestInfo(j)->name());
    }
    return found;
}

TEST(page, names_all_tests_of_differences_and_agreements_and_no_others)
{
    EXPECT_GE(tests_of_the_program().size(), 30u);
    EXPECT_EQ(tests_on_the_page(), tests_of_the_program());
}

} // namespace

} // namespace protobuf
