// SPDX-License-Identifier: MIT
// Options and arguments that several verbs have.

#pragma once

#include "tools/command/arguments.hpp"
#include "tools/command/choice.hpp"

namespace inspect::command {

void add_colour(CLI::App &app, Settings &settings);
void add_memory_limit(CLI::App &app, Settings &settings);

// A positional argument, of which the help shows nothing but name and description.
CLI::Option *add_argument(CLI::App &app, const std::string &name, std::string &to,
                          const std::string &description);
void add_type(CLI::App &verb, std::string &type);

void add_input_format(CLI::App &verb, std::optional<InputFormat> &format);
void add_framing(CLI::App &verb, Framing &framing);
// FILE, and how to read it.
void add_source(CLI::App &verb, Source &source);
void add_bytes(CLI::App &verb, JsonOptions &options);

} // namespace inspect::command
