// SPDX-License-Identifier: MIT
// Whether a message is as this library would write it, and whether JSON can say what it says.

#pragma once

#include "tools/core/record.hpp"
#include "tools/core/verdict.hpp"

#include <cstdint>
#include <string>
#include <vector>

namespace inspect {

struct Finding {
    uint32_t offset;
    std::string path; // empty: of the message itself
    std::string text; // a sentence without a full stop
};

struct Check {
    Verdict verdict;
    bool is_canonical = false; // encoding gives the same bytes again
    bool fits_json = false;    // JSON gives the same bytes again
    std::vector<Finding> findings;
};

Check check(const RecordType &type, Bytes message, size_t memory_limit);

} // namespace inspect
