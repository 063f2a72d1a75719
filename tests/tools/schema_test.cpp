// SPDX-License-Identifier: MIT
// The inspector's table of types: names, places and relations.
#include "tools/core/schema.hpp"

#include "ethsw_mgmt/ethsw_mgmt.h"

#include <gtest/gtest.h>
#include <set>
#include <stddef.h>

namespace inspect {

namespace {

TEST(schema, has_all_types_and_the_two_of_the_sibling_library)
{
    EXPECT_EQ(own_types().size(), 259u);
    EXPECT_EQ(every_type().size(), 261u);
}

TEST(schema, finds_a_type_by_each_of_its_names)
{
    const RecordType *type = find_type("tarn_ethsw_mgmt_port_reset");
    ASSERT_NE(type, nullptr);
    EXPECT_EQ(find_type("ethsw_mgmt_port_reset"), type);
    EXPECT_EQ(find_type("tarn.ethsw_mgmt_port_reset"), type);
    EXPECT_EQ(find_type("port_reset"), type);
    EXPECT_EQ(find_type("port_rese"), nullptr);
    EXPECT_EQ(find_type(""), nullptr);
}

TEST(schema, has_a_short_name_for_each_type_that_no_other_has)
{
    std::set<std::string_view> names;
    for (const RecordType &type : every_type()) {
        EXPECT_TRUE(names.insert(type.short_name()).second) << type.name;
        EXPECT_EQ(find_type(type.short_name()), &type);
    }
}

TEST(schema, has_the_offsets_of_the_compiler)
{
    using Record = tarn_ethsw_mgmt_switch_info;
    const RecordType &type = *find_type("switch_info");
    const size_t here = static_cast<size_t>(kHere);
    EXPECT_EQ(type.size_here(), sizeof(Record));
    EXPECT_EQ(type.member_of_name("ports")->offsets[here], offsetof(Record, ports));
    EXPECT_EQ(type.member_of_number(1)->offsets[here], 0u);
}

TEST(schema, pairs_92_requests_with_their_answers)
{
    size_t pairs = 0;
    for (const RecordType *type : own_types()) {
        if (!type->answer)
            continue;
        pairs++;
        EXPECT_FALSE(requests(*type->answer).empty()) << type->name;
    }
    EXPECT_EQ(pairs, 92u);
    EXPECT_EQ(find_type("port_reset")->answer, find_type("port_reset_resp"));
}

TEST(schema, knows_who_embeds_whom)
{
    const std::vector<Embedder> found = embedders(*find_type("port_info"));
    ASSERT_EQ(found.size(), 1u);
    EXPECT_EQ(found[0].type, find_type("switch_info"));
    EXPECT_EQ(found[0].member->name, "ports");
}

} // namespace

} // namespace inspect
