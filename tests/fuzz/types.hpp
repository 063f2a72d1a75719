// SPDX-License-Identifier: MIT
// The record types as the fuzzers need them millions of times: the generated table of the catalogue
// with nested types, sizes and flags looked up once.

#pragma once

#include "tests/catalogue/catalogue.hpp"

#include <array>
#include <stddef.h>
#include <stdint.h>
#include <vector>

namespace fuzz {

using catalogue::Kind;

struct Type;

struct Field {
    Kind kind;
    uint32_t number;
    uint32_t wire_type;
    uint32_t offset;
    uint32_t count_offset; // of the length or count, where there is one
    uint32_t element_size; // of lists and byte strings
    uint32_t flag_offset;
    uint8_t flag_mask;
    uint32_t default_value;
    const Type *child; // of nested records, else null
};

struct Type {
    static constexpr uint32_t kNumbers = 64;

    const catalogue::RecordType *operations;
    uint32_t size;
    std::vector<Field> fields;
    std::array<const Field *, kNumbers> by_number;
    // For each byte of the structure the bits that belong to a member or a flag; the others are
    // padding.
    std::vector<uint8_t> owned;
    bool has_nested;
    bool has_blocks;      // may hang blocks on itself or on what is in it
    bool replaces_blocks; // somewhere in it a record is embedded that has blocks

    const Field *find(uint32_t number) const
    {
        return number < kNumbers ? by_number[number] : nullptr;
    }
};

// The record types of the library, in the order of the catalogue.
const Type &type_at(uint32_t index);
uint32_t type_count();

} // namespace fuzz
