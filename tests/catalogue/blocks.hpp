// SPDX-License-Identifier: MIT
// The memory that decoding and duplicating are given: it fills new blocks with something other than
// zero and complains when one comes back that is not out. Unlike the one in tests/support it tells
// blocks by their addresses, to be held against those found in a record.

#pragma once

#include <map>
#include <stddef.h>
#include <stdint.h>
#include <vector>

namespace catalogue {

class Blocks {
public:
    Blocks() = default;
    Blocks(const Blocks &) = delete;
    Blocks &operator=(const Blocks &) = delete;
    ~Blocks();

    // wire_alloc_fn and wire_free_fn; the context is a Blocks.
    static void *allocate(uint32_t size, void *blocks);
    static void release(void *block, void *blocks);

    // From now on a request of this size is answered with null.
    void refuse(uint32_t size) { refused_.push_back(size); }

    const std::map<const void *, uint32_t> &out() const { return out_; }
    // The sizes asked for and the blocks that came back, in order.
    const std::vector<uint32_t> &asked() const { return asked_; }
    const std::vector<const void *> &returned() const { return returned_; }

private:
    std::map<const void *, uint32_t> out_;
    std::vector<uint32_t> asked_;
    std::vector<const void *> returned_;
    std::vector<uint32_t> refused_;
};

} // namespace catalogue
