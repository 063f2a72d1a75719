// SPDX-License-Identifier: MIT
// The contents that all record types are tried with: every type with none, some and all of its
// members, and with each member alone, in variants. The values depend on nothing but the case, so
// that they are the same on every target and in every run.

#pragma once

#include "tests/catalogue/content.hpp"

#include <string>
#include <vector>

namespace catalogue {

enum class Shape { none, some, all, alone };

// In eight variants every member meets all values of its row of special ones, such as 0, 127, 128
// and the largest; in the ninth numbers are arbitrary.
inline constexpr uint32_t kVariants = 9;

struct Case {
    const RecordType *type;
    Shape shape;
    uint32_t variant;
    size_t member; // the one that is there, when alone
};

std::vector<Case> all_cases();

// "<record type> <all, some, none or member>.<variant>"
std::string name_of(const Case &test_case);

Content content_of(const Case &test_case);

} // namespace catalogue
