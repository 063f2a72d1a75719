// SPDX-License-Identifier: MIT
// Copies of every length, near and far from that at which copying changes its ways.
#include "wire/copy.hpp"

#include "tests/support/bytes.hpp"

#include <gtest/gtest.h>

using tarn::copy_short;
using test::Bytes;
using test::join;

namespace {

Bytes counted(uint32_t length)
{
    Bytes bytes;
    bytes.reserve(1); // not null either when it is empty
    bytes.resize(length);
    for (uint32_t i = 0; i < length; i++)
        bytes[i] = static_cast<uint8_t>(i * 7 + 1);
    return bytes;
}

} // namespace

// The source is a block of just that length, and what stands around the target stays.
TEST(copying, takes_every_byte_and_touches_no_other)
{
    constexpr uint8_t kGuard = 0xA5;
    constexpr uint32_t kMargin = 20;
    for (uint32_t length = 0; length <= 300; length++) {
        const Bytes source = counted(length);
        Bytes target(length + 2 * kMargin, kGuard);
        copy_short(target.data() + kMargin, source.data(), length);
        const Bytes margin(kMargin, kGuard);
        EXPECT_EQ(target, join({margin, source, margin})) << "length " << length;
    }
}

// Both are blocks of just that length: not a byte behind them is looked at.
TEST(copying, stays_inside_both_blocks)
{
    for (uint32_t length = 0; length <= 200; length++) {
        const Bytes source = counted(length);
        Bytes target = Bytes(length, 0);
        target.reserve(1);
        copy_short(target.data(), source.data(), length);
        EXPECT_EQ(target, source) << "length " << length;
    }
}
