// SPDX-License-Identifier: MIT
// Lists: a run of elements is read twice, to count them and to fill an array of the right size.
#include "runtime/decode_steps.hpp"
#include "runtime/member.hpp"

#include <string.h>

namespace tarn {

namespace {

int32_t step_over_element(Decoder &in, WireType wire_type)
{
    uint32_t value;
    if (wire_type == kVarint)
        return in.read(&value);
    if (int32_t error = in.read_length(&value))
        return error;
    in.take(value);
    return WIRE_OK;
}

// Counts the elements of a run and leaves the position where it was. Only the field number tells
// what belongs to the run: a tag of another wire type is stepped over as if it were right.
int32_t count_elements(Decoder &in, const DecodedRun &run, WireType wire_type, uint32_t *count)
{
    const uint32_t first = in.position();
    uint32_t tag;
    *count = 0;
    do {
        if (int32_t error = step_over_element(in, wire_type))
            return error;
        ++*count;
        if (in.at_end())
            break;
        if (int32_t error = in.read(&tag))
            return error;
    } while (is_field(tag, run));
    in.go_back(first);
    return WIRE_OK;
}

// Decodes one run of a list whose elements are `element_size` bytes; read_element(at) reads one.
// The array hangs on the record with its full count before the first element is read, and arrays of
// pointers and of records are cleared: wherever reading stops, the record can be released.
template <typename ReadElement>
int32_t read_list(Decoder &in, uint8_t *member, const DecodedRun &run, WireType wire_type,
                  uint32_t element_size, ReadElement read_element)
{
    uint32_t count;
    if (int32_t error = count_elements(in, run, wire_type, &count))
        return error;
    const uint64_t size = uint64_t{count} * element_size;
    uint8_t *element = static_cast<uint8_t *>(in.memory().allocate(size));
    if (!element)
        return WIRE_ERR_NO_MEMORY;
    if (wire_type == kLengthDelimited)
        memset(element, 0, static_cast<size_t>(size));
    store_block(member, element, count);
    for (uint32_t i = 0; i < count; i++, element += element_size) {
        uint32_t tag;
        if (i > 0)
            in.read(&tag); // seen when counting: it can be read, and is this field's
        if (int32_t error = read_element(element))
            return error;
    }
    return WIRE_OK;
}

template <typename ReadElement>
uint32_t decode_list(Decoder &in, uint32_t tag, uint8_t *member, const DecodedRun &run,
                     WireType wire_type, uint32_t element_size, ReadElement read_element)
{
    if (!is_field(tag, run))
        return tag;
    int32_t error = check_pointer_member(tag, wire_type, member, in.memory().alloc_fn);
    if (!error)
        error = read_list(in, member, run, wire_type, element_size, read_element);
    return finish_field(in, run, error);
}

} // namespace

uint32_t decode_uint32_list(Decoder &in, uint32_t tag, uint8_t *member, DecodedRun run)
{
    return decode_list(in, tag, member, run, kVarint, sizeof(uint32_t), [&](uint8_t *element) {
        return in.read(reinterpret_cast<uint32_t *>(element));
    });
}

uint32_t decode_string_list(Decoder &in, uint32_t tag, uint8_t *member, DecodedRun run)
{
    return decode_list(in, tag, member, run, kLengthDelimited, sizeof(char *),
                       [&](uint8_t *element) { return read_text(in, element); });
}

uint32_t decode_message_list(Decoder &in, uint32_t tag, uint8_t *member, DecodedRun run,
                             uint32_t element_size, DecodeRecord decode)
{
    return decode_list(in, tag, member, run, kLengthDelimited, element_size,
                       [&](uint8_t *element) { return read_message(in, element, decode); });
}

} // namespace tarn
