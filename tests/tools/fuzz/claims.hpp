// SPDX-License-Identifier: MIT
// What the inspector's fuzzers hold against it.

#pragma once

#include "tools/core/text.hpp"

#include <cstddef>
#include <string_view>

namespace inspect {

// Where it does not hold, the process ends, which is a finding.
void require(bool claim, const char *what);

// That a terminal would obey nothing in it, but for line breaks.
void require_tame(std::string_view text);
// That it is what an Error may say: one line, and a tame one.
void require_message(std::string_view text);

// Takes what a view writes, and holds it to be tame.
class TameOutput {
public:
    Sink sink();
    size_t size() const { return size_; }

private:
    size_t size_ = 0;
};

} // namespace inspect
