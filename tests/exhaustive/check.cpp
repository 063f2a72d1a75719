// SPDX-License-Identifier: MIT
#include "tests/exhaustive/check.hpp"

#include <atomic>
#include <cinttypes>
#include <cstdio>
#include <mutex>
#include <thread>

#include <sys/resource.h>

namespace exhaustive {

namespace {

// Hands out the parts of a slice to threads and keeps the first difference.
class Run {
public:
    Run(const Check &check, const Slice &slice) : check_(check), every_(slice.every) {}

    void work()
    {
        for (uint64_t next = next_++; !failed_; next = next_++) {
            const uint64_t part = next * every_;
            if (part >= check_.parts + uint64_t{every_} - 1)
                return;
            // The last step may lead past the end: it stands for the last part.
            run(part < check_.parts ? static_cast<uint32_t>(part) : check_.parts - 1);
        }
    }

    uint64_t parts() const { return parts_; }
    const Difference &difference() const { return difference_; }

private:
    void run(uint32_t part)
    {
        Difference difference = check_.run(part);
        parts_++;
        if (!difference)
            return;
        const std::lock_guard lock(mutex_);
        failed_ = true;
        difference_ = difference;
    }

    const Check &check_;
    const uint32_t every_;
    std::atomic<uint64_t> next_ = 0;
    std::atomic<uint64_t> parts_ = 0;
    std::atomic<bool> failed_ = false;
    std::mutex mutex_;
    Difference difference_;
};

// What all threads together have had of the processors.
double processor_seconds()
{
    rusage usage;
    getrusage(RUSAGE_SELF, &usage);
    return static_cast<double>(usage.ru_utime.tv_sec) +
           static_cast<double>(usage.ru_utime.tv_usec) * 1e-6;
}

bool run_check(const Check &check, const Slice &slice)
{
    const double begin = processor_seconds();
    Run run(check, slice);
    std::vector<std::thread> threads;
    for (unsigned i = 0; i < slice.threads; i++)
        threads.emplace_back([&run] { run.work(); });
    for (std::thread &thread : threads)
        thread.join();
    if (run.difference())
        std::printf("DIFFERENCE: %s\n%s\n", check.name, run.difference()->c_str());
    else
        std::printf("%15" PRIu64 "  %7.1f s  %s\n", run.parts() * check.cases_of_a_part,
                    processor_seconds() - begin, check.name);
    std::fflush(stdout);
    return !run.difference();
}

} // namespace

std::string describe(uint64_t value, const char *wrong)
{
    char text[200];
    std::snprintf(text, sizeof text, "0x%" PRIX64 ": %s", value, wrong);
    return text;
}

bool run_checks(const std::vector<Check> &checks, const Slice &slice)
{
    for (const Check &check : checks)
        if (!run_check(check, slice))
            return false;
    return true;
}

} // namespace exhaustive
