// SPDX-License-Identifier: MIT
// Reading and writing members of records whose type is known at run time only.

#pragma once

#include <stddef.h>
#include <stdint.h>
#include <string.h>

namespace catalogue {

template <typename T>
T load(const void *record, size_t offset)
{
    T value;
    memcpy(&value, static_cast<const uint8_t *>(record) + offset, sizeof value);
    return value;
}

template <typename T>
void store(void *record, size_t offset, const T &value)
{
    memcpy(static_cast<uint8_t *>(record) + offset, &value, sizeof value);
}

} // namespace catalogue
