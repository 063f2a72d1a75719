// SPDX-License-Identifier: MIT
// Which memory nanopb gets, since it cannot be told with a call.

#pragma once

#include "bench/bump.hpp"

namespace bench {

// Null for malloc.
extern Bump *nanopb_memory;

} // namespace bench
