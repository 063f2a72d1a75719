// SPDX-License-Identifier: MIT
// The messages of a workload, and an operation on all of them for the clock.

#pragma once

#include "bench/bump.hpp"
#include "bench/contender.hpp"

#include <functional>

namespace bench {

inline constexpr Operation kScalingOperations[] = {Operation::measure, Operation::encode,
                                                   Operation::decode, Operation::duplicate};

class Subject {
public:
    Subject(Workload workload, uint32_t arena);

    // Of all encodings.
    uint64_t bytes() const { return bytes_; }

    // One iteration is the operation on every message, each into memory that is taken back after
    // it.
    void run(Operation operation, benchmark::State &state);

private:
    void once(Operation operation, size_t message);
    void require(bool holds) const;

    Workload workload_;
    std::vector<Bytes> encodings_;
    uint64_t bytes_ = 0;
    Bytes buffer_;
    Bump arena_;
    std::vector<uint64_t> record_;
};

} // namespace bench
