// SPDX-License-Identifier: MIT
#include "runtime/decode.hpp"

#include "runtime/decode_steps.hpp"
#include "runtime/member.hpp"
#include "runtime/presence.hpp"
#include "wire/copy.hpp"

#include <string.h>

namespace tarn {

namespace {

// The place in its run of the member that a tag belongs to; the wire type, which ought to be 0,
// stands above it. Other tags give a number that is too large for every run.
uint32_t place_in_run(uint32_t tag, const DecodedRun &run)
{
    const uint32_t distance = tag - make_tag(run.number, kVarint);
    return distance >> 3 | distance << 29;
}

// Runs of wide members are counters.
TARN_INLINE inline const uint8_t *read_of_run(Decoder &in, const uint8_t *at, uint64_t *value)
{
    return in.read_any(at, value);
}

TARN_INLINE inline const uint8_t *read_of_run(Decoder &in, const uint8_t *at, uint32_t *value)
{
    return in.read(at, value);
}

// Reads one varint for each of its tags into the members of the run; a value that comes again
// replaces the one before. Flags are gathered and set together at the end.
template <typename Wide, typename Member, typename Store>
HandedBack decode_scalars(Cursor cursor, Decoder &in, uint8_t *record, DecodedRun run, Store store)
{
    uint32_t place = place_in_run(cursor.tag(), run);
    if (place < run.count) {
        Member *const members = reinterpret_cast<Member *>(record + run.offset);
        const uint32_t count = run.count;
        uint32_t present = 0;
        if constexpr (sizeof(Member) == sizeof(uint32_t) && !kIsSmall) {
            while (place < count && count - place >= 4 &&
                   in.is_first_of_four_small(cursor, kTagStep)) {
                load_four_small(members + place, cursor.at - 1);
                present |= 0xFu << place;
                cursor = in.next_tag(cursor.at - 1 + kFourSmall);
                place = place_in_run(cursor.tag(), run);
            }
        }
        while (place < count) {
            Wide value;
            const uint8_t *at = read_of_run(in, cursor.at, &value);
            if (!at) {
                cursor = {at, kStop};
                break;
            }
            members[place] = store(value);
            present |= 1u << place;
            cursor = in.next_tag(at);
            place = place_in_run(cursor.tag(), run);
        }
        set_flags(record + run.flags, run.first_bit, present);
    }
    if (field_number_of(cursor.tag()) - run.number < run.count)
        return in.stop(WIRE_ERR_TYPE_MISMATCH);
    return cursor;
}

// The same for a run of one.
template <typename Wide, typename Member, typename Store>
HandedBack decode_scalar(Cursor cursor, Decoder &in, uint8_t *record, DecodedRun run, Store store)
{
    if (!is_field(cursor.tag(), run))
        return cursor;
    if (wire_type_of(cursor.tag()) != kVarint)
        return in.stop(WIRE_ERR_TYPE_MISMATCH);
    Wide value;
    const uint8_t *at = in.read(cursor.at, &value);
    if (!at)
        return Cursor{at, kStop};
    *reinterpret_cast<Member *>(record + run.offset) = store(value);
    set_flag(record + run.flags, run.first_bit);
    return in.next_tag(at);
}

template <typename Value>
Value as_it_is(Value value)
{
    return value;
}

// A bool is what 32 bits of its varint say: a multiple of 2^32 is false.
uint8_t as_truth(uint32_t value)
{
    return value != 0;
}

const uint8_t *read_bytes(Decoder &in, const uint8_t *at, uint8_t *member)
{
    uint32_t length;
    if (!(at = in.read_length(at, &length)))
        return nullptr;
    const uint8_t *bytes = at;
    if (!in.bytes_in_place()) {
        void *block = in.memory().allocate(length);
        if (!block)
            return in.fail(WIRE_ERR_NO_MEMORY);
        bytes = static_cast<uint8_t *>(memcpy(block, at, length));
    }
    store_block(member, bytes, length);
    return at + length;
}

} // namespace

int32_t check_pointer_member(uint32_t tag, WireType expected, const uint8_t *member,
                             bool has_memory)
{
    if (wire_type_of(tag) != expected)
        return WIRE_ERR_TYPE_MISMATCH;
    if (load_pointer(member))
        return WIRE_ERR_MALFORMED;
    return has_memory ? WIRE_OK : WIRE_ERR_NO_MEMORY;
}

const uint8_t *read_text(Decoder &in, const uint8_t *at, uint8_t *member)
{
    uint32_t length;
    if (!(at = in.read_length(at, &length)))
        return nullptr;
    char *text = static_cast<char *>(in.memory().allocate(uint64_t{length} + 1));
    if (!text)
        return in.fail(WIRE_ERR_NO_MEMORY);
    store_pointer(member, text);
    copy_short(text, at, length);
    text[length] = '\0';
    return at + length;
}

const uint8_t *read_message(Decoder &in, const uint8_t *at, uint8_t *record, DecodeRecord decode)
{
    uint32_t length;
    if (!(at = in.read_length(at, &length)))
        return nullptr;
    const Decoder::Extent outer = in.enter(at, length);
    decode(in, record);
    in.leave(outer);
    return in.result() ? nullptr : at + length;
}

HandedBack finish_field(Decoder &in, const uint8_t *at, uint8_t *record, DecodedRun run)
{
    if (!at)
        return Cursor{at, kStop};
    set_flag(record + run.flags, run.first_bit);
    return in.next_tag(at);
}

HandedBack decode_uint32s(Cursor cursor, Decoder &in, uint8_t *record, DecodedRun run)
{
    return decode_scalars<uint32_t, uint32_t>(cursor, in, record, run, as_it_is<uint32_t>);
}

HandedBack decode_uint64s(Cursor cursor, Decoder &in, uint8_t *record, DecodedRun run)
{
    return decode_scalars<uint64_t, uint64_t>(cursor, in, record, run, as_it_is<uint64_t>);
}

HandedBack decode_bools(Cursor cursor, Decoder &in, uint8_t *record, DecodedRun run)
{
    return decode_scalars<uint32_t, uint8_t>(cursor, in, record, run, as_truth);
}

HandedBack decode_uint32(Cursor cursor, Decoder &in, uint8_t *record, DecodedRun run)
{
    return decode_scalar<uint32_t, uint32_t>(cursor, in, record, run, as_it_is<uint32_t>);
}

HandedBack decode_uint64(Cursor cursor, Decoder &in, uint8_t *record, DecodedRun run)
{
    return decode_scalar<uint64_t, uint64_t>(cursor, in, record, run, as_it_is<uint64_t>);
}

HandedBack decode_bool(Cursor cursor, Decoder &in, uint8_t *record, DecodedRun run)
{
    return decode_scalar<uint32_t, uint8_t>(cursor, in, record, run, as_truth);
}

HandedBack decode_string(Cursor cursor, Decoder &in, uint8_t *record, DecodedRun run)
{
    if (!is_field(cursor.tag(), run))
        return cursor;
    uint8_t *member = record + run.offset;
    if (int32_t error =
            check_pointer_member(cursor.tag(), kLengthDelimited, member, in.memory().alloc_fn))
        return in.stop(error);
    return finish_field(in, read_text(in, cursor.at, member), record, run);
}

HandedBack decode_bytes(Cursor cursor, Decoder &in, uint8_t *record, DecodedRun run)
{
    if (!is_field(cursor.tag(), run))
        return cursor;
    uint8_t *member = record + run.offset;
    if (int32_t error = check_pointer_member(cursor.tag(), kLengthDelimited, member,
                                             in.bytes_in_place() || in.memory().alloc_fn))
        return in.stop(error);
    return finish_field(in, read_bytes(in, cursor.at, member), record, run);
}

// No test for an earlier one: it is replaced. What the first had attached is the arena's.
HandedBack decode_message(Cursor cursor, Decoder &in, uint8_t *record, DecodedRun run,
                          DecodeRecord decode)
{
    if (!is_field(cursor.tag(), run))
        return cursor;
    if (wire_type_of(cursor.tag()) != kLengthDelimited)
        return in.stop(WIRE_ERR_TYPE_MISMATCH);
    return finish_field(in, read_message(in, cursor.at, record + run.offset, decode), record, run);
}

} // namespace tarn
