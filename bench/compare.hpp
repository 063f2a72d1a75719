// SPDX-License-Identifier: MIT
// Whether all implementations write the same bytes, and read what the others have written.

#pragma once

#include "bench/contender.hpp"

namespace bench {

// Says on the standard error output where they do not.
bool agree(const Samples &samples, const std::vector<std::unique_ptr<Contender>> &contenders);

} // namespace bench
