// SPDX-License-Identifier: MIT
// Hands back every block that a record owns, children before the arrays that hold them. Numbers and
// presence flags stay as they are.

#pragma once

#include "runtime/record.h"
#include "wire/call.hpp"

#include <stdint.h>

namespace [[gnu::visibility("hidden")]] tarn {

struct Releaser {
    wire_free_fn free_fn;
    void *free_ctx;
    uint32_t flags;
};

// Releases what a whole record of some type owns.
using ReleaseRecord = TARN_CALL void (*)(const Releaser &releaser, void *record);

void release_string(const Releaser &releaser, uint8_t *member);
void release_bytes(const Releaser &releaser, uint8_t *member);
void release_uint32_list(const Releaser &releaser, uint8_t *member);
void release_string_list(const Releaser &releaser, uint8_t *member);
// Of records that hold no pointers.
void release_flat_list(const Releaser &releaser, uint8_t *member);
void release_message_list(const Releaser &releaser, uint8_t *member, uint32_t element_size,
                          ReleaseRecord release);

} // namespace tarn
