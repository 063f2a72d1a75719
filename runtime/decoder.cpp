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

HandedBack Decoder::first_tag()
{
    return next_tag(begin_);
}

HandedBack Decoder::read_long_tag(const uint8_t *at)
{
    uint32_t tag;
    if (!(at = read_slowly(at, &tag)))
        return Cursor{at, kStop};
    return Cursor{at, tag == kStop ? kNobodys : tag};
}

// Positions are 32 bits wide and wrap around when a skipped field is long enough.
HandedBack Decoder::skip(Cursor cursor, LoopWatch &watch, const uint8_t *flags, uint32_t members)
{
    const uint32_t length = static_cast<uint32_t>(end_ - begin_);
    const uint32_t behind_tag = static_cast<uint32_t>(cursor.at - begin_);
    uint32_t position = behind_tag;
    if (int32_t error = wire_skip_field(wire_type_of(cursor.tag()), &position, begin_, length))
        return stop(error);
    if (position < behind_tag && watch.comes_back(position, all_flags(flags, members)))
        return stop(WIRE_ERR_MALFORMED);
    return next_tag(position < length ? begin_ + position : end_);
}

const uint8_t *Decoder::read_slowly(const uint8_t *at, uint32_t *value)
{
    uint32_t size = 0;
    const uint32_t length = static_cast<uint32_t>(end_ - at);
    if (int32_t error = wire_read_varint32(value, &size, at, length))
        return fail(error);
    return at + size;
}

const uint8_t *Decoder::read_slowly(const uint8_t *at, uint64_t *value)
{
    uint32_t size = 0;
    const uint32_t length = static_cast<uint32_t>(end_ - at);
    if (int32_t error = wire_read_varint64(value, &size, at, length))
        return fail(error);
    return at + size;
}

} // namespace tarn
