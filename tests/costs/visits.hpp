// SPDX-License-Identifier: MIT
// Messages that decode the same bytes again and again. Jumps lead from field to field, and all of
// them span the same content; inside, the same may happen on the next level.

#pragma once

#include "tests/costs/message.hpp"

#include <vector>

namespace costs {

// The fields that a record is led through, one after the other, by their tags.
using Visits = std::vector<uint32_t>;

enum class Ending {
    ends,       // the last jump of the outermost record leads past the end
    starts_anew // it leads to the first field: an endless message
};

// Level by level from the outside, each decoded in every visit of the one before it; the content is
// what the innermost reads. It has to fill whole fields. The lengths in front take three bytes, or
// six where a tag takes two: up to 1 MiB in all.
Bytes nested_visits(const std::vector<Visits> &levels, const Bytes &content,
                    Ending ending = Ending::ends);

// How much nested_visits takes for one visit.
uint32_t visit_size(uint32_t tag);

} // namespace costs
