// SPDX-License-Identifier: MIT
// Records of any type: their memory, the library's operations on them, and their members one by
// one.

#pragma once

#include "tools/core/schema.hpp"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

namespace inspect {

using Bytes = std::span<const uint8_t>;

// Memory that is given back as a whole, and no more of it than a limit.
class Arena {
public:
    explicit Arena(size_t limit) : limit_(limit) {}

    // Aligned to 8, not cleared; null beyond the limit, and where the system has no more.
    void *take(size_t size);
    // How often memory was handed out, which tells how far a decoding came that ran out of it.
    uint64_t blocks() const { return blocks_; }
    size_t used() const { return used_; }
    size_t room() const { return limit_ - used_; }

    // As the library's alloc_fn, with an arena as its context.
    static void *callback(uint32_t size, void *arena);

private:
    std::vector<std::unique_ptr<std::byte[]>> chunks_;
    std::byte *free_ = nullptr;
    size_t left_ = 0;
    size_t limit_;
    size_t used_ = 0;
    uint64_t blocks_ = 0;
};

// A record that somebody else keeps, for reading. Small: copy it.
class RecordView {
public:
    RecordView(const RecordType &type, const std::byte *at) : type_(&type), at_(at) {}

    const RecordType &type() const { return *type_; }
    const std::byte *address() const { return at_; }

    // The presence flag.
    bool has(const Member &member) const;
    // Whether encoding would write it: flagged, or an embedded record that has content.
    bool is_written(const Member &member) const;
    // Whether encoding would write anything.
    bool has_content() const;

    // What a member holds, flagged or not. Which of these applies is a matter of its kind.
    uint64_t number(const Member &member) const;  // uint32, uint64, bool (the byte)
    const char *text(const Member &member) const; // string; may be null
    Bytes bytes(const Member &member) const;      // bytes
    RecordView child(const Member &member) const; // message
    uint32_t count(const Member &member) const;   // of a list
    uint32_t number_at(const Member &member, uint32_t index) const;  // repeated uint32
    const char *text_at(const Member &member, uint32_t index) const; // repeated string; may be null
    RecordView element(const Member &member, uint32_t index) const;  // repeated message

private:
    const std::byte *place(const Member &member) const;

    const RecordType *type_;
    const std::byte *at_;
};

// The same for writing. What members point to is somebody else's.
class RecordEditor {
public:
    RecordEditor(const RecordType &type, std::byte *at) : type_(&type), at_(at) {}

    const RecordType &type() const { return *type_; }
    RecordView view() const { return {*type_, at_}; }

    // Each sets the flag as well.
    void set_number(const Member &member, uint64_t value);
    void set_text(const Member &member, const char *text);
    void set_bytes(const Member &member, const uint8_t *data, uint32_t length);
    void set_list(const Member &member, const void *elements, uint32_t count);
    RecordEditor set_child(const Member &member);

private:
    std::byte *place(const Member &member) const;
    void set_flag(const Member &member);

    const RecordType *type_;
    std::byte *at_;
};

// A record with its memory.
class Record {
public:
    // Every member has its default, as decoding leaves it where nothing arrives.
    Record(const RecordType &type, size_t memory_limit);

    // Replaces the content. Returns the library's result; what arrived before an error stays. With
    // WIRE_FLAG_BYTES_IN_PLACE `input` has to outlive the record.
    int32_t decode(Bytes input, uint32_t flags = 0);
    std::vector<uint8_t> encode() const;

    const RecordType &type() const { return *type_; }
    RecordView view() const { return {*type_, storage_.get()}; }
    RecordEditor editor() { return {*type_, storage_.get()}; }
    Arena &arena() { return *arena_; }
    const Arena &arena() const { return *arena_; }

private:
    const RecordType *type_;
    size_t memory_limit_;
    std::unique_ptr<Arena> arena_;
    std::unique_ptr<std::byte[]> storage_; // cleared, and aligned for every type
};

} // namespace inspect
