// SPDX-License-Identifier: MIT
// The catalogue at run time: every record type with its members and its four operations, for tests
// that treat all types alike. The library has no such table; this one is in record_types.cpp.

#pragma once

#include "runtime/record.h"

#include <span>
#include <stddef.h>
#include <stdint.h>
#include <string_view>

namespace catalogue {

enum class Kind {
    uint32,
    uint64,
    boolean,
    string,
    bytes,
    message,
    repeated_uint32,
    repeated_string,
    repeated_message,
};

constexpr bool is_scalar(Kind kind)
{
    return kind == Kind::uint32 || kind == Kind::uint64 || kind == Kind::boolean;
}

constexpr bool is_list(Kind kind)
{
    return kind == Kind::repeated_uint32 || kind == Kind::repeated_string ||
           kind == Kind::repeated_message;
}

// These have another record type behind them.
constexpr bool is_nested(Kind kind)
{
    return kind == Kind::message || kind == Kind::repeated_message;
}

struct Member {
    const char *name;
    Kind kind;
    uint32_t number;   // of the field
    size_t offset;     // in the structure; of the pointer, where length or count follows
    uint32_t bit;      // its flag among the presence flags
    const char *child; // record type of what is nested, else null
    void (*set_flag)(void *record);
};

// A type without members has size 0 and no structure.
struct RecordType {
    const char *name;
    size_t size;
    std::span<const Member> members;
    uint32_t (*encode)(const void *record, uint8_t *buffer, uint32_t capacity,
                       WireSegment *segments, uint32_t *segment_count, uint32_t flags);
    int32_t (*decode)(void *record, const uint8_t *buf, uint32_t len, wire_alloc_fn alloc_fn,
                      void *alloc_ctx, uint32_t flags);
    int32_t (*duplicate)(void *dst, const void *src, wire_alloc_fn alloc_fn, void *alloc_ctx);
    void (*release)(void *record, wire_free_fn free_fn, void *free_ctx, uint32_t flags);
};

template <typename Record>
using EncodeExt = uint32_t (*)(const Record *, uint8_t *, uint32_t, WireSegment *, uint32_t *,
                               uint32_t);
template <typename Record>
using DecodeExt = int32_t (*)(Record *, const uint8_t *, uint32_t, wire_alloc_fn, void *, uint32_t);
template <typename Record>
using Duplicate = int32_t (*)(Record *, const Record *, wire_alloc_fn, void *);
template <typename Record>
using FreeExt = void (*)(Record *, wire_free_fn, void *, uint32_t);

// All four have to be of one record type, or this does not compile.
template <auto encode_ext, auto decode_ext, auto duplicate_, auto free_ext, typename Record>
constexpr RecordType record_type_of(const char *name, size_t size, std::span<const Member> members,
                                    EncodeExt<Record>, DecodeExt<Record>, Duplicate<Record>,
                                    FreeExt<Record>)
{
    return {
        name,
        size,
        members,
        [](const void *record, uint8_t *buffer, uint32_t capacity, WireSegment *segments,
           uint32_t *segment_count, uint32_t flags) {
            return encode_ext(static_cast<const Record *>(record), buffer, capacity, segments,
                              segment_count, flags);
        },
        [](void *record, const uint8_t *buf, uint32_t len, wire_alloc_fn alloc_fn, void *alloc_ctx,
           uint32_t flags) {
            return decode_ext(static_cast<Record *>(record), buf, len, alloc_fn, alloc_ctx, flags);
        },
        [](void *dst, const void *src, wire_alloc_fn alloc_fn, void *alloc_ctx) {
            return duplicate_(static_cast<Record *>(dst), static_cast<const Record *>(src),
                              alloc_fn, alloc_ctx);
        },
        [](void *record, wire_free_fn free_fn, void *free_ctx, uint32_t flags) {
            free_ext(static_cast<Record *>(record), free_fn, free_ctx, flags);
        },
    };
}

template <auto encode_ext, auto decode_ext, auto duplicate_, auto free_ext>
constexpr RecordType record_type(const char *name, size_t size, std::span<const Member> members)
{
    return record_type_of<encode_ext, decode_ext, duplicate_, free_ext>(
        name, size, members, encode_ext, decode_ext, duplicate_, free_ext);
}

// The record types of the library, file by file.
std::span<const RecordType> record_types();

// The two of the sibling library that are embedded in them.
std::span<const RecordType> foreign_types();

// A record type by its C name, foreign or not. There has to be one.
const RecordType &find_type(std::string_view name);

// What decoding leaves in a scalar that does not arrive.
uint32_t default_of(const RecordType &type, size_t member);

} // namespace catalogue
