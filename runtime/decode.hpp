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
