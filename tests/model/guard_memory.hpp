// SPDX-License-Identifier: MIT
// Memory whose every block ends, or begins, at a page that nobody may touch. Blocks are taken in
// order and given back by rewinding; two of these hand out the same offsets for the same requests.

#pragma once

#include "tests/model/catalogue.hpp"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace model {

struct Block {
    uint8_t *data;
    uint32_t size;
    // Bytes of nobody before and behind it that are watched as well.
    uint32_t before;
    uint32_t behind;
    // What the block is for, and the type of the records in it, if any.
    const char *purpose;
    const RecordType *type;
};

struct Mark {
    size_t blocks;
    uint32_t small;
    uint32_t large;
};

class GuardMemory {
public:
    // Bytes that are watched on the side where there is no guard.
    static constexpr uint32_t kMargin = 64;

    GuardMemory();
    ~GuardMemory();
    GuardMemory(const GuardMemory &) = delete;
    GuardMemory &operator=(const GuardMemory &) = delete;

    // A block filled with `pattern`, or null when there is no room.
    uint8_t *take(uint32_t size, const char *purpose, const RecordType *type = nullptr);

    Mark mark() const { return {blocks_.size(), small_, large_}; }
    void rewind(const Mark &mark);

    const std::vector<Block> &blocks() const { return blocks_; }
    bool holds(uintptr_t address) const { return address - base_ < length_; }
    uintptr_t offset_of(uintptr_t address) const { return address - base_; }

    uint8_t pattern = 0xA5;
    // Where the page without access lies that a block touches.
    bool guard_in_front = false;

private:
    uintptr_t base_ = 0;
    size_t length_ = 0;
    uint32_t small_ = 0;
    uint32_t large_ = 0;
    std::vector<Block> blocks_;
};

} // namespace model
