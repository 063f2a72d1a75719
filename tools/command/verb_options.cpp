// SPDX-License-Identifier: MIT
#include "tools/command/verb_options.hpp"

#include "tools/command/options.hpp"

#include <memory>

namespace inspect::command {

namespace {

// The arguments of a verb, which the parser fills and then hands to `line`.
template <typename Arguments>
std::pair<CLI::App *, Arguments &> add_verb(CLI::App &app, CommandLine &line,
                                            const std::string &name, const std::string &description)
{
    CLI::App *const verb = app.add_subcommand(name, description);
    const auto arguments = std::make_shared<Arguments>();
    verb->group("Verbs")->callback([arguments, &line] { line.verb = *arguments; });
    return {verb, *arguments};
}

void add_decode(CLI::App &app, CommandLine &line)
{
    auto [verb, arguments] =
        add_verb<DecodeArguments>(app, line, "decode", "Show a message as JSON or as a tree");
    add_type(*verb, arguments.type);
    add_source(*verb, arguments.source);
    auto &format = arguments.format;
    add_choice<RecordFormat>(*verb, "--output", format,
                             {{"json", RecordFormat::json},
                              {"ndjson", RecordFormat::ndjson},
                              {"tree", RecordFormat::tree}},
                             "JSON, JSON in one line, or an aligned tree");
    const auto set_format = [&format](RecordFormat to) { return [&format, to] { format = to; }; };
    verb->add_flag_callback("--ndjson", set_format(RecordFormat::ndjson),
                            "The same as --output ndjson");
    verb->add_flag_callback("--tree", set_format(RecordFormat::tree), "The same as --output tree");
    add_bytes(*verb, arguments.json);
    add_choice<bool>(*verb, "--u64", arguments.json.u64_as_number,
                     {{"string", false}, {"number", true}}, "How JSON has 64-bit numbers");
    add_colour(*verb, line.settings);
    add_memory_limit(*verb, line.settings);
    verb->footer("What was decoded before an error is shown, and then what is wrong, and where.\n\n"
                 "Examples:\n"
                 "  ethsw-inspect decode port_enable capture.bin\n"
                 "  echo 08 03 10 01 | ethsw-inspect decode port_enable --tree\n"
                 "  ethsw-inspect decode port_enable --framing u32le stream.bin | jq .port");
}

void add_encode(CLI::App &app, CommandLine &line)
{
    auto [verb, arguments] =
        add_verb<EncodeArguments>(app, line, "encode", "Make a message from JSON");
    add_type(*verb, arguments.type);
    add_argument(*verb, "JSON", arguments.json,
                 "An object, or a file with one; \"-\" or nothing: standard input");
    CLI::Option *const output = add_choice<OutputFormat>(
        *verb, "--output", arguments.format,
        {{"raw", OutputFormat::raw}, {"hex", OutputFormat::hex}, {"c", OutputFormat::c_array}},
        "What to write; else raw, or hex on a terminal");
    add_framing(*verb, arguments.framing);
    CLI::Option *const segments = verb->add_flag("--segments", arguments.segments,
                                                 "The pieces that the library reports, instead");
    CLI::Option *const in_place = verb->add_flag("--in-place", arguments.in_place,
                                                 "The same, with byte strings left where they are");
    for (CLI::Option *const pieces : {segments, in_place})
        pieces->option_text(" ")->excludes(output)->excludes("--framing");
    add_bytes(*verb, arguments.options);
    add_memory_limit(*verb, line.settings);
    verb->footer("With --framing, every line of JSON is a message of its own.\n\n"
                 "Examples:\n"
                 "  ethsw-inspect encode port_enable '{\"port\": 3, \"enable\": true}'\n"
                 "  ethsw-inspect encode port_enable --output c request.json\n"
                 "  ethsw-inspect encode port_enable --framing u32le requests.ndjson > stream.bin");
}

void add_dump(CLI::App &app, CommandLine &line)
{
    auto [verb, arguments] =
        add_verb<DumpArguments>(app, line, "dump", "Show a message byte by byte");
    add_type(*verb, arguments.type);
    add_source(*verb, arguments.source);
    verb->add_flag("--all-bytes", arguments.all_bytes, "Do not cut long strings short");
    add_colour(*verb, line.settings);
    add_memory_limit(*verb, line.settings);
    verb->footer("Examples:\n"
                 "  echo 08 03 10 01 | ethsw-inspect dump port_enable\n"
                 "  ethsw-inspect dump port_enable --color always capture.bin | less -R");
}

void add_diff(CLI::App &app, CommandLine &line)
{
    auto [verb, arguments] =
        add_verb<DiffArguments>(app, line, "diff", "Compare two messages, member by member");
    add_type(*verb, arguments.type);
    add_argument(*verb, "BEFORE", arguments.before, "The first message; \"-\": standard input")
        ->required();
    add_argument(*verb, "AFTER", arguments.after, "The second message")->required();
    add_input_format(*verb, arguments.format);
    add_colour(*verb, line.settings);
    add_memory_limit(*verb, line.settings);
    verb->footer("The exit status is 16 when they differ.\n\n"
                 "Example:\n"
                 "  ethsw-inspect diff port_enable monday.bin tuesday.bin");
}

void add_check(CLI::App &app, CommandLine &line)
{
    auto [verb, arguments] = add_verb<CheckArguments>(
        app, line, "check", "Tell whether a message is as the library would write it");
    add_type(*verb, arguments.type);
    add_source(*verb, arguments.source);
    add_colour(*verb, line.settings);
    add_memory_limit(*verb, line.settings);
    verb->footer("The exit status is 16 when it is not.\n\n"
                 "Example:\n"
                 "  echo 10 01 08 03 | ethsw-inspect check port_enable");
}

void add_guess(CLI::App &app, CommandLine &line)
{
    auto [verb, arguments] =
        add_verb<GuessArguments>(app, line, "guess", "Tell which types a message may be of");
    add_source(*verb, arguments.source);
    add_colour(*verb, line.settings);
    add_memory_limit(*verb, line.settings);
    verb->footer("The exit status is 16 when there is none.\n\n"
                 "Example:\n"
                 "  echo 08 03 10 01 | ethsw-inspect guess");
}

void add_list(CLI::App &app, CommandLine &line)
{
    auto [verb, arguments] = add_verb<ListArguments>(app, line, "list", "Name the record types");
    CLI::Option *const pattern = add_argument(*verb, "PATTERN", arguments.pattern,
                                              "A part of a name or comment, or a name with * or ?");
    verb->add_flag("--names", arguments.names_only, "All names, and nothing else")
        ->option_text(" ")
        ->excludes(pattern);
    add_colour(*verb, line.settings);
    verb->footer("The exit status is 16 when there is none.\n\n"
                 "Examples:\n"
                 "  ethsw-inspect list vlan\n"
                 "  ethsw-inspect list 'port_*_resp'");
}

void add_show(CLI::App &app, CommandLine &line)
{
    auto [verb, arguments] = add_verb<ShowArguments>(app, line, "show", "Describe a record type");
    add_type(*verb, arguments.type);
    add_colour(*verb, line.settings);
    verb->footer("Example:\n"
                 "  ethsw-inspect show port_enable");
}

void add_pairs(CLI::App &app, CommandLine &line)
{
    CLI::App *const verb =
        add_verb<PairsArguments>(app, line, "pairs", "Tell which answer belongs to which request")
            .first;
    add_colour(*verb, line.settings);
    verb->footer("Example:\n"
                 "  ethsw-inspect pairs | grep vlan");
}

void add_proto(CLI::App &app, CommandLine &line)
{
    auto [verb, arguments] =
        add_verb<ProtoArguments>(app, line, "proto", "Write the schema as a .proto file");
    add_argument(*verb, "TYPE", arguments.type, "This type and what it embeds; else all types");
    verb->footer("Example:\n"
                 "  ethsw-inspect proto port_enable > port_enable.proto");
}

} // namespace

void add_verbs(CLI::App &app, CommandLine &line)
{
    add_decode(app, line);
    add_encode(app, line);
    add_dump(app, line);
    add_diff(app, line);
    add_check(app, line);
    add_guess(app, line);
    add_list(app, line);
    add_show(app, line);
    add_pairs(app, line);
    add_proto(app, line);
}

} // namespace inspect::command
