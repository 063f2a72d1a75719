// SPDX-License-Identifier: MIT
#include "tests/fuzz/input.hpp"

namespace fuzz {

namespace {

uint32_t two_bytes(const uint8_t *data)
{
    return data[0] | uint32_t{data[1]} << 8;
}

// The first bit is the one that has a meaning; the others are repeated over the word.
uint32_t flags_word(uint8_t byte)
{
    return byte | (byte & 0xFEU) * 0x01010100U;
}

} // namespace

std::optional<Input> read_input(const uint8_t *data, size_t size)
{
    if (size < Input::kHeader)
        return std::nullopt;
    const Span message{data + Input::kHeader, size - Input::kHeader};
    if (jumps_too_often(message))
        return std::nullopt;
    return Input{
        &type_at(two_bytes(data + Input::kTypeLow) % type_count()),
        flags_word(data[Input::kFlags]),
        FailurePlan(data[Input::kFailure]),
        two_bytes(data + Input::kCapacityLow),
        data[Input::kSegments],
        data[Input::kChoice],
        message,
    };
}

} // namespace fuzz
