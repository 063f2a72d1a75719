// SPDX-License-Identifier: MIT
// Which of all attacks cost most, of each sort and by each measure.

#pragma once

#include "tests/costs/measure.hpp"

#include <string>
#include <vector>

namespace costs {

struct Worst {
    Attack attack;
    std::string most; // what it has most of
};

// Measures all of them at this size. An attack that is worst by several measures is there once.
std::vector<Worst> find_worst(const std::vector<Attack> &attacks, uint32_t size);

} // namespace costs
