// SPDX-License-Identifier: MIT
// Builds records with random contents straight from the tables. The same random sequence builds the
// same record in another memory.

#pragma once

#include "tests/model/guard_memory.hpp"
#include "tests/model/random.hpp"

namespace model {

// What the record must be fit for. Each operation looks at pointers and counts under other
// conditions, and whatever it must not look at is filled with what would crash it.
enum class Purpose { encode, duplicate, release };

class RecordBuilder {
public:
    RecordBuilder(Random &random, GuardMemory &memory, Purpose purpose)
        : random_(random), memory_(memory), purpose_(purpose)
    {}

    // Null when the memory has no room for it.
    uint8_t *build(const RecordType &type);

private:
    void fill(const RecordType &type, uint8_t *record, int depth);
    void fill_member(const Member &member, uint8_t *at, bool present, int depth);
    void fill_string(uint8_t *at, bool present);
    void fill_bytes(uint8_t *at, bool present);
    void fill_array(const Member &member, uint8_t *at, bool present, int depth);
    void fill_element(const Member &member, uint8_t *element, int depth);
    uint32_t text_length();
    uint8_t *text();
    const uint8_t *wild_pointer();
    uint8_t *take(uint32_t size, const char *purpose, const RecordType *type = nullptr);

    Random &random_;
    GuardMemory &memory_;
    Purpose purpose_;
    uint32_t budget_ = 150;
};

} // namespace model
