// SPDX-License-Identifier: MIT
#include "tests/costs/arena.hpp"

#include <new>

#include <sys/mman.h>

namespace costs {

Arena::Arena(uint64_t budget) : budget_(budget)
{
    void *memory = mmap(nullptr, static_cast<size_t>(budget), PROT_READ | PROT_WRITE,
                        MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (memory == MAP_FAILED)
        throw std::bad_alloc();
    memory_ = static_cast<uint8_t *>(memory);
}

Arena::~Arena()
{
    munmap(memory_, static_cast<size_t>(budget_));
}

void *Arena::allocate(uint32_t size, void *arena)
{
    Arena &self = *static_cast<Arena *>(arena);
    self.bytes_ += size;
    self.calls_++;
    const uint64_t end = self.used_ + ((uint64_t{size} + 7) & ~uint64_t{7});
    if (end > self.budget_)
        return nullptr;
    void *block = self.memory_ + self.used_;
    self.used_ = end;
    return block;
}

void Arena::release(void *, void *) {}

void Arena::drop_all()
{
    used_ = 0;
    bytes_ = 0;
    calls_ = 0;
}

} // namespace costs
