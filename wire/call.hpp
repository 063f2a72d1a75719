// SPDX-License-Identifier: MIT
// How functions inside the library call each other.

#pragma once

// Arguments in registers: i386 would put them on the stack.
#ifdef __i386__
#define TARN_CALL __attribute__((regparm(3)))
#else
#define TARN_CALL
#endif

// Also where size is asked for: a call would be no shorter.
#define TARN_INLINE __attribute__((always_inline))
