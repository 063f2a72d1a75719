// SPDX-License-Identifier: MIT
// How the command ends when it does not do what it was asked for.

#pragma once

#include <stdexcept>
#include <string>

namespace inspect::command {

// Below 16 it is the library's result without its sign. The others are those of sysexits.h.
constexpr int kDone = 0;
constexpr int kNotSo = 16; // what was asked is answered with no
constexpr int kUsage = 64;
constexpr int kUnreadable = 65;
constexpr int kNoInput = 66;
constexpr int kInternal = 70;
constexpr int kOutputFailed = 74;

// Its text is one line for the user; what it quotes of the user's is quoted safely.
class Failure : public std::runtime_error {
public:
    Failure(int status, const std::string &text) : std::runtime_error(text), status_(status) {}

    int status() const { return status_; }

private:
    int status_;
};

} // namespace inspect::command
