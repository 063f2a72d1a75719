// SPDX-License-Identifier: MIT
// Fuzzer: decoding, with failing requests, what it reads, and the release of what it leaves.
#include "tests/fuzz/require.hpp"
#include "tests/fuzz/soundness.hpp"
#include "tests/fuzz/target.hpp"

namespace fuzz {

void run(const Input &input)
{
    static Record record;
    const Span message = place_message(input);
    record.begin(*input.type, input.failure, input.choice & 8 ? 0xA5 : 0x5A);
    const int32_t result = record.decode(message, input.flags);
    TARN_FUZZ_REQUIRE(equal(message, input.message));
    require_sound(record, result);
    if (result == WIRE_OK)
        require_reading(record);
    record.release();
}

} // namespace fuzz
