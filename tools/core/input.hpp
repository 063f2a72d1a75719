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
    hex,    // digits, with or without blanks, commas, colons, 0x, \x
    xxd,    // with offsets, as xxd, hexdump and od print it; with a column of characters or without
    base64, // with either alphabet, with or without padding
    c_array, // what stands between the braces of a C array, or a whole declaration
};

// Which format it looks like. Where it could be several:
//   - Texts go before raw bytes, though a message may happen to be printable: only where nothing
//     else than a text makes sense is an input wrong rather than raw. So hex and base64 win when
//     the whole input is hex or base64; a dump whose first line has an offset and a colon or a
//     column between bars, and a C array with its declaration, win at once; and digits alone are
//     hex even when one is missing.
//   - Hex goes before base64: "abcd" is two bytes. Base64 has four characters at least.
//   - Numbers with commas are hex, too, unless one of them cannot be: in "8, 16, 200" all are
//     decimal, as in C, because an 8 alone and a 200 are no bytes in hex.
//   - A lone digit, and blanks, are raw, as they may well be a message. A lone line break is the
//     hex of no bytes.
//   - A group of digits at the begin of a line is an offset when it counts the bytes before it.
// What has a byte that no text has is raw, and nothing behind that byte is looked at.
InputFormat recognise(std::string_view input);

// The bytes that it says. They are in `storage`, or, when raw, where they are in `input`. Throws
// Error, with line and column, on what the format does not have.
//
// A dump may begin at any offset, but no line may be missing from it. Its lines of * are expanded,
// to 64 MiB in all. Offsets may be decimal or octal. Groups of four digits and more are words with
// the low byte first, unless a colon is behind the offset: so print hexdump and od them, while xxd
// prints them in the order of the bytes. (With its option -e it does not, which nothing tells.)
Bytes parse_input(std::string_view input, InputFormat format, std::vector<uint8_t> &storage);

} // namespace inspect
