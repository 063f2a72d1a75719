// SPDX-License-Identifier: MIT
// Lists: a run of elements is read twice, to count them and to fill an array of the right size.
#include "runtime/decode_steps.hpp"
#include "runtime/member.hpp"

#include <string.h>

namespace tarn {

namespace {

template <WireType wire_type>
const uint8_t *step_over_element(Decoder &in, const uint8_t *at)
{
    uint32_t value;
    if constexpr (wire_type == kVarint)
        return in.read(at, &value);
    at = in.read_length(at, &value);
    return at ? at + value : nullptr;
}

// Counts the elements of a run; null after an error. Only the field number tells what belongs to
// the run: a tag of another wire type is stepped over as if it were right.
template <WireType wire_type>
bool count_elements(Decoder &in, const uint8_t *at, const DecodedRun &run, uint32_t *count)
{
    Cursor cursor(at, make_tag(run.number, wire_type));
    *count = 0;
    do {
        if constexpr (wire_type == kVarint && !kIsSmall)
            for (; in.is_among_small(cursor); *count += 4)
                cursor.at += kFourSmall;
        if (!(at = step_over_element<wire_type>(in, cursor.at)))
            return false;
        ++*count;
        cursor = in.next_tag(at);
    } while (is_field(cursor.tag(), run));
    return cursor.at != nullptr;
}

// Decodes one run of a list whose elements are `element_size` bytes; read_element(at, element)
// reads one.
// The array hangs on the record with its full count before the first element is read, and arrays of
// pointers and of records are cleared: wherever reading stops, the record can be released.
template <WireType wire_type, typename ReadElement>
const uint8_t *read_list(Decoder &in, const uint8_t *at, uint8_t *member, const DecodedRun &run,
                         uint32_t element_size, ReadElement read_element)
{
    uint32_t count;
    if (!count_elements<wire_type>(in, at, run, &count))
        return nullptr;
    const uint64_t size = uint64_t{count} * element_size;
    uint8_t *element = static_cast<uint8_t *>(in.memory().allocate(size));
    if (!element)
        return in.fail(WIRE_ERR_NO_MEMORY);
    if constexpr (wire_type == kLengthDelimited)
        memset(element, 0, static_cast<size_t>(size));
    store_block(member, element, count);
    const uint32_t tag = make_tag(run.number, wire_type);
    for (;;) {
        if constexpr (wire_type == kVarint && !kIsSmall)
            for (; count > 4 && in.is_among_small({at, tag}); count -= 4) {
                load_four_small(reinterpret_cast<uint32_t *>(element), at - 1);
                element += 4 * sizeof(uint32_t);
                at += kFourSmall;
            }
        if (!(at = read_element(at, element)))
            return nullptr;
        if (--count == 0)
            return at;
        at = in.next_tag(at).at; // seen when counting: it can be read, and is this field's
        element += element_size;
    }
}

template <WireType wire_type, typename ReadElement>
HandedBack decode_list(Cursor cursor, Decoder &in, uint8_t *record, DecodedRun run,
                       uint32_t element_size, ReadElement read_element)
{
    if (!is_field(cursor.tag(), run))
        return cursor;
    uint8_t *member = record + run.offset;
    if (int32_t error = check_pointer_member(cursor.tag(), wire_type, member, in.memory().alloc_fn))
        return in.stop(error);
    const uint8_t *at =
        read_list<wire_type>(in, cursor.at, member, run, element_size, read_element);
    return finish_field(in, at, record, run);
}

} // namespace

HandedBack decode_uint32_list(Cursor cursor, Decoder &in, uint8_t *record, DecodedRun run)
{
    return decode_list<kVarint>(cursor, in, record, run, sizeof(uint32_t),
                                [&](const uint8_t *at, uint8_t *element) {
                                    return in.read(at, reinterpret_cast<uint32_t *>(element));
                                });
}

HandedBack decode_string_list(Cursor cursor, Decoder &in, uint8_t *record, DecodedRun run)
{
    return decode_list<kLengthDelimited>(
        cursor, in, record, run, sizeof(char *),
        [&](const uint8_t *at, uint8_t *element) { return read_text(in, at, element); });
}

HandedBack decode_message_list(Cursor cursor, Decoder &in, uint8_t *record, DecodedRun run,
                               uint32_t element_size, DecodeRecord decode)
{
    return decode_list<kLengthDelimited>(
        cursor, in, record, run, element_size,
        [&](const uint8_t *at, uint8_t *element) { return read_message(in, at, element, decode); });
}

} // namespace tarn
