// SPDX-License-Identifier: MIT
// What a fuzzer is made of, besides all that they share.

#pragma once

#include "tests/fuzz/input.hpp"

namespace fuzz {

// One road through the operations with the input. Each fuzzer has its own.
void run(const Input &input);

// The message in memory of exactly its size, not always aligned.
Span place_message(const Input &input);

} // namespace fuzz
