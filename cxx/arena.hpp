// SPDX-License-Identifier: MIT

/** @file
 * Memory with a budget for records that strangers send.
 */

#pragma once

#include "view.hpp"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace tarn {

/**
 * Hands out pieces of one block, and takes all of them back at once: blocks for records whose
 * senders are not to be trusted. When the block is used up, decoding ends with
 * WIRE_ERR_NO_MEMORY, whatever the input asks for.
 *
 * Pieces are aligned to 8 and take up a multiple of 8 bytes. As the arena takes none back singly,
 * an Owner spends nothing on their release, and may outlive reset() as long as nobody looks at its
 * record.
 *
 * It stays where it is, since Owners hold its address. No function throws. For one thread at a
 * time.
 */
class Arena {
public:
    /**
     * An arena on a block of malloc's.
     *
     * @param budget How much it hands out, rounded down to a multiple of 8. Where the system has no
     *     block of that size, budget() is 0.
     */
    explicit Arena(uint32_t budget) noexcept
        : block_(static_cast<uint8_t *>(std::malloc(whole(budget)))), own_(true)
    {
        budget_ = block_ ? whole(budget) : 0;
    }

    /**
     * An arena on memory of the caller's, which must outlive it: an array, a pointer and a size.
     *
     * @param memory The memory. Its budget is what is left of it between multiples of 8.
     */
    explicit Arena(ByteBuffer memory) noexcept : block_(memory.data()), own_(false)
    {
        const uint32_t size = detail::capacity_of(memory.size());
        const uint32_t gap =
            padding(static_cast<uint32_t>(reinterpret_cast<uintptr_t>(block_) % 8));
        if (!block_ || gap > size)
            return;
        block_ += gap;
        budget_ = whole(size - gap);
    }

    /** Owners hold the address of their arena. */
    Arena(const Arena &) = delete;
    /** Owners hold the address of their arena. */
    Arena &operator=(const Arena &) = delete;

    ~Arena()
    {
        if (own_)
            std::free(block_);
    }

    /**
     * A piece of `size` bytes, or null when less than that is left. For 0 bytes, an address that
     * others may have, too.
     */
    void *take(uint32_t size) noexcept
    {
        if (size > left())
            return nullptr;
        uint8_t *piece = block_ + used_;
        used_ += size + padding(size); // within the budget, which is a multiple of 8
        return piece;
    }

    /** Takes every piece back. What was made from them must not be looked at any more. */
    void reset() noexcept { used_ = 0; }

    /** How much it hands out in all. */
    uint32_t budget() const noexcept { return budget_; }
    /** How much it has handed out, with what fills the pieces up to multiples of 8. */
    uint32_t used() const noexcept { return used_; }
    /** The largest piece it still has. */
    uint32_t left() const noexcept { return budget_ - used_; }

private:
    static constexpr uint32_t padding(uint32_t size) noexcept { return (8 - size % 8) % 8; }
    static constexpr uint32_t whole(uint32_t size) noexcept { return size - size % 8; }

    uint8_t *block_;
    uint32_t budget_ = 0;
    uint32_t used_ = 0;
    bool own_;
};

} // namespace tarn
