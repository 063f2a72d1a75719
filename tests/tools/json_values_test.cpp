// SPDX-License-Identifier: MIT
// Numbers and bytes in JSON: which are read, and what is said about others.
#include "tests/tools/hex_bytes.hpp"
#include "tests/tools/json_support.hpp"

#include <gtest/gtest.h>

namespace inspect {

namespace {

TEST(json_values, takes_numbers_in_every_form_that_is_exact)
{
    expect_read({
        {"port_reset", R"({"port":1.0})", "08 01"},
        {"port_reset", R"({"port":1e3})", "08 e8 07"},
        {"port_reset", R"({"port":1E+3})", "08 e8 07"},
        {"port_reset", R"({"port":0.25e2})", "08 19"},
        {"port_reset", R"({"port":4294967295.000})", "08 ff ff ff ff 0f"},
        {"port_reset", R"({"port":42949672950e-1})", "08 ff ff ff ff 0f"},
        {"port_reset", R"({"port":-0})", "08 00"},
        {"port_reset", R"({"port":-0.0e7})", "08 00"},
        {"port_reset", R"({"port":0e99999999999999999999})", "08 00"},
        {"port_reset", R"({"port":"7"})", "08 07"},
        {"port_reset", R"({"port":"7.0"})", "08 07"},
        {"timespec", R"({"field_1":18446744073709551615.0})", "08 ff ff ff ff ff ff ff ff ff 01"},
        {"timespec", R"({"field_1":1844674407370955161.5e1})", "08 ff ff ff ff ff ff ff ff ff 01"},
        {"timespec", R"({"field_1":9007199254740993})", "08 81 80 80 80 80 80 80 10"},
    });
}

TEST(json_values, refuses_numbers_that_the_member_cannot_hold)
{
    expect_refused({
        {"port_reset", R"({"port":70000000000})", "port: 70000000000 does not fit in uint32"},
        {"port_reset", R"({"port":4294967296})", "port: 4294967296 does not fit in uint32"},
        {"port_reset", R"({"port":"4294967296"})", "port: \"4294967296\" does not fit in uint32"},
        {"port_reset", R"({"port":1e10})", "port: 1e10 does not fit in uint32"},
        {"port_reset", R"({"port":1e999})", "port: 1e999 does not fit in uint32"},
        {"port_reset", R"({"port":1e999999999999999999999})",
         "port: 1e999999999999999999999 does not fit in uint32"},
        {"timespec", R"({"field_1":18446744073709551616})",
         "field_1: 18446744073709551616 does not fit in uint64"},
        {"timespec", R"({"field_1":"18446744073709551616"})",
         "field_1: \"18446744073709551616\" does not fit in uint64"},
        {"timespec", R"({"field_1":1e20})", "field_1: 1e20 does not fit in uint64"},
        {"port_reset", R"({"port":-1})", "port: -1 is negative"},
        {"port_reset", R"({"port":-1e999})", "port: -1e999 is negative"},
        {"port_reset", R"({"port":"-1"})", "port: \"-1\" is negative"},
        {"port_reset", R"({"port":1.5})", "port: 1.5 is not a whole number"},
        {"port_reset", R"({"port":15e-1})", "port: 15e-1 is not a whole number"},
        {"port_reset", R"({"port":1e-999999999999999999999})",
         "port: 1e-999999999999999999999 is not a whole number"},
        {"timespec", R"({"field_1":18446744073709551614.5})",
         "field_1: 18446744073709551614.5 is not a whole number"},
        {"port_reset", R"({"port":""})", "port: \"\" is not a number"},
        {"port_reset", R"({"port":"x"})", "port: \"x\" is not a number"},
        {"port_reset", R"({"port":" 1"})", "port: \" 1\" is not a number"},
        {"port_reset", R"({"port":"1 "})", "port: \"1 \" is not a number"},
        {"port_reset", R"({"port":"+1"})", "port: \"+1\" is not a number"},
        {"port_reset", R"({"port":"01"})", "port: \"01\" is not a number"},
        {"port_reset", R"({"port":"1."})", "port: \"1.\" is not a number"},
        {"port_reset", R"({"port":".5"})", "port: \".5\" is not a number"},
        {"port_reset", R"({"port":"1e"})", "port: \"1e\" is not a number"},
        {"port_reset", R"({"port":"0x10"})", "port: \"0x10\" is not a number"},
        {"port_reset", R"({"port":"NaN"})", "port: \"NaN\" is not a number"},
    });
}

TEST(json_values, shows_long_values_in_part)
{
    const std::string digits(100, '7');
    EXPECT_EQ(error_of("port_reset", "{\"port\":" + digits + "}"),
              "port: " + digits.substr(0, 40) + "... does not fit in uint32");
    EXPECT_EQ(error_of("port_reset", "{\"port\":\"" + digits + "\"}"),
              "port: \"" + digits.substr(0, 40) + "\"... does not fit in uint32");
    EXPECT_EQ(error_of("port_reset", "{\"" + digits + "\":1}"),
              "no member \"" + digits.substr(0, 40) + "\"...");
}

TEST(json_values, reads_bytes_in_both_alphabets_with_or_without_padding)
{
    expect_read({
        {"add_pcl_flow", R"({"field_3":"/w=="})", "1a 01 ff"},
        {"add_pcl_flow", R"({"field_3":"/w"})", "1a 01 ff"},
        {"add_pcl_flow", R"({"field_3":"_w"})", "1a 01 ff"},
        {"add_pcl_flow", R"({"field_3":"/+4="})", "1a 02 ff ee"},
        {"add_pcl_flow", R"({"field_3":"_-4"})", "1a 02 ff ee"},
        {"add_pcl_flow", R"({"field_3":"AAAA"})", "1a 03 00 00 00"},
    });
}

TEST(json_values, refuses_what_is_not_base64)
{
    for (const std::string digits : {"A", "AAAAA", "=", "==", "====", "A===", "AA=", "AAA==",
                                     "AA=A", "AA A", "AA$A", "AB==", "AAB=", "AB", "AAAA===="})
        EXPECT_EQ(error_of("add_pcl_flow", "{\"field_3\":\"" + digits + "\"}"),
                  "field_3: \"" + digits + "\" is not base64");
}

TEST(json_values, reads_bytes_as_hex_when_told_so)
{
    expect_read(
        {
            {"add_pcl_flow", R"({"field_3":""})", "1a 00"},
            {"add_pcl_flow", R"({"field_3":"0fEe"})", "1a 02 0f ee"},
        },
        {.bytes_as_hex = true});
    for (const std::string digits : {"0", "0g", "g0", "0f ee", "0x0f", "/w==", "@0"})
        EXPECT_EQ(
            error_of("add_pcl_flow", "{\"field_3\":\"" + digits + "\"}", {.bytes_as_hex = true}),
            "field_3: \"" + digits + "\" is not hex");
}

} // namespace

} // namespace inspect
