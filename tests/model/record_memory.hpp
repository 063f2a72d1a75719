// SPDX-License-Identifier: MIT
// Reading and writing the members of a record that is known by its table only.

#pragma once

#include "tests/model/catalogue.hpp"

#include <cstring>

namespace model {

template <typename Value>
Value load(const uint8_t *from)
{
    Value value;
    std::memcpy(&value, from, sizeof value);
    return value;
}

template <typename Value>
void store(uint8_t *to, Value value)
{
    std::memcpy(to, &value, sizeof value);
}

inline uint8_t *load_pointer(const uint8_t *from)
{
    return load<uint8_t *>(from);
}

inline void store_pointer(uint8_t *to, const void *value)
{
    store<const void *>(to, value);
}

// The count or length that lies behind a member's pointer.
inline uint32_t load_count(const uint8_t *member)
{
    return load<uint32_t>(member + sizeof(void *));
}

inline void store_count(uint8_t *member, uint32_t count)
{
    store<uint32_t>(member + sizeof(void *), count);
}

inline bool flag(const RecordType &type, const uint8_t *record, size_t index)
{
    return record[type.flags_offset + index / 8] >> (index % 8) & 1;
}

inline void set_flag(const RecordType &type, uint8_t *record, size_t index, bool value)
{
    uint8_t &byte = record[type.flags_offset + index / 8];
    const auto bit = uint8_t(1u << (index % 8));
    byte = uint8_t(value ? byte | bit : byte & ~bit);
}

} // namespace model
