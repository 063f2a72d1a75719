// SPDX-License-Identifier: MIT
// Whether a message is as this library would write it, and whether JSON can say what it says.

#pragma once

#include "tools/core/record.hpp"
#include "tools/core/verdict.hpp"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace inspect {

struct Finding {
    std::optional<uint32_t> offset; // in the message, where it is about bytes
    std::string path;               // empty: of the message itself
    std::string text;               // without a full stop
};

struct Check {
    Verdict verdict;
    bool is_canonical = false; // encoding gives the same bytes again
    bool fits_json = false;    // JSON gives the same record again
    std::vector<Finding> findings;
};

// What a record holds and JSON cannot: a string that is flagged and null, or not UTF-8; a bool
// above 1.
std::vector<Finding> beyond_json(RecordView record);

Check check(const RecordType &type, Bytes message, size_t memory_limit);

} // namespace inspect
