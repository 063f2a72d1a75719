// SPDX-License-Identifier: MIT
// What a message costs: the time of each operation, and the memory it asks for. Each message runs
// in a process of its own, which a timer ends when it takes too long.

#pragma once

#include "tests/costs/attacks.hpp"

#include <cstdint>

namespace costs {

struct Limits {
    unsigned seconds;  // of the processor, for one message
    uint64_t budget;   // bytes that the arena holds
    double least_time; // repeated for that long, and the fastest round counts
};

struct Asked {
    uint64_t bytes;
    uint64_t calls;
};

enum class Outcome : uint32_t { done, too_slow, crashed };

struct Cost {
    Outcome outcome;
    int32_t result; // of decoding
    uint32_t encoded_size;
    Asked decoding;
    Asked copying;
    // Seconds.
    double decode;
    double duplicate;
    double encode; // measured first, then written
    double release;
};

Cost measure(const RecordType &type, const Bytes &input, const Limits &limits);

} // namespace costs
