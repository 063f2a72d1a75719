// SPDX-License-Identifier: MIT

/** @file
 * Encoding into vectors, into room of the caller's, and into gather lists.
 *
 * What is encoded is a structure of a record type, or an Owner of one, which is the way for types
 * without fields. Their encoding is empty.
 */

#pragma once

#include "operations.hpp"
#include "owner.hpp"
#include "view.hpp"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace tarn {

/** @cond internal */
namespace detail {

template <typename Source>
struct RecordOf {
    using type = Source;
    static const Source *pointer(const Source &record) noexcept { return std::addressof(record); }
};

template <typename T>
struct RecordOf<Owner<T>> {
    using type = T;
    static const T *pointer(const Owner<T> &owner) noexcept { return owner.get(); }
};

} // namespace detail
/** @endcond */

/**
 * How long the encoding of a record is.
 *
 * @param source A record, or an Owner.
 * @param flags With WIRE_FLAG_BYTES_IN_PLACE, how much of it belongs in the buffer of a gather
 *     list: all but the byte strings.
 */
template <typename Source>
uint32_t encoded_length(const Source &source, uint32_t flags = 0) noexcept
{
    using Record = detail::RecordOf<Source>;
    return Operations<typename Record::type>::encode_ext(Record::pointer(source), nullptr, 0,
                                                         nullptr, nullptr, flags);
}

/**
 * Encodes a record into a buffer of the caller's.
 *
 * @param source A record, or an Owner.
 * @param buffer Where the encoding goes. During the call all of it is the library's.
 * @return The length of the encoding. Larger than the buffer means that the buffer is too small,
 *     and its content of no use.
 */
template <typename Source>
[[nodiscard]] uint32_t encode_into(ByteBuffer buffer, const Source &source) noexcept
{
    using Record = detail::RecordOf<Source>;
    return Operations<typename Record::type>::encode_ext(Record::pointer(source), buffer.data(),
                                                         detail::capacity_of(buffer.size()),
                                                         nullptr, nullptr, 0);
}

/**
 * Appends the encoding of a record to a vector: measures, makes the vector longer, writes. A vector
 * with room to spare takes no memory.
 *
 * @param to What it is appended to. It must not hold what `source` points at.
 * @param source A record, or an Owner.
 * @return The length of the encoding.
 *
 * What the vector throws when there is no memory (std::bad_alloc, std::length_error) passes
 * through, and leaves the vector as it was. Without exceptions it ends the program.
 */
template <typename Source>
uint32_t append(std::vector<uint8_t> &to, const Source &source)
{
    const uint32_t length = encoded_length(source);
    const size_t before = to.size();
    to.resize(before + length);
    return encode_into({to.data() + before, length}, source);
}

/**
 * The encoding of a record as a vector: one block, two calls of the library. Throws what append()
 * throws.
 *
 * @param source A record, or an Owner.
 */
template <typename Source>
[[nodiscard]] std::vector<uint8_t> encode(const Source &source)
{
    std::vector<uint8_t> bytes;
    append(bytes, source);
    return bytes;
}

/** The encoding of a record type without fields, which is empty. */
template <typename T>
[[nodiscard]] std::vector<uint8_t> encode() noexcept
{
    static_assert(!has_fields<T>, "a record of this type has fields: encode(record)");
    return {};
}

/** How much there is of a gather list. */
struct Gathered {
    /** Bytes in the buffer; more than its size: it is too small. */
    uint32_t length;
    /** Pieces; more than there was room for: the list is not complete. */
    uint32_t count;
};

/**
 * Encodes a record as a gather list: its byte strings stay where they are, everything else goes
 * into a buffer; the pieces, one behind the other, are the message. For types without nested
 * records: those of others are no list to send, so this does not compile for them.
 *
 * @param source A record, or an Owner. The pieces point into its byte strings.
 * @param buffer Where everything else goes; the other pieces point into it.
 * @param pieces Where the list goes.
 * @return How many bytes and pieces there are. Where one exceeds its room, the list is of no use.
 */
template <typename Source>
[[nodiscard]] Gathered gather(const Source &source, ByteBuffer buffer,
                              SegmentBuffer pieces) noexcept
{
    using Record = detail::RecordOf<Source>;
    using Type = typename Record::type;
    static_assert(Operations<Type>::shape != Shape::nesting,
                  "the pieces of a record with nested records are spans, not a list to send");
    uint32_t count = detail::capacity_of(pieces.size());
    const uint32_t length = Operations<Type>::encode_ext(
        Record::pointer(source), buffer.data(), detail::capacity_of(buffer.size()), pieces.data(),
        &count, WIRE_FLAG_BYTES_IN_PLACE);
    return {length, count};
}

/**
 * The same into vectors, which become as long as need be; what they held is overwritten. Two calls
 * of the library, one of which measures. Vectors that are kept from one record to the next take no
 * memory once they are large enough.
 *
 * @param source A record, or an Owner. The pieces point into its byte strings.
 * @param buffer Where everything but byte strings goes; the other pieces point into it.
 * @param pieces The list.
 *
 * What the vectors throw when there is no memory passes through.
 */
template <typename Source>
void gather(const Source &source, std::vector<uint8_t> &buffer, std::vector<WireSegment> &pieces)
{
    const Gathered needed = gather(source, ByteBuffer(), SegmentBuffer());
    buffer.resize(needed.length);
    pieces.resize(needed.count);
    static_cast<void>(gather(source, ByteBuffer(buffer), SegmentBuffer(pieces)));
}

} // namespace tarn
