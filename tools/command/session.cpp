// SPDX-License-Identifier: MIT
#include "tools/command/session.hpp"

#include "tools/command/terminal.hpp"

#include <fmt/format.h>
#include <unistd.h>

namespace inspect::command {

void complain(std::string_view text)
{
    const std::string line = fmt::format("ethsw-inspect: {}\n", text);
    // In one piece, and if even that is impossible the exit status has to say it.
    [[maybe_unused]] const ssize_t written = ::write(STDERR_FILENO, line.data(), line.size());
}

Session::Session(const Settings &settings)
    : memory_limit_(settings.memory_limit), palette_(use_colours(settings.colour)),
      meter_(progress_is_seen())
{}

Sink Session::sink()
{
    return [this](std::string_view text) { output_.write(text); };
}

void Session::complain(std::string_view text)
{
    meter_.clear();
    output_.flush();
    command::complain(text);
}

} // namespace inspect::command
