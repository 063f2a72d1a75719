// SPDX-License-Identifier: MIT
// Memory as a service gives it to messages that it does not trust: an arena with a budget, dropped
// whole. It counts what is asked for.

#pragma once

#include <cstddef>
#include <cstdint>

namespace costs {

class Arena {
public:
    explicit Arena(uint64_t budget);
    ~Arena();
    Arena(const Arena &) = delete;
    Arena &operator=(const Arena &) = delete;

    // wire_alloc_fn and wire_free_fn; the context is an Arena. Nothing comes back before the end.
    static void *allocate(uint32_t size, void *arena);
    static void release(void *block, void *arena);

    void drop_all();

    uint64_t bytes() const { return bytes_; }
    uint64_t calls() const { return calls_; }

private:
    uint8_t *memory_;
    uint64_t budget_;
    uint64_t used_ = 0;
    uint64_t bytes_ = 0;
    uint64_t calls_ = 0;
};

} // namespace costs
