// SPDX-License-Identifier: MIT
// The state of one encoding: where in the buffer it is, and which pieces it has reported. A nested
// record is written by an Encoder of its own, over what its parent has left of buffer and pieces.

#pragma once

#include "runtime/record.h"

#include <stdint.h>

namespace [[gnu::visibility("hidden")]] tarn {

class Encoder {
public:
    // A null `segment_count` means that nobody wants the pieces.
    Encoder(uint8_t *buffer, uint32_t capacity, WireSegment *segments,
            const uint32_t *segment_count, uint32_t flags);

    // For a nested record that starts here. Where the buffer is full, it is given none.
    Encoder nested() const;
    // Goes on behind a nested record. The length is the one that its prefix says.
    void step_over(uint32_t length, uint32_t segments);

    void put_tag(uint32_t tag);
    void put_varint32(uint32_t value);
    void put_varint64(uint64_t value);
    // A text that does not fit whole is counted but not copied, not even in part.
    void put_text(const char *text, uint32_t length);
    void put_bytes(const uint8_t *data, uint32_t length);

    // Reports the last piece.
    void finish();
    // The length of the encoding so far, whether or not it fits.
    uint32_t offset() const { return offset_; }
    // The pieces reported so far, which may be more than there was room for.
    uint32_t segment_count() const { return segment_count_; }

    uint8_t *buffer() const { return buffer_; }
    uint32_t capacity() const { return capacity_; }
    uint32_t flags() const { return flags_; }
    // Where the next piece goes, or null where there is no room, and how many still fit.
    WireSegment *free_segments() const;
    uint32_t free_segment_count() const;

private:
    void add_segment(const uint8_t *data, uint32_t length);
    void add_buffer_segment();
    const uint8_t *buffer_at(uint32_t offset) const;

    uint8_t *buffer_;
    uint32_t capacity_;
    uint32_t offset_ = 0;
    WireSegment *segments_;
    uint32_t segment_capacity_;
    uint32_t segment_count_ = 0;
    uint32_t segment_start_ = 0; // offset of the first byte that no piece covers yet
    uint32_t flags_;
    bool wants_segments_;
};

} // namespace tarn
