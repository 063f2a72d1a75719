// SPDX-License-Identifier: MIT
// Two records of one type, field by field.

#pragma once

#include "tools/core/ink.hpp"
#include "tools/core/text.hpp"

#include <cstddef>

namespace inspect {

// A line for each member that differs or that only one of them has. Returns how many there are.
size_t write_diff(RecordView before, RecordView after, const Palette &palette, const Sink &sink);

} // namespace inspect
