// SPDX-License-Identifier: MIT
// encode: JSON as messages.

#include "tools/command/failure.hpp"
#include "tools/command/input_file.hpp"
#include "tools/command/messages.hpp"
#include "tools/command/terminal.hpp"
#include "tools/command/verbs.hpp"
#include "tools/core/error.hpp"

#include <fmt/format.h>
#include <functional>

namespace inspect::command {

namespace {

OutputFormat chosen_format(const EncodeArguments &arguments)
{
    return arguments.format.value_or(output_is_terminal() ? OutputFormat::hex : OutputFormat::raw);
}

Record record_of(const RecordType &type, std::string_view json, const EncodeArguments &arguments,
                 const Session &session)
{
    Record record(type, session.memory_limit());
    read_json(json, arguments.options, record);
    return record;
}

// Calls for each line that is not empty, with its number from 1.
void for_each_line(std::string_view text, const std::function<void(std::string_view, size_t)> &call)
{
    for (size_t number = 1; !text.empty(); number++) {
        const std::string_view line = text.substr(0, text.find('\n'));
        if (line.find_first_not_of(" \t\r") != std::string_view::npos)
            call(line, number);
        text.remove_prefix(std::min(line.size() + 1, text.size()));
    }
}

// A C array is one declaration, so that it waits for the end of the stream; everything else goes
// out as it comes.
void write_stream(const RecordType &type, std::string_view lines, const EncodeArguments &arguments,
                  Session &session)
{
    const OutputFormat format = chosen_format(arguments);
    std::vector<uint8_t> stream;
    for_each_line(lines, [&](std::string_view line, size_t number) {
        try {
            const Record record = record_of(type, line, arguments, session);
            append_frame(stream, record.encode(), arguments.framing);
        } catch (const Error &error) {
            throw Failure(kUnreadable, fmt::format("message in line {}: {}", number, error.what()));
        }
        if (format == OutputFormat::c_array)
            return;
        write_bytes(stream, format, type.short_name(), session.sink());
        stream.clear();
    });
    if (format == OutputFormat::c_array)
        write_bytes(stream, format, type.short_name(), session.sink());
}

void write_one(const RecordType &type, std::string_view json, const EncodeArguments &arguments,
               Session &session)
{
    const Record record = record_of(type, json, arguments, session);
    if (arguments.segments || arguments.in_place)
        write_segments(gather(record, arguments.in_place), session.sink());
    else
        write_bytes(record.encode(), chosen_format(arguments), type.short_name(), session.sink());
}

} // namespace

int run(const EncodeArguments &arguments, Session &session)
{
    const RecordType &type = own_type_of_name(arguments.type);
    const auto write = arguments.framing == Framing::none ? write_one : write_stream;
    if (arguments.json.starts_with('{'))
        write(type, arguments.json, arguments, session);
    else
        write(type, InputFile(arguments.json).text(), arguments, session);
    return kDone;
}

} // namespace inspect::command
