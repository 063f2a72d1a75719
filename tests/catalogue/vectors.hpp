// SPDX-License-Identifier: MIT
// The file of encodings made by another Protocol Buffers library, for targets that do not have one:
// which cases are in it, and how it is written down.

#pragma once

#include "tests/catalogue/cases.hpp"
#include "tests/support/bytes.hpp"

#include <string>
#include <vector>

namespace catalogue {

// The cases whose encodings are in the file, in that order: some and all members of every type in
// a few variants, and every member alone in one.
std::vector<Case> vector_cases();

std::string vectors_path();

// What the file says above its lines.
std::string vectors_heading();

std::string vector_line(const Case &test_case, const test::Bytes &encoding);

// The bytes at the end of a line.
test::Bytes bytes_in(const std::string &line);

} // namespace catalogue
