// SPDX-License-Identifier: MIT
// A record type of somebody else's, as those of the sibling library are: its operations write down
// how they are called and return what the record tells them to.

#pragma once

#include "foreign/foreign.hpp"

#include <cstdint>
#include <string>
#include <vector>

namespace test {

struct Stranger {
    int32_t result;  // of decoding and duplicating
    uint32_t length; // of its encoding
};

// The calls so far, of this program.
inline std::vector<std::string> &stranger_calls()
{
    static std::vector<std::string> calls;
    return calls;
}

constexpr int32_t kStrangerDefault = 77;

inline uint32_t stranger_encode_ext(const Stranger *record, uint8_t *buffer, uint32_t capacity,
                                    WireSegment *segments, uint32_t *segment_count, uint32_t flags)
{
    stranger_calls().push_back("encode buffer " + std::string(buffer ? "yes" : "no") +
                               " capacity " + std::to_string(capacity) + " segments " +
                               (segments ? "yes" : "no") + " count " +
                               (segment_count ? std::to_string(*segment_count) : "null") +
                               " flags " + std::to_string(flags));
    for (uint32_t i = 0; i < record->length && i < capacity; i++)
        buffer[i] = 0xCC;
    if (!segment_count)
        return record->length;
    // Its first byte, and all of it.
    const uint32_t room = *segment_count;
    *segment_count = record->length ? 2 : 0;
    for (uint32_t i = 0; i < *segment_count && i < room; i++)
        segments[i] = {buffer, i == 0 ? 1 : record->length};
    // With byte strings in place of no interest: what it said without a count is what counts.
    return (flags & WIRE_FLAG_BYTES_IN_PLACE) != 0 ? 1000 : record->length;
}

inline int32_t stranger_decode_ext(Stranger *record, const uint8_t *, uint32_t len, wire_alloc_fn,
                                   void *, uint32_t flags)
{
    stranger_calls().push_back("decode length " + std::to_string(len) + " default " +
                               std::to_string(record->result) + " flags " + std::to_string(flags));
    record->result = WIRE_OK;
    record->length = len;
    return len == 3 ? -33 : WIRE_OK;
}

inline int32_t stranger_duplicate(Stranger *dst, const Stranger *src, wire_alloc_fn, void *)
{
    stranger_calls().push_back("duplicate " + std::to_string(src->result));
    *dst = *src;
    return src->result;
}

inline void stranger_free_ext(Stranger *record, wire_free_fn, void *, uint32_t flags)
{
    stranger_calls().push_back("free " + std::to_string(record->length) + " flags " +
                               std::to_string(flags));
}

inline void initialise_stranger(void *record)
{
    *static_cast<Stranger *>(record) = {kStrangerDefault, 0};
}

// Strangers among members that need memory.
struct Host {
    const char *before; // field 1
    Stranger stranger;  // field 2
    const char *text;   // field 3
    Stranger second;    // field 4
    Stranger *list;     // field 5
    uint32_t list_count;
    uint32_t number; // field 6
    unsigned has_before : 1;
    unsigned has_stranger : 1;
    unsigned has_text : 1;
    unsigned has_second : 1;
    unsigned has_list : 1;
    unsigned has_number : 1;
};

} // namespace test

namespace [[gnu::visibility("hidden")]] tarn {

template <>
struct CodecOf<test::Stranger> {
    using Type =
        ForeignCodec<test::Stranger, test::stranger_encode_ext, test::stranger_decode_ext,
                     test::stranger_duplicate, test::stranger_free_ext, test::initialise_stranger>;
};

template <>
struct Schema<test::Host> {
    using Record = test::Host;
    static constexpr Field fields[] = {
        field<Kind::string, decltype(Record::before)>(1, offsetof(Record, before)),
        field<Kind::message, decltype(Record::stranger)>(2, offsetof(Record, stranger)),
        field<Kind::string, decltype(Record::text)>(3, offsetof(Record, text)),
        field<Kind::message, decltype(Record::second)>(4, offsetof(Record, second)),
        field<Kind::repeated_message, decltype(Record::list)>(5, offsetof(Record, list)),
        field<Kind::uint32, decltype(Record::number)>(6, offsetof(Record, number)),
    };
    using Children = RecordTypes<test::Stranger, test::Stranger, test::Stranger>;
};

} // namespace tarn
