// SPDX-License-Identifier: MIT
// The memory of the fuzzers. One arena for everything that one input needs: pieces of exactly the
// size asked for, with forbidden ground between them, and no malloc. On it the callbacks that the
// library is given.

#pragma once

#include <stddef.h>
#include <stdint.h>
#include <vector>

namespace fuzz {

// What new memory is filled with.
constexpr uint8_t kRubbish = 0xDB;

class Arena {
public:
    static constexpr size_t kSize = size_t{32} << 20;

    Arena();

    // Aligned to 8, and not always to more. There is room for all that one input can ask for.
    uint8_t *take(size_t size);
    // Takes everything back.
    void reset();

private:
    alignas(16) uint8_t bytes_[kSize];
    size_t used_ = 0;
};

// The one arena of the process, which is too large for the stack.
Arena &arena();

// Whether the bytes behind a piece of the arena are still what they were: for builds in which no
// sanitizer looks after them.
bool is_intact_behind(const uint8_t *piece, size_t size);

// How requests fail, as one byte of the input says.
class FailurePlan {
public:
    static constexpr uint8_t kNever = 0;
    static constexpr uint8_t kNoCallback = 255;

    explicit FailurePlan(uint8_t code) : code_(code) {}

    bool has_callback() const { return code_ != kNoCallback; }
    // Requests are counted from 1.
    bool refuses(uint32_t request) const
    {
        return code_ < kFrom ? request == code_ : request >= code_ - kFrom + 1U;
    }

private:
    // Codes below say which request fails, those from here on with which request it begins.
    static constexpr uint8_t kFrom = 128;

    uint8_t code_;
};

struct Block {
    uint8_t *data;
    uint32_t size;
    bool held; // not given back
    bool seen; // found in the record
};

// The blocks of one record.
class Blocks {
public:
    // Two bytes of a message can ask for hundreds. More than this is refused.
    static constexpr size_t kBudget = size_t{1} << 20;

    // Forgets everything: a new record, and the arena is empty or about to be.
    void begin(FailurePlan plan);

    // A wire_alloc_fn and a wire_free_fn; the context is a Blocks.
    static void *allocate(uint32_t size, void *context);
    static void release(void *data, void *context);

    bool has_callback() const { return plan_.has_callback(); }
    bool has_refused() const { return refused_; }
    uint32_t requests_after_refusal() const { return late_requests_; }
    uint32_t held() const { return held_; }
    uint32_t returned() const { return returned_; }

    // The block that begins here. There has to be one, held, and not found before.
    const Block &find_once(const void *data);
    uint32_t seen() const { return seen_; }
    void forget_seen();

private:
    Block *find(const void *data);

    FailurePlan plan_{FailurePlan::kNever};
    std::vector<Block> blocks_; // by ascending address, as the arena hands them out
    size_t spent_ = 0;
    bool refused_ = false;
    uint32_t requests_ = 0;
    uint32_t late_requests_ = 0;
    uint32_t held_ = 0;
    uint32_t returned_ = 0;
    uint32_t seen_ = 0;
};

} // namespace fuzz
