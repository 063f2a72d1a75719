// SPDX-License-Identifier: MIT
// Compares what all implementations make of all workloads, and then measures how long they take.
// Takes the options of Google Benchmark, and --compare-only.
#include "bench/compare.hpp"

#include <stdio.h>
#include <string.h>

#include <string>

namespace bench {

namespace {

using Contenders = std::vector<std::unique_ptr<Contender>>;

// With addresses that stay.
std::vector<std::unique_ptr<Samples>> make_samples()
{
    std::vector<std::unique_ptr<Samples>> samples;
    for (const Workload &workload : workloads())
        samples.push_back(std::make_unique<Samples>(workload));
    return samples;
}

Contenders make_contenders(const Samples &samples)
{
    Contenders contenders;
    for (auto make : {make_ours, make_protobuf, make_protobuf_lite, make_protobuf_c, make_nanopb,
                      make_protozero})
        contenders.push_back(make(samples));
    return contenders;
}

void add(const Workload &workload, Contender &contender)
{
    for (size_t i = 0; i < std::size(kOperationNames); i++) {
        const Operation operation = static_cast<Operation>(i);
        if (!contender.can(operation))
            continue;
        const std::string name = std::string(workload.name) + '/' +
                                 std::string(kOperationNames[i]) + '/' +
                                 std::string(contender.implementation());
        benchmark::RegisterBenchmark(name.c_str(), [&contender, operation](auto &state) {
            contender.run(operation, state);
        });
    }
}

// What a report tells about a workload.
void describe(const Samples &samples)
{
    const Workload &workload = samples.workload;
    size_t total = 0;
    for (const Bytes &bytes : samples.encodings)
        total += bytes.size();
    benchmark::AddCustomContext("workload:" + std::string(workload.name),
                                std::to_string(total / samples.encodings.size()) + '|' +
                                    std::to_string(samples.encodings.size()) + '|' +
                                    (workload.extra ? "extra" : "") + '|' +
                                    std::string(workload.content));
}

} // namespace

} // namespace bench

int main(int argc, char **argv)
{
    const bool compare_only = argc > 1 && strcmp(argv[1], "--compare-only") == 0;
    benchmark::Initialize(&argc, argv);
    const auto samples = bench::make_samples();
    std::vector<bench::Contenders> contenders;
    for (const auto &one : samples) {
        contenders.push_back(bench::make_contenders(*one));
        if (!bench::agree(*one, contenders.back()))
            return 1;
        bench::describe(*one);
        for (const auto &contender : contenders.back())
            bench::add(one->workload, *contender);
    }
    fprintf(stderr, "%zu workloads: all implementations write the same bytes, and read them\n",
            samples.size());
    if (!compare_only)
        benchmark::RunSpecifiedBenchmarks();
}
