// SPDX-License-Identifier: MIT
#include "bench/bump.hpp"

namespace bench {

Bump &scratch()
{
    static Bump bump(32 << 20);
    return bump;
}

Bump &kept()
{
    static Bump bump(512 << 20);
    return bump;
}

} // namespace bench
