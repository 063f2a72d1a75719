// SPDX-License-Identifier: MIT
// Decodes the runs of a record. Each function takes the last tag read: while that belongs to its
// run it stores what follows and reads the next; it hands back the first tag that is not its own.
// So no dispatch is needed: the runs of a type pass the tag along their line until nobody takes it.

#pragma once

#include "runtime/decoder.hpp"

#include <stdint.h>

namespace [[gnu::visibility("hidden")]] tarn {

// Decodes a whole record of some type: any type's T_decode_ext.
using DecodeRecord = int32_t (*)(void *record, const uint8_t *buf, uint32_t len,
                                 wire_alloc_fn alloc_fn, void *alloc_ctx, uint32_t flags);

// Members with the field numbers from `number` on. `flags` are the record's presence flags, of
// which the first member has `first_bit`.
struct DecodedRun {
    uint8_t *flags;
    uint32_t first_bit;
    uint32_t number;
};

uint32_t decode_uint32s(Decoder &in, uint32_t tag, uint32_t *members, uint32_t count,
                        DecodedRun run);
uint32_t decode_uint64s(Decoder &in, uint32_t tag, uint64_t *members, uint32_t count,
                        DecodedRun run);
uint32_t decode_bools(Decoder &in, uint32_t tag, uint8_t *members, uint32_t count, DecodedRun run);

uint32_t decode_string(Decoder &in, uint32_t tag, uint8_t *member, DecodedRun run);
uint32_t decode_bytes(Decoder &in, uint32_t tag, uint8_t *member, DecodedRun run);
uint32_t decode_message(Decoder &in, uint32_t tag, uint8_t *member, DecodedRun run,
                        DecodeRecord decode);
uint32_t decode_uint32_list(Decoder &in, uint32_t tag, uint8_t *member, DecodedRun run);
uint32_t decode_string_list(Decoder &in, uint32_t tag, uint8_t *member, DecodedRun run);
uint32_t decode_message_list(Decoder &in, uint32_t tag, uint8_t *member, DecodedRun run,
                             uint32_t element_size, DecodeRecord decode);

} // namespace tarn
