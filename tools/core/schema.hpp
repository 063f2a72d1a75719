// SPDX-License-Identifier: MIT
// The record set at run time: every type with its members, their places on each target, and its
// operations. Made by the generator from the schema (record_types.cpp); the library has no such
// table.

#pragma once

#include "runtime/record.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace inspect {

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

bool is_scalar(Kind kind);
bool is_list(Kind kind);
// Whether another record type is behind it.
bool is_nested(Kind kind);
// Whether a second member follows in the structure: <name>_length or <name>_count.
bool is_pair(Kind kind);
// "uint32", "repeated message", ...
std::string_view kind_words(Kind kind);

enum class Target { i686, armhf, x86_64 };
constexpr size_t kTargetCount = 3;
constexpr std::array<std::string_view, kTargetCount> kTargetNames = {"i686", "armhf", "x86_64"};
// The one that this program runs on, as far as layouts go.
constexpr Target kHere = sizeof(void *) == 4 ? Target::i686 : Target::x86_64;

// A number for each target.
using PerTarget = std::array<uint32_t, kTargetCount>;

struct RecordType;

struct Member {
    std::string_view name;
    std::string_view json_name; // in lowerCamelCase
    std::string_view comment;
    Kind kind;
    uint32_t number;         // of the field
    uint32_t bit;            // its flag among the presence flags
    PerTarget offsets;       // of the (first) member
    const RecordType *child; // of what is nested, else null

    // The kind and what is nested in words: "repeated message port_info".
    std::string kind_and_type() const;
    // The wire type that a field of this member has to have: 0 or 2.
    uint32_t wire_type() const;
};

// The exported functions of a type, for a record of which only the address is known. A type without
// fields has no structure; they do not look at the address then.
struct Operations {
    uint32_t (*encode)(const void *record, uint8_t *buffer, uint32_t capacity,
                       WireSegment *segments, uint32_t *segment_count, uint32_t flags);
    int32_t (*decode)(void *record, const uint8_t *buf, uint32_t len, wire_alloc_fn alloc_fn,
                      void *alloc_ctx, uint32_t flags);
    void (*release)(void *record, wire_free_fn free_fn, void *free_ctx, uint32_t flags);
};

struct RecordType {
    std::string_view name; // in C
    std::string_view file; // of the schema and the header, without extension
    std::string_view comment;
    std::span<const Member> members;
    PerTarget sizes;          // 0 where there are no members
    PerTarget flags;          // offset of the first byte of presence flags
    const RecordType *answer; // what answers this request, else null
    bool is_foreign;          // belongs to the sibling library
    Operations operations;
    std::string_view schema;      // the message as the .proto file has it
    std::string_view declaration; // the structure as the header has it

    // The name without what all names have in common: "port_reset".
    std::string_view short_name() const;
    // The name in the schema: "ethsw_mgmt_port_reset".
    std::string_view message_name() const;
    size_t size_here() const { return sizes[static_cast<size_t>(kHere)]; }
    // Null where there is none.
    const Member *member_of_number(uint32_t number) const;
    // By either of its names.
    const Member *member_of_name(std::string_view name) const;
};

// All types, the two of the sibling library included.
std::span<const RecordType> every_type();
// The 259 of this library, by name.
const std::vector<const RecordType *> &own_types();

// By any of its names: as in C, as in the schema with or without its package, or short. Null where
// there is none.
const RecordType *find_type(std::string_view name);

struct Embedder {
    const RecordType *type;
    const Member *member;
};
// Who has a member of this type.
std::vector<Embedder> embedders(const RecordType &type);
// The requests that it answers.
std::vector<const RecordType *> requests(const RecordType &type);
// The type and all that are nested in it, at any depth, each once and behind what it needs.
std::vector<const RecordType *> with_nested(const RecordType &type);

} // namespace inspect
