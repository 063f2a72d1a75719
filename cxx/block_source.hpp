// SPDX-License-Identifier: MIT

/** @file
 * Where the blocks of records come from: the two callbacks of the C interface and their context in
 * one value, made from malloc, from an object of the caller's, or by hand.
 */

#pragma once

#include "../runtime/record.h"

#include <cstdint>
#include <cstdlib>
#include <type_traits>
#include <utility>

namespace tarn {

/**
 * A source of blocks: an allocation callback, a release callback, and the context of both. Without
 * a release callback, blocks are not taken back singly: an Owner then spends nothing on release.
 */
struct BlockSource {
    /** Supplies blocks, as wire_alloc_fn says. Null: decoding fails where a block is needed. */
    wire_alloc_fn alloc_fn = nullptr;
    /** Takes blocks back, or null where the source takes them back all at once. */
    wire_free_fn free_fn = nullptr;
    /** What both are given. */
    void *context = nullptr;
};

/** @cond internal */
namespace detail {

inline void *take_from_heap(uint32_t size, void *) noexcept
{
    return std::malloc(size ? size : 1); // null for 0 bytes would be a failure
}

inline void give_to_heap(void *block, void *) noexcept
{
    std::free(block);
}

template <typename Source>
void *take_from(uint32_t size, void *source) noexcept
{
    return static_cast<Source *>(source)->take(size);
}

template <typename Source>
void give_to(void *block, void *source) noexcept
{
    static_cast<Source *>(source)->give_back(block);
}

template <typename Source, typename = void>
inline constexpr bool has_take = false;
template <typename Source>
inline constexpr bool has_take<
    Source, std::void_t<decltype(static_cast<void *>(std::declval<Source &>().take(uint32_t{})))>> =
    true;

template <typename Source, typename = void>
inline constexpr bool has_give_back = false;
template <typename Source>
inline constexpr bool has_give_back<Source, std::void_t<decltype(std::declval<Source &>().give_back(
                                                static_cast<void *>(nullptr)))>> = true;

} // namespace detail
/** @endcond */

/** The blocks of malloc and free. */
constexpr BlockSource heap() noexcept
{
    return {detail::take_from_heap, detail::give_to_heap, nullptr};
}

/**
 * The blocks of an object with a member function `void *take(uint32_t size)`, which answers as
 * wire_alloc_fn says, and, where it takes blocks back singly, `void give_back(void *block)`.
 * Neither may throw: what they let out ends the program. The object must stay where it is as long
 * as anything made from it holds blocks.
 */
template <typename Source>
constexpr BlockSource blocks_of(Source &source) noexcept
{
    static_assert(detail::has_take<Source>, "a source of blocks has void *take(uint32_t size)");
    if constexpr (detail::has_give_back<Source>)
        return {detail::take_from<Source>, detail::give_to<Source>, &source};
    else
        return {detail::take_from<Source>, nullptr, &source};
}

} // namespace tarn
