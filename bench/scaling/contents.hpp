// SPDX-License-Identifier: MIT
// Records that are alike but for one thing: how long their encodings are, or how deep they are
// nested.

#pragma once

#include "bench/workloads.hpp"

namespace bench {

// Tables of forwarding entries whose encodings have about this size; several when they are short.
// They differ, but repeat themselves after 4096 entries.
Workload make_tables(uint32_t size);

// The leaves: numbers, three in each of the records that are nested.
inline constexpr uint32_t kLeafRecords = 4096;
inline constexpr uint32_t kLeaves = 3 * kLeafRecords;
inline constexpr uint32_t kMostLevels = 4;

// The same leaves at this many levels of records, with nothing else in them: 4096 records of their
// own; a list of 4096; 64 lists of 64; 16 lists of 16 lists of 16.
Workload make_nested(uint32_t levels);

} // namespace bench
