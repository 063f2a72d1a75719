// SPDX-License-Identifier: MIT
// How each kind of member looks as JSON, and what is shown of a record that was not read to its
// end.
#include "tests/tools/hex_bytes.hpp"
#include "tests/tools/json_support.hpp"
#include "tools/core/walk.hpp"

#include <algorithm>
#include <gtest/gtest.h>
#include <numeric>

namespace inspect {

namespace {

std::string json_of(std::string_view type, std::string_view digits,
                    const JsonOptions &options = kOneLine)
{
    const std::vector<uint8_t> message = from_hex(digits);
    Record record(*find_type(type), kTestLimit);
    EXPECT_EQ(record.decode(message), WIRE_OK);
    return written(record.view(), options);
}

// The text as a member of a record.
std::string json_of_text(const char *text)
{
    Record record(*find_type("timespec"), kTestLimit);
    record.editor().set_text(*record.type().member_of_name("text"), text);
    const std::string json = written(record.view());
    constexpr std::string_view before = R"({"text":)";
    EXPECT_TRUE(json.starts_with(before) && json.ends_with("}\n")) << json;
    return json.substr(before.size(), json.size() - before.size() - 2);
}

TEST(json_writer, writes_each_kind_of_member)
{
    const struct {
        std::string_view type;
        std::string_view message;
        std::string json;
    } cases[] = {
        {"port_reset", "08 00", R"({"port":0})"},
        {"port_reset", "08 ff ff ff ff 0f", R"({"port":4294967295})"},
        {"timespec", "10 ff ff ff ff ff ff ff ff ff 01", R"({"field_2":"18446744073709551615"})"},
        {"switch_available", "08 00", R"({"available":false})"},
        {"switch_available", "08 07", R"({"available":true})"},
        {"timespec", "1a 00", R"({"text":""})"},
        {"timespec", "1a 02 48 69", R"({"text":"Hi"})"},
        {"add_pcl_flow", "1a 00", R"({"field_3":""})"},
        {"add_pcl_flow", "1a 01 ff", R"({"field_3":"/w=="})"},
        {"add_pcl_flow", "1a 02 ff ee", R"({"field_3":"/+4="})"},
        {"add_pcl_flow", "1a 03 ff ee dd", R"({"field_3":"/+7d"})"},
        {"port_info", "22 00", R"({"phy":{}})"},
        {"port_info", "22 02 08 05", R"({"phy":{"field_1":5}})"},
        {"calv_eid_st", "30 01 30 02", R"({"field_6":[1,2]})"},
        {"switch_info", "42 00 42 02 10 07", R"({"ports":[{},{"field_2":7}]})"},
    };
    for (const auto &test_case : cases)
        EXPECT_EQ(json_of(test_case.type, test_case.message), test_case.json + "\n");
}

TEST(json_writer, writes_nothing_of_what_is_absent)
{
    EXPECT_EQ(json_of("switch_info", ""), "{}\n");
    EXPECT_EQ(json_of("get_switch_info", ""), "{}\n");
    // Its members are not zero, but they have not arrived.
    EXPECT_EQ(json_of("yield_switch_to_peer_response", "12 00"), "{\"location\":{}}\n");
}

TEST(json_writer, writes_numbers_and_bytes_otherwise_when_told_so)
{
    const JsonOptions options = {.bytes_as_hex = true, .u64_as_number = true, .one_line = true};
    EXPECT_EQ(json_of("timespec", "08 05", options), "{\"field_1\":5}\n");
    EXPECT_EQ(json_of("add_pcl_flow", "1a 02 0f ee", options), "{\"field_3\":\"0fee\"}\n");
    EXPECT_EQ(json_of("add_pcl_flow", "1a 00", options), "{\"field_3\":\"\"}\n");
}

TEST(json_writer, indents_by_two_blanks)
{
    EXPECT_EQ(json_of("switch_info", "08 05 42 00 42 08 22 06 12 04 30 01 30 02", {}), R"({
  "field_1": 5,
  "ports": [
    {},
    {
      "phy": {
        "identity": {
          "field_6": [
            1,
            2
          ]
        }
      }
    }
  ]
}
)");
}

TEST(json_writer, escapes_what_json_or_a_terminal_would_obey)
{
    const struct {
        const char *text;
        const char *json;
    } cases[] = {
        {"\"\\/", R"("\"\\/")"},
        {"\b\f\n\r\t", R"("\b\f\n\r\t")"},
        {"\x1B[31m\x01\x7F", R"("\u001b[31m\u0001\u007f")"},
        {"\xC2\x80\xC2\x9B\xC2\x9F\xC2\xA0", "\"\\u0080\\u009b\\u009f\xC2\xA0\""},
        {"Z\xC3\xBCrich \xE2\x82\xAC \xF0\x9F\x98\x80",
         "\"Z\xC3\xBCrich \xE2\x82\xAC \xF0\x9F\x98\x80\""},
    };
    for (const auto &test_case : cases)
        EXPECT_EQ(json_of_text(test_case.text), test_case.json);
}

TEST(json_writer, replaces_each_byte_that_is_not_utf8)
{
    const std::string bad = "\xEF\xBF\xBD";
    const struct {
        const char *text;
        std::string json;
    } cases[] = {
        {"\xFF", bad},
        {"a\x80z", "a" + bad + "z"},
        {"\xE2\x82", bad + bad},
        {"\xE2\x82z", bad + bad + "z"},
        {"\xC0\xAF", bad + bad},
        {"\xED\xA0\x80", bad + bad + bad},
        {"\xF4\x90\x80\x80", bad + bad + bad + bad},
    };
    for (const auto &test_case : cases)
        EXPECT_EQ(json_of_text(test_case.text), "\"" + test_case.json + "\"");
}

TEST(json_writer, writes_null_for_a_text_or_list_without_a_pointer)
{
    EXPECT_EQ(json_of_text(nullptr), "null");
    const RecordType &type = *find_type("calv_eid_st");
    Record record(type, kTestLimit);
    record.editor().set_list(*type.member_of_name("field_6"), nullptr, 3);
    EXPECT_EQ(written(record.view()), "{\"field_6\":null}\n");
    record.editor().set_list(*type.member_of_name("field_6"), nullptr, 0);
    EXPECT_EQ(written(record.view()), "{\"field_6\":[]}\n");
}

// An array of three, rounded up, and a text.
constexpr size_t kMemoryForOneOfThree = (3 * sizeof(char *) + 7) / 8 * 8 + 8;

// What is shown of a message that decoding does not get to the end of.
std::string json_of_broken(std::string_view type, std::string_view digits,
                           size_t memory_limit = kTestLimit)
{
    const std::vector<uint8_t> message = from_hex(digits);
    Record record(*find_type(type), memory_limit);
    const int32_t result = record.decode(message);
    EXPECT_NE(result, WIRE_OK);
    return written(record.view(), kOneLine, explain(record, message, result).path);
}

TEST(json_writer, leaves_out_elements_that_decoding_has_not_reached)
{
    // The third of four ports breaks off in its list.
    EXPECT_EQ(json_of_broken("switch_info", "42 02 10 01 42 02 10 02 42 03 10 03 30 42 02 10 04"),
              "{\"ports\":[{\"field_2\":1},{\"field_2\":2},{\"field_2\":3}]}\n");
    // What is shown of the last one because decoding ended there is not shown of the others.
    EXPECT_EQ(json_of_broken("switch_info", "42 02 10 01 42 03 22 01 08"),
              "{\"ports\":[{\"field_2\":1},{\"phy\":{}}]}\n");
    // There was no memory for the second text.
    EXPECT_EQ(json_of_broken("fpd_cmp_to_file", "12 01 61 12 01 62 12 01 63", kMemoryForOneOfThree),
              "{\"field_2\":[\"a\"]}\n");
}

TEST(json_writer, shows_the_lists_in_which_decoding_ended_at_every_depth)
{
    EXPECT_EQ(json_of_broken("reg_info_rsp", "12 06 12 04 1a 02 08 07"
                                             "12 0e 12 04 1a 02 08 07 12 06 1a 02 08 ff 1a 00"
                                             "12 06 12 04 1a 02 08 09"),
              R"({"sections":[{"columns":[{"values":[{"field_1":7}]}]},)"
              R"({"columns":[{"values":[{"field_1":7}]},{"values":[{}]}]}]})"
              "\n");
}

TEST(json_writer, shows_such_lists_on_the_path_only)
{
    const std::vector<uint8_t> message = from_hex("42 02 10 01 42 02 10 ff");
    Record record(*find_type("switch_info"), kTestLimit);
    EXPECT_NE(record.decode(message), WIRE_OK);
    EXPECT_EQ(written(record.view()), "{}\n");
    const Member *other = record.type().member_of_name("identity");
    EXPECT_EQ(written(record.view(), kOneLine, {{other}}), "{}\n");
}

TEST(json_writer, shows_no_list_of_which_the_elements_were_not_even_counted)
{
    EXPECT_EQ(json_of_broken("switch_info", "08 05 42 02 10 01 42 7f"), "{\"field_1\":5}\n");
    EXPECT_EQ(json_of_broken("calv_eid_st", "08 05 30 01 30 02 30"), "{\"field_1\":5}\n");
}

TEST(json_writer, shows_a_complete_list_at_which_decoding_ended_when_it_came_again)
{
    EXPECT_EQ(json_of_broken("switch_info", "42 02 10 01 42 02 10 02 08 05 42 00"),
              "{\"field_1\":5,\"ports\":[{\"field_2\":1},{\"field_2\":2}]}\n");
}

TEST(json_writer, shows_the_embedded_record_in_which_decoding_ended)
{
    EXPECT_EQ(json_of_broken("port_info", "22 01 08"), "{\"phy\":{}}\n");
    EXPECT_EQ(json_of_broken("port_info", "22 04 12 02 08 ff"), "{\"phy\":{\"identity\":{}}}\n");
    // It was not begun: its length is longer than what is left.
    EXPECT_EQ(json_of_broken("port_info", "22 02 08"), "{}\n");
}

TEST(json_writer, tells_its_progress_in_the_outermost_lists)
{
    Record record(*find_type("calv_eid_st"), kTestLimit);
    const std::vector<uint32_t> numbers(5500);
    record.editor().set_list(*record.type().member_of_name("field_6"), numbers.data(), 5500);
    std::vector<double> told;
    write_json(
        record.view(), {}, {}, [](std::string_view) {}, [&](double done) { told.push_back(done); });
    ASSERT_EQ(told.size(), 5u);
    EXPECT_DOUBLE_EQ(told[0], 1000 / 5500.0);
    EXPECT_DOUBLE_EQ(told[4], 5000 / 5500.0);
}

TEST(json_writer, puts_out_long_records_in_pieces)
{
    constexpr size_t kMany = 100000;
    constexpr size_t kMostAtOnce = size_t{64} << 10;
    Record record(*find_type("add_pcl_flow"), kTestLimit);
    std::vector<uint8_t> bytes(kMany);
    std::iota(bytes.begin(), bytes.end(), uint8_t{0});
    record.editor().set_bytes(*record.type().member_of_name("field_3"), bytes.data(), kMany);
    for (const bool as_hex : {false, true}) {
        const JsonOptions options = {.bytes_as_hex = as_hex};
        std::string json;
        size_t largest = 0;
        write_json(record.view(), options, {}, [&](std::string_view piece) {
            json += piece;
            largest = std::max(largest, piece.size());
        });
        EXPECT_LT(largest, kMostAtOnce);
        EXPECT_EQ(read(record.type(), json, options).encode(), record.encode());
    }
}

} // namespace

} // namespace inspect
