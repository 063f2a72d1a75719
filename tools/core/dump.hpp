// SPDX-License-Identifier: MIT
// A message as annotated hex: a line for each tag, length and value.

#pragma once

#include "tools/core/ink.hpp"
#include "tools/core/text.hpp"
#include "tools/core/verdict.hpp"

namespace inspect {

struct DumpOptions {
    Palette palette{false};
    bool all_bytes = false; // also of long strings and byte strings, which are else cut short
    size_t memory_limit = SIZE_MAX;
};

// Decodes with the library, and shows the bytes under its verdict, which is returned.
Verdict write_dump(const RecordType &type, Bytes message, const DumpOptions &options,
                   const Sink &sink, const Progress &progress = {});

} // namespace inspect
