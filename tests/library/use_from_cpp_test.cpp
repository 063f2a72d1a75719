// SPDX-License-Identifier: MIT
// Records cross between C and C++ callers, and types without fields need no record.
#include "tests/library/use_from_c.h"

#include <array>
#include <gtest/gtest.h>

TEST(use_from_c_and_cpp, a_record_written_in_c_is_read_in_cpp)
{
    std::array<uint8_t, 8> buffer{};
    ASSERT_EQ(encode_port_reset_in_c(300, buffer.data(), buffer.size()), 3u);
    tarn_ethsw_mgmt_port_reset request;
    ASSERT_EQ(
        tarn_ethsw_mgmt_port_reset_decode_ext(&request, buffer.data(), 3, nullptr, nullptr, 0),
        WIRE_OK);
    EXPECT_EQ(request.port, 300u);
    EXPECT_TRUE(request.has_port);
}

TEST(use_from_c_and_cpp, a_record_written_in_cpp_is_read_in_c)
{
    tarn_ethsw_mgmt_port_reset request = {};
    request.port = 7;
    request.has_port = 1;
    std::array<uint8_t, 2> buffer{};
    ASSERT_EQ(tarn_ethsw_mgmt_port_reset_encode_ext(&request, buffer.data(), buffer.size(), nullptr,
                                                    nullptr, 0),
              2u);
    uint32_t port = 0;
    EXPECT_EQ(decode_port_reset_in_c(buffer.data(), 2, &port), WIRE_OK);
    EXPECT_EQ(port, 7u);
}

TEST(use_from_c_and_cpp, a_type_without_fields_needs_no_record)
{
    const std::array<uint8_t, 2> unknown_field{0x08, 0x01};
    EXPECT_EQ(tarn_ethsw_mgmt_get_switch_info_encode_ext(nullptr, nullptr, 0, nullptr, nullptr, 0),
              0u);
    EXPECT_EQ(tarn_ethsw_mgmt_get_switch_info_decode_ext(nullptr, unknown_field.data(), 2, nullptr,
                                                         nullptr, 0),
              WIRE_OK);
    EXPECT_EQ(tarn_ethsw_mgmt_get_switch_info_duplicate(nullptr, nullptr, nullptr, nullptr),
              WIRE_OK);
    tarn_ethsw_mgmt_get_switch_info_free_ext(nullptr, nullptr, nullptr, 0);
}
