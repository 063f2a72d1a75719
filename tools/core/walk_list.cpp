// SPDX-License-Identifier: MIT
// Lists: a run of elements is counted first, and then read.
#include "tools/core/walker.hpp"

namespace inspect {

namespace {

uint64_t element_size(const Member &member)
{
    switch (member.kind) {
    case Kind::repeated_message:
        return member.child->size_here();
    case Kind::repeated_string:
        return sizeof(const char *);
    default:
        return sizeof(uint32_t);
    }
}

} // namespace

bool Walker::walk_list(const Loop &loop, const Member &member, uint32_t &at)
{
    uint32_t count = 0;
    if (!count_run(loop, member, at, count) || !take_block(count * element_size(member), at))
        return false;
    for (uint32_t i = 0; i < count; i++) {
        path_.back().index = i;
        Notes notes;
        if (i > 0 && tag_of(*varint_at(loop, at)).wire_type != member.wire_type())
            notes.add(Note::other_wire_type);
        if (i > 0 && !show_tag(loop, &member, notes, at))
            return false;
        if (!walk_content(loop, member, at))
            return false;
    }
    return true;
}

bool Walker::count_run(const Loop &loop, const Member &member, uint32_t at, uint32_t &count)
{
    const uint32_t begin = at;
    while (true) {
        path_.back().index = count;
        const uint32_t element = at;
        if (!step_over_element(loop, member, at))
            return fail_in_run(loop, member, begin, element, "an element reaches past the end");
        count++;
        if (at == loop.extent.end)
            return true;
        const std::optional<Varint> tag = varint_at(loop, at);
        if (!tag)
            return fail_in_run(loop, member, begin, at, "it ends inside the tag behind an element");
        if (tag_of(*tag).number != member.number)
            return true;
        at += tag->size;
    }
}

bool Walker::step_over_element(const Loop &loop, const Member &member, uint32_t &at)
{
    const std::optional<Varint> first = varint_at(loop, at);
    if (!first)
        return false;
    at += first->size;
    if (member.wire_type() != 2)
        return true;
    const auto length = static_cast<uint32_t>(first->value);
    if (length > loop.extent.end - at)
        return false;
    at += length;
    return true;
}

// There is no list then, so nothing of the run is shown as if it had been read.
bool Walker::fail_in_run(const Loop &loop, const Member &member, uint32_t begin, uint32_t at,
                         std::string reason)
{
    const uint32_t index = path_.back().index;
    path_.back().index = 0;
    if (begin < at && !show(piece(loop, &member, Part::unread, begin, at)))
        return false;
    path_.back().index = index;
    return fail_at_end(loop, &member, at, std::move(reason));
}

} // namespace inspect
