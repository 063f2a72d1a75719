// SPDX-License-Identifier: MIT
// Holds the library against references for every input there is, as far as that takes minutes.

#include "tests/exhaustive/check.hpp"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <thread>

namespace {

using namespace exhaustive;

const char *const kUsage = "usage: exhaustive [--slice N] [--threads N] [--only WORD]\n"
                           "  --slice N    every Nth part of each check (1: all)\n"
                           "  --threads N  how many at a time (one for each processor)\n"
                           "  --only WORD  checks with this in their names\n";

struct Options {
    Slice slice = {1, std::max(1u, std::thread::hardware_concurrency())};
    const char *only = "";
};

Options read_options(int count, char **words)
{
    Options options;
    for (int i = 1; i < count; i += 2) {
        const std::string name = words[i];
        const char *value = i + 1 < count ? words[i + 1] : "";
        const auto number = static_cast<uint32_t>(std::strtoul(value, nullptr, 10));
        if (name == "--slice" && number > 0)
            options.slice.every = number;
        else if (name == "--threads" && number > 0)
            options.slice.threads = number;
        else if (name == "--only" && *value)
            options.only = value;
        else {
            std::fputs(kUsage, stderr);
            std::exit(2);
        }
    }
    return options;
}

std::vector<Check> chosen_checks(const char *word)
{
    std::vector<Check> chosen;
    for (auto checks : {varint_write_checks, varint_read_checks, skip_checks, tag_checks,
                        number_checks, short_message_checks})
        for (Check &check : checks())
            if (std::strstr(check.name, word))
                chosen.push_back(std::move(check));
    return chosen;
}

} // namespace

int main(int count, char **words)
{
    const Options options = read_options(count, words);
    const std::vector<Check> checks = chosen_checks(options.only);
    if (checks.empty()) {
        std::fprintf(stderr, "no check is called that\n");
        return 2;
    }
    using Clock = std::chrono::steady_clock;
    const Clock::time_point begin = Clock::now();
    const bool good = run_checks(checks, options.slice);
    const double seconds = std::chrono::duration<double>(Clock::now() - begin).count();
    std::printf("%zu checks, %d-bit, %u threads: %s, %.0f s\n", checks.size(),
                static_cast<int>(8 * sizeof(void *)), options.slice.threads,
                good ? "no difference" : "FAILED", seconds);
    return good ? 0 : 1;
}
