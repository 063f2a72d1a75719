// SPDX-License-Identifier: MIT
// A few records, and their encodings, that the tests of the C++ headers share.

#pragma once

#include "cxx/diagnostics.hpp"
#include "cxx/forwarding.hpp"
#include "cxx/hardware.hpp"
#include "cxx/switch.hpp"
#include "tests/support/bytes.hpp"

#include <string>

namespace samples {

using test::Bytes;

// Numbers only.
using Numbers = tarn_ethsw_mgmt_port_enable;
inline const Bytes kNumbers = {0x08, 3, 0x10, 1};

inline Numbers numbers()
{
    Numbers record = {};
    record.port = 3;
    record.has_port = 1;
    record.enable = 1;
    record.has_enable = 1;
    return record;
}

// One text: one block.
using Text = tarn_ethsw_mgmt_bcm_shell_cmd;
inline const Bytes kText = {0x0A, 5, 'p', 'o', 'r', 't', 's'};

// `text` has to outlive the record.
inline Text text(const std::string &text)
{
    Text record = {};
    record.command = text.c_str();
    record.has_command = 1;
    return record;
}

// A byte string between numbers, and a text: two blocks.
using Details = tarn_ethsw_mgmt_bridge_sec_breach_details;
inline const Bytes kDetails = {0x08, 5, 0x1A, 4, 0xDE, 0xAD, 0xBE, 0xEF, 0x20, 1, 0x2A, 1, 'x'};
inline constexpr uint8_t kPayload[] = {0xDE, 0xAD, 0xBE, 0xEF};

inline Details details()
{
    Details record = {};
    record.field_1 = 5;
    record.has_field_1 = 1;
    record.field_3 = kPayload;
    record.field_3_length = sizeof kPayload;
    record.has_field_3 = 1;
    record.field_4 = 1;
    record.has_field_4 = 1;
    record.field_5 = "x";
    record.has_field_5 = 1;
    return record;
}

// A list of records: one block.
using Summary = tarn_ethsw_mgmt_sfp_summary_response;
inline const Bytes kSummary = {0x08, 3, 0x12, 2, 0x08, 1, 0x12, 2, 0x08, 2};

using Fieldless = tarn_ethsw_mgmt_get_switch_info;

} // namespace samples
