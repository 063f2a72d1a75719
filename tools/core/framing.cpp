// SPDX-License-Identifier: MIT
#include "tools/core/framing.hpp"

#include "tools/core/error.hpp"
#include "tools/core/varint.hpp"

#include <algorithm>
#include <fmt/format.h>

namespace inspect {

namespace {

constexpr size_t kFixedLength = 4;
constexpr size_t kLongestVarint = 10;

size_t byte_of(Framing framing, size_t i)
{
    return framing == Framing::u32le ? i : kFixedLength - 1 - i;
}

[[noreturn]] void fail(size_t offset, std::string_view what)
{
    throw Error(fmt::format("offset 0x{0:x} ({0}) of the stream: {1}", offset, what));
}

struct Length {
    uint64_t value;
    size_t size; // in the stream
};

Length read_fixed(Bytes stream, size_t position, Framing framing)
{
    if (stream.size() - position < kFixedLength)
        fail(position, "the length of a message is cut off");
    uint64_t value = 0;
    for (size_t i = 0; i < kFixedLength; i++)
        value |= uint64_t{stream[position + byte_of(framing, i)]} << (8 * i);
    return {value, kFixedLength};
}

Length read_varint_length(Bytes stream, size_t position)
{
    const size_t left = stream.size() - position;
    const auto length = read_varint(stream.subspan(position, std::min(left, kLongestVarint)));
    if (!length && left < kLongestVarint)
        fail(position, "the length of a message is cut off");
    if (!length || length->has_more)
        fail(position, "the length of a message does not fit 64 bits");
    return {length->value, length->size};
}

Length read_length(Bytes stream, size_t position, Framing framing)
{
    if (framing == Framing::varint)
        return read_varint_length(stream, position);
    return read_fixed(stream, position, framing);
}

void append_varint(std::vector<uint8_t> &stream, uint64_t value)
{
    for (; value >= 0x80; value >>= 7)
        stream.push_back(static_cast<uint8_t>(value | 0x80));
    stream.push_back(static_cast<uint8_t>(value));
}

void append_fixed(std::vector<uint8_t> &stream, uint64_t value, Framing framing)
{
    if (value > UINT32_MAX)
        throw Error(fmt::format("a message of {} bytes: its length does not fit 32 bits", value));
    for (size_t i = 0; i < kFixedLength; i++)
        stream.push_back(static_cast<uint8_t>(value >> (8 * byte_of(framing, i))));
}

} // namespace

std::optional<Frame> FrameReader::next()
{
    if (framing_ == Framing::none) {
        if (done_)
            return {};
        done_ = true;
        return Frame{0, stream_};
    }
    if (position_ == stream_.size())
        return {};
    const Length length = read_length(stream_, position_, framing_);
    const size_t begin = position_ + length.size;
    if (length.value > stream_.size() - begin)
        fail(position_, fmt::format("a message of {} bytes, but {} are left", length.value,
                                    stream_.size() - begin));
    const auto size = static_cast<size_t>(length.value);
    position_ = begin + size;
    return Frame{begin, stream_.subspan(begin, size)};
}

void append_frame(std::vector<uint8_t> &stream, Bytes message, Framing framing)
{
    if (framing == Framing::varint)
        append_varint(stream, message.size());
    else if (framing != Framing::none)
        append_fixed(stream, message.size(), framing);
    stream.insert(stream.end(), message.begin(), message.end());
}

} // namespace inspect
