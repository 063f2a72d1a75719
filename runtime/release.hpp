// SPDX-License-Identifier: MIT
// Hands back every block that a record owns, children before the arrays that hold them. Numbers and
// presence flags stay as they are.

#pragma once

#include "runtime/record.h"

#include <stdint.h>

namespace [[gnu::visibility("hidden")]] tarn {

// Releases a whole record of some type: any type's T_free_ext.
using ReleaseRecord = void (*)(void *record, wire_free_fn free_fn, void *free_ctx, uint32_t flags);

struct Releaser {
    wire_free_fn free_fn;
    void *free_ctx;
    uint32_t flags;
};

void release_string(const Releaser &releaser, uint8_t *member);
void release_bytes(const Releaser &releaser, uint8_t *member);
void release_uint32_list(const Releaser &releaser, uint8_t *member);
void release_string_list(const Releaser &releaser, uint8_t *member);
void release_message_list(const Releaser &releaser, uint8_t *member, uint32_t element_size,
                          ReleaseRecord release);

} // namespace tarn
