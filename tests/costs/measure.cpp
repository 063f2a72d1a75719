// SPDX-License-Identifier: MIT
#include "tests/costs/measure.hpp"

#include "tests/costs/arena.hpp"
#include "tests/costs/exported.hpp"

#include <algorithm>
#include <csignal>
#include <ctime>
#include <memory>
#include <stdexcept>

#include <sys/time.h>
#include <sys/wait.h>
#include <unistd.h>

namespace costs {

namespace {

double now(clockid_t clock)
{
    timespec time;
    clock_gettime(clock, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

double wall_time()
{
    return now(CLOCK_MONOTONIC);
}

// Of the processor, so that what else runs on the machine does not count.
void limit_time(unsigned seconds)
{
    itimerval timer = {};
    timer.it_value.tv_sec = static_cast<time_t>(seconds);
    setitimer(ITIMER_PROF, &timer, nullptr);
}

// Other programs may have had the processor in between. From this on that is left out: for less the
// processor's own clock is too coarse on some machines, and the fastest of many rounds has to do.
constexpr double kLong = 0.1;

template <typename Work>
double time_of(Work work)
{
    const double processor = now(CLOCK_PROCESS_CPUTIME_ID);
    const double begin = wall_time();
    work();
    const double time = wall_time() - begin;
    return time < kLong ? time : now(CLOCK_PROCESS_CPUTIME_ID) - processor;
}

// One round of all operations. Empty messages may leave nothing to encode: a null buffer will do.
Cost run_once(const RecordType &type, const Operations &operations, const Bytes &input,
              Arena &first, Arena &second)
{
    const std::unique_ptr<uint64_t[]> record(new uint64_t[type.size / 8 + 1]);
    const std::unique_ptr<uint64_t[]> copy(new uint64_t[type.size / 8 + 1]);
    Cost cost = {};
    first.drop_all();
    second.drop_all();
    cost.decode = time_of([&] {
        cost.result = operations.decode(record.get(), input.data(), input.length(), Arena::allocate,
                                        &first, 0);
    });
    cost.decoding = {first.bytes(), first.calls()};
    cost.duplicate =
        time_of([&] { operations.duplicate(copy.get(), record.get(), Arena::allocate, &second); });
    cost.copying = {second.bytes(), second.calls()};
    cost.encode = time_of([&] {
        cost.encoded_size = operations.encode(record.get(), nullptr, 0, nullptr, nullptr, 0);
        Bytes buffer(cost.encoded_size);
        operations.encode(record.get(), buffer.data(), buffer.length(), nullptr, nullptr, 0);
    });
    cost.release = time_of([&] { operations.release(record.get(), Arena::release, &first, 0); });
    operations.release(copy.get(), Arena::release, &second, 0);
    return cost;
}

Cost run(const RecordType &type, const Bytes &input, const Limits &limits)
{
    Arena first(limits.budget);
    Arena second(limits.budget);
    const Operations operations = operations_of(type);
    const double begin = wall_time();
    Cost best = run_once(type, operations, input, first, second);
    while (wall_time() - begin < limits.least_time) {
        const Cost cost = run_once(type, operations, input, first, second);
        best.decode = std::min(best.decode, cost.decode);
        best.duplicate = std::min(best.duplicate, cost.duplicate);
        best.encode = std::min(best.encode, cost.encode);
        best.release = std::min(best.release, cost.release);
    }
    return best;
}

} // namespace

Cost measure(const RecordType &type, const Bytes &input, const Limits &limits)
{
    int ends[2];
    if (pipe(ends) != 0)
        throw std::runtime_error("no pipe");
    const pid_t child = fork();
    if (child < 0)
        throw std::runtime_error("no process");
    if (child == 0) {
        limit_time(limits.seconds);
        const Cost cost = run(type, input, limits);
        _exit(write(ends[1], &cost, sizeof cost) == sizeof cost ? 0 : 1);
    }
    close(ends[1]);
    Cost cost = {};
    const bool whole = read(ends[0], &cost, sizeof cost) == sizeof cost;
    close(ends[0]);
    int status = 0;
    waitpid(child, &status, 0);
    if (!whole)
        cost.outcome = WIFSIGNALED(status) && WTERMSIG(status) == SIGPROF ? Outcome::too_slow
                                                                          : Outcome::crashed;
    return cost;
}

} // namespace costs
