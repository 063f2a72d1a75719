// SPDX-License-Identifier: MIT
// ethsw-inspect: looks at captured messages of the switch management interface, and makes some.

#include "tools/command/failure.hpp"
#include "tools/command/verbs.hpp"
#include "tools/core/error.hpp"

#include <csignal>
#include <fmt/format.h>
#include <new>

namespace inspect::command {

namespace {

// Does the work, and tells the user what stands in its way.
int run_verb(const Verb &verb, Session &session)
{
    try {
        return std::visit([&](const auto &arguments) { return run(arguments, session); }, verb);
    } catch (const Failure &failure) {
        session.complain(failure.what());
        return failure.status();
    } catch (const Error &error) {
        session.complain(error.what());
        return kUnreadable;
    } catch (const std::bad_alloc &) {
        session.complain("there is not enough memory");
        return kInternal;
    }
}

int run_command(int argc, const char *const *argv)
{
    const CommandLine line = read_command_line(argc, argv);
    Session session(line.settings);
    const int status = run_verb(line.verb, session);
    session.output().close();
    return status;
}

// What is left over when the verb has ended, or has not even begun.
int run_guarded(int argc, const char *const *argv)
{
    try {
        return run_command(argc, argv);
    } catch (const OutputClosed &) {
        return kDone;
    } catch (const OutputFailed &failure) {
        complain(failure.what());
        return kOutputFailed;
    } catch (const Failure &failure) {
        complain(failure.what());
        return failure.status();
    } catch (const std::exception &exception) {
        complain(fmt::format("internal error: {}", inspect::quoted(exception.what())));
        return kInternal;
    }
}

} // namespace

} // namespace inspect::command

int main(int argc, char **argv)
{
    // A closed pipe is then an error of write(), which can be told from others.
    static_cast<void>(std::signal(SIGPIPE, SIG_IGN));
    return inspect::command::run_guarded(argc, argv);
}
