// SPDX-License-Identifier: MIT
// The verbs. Each puts out what it was asked for and returns the exit status; what it cannot do it
// throws as Failure or Error.

#pragma once

#include "tools/command/arguments.hpp"
#include "tools/command/session.hpp"

namespace inspect::command {

int run(const TextToShow &shown, Session &session);
int run(const DecodeArguments &arguments, Session &session);
int run(const EncodeArguments &arguments, Session &session);
int run(const DumpArguments &arguments, Session &session);
int run(const ListArguments &arguments, Session &session);
int run(const ShowArguments &arguments, Session &session);
int run(const PairsArguments &arguments, Session &session);
int run(const DiffArguments &arguments, Session &session);
int run(const CheckArguments &arguments, Session &session);
int run(const GuessArguments &arguments, Session &session);
int run(const ProtoArguments &arguments, Session &session);

} // namespace inspect::command
