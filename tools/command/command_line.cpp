// SPDX-License-Identifier: MIT
#include "tools/command/failure.hpp"
#include "tools/command/options.hpp"
#include "tools/command/verb_options.hpp"
#include "tools/core/text.hpp"

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>
#include <fmt/format.h>

namespace inspect::command {

namespace {

#ifdef TARN_SIBLING_INSIDE
constexpr const char *kVersion =
    "ethsw-inspect " TARN_VERSION "\nwith a stand-in for the sibling library: the field numbers "
    "inside tarn_calv_eid_st and tarn_esd_location_info are an assumption";
#else
constexpr const char *kVersion = "ethsw-inspect " TARN_VERSION;
#endif

constexpr const char *kExamples =
    "\"ethsw-inspect VERB --help\" tells more. Types are named as in C, as in the schema, or "
    "short:\n"
    "port_enable. Bytes may be raw, hex, base64, what xxd prints, or a C array.\n\n"
    "Examples:\n"
    "  ethsw-inspect encode port_enable '{\"port\": 3, \"enable\": true}'\n"
    "  echo 08 03 10 01 | ethsw-inspect decode port_enable\n"
    "  echo 08 03 10 01 | ethsw-inspect dump port_enable\n"
    "  ethsw-inspect list vlan";

// The verb that was named, or the program itself.
const CLI::App &innermost(const CLI::App &app)
{
    const std::vector<const CLI::App *> verbs =
        app.get_subcommands([](const CLI::App *verb) { return verb->parsed(); });
    return verbs.empty() ? app : *verbs.front();
}

std::string unknown_verb(const CLI::App &app, const std::string &word)
{
    std::vector<std::string> names;
    for (const CLI::App *verb : app.get_subcommands([](const CLI::App *) { return true; }))
        names.push_back(verb->get_name());
    return fmt::format("unknown verb {}{}", inspect::quoted(word),
                       did_you_mean(word, {names.begin(), names.end()}));
}

std::string unknown_option(const CLI::App &app, const std::string &word)
{
    std::vector<std::string> names;
    for (const CLI::Option *option : app.get_options())
        if (option->nonpositional())
            names.push_back(option->get_name());
    const std::string name = word.substr(0, word.find('='));
    return fmt::format("unknown option {}{}", inspect::quoted(name),
                       did_you_mean(name, {names.begin(), names.end()}));
}

// What is left over when everything known has found its place.
std::string unexpected(const CLI::App &app)
{
    const CLI::App &verb = innermost(app);
    const std::string word = verb.remaining().front();
    if (word.size() > 1 && word.front() == '-')
        return unknown_option(verb, word);
    if (&verb == &app)
        return unknown_verb(app, word);
    return fmt::format("{} is one argument too many", inspect::quoted(word));
}

std::string reason(const CLI::App &app, const CLI::ParseError &error)
{
    if (!innermost(app).remaining().empty())
        return unexpected(app);
    if (&innermost(app) == &app && dynamic_cast<const CLI::RequiredError *>(&error))
        return "a verb is missing";
    return error.what();
}

std::string advice(const CLI::App &app)
{
    const CLI::App &verb = innermost(app);
    const std::string name = &verb == &app ? "" : " " + verb.get_name();
    return fmt::format("; see \"ethsw-inspect{} --help\"", name);
}

void describe(CLI::App &app, CommandLine &line)
{
    app.name("ethsw-inspect");
    app.description(
        "Looks at captured messages of the switch management interface, and makes some.");
    app.footer(kExamples);
    app.set_help_flag("--help,-h", "Print this and do nothing else");
    app.set_version_flag("--version", kVersion)
        ->description("Print the version and do nothing else");
    app.get_formatter()->column_width(34);
    app.get_formatter()->label("SUBCOMMAND", "VERB");
    app.get_formatter()->label("Positionals", "Arguments");
    app.require_subcommand(1);
    add_colour(app, line.settings);
    add_memory_limit(app, line.settings);
    add_verbs(app, line);
}

} // namespace

CommandLine read_command_line(int argc, const char *const *argv)
{
    CommandLine line;
    CLI::App app;
    describe(app, line);
    try {
        app.parse(argc, argv);
    } catch (const CLI::CallForHelp &) {
        line.verb = TextToShow{app.help()};
    } catch (const CLI::CallForVersion &version) {
        line.verb = TextToShow{std::string(version.what()) + "\n"};
    } catch (const CLI::ParseError &error) {
        throw Failure(kUsage, reason(app, error) + advice(app));
    }
    return line;
}

} // namespace inspect::command
