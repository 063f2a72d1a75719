// SPDX-License-Identifier: MIT
// What a record may look like as JSON, and what is said about JSON that does not fit it.
#include "tests/tools/hex_bytes.hpp"
#include "tests/tools/json_support.hpp"

#include <cstring>
#include <gtest/gtest.h>

namespace inspect {

namespace {

TEST(json_reader, reads_each_kind_of_member)
{
    expect_read({
        {"get_switch_info", "{}", ""},
        {"switch_info", " \n\t\r{ } \n", ""},
        {"port_reset", R"({"port":4294967295})", "08 ff ff ff ff 0f"},
        {"timespec", R"({"field_1":18446744073709551615})", "08 ff ff ff ff ff ff ff ff ff 01"},
        {"timespec", R"({"field_1":"18446744073709551615"})", "08 ff ff ff ff ff ff ff ff ff 01"},
        {"switch_available", R"({"available":true})", "08 01"},
        {"switch_available", R"({"available":false})", "08 00"},
        {"timespec", R"({"text":""})", "1a 00"},
        {"timespec", R"({"text":"\u00fc\ud83d\ude00\n"})", "1a 07 c3 bc f0 9f 98 80 0a"},
        {"add_pcl_flow", R"({"field_3":""})", "1a 00"},
        {"add_pcl_flow", R"({"field_3":"/+7d"})", "1a 03 ff ee dd"},
        {"port_info", R"({"phy":{}})", "22 00"},
        {"port_info", R"({"phy":{"identity":{"field_1":1}},"field_6":2})",
         "22 04 12 02 08 01 30 02"},
        {"calv_eid_st", R"({"field_6":[1,"2",3.0]})", "30 01 30 02 30 03"},
        {"switch_info", R"({"ports":[{},{"field_2":7},{"phy":{}}]})",
         "42 00 42 02 10 07 42 02 22 00"},
        {"switch_info", "\xEF\xBB\xBF{}", ""},
    });
}

TEST(json_reader, knows_members_by_both_names_in_any_order)
{
    expect_read({
        {"port_info", R"({"field6":2,"field2":1})", "10 01 30 02"},
        {"port_info", R"({"field_6":2,"field_2":1})", "10 01 30 02"},
        {"port_info", R"({"field_\u0036":2})", "30 02"},
    });
}

TEST(json_reader, leaves_out_what_is_null)
{
    expect_read({
        {"port_info", R"({"field_2":null,"field_3":null,"phy":null,"field_6":1})", "30 01"},
        {"switch_info", R"({"ports":null,"field_6":null,"field_9":null})", ""},
        {"add_pcl_flow", R"({"field_3":null})", ""},
    });
}

TEST(json_reader, keeps_an_empty_list_as_an_empty_list)
{
    const Record record = read(*find_type("switch_info"), R"({"ports":[]})");
    EXPECT_TRUE(record.view().has(*record.type().member_of_name("ports")));
    EXPECT_TRUE(record.encode().empty());
}

TEST(json_reader, fills_what_does_not_arrive_with_the_defaults)
{
    const Record record =
        read(*find_type("yield_switch_to_peer_response"), R"({"location":{"field_2":9}})");
    const RecordView location = record.view().child(*record.type().member_of_name("location"));
    EXPECT_EQ(location.number(*location.type().member_of_name("field_1")), 7u);
    EXPECT_EQ(location.number(*location.type().member_of_name("field_2")), 9u);
    EXPECT_FALSE(location.has(*location.type().member_of_name("field_1")));
}

TEST(json_reader, fills_records_in_lists_with_their_defaults_too)
{
    size_t lists = 0;
    for (const RecordType &type : every_type())
        for (const Member &member : type.members) {
            if (member.kind != Kind::repeated_message)
                continue;
            const Record record = read(type, "{\"" + std::string(member.name) + "\":[{},{}]}");
            Record fresh(*member.child, kTestLimit);
            for (uint32_t i = 0; i < 2; i++)
                EXPECT_EQ(memcmp(record.view().element(member, i).address(), fresh.view().address(),
                                 member.child->size_here()),
                          0)
                    << type.name << " " << member.name;
            lists++;
        }
    EXPECT_GT(lists, 50u);
}

TEST(json_reader, refuses_values_of_the_wrong_kind)
{
    expect_refused({
        {"switch_info", "[]", "expected an object, found a list"},
        {"switch_info", "null", "expected an object, found null"},
        {"switch_info", "1", "expected an object, found a number"},
        {"switch_info", "1.5", "expected an object, found a number"},
        {"switch_info", "1e999", "expected an object, found a number"},
        {"switch_info", "true", "expected an object, found true"},
        {"switch_info", R"("{}")", "expected an object, found a string"},
        {"port_reset", R"({"port":{}})", "port: expected a number, found an object"},
        {"port_reset", R"({"port":[1]})", "port: expected a number, found a list"},
        {"port_reset", R"({"port":true})", "port: expected a number, found true"},
        {"timespec", R"({"field_1":false})", "field_1: expected a number, found false"},
        {"timespec", R"({"text":1})", "text: expected a string, found a number"},
        {"timespec", R"({"text":true})", "text: expected a string, found true"},
        {"add_pcl_flow", R"({"field_3":[]})", "field_3: expected a string, found a list"},
        {"switch_available", R"({"available":1})",
         "available: expected true or false, found a number"},
        {"switch_available", R"({"available":"true"})",
         "available: expected true or false, found a string"},
        {"port_info", R"({"phy":[]})", "phy: expected an object, found a list"},
        {"port_info", R"({"phy":{"identity":1}})",
         "phy.identity: expected an object, found a number"},
        {"switch_info", R"({"ports":{}})", "ports: expected a list, found an object"},
        {"switch_info", R"({"ports":[{},1]})", "ports[1]: expected an object, found a number"},
        {"switch_info", R"({"ports":[[]]})", "ports[0]: expected an object, found a list"},
        {"calv_eid_st", R"({"field_6":[1,[]]})", "field_6[1]: expected a number, found a list"},
        {"fpd_cmp_to_file", R"({"field_2":["a",1]})",
         "field_2[1]: expected a string, found a number"},
    });
}

TEST(json_reader, refuses_null_in_lists)
{
    expect_refused({
        {"switch_info", R"({"ports":[{},null]})", "ports[1]: null in a list"},
        {"calv_eid_st", R"({"field_6":[null]})", "field_6[0]: null in a list"},
        {"fpd_cmp_to_file", R"({"field_2":["a",null]})", "field_2[1]: null in a list"},
    });
}

TEST(json_reader, refuses_a_key_that_the_type_does_not_have)
{
    expect_refused({
        {"port_reset", R"({"prot":1})", "no member \"prot\" (did you mean port?)"},
        {"port_reset", R"({"PORT":1})", "no member \"PORT\""},
        {"port_reset", R"({"":1})", "no member \"\""},
        {"port_reset", R"({"\u001b[31m\u009b":1})", "no member \"\\x1b[31m\\xc2\\x9b\""},
        {"switch_info", R"({"ports":[{},{"phy":{"identit":1}}]})",
         "ports[1].phy: no member \"identit\" (did you mean identity?)"},
        {"switch_info", R"({"ports":[{"field_2":1,"spped":2}]})", "ports[0]: no member \"spped\""},
        {"get_switch_info", R"({"port":1})", "no member \"port\""},
    });
}

TEST(json_reader, refuses_a_key_that_comes_twice)
{
    expect_refused({
        {"port_reset", R"({"port":1,"port":1})", "port: comes twice"},
        {"port_reset", R"({"port":null,"port":1})", "port: comes twice"},
        {"port_info", R"({"field_2":1,"field2":1})", "field_2: comes twice"},
        {"switch_info", R"({"ports":[{},{"phy":{},"phy":{}}]})", "ports[1].phy: comes twice"},
    });
    expect_read(
        {{"switch_info", R"({"ports":[{"field_2":1},{"field_2":1}]})", "42 02 10 01 42 02 10 01"}});
}

TEST(json_reader, refuses_a_text_in_which_c_would_find_its_end)
{
    expect_refused({
        {"timespec", R"({"text":"a\u0000b"})", "text: U+0000 in a text, which ends there for C"},
        {"fpd_cmp_to_file", R"({"field_2":["a","\u0000"]})",
         "field_2[1]: U+0000 in a text, which ends there for C"},
    });
}

TEST(json_reader, is_not_impressed_by_depth)
{
    constexpr size_t kDeep = 1000000;
    EXPECT_EQ(error_of("switch_info", std::string(kDeep, '[')), "expected an object, found a list");
    EXPECT_EQ(error_of("switch_info", "{\"ports\":" + std::string(kDeep, '[')),
              "ports[0]: expected an object, found a list");
}

TEST(json_reader, stays_within_the_memory_limit)
{
    constexpr size_t kLimit = 10000;
    const auto list = [](std::string_view name, std::string_view element, size_t count) {
        std::string json = "{\"" + std::string(name) + "\":[" + std::string(element);
        for (size_t i = 1; i < count; i++)
            json.append(",").append(element);
        return json + "]}";
    };
    const std::string beyond = "takes more than the memory limit";
    const RecordType &port = *find_type("port_info");
    const size_t ports = kLimit / port.size_here();
    EXPECT_EQ(error_of("switch_info", list("ports", "{}", ports), {}, kLimit), "");
    EXPECT_EQ(error_of("switch_info", list("ports", "{}", ports + 1), {}, kLimit),
              "ports[" + std::to_string(ports) + "]: " + beyond);
    EXPECT_EQ(error_of("calv_eid_st", list("field_6", "1", kLimit / 4), {}, kLimit), "");
    EXPECT_EQ(error_of("calv_eid_st", list("field_6", "1", kLimit / 4 + 1), {}, kLimit),
              "field_6[2500]: " + beyond);
    const auto text = [](size_t size) { return "{\"text\":\"" + std::string(size, 'a') + "\"}"; };
    EXPECT_EQ(error_of("timespec", text(kLimit - 1), {}, kLimit), "");
    EXPECT_EQ(error_of("timespec", text(kLimit), {}, kLimit), "text: " + beyond);
    const std::string bytes(kLimit / 3 * 4 + 4, 'A');
    EXPECT_EQ(error_of("add_pcl_flow", "{\"field_3\":\"" + bytes + "\"}", {}, kLimit),
              "field_3: " + beyond);
}

TEST(json_reader, counts_the_lists_that_are_still_open_against_the_limit)
{
    // Each is within the limit, but not both.
    const size_t port = find_type("port_info")->size_here();
    const std::string json = R"({"ports":[{},{},{},{"identity":{"field_6":[1,2,3,4,5,6,7,8]}}]})";
    EXPECT_EQ(error_of("switch_info", json, {}, 4 * port + 32), "");
    EXPECT_EQ(error_of("switch_info", json, {}, 4 * port + 31),
              "ports[3].identity.field_6[7]: takes more than the memory limit");
}

TEST(json_reader, does_not_count_lists_twice_against_the_limit)
{
    const size_t port = find_type("port_info")->size_here();
    const std::string json = R"({"ports":[{"identity":{"field_6":[1,2,3,4,5,6,7,8]}},{},{},{}]})";
    EXPECT_EQ(error_of("switch_info", json, {}, 4 * port + 32), "");
}

} // namespace

} // namespace inspect
