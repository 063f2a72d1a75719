// SPDX-License-Identifier: MIT
// Writes the members of a record, run by run, in the order of their field numbers.

#pragma once

#include "runtime/encoder.hpp"
#include "runtime/measure.hpp"

#include <stdint.h>

namespace [[gnu::visibility("hidden")]] tarn {

// Writes a whole record of some type.
using WriteRecord = void (*)(Encoder &out, const void *record);

struct NestedEncoding {
    MeasureRecord measure;
    WriteRecord write;
};

// `tag` is that of the run's first member, `present` holds the presence flags of its members.
void write_uint32s(Encoder &out, const uint32_t *members, uint32_t present, uint32_t tag);
void write_uint64s(Encoder &out, const uint64_t *members, uint32_t present, uint32_t tag);
void write_bools(Encoder &out, const uint8_t *members, uint32_t present, uint32_t tag);

void write_string(Encoder &out, const uint8_t *member, uint32_t present, uint32_t tag);
void write_bytes(Encoder &out, const uint8_t *member, uint32_t present, uint32_t tag);
void write_message(Encoder &out, const uint8_t *member, uint32_t present, uint32_t tag,
                   NestedEncoding nested);
void write_uint32_list(Encoder &out, const uint8_t *member, uint32_t present, uint32_t tag);
void write_string_list(Encoder &out, const uint8_t *member, uint32_t present, uint32_t tag);
void write_message_list(Encoder &out, const uint8_t *member, uint32_t present, uint32_t tag,
                        uint32_t element_size, NestedEncoding nested);

} // namespace tarn
