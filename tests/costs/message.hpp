// SPDX-License-Identifier: MIT
// Messages written byte by byte, such as no encoder writes them: padded varints, jumps backwards.

#pragma once

#include "tests/catalogue/catalogue.hpp"
#include "tests/support/bytes.hpp"

#include <cstdint>

namespace costs {

using catalogue::Member;
using test::Bytes;

// Field 0 is unknown to every record type; its tags take one byte each.
inline constexpr uint8_t kUnknownFixed64 = 0x01;
inline constexpr uint8_t kUnknownLength = 0x02;
inline constexpr uint8_t kUnknownFixed32 = 0x05;

inline constexpr uint32_t kJumpSize = 6;
// A position that no message reaches.
inline constexpr uint32_t kFarAway = 0x7FFFFFFF;

uint32_t tag_of(const Member &member);
uint32_t varint_size(uint32_t value);

void put_varint(Bytes &bytes, uint32_t value);
// In exactly `size` bytes, with zero bits in those that the value does not need.
void put_padded_varint(Bytes &bytes, uint32_t value, uint32_t size);
// A field that goes on at `target`, in front of or behind it.
void put_jump(Bytes &bytes, uint32_t target);

// As many times as there is room for.
Bytes filled(uint32_t size, const Bytes &part);
// A tag with an empty value: 0, no bytes, an empty record.
Bytes empty_field(const Member &member);
// A length-delimited field.
Bytes wrapped(const Member &member, const Bytes &content);

} // namespace costs
