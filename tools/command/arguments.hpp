// SPDX-License-Identifier: MIT
// What the user asked for: the command line as plain values, one structure for each verb.

#pragma once

#include "tools/core/framing.hpp"
#include "tools/core/input.hpp"
#include "tools/core/json.hpp"
#include "tools/core/output.hpp"

#include <cstddef>
#include <optional>
#include <string>
#include <variant>

namespace inspect::command {

enum class When { automatic, always, never };

struct Settings {
    When colour = When::automatic;
    // Of a decoded record, in bytes.
    size_t memory_limit = size_t{sizeof(void *) == 4 ? 1024 : 2048} << 20;
};

// Where bytes come from, and how they are to be read.
struct Source {
    std::string file = "-";
    std::optional<InputFormat> format; // else it is recognised
    Framing framing = Framing::none;
};

enum class RecordFormat { json, ndjson, tree };

struct DecodeArguments {
    std::string type;
    Source source;
    std::optional<RecordFormat> format;
    JsonOptions json;
};

struct EncodeArguments {
    std::string type;
    std::string json = "-"; // a file, or an object itself
    JsonOptions options;
    std::optional<OutputFormat> format;
    Framing framing = Framing::none;
    bool segments = false;
    bool in_place = false;
};

struct DumpArguments {
    std::string type;
    Source source;
    bool all_bytes = false;
};

struct ListArguments {
    std::string pattern;
    bool names_only = false;
};

struct ShowArguments {
    std::string type;
};

struct PairsArguments {};

struct DiffArguments {
    std::string type;
    std::string before;
    std::string after;
    std::optional<InputFormat> format; // of both
};

struct CheckArguments {
    std::string type;
    Source source;
};

struct GuessArguments {
    Source source;
};

struct ProtoArguments {
    std::string type; // empty: all
};

// Help, or the version.
struct TextToShow {
    std::string text;
};

using Verb = std::variant<TextToShow, DecodeArguments, EncodeArguments, DumpArguments,
                          ListArguments, ShowArguments, PairsArguments, DiffArguments,
                          CheckArguments, GuessArguments, ProtoArguments>;

struct CommandLine {
    Settings settings;
    Verb verb;
};

// Throws Failure when it cannot be understood.
CommandLine read_command_line(int argc, const char *const *argv);

} // namespace inspect::command
