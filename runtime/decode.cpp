// SPDX-License-Identifier: MIT
#include "runtime/decode.hpp"

#include "runtime/member.hpp"
#include "runtime/presence.hpp"

#include <string.h>

namespace tarn {

namespace {

bool is_field(uint32_t tag, const DecodedRun &run)
{
    return field_number_of(tag) == run.number;
}

int32_t check_wire_type(uint32_t tag, WireType expected)
{
    return wire_type_of(tag) == expected ? WIRE_OK : WIRE_ERR_TYPE_MISMATCH;
}

// What every member that holds a pointer asks before it reads on.
int32_t check_pointer_member(uint32_t tag, WireType expected, const uint8_t *member,
                             bool has_memory)
{
    if (int32_t error = check_wire_type(tag, expected))
        return error;
    if (load_pointer(member))
        return WIRE_ERR_MALFORMED;
    return has_memory ? WIRE_OK : WIRE_ERR_NO_MEMORY;
}

// Reads one varint for each of its tags into members[0] to members[count - 1]; a value that comes
// again replaces the one before.
template <typename Wide, typename Member, typename Store>
uint32_t decode_scalars(Decoder &in, uint32_t tag, Member *members, uint32_t count,
                        const DecodedRun &run, Store store)
{
    uint32_t index;
    while ((index = field_number_of(tag) - run.number) < count) {
        if (int32_t error = check_wire_type(tag, kVarint))
            return in.stop(error);
        Wide value;
        if (int32_t error = in.read(&value))
            return in.stop(error);
        members[index] = store(value);
        set_flag(run.flags, run.first_bit + index);
        tag = in.next_tag();
    }
    return tag;
}

// A text is attached to its record before it is filled.
int32_t read_text(Decoder &in, uint8_t *member)
{
    uint32_t length;
    if (int32_t error = in.read_length(&length))
        return error;
    char *text = static_cast<char *>(in.memory().allocate(uint64_t{length} + 1));
    if (!text)
        return WIRE_ERR_NO_MEMORY;
    store_pointer(member, text);
    memcpy(text, in.take(length), length);
    text[length] = '\0';
    return WIRE_OK;
}

int32_t read_bytes(Decoder &in, uint8_t *member)
{
    uint32_t length;
    if (int32_t error = in.read_length(&length))
        return error;
    if (in.bytes_in_place()) {
        store_block(member, in.take(length), length);
        return WIRE_OK;
    }
    void *block = in.memory().allocate(length);
    if (!block)
        return WIRE_ERR_NO_MEMORY;
    memcpy(block, in.take(length), length);
    store_block(member, block, length);
    return WIRE_OK;
}

int32_t read_message(Decoder &in, uint8_t *record, DecodeRecord decode)
{
    uint32_t length;
    if (int32_t error = in.read_length(&length))
        return error;
    const uint8_t *body = in.take(length);
    return decode(record, body, length, in.memory().alloc_fn, in.memory().alloc_ctx, in.flags());
}

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

// The array hangs on the record with its full count before the first element is read, so that the
// record can be released wherever reading stops.
int32_t attach_array(Decoder &in, uint8_t *member, uint32_t count, uint32_t element_size)
{
    void *array = in.memory().allocate(uint64_t{count} * element_size);
    if (!array)
        return WIRE_ERR_NO_MEMORY;
    store_block(member, array, count);
    return WIRE_OK;
}

// Decodes one run of a list whose elements are `element_size` bytes; read_element(at) reads one.
// Arrays of pointers and of records are cleared first, for the same reason.
template <typename ReadElement>
int32_t read_list(Decoder &in, uint8_t *member, const DecodedRun &run, WireType wire_type,
                  uint32_t element_size, ReadElement read_element)
{
    uint32_t count;
    if (int32_t error = count_elements(in, run, wire_type, &count))
        return error;
    if (int32_t error = attach_array(in, member, count, element_size))
        return error;
    uint8_t *element = static_cast<uint8_t *>(load_pointer(member));
    if (wire_type == kLengthDelimited)
        memset(element, 0, size_t{count} * element_size);
    for (uint32_t i = 0; i < count; i++, element += element_size) {
        uint32_t tag;
        if (i > 0)
            in.read(&tag);
        if (int32_t error = read_element(element))
            return error;
    }
    return WIRE_OK;
}

// The end of every case but the scalars'.
uint32_t finish_field(Decoder &in, const DecodedRun &run, int32_t error)
{
    if (error)
        return in.stop(error);
    set_flag(run.flags, run.first_bit);
    return in.next_tag();
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

uint32_t decode_uint32s(Decoder &in, uint32_t tag, uint32_t *members, uint32_t count,
                        DecodedRun run)
{
    return decode_scalars<uint32_t>(in, tag, members, count, run,
                                    [](uint32_t value) { return value; });
}

uint32_t decode_uint64s(Decoder &in, uint32_t tag, uint64_t *members, uint32_t count,
                        DecodedRun run)
{
    return decode_scalars<uint64_t>(in, tag, members, count, run,
                                    [](uint64_t value) { return value; });
}

// A bool is what 32 bits of its varint say: a multiple of 2^32 is false.
uint32_t decode_bools(Decoder &in, uint32_t tag, uint8_t *members, uint32_t count, DecodedRun run)
{
    return decode_scalars<uint32_t>(in, tag, members, count, run, [](uint32_t value) {
        return static_cast<uint8_t>(value != 0);
    });
}

uint32_t decode_string(Decoder &in, uint32_t tag, uint8_t *member, DecodedRun run)
{
    if (!is_field(tag, run))
        return tag;
    int32_t error = check_pointer_member(tag, kLengthDelimited, member, in.memory().alloc_fn);
    if (!error)
        error = read_text(in, member);
    return finish_field(in, run, error);
}

uint32_t decode_bytes(Decoder &in, uint32_t tag, uint8_t *member, DecodedRun run)
{
    if (!is_field(tag, run))
        return tag;
    int32_t error = check_pointer_member(tag, kLengthDelimited, member,
                                         in.bytes_in_place() || in.memory().alloc_fn);
    if (!error)
        error = read_bytes(in, member);
    return finish_field(in, run, error);
}

// No test for an earlier one: the record starts again from its defaults. What the first had
// attached is the arena's.
uint32_t decode_message(Decoder &in, uint32_t tag, uint8_t *member, DecodedRun run,
                        DecodeRecord decode)
{
    if (!is_field(tag, run))
        return tag;
    int32_t error = check_wire_type(tag, kLengthDelimited);
    if (!error)
        error = read_message(in, member, decode);
    return finish_field(in, run, error);
}

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
