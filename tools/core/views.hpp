// SPDX-License-Identifier: MIT
// The catalogue for people: what types there are, what a type looks like, who answers whom.

#pragma once

#include "tools/core/ink.hpp"
#include "tools/core/text.hpp"

#include <string_view>

namespace inspect {

// A line for each type of this library that the pattern fits (pattern.hpp), below a heading: its
// short name, members, sizes, role and what it is. Returns how many there are.
size_t write_list(std::string_view pattern, const Palette &palette, const Sink &sink);

// The short names of all types of this library, one a line.
void write_names(const Sink &sink);

// Members with numbers, kinds, offsets and comments; sizes; who embeds it; what it answers or is
// answered by; its C declaration.
void write_type(const RecordType &type, const Palette &palette, const Sink &sink);

// Requests and their answers, and what is neither.
void write_pairs(const Palette &palette, const Sink &sink);

// A complete .proto file: with what the type embeds, or with all types when it is null.
void write_schema(const RecordType *type, const Sink &sink);

// What a type is to others: "request", "answer", "part" of other records, or nothing of these.
std::string_view role(const RecordType &type);

// The comment with the names of types as they are short.
std::string short_comment(std::string_view comment);

} // namespace inspect
