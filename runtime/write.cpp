// SPDX-License-Identifier: MIT
#include "runtime/write.hpp"

#include "runtime/member.hpp"
#include "wire/copy.hpp"
#include "wire/fast.hpp"
#include "wire/text.hpp"
#include "wire/varint.hpp"

#include <string.h>

namespace tarn {

namespace {

// A tag and a length.
constexpr uint32_t kLongestPrefix = 2 + 5;

uint32_t put_text(uint32_t offset, Encoder &out, const char *text, uint32_t tag)
{
    const uint32_t length = wire_strlen(text);
    if (length >= 0x80 || !out.is_sure_to_fit(offset, kLongestPrefix + length)) [[unlikely]]
        return out.put_text(out.put_tag(offset, tag), text, length);
    uint8_t *to = store_tag(out.at(offset), tag);
    *to++ = static_cast<uint8_t>(length);
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
    const uint32_t length = measure_by(measure, write, record, out.flags());
    if (!run.present && !length)
        return offset;
    offset = put_prefix(offset, out, run.tag, length);
    if (out.is_trying())
        return write_as_measured(offset, out, record, length, write);
    if (!out.wants_segments() && out.room(offset) == 0)
        return offset + length;
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
    if (out.end_try(outer) || length >= 0x80) [[unlikely]]
        return settle(offset, out, record, run, length, first_segment, measure, write);
    if (length == 0 && !run.present)
        return offset;
    *store_tag(out.at(offset), run.tag) = static_cast<uint8_t>(length);
    out.add_segment_of_buffer(body, length);
    return body + length;
}

constexpr uint32_t kSmallBuffer = 64;

// In so small a buffer the end is always near, and each byte has to be looked at for whether it
// fits. It is quicker to try where there is more room, and to copy. The result is above the
// capacity when that cannot be done: a try that is given up ends behind all that room.
[[gnu::noinline]] uint32_t encode_by_copy(WriteRecord write, const void *record, uint8_t *buffer,
                                          uint32_t capacity, uint32_t flags)
{
    constexpr uint32_t kMoreRoom = 2 * Encoder::kNearEnd;
    uint8_t roomy[kSmallBuffer + kMoreRoom];
    Encoder out(roomy, capacity + kMoreRoom, nullptr, nullptr, flags);
    out.begin_try();
    const uint32_t length = write(0, out, record);
    if (length <= capacity)
        memcpy(buffer, roomy, length);
    return length;
}

} // namespace

uint32_t encode_in_place(WriteRecord write, const void *record, uint8_t *buffer, uint32_t capacity,
                         WireSegment *segments, uint32_t *segment_count, uint32_t flags)
{
    Encoder out(buffer, capacity, segments, segment_count, flags);
    const uint32_t length = write(0, out, record);
    if (segment_count) {
        out.finish(length);
        *segment_count = out.segment_count();
    }
    return length;
}

uint32_t encode_record(WriteRecord write, const void *record, uint8_t *buffer, uint32_t capacity,
                       WireSegment *segments, uint32_t *segment_count, uint32_t flags)
{
    if (!kIsSmall && !segment_count && capacity && capacity <= kSmallBuffer) {
        const uint32_t length = encode_by_copy(write, record, buffer, capacity, flags);
        if (length <= capacity)
            return length;
    }
    return encode_in_place(write, record, buffer, capacity, segments, segment_count, flags);
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
