// SPDX-License-Identifier: MIT
// Fields that the record does not have: skipped, also where that leads past the end or back.
#include "tools/core/walker.hpp"

#include <algorithm>
#include <fmt/format.h>

namespace inspect {

bool Landings::comes_back(uint32_t position, uint64_t present)
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

bool Walker::walk_unknown(Loop &loop, Tag tag, uint32_t &at)
{
    const uint32_t tag_at = at;
    Notes notes;
    notes.add(Note::unknown_field);
    if (!show_tag(loop, nullptr, notes, at))
        return false;
    if (tag.wire_type == 1 || tag.wire_type == 5)
        return walk_skipped(loop, tag, tag.wire_type == 1 ? 8 : 4, at);
    if (tag.wire_type != 0 && tag.wire_type != 2)
        return fail(WIRE_ERR_WIRE_TYPE, tag_at,
                    fmt::format("unknown field {}: {} cannot be skipped", tag.number,
                                wire_type_words(tag.wire_type)));
    const std::optional<Varint> varint = varint_at(loop, at);
    if (!varint)
        return fail_at_end(loop, nullptr, at,
                           fmt::format("it ends inside unknown field {}", tag.number));
    if (tag.wire_type == 0)
        return walk_skipped(loop, tag, varint->size, at);
    return walk_skipped_length(loop, tag, *varint, at);
}

bool Walker::walk_skipped(const Loop &loop, Tag tag, uint32_t size, uint32_t &at)
{
    const uint32_t left = loop.extent.end - at;
    Piece shown = piece(loop, nullptr, Part::skipped, at, at + std::min(size, left));
    shown.number = tag.number;
    shown.wire_type = tag.wire_type;
    shown.value = size;
    if (size > left)
        shown.notes.add(Note::past_the_end);
    at += std::min(size, left);
    return size == 0 || show(shown);
}

bool Walker::walk_skipped_length(Loop &loop, Tag tag, const Varint &length, uint32_t &at)
{
    Piece shown = varint_piece(loop, nullptr, Part::length, at, length, 32);
    shown.number = tag.number;
    shown.wire_type = tag.wire_type;
    const uint32_t length_at = at;
    at += length.size;
    // Positions are those in the record, and 32 bits wide.
    const uint64_t target = uint64_t{at - loop.extent.begin} + shown.value;
    if (target <= UINT32_MAX)
        return show(shown) && walk_skipped(loop, tag, static_cast<uint32_t>(shown.value), at);

    const auto position = static_cast<uint32_t>(target);
    shown.notes.add(Note::backward_jump);
    at = loop.extent.begin + position;
    if (!show(shown))
        return false;
    if (!loop.landings.comes_back(position, loop.present))
        return true;
    return fail(WIRE_ERR_MALFORMED, length_at, "it jumps back for ever");
}

} // namespace inspect
