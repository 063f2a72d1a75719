// SPDX-License-Identifier: MIT
// A record as an aligned tree: for reading, not for programs.

#pragma once

#include "tools/core/ink.hpp"
#include "tools/core/text.hpp"
#include "tools/core/verdict.hpp"

#include <vector>

namespace inspect {

// `stopped_at` as for write_json.
void write_tree(RecordView record, const Palette &palette, const std::vector<Step> &stopped_at,
                const Sink &sink, const Progress &progress = {});

} // namespace inspect
