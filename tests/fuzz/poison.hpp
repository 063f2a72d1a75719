// SPDX-License-Identifier: MIT
// What the sanitizer of this build, or valgrind, is told about memory that the fuzzers divide up
// themselves.

#pragma once

#include <stddef.h>

#if defined(__SANITIZE_ADDRESS__)
#define TARN_FUZZ_ASAN 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define TARN_FUZZ_ASAN 1
#elif __has_feature(memory_sanitizer)
#define TARN_FUZZ_MSAN 1
#endif
#endif

#if defined(TARN_FUZZ_ASAN)
#include <sanitizer/asan_interface.h>
#elif defined(TARN_FUZZ_MSAN)
#include <sanitizer/msan_interface.h>
#elif defined(TARN_FUZZ_VALGRIND)
#include <valgrind/memcheck.h>
#endif

namespace fuzz {

// Nobody may touch these bytes.
inline void forbid([[maybe_unused]] const void *bytes, [[maybe_unused]] size_t size)
{
#if defined(TARN_FUZZ_ASAN)
    __asan_poison_memory_region(bytes, size);
#elif defined(TARN_FUZZ_MSAN)
    __msan_poison(bytes, size);
#elif defined(TARN_FUZZ_VALGRIND)
    VALGRIND_MAKE_MEM_NOACCESS(bytes, size);
#endif
}

// These may be written, and read after that.
inline void permit([[maybe_unused]] const void *bytes, [[maybe_unused]] size_t size)
{
#if defined(TARN_FUZZ_ASAN)
    __asan_unpoison_memory_region(bytes, size);
#elif defined(TARN_FUZZ_VALGRIND)
    VALGRIND_MAKE_MEM_UNDEFINED(bytes, size);
#endif
}

// What is in them is rubbish, though it has been written.
inline void forget([[maybe_unused]] const void *bytes, [[maybe_unused]] size_t size)
{
#if defined(TARN_FUZZ_MSAN)
    __msan_poison(bytes, size);
#elif defined(TARN_FUZZ_VALGRIND)
    VALGRIND_MAKE_MEM_UNDEFINED(bytes, size);
#endif
}

} // namespace fuzz
