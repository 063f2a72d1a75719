// SPDX-License-Identifier: MIT
#include "tools/command/meter.hpp"

#include <algorithm>
#include <fmt/format.h>
#include <unistd.h>

namespace inspect::command {

namespace {

// A line that cannot be shown is not missed.
void show(std::string_view text)
{
    [[maybe_unused]] const ssize_t written = ::write(STDERR_FILENO, text.data(), text.size());
}

} // namespace

void Meter::tell(std::string_view work, double share)
{
    if (!is_seen_ || Clock::now() < due_)
        return;
    due_ = Clock::now() + std::chrono::milliseconds(100);
    is_shown_ = true;
    const int percent = static_cast<int>(100 * std::clamp(share, 0.0, 1.0));
    show(fmt::format("\r{} {:3} %", work, percent));
}

void Meter::clear()
{
    if (is_shown_)
        show("\r\033[K");
    is_shown_ = false;
}

} // namespace inspect::command
