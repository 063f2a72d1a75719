// SPDX-License-Identifier: MIT
// Every 32-bit number through an exported decoder into a number and a truth value, 64-bit numbers
// into one of their width, and all back through the encoders.
#include "ethsw_mgmt/integrity.h"
#include "ethsw_mgmt/switch.h"
#include "tests/exhaustive/check.hpp"
#include "tests/exhaustive/varint_reference.hpp"

#include <cstring>

namespace exhaustive {

namespace {

struct Message {
    uint8_t bytes[32];
    uint32_t size = 0;

    void put(uint8_t tag, const Varint &value)
    {
        bytes[size] = tag;
        memcpy(bytes + size + 1, value.bytes, sizeof value.bytes);
        size += 1 + value.size;
    }
};

using Enable = tarn_ethsw_mgmt_port_enable; // 1 a number, 2 a truth value
using Faults = tarn_faults_stats_info;      // 2 is 64 bits wide

const char *check_truth(uint32_t value)
{
    const Varint varint = varint32(value);
    Message message;
    message.put(0x08, varint);
    message.put(0x10, varint);
    Enable record;
    if (tarn_ethsw_mgmt_port_enable_decode_ext(&record, message.bytes, message.size, nullptr,
                                               nullptr, 0) != WIRE_OK)
        return "the result";
    if (!record.has_port || record.port != value)
        return "the number";
    if (!record.has_enable || record.enable != (value ? 1 : 0))
        return "the truth value";
    Message expected;
    expected.put(0x08, varint);
    expected.put(0x10, {1, {static_cast<uint8_t>(value ? 1 : 0)}});
    uint8_t encoded[sizeof expected.bytes];
    if (tarn_ethsw_mgmt_port_enable_encode_ext(&record, encoded, sizeof encoded, nullptr, nullptr,
                                               0) != expected.size)
        return "the size when it is encoded";
    return memcmp(encoded, expected.bytes, expected.size) == 0 ? nullptr : "the encoding";
}

// A 32-bit member takes the lower half of such a number.
const char *check_wide(uint64_t wide)
{
    const auto value = static_cast<uint32_t>(wide);
    Message message;
    message.put(0x08, varint64(wide));
    message.put(0x10, varint64(wide));
    Faults record;
    if (tarn_faults_stats_info_decode_ext(&record, message.bytes, message.size, nullptr, nullptr,
                                          0) != WIRE_OK)
        return "the result";
    if (!record.has_field_1 || record.field_1 != value)
        return "the lower half";
    if (!record.has_field_2 || record.field_2 != wide)
        return "the 64-bit number";
    Message expected;
    expected.put(0x08, varint32(value));
    expected.put(0x10, varint64(wide));
    uint8_t encoded[sizeof expected.bytes];
    if (tarn_faults_stats_info_encode_ext(&record, encoded, sizeof encoded, nullptr, nullptr, 0) !=
        expected.size)
        return "the size when it is encoded";
    return memcmp(encoded, expected.bytes, expected.size) == 0 ? nullptr : "the encoding";
}

} // namespace

std::vector<Check> number_checks()
{
    return {
        for_all_32_bit_values("numbers and truth values, decoded and encoded", check_truth),
        for_64_bit_windows("64-bit numbers (as above) and their lower halves, decoded and encoded",
                           check_wide),
    };
}

} // namespace exhaustive
