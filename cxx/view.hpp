// SPDX-License-Identifier: MIT

/** @file
 * Bytes and pieces that stand in a row in memory, wherever: in a vector, an array, a string, a
 * span.
 */

#pragma once

#include "../runtime/record.h"

#include <cstddef>
#include <cstdint>
#include <type_traits>
#include <utility>

namespace tarn {

/** @cond internal */
namespace detail {

// Bytes have several types; what stands for one is looked at as what the C interface calls one.
template <typename From, typename To>
inline constexpr bool
    is_element = std::is_same_v<std::remove_const_t<From>, std::remove_const_t<To>> ||
                 (std::is_same_v<std::remove_const_t<To>, uint8_t> &&
                  (std::is_same_v<std::remove_const_t<From>, char> ||
                   std::is_same_v<std::remove_const_t<From>, std::byte>));

template <typename From, typename To>
inline constexpr bool can_be_seen_as = is_element<From, To> &&
                                       (std::is_const_v<To> || !std::is_const_v<From>);

template <typename Container, typename To, typename = void>
inline constexpr bool is_row = false;
template <typename Container, typename To>
inline constexpr bool
    is_row<Container, To,
           std::void_t<decltype(std::declval<Container &>().data()),
                       decltype(static_cast<size_t>(std::declval<Container &>().size()))>> =
        can_be_seen_as<std::remove_pointer_t<decltype(std::declval<Container &>().data())>, To>;

} // namespace detail
/** @endcond */

/**
 * Elements in a row that belong to somebody else. Made in passing, from whatever holds them: an
 * array, a pointer and a size, or anything with data() and size() (std::vector, std::array,
 * std::string, std::span, ...). Bytes may be of the types uint8_t, std::byte and, but for arrays
 * (which would count the zero byte behind a text), char.
 */
template <typename Element>
class View {
public:
    /** No elements. */
    constexpr View() noexcept = default;

    /** `size` elements at `data`, which may be null when there are none. */
    constexpr View(Element *data, size_t size) noexcept : data_(data), size_(size) {}

    /** What a container holds. */
    template <typename Container,
              std::enable_if_t<!std::is_array_v<std::remove_reference_t<Container>> &&
                                   detail::is_row<Container, Element>,
                               int> = 0>
    View(Container &&container) noexcept // NOLINT(bugprone-forwarding-reference-overload)
        : data_(reinterpret_cast<Element *>(container.data())),
          size_(static_cast<size_t>(container.size()))
    {}

    /** All elements of an array. */
    template <typename From, size_t N,
              std::enable_if_t<detail::can_be_seen_as<From, Element> &&
                                   !std::is_same_v<std::remove_const_t<From>, char>,
                               int> = 0>
    View(From (&array)[N]) noexcept : data_(reinterpret_cast<Element *>(array)), size_(N)
    {}

    /** The first of them. */
    constexpr Element *data() const noexcept { return data_; }
    /** How many. */
    constexpr size_t size() const noexcept { return size_; }

private:
    Element *data_ = nullptr;
    size_t size_ = 0;
};

/** Bytes to read from. */
using ByteView = View<const uint8_t>;
/** Bytes to write to. */
using ByteBuffer = View<uint8_t>;
/** Room for the pieces of a gather list. */
using SegmentBuffer = View<WireSegment>;

/** @cond internal */
namespace detail {

// The C interface counts with 32 bits. Room beyond that is of no use to it.
constexpr uint32_t capacity_of(size_t size) noexcept
{
    return size > UINT32_MAX ? UINT32_MAX : static_cast<uint32_t>(size);
}

} // namespace detail
/** @endcond */

} // namespace tarn
