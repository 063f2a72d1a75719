// SPDX-License-Identifier: MIT
#include "runtime/release.hpp"

#include "runtime/member.hpp"

namespace tarn {

namespace {

void release_pointer(const Releaser &releaser, uint8_t *member)
{
    void *block = load_pointer(member);
    if (!block)
        return;
    releaser.free_fn(block, releaser.free_ctx);
    store_pointer(member, nullptr);
}

} // namespace

void release_string(const Releaser &releaser, uint8_t *member)
{
    release_pointer(releaser, member);
}

// In place, the bytes are part of somebody's input. The length stays in either case.
void release_bytes(const Releaser &releaser, uint8_t *member)
{
    if (!(releaser.flags & WIRE_FLAG_BYTES_IN_PLACE))
        release_pointer(releaser, member);
}

// The count stays, unlike that of the other lists.
void release_uint32_list(const Releaser &releaser, uint8_t *member)
{
    release_pointer(releaser, member);
}

void release_string_list(const Releaser &releaser, uint8_t *member)
{
    uint8_t *element = static_cast<uint8_t *>(load_pointer(member));
    if (!element)
        return;
    const uint32_t count = load_count(member);
    for (uint32_t i = 0; i < count; i++, element += sizeof(char *))
        if (void *text = load_pointer(element))
            releaser.free_fn(text, releaser.free_ctx);
    release_pointer(releaser, member);
    store_count(member, 0);
}

void release_flat_list(const Releaser &releaser, uint8_t *member)
{
    if (!load_pointer(member))
        return;
    release_pointer(releaser, member);
    store_count(member, 0);
}

void release_message_list(const Releaser &releaser, uint8_t *member, uint32_t element_size,
                          ReleaseRecord release)
{
    uint8_t *element = static_cast<uint8_t *>(load_pointer(member));
    if (!element)
        return;
    const uint32_t count = load_count(member);
    for (uint32_t i = 0; i < count; i++, element += element_size)
        release(releaser, element);
    release_pointer(releaser, member);
    store_count(member, 0);
}

} // namespace tarn
