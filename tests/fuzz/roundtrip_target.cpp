// SPDX-License-Identifier: MIT
// Fuzzer: what is decoded and encoded again can be decoded, and says the same.
#include "tests/fuzz/require.hpp"
#include "tests/fuzz/soundness.hpp"
#include "tests/fuzz/target.hpp"

namespace fuzz {

namespace {

const FailurePlan kNoFailures(FailurePlan::kNever);

} // namespace

void run(const Input &input)
{
    static Record first;
    static Record second;
    first.begin(*input.type, input.failure, 0xA5);
    const int32_t result = first.decode(place_message(input), input.flags);
    require_sound(first, result);

    // A record that decoding has left behind with an error can be sent as well.
    const Span sent = encode(first);
    second.begin(*input.type, kNoFailures, 0x5A);
    const uint32_t other = input.choice & 0x20 ? WIRE_FLAG_BYTES_IN_PLACE : 0;
    const int32_t received = second.decode(sent, input.flags ^ other);
    TARN_FUZZ_REQUIRE(received == WIRE_OK || second.blocks().has_refused());
    require_sound(second, received);
    if (received == WIRE_OK) {
        TARN_FUZZ_REQUIRE(second.blocks().held() == second.blocks().seen());
        TARN_FUZZ_REQUIRE(equal(encode(second), sent));
        if (result == WIRE_OK)
            require_same(first, second);
    }
    first.release();
    second.release();
}

} // namespace fuzz
