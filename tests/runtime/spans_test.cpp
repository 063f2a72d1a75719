// SPDX-License-Identifier: MIT
// Spans of every size, of which long ones are copied and cleared by a call: not a byte more.
#include "runtime/spans.hpp"

#include "tests/support/bytes.hpp"

#include <gtest/gtest.h>

#include <numeric>
#include <utility>

using namespace tarn;
using test::Bytes;
using test::join;

namespace {

constexpr uint32_t kAroundSpan = 8;

template <uint32_t size>
void expect_span_copied_and_cleared()
{
    Bytes source(size);
    std::iota(source.begin(), source.end(), uint8_t{1});
    const Bytes around(kAroundSpan, 0xA5);
    Bytes target(size + 2 * kAroundSpan, 0xA5);
    copy_span<size>(target.data() + kAroundSpan, source.data());
    EXPECT_EQ(target, join({around, source, around}));
    clear_span<size>(target.data() + kAroundSpan);
    EXPECT_EQ(target, join({around, Bytes(size, 0), around}));
}

template <uint32_t... size>
void expect_spans_copied_and_cleared(std::integer_sequence<uint32_t, size...>)
{
    (expect_span_copied_and_cleared<size + 1>(), ...);
}

} // namespace

TEST(a_span, is_copied_and_cleared_to_its_last_byte)
{
    expect_spans_copied_and_cleared(std::make_integer_sequence<uint32_t, 2 * kLongSpan>());
}
