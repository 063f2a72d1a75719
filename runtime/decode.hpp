// SPDX-License-Identifier: MIT
// Decodes the runs of a record. Each function takes the last tag read: while that belongs to its
// run it stores what follows and reads the next; it hands back the first tag that is not its own.
// So no dispatch is needed: the runs of a type pass the tag along their line until nobody takes it.

#pragma once

#include "runtime/decoder.hpp"

#include <stdint.h>

namespace [[gnu::visibility("hidden")]] tarn {

// Decodes what the decoder has before it into a record of some type that has its defaults.
using DecodeRecord = TARN_CALL void (*)(Decoder &in, void *record);

// Where a record has its presence flags, and for how many members, as one number.
constexpr uint32_t presence_at(uint32_t offset, uint32_t members)
{
    return offset << 8 | members;
}

// Decodes all fields of a record. A round takes a tag along the runs of its type, and whoever takes
// it reads on behind it; when nobody has, the field is unknown.
template <typename Round>
TARN_INLINE inline void decode_rounds(Decoder &in, uint8_t *record, uint32_t presence, Round round)
{
    Cursor cursor = in.first_tag();
    LoopWatch watch;
    while (cursor.tag() != kStop) {
        const uint8_t *at = cursor.at;
        cursor = round(cursor, in, record);
        if (cursor.tag() != kStop && cursor.at == at)
            cursor = in.skip(cursor, watch, record + (presence >> 8), presence & 0xFF);
    }
}

// For a library as small as possible, in which all types share the loop and the way into it.
using DecodeRound = TARN_CALL HandedBack (*)(Cursor cursor, Decoder &in, uint8_t *record);

[[gnu::noinline]] TARN_CALL inline void decode_by_rounds(Decoder &in, uint8_t *record,
                                                         uint32_t presence, DecodeRound round)
{
    decode_rounds(in, record, presence, round);
}

[[gnu::noinline]] TARN_REGISTERS(1) inline int32_t
    decode_message_as(DecodeRecord decode, void *record, const uint8_t *buffer, uint32_t length,
                      wire_alloc_fn alloc_fn, void *alloc_ctx, uint32_t flags)
{
    Decoder in(buffer, length, {alloc_fn, alloc_ctx}, flags);
    decode(in, record);
    return in.result();
}

// Where the members of a run are, and what belongs to them. It fits in a register.
struct DecodedRun {
    uint8_t number; // field number of the first
    uint8_t count;
    uint8_t first_bit; // presence flag of the first
    uint16_t offset;   // of the first
    uint16_t flags;    // offset of the record's presence flags
};

TARN_CALL HandedBack decode_uint32s(Cursor cursor, Decoder &in, uint8_t *record, DecodedRun run);
TARN_CALL HandedBack decode_uint64s(Cursor cursor, Decoder &in, uint8_t *record, DecodedRun run);
TARN_CALL HandedBack decode_bools(Cursor cursor, Decoder &in, uint8_t *record, DecodedRun run);

// Runs of one.
TARN_CALL HandedBack decode_uint32(Cursor cursor, Decoder &in, uint8_t *record, DecodedRun run);
TARN_CALL HandedBack decode_uint64(Cursor cursor, Decoder &in, uint8_t *record, DecodedRun run);
TARN_CALL HandedBack decode_bool(Cursor cursor, Decoder &in, uint8_t *record, DecodedRun run);

TARN_CALL HandedBack decode_string(Cursor cursor, Decoder &in, uint8_t *record, DecodedRun run);
TARN_CALL HandedBack decode_bytes(Cursor cursor, Decoder &in, uint8_t *record, DecodedRun run);
TARN_CALL HandedBack decode_message(Cursor cursor, Decoder &in, uint8_t *record, DecodedRun run,
                                    DecodeRecord decode);
TARN_CALL HandedBack decode_uint32_list(Cursor cursor, Decoder &in, uint8_t *record,
                                        DecodedRun run);
TARN_CALL HandedBack decode_string_list(Cursor cursor, Decoder &in, uint8_t *record,
                                        DecodedRun run);
TARN_CALL HandedBack decode_message_list(Cursor cursor, Decoder &in, uint8_t *record,
                                         DecodedRun run, uint32_t element_size,
                                         DecodeRecord decode);

} // namespace tarn
