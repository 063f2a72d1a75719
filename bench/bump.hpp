// SPDX-License-Identifier: MIT
// Memory that is handed out front to back and taken back all at once.

#pragma once

#include <stdint.h>

#include <memory>

namespace bench {

class Bump {
public:
    explicit Bump(uint32_t capacity) : memory_(new uint64_t[capacity / 8]), capacity_(capacity) {}

    void reset() { used_ = 0; }

    // Null when all is handed out. Aligned to 8.
    void *allocate(uint32_t size)
    {
        if (size > capacity_ - used_ - 7)
            return nullptr;
        void *block = bytes() + used_;
        used_ += (size + 7) & ~UINT32_C(7);
        return block;
    }

    // Makes the block that was handed out last as long as this, if there is room.
    bool extend_last(void *block, uint32_t size)
    {
        const uint32_t begin = static_cast<uint32_t>(static_cast<uint8_t *>(block) - bytes());
        if (size > capacity_ - begin - 7)
            return false;
        used_ = begin + ((size + 7) & ~UINT32_C(7));
        return true;
    }

    bool is_end(const void *position) const { return position == bytes() + used_; }

private:
    uint8_t *bytes() const { return reinterpret_cast<uint8_t *>(memory_.get()); }

    std::unique_ptr<uint64_t[]> memory_;
    uint32_t capacity_;
    uint32_t used_ = 0;
};

// What all decode and duplicate into that take a function to allocate with. They are timed one by
// one, so one is enough, and none has warmer memory than another.
Bump &scratch();

// The objects that are encoded and duplicated, which stay.
Bump &kept();

} // namespace bench
