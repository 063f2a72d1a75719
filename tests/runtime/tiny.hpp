// SPDX-License-Identifier: MIT
// Records of one number and of two, with any numbers for their fields.

#pragma once

#include "tests/runtime/plain_numbers.hpp"
#include "tests/support/operations.hpp"

#include <stddef.h>
#include <stdint.h>

namespace test {

template <typename Member, uint8_t number>
struct TinyOne {
    alignas(sizeof(Member)) Member first;
    uint8_t flags;
};

template <typename First, uint8_t first_number, typename Second, uint8_t second_number>
struct TinyTwo {
    alignas(sizeof(First)) First first;
    alignas(sizeof(Second)) Second second;
    uint8_t flags;
};

// Whether there is one of 64 bits.
template <typename Tiny>
constexpr bool has_wide_member()
{
    return alignof(Tiny) == sizeof(uint64_t);
}

} // namespace test

namespace [[gnu::visibility("hidden")]] tarn {

template <typename Member, uint8_t number>
struct Schema<test::TinyOne<Member, number>> {
    static constexpr Field fields[] = {
        field<test::kind_of_member<Member>(), Member>(number, 0),
    };
    using Children = RecordTypes<>;
};

template <typename First, uint8_t first_number, typename Second, uint8_t second_number>
struct Schema<test::TinyTwo<First, first_number, Second, second_number>> {
    using Tiny = test::TinyTwo<First, first_number, Second, second_number>;
    static constexpr Field fields[] = {
        field<test::kind_of_member<First>(), First>(first_number, offsetof(Tiny, first)),
        field<test::kind_of_member<Second>(), Second>(second_number, offsetof(Tiny, second)),
    };
    using Children = RecordTypes<>;
};

} // namespace tarn
