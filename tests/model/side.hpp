// SPDX-License-Identifier: MIT
// One side of a comparison: a codec, memory of its own, and callbacks that write down what they
// were asked for.

#pragma once

#include "tests/model/codec.hpp"
#include "tests/model/guard_memory.hpp"

#include <cstdint>
#include <vector>

namespace model {

constexpr uint32_t kNever = UINT32_MAX;

class Allocator {
public:
    struct Call {
        uint32_t size;
        void *block;
    };

    explicit Allocator(GuardMemory &memory) : memory_(memory) {}

    // Forgets the calls. Call number `fail_at` will answer null; so will requests for no bytes
    // when `empty_is_null`.
    void prepare(uint32_t fail_at, bool empty_is_null);

    static void *allocate(uint32_t size, void *context);

    const std::vector<Call> &calls() const { return calls_; }
    uint32_t count() const { return uint32_t(calls_.size()); }
    void forget_all_but(uint32_t count);

private:
    GuardMemory &memory_;
    std::vector<Call> calls_;
    uint32_t fail_at_ = kNever;
    bool empty_is_null_ = false;
};

class FreeLog {
public:
    static void release(void *block, void *context);

    std::vector<void *> blocks;
};

struct Side {
    explicit Side(Codec &its_codec) : codec(its_codec), allocator(memory) {}

    Codec &codec;
    GuardMemory memory;
    Allocator allocator;
    FreeLog freed;
};

} // namespace model
