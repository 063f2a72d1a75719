// SPDX-License-Identifier: MIT
#include "runtime/write.hpp"

#include "runtime/member.hpp"
#include "wire/copy.hpp"
#include "wire/fast.hpp"
#include "wire/text.hpp"
#include "wire/varint.hpp"

#include <type_traits>

namespace tarn {

namespace {

constexpr uint32_t tag_size(uint32_t tag)
{
    return tag < 0x80 ? 1 : 2;
}

void store_long_tag(uint8_t *to, uint32_t tag)
{
    store_2(to, (tag & 0x7F) | 0x80 | tag >> 7 << 8);
}

uint8_t *store_tag(uint8_t *to, uint32_t tag)
{
    if (tag < 0x80) {
        *to = static_cast<uint8_t>(tag);
        return to + 1;
    }
    store_long_tag(to, tag);
    return to + 2;
}

// What a scalar is on the wire, and how long its field can be.
template <typename Member>
using Scalar = std::conditional_t<sizeof(Member) == sizeof(uint64_t), uint64_t, uint32_t>;

template <typename Member>
constexpr uint32_t kLongestField = 2 + wire_varint_size(~Scalar<Member>{0});

uint32_t put_varint(uint32_t offset, Encoder &out, uint32_t value)
{
    return out.put_varint32(offset, value);
}

uint32_t put_varint(uint32_t offset, Encoder &out, uint64_t value)
{
    return out.put_varint64(offset, value);
}

// Any field anywhere: whole where it fits, else byte by byte as far as it does.
template <typename Value>
uint32_t put_field(uint32_t offset, Encoder &out, Value value, uint32_t tag)
{
    if (out.room(offset) >= wire_varint_size(value, tag_size(tag)))
        return out.offset_of(store_varint(store_tag(out.at(offset), tag), value));
    if (out.is_trying())
        return out.give_up();
    return put_varint(out.put_tag(offset, tag), out, value);
}

// The same, quicker where there is room for any.
template <typename Value>
uint32_t write_scalar(uint32_t offset, Encoder &out, Value value, uint32_t tag)
{
    if (out.is_roomy(offset))
        return out.offset_of(store_varint(store_tag(out.at(offset), tag), value));
    return put_field(offset, out, value, tag);
}

// Writes the present ones of four members, all of which are known to fit, each by code of its own:
// what comes where is easier to predict so.
template <uint32_t tag_bytes, typename Member>
uint8_t *store_four(uint8_t *to, const Member *members, uint32_t present, uint32_t tag)
{
    const auto store = [&](uint32_t place) {
        if (!(present & 1u << place))
            return;
        if constexpr (tag_bytes == 1)
            *to = static_cast<uint8_t>(tag + place * kTagStep);
        else
            store_long_tag(to, tag + place * kTagStep);
        to = store_varint(to + tag_bytes, Scalar<Member>{members[place]});
    };
    store(0);
    store(1);
    store(2);
    store(3);
    return to;
}

template <typename Member>
uint8_t *store_four(uint8_t *to, const Member *members, uint32_t present, uint32_t tag)
{
    // On a small machine that is too much code for wide members.
    if constexpr (sizeof(Member) <= sizeof(Word)) {
        if (tag < 0x80 - 3 * kTagStep)
            return store_four<1>(to, members, present, tag);
        if (tag >= 0x80)
            return store_four<2>(to, members, present, tag);
    }
    for (present &= 0xF; present; present >>= 1, members++, tag += kTagStep)
        if (present & 1)
            to = store_varint(store_tag(to, tag), Scalar<Member>{*members});
    return to;
}

// Writes elements of a list, all of which are known to fit.
uint8_t *store_list(uint8_t *to, const uint32_t *elements, uint32_t count, uint32_t tag)
{
    if (tag < 0x80) {
        for (uint32_t i = 0; i < count; i++) {
            *to = static_cast<uint8_t>(tag);
            to = store_varint(to + 1, elements[i]);
        }
        return to;
    }
    for (uint32_t i = 0; i < count; i++)
        to = store_varint(store_tag(to, tag), elements[i]);
    return to;
}

// One body for the three kinds of scalars: they differ in the width of the member.
template <typename Member>
uint32_t write_scalars(uint32_t offset, Encoder &out, const Member *members, uint32_t present,
                       uint32_t tag)
{
    constexpr uint32_t kMost = 4 * kLongestField<Member>;
    while (present && out.room(offset) >= kMost) {
        offset = out.offset_of(store_four(out.at(offset), members, present, tag));
        present >>= 4;
        members += 4;
        tag += 4 * kTagStep;
    }
    for (; present; present >>= 1, members++, tag += kTagStep)
        if (present & 1)
            offset = put_field(offset, out, Scalar<Member>{*members}, tag);
    return offset;
}

uint32_t put_text(uint32_t offset, Encoder &out, const char *text, uint32_t tag)
{
    const uint32_t length = wire_strlen(text);
    if (!out.is_sure_to_fit(offset, kLongestField<uint32_t> + uint64_t{length}))
        return out.put_text(out.put_tag(offset, tag), text, length);
    uint8_t *to = store_varint(store_tag(out.at(offset), tag), length);
    copy_short(to, text, length);
    return out.offset_of(to + length);
}

uint32_t put_prefix(uint32_t offset, Encoder &out, uint32_t tag, uint32_t length)
{
    return out.put_varint32(out.put_tag(offset, tag), length);
}

// While something is tried, everything has to fit.
uint32_t write_as_measured(uint32_t offset, Encoder &out, const uint8_t *record, uint32_t length,
                           WriteRecord write)
{
    if (!out.is_sure_to_fit(offset, length))
        return out.give_up();
    const uint32_t end = write(offset, out, record);
    if (end != offset + length)
        return out.give_up();
    out.add_segment_of_buffer(offset, length);
    return end;
}

// The prefix says what measuring found: byte strings that stay in place are not in it.
[[gnu::noinline]] uint32_t write_measured(uint32_t offset, Encoder &out, const uint8_t *record,
                                          NestedRun run, MeasureRecord measure, WriteRecord write)
{
    const uint32_t length = measure(record, out.flags());
    if (!run.present && !length)
        return offset;
    offset = put_prefix(offset, out, run.tag, length);
    if (out.is_trying())
        return write_as_measured(offset, out, record, length, write);
    Encoder inner = out.nested(offset);
    inner.finish(write(0, inner, record));
    out.count_segments(inner.segment_count());
    return offset + length;
}

// The end of a try when the record is longer than its prefix can say, or did not fit.
[[gnu::noinline]] uint32_t settle(uint32_t offset, Encoder &out, const uint8_t *record,
                                  NestedRun run, uint32_t length, uint32_t first_segment,
                                  MeasureRecord measure, WriteRecord write)
{
    if (!out.has_given_up()) {
        const uint32_t body = offset + tag_size(run.tag) + 1;
        const uint32_t distance = wire_varint32_size(length) - 1;
        if (out.move(body, length, distance, first_segment)) {
            store_varint(store_tag(out.at(offset), run.tag), length);
            out.add_segment_of_buffer(body + distance, length);
            return body + distance + length;
        }
    }
    if (out.is_trying())
        return out.give_up();
    out.start_again(first_segment);
    return write_measured(offset, out, record, run, measure, write);
}

uint32_t room_for_try(NestedRun run)
{
    return run.is_plain ? tag_size(run.tag) + 1 : Encoder::kNearEnd;
}

// Whether a record is written depends on what it holds as much as on whether it is present.
inline uint32_t write_nested(uint32_t offset, Encoder &out, const uint8_t *record, NestedRun run,
                             MeasureRecord measure, WriteRecord write)
{
    const uint32_t first_segment = out.segment_count();
    const uint32_t outer = out.begin_try();
    const uint32_t body = offset + tag_size(run.tag) + 1;
    const uint32_t length = write(body, out, record) - body;
    if (out.end_try(outer) || length >= 0x80)
        return settle(offset, out, record, run, length, first_segment, measure, write);
    if (length == 0 && !run.present)
        return offset;
    *store_tag(out.at(offset), run.tag) = static_cast<uint8_t>(length);
    out.add_segment_of_buffer(body, length);
    return body + length;
}

} // namespace

uint32_t encode_record(const void *record, uint8_t *buffer, uint32_t capacity,
                       WireSegment *segments, uint32_t *segment_count, uint32_t flags,
                       WriteRecord write)
{
    Encoder out(buffer, capacity, segments, segment_count, flags);
    const uint32_t length = write(0, out, record);
    if (segment_count) {
        out.finish(length);
        *segment_count = out.segment_count();
    }
    return length;
}

uint32_t write_uint32s(uint32_t offset, Encoder &out, const uint32_t *members, uint32_t present,
                       uint32_t tag)
{
    return write_scalars(offset, out, members, present, tag);
}

uint32_t write_uint64s(uint32_t offset, Encoder &out, const uint64_t *members, uint32_t present,
                       uint32_t tag)
{
    return write_scalars(offset, out, members, present, tag);
}

// The byte goes out as it is: 2 and more are possible when the caller has put them there.
uint32_t write_bools(uint32_t offset, Encoder &out, const uint8_t *members, uint32_t present,
                     uint32_t tag)
{
    return write_scalars(offset, out, members, present, tag);
}

uint32_t put_uint32(uint32_t offset, Encoder &out, uint32_t value, uint32_t tag)
{
    return write_scalar(offset, out, value, tag);
}

uint32_t put_uint64(uint32_t offset, Encoder &out, const uint64_t *value, uint32_t tag)
{
    return write_scalar(offset, out, *value, tag);
}

uint32_t write_string(uint32_t offset, Encoder &out, const uint8_t *member, uint32_t tag)
{
    const char *text = static_cast<const char *>(load_pointer(member));
    if (!text)
        return offset;
    return put_text(offset, out, text, tag);
}

uint32_t write_bytes(uint32_t offset, Encoder &out, const uint8_t *member, uint32_t tag)
{
    return out.put_bytes(out.put_tag(offset, tag),
                         static_cast<const uint8_t *>(load_pointer(member)), load_count(member));
}

uint32_t write_uint32_list(uint32_t offset, Encoder &out, const uint8_t *member, uint32_t tag)
{
    uint32_t count = load_count(member);
    const uint32_t *elements = static_cast<const uint32_t *>(load_pointer(member));
    while (count && !out.has_given_up()) {
        // As many as are sure to fit, and where that is none, the next.
        const uint32_t fitting = out.room(offset) / kLongestField<uint32_t>;
        const uint32_t roomy = fitting < count ? fitting : count;
        if (roomy == 0) {
            offset = put_field(offset, out, *elements++, tag);
            count--;
            continue;
        }
        offset = out.offset_of(store_list(out.at(offset), elements, roomy, tag));
        elements += roomy;
        count -= roomy;
    }
    return offset;
}

uint32_t write_string_list(uint32_t offset, Encoder &out, const uint8_t *member, uint32_t tag)
{
    const char *const *elements = static_cast<const char *const *>(load_pointer(member));
    if (!elements)
        return offset;
    const uint32_t count = load_count(member);
    for (uint32_t i = 0; i < count && !out.has_given_up(); i++)
        offset = put_text(offset, out, elements[i], tag);
    return offset;
}

uint32_t write_message(uint32_t offset, Encoder &out, const uint8_t *member, NestedRun run,
                       MeasureRecord measure, WriteRecord write)
{
    return out.can_try(offset, room_for_try(run))
               ? write_nested(offset, out, member, run, measure, write)
               : write_measured(offset, out, member, run, measure, write);
}

uint32_t write_message_list(uint32_t offset, Encoder &out, const uint8_t *member, NestedRun run,
                            MeasureRecord measure, WriteRecord write)
{
    const uint8_t *element = static_cast<const uint8_t *>(load_pointer(member));
    const uint32_t needed = room_for_try(run);
    for (uint32_t count = load_count(member); count && !out.has_given_up(); count--) {
        offset = out.can_try(offset, needed)
                     ? write_nested(offset, out, element, run, measure, write)
                     : write_measured(offset, out, element, run, measure, write);
        element += run.element_size;
    }
    return offset;
}

} // namespace tarn
