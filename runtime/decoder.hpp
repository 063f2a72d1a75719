// SPDX-License-Identifier: MIT
// The state of one decoding: the input, the position, where memory comes from, and how it ended.

#pragma once

#include "runtime/memory.hpp"
#include "wire/varint.hpp"

#include <stdint.h>

namespace [[gnu::visibility("hidden")]] tarn {

// Handed out instead of a tag when decoding is over. As a tag it would be field 0 with wire type 7,
// which no record has and nobody can skip.
constexpr uint32_t kStop = 7;

// Recognises a field loop that would never end. Only a skip can move the position backwards; what
// happens after one depends on the position and on which members are there already (a string or a
// list is refused the second time), so when both come back, they will come back for ever.
// Brent's method: remember one state, and replace it after 1, 2, 4, 8 ... steps.
class LoopWatch {
public:
    // Told of every landing at or before the field that was skipped.
    bool comes_back(uint32_t position, uint64_t present);

private:
    uint64_t present_ = 0;
    uint32_t position_ = 0;
    uint32_t steps_ = 0;
    uint32_t limit_ = 0;
};

class Decoder {
public:
    Decoder(const uint8_t *buffer, uint32_t length, Memory memory, uint32_t flags)
        : buffer_(buffer), length_(length), memory_(memory), flags_(flags)
    {}

    // The next tag, or kStop at the end of the input and where no tag can be read.
    uint32_t next_tag();
    // Ends decoding with this result.
    uint32_t stop(int32_t result);
    int32_t result() const { return result_; }
    uint32_t position() const { return position_; }

    // Skips an unknown field and hands out the tag behind it. The presence flags belong to the
    // record that is decoded; it has `members` of them.
    uint32_t skip(uint32_t tag, const uint8_t *flags, uint32_t members);

    // Readers of what stands behind a tag.
    int32_t read(uint32_t *value);
    int32_t read(uint64_t *value);
    // A length that the rest of the input holds.
    int32_t read_length(uint32_t *length);
    // The `length` bytes from here on; goes on behind them.
    const uint8_t *take(uint32_t length);

    const Memory &memory() const { return memory_; }
    uint32_t flags() const { return flags_; }
    bool bytes_in_place() const { return (flags_ & WIRE_FLAG_BYTES_IN_PLACE) != 0; }

    // For the counting pass over a list.
    bool at_end() const { return position_ >= length_; }
    void go_back(uint32_t position) { position_ = position; }

private:
    const uint8_t *buffer_;
    uint32_t length_;
    uint32_t position_ = 0;
    uint32_t tag_start_ = 0;
    Memory memory_;
    uint32_t flags_;
    int32_t result_ = WIRE_OK;
    LoopWatch watch_;
};

} // namespace tarn
