// SPDX-License-Identifier: MIT
// Fields as they stand on the wire, put together by number and wire type.

#pragma once

#include "tests/catalogue/catalogue.hpp"
#include "tests/support/bytes.hpp"

namespace catalogue {

inline test::Bytes varint(uint64_t value)
{
    test::Bytes out;
    for (; value > 127; value >>= 7)
        out.push_back(static_cast<uint8_t>(value | 0x80));
    out.push_back(static_cast<uint8_t>(value));
    return out;
}

inline test::Bytes tag(uint32_t number, uint32_t wire_type)
{
    return varint(uint64_t{number} << 3 | wire_type);
}

// The wire type that a member of this kind has.
inline uint32_t wire_type_of(Kind kind)
{
    return is_scalar(kind) || kind == Kind::repeated_uint32 ? 0 : 2;
}

// A field of any of the wire types that have a payload: the number 1, zeros, or an empty string.
inline test::Bytes field(uint32_t number, uint32_t wire_type)
{
    switch (wire_type) {
    case 0:
        return test::join({tag(number, 0), {1}});
    case 1:
        return test::join({tag(number, 1), test::Bytes(8)});
    case 2:
        return test::join({tag(number, 2), {0}});
    default:
        return test::join({tag(number, 5), test::Bytes(4)});
    }
}

// One occurrence of a member.
inline test::Bytes field(const Member &member)
{
    return field(member.number, wire_type_of(member.kind));
}

} // namespace catalogue
