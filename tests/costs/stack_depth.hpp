// SPDX-License-Identifier: MIT
// How much stack a call takes: it runs on a stack of its own that has been painted, and the paint
// that is gone tells.

#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>

#include <ucontext.h>

namespace costs {

using Call = std::function<void()>;

class PaintedStack {
public:
    PaintedStack();

    // Bytes that `call` takes beyond a call that does nothing. Both functions are called twice, and
    // the second call counts: the first may have to look up where functions are.
    size_t depth_of(
        const Call &call, const Call &prepare = [] {});

private:
    static constexpr size_t kWords = 8192;
    static void enter();

    size_t used_by(const Call &call);

    std::unique_ptr<uint64_t[]> words_;
    ucontext_t caller_ = {};
    ucontext_t callee_ = {};
    size_t used_ = 0;
    size_t bare_ = 0;
};

} // namespace costs
