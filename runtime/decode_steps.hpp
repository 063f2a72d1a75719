// SPDX-License-Identifier: MIT
// The steps that the decoders of single members and of lists share.

#pragma once

#include "runtime/decode.hpp"

namespace [[gnu::visibility("hidden")]] tarn {

inline bool is_field(uint32_t tag, const DecodedRun &run)
{
    return field_number_of(tag) == run.number;
}

inline int32_t check_wire_type(uint32_t tag, WireType expected)
{
    return wire_type_of(tag) == expected ? WIRE_OK : WIRE_ERR_TYPE_MISMATCH;
}

// What every member that holds a pointer asks before it reads on.
int32_t check_pointer_member(uint32_t tag, WireType expected, const uint8_t *member,
                             bool has_memory);

// Read what stands behind a tag. A text is attached to its record before it is filled.
int32_t read_text(Decoder &in, uint8_t *member);
int32_t read_message(Decoder &in, uint8_t *record, DecodeRecord decode);

// The end of every case but the scalars'.
uint32_t finish_field(Decoder &in, const DecodedRun &run, int32_t error);

} // namespace tarn
