// SPDX-License-Identifier: MIT
// The inspector finds each member and its flag where the compiler has put them. It has the places
// from the generator; the table of the catalogue has them from the compiler.
#include "tests/catalogue/catalogue.hpp"
#include "tools/core/record.hpp"

#include <gtest/gtest.h>
#include <string>

namespace inspect {

namespace {

void expect_same_places(const RecordType &type, const catalogue::RecordType &compiled)
{
    constexpr size_t kHereIndex = static_cast<size_t>(kHere);
    ASSERT_EQ(type.size_here(), compiled.size);
    ASSERT_EQ(type.members.size(), compiled.members.size());
    for (size_t i = 0; i < type.members.size(); i++) {
        const Member &member = type.members[i];
        const catalogue::Member &other = compiled.members[i];
        SCOPED_TRACE(std::string(member.name));
        EXPECT_EQ(member.name, other.name);
        EXPECT_EQ(static_cast<int>(member.kind), static_cast<int>(other.kind));
        EXPECT_EQ(member.number, other.number);
        EXPECT_EQ(member.offsets[kHereIndex], other.offset);
        EXPECT_EQ(member.child ? member.child->name : "", other.child ? other.child : "");

        Record record(type, SIZE_MAX);
        EXPECT_FALSE(record.view().has(member));
        other.set_flag(const_cast<std::byte *>(record.view().address()));
        for (const Member &any : type.members)
            EXPECT_EQ(record.view().has(any), &any == &member) << any.name;
    }
}

TEST(places, of_members_and_flags_are_those_of_the_compiler)
{
    for (const RecordType &type : every_type()) {
        SCOPED_TRACE(std::string(type.name));
        expect_same_places(type, catalogue::find_type(type.name));
    }
}

TEST(places, on_both_32_bit_targets_are_the_same)
{
    for (const RecordType &type : every_type()) {
        EXPECT_EQ(type.sizes[0], type.sizes[1]) << type.name;
        for (const Member &member : type.members)
            EXPECT_EQ(member.offsets[0], member.offsets[1]) << type.name << "." << member.name;
    }
}

} // namespace

} // namespace inspect
