// SPDX-License-Identifier: MIT
// list, show, pairs, proto: what the schema says.

#include "tools/command/failure.hpp"
#include "tools/command/messages.hpp"
#include "tools/command/verbs.hpp"
#include "tools/core/views.hpp"

namespace inspect::command {

int run(const TextToShow &shown, Session &session)
{
    session.output().write(shown.text);
    return kDone;
}

int run(const ListArguments &arguments, Session &session)
{
    if (arguments.names_only) {
        write_names(session.sink());
        return kDone;
    }
    const size_t found = write_list(arguments.pattern, session.palette(), session.sink());
    return found == 0 ? kNotSo : kDone;
}

int run(const ShowArguments &arguments, Session &session)
{
    write_type(type_of_name(arguments.type), session.palette(), session.sink());
    return kDone;
}

int run(const PairsArguments &, Session &session)
{
    write_pairs(session.palette(), session.sink());
    return kDone;
}

int run(const ProtoArguments &arguments, Session &session)
{
    write_schema(arguments.type.empty() ? nullptr : &type_of_name(arguments.type), session.sink());
    return kDone;
}

} // namespace inspect::command
