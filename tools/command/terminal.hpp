// SPDX-License-Identifier: MIT
// What stands behind standard output and standard error.

#pragma once

#include "tools/command/arguments.hpp"

namespace inspect::command {

bool output_is_terminal();
// Whether a line on standard error is seen by somebody whose view of the output it does not spoil.
bool progress_is_seen();
bool use_colours(When when);

} // namespace inspect::command
