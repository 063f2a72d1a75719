// SPDX-License-Identifier: MIT
// The structures of all record types, held against the rules of their layout.
#include "tests/catalogue/layout.hpp"
#include "tests/catalogue/operations.hpp"

namespace catalogue {

namespace {

void check_layout(const RecordType &type)
{
    const Layout &layout = layout_of(type);
    for (size_t i = 0; i < type.members.size(); i++)
        EXPECT_EQ(type.members[i].offset, layout.offsets[i]) << type.members[i].name;
    EXPECT_EQ(type.size, type.members.empty() ? 0 : layout.size);
}

// What its setter changes in a structure of zeros is the member's one bit, and no other.
void check_flags(const RecordType &type)
{
    for (const Member &member : type.members) {
        Bytes record(type.size);
        member.set_flag(record.data());
        Bytes expected(type.size);
        const size_t byte = layout_of(type).flags + member.bit / 8;
        ASSERT_LT(byte, type.size);
        expected[byte] = static_cast<uint8_t>(1u << member.bit % 8);
        EXPECT_EQ(record, expected) << member.name;
    }
}

TEST(layout, places_members_in_order_and_flags_right_behind_them)
{
    for_each_type(check_layout);
    for (const RecordType &type : foreign_types())
        check_layout(type);
}

TEST(layout, gives_member_k_the_flag_bit_k)
{
    for_each_type(check_flags);
    for (const RecordType &type : foreign_types())
        check_flags(type);
}

TEST(layout, numbers_members_and_flags_upwards)
{
    for_each_type([](const RecordType &type) {
        uint32_t last_number = 0;
        for (size_t i = 0; i < type.members.size(); i++) {
            const Member &member = type.members[i];
            EXPECT_EQ(member.bit, i);
            EXPECT_GT(member.number, last_number);
            EXPECT_LE(member.number, 45u);
            EXPECT_EQ(member.child != nullptr, is_nested(member.kind));
            last_number = member.number;
        }
    });
}

TEST(layout, keeps_all_flags_of_the_longest_type_in_six_bytes)
{
    const RecordType &type = find_type("tarn_ethsw_mgmt_debug_get_health_state_rsp");
    ASSERT_EQ(type.members.size(), 45u);
    Bytes record(type.size);
    for (const Member &member : type.members)
        member.set_flag(record.data());
    const Bytes flags(record.begin() + static_cast<ptrdiff_t>(layout_of(type).flags),
                      record.begin() + static_cast<ptrdiff_t>(layout_of(type).flags) + 6);
    EXPECT_EQ(flags, (Bytes{0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x1F}));
}

} // namespace

} // namespace catalogue
