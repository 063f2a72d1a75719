// SPDX-License-Identifier: MIT
// dump: messages as annotated hex.

#include "tools/core/dump.hpp"

#include "tools/command/messages.hpp"
#include "tools/command/verbs.hpp"

namespace inspect::command {

int run(const DumpArguments &arguments, Session &session)
{
    const RecordType &type = own_type_of_name(arguments.type);
    DumpOptions options;
    options.palette = session.palette();
    options.all_bytes = arguments.all_bytes;
    options.memory_limit = session.memory_limit();
    return for_each_message(session, arguments.source, [&](const Message &message) {
        write_heading(session, message);
        // The verdict is a part of it, and need not be told once more.
        return status_of(write_dump(type, message.bytes, options, session.sink(),
                                    progress(session, "dump", message))
                             .result);
    });
}

} // namespace inspect::command
