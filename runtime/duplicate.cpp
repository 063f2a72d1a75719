// SPDX-License-Identifier: MIT
#include "runtime/duplicate.hpp"

#include "runtime/member.hpp"
#include "runtime/presence.hpp"
#include "wire/copy.hpp"

#include <string.h>

namespace tarn {

namespace {

char *copy_text(Copier &copier, const char *text)
{
    const uint64_t size = uint64_t{strlen(text)} + 1;
    void *copy = copier.allocate(size);
    if (copy) // the size fits into 32 bits then
        copy_short(copy, text, static_cast<uint32_t>(size));
    return static_cast<char *>(copy);
}

// Gives `dst` a copy of the block of `src`. Null when there is nothing to copy: the source is
// empty, or there is no block; then the flag goes too.
uint8_t *duplicate_block(Copier &copier, uint8_t *dst, const uint8_t *src, MemberFlag flag,
                         uint32_t element_size)
{
    const uint32_t count = load_count(src);
    if (count == 0) {
        store_block(dst, nullptr, 0);
        return nullptr;
    }
    const uint64_t size = uint64_t{count} * element_size;
    void *block = copier.allocate(size);
    store_block(dst, block, block ? count : 0);
    if (block)
        memcpy(block, load_pointer(src), static_cast<size_t>(size));
    else
        clear_flag(flag.flags, flag.bit);
    return static_cast<uint8_t *>(block);
}

} // namespace

void *Copier::allocate(uint64_t size)
{
    void *block = memory_.allocate(size);
    if (!block)
        result_ = WIRE_ERR_NO_MEMORY;
    return block;
}

void Copier::copy_record(void *dst, const void *src, CopyBlocks copy_blocks)
{
    const int32_t before = result_;
    result_ = WIRE_OK;
    copy_blocks(*this, dst, src);
    if (before)
        result_ = before;
}

void duplicate_string(Copier &copier, uint8_t *dst, const uint8_t *src, MemberFlag flag)
{
    const char *text = static_cast<const char *>(load_pointer(src));
    char *copy = text ? copy_text(copier, text) : nullptr;
    store_pointer(dst, copy);
    if (text && !copy)
        clear_flag(flag.flags, flag.bit);
}

void duplicate_flat_list(Copier &copier, uint8_t *dst, const uint8_t *src, MemberFlag flag,
                         uint32_t element_size)
{
    duplicate_block(copier, dst, src, flag, element_size);
}

void duplicate_bytes(Copier &copier, uint8_t *dst, const uint8_t *src, MemberFlag flag)
{
    duplicate_flat_list(copier, dst, src, flag, 1);
}

void duplicate_string_list(Copier &copier, uint8_t *dst, const uint8_t *src, MemberFlag flag)
{
    uint8_t *copy = duplicate_block(copier, dst, src, flag, sizeof(char *));
    if (!copy)
        return;
    const uint32_t count = load_count(src);
    for (uint32_t i = 0; i < count; i++, copy += sizeof(char *))
        if (const char *text = static_cast<const char *>(load_pointer(copy)))
            store_pointer(copy, copy_text(copier, text));
}

// The array is copied as a block, gaps and all.
void duplicate_message_list(Copier &copier, uint8_t *dst, const uint8_t *src, MemberFlag flag,
                            uint32_t element_size, CopyBlocks copy_blocks)
{
    uint8_t *copy = duplicate_block(copier, dst, src, flag, element_size);
    if (!copy)
        return;
    const uint8_t *element = static_cast<const uint8_t *>(load_pointer(src));
    const uint32_t count = load_count(src);
    for (uint32_t i = 0; i < count; i++, element += element_size, copy += element_size)
        copier.copy_record(copy, element, copy_blocks);
}

} // namespace tarn
