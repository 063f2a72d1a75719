// SPDX-License-Identifier: MIT
// What can stand behind each verb in the command line.

#pragma once

#include "tools/command/arguments.hpp"

namespace CLI {
class App;
} // namespace CLI

namespace inspect::command {

// The verb that is named in the command line puts its arguments into `line`.
void add_verbs(CLI::App &app, CommandLine &line);

} // namespace inspect::command
