// SPDX-License-Identifier: MIT
// Memory that holds something, but nothing that anybody may decide by. A tool that watches memory
// (preset msan, scripts/check-valgrind) reports who does; elsewhere these functions do nothing.

#pragma once

#include <cstddef>

#if defined(__has_feature)
#if __has_feature(memory_sanitizer)
#define TARN_TEST_MSAN
#include <sanitizer/allocator_interface.h>
#include <sanitizer/msan_interface.h>
#endif
#endif

#if !defined(TARN_TEST_MSAN) && (defined(__x86_64__) || defined(__i386__))
#if __has_include(<valgrind/memcheck.h>)
#define TARN_TEST_VALGRIND
#include <valgrind/memcheck.h>
#endif
#endif

// For functions that look at memory as it is, also where nobody has written.
#ifdef TARN_TEST_MSAN
#define TARN_TEST_UNWATCHED __attribute__((no_sanitize("memory")))
#else
#define TARN_TEST_UNWATCHED
#endif

namespace test {

#ifdef TARN_TEST_MSAN
// New blocks count as written: what the C++ library writes into them is not seen, and that a block
// was made undefined in an earlier life is no concern of its next owner. Called from inside of the
// allocator, so that nothing may be added to these functions.
__attribute__((disable_sanitizer_instrumentation)) inline void
define_new_block(const volatile void *block, size_t size)
{
    __msan_unpoison(block, size);
}

__attribute__((disable_sanitizer_instrumentation)) inline void
ignore_freed_block(const volatile void *)
{}

inline const int new_blocks_are_defined =
    __sanitizer_install_malloc_and_free_hooks(define_new_block, ignore_freed_block);
#endif

// The bytes stay, but count as never written.
inline void make_undefined([[maybe_unused]] void *data, [[maybe_unused]] size_t size)
{
#if defined(TARN_TEST_MSAN)
    __msan_poison(data, size);
#elif defined(TARN_TEST_VALGRIND)
    VALGRIND_MAKE_MEM_UNDEFINED(data, size);
#endif
}

inline void make_defined([[maybe_unused]] const void *data, [[maybe_unused]] size_t size)
{
#if defined(TARN_TEST_MSAN)
    __msan_unpoison(data, size);
#elif defined(TARN_TEST_VALGRIND)
    VALGRIND_MAKE_MEM_DEFINED(data, size);
#endif
}

// While one is there, nothing is reported. It belongs into functions that are TARN_TEST_UNWATCHED.
class Unwatched {
public:
    Unwatched()
    {
#if defined(TARN_TEST_MSAN)
        __msan_scoped_disable_interceptor_checks();
#elif defined(TARN_TEST_VALGRIND)
        VALGRIND_DISABLE_ERROR_REPORTING;
#endif
    }

    ~Unwatched()
    {
#if defined(TARN_TEST_MSAN)
        __msan_scoped_enable_interceptor_checks();
#elif defined(TARN_TEST_VALGRIND)
        VALGRIND_ENABLE_ERROR_REPORTING;
#endif
    }

    Unwatched(const Unwatched &) = delete;
    Unwatched &operator=(const Unwatched &) = delete;
};

} // namespace test
