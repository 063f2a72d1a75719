// SPDX-License-Identifier: MIT
// For which purpose the library is built, and how functions inside it call each other.

#pragma once

namespace [[gnu::visibility("hidden")]] tarn {

// Whether the library is built to be as small as possible.
#ifdef TARN_SMALL
constexpr bool kIsSmall = true;
#else
constexpr bool kIsSmall = false;
#endif

} // namespace tarn

// So many arguments in registers: i386 would put them on the stack. Whoever passes on its own ones
// behind those leaves them where they are.
#ifdef __i386__
#define TARN_REGISTERS(count) __attribute__((regparm(count)))
#else
#define TARN_REGISTERS(count)
#endif
#define TARN_CALL TARN_REGISTERS(3)

// Also where size is asked for: a call would be no shorter.
#define TARN_INLINE __attribute__((always_inline))
