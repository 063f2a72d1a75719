// SPDX-License-Identifier: MIT
// Records as JSON and back, in the ProtoJSON mapping: 64-bit numbers as strings, byte strings in
// base64; members by their names in the schema.

#pragma once

#include "tools/core/text.hpp"
#include "tools/core/verdict.hpp"

#include <string_view>
#include <vector>

namespace inspect {

struct JsonOptions {
    bool bytes_as_hex = false;
    bool u64_as_number = false;
    bool one_line = false; // as a line of NDJSON needs it
};

// Writes what encoding would write of the record, with a line break at the end. `stopped_at` is the
// path at which decoding ended early, and empty when it did not: elements of lists behind it were
// never reached and are left out; what decoding had stored without having set its flag is shown.
void write_json(RecordView record, const JsonOptions &options, const std::vector<Step> &stopped_at,
                const Sink &sink, const Progress &progress = {});

// Fills a record that holds nothing yet. Members may have their names in the schema or in
// lowerCamelCase; null leaves a member out; numbers may be strings. Throws Error with the path and
// what is wrong: a key that the type does not have (and the nearest that it has), one that comes
// twice, a value of the wrong kind or out of range, a text that C cannot hold, what is not JSON,
// what stands behind the value, or more than the record's memory limit.
void read_json(std::string_view json, const JsonOptions &options, Record &record);

} // namespace inspect
