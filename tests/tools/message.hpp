// SPDX-License-Identifier: MIT
// Messages in tests, put together field by field.

#pragma once

#include "tools/core/record.hpp"

#include <cstdint>
#include <string>

namespace inspect {

inline std::string varint(uint64_t value)
{
    std::string bytes;
    for (; value >= 0x80; value >>= 7)
        bytes += static_cast<char>(0x80 | (value & 0x7F));
    return bytes + static_cast<char>(value);
}

// A field that is a number.
inline std::string number(uint32_t field, uint64_t value)
{
    return varint(uint64_t{field} << 3) + varint(value);
}

// A field that has a length: a text, bytes, or what another message has.
inline std::string piece(uint32_t field, const std::string &content)
{
    return varint(uint64_t{field} << 3 | 2) + varint(content.size()) + content;
}

inline std::string repeated(size_t count, const std::string &text)
{
    std::string all;
    for (size_t i = 0; i < count; i++)
        all += text;
    return all;
}

inline Bytes bytes_of(std::string_view text)
{
    return {reinterpret_cast<const uint8_t *>(text.data()), text.size()};
}

} // namespace inspect
