// SPDX-License-Identifier: MIT
// Messages in tests, as digits.

#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace inspect {

// "08 05 1a": blanks may be anywhere between bytes.
inline std::vector<uint8_t> from_hex(std::string_view digits)
{
    std::vector<uint8_t> bytes;
    std::string pair;
    for (const char c : digits) {
        if (c == ' ')
            continue;
        pair += c;
        if (pair.size() < 2)
            continue;
        bytes.push_back(static_cast<uint8_t>(std::stoul(pair, nullptr, 16)));
        pair.clear();
    }
    return bytes;
}

} // namespace inspect
