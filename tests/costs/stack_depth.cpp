// SPDX-License-Identifier: MIT
#include "tests/costs/stack_depth.hpp"

#include <algorithm>
#include <stdexcept>

namespace costs {

namespace {

constexpr uint64_t kPaint = 0xC0FFEE5AC0FFEE5A;

// makecontext hands over integers only.
PaintedStack *current_stack;
const Call *current_call;

} // namespace

PaintedStack::PaintedStack() : words_(new uint64_t[kWords])
{
    bare_ = used_by([] {});
}

size_t PaintedStack::depth_of(const Call &call, const Call &prepare)
{
    prepare();
    call();
    prepare();
    const size_t used = used_by(call);
    return used > bare_ ? used - bare_ : 0;
}

// Looks at once, before the way back leaves traces of its own.
void PaintedStack::enter()
{
    (*current_call)();
    const uint64_t *word = current_stack->words_.get();
    while (*word == kPaint)
        word++;
    const auto *frame = static_cast<const uint8_t *>(__builtin_frame_address(0));
    const auto *lowest = reinterpret_cast<const uint8_t *>(word);
    current_stack->used_ =
        word == current_stack->words_.get() ? SIZE_MAX : static_cast<size_t>(frame - lowest);
}

size_t PaintedStack::used_by(const Call &call)
{
    std::fill_n(words_.get(), kWords, kPaint);
    getcontext(&callee_);
    callee_.uc_stack.ss_sp = words_.get();
    callee_.uc_stack.ss_size = kWords * sizeof(uint64_t);
    callee_.uc_link = &caller_;
    current_stack = this;
    current_call = &call;
    makecontext(&callee_, enter, 0);
    swapcontext(&caller_, &callee_);
    if (used_ == SIZE_MAX)
        throw std::runtime_error("the stack was too small");
    return used_;
}

} // namespace costs
