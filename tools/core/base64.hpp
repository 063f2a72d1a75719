// SPDX-License-Identifier: MIT
// Bytes as base64 and back.

#pragma once

#include "tools/core/record.hpp"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace inspect {

// In the standard alphabet, with padding. Pieces whose sizes are multiples of three may be appended
// one after another.
void append_base64(std::string &text, Bytes bytes);

// In either alphabet, with all padding or none. Nothing where the text is not base64, or says bits
// beyond its last byte.
std::optional<std::vector<uint8_t>> bytes_of_base64(std::string_view text);

} // namespace inspect
