// SPDX-License-Identifier: MIT
#include "runtime/decode.hpp"

#include "runtime/decode_steps.hpp"
#include "runtime/member.hpp"
#include "runtime/presence.hpp"

#include <string.h>

namespace tarn {

namespace {

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

} // namespace

int32_t check_pointer_member(uint32_t tag, WireType expected, const uint8_t *member,
                             bool has_memory)
{
    if (int32_t error = check_wire_type(tag, expected))
        return error;
    if (load_pointer(member))
        return WIRE_ERR_MALFORMED;
    return has_memory ? WIRE_OK : WIRE_ERR_NO_MEMORY;
}

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

int32_t read_message(Decoder &in, uint8_t *record, DecodeRecord decode)
{
    uint32_t length;
    if (int32_t error = in.read_length(&length))
        return error;
    const uint8_t *body = in.take(length);
    return decode(record, body, length, in.memory().alloc_fn, in.memory().alloc_ctx, in.flags());
}

uint32_t finish_field(Decoder &in, const DecodedRun &run, int32_t error)
{
    if (error)
        return in.stop(error);
    set_flag(run.flags, run.first_bit);
    return in.next_tag();
}

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

} // namespace tarn
