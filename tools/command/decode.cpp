// SPDX-License-Identifier: MIT
// decode: messages as JSON or as trees.

#include "tools/command/messages.hpp"
#include "tools/command/verbs.hpp"
#include "tools/core/tree.hpp"
#include "tools/core/walk.hpp"

namespace inspect::command {

namespace {

void show(const Record &record, const Verdict &verdict, const Message &message,
          const DecodeArguments &arguments, Session &session)
{
    const bool in_stream = message.number != 0;
    const RecordFormat format =
        arguments.format.value_or(in_stream ? RecordFormat::ndjson : RecordFormat::json);
    const Progress told = progress(session, "decode", message);
    if (format == RecordFormat::tree) {
        write_heading(session, message);
        write_tree(record.view(), session.palette(), verdict.path, session.sink(), told);
        return;
    }
    JsonOptions options = arguments.json;
    options.one_line = format == RecordFormat::ndjson;
    write_json(record.view(), options, verdict.path, session.sink(), told);
}

} // namespace

int run(const DecodeArguments &arguments, Session &session)
{
    const RecordType &type = own_type_of_name(arguments.type);
    return for_each_message(session, arguments.source, [&](const Message &message) {
        Record record(type, session.memory_limit());
        const int32_t result = record.decode(message.bytes);
        const Verdict verdict = explain(record, message.bytes, result);
        show(record, verdict, message, arguments, session);
        return tell_verdict(session, message, verdict);
    });
}

} // namespace inspect::command
