// SPDX-License-Identifier: MIT
// Writes made-up fields: sound ones of a record type, unknown ones, and the oddities of the format.

#pragma once

#include "tests/fuzz/wire.hpp"
#include "tests/model/random.hpp"

namespace fuzz {

using model::Random;

// At least `least` bytes long, which is over-long where fewer would do.
void put_varint(Bytes &out, uint64_t value, uint32_t least = 1);
void put_tag(Bytes &out, uint32_t number, uint32_t wire_type);
void put_bytes(Bytes &out, const Bytes &content);

// As an encoder writes it; a list has a few elements. Nested records have fields of their own, down
// to a depth.
void put_field(Random &random, Bytes &out, const Field &field, uint32_t depth = 0);

// Each field of the type, with the given chance, in order.
void put_fields(Random &random, Bytes &out, const Type &type, uint32_t percent, uint32_t depth = 0);

// A field that the type does not have, of any wire type, those that cannot be skipped included.
void put_unknown(Random &random, Bytes &out, const Type &type);

// An unknown field whose length leads from the end of `out` back to `target`.
void put_jump(Random &random, Bytes &out, const Type &type, uint32_t target);

} // namespace fuzz
