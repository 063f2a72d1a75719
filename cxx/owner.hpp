// SPDX-License-Identifier: MIT

/** @file
 * A record that owns its blocks: decoded or duplicated into, released at the end of its scope.
 */

#pragma once

#include "block_source.hpp"
#include "operations.hpp"
#include "view.hpp"

#include <cstdint>
#include <memory>
#include <type_traits>

namespace tarn {

/** @cond internal */
namespace detail {

template <typename T, bool = has_fields<T>>
struct Storage {
    T record = {};

    T *pointer() noexcept { return std::addressof(record); }
    const T *pointer() const noexcept { return std::addressof(record); }
    void to_zero() noexcept { record = T{}; }
};

// There is no structure, so there is nothing to store.
template <typename T>
struct Storage<T, false> {
    T *pointer() noexcept { return nullptr; }
    const T *pointer() const noexcept { return nullptr; }
    void to_zero() noexcept {}
};

} // namespace detail
/** @endcond */

/**
 * One record of type `T` and the blocks that hang on it. It is the plain structure, the source of
 * its blocks and the flags word it was decoded with, side by side: no block of its own, no copy of
 * what the library stores.
 *
 * A new Owner, and one that was cleared or moved from, holds a record of zero bytes. What is read
 * through `->` and `*` is constant, since every pointer in the record goes back to the source: to
 * change a member, copy the structure (`T changed = *owner;`, which shares the blocks and owns
 * none), or see writable().
 *
 * Of a type without fields there is no record to look at: get() is null, `->` and `*` do not
 * compile; decode() checks the input and skips what is in it.
 *
 * An embedded record that comes twice in one message loses the blocks of the first, to the Owner as
 * to everybody: records that strangers send belong into an Arena.
 *
 * No function throws. One Owner is for one thread at a time.
 */
template <typename T>
class Owner : private detail::Storage<T> {
    using Stored = detail::Storage<T>;

public:
    /** An Owner whose blocks come from malloc and go back to free. */
    Owner() noexcept = default;

    /** An Owner whose blocks come from `source`, which is copied; its context must stay. */
    explicit Owner(const BlockSource &source) noexcept : source_(source) {}

    /**
     * An Owner whose blocks come from an object with take() and perhaps give_back(), such as an
     * Arena: see blocks_of(). The object must stay where it is as long as this Owner decodes,
     * duplicates, or holds blocks.
     */
    template <typename Object,
              std::enable_if_t<!std::is_const_v<Object> && detail::has_take<Object>, int> = 0>
    explicit Owner(Object &object) noexcept : source_(blocks_of(object))
    {}

    /** Takes over record, blocks, source and flags; `other` is as new and keeps its source. */
    Owner(Owner &&other) noexcept : Stored(other), source_(other.source_), flags_(other.flags_)
    {
        other.forget();
    }

    /** Releases what is held, then takes over as above. */
    Owner &operator=(Owner &&other) noexcept
    {
        if (this != std::addressof(other)) {
            release();
            static_cast<Stored &>(*this) = other;
            source_ = other.source_;
            flags_ = other.flags_;
            other.forget();
        }
        return *this;
    }

    /** Copying needs memory and can fail: see duplicate(). */
    Owner(const Owner &) = delete;
    /** Copying needs memory and can fail: see duplicate(). */
    Owner &operator=(const Owner &) = delete;

    /** Hands every block back to its source. */
    ~Owner() { release(); }

    /**
     * Releases what is held, then decodes `input`.
     *
     * @param input The bytes of a message. They must not lie in blocks of this Owner.
     * @param flags With WIRE_FLAG_BYTES_IN_PLACE byte strings point into `input`, which must then
     *     outlive the record. The word is remembered for the release.
     * @return WIRE_OK, or the first error: the record then holds what came before it, and is
     *     released like any other. Input of 4 GiB or more is WIRE_ERR_MALFORMED, unread.
     */
    [[nodiscard]] int32_t decode(ByteView input, uint32_t flags = 0) noexcept
    {
        if (input.size() > UINT32_MAX) {
            clear();
            return WIRE_ERR_MALFORMED;
        }
        release();
        flags_ = flags;
        return Operations<T>::decode_ext(writable(), input.data(),
                                         static_cast<uint32_t>(input.size()), source_.alloc_fn,
                                         source_.context, flags);
    }

    /**
     * Makes this a copy of `original` with blocks of its own, then releases what was held before:
     * `original` may be, or share blocks with, the record of this Owner. Costs one copy of the
     * structure more than T_duplicate.
     *
     * @return WIRE_OK, or WIRE_ERR_NO_MEMORY: what could not be copied is missing, everything else
     *     is there.
     */
    [[nodiscard]] int32_t duplicate(const T &original) noexcept
    {
        return duplicate_from(std::addressof(original));
    }

    /** The same with the record of another Owner, or of this one; for every type. */
    [[nodiscard]] int32_t duplicate(const Owner &original) noexcept
    {
        return duplicate_from(original.get());
    }

    /** Hands every block back; the record is then zero bytes. */
    void clear() noexcept
    {
        release();
        forget();
    }

    /** The record. Null for a type without fields. Constant, but see writable(). */
    const T *get() const noexcept { return Stored::pointer(); }

    /** The record. */
    const T &operator*() const noexcept
    {
        static_assert(has_fields<T>, "there is no record of a type without fields");
        return *get();
    }

    /** The way to a member of the record. */
    const T *operator->() const noexcept { return get(); }

    /**
     * The record, to be written: numbers and flags as you like. A pointer that is put into it is
     * handed back to the source like those that were there, and one that is overwritten is lost.
     * Null for a type without fields.
     */
    T *writable() noexcept { return Stored::pointer(); }

    /** Where the blocks come from. */
    const BlockSource &source() const noexcept { return source_; }

    /** The flags word of the last decode(), or 0. */
    uint32_t flags() const noexcept { return flags_; }

private:
    int32_t duplicate_from(const T *original) noexcept
    {
        Stored copy;
        const int32_t result =
            Operations<T>::duplicate(copy.pointer(), original, source_.alloc_fn, source_.context);
        release();
        static_cast<Stored &>(*this) = copy;
        flags_ = 0;
        return result;
    }

    // The pointers stay as they are: whoever calls this overwrites them.
    void release() noexcept
    {
        if (source_.free_fn)
            Operations<T>::free_ext(writable(), source_.free_fn, source_.context, flags_);
    }

    void forget() noexcept
    {
        Stored::to_zero();
        flags_ = 0;
    }

    BlockSource source_ = heap();
    uint32_t flags_ = 0;
};

} // namespace tarn
