// SPDX-License-Identifier: MIT
// Bytes as texts to paste elsewhere, and gather lists.

#pragma once

#include "tools/core/text.hpp"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace inspect {

enum class OutputFormat { raw, hex, c_array };

// With a line break at the end, but for raw. `name` is that of the C array.
void write_bytes(Bytes bytes, OutputFormat format, std::string_view name, const Sink &sink);

// An encoding together with the list of its pieces, as the library reports them.
struct Gathered {
    std::vector<uint8_t> buffer;
    std::vector<WireSegment> segments;
};

// With `in_place` byte strings stay in the record, and are pieces of their own.
Gathered gather(const Record &record, bool in_place);

// One line for each piece: where it is (buffer offset, or "in place"), its length, its bytes.
void write_segments(const Gathered &gathered, const Sink &sink);

} // namespace inspect
