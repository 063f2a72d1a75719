// SPDX-License-Identifier: MIT
// Standard output, in large pieces.

#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

namespace inspect::command {

// Whoever reads the output has enough of it. That is no failure, but there is nothing left to do.
class OutputClosed : public std::exception {};

// What was written did not arrive.
class OutputFailed : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// Every call may throw one of these two.
class OutputBuffer {
public:
    void write(std::string_view text);
    void flush();
    // After it nothing can be written. Some file systems tell only here that there is no room.
    void close();

private:
    std::string waiting_;
};

} // namespace inspect::command
