// SPDX-License-Identifier: MIT
// Texts of 4 GiB and more: 'a' after 'a', of which a small file mapped again and again makes many.

#pragma once

#include <cstdint>
#include <cstring>
#include <sys/mman.h>
#include <unistd.h>

namespace test {

class HugeText {
public:
    // Without 64-bit addresses there is no room for any.
    static constexpr bool possible = sizeof(void *) == 8;

    HugeText()
    {
        const int file = memfd_create("huge_text", 0);
        if (file < 0)
            return;
        if (ftruncate(file, kPart) == 0)
            map(file);
        close(file);
    }

    ~HugeText()
    {
        if (base_)
            munmap(base_, kSize);
    }

    HugeText(const HugeText &) = delete;
    HugeText &operator=(const HugeText &) = delete;

    // Null when there was no room after all.
    const char *of_length(uint64_t length) const
    {
        return base_ ? base_ + (kSize - 1 - length) : nullptr;
    }

private:
    static constexpr size_t kPart = size_t{1} << 21;
    static constexpr size_t kSize = static_cast<size_t>((uint64_t{1} << 32) + 2 * kPart);

    void map(int file)
    {
        void *room = mmap(nullptr, kSize, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
        if (room == MAP_FAILED)
            return;
        char *base = static_cast<char *>(room);
        for (size_t at = 0; at < kSize - kPart; at += kPart)
            if (mmap(base + at, kPart, PROT_READ | PROT_WRITE, MAP_SHARED | MAP_FIXED, file, 0) ==
                MAP_FAILED)
                return;
        // The last part is one of its own: it has the end of the text.
        char *last = base + (kSize - kPart);
        if (mprotect(last, kPart, PROT_READ | PROT_WRITE))
            return;
        memset(base, 'a', kPart);
        memset(last, 'a', kPart - 1);
        base_ = base;
    }

    char *base_ = nullptr;
};

} // namespace test
