// SPDX-License-Identifier: MIT
// The callbacks that the operations under test are given.

#include "tests/model/side.hpp"

#include <algorithm>

namespace model {

void Allocator::prepare(uint32_t fail_at, bool empty_is_null)
{
    calls_.clear();
    fail_at_ = fail_at;
    empty_is_null_ = empty_is_null;
}

void *Allocator::allocate(uint32_t size, void *context)
{
    auto &self = *static_cast<Allocator *>(context);
    const bool refuse = self.calls_.size() == self.fail_at_ || (size == 0 && self.empty_is_null_);
    void *block = refuse ? nullptr : self.memory_.take(size, "allocated block");
    self.calls_.push_back({size, block});
    return block;
}

void Allocator::forget_all_but(uint32_t count)
{
    calls_.resize(std::min<size_t>(count, calls_.size()));
}

void FreeLog::release(void *block, void *context)
{
    static_cast<FreeLog *>(context)->blocks.push_back(block);
}

} // namespace model
