// SPDX-License-Identifier: MIT
// The texts that parse_input takes, with a reader for each, and what tells them apart. The readers
// append to `out`, and throw Error.

#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace inspect {

// An even number of digits.
void append_hex(std::string_view digits, std::vector<uint8_t> &out);

void read_hex(std::string_view input, std::vector<uint8_t> &out);
void read_base64(std::string_view input, std::vector<uint8_t> &out);
void read_dump(std::string_view input, std::vector<uint8_t> &out);
void read_c_array(std::string_view input, std::vector<uint8_t> &out);

// Whether the first line is one of a dump, and of nothing else.
bool begins_like_dump(std::string_view input);
// Whether it is a dump as a whole, and no groups of hex digits, of which the first may look like
// an offset.
bool is_dump(std::string_view input);
// Whether it is the content of an array as a whole, and no other text that happens to have quotes
// or a number.
bool is_c_array(std::string_view input);
// Whether it begins with the declaration of an array.
bool begins_like_c_array(std::string_view input);

} // namespace inspect
