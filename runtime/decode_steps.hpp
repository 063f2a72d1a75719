// SPDX-License-Identifier: MIT
// The steps that the decoders of single members and of lists share.

#pragma once

#include "runtime/decode.hpp"

namespace [[gnu::visibility("hidden")]] tarn {

inline bool is_field(uint32_t tag, const DecodedRun &run)
{
    return field_number_of(tag) == run.number;
}

// What every member that holds a pointer asks before it reads on.
TARN_CALL int32_t check_pointer_member(uint32_t tag, WireType expected, const uint8_t *member,
                                       bool has_memory);

// Read what stands behind a tag, and return the position behind it, or null after an error. A text
// is attached to its record before it is filled.
TARN_CALL const uint8_t *read_text(Decoder &in, const uint8_t *at, uint8_t *member);
TARN_CALL const uint8_t *read_message(Decoder &in, const uint8_t *at, uint8_t *record,
                                      DecodeRecord decode);

// The end of every case but the scalars'.
TARN_CALL HandedBack finish_field(Decoder &in, const uint8_t *at, uint8_t *record, DecodedRun run);

} // namespace tarn
