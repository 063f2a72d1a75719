// SPDX-License-Identifier: MIT
// Fuzzer: copies of decoded records, with and without enough memory.
#include "tests/fuzz/require.hpp"
#include "tests/fuzz/soundness.hpp"
#include "tests/fuzz/target.hpp"

#include <string.h>

namespace fuzz {

namespace {

const FailurePlan kNoFailures(FailurePlan::kNever);

void overwrite(Span message)
{
    // The message lies in the arena, which may be written.
    if (message.size)
        memset(const_cast<uint8_t *>(message.data), 0xEE, message.size);
}

} // namespace

void run(const Input &input)
{
    static Record original;
    static Record copy;
    const Span message = place_message(input);
    original.begin(*input.type, kNoFailures, 0xA5);
    require_sound(original, original.decode(message, input.flags));
    const Span sent = encode(original);
    const Span image = exact_copy({original.data(), original.type().size});

    copy.begin(*input.type, input.failure, 0x5A);
    const int32_t result = copy.copy(original);
    require_copy(copy, original, result);
    TARN_FUZZ_REQUIRE(equal(image, {original.data(), original.type().size}));
    TARN_FUZZ_REQUIRE(equal(encode(original), sent));

    // The copy outlives what it was made from. With texts missing from a list it cannot be sent.
    original.release();
    overwrite(message);
    if (result == WIRE_OK)
        TARN_FUZZ_REQUIRE(equal(encode(copy), sent));
    copy.release();
}

} // namespace fuzz
