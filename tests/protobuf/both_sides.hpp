// SPDX-License-Identifier: MIT
// The same bytes read by both libraries, and what each has read written down in the same way: as
// Protocol Buffers text, such as `field_1: 5 name: "a"`.

#pragma once

#include "tests/catalogue/referee.hpp"
#include "tests/catalogue/typed.hpp"

#include <string>

namespace protobuf {

using catalogue::Bytes;

// Types are named without their prefix: "switch_info".
const catalogue::RecordType &type_named(const std::string &name);
catalogue::Referee &referee();

// What the other library reads: the message as text, or "refused".
std::string theirs(const std::string &type, const Bytes &input);

// What this library reads: the record as text, or "malformed", "wire type", "type mismatch" or "no
// memory".
std::string ours(const std::string &type, const Bytes &input);

// What the other library writes of a message that is given as text.
Bytes written_by_them(const std::string &type, const std::string &text);

// The name of a result other than WIRE_OK.
std::string name_of(int32_t result);

// A decoded record as text. What it holds has to be sound.
std::string text_of(const catalogue::RecordType &type, const void *record);

} // namespace protobuf
