// SPDX-License-Identifier: MIT
// The rule of encoding once more, as runtime/record.h tells it and in the plainest way: member by
// member, byte by byte, each nested record measured before it is written.

#pragma once

#include "foreign/foreign.hpp"
#include "runtime/member.hpp"
#include "tests/support/stranger.hpp"
#include "wire/varint.hpp"

#include <array>
#include <cstdint>
#include <cstring>

namespace test {

using PlainEncode = uint32_t (*)(const void *record, uint8_t *buffer, uint32_t capacity,
                                 WireSegment *segments, uint32_t *segment_count, uint32_t flags);

class PlainEncoder {
public:
    PlainEncoder(uint8_t *buffer, uint32_t capacity, WireSegment *segments, uint32_t *segment_count,
                 uint32_t flags)
        : buffer_(buffer), capacity_(capacity), segments_(segments), segment_count_(segment_count),
          room_(segments && segment_count ? *segment_count : 0), flags_(flags)
    {}

    // A field whose member is there; `child` and `child_size` are of what is nested.
    void put(const tarn::Field &field, const uint8_t *member, bool present, PlainEncode child,
             uint32_t child_size)
    {
        using tarn::Kind;
        tag_ = uint32_t{field.number} << 3 | (tarn::is_number(field.kind) ? 0 : 2);
        if (field.kind == Kind::message) {
            const uint32_t length = child(member, nullptr, 0, nullptr, nullptr, flags_);
            if (length || present)
                nested(member, length, child);
            return;
        }
        if (!present)
            return;
        if (tarn::is_scalar(field.kind)) {
            number(scalar(field.kind, member));
            return;
        }
        const uint8_t *pointer = static_cast<const uint8_t *>(tarn::load_pointer(member));
        if (field.kind == Kind::string)
            text(pointer);
        else if (field.kind == Kind::bytes)
            bytes(pointer, tarn::load_count(member));
        else
            for (uint32_t i = 0; pointer && i < tarn::load_count(member); i++)
                element(field.kind, pointer, i, child, child_size);
    }

    uint32_t finish()
    {
        if (!segment_count_)
            return offset_;
        if (start_ < offset_)
            piece(address(start_), offset_ - start_);
        *segment_count_ = count_;
        return offset_;
    }

private:
    static uint64_t scalar(tarn::Kind kind, const uint8_t *member)
    {
        uint64_t value = 0;
        memcpy(&value, member,
               kind == tarn::Kind::uint64 ? 8 : (kind == tarn::Kind::uint32 ? 4 : 1));
        return value;
    }

    void element(tarn::Kind kind, const uint8_t *array, uint32_t i, PlainEncode child,
                 uint32_t child_size)
    {
        if (kind == tarn::Kind::repeated_uint32)
            number(scalar(tarn::Kind::uint32, array + i * sizeof(uint32_t)));
        else if (kind == tarn::Kind::repeated_string)
            text(static_cast<const uint8_t *>(tarn::load_pointer(array + i * sizeof(char *))));
        else
            nested(array + size_t{i} * child_size,
                   child(array + size_t{i} * child_size, nullptr, 0, nullptr, nullptr, flags_),
                   child);
    }

    void varint(uint64_t value)
    {
        offset_ = tarn::wire_put_varint64(value, offset_, buffer_, capacity_);
    }

    void number(uint64_t value)
    {
        varint(tag_);
        varint(value);
    }

    // Whole or not at all, and always counted.
    void payload(const uint8_t *data, uint32_t length)
    {
        if (uint64_t{offset_} + length <= capacity_)
            memcpy(buffer_ + offset_, data, length);
        offset_ += length;
    }

    void text(const uint8_t *text)
    {
        if (!text)
            return;
        const uint32_t length = static_cast<uint32_t>(strlen(reinterpret_cast<const char *>(text)));
        number(length);
        payload(text, length);
    }

    void bytes(const uint8_t *data, uint32_t length)
    {
        number(length);
        if (length == 0)
            return;
        if (!(flags_ & WIRE_FLAG_BYTES_IN_PLACE)) {
            payload(data, length);
        } else if (segment_count_) {
            piece(address(start_), offset_ - start_);
            start_ = offset_;
            piece(data, length);
        }
    }

    void nested(const uint8_t *record, uint32_t length, PlainEncode child)
    {
        number(length);
        const bool full = offset_ >= capacity_, no_array = count_ >= room_;
        uint32_t child_count = no_array ? 0 : room_ - count_;
        child(record, full ? nullptr : buffer_ + offset_, full ? 0 : capacity_ - offset_,
              no_array ? nullptr : segments_ + count_, &child_count, flags_);
        offset_ += length;
        count_ += child_count;
    }

    const uint8_t *address(uint32_t offset) const
    {
        return reinterpret_cast<const uint8_t *>(reinterpret_cast<uintptr_t>(buffer_) + offset);
    }

    void piece(const uint8_t *data, uint32_t length)
    {
        if (count_ < room_)
            segments_[count_] = {data, length};
        count_++;
    }

    uint8_t *buffer_;
    uint32_t capacity_;
    WireSegment *segments_;
    uint32_t *segment_count_;
    uint32_t room_;
    uint32_t flags_;
    uint32_t tag_ = 0;
    uint32_t offset_ = 0;
    uint32_t start_ = 0;
    uint32_t count_ = 0;
};

template <typename Record>
uint32_t plain_encode(const void *record, uint8_t *buffer, uint32_t capacity, WireSegment *segments,
                      uint32_t *segment_count, uint32_t flags);

struct PlainChild {
    PlainEncode encode;
    uint32_t size;
};

// One more than there are, so that there is an array in any case.
template <typename... Records>
std::array<PlainChild, sizeof...(Records) + 1> plain_children(tarn::RecordTypes<Records...>)
{
    return {PlainChild{plain_encode<Records>, sizeof(Records)}..., PlainChild{nullptr, 0}};
}

template <typename Record>
uint32_t plain_encode(const void *record, uint8_t *buffer, uint32_t capacity, WireSegment *segments,
                      uint32_t *segment_count, uint32_t flags)
{
    const auto children = plain_children(typename tarn::Schema<Record>::Children());
    const uint8_t *bytes = static_cast<const uint8_t *>(record);
    const auto &last = std::end(tarn::Schema<Record>::fields)[-1];
    const uint8_t *presence = bytes + last.offset + last.size;
    PlainEncoder out(buffer, capacity, segments, segment_count, flags);
    uint32_t member = 0, child = 0;
    for (const tarn::Field &field : tarn::Schema<Record>::fields) {
        const bool present = presence[member / 8] >> member % 8 & 1;
        out.put(field, bytes + field.offset, present, children[child].encode, children[child].size);
        child += tarn::is_nested(field.kind);
        member++;
    }
    return out.finish();
}

template <>
inline uint32_t plain_encode<Stranger>(const void *record, uint8_t *buffer, uint32_t capacity,
                                       WireSegment *segments, uint32_t *segment_count,
                                       uint32_t flags)
{
    return stranger_encode_ext(static_cast<const Stranger *>(record), buffer, capacity, segments,
                               segment_count, flags);
}

} // namespace test
