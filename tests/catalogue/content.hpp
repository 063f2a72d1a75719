// SPDX-License-Identifier: MIT
// What a record says, apart from how it lies in memory: the same content can be put into a C
// structure, into a message of another Protocol Buffers library, and held against what was decoded.

#pragma once

#include "tests/catalogue/catalogue.hpp"

#include <optional>
#include <string>
#include <vector>

namespace catalogue {

struct Content;

// The value of one member. Which part of it counts depends on the member's kind.
struct Value {
    uint64_t number = 0; // of uint32, uint64, boolean
    std::string text;    // of string, bytes
    std::vector<uint32_t> numbers;
    std::vector<std::string> texts;
    std::vector<Content> records; // one, for an embedded record
};

// One value for every member of the type; those that are absent have none.
struct Content {
    const RecordType *type;
    std::vector<std::optional<Value>> values;
};

// A type of which no member is there, to which values are added.
Content empty_content(const RecordType &type);
Value number_value(uint64_t number);

// False of what encodes to nothing: no member is there, or only lists without elements.
bool writes_something(const Content &content);

// Whether the member is on the wire: an empty list is not.
bool is_on_wire(const Member &member, const std::optional<Value> &value);

} // namespace catalogue
