// SPDX-License-Identifier: MIT
#include "tools/command/terminal.hpp"

#include <cstdlib>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>

namespace inspect::command {

namespace {

std::string_view environment(const char *name)
{
    const char *const value = std::getenv(name); // NOLINT(concurrency-mt-unsafe): one thread
    return value ? value : "";
}

bool is_same_device(int a, int b)
{
    struct stat of_a {};
    struct stat of_b {};
    return fstat(a, &of_a) == 0 && fstat(b, &of_b) == 0 && of_a.st_rdev == of_b.st_rdev;
}

} // namespace

bool output_is_terminal()
{
    return isatty(STDOUT_FILENO) == 1;
}

bool progress_is_seen()
{
    if (isatty(STDERR_FILENO) != 1)
        return false;
    return !output_is_terminal() || !is_same_device(STDOUT_FILENO, STDERR_FILENO);
}

bool use_colours(When when)
{
    if (when != When::automatic)
        return when == When::always;
    return output_is_terminal() && environment("NO_COLOR").empty() && environment("TERM") != "dumb";
}

} // namespace inspect::command
