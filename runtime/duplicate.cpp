// SPDX-License-Identifier: MIT
#include "runtime/duplicate.hpp"

#include "runtime/member.hpp"
#include "runtime/presence.hpp"

#include <string.h>

namespace tarn {

namespace {

char *copy_text(Copier &copier, const char *text)
{
    const uint64_t size = uint64_t{strlen(text)} + 1;
    void *copy = copier.allocate(size);
    if (copy)
        memcpy(copy, text, static_cast<size_t>(size));
    return static_cast<char *>(copy);
}

// Gives `dst` a block for as many elements as `src` has. Null when there is nothing to copy: the
// source is empty, or there is no block; then the flag goes too.
void *copy_block(Copier &copier, uint8_t *dst, const uint8_t *src, MemberFlag flag,
                 uint32_t element_size)
{
    const uint32_t count = load_count(src);
    if (count == 0) {
        store_block(dst, nullptr, 0);
        return nullptr;
    }
    void *block = copier.allocate(uint64_t{count} * element_size);
    store_block(dst, block, block ? count : 0);
    if (!block)
        clear_flag(flag.flags, flag.bit);
    return block;
}

// The same for elements that are copied byte by byte.
void copy_flat_block(Copier &copier, uint8_t *dst, const uint8_t *src, MemberFlag flag,
                     uint32_t element_size)
{
    if (void *block = copy_block(copier, dst, src, flag, element_size))
        memcpy(block, load_pointer(src), size_t{load_count(src)} * element_size);
}

} // namespace

void *Copier::allocate(uint64_t size)
{
    void *block = memory_.allocate(size);
    if (!block)
        result_ = WIRE_ERR_NO_MEMORY;
    return block;
}

void Copier::copy_record(void *dst, const void *src, DuplicateRecord duplicate)
{
    const int32_t error = duplicate(dst, src, memory_.alloc_fn, memory_.alloc_ctx);
    if (result_ == WIRE_OK)
        result_ = error;
}

void duplicate_string(Copier &copier, uint8_t *dst, const uint8_t *src, MemberFlag flag)
{
    const char *text = static_cast<const char *>(load_pointer(src));
    char *copy = text ? copy_text(copier, text) : nullptr;
    store_pointer(dst, copy);
    if (text && !copy)
        clear_flag(flag.flags, flag.bit);
}

void duplicate_bytes(Copier &copier, uint8_t *dst, const uint8_t *src, MemberFlag flag)
{
    copy_flat_block(copier, dst, src, flag, 1);
}

void duplicate_uint32_list(Copier &copier, uint8_t *dst, const uint8_t *src, MemberFlag flag)
{
    copy_flat_block(copier, dst, src, flag, sizeof(uint32_t));
}

void duplicate_string_list(Copier &copier, uint8_t *dst, const uint8_t *src, MemberFlag flag)
{
    uint8_t *copy = static_cast<uint8_t *>(copy_block(copier, dst, src, flag, sizeof(char *)));
    if (!copy)
        return;
    const uint8_t *element = static_cast<const uint8_t *>(load_pointer(src));
    const uint32_t count = load_count(src);
    for (uint32_t i = 0; i < count; i++, element += sizeof(char *), copy += sizeof(char *)) {
        const char *text = static_cast<const char *>(load_pointer(element));
        store_pointer(copy, text ? copy_text(copier, text) : nullptr);
    }
}

void duplicate_message_list(Copier &copier, uint8_t *dst, const uint8_t *src, MemberFlag flag,
                            uint32_t element_size, DuplicateRecord duplicate)
{
    uint8_t *copy = static_cast<uint8_t *>(copy_block(copier, dst, src, flag, element_size));
    if (!copy)
        return;
    const uint8_t *element = static_cast<const uint8_t *>(load_pointer(src));
    const uint32_t count = load_count(src);
    for (uint32_t i = 0; i < count; i++, element += element_size, copy += element_size)
        copier.copy_record(copy, element, duplicate);
}

} // namespace tarn
