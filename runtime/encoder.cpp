// SPDX-License-Identifier: MIT
#include "runtime/encoder.hpp"

#include "wire/varint.hpp"

#include <string.h>

namespace tarn {

Encoder::Encoder(uint8_t *buffer, uint32_t capacity, WireSegment *segments,
                 const uint32_t *segment_count, uint32_t flags)
    : buffer_(buffer), capacity_(capacity), segments_(segments),
      segment_capacity_(segments && segment_count ? *segment_count : 0), flags_(flags),
      wants_segments_(segment_count != nullptr)
{}

Encoder Encoder::nested() const
{
    const bool full = offset_ >= capacity_;
    const uint32_t free_segments_left = free_segment_count();
    return Encoder(full ? nullptr : buffer_ + offset_, full ? 0 : capacity_ - offset_,
                   free_segments(), wants_segments_ ? &free_segments_left : nullptr, flags_);
}

void Encoder::step_over(uint32_t length, uint32_t segments)
{
    offset_ += length;
    segment_count_ += segments;
}

void Encoder::put_tag(uint32_t tag)
{
    offset_ = wire_put_tag(tag, offset_, buffer_, capacity_);
}

void Encoder::put_varint32(uint32_t value)
{
    offset_ = wire_put_varint32(value, offset_, buffer_, capacity_);
}

void Encoder::put_varint64(uint64_t value)
{
    offset_ = wire_put_varint64(value, offset_, buffer_, capacity_);
}

void Encoder::put_text(const char *text, uint32_t length)
{
    put_varint32(length);
    const uint32_t end = offset_ + length;
    if (end <= capacity_ && end > offset_)
        memcpy(buffer_ + offset_, text, length);
    offset_ = end;
}

void Encoder::put_bytes(const uint8_t *data, uint32_t length)
{
    put_varint32(length);
    if (flags_ & WIRE_FLAG_BYTES_IN_PLACE) {
        if (!wants_segments_ || length == 0)
            return;
        add_buffer_segment();
        add_segment(data, length);
        return;
    }
    // Unlike a text, a length that would wrap around counts for nothing.
    const uint32_t end = offset_ + length;
    if (end <= offset_)
        return;
    if (end <= capacity_)
        memcpy(buffer_ + offset_, data, length);
    offset_ = end;
}

void Encoder::finish()
{
    if (wants_segments_ && segment_start_ < offset_)
        add_buffer_segment();
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

void Encoder::add_buffer_segment()
{
    add_segment(buffer_at(segment_start_), offset_ - segment_start_);
    segment_start_ = offset_;
}

// Callers count pieces of a buffer that they have yet to allocate: it may be null here.
const uint8_t *Encoder::buffer_at(uint32_t offset) const
{
    const uintptr_t address = reinterpret_cast<uintptr_t>(buffer_) + offset;
    return reinterpret_cast<const uint8_t *>(address); // NOLINT(performance-no-int-to-ptr)
}

} // namespace tarn
