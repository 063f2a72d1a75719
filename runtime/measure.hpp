// SPDX-License-Identifier: MIT
// Measures an encoding without writing it. Every function takes the offset at which its run starts
// and returns the one behind it; each node of a record is visited once.

#pragma once

#include <stdint.h>

namespace [[gnu::visibility("hidden")]] tarn {

// Measures a whole record of some type.
using MeasureRecord = uint32_t (*)(const void *record, uint32_t flags);

// `tag` is that of the run's first member, `present` holds the presence flags of its members.
uint32_t measure_uint32s(uint32_t offset, const uint32_t *members, uint32_t present, uint32_t tag);
uint32_t measure_uint64s(uint32_t offset, const uint64_t *members, uint32_t present, uint32_t tag);
uint32_t measure_bools(uint32_t offset, const uint8_t *members, uint32_t present, uint32_t tag);

uint32_t measure_string(uint32_t offset, const uint8_t *member, uint32_t present, uint32_t tag);
uint32_t measure_bytes(uint32_t offset, const uint8_t *member, uint32_t present, uint32_t tag,
                       uint32_t flags);
uint32_t measure_message(uint32_t offset, uint32_t length, uint32_t present, uint32_t tag);
uint32_t measure_uint32_list(uint32_t offset, const uint8_t *member, uint32_t present,
                             uint32_t tag);
uint32_t measure_string_list(uint32_t offset, const uint8_t *member, uint32_t present,
                             uint32_t tag);
uint32_t measure_message_list(uint32_t offset, const uint8_t *member, uint32_t present,
                              uint32_t tag, uint32_t element_size, MeasureRecord measure,
                              uint32_t flags);

} // namespace tarn
