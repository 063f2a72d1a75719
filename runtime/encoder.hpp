// SPDX-License-Identifier: MIT
// The state of one encoding: the buffer, and which pieces of it have been reported. The offset is
// not part of it: it is handed along, so that it can stay in a register.

#pragma once

#include "runtime/record.h"
#include "wire/call.hpp"

#include <stdint.h>

namespace [[gnu::visibility("hidden")]] tarn {

class Encoder {
public:
    // A null `segment_count` means that nobody wants the pieces.
    Encoder(uint8_t *buffer, uint32_t capacity, WireSegment *segments,
            const uint32_t *segment_count, uint32_t flags)
        : roomy_{buffer, roomy_until(capacity)}, capacity_(capacity), flags_(flags),
          wants_segments_(segment_count != nullptr), segments_(segments),
          segment_capacity_(segments && segment_count ? *segment_count : 0)
    {}

    // For a nested record that starts here. Where the buffer is full, it is given none.
    Encoder nested(uint32_t offset) const;

    uint32_t flags() const { return flags_; }
    // What is left of the buffer behind an offset, and where it begins when that is something.
    // Where, below this offset, any field that is a number fits.
    struct Roomy {
        uint8_t *buffer;
        uint32_t until;
    };
    const Roomy &roomy() const { return roomy_; }
    bool is_roomy(uint32_t offset) const { return offset < roomy_.until; }
    uint32_t room(uint32_t offset) const { return offset < capacity_ ? capacity_ - offset : 0; }
    uint8_t *at(uint32_t offset) const { return roomy_.buffer + offset; }
    uint32_t offset_of(const uint8_t *at) const
    {
        return static_cast<uint32_t>(at - roomy_.buffer);
    }

    // Writers of what may not fit. They return the offset behind it.
    uint32_t put_tag(uint32_t offset, uint32_t tag);
    uint32_t put_varint32(uint32_t offset, uint32_t value);
    uint32_t put_varint64(uint32_t offset, uint64_t value);
    // A text that does not fit whole is counted but not copied, not even in part.
    TARN_CALL uint32_t put_text(uint32_t offset, const char *text, uint32_t length);
    TARN_CALL uint32_t put_bytes(uint32_t offset, const uint8_t *data, uint32_t length);

    // A nested record is not measured beforehand where it can be tried: it is written behind a
    // prefix of one byte, and moved when its length takes more. While something is tried, whatever
    // does not fit, or may not fit when everything around it has moved, ends the try. The caller
    // then writes again, from the same offset on, what was tried: that covers every byte written.
    bool can_try(uint32_t offset, uint32_t needed) const
    {
        return room(offset) > needed && !hands_out_bytes();
    }
    uint32_t begin_try()
    {
        const uint32_t outer = growth_;
        growth_ += kMostGrowth;
        return outer;
    }
    // True when the try did not succeed.
    bool end_try(uint32_t outer)
    {
        growth_ = outer;
        return given_up_;
    }
    bool is_trying() const { return growth_ != 0; }
    // Near the end trying is hardly worth it: texts that end there may not fit.
    static constexpr uint32_t kNearEnd = 0x80;

    // Ends the try. Nothing is written behind the offset that is returned.
    uint32_t give_up()
    {
        given_up_ = true;
        return capacity_;
    }
    // Whether so many bytes fit, wherever they will have moved.
    bool is_sure_to_fit(uint32_t offset, uint64_t length) const
    {
        return uint64_t{offset} + growth_ + length <= capacity_;
    }
    bool has_given_up() const { return given_up_; }
    void start_again(uint32_t segment_count)
    {
        given_up_ = false;
        segment_count_ = segment_count;
    }

    bool wants_segments() const { return wants_segments_; }
    // Moves what was tried, and its pieces from the given one on, to where a longer prefix ends.
    // False when it does not fit there.
    TARN_CALL bool move(uint32_t offset, uint32_t length, uint32_t distance,
                        uint32_t first_segment);
    void add_segment_of_buffer(uint32_t offset, uint32_t length)
    {
        if (wants_segments_ && length)
            add_segment(roomy_.buffer + offset, length);
    }

    // Reports the last piece.
    void finish(uint32_t offset);
    // The pieces reported so far, which may be more than there was room for.
    uint32_t segment_count() const { return segment_count_; }
    void count_segments(uint32_t segments) { segment_count_ += segments; }
    // Where the next piece goes, or null where there is no room, and how many still fit.
    WireSegment *free_segments() const;
    uint32_t free_segment_count() const;

    // A tag of two bytes, a number of ten.
    static constexpr uint32_t kLongestField = 12;

private:
    static uint32_t roomy_until(uint32_t capacity)
    {
        return capacity < kLongestField ? 0 : capacity - kLongestField + 1;
    }

    // A length of 32 bits takes up to five bytes.
    static constexpr uint32_t kMostGrowth = 4;

    bool hands_out_bytes() const
    {
        return wants_segments_ && (flags_ & WIRE_FLAG_BYTES_IN_PLACE) != 0;
    }
    void add_segment(const uint8_t *data, uint32_t length);
    const uint8_t *address_of(uint32_t offset) const;

    Roomy roomy_;
    uint32_t capacity_;
    uint32_t growth_ = 0; // by how much what is tried may still move
    bool given_up_ = false;
    uint32_t flags_;
    bool wants_segments_; // beside the other one, both would be set from a constant, which is data
    WireSegment *segments_;
    uint32_t segment_capacity_;
    uint32_t segment_count_ = 0;
    uint32_t segment_start_ = 0; // offset of the first byte that no piece covers yet
};

} // namespace tarn
