// SPDX-License-Identifier: MIT
// For tests of what must not take for ever: the program dies of an alarm when one does.

#pragma once

#include <unistd.h>

namespace test {

class Deadline {
public:
    explicit Deadline(unsigned seconds) { alarm(seconds); }
    ~Deadline() { alarm(0); }
    Deadline(const Deadline &) = delete;
    Deadline &operator=(const Deadline &) = delete;
};

} // namespace test
