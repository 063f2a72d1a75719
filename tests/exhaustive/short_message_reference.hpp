// SPDX-License-Identifier: MIT
// What decoding a message of up to three bytes has to do: step by step after the rules, for any
// record type, without a look at how the library does it.

#pragma once

#include "tests/catalogue/catalogue.hpp"

#include <cstdint>

namespace exhaustive {

// The members of a type by their field numbers.
class Fields {
public:
    explicit Fields(const catalogue::RecordType &type);
    const catalogue::Member *find(uint32_t number) const
    {
        return number < kNumbers ? members_[number] : nullptr;
    }

private:
    static constexpr uint32_t kNumbers = 64;
    const catalogue::Member *members_[kNumbers] = {};
};

struct Outcome {
    int32_t result = 0;
    uint32_t blocks = 0; // that were asked for
    uint32_t bytes = 0;  // in all of them
    // The record as it is encoded again: so short a message has room for one whole field.
    uint8_t encoding[4] = {};
    uint32_t encoded_size = 0;
};

// With byte strings in place these need no block.
Outcome decode_short(const Fields &fields, const uint8_t *message, uint32_t size, bool in_place);

} // namespace exhaustive
