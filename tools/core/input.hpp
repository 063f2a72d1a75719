// SPDX-License-Identifier: MIT
// Bytes as people have them: raw, or as one of the texts that tools print and editors hold.

#pragma once

#include "tools/core/record.hpp"

#include <cstdint>
#include <string_view>
#include <vector>

namespace inspect {

enum class InputFormat {
    raw,
    hex,     // digits, with or without blanks, commas, colons, 0x
    xxd,     // with offsets and a column of characters, as xxd and hexdump -C print it
    base64,  // with either alphabet, with or without padding
    c_array, // what stands between the braces of a C array, or a whole declaration
};

// Which format it looks like. A text that could be a message as it stands, too, is taken for the
// text; what is no text is raw.
InputFormat recognise(std::string_view input);

// The bytes that it says. They are in `storage`, or, when raw, where they are in `input`. Throws
// Error, with line and column, on what the format does not have.
Bytes parse_input(std::string_view input, InputFormat format, std::vector<uint8_t> &storage);

} // namespace inspect
