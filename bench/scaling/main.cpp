// SPDX-License-Identifier: MIT
// Measures how times grow: with the size of a message, with the depth at which numbers are nested,
// and with threads that each have data of their own. Takes the options of Google Benchmark.
#include "bench/scaling/contents.hpp"
#include "bench/scaling/subject.hpp"

#include <string>
#include <thread>

namespace bench {

namespace {

constexpr uint32_t kSmallest = 64;
constexpr uint32_t kLargest = 64 << 20;
// A size that fits in the second-level cache with its record and its copy.
constexpr uint32_t kPerThread = 64 << 10;

std::string name_of(const char *what, uint64_t value, Operation operation)
{
    return std::string(what) + '/' + std::to_string(value) + '/' +
           std::string(kOperationNames[static_cast<size_t>(operation)]);
}

// The subjects of all sizes and depths stay, since their benchmarks are run in any order. What one
// iteration comes to is told in its counter.
void add(const char *what, uint32_t value, std::shared_ptr<Subject> subject, double units)
{
    for (Operation operation : kScalingOperations)
        benchmark::RegisterBenchmark(name_of(what, value, operation).c_str(),
                                     [subject, operation, units](benchmark::State &state) {
                                         subject->run(operation, state);
                                         state.counters["units"] = units;
                                     });
}

void add_sizes()
{
    for (uint32_t size = kSmallest; size <= kLargest; size *= 4) {
        // Memory of an entry is some two and a half times its encoding.
        const auto subject = std::make_shared<Subject>(make_tables(size), size * 3 + 4096);
        add("size", size, subject, static_cast<double>(subject->bytes()));
    }
}

void add_depths()
{
    for (uint32_t levels = 1; levels <= kMostLevels; levels++)
        add("depth", levels, std::make_shared<Subject>(make_nested(levels), 1 << 20), kLeaves);
}

// The rate is that of all threads together. More, shorter repetitions than of what takes one
// processor: all of them have to be free for once.
void add_threads()
{
    for (uint32_t threads = 1; threads <= std::thread::hardware_concurrency(); threads++) {
        for (Operation operation : {Operation::encode, Operation::decode}) {
            benchmark::RegisterBenchmark(
                name_of("threads", threads, operation).c_str(),
                [operation](benchmark::State &state) {
                    Subject subject(make_tables(kPerThread), kPerThread * 3);
                    subject.run(operation, state);
                    const auto iterations = static_cast<double>(state.iterations());
                    state.counters["rate"] =
                        benchmark::Counter(static_cast<double>(subject.bytes()) * iterations,
                                           benchmark::Counter::kIsRate);
                })
                ->Threads(static_cast<int>(threads))
                ->UseRealTime()
                ->MinTime(0.01)
                ->Repetitions(40);
        }
    }
}

} // namespace

} // namespace bench

int main(int argc, char **argv)
{
    benchmark::Initialize(&argc, argv);
    bench::add_sizes();
    bench::add_depths();
    bench::add_threads();
    benchmark::RunSpecifiedBenchmarks();
}
