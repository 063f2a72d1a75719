// SPDX-License-Identifier: MIT
// Numbers of runs and lists as the plain rule writes them, and a comparison with what is written
// into buffers of a given size: the whole buffer, not only what belongs to the numbers.

#pragma once

#include "runtime/write.hpp"
#include "tests/support/bytes.hpp"
#include "tests/support/plain_encoder.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <sys/mman.h>
#include <type_traits>
#include <unistd.h>
#include <vector>

namespace test {

template <typename Member>
constexpr tarn::Kind kind_of_member()
{
    if (std::is_same_v<Member, uint64_t>)
        return tarn::Kind::uint64;
    return std::is_same_v<Member, uint32_t> ? tarn::Kind::uint32 : tarn::Kind::boolean;
}

// Those of neighbouring members of which `present` has a bit. A list is the same with step 0: its
// elements are members of which all are present, and all have the first one's number.
template <typename Member>
Bytes plain_numbers(const std::vector<Member> &members, uint64_t present, uint32_t number,
                    uint32_t step)
{
    const uint32_t count = static_cast<uint32_t>(members.size());
    Bytes bytes(members.size() * 12);
    PlainEncoder out(bytes.data(), bytes.length(), nullptr, nullptr, 0);
    for (uint32_t i = 0; i < count; i++) {
        const tarn::Field field = {kind_of_member<Member>(),
                                   static_cast<uint8_t>(number + i * step), 0, sizeof(Member)};
        const bool is_present = step == 0 || (present >> i & 1) != 0;
        out.put(field, reinterpret_cast<const uint8_t *>(&members[i]), is_present, nullptr, 0);
    }
    bytes.resize(out.finish());
    return bytes;
}

// A block at whose end the memory ends: whoever goes beyond it, even to put back what was there, is
// stopped.
class LastBlock {
public:
    explicit LastBlock(uint32_t size) : size_(size)
    {
        const size_t page = static_cast<size_t>(sysconf(_SC_PAGESIZE));
        pages_size_ = (size + page - 1) / page * page + page;
        void *pages =
            mmap(nullptr, pages_size_, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
        pages_ = pages == MAP_FAILED ? nullptr : static_cast<uint8_t *>(pages);
        if (pages_ && mprotect(pages_ + pages_size_ - page, page, PROT_NONE) == 0)
            begin_ = pages_ + pages_size_ - page - size;
    }

    ~LastBlock()
    {
        if (pages_)
            munmap(pages_, pages_size_);
    }

    LastBlock(const LastBlock &) = delete;
    LastBlock &operator=(const LastBlock &) = delete;

    // Null when there was no memory.
    uint8_t *begin() const { return begin_; }
    uint8_t *end() const { return begin_ + size_; }

private:
    uint32_t size_;
    size_t pages_size_ = 0;
    uint8_t *pages_ = nullptr;
    uint8_t *begin_ = nullptr;
};

// write(offset, out) is to write `expected`, from `offset` on, as far as the capacity goes, and to
// leave the rest alone: what is before, what is behind, and `behind` bytes beyond the capacity.
// False after a difference.
template <typename Write>
bool is_written_at(uint8_t *begin, uint32_t capacity, uint32_t behind, uint32_t offset,
                   const Bytes &expected, Write write)
{
    Bytes right(size_t{capacity} + behind);
    for (size_t i = 0; i < right.size(); i++)
        right[i] = static_cast<uint8_t>(0xA5 + 3 * i);
    std::copy(right.begin(), right.end(), begin);
    for (uint32_t i = offset; i < capacity && i - offset < expected.size(); i++)
        right[i] = expected[i - offset];
    tarn::Encoder out(begin, capacity, nullptr, nullptr, 0);
    const uint32_t end = write(offset, out);
    if (end == offset + expected.length() && std::equal(right.begin(), right.end(), begin))
        return true;
    ADD_FAILURE() << "capacity " << capacity << ", written from " << offset << " to " << end
                  << "\nexpected " << testing::PrintToString(right) << "\n   found "
                  << testing::PrintToString(Bytes(begin, begin + right.size()));
    return false;
}

template <typename Write>
bool is_written_into(uint32_t capacity, uint32_t behind, uint32_t offset, const Bytes &expected,
                     Write write)
{
    Bytes buffer(size_t{capacity} + behind);
    return is_written_at(buffer.data(), capacity, behind, offset, expected, write);
}

constexpr uint32_t kBehindTheBuffer = 16;

// In buffers of every capacity up to so much more than it takes.
template <typename Write>
bool is_written_into_any(const Bytes &expected, uint32_t more, Write write)
{
    for (uint32_t capacity = 0; capacity <= expected.length() + more; capacity++)
        if (!is_written_into(capacity, kBehindTheBuffer, 0, expected, write))
            return false;
    return true;
}

// In buffers that are about as long as it takes, behind a byte, and end where the memory does.
template <typename Write>
bool is_written_near_the_end(const Bytes &expected, uint32_t near, Write write)
{
    static const LastBlock last(4096);
    if (!last.begin()) {
        ADD_FAILURE() << "no memory";
        return false;
    }
    const uint32_t end = 1 + expected.length();
    for (uint32_t capacity = end > near ? end - near : 0; capacity <= end + near; capacity++)
        if (!is_written_at(last.end() - capacity, capacity, 0, 1, expected, write))
            return false;
    return true;
}

} // namespace test
