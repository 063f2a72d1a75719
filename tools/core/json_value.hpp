// SPDX-License-Identifier: MIT
// Values that JSON says in a text: numbers, exactly, and bytes.

#pragma once

#include "tools/core/schema.hpp"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace inspect {

struct WholeNumber {
    uint64_t value = 0;
    std::string problem; // "is negative", ...; empty when there is none
};

// Of a number as JSON writes it: 1.0 and 1e3 are whole, too, however long they are. The kind is
// uint32 or uint64.
WholeNumber whole_number(std::string_view text, Kind kind);

// Two digits for each byte, and nothing else.
std::optional<std::vector<uint8_t>> bytes_of_hex(std::string_view text);

} // namespace inspect
