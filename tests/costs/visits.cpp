// SPDX-License-Identifier: MIT
// How such a message is laid out, here with two levels:
//
//   fields 1 | fields 2 | content | jumps 2 | jumps 1
//
// A field reaches from its place to the jump of the same index, which leads on to the next field.
// Between two fields stands the tag of an unknown field of fixed width. It makes whoever is decoded
// inside step over the fields of the level above, to its own. What is decoded inside comes, where
// it has not ended before, to jumps in front of its own start, which lead it past its end.
#include "tests/costs/visits.hpp"

namespace costs {

namespace {

constexpr uint32_t kNarrow = 4; // tag and length of a field, as wide as what a fixed32 skips
constexpr uint32_t kWide = 8;

uint32_t field_size(uint32_t tag)
{
    return tag < 0x80 ? kNarrow : kWide;
}

struct Level {
    Visits tags;
    std::vector<uint32_t> fields; // where they stand
    uint32_t jumps = 0;           // where the first stands

    uint32_t jump(size_t visit) const { return jumps + kJumpSize * static_cast<uint32_t>(visit); }
};

std::vector<Level> lay_out(const std::vector<Visits> &all_tags, uint32_t content_size)
{
    std::vector<Level> levels;
    uint32_t position = 0;
    for (const Visits &tags : all_tags) {
        Level level{tags, {}, 0};
        for (uint32_t tag : tags) {
            position += level.fields.empty() ? 0 : 1;
            level.fields.push_back(position);
            position += field_size(tag);
        }
        levels.push_back(level);
    }
    position += content_size;
    for (auto level = levels.rbegin(); level != levels.rend(); ++level) {
        level->jumps = position;
        position = level->jump(level->tags.size());
    }
    return levels;
}

void put_fields(Bytes &bytes, const Level &level)
{
    for (size_t i = 0; i < level.tags.size(); i++) {
        const uint32_t tag = level.tags[i];
        const uint32_t end = level.fields[i] + field_size(tag);
        if (i > 0)
            bytes.push_back(field_size(tag) == kNarrow ? kUnknownFixed32 : kUnknownFixed64);
        put_varint(bytes, tag);
        put_padded_varint(bytes, level.jump(i) - end, field_size(tag) - varint_size(tag));
    }
}

void put_jumps(Bytes &bytes, const Level &level, uint32_t last_target)
{
    for (size_t i = 1; i < level.tags.size(); i++)
        put_jump(bytes, level.fields[i]);
    put_jump(bytes, last_target);
}

} // namespace

Bytes nested_visits(const std::vector<Visits> &all_tags, const Bytes &content, Ending ending)
{
    const std::vector<Level> levels = lay_out(all_tags, content.length());
    Bytes bytes;
    for (const Level &level : levels)
        put_fields(bytes, level);
    bytes.insert(bytes.end(), content.begin(), content.end());
    for (size_t i = levels.size(); i-- > 0;)
        put_jumps(bytes, levels[i], i == 0 && ending == Ending::starts_anew ? 0 : kFarAway);
    return bytes;
}

uint32_t visit_size(uint32_t tag)
{
    return 1 + field_size(tag) + kJumpSize;
}

} // namespace costs
