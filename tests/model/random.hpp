// SPDX-License-Identifier: MIT
// A small generator of random numbers whose sequence depends on its seed alone, on every target.

#pragma once

#include <cstddef>
#include <cstdint>

namespace model {

class Random {
public:
    explicit Random(uint64_t seed) : state_(seed) {}

    uint64_t next()
    {
        state_ += 0x9E3779B97F4A7C15u;
        uint64_t mixed = state_;
        mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9u;
        mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBu;
        return mixed ^ (mixed >> 31);
    }

    // A number below `limit`, which is not 0.
    uint32_t below(uint32_t limit) { return uint32_t((next() >> 32) * limit >> 32); }

    bool chance(uint32_t percent) { return below(100) < percent; }

    uint8_t byte() { return uint8_t(next() >> 56); }

    template <typename Value, size_t count>
    Value pick(const Value (&values)[count])
    {
        return values[below(uint32_t(count))];
    }

    // Numbers around the places where an encoding grows by a byte, mostly small ones.
    uint64_t number(uint32_t bits)
    {
        const uint32_t width = below(4) ? below(bits + 1) : below(9);
        const uint64_t edge = width >= 64 ? 0 : uint64_t(1) << width;
        const uint64_t all = bits >= 64 ? ~uint64_t(0) : (uint64_t(1) << bits) - 1;
        switch (below(4)) {
        case 0:
            return edge & all;
        case 1:
            return (edge - 1) & all;
        case 2:
            return next() & (edge - 1) & all;
        default:
            return below(3) ? below(300) & all : all - below(3);
        }
    }

private:
    uint64_t state_;
};

} // namespace model
