// SPDX-License-Identifier: MIT
// Every length of an unknown field, also those that lead backwards, and every wire type.
#include "tests/exhaustive/check.hpp"
#include "tests/exhaustive/varint_reference.hpp"
#include "wire/varint.hpp"

using namespace tarn;

namespace exhaustive {

namespace {

constexpr uint32_t kFarPosition = 1000;

const char *check_length(uint32_t length)
{
    static thread_local uint8_t buffer[kFarPosition + 8];
    const Varint varint = varint32(length);
    for (uint32_t start : {0u, kFarPosition}) {
        memcpy(buffer + start, varint.bytes, 5);
        uint32_t position = start;
        if (wire_skip_field(2, &position, buffer, start + varint.size - 1) != WIRE_ERR_MALFORMED ||
            position != start)
            return "a length that is cut short";
        if (wire_skip_field(2, &position, buffer, start + varint.size) != WIRE_OK)
            return "the result";
        const uint64_t end = uint64_t{start} + varint.size + length;
        if (position != end % 4294967296)
            return "the position";
    }
    return nullptr;
}

// The four that can be skipped are 0, 1, 2 and 5; no field has to be there for 1 and 5.
const char *check_wire_type(uint32_t wire_type)
{
    constexpr uint8_t kField[] = {0x83, 0x01, 0xFF};
    uint32_t position = 0;
    const int32_t result = wire_skip_field(wire_type, &position, kField, sizeof kField);
    if (result != (wire_type <= 2 || wire_type == 5 ? WIRE_OK : WIRE_ERR_WIRE_TYPE))
        return "the result";
    uint32_t expected = 0;
    if (wire_type == 0)
        expected = 2;
    else if (wire_type == 1)
        expected = 8;
    else if (wire_type == 2)
        expected = 2 + 131;
    else if (wire_type == 5)
        expected = 4;
    return position == expected ? nullptr : "the position";
}

// From every position, the last ones too, where adding wraps around.
const char *check_fixed(uint32_t start)
{
    for (uint32_t wire_type : {1u, 5u}) {
        uint32_t position = start;
        if (wire_skip_field(wire_type, &position, nullptr, 0) != WIRE_OK)
            return "the result";
        if (position != (uint64_t{start} + (wire_type == 1 ? 8 : 4)) % 4294967296)
            return "the position";
    }
    return nullptr;
}

} // namespace

std::vector<Check> skip_checks()
{
    return {
        for_all_32_bit_values("lengths of a skipped field, from two positions", check_length),
        for_all_32_bit_values("wire types of a skipped field", check_wire_type),
        for_all_32_bit_values("positions of a skipped field of fixed width", check_fixed),
    };
}

} // namespace exhaustive
