// SPDX-License-Identifier: MIT
#include "runtime/encoder.hpp"

#include "wire/fast.hpp"
#include "wire/varint.hpp"

#include <string.h>

namespace tarn {

Encoder Encoder::nested(uint32_t offset) const
{
    const bool full = offset >= capacity_;
    const uint32_t free_segments_left = free_segment_count();
    return Encoder(full ? nullptr : roomy_.buffer + offset, full ? 0 : capacity_ - offset,
                   free_segments(), wants_segments_ ? &free_segments_left : nullptr, flags_);
}

uint32_t Encoder::put_tag(uint32_t offset, uint32_t tag)
{
    return wire_put_tag(tag, offset, roomy_.buffer, capacity_);
}

uint32_t Encoder::put_varint32(uint32_t offset, uint32_t value)
{
    return wire_put_varint32(value, offset, roomy_.buffer, capacity_);
}

uint32_t Encoder::put_varint64(uint32_t offset, uint64_t value)
{
    return wire_put_varint64(value, offset, roomy_.buffer, capacity_);
}

uint32_t Encoder::put_text(uint32_t offset, const char *text, uint32_t length)
{
    offset = put_varint32(offset, length);
    if (is_trying() && !is_sure_to_fit(offset, length))
        return give_up();
    const uint32_t end = offset + length;
    if (end <= capacity_ && end > offset)
        memcpy(roomy_.buffer + offset, text, length);
    return end;
}

uint32_t Encoder::put_bytes(uint32_t offset, const uint8_t *data, uint32_t length)
{
    offset = put_varint32(offset, length);
    if (flags_ & WIRE_FLAG_BYTES_IN_PLACE) {
        if (is_trying() && offset > capacity_)
            return give_up();
        if (!wants_segments_ || length == 0)
            return offset;
        add_segment(address_of(segment_start_), offset - segment_start_);
        segment_start_ = offset;
        add_segment(data, length);
        return offset;
    }
    if (is_trying() && !is_sure_to_fit(offset, length))
        return give_up();
    // Unlike a text, a length that would wrap around counts for nothing.
    const uint32_t end = offset + length;
    if (end <= offset)
        return offset;
    if (end <= capacity_)
        memcpy(roomy_.buffer + offset, data, length);
    return end;
}

bool Encoder::move(uint32_t offset, uint32_t length, uint32_t distance, uint32_t first_segment)
{
    if (distance > room(offset + length))
        return false;
    // From the end, in blocks as long as there are some: the two places overlap.
    uint8_t *from = roomy_.buffer + offset;
    uint32_t left = length;
    struct Block {
        uint64_t words[4];
    };
    for (; left >= sizeof(Block); left -= uint32_t{sizeof(Block)}) {
        Block block;
        memcpy(&block, from + left - sizeof(Block), sizeof(Block));
        memcpy(from + left - sizeof(Block) + distance, &block, sizeof(Block));
    }
    for (; left >= kWordSize; left -= kWordSize) {
        const Word word = load_word(from + left - kWordSize);
        memcpy(from + left - kWordSize + distance, &word, sizeof word);
    }
    while (left--)
        from[left + distance] = from[left];
    for (uint32_t i = first_segment; i < segment_count_ && i < segment_capacity_; i++)
        segments_[i].data += distance;
    return true;
}

void Encoder::finish(uint32_t offset)
{
    if (wants_segments_ && segment_start_ < offset)
        add_segment(address_of(segment_start_), offset - segment_start_);
}

WireSegment *Encoder::free_segments() const
{
    return free_segment_count() ? segments_ + segment_count_ : nullptr;
}

uint32_t Encoder::free_segment_count() const
{
    return segment_count_ < segment_capacity_ ? segment_capacity_ - segment_count_ : 0;
}

void Encoder::add_segment(const uint8_t *data, uint32_t length)
{
    if (segment_count_ < segment_capacity_)
        segments_[segment_count_] = {data, length};
    segment_count_++;
}

// Callers count pieces of a buffer that they have yet to allocate: it may be null here.
const uint8_t *Encoder::address_of(uint32_t offset) const
{
    const uintptr_t address = reinterpret_cast<uintptr_t>(roomy_.buffer) + offset;
    return reinterpret_cast<const uint8_t *>(address); // NOLINT(performance-no-int-to-ptr)
}

} // namespace tarn
