// SPDX-License-Identifier: MIT
// One mapping cut into slots, with a page without access between them: many slots of one page, and
// a few for what does not fit.

#include "tests/model/guard_memory.hpp"

#include "tests/support/undefined.hpp"

#include <cstring>
#include <stdexcept>

#include <sys/mman.h>
#include <unistd.h>

namespace model {

namespace {

constexpr uint32_t kSmallSlots = 4096;
constexpr uint32_t kLargeSlots = 64;
constexpr size_t kLargeBytes = size_t{128} * 1024;

size_t page()
{
    static const auto size = size_t(sysconf(_SC_PAGESIZE));
    return size;
}

size_t small_slot()
{
    return 2 * page();
}

size_t large_slot()
{
    return kLargeBytes + page();
}

} // namespace

GuardMemory::GuardMemory()
{
    length_ = page() + kSmallSlots * small_slot() + kLargeSlots * large_slot();
    void *start = mmap(nullptr, length_, PROT_READ | PROT_WRITE,
                       MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (start == MAP_FAILED)
        throw std::runtime_error("no room for the guarded memory");
    auto *at = static_cast<uint8_t *>(start);
    base_ = reinterpret_cast<uintptr_t>(at);
    bool guarded = mprotect(at, page(), PROT_NONE) == 0;
    at += page();
    for (uint32_t i = 0; i < kSmallSlots; ++i, at += small_slot())
        guarded &= mprotect(at + page(), page(), PROT_NONE) == 0;
    for (uint32_t i = 0; i < kLargeSlots; ++i, at += large_slot())
        guarded &= mprotect(at + kLargeBytes, page(), PROT_NONE) == 0;
    if (!guarded)
        throw std::runtime_error("cannot guard the memory");
}

GuardMemory::~GuardMemory()
{
    munmap(reinterpret_cast<void *>(base_), length_);
}

uint8_t *GuardMemory::take(uint32_t size, const char *purpose, const RecordType *type)
{
    uint8_t *slot = reinterpret_cast<uint8_t *>(base_) + page();
    size_t room = 0;
    if (size <= page() - kMargin) {
        if (small_ == kSmallSlots)
            return nullptr;
        slot += small_++ * small_slot();
        room = page();
    } else if (size <= kLargeBytes - kMargin) {
        if (large_ == kLargeSlots)
            return nullptr;
        slot += kSmallSlots * small_slot() + large_++ * large_slot();
        room = kLargeBytes;
    } else {
        return nullptr;
    }
    const uint32_t before = guard_in_front ? 0 : kMargin;
    const uint32_t behind = kMargin - before;
    uint8_t *data = guard_in_front ? slot : slot + room - size;
    std::memset(data - before, pattern, size + size_t(kMargin));
    test::make_undefined(data, size);
    blocks_.push_back({data, size, before, behind, purpose, type});
    return data;
}

void GuardMemory::rewind(const Mark &mark)
{
    blocks_.resize(mark.blocks);
    small_ = mark.small;
    large_ = mark.large;
}

} // namespace model
