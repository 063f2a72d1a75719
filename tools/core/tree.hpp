// SPDX-License-Identifier: MIT
// A record as an aligned tree: for reading, not for programs.

#pragma once

#include "tools/core/ink.hpp"
#include "tools/core/text.hpp"
#include "tools/core/verdict.hpp"

#include <vector>

namespace inspect {

// A line for each member that encoding would write, under that of the record that holds it; values
// and kinds stand in columns. Long texts and lists of numbers go on in lines of their own; of long
// byte strings the beginning is shown. `stopped_at` as for write_json: there a line says that
// decoding stopped.
void write_tree(RecordView record, const Palette &palette, const std::vector<Step> &stopped_at,
                const Sink &sink, const Progress &progress = {});

} // namespace inspect
