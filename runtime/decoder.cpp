// SPDX-License-Identifier: MIT
#include "runtime/decoder.hpp"

#include "runtime/presence.hpp"

namespace tarn {

bool LoopWatch::comes_back(uint32_t position, uint64_t present)
{
    if (steps_ != 0 && position == position_ && present == present_)
        return true;
    if (steps_ == limit_) {
        position_ = position;
        present_ = present;
        limit_ = steps_ == 0 ? 1 : limit_ * 2;
        steps_ = 0;
    }
    steps_++;
    return false;
}

uint32_t Decoder::next_tag()
{
    if (at_end())
        return stop(WIRE_OK);
    tag_start_ = position_;
    uint32_t tag;
    if (int32_t error = read(&tag))
        return stop(error);
    return tag == kStop ? stop(WIRE_ERR_WIRE_TYPE) : tag;
}

uint32_t Decoder::stop(int32_t result)
{
    result_ = result;
    return kStop;
}

uint32_t Decoder::skip(uint32_t tag, const uint8_t *flags, uint32_t members)
{
    if (int32_t error = wire_skip_field(wire_type_of(tag), &position_, buffer_, length_))
        return stop(error);
    if (position_ <= tag_start_ && watch_.comes_back(position_, all_flags(flags, members)))
        return stop(WIRE_ERR_MALFORMED);
    return next_tag();
}

int32_t Decoder::read(uint32_t *value)
{
    return wire_read_varint32(value, &position_, buffer_, length_);
}

int32_t Decoder::read(uint64_t *value)
{
    return wire_read_varint64(value, &position_, buffer_, length_);
}

int32_t Decoder::read_length(uint32_t *length)
{
    if (int32_t error = read(length))
        return error;
    return *length > length_ - position_ ? WIRE_ERR_MALFORMED : WIRE_OK;
}

const uint8_t *Decoder::take(uint32_t length)
{
    const uint8_t *bytes = buffer_ + position_;
    position_ += length;
    return bytes;
}

} // namespace tarn
