// SPDX-License-Identifier: MIT
// A claim that a fuzzer holds against the library. Where it is wrong the process ends, which is a
// finding.

#pragma once

namespace fuzz {

[[noreturn]] void report(const char *claim, const char *file, int line);

} // namespace fuzz

#define TARN_FUZZ_REQUIRE(claim)                                                                   \
    (static_cast<bool>(claim) ? void(0) : fuzz::report(#claim, __FILE__, __LINE__))
