// SPDX-License-Identifier: MIT
// A line on the terminal that tells how far a long work is: "decode  37 %".

#pragma once

#include <chrono>
#include <string_view>

namespace inspect::command {

class Meter {
public:
    explicit Meter(bool is_seen) : is_seen_(is_seen) {}
    ~Meter() { clear(); }
    Meter(const Meter &) = delete;
    Meter &operator=(const Meter &) = delete;

    // From 0 to 1. Shown once it has taken a while, and not more often than one can look.
    void tell(std::string_view work, double share);
    void clear();

private:
    using Clock = std::chrono::steady_clock;

    bool is_seen_;
    bool is_shown_ = false;
    Clock::time_point due_ = Clock::now() + std::chrono::milliseconds(500);
};

} // namespace inspect::command
