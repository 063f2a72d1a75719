// SPDX-License-Identifier: MIT
// The table that the other tests walk leaves nothing out, and the library exports what it promises.
#include "tests/catalogue/catalogue.hpp"

#include <algorithm>
#include <dlfcn.h>
#include <fstream>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace catalogue {

namespace {

std::vector<std::string> promised_exports()
{
    std::ifstream file(TARN_SOURCE_DIR "/abi/exports.txt");
    EXPECT_TRUE(file) << "abi/exports.txt cannot be read";
    std::vector<std::string> names;
    for (std::string line; std::getline(file, line);)
        names.push_back(line);
    return names;
}

TEST(catalogue, has_259_types_with_1104_members)
{
    size_t members = 0;
    for (const RecordType &type : record_types())
        members += type.members.size();
    EXPECT_EQ(record_types().size(), 259u);
    EXPECT_EQ(members, 1104u);
}

TEST(catalogue, has_four_exported_operations_for_every_type)
{
    std::vector<std::string> names;
    for (const RecordType &type : record_types())
        for (const char *operation : {"_encode_ext", "_decode_ext", "_duplicate", "_free_ext"})
            names.push_back(std::string(type.name) + operation);
    std::sort(names.begin(), names.end());
    EXPECT_EQ(names.size(), 1036u);
    EXPECT_EQ(names, promised_exports());
}

TEST(catalogue, finds_every_promised_operation_in_the_library)
{
    for (const std::string &name : promised_exports()) {
        const void *symbol = dlsym(RTLD_DEFAULT, name.c_str());
        ASSERT_NE(symbol, nullptr) << name;
        Dl_info origin = {};
        ASSERT_NE(dladdr(symbol, &origin), 0) << name;
        EXPECT_NE(std::string(origin.dli_fname).find("libtarn_ethsw_mgmt"), std::string::npos)
            << name << " is in " << origin.dli_fname;
    }
}

TEST(catalogue, names_all_but_five_types_after_the_set)
{
    std::vector<std::string> others;
    for (const RecordType &type : record_types())
        if (!std::string_view(type.name).starts_with("tarn_ethsw_mgmt_"))
            others.push_back(type.name);
    std::sort(others.begin(), others.end());
    EXPECT_EQ(others, (std::vector<std::string>{
                          "tarn_ESD_MGMT_RESULT_resp",
                          "tarn_data_integrity_error_history_entry",
                          "tarn_data_integrity_error_info_entry",
                          "tarn_event_stats_info",
                          "tarn_faults_stats_info",
                      }));
}

} // namespace

} // namespace catalogue
