// SPDX-License-Identifier: MIT
#include "tools/command/options.hpp"

#include <charconv>
#include <cstdint>

namespace inspect::command {

namespace {

constexpr size_t kMostMebibytes = SIZE_MAX >> 20;

size_t bytes_of_mebibytes(const std::string &text)
{
    size_t mebibytes = 0;
    const char *const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, mebibytes);
    if (error != std::errc() || stop != end || mebibytes > kMostMebibytes)
        refuse(fmt::format("--memory-limit: {} is not a number of MiB from 0 to {}",
                           inspect::quoted(text), kMostMebibytes));
    return mebibytes << 20;
}

} // namespace

void add_colour(CLI::App &app, Settings &settings)
{
    add_choice<When>(app, "--color", settings.colour,
                     {{"auto", When::automatic}, {"always", When::always}, {"never", When::never}},
                     "Colours; else on a terminal, unless NO_COLOR is set");
}

void add_memory_limit(CLI::App &app, Settings &settings)
{
    const auto store = [&settings](const std::string &text) {
        settings.memory_limit = bytes_of_mebibytes(text);
    };
    const std::string description =
        fmt::format("What a record may take at most; else {}", settings.memory_limit >> 20);
    app.add_option_function<std::string>("--memory-limit", store, description)
        ->option_text("MIB")
        ->type_name("value")
        ->take_last();
}

CLI::Option *add_argument(CLI::App &app, const std::string &name, std::string &to,
                          const std::string &description)
{
    return app.add_option(name, to, description)->option_text(" ");
}

void add_type(CLI::App &verb, std::string &type)
{
    add_argument(verb, "TYPE", type, "Record type, as \"list\" names them")->required();
}

void add_input_format(CLI::App &verb, std::optional<InputFormat> &format)
{
    add_choice<InputFormat>(verb, "--input", format,
                            {{"raw", InputFormat::raw},
                             {"hex", InputFormat::hex},
                             {"xxd", InputFormat::xxd},
                             {"base64", InputFormat::base64},
                             {"c", InputFormat::c_array}},
                            "What the input is; else it is recognised");
}

void add_framing(CLI::App &verb, Framing &framing)
{
    add_choice<Framing>(
        verb, "--framing", framing,
        {{"varint", Framing::varint}, {"u32le", Framing::u32le}, {"u32be", Framing::u32be}},
        "Many messages, each behind its length");
}

void add_source(CLI::App &verb, Source &source)
{
    add_argument(verb, "FILE", source.file,
                 "Bytes, or a text of them; \"-\" or nothing: standard input");
    add_input_format(verb, source.format);
    add_framing(verb, source.framing);
}

void add_bytes(CLI::App &verb, JsonOptions &options)
{
    add_choice<bool>(verb, "--bytes", options.bytes_as_hex, {{"base64", false}, {"hex", true}},
                     "How JSON has byte strings");
}

} // namespace inspect::command
