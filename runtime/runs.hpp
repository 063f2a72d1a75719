// SPDX-License-Identifier: MIT
// Which function serves which run: for each operation one line per kind, in the order of the kinds.
// Here it is only chosen; the work is in the functions.

#pragma once

#include "runtime/decode.hpp"
#include "runtime/duplicate.hpp"
#include "runtime/measure.hpp"
#include "runtime/presence.hpp"
#include "runtime/release.hpp"
#include "runtime/schema.hpp"
#include "runtime/write.hpp"

#include <utility>

namespace [[gnu::visibility("hidden")]] tarn {

constexpr uint32_t tag_of(const Run &run)
{
    const bool varint = is_scalar(run.kind) || run.kind == Kind::repeated_uint32;
    return make_tag(run.number, varint ? kVarint : kLengthDelimited);
}

// Members of shorter runs are treated one by one, in line: what to expect of each is easier to
// predict so. In longer runs that would be too much code; on a small machine sooner, and sooner yet
// when the members are wider than a word. For a library as small as possible all runs are long.
constexpr bool kIsSmallMachine = sizeof(void *) < sizeof(uint64_t);
constexpr uint32_t kLongRun = kIsSmall ? 1 : kIsSmallMachine ? 3 : 5;
constexpr uint32_t kLongWideRun = kIsSmall ? 1 : 2; // of counters, which cannot be predicted
constexpr uint32_t kLongRunToMeasure = kIsSmall ? 1 : kIsSmallMachine ? 6 : 7;
constexpr uint32_t kLongWideRunToMeasure = kIsSmall ? 1 : kIsSmallMachine ? 4 : 6;

constexpr bool is_long(const Run &run, uint32_t long_run, uint32_t long_wide_run)
{
    return is_scalar(run.kind) &&
           run.count >= (run.kind == Kind::uint64 ? long_wide_run : long_run);
}

// Whether a function for no other number of members decodes it.
constexpr bool is_single(const Run &run)
{
    return run.count == 1 && !kIsSmall;
}

// In all that follows Child is the codec of the record type behind a nested run, else void.

// Where every byte of code counts, to measure is to write into no buffer.
template <typename Child>
constexpr MeasureRecord measure_of()
{
    return kIsSmall && !Child::is_foreign ? nullptr : Child::measure;
}

template <Kind kind, uint32_t tag_size>
TARN_INLINE inline uint32_t measure_member(const uint8_t *members, uint32_t place)
{
    if constexpr (kind == Kind::uint64)
        return wire_varint64_size(reinterpret_cast<const uint64_t *>(members)[place], tag_size);
    else if constexpr (kind == Kind::uint32)
        return wire_varint32_size(reinterpret_cast<const uint32_t *>(members)[place], tag_size);
    else
        return tag_size + 1 + (members[place] >> 7);
}

template <Run run, uint32_t... place>
TARN_INLINE inline uint32_t measure_each(uint32_t offset, const uint8_t *members,
                                         const uint8_t *presence,
                                         std::integer_sequence<uint32_t, place...>)
{
    ((offset += has_flag(presence, run.first_bit + place)
                    ? measure_member<run.kind, wire_varint32_size(tag_of(run) + place * kTagStep)>(
                          members, place)
                    : 0),
     ...);
    return offset;
}

template <Run run, typename Child>
TARN_INLINE inline uint32_t measure_run(uint32_t offset, const uint8_t *record,
                                        const uint8_t *presence, uint32_t flags)
{
    constexpr uint32_t tag = tag_of(run);
    constexpr uint32_t tag_size = wire_varint32_size(tag);
    const uint8_t *at = record + run.offset;
    const uint32_t present = present_members<run.first_bit, run.count>(presence);
    if constexpr (is_long(run, kLongRunToMeasure, kLongWideRunToMeasure)) {
        if constexpr (run.kind == Kind::uint32)
            return measure_uint32s(offset, reinterpret_cast<const uint32_t *>(at), present, tag);
        else if constexpr (run.kind == Kind::uint64)
            return measure_uint64s(offset, reinterpret_cast<const uint64_t *>(at), present, tag);
        else
            return measure_bools(offset, at, present, tag);
    } else if constexpr (is_scalar(run.kind)) {
        return measure_each<run>(offset, at, presence,
                                 std::make_integer_sequence<uint32_t, run.count>());
    } else if constexpr (run.kind == Kind::message) {
        if (!present && Child::is_surely_empty(at))
            return offset;
        return measure_message(offset, Child::measure(at, flags), present, tag_size);
    } else {
        if (!present)
            return offset;
        if constexpr (run.kind == Kind::string)
            return measure_string(offset, at, tag_size);
        else if constexpr (run.kind == Kind::bytes)
            return measure_bytes(offset, at, flags, tag_size);
        else if constexpr (run.kind == Kind::repeated_uint32)
            return measure_uint32_list(offset, at, tag_size);
        else if constexpr (run.kind == Kind::repeated_string)
            return measure_string_list(offset, at, tag_size);
        else
            return measure_message_list(offset, at, flags, tag_size, Child::size, Child::measure);
    }
}

template <Kind kind, uint32_t tag>
TARN_INLINE inline uint32_t write_member(uint32_t offset, Encoder &out, const Encoder::Roomy &roomy,
                                         const uint8_t *members, uint32_t place)
{
    if constexpr (kind == Kind::uint64)
        return write_uint64<tag>(offset, out, roomy,
                                 reinterpret_cast<const uint64_t *>(members) + place);
    else if constexpr (kind == Kind::uint32)
        return write_uint32<tag>(offset, out, roomy,
                                 reinterpret_cast<const uint32_t *>(members)[place]);
    else
        return write_uint32<tag>(offset, out, roomy, members[place]);
}

// Of up to 32 bits.
template <Kind kind, uint32_t tag>
TARN_INLINE inline uint8_t *store_member(uint8_t *to, const uint8_t *members, uint32_t place)
{
    const uint32_t value =
        kind == Kind::uint32 ? reinterpret_cast<const uint32_t *>(members)[place] : members[place];
    to = store_tag(to, tag);
    if (value >= 0x80)
        return store_varint(to, value);
    *to = static_cast<uint8_t>(value);
    return to + 1;
}

template <Run run, uint32_t... place>
TARN_INLINE inline uint32_t write_each(uint32_t offset, Encoder &out, const Encoder::Roomy &roomy,
                                       const uint8_t *members, const uint8_t *presence,
                                       std::integer_sequence<uint32_t, place...>)
{
    ((offset = has_flag(presence, run.first_bit + place)
                   ? write_member<run.kind, tag_of(run) + place * kTagStep>(offset, out, roomy,
                                                                            members, place)
                   : offset),
     ...);
    return offset;
}

template <Run run, typename Child>
TARN_INLINE inline uint32_t write_run(uint32_t offset, Encoder &out, const Encoder::Roomy &roomy,
                                      const uint8_t *record, const uint8_t *presence)
{
    constexpr uint32_t tag = tag_of(run);
    const uint8_t *at = record + run.offset;
    const uint32_t present = present_members<run.first_bit, run.count>(presence);
    if constexpr (is_long(run, kLongRun, kLongWideRun)) {
        if constexpr (run.kind == Kind::uint32)
            return write_uint32s(offset, out, reinterpret_cast<const uint32_t *>(at), present, tag);
        else if constexpr (run.kind == Kind::uint64)
            return write_uint64s(offset, out, reinterpret_cast<const uint64_t *>(at), present, tag);
        else
            return write_bools(offset, out, at, present, tag);
    } else if constexpr (is_scalar(run.kind)) {
        return write_each<run>(offset, out, roomy, at, presence,
                               std::make_integer_sequence<uint32_t, run.count>());
    } else if constexpr (run.kind == Kind::message) {
        constexpr uint16_t tag16 = static_cast<uint16_t>(tag);
        if (!present && Child::is_surely_empty(at))
            return offset;
        return write_message(offset, out, at, {tag16, 0, Child::is_plain, present != 0},
                             measure_of<Child>(), Child::write);
    } else {
        if (!present)
            return offset;
        if constexpr (run.kind == Kind::string)
            return write_string(offset, out, at, tag);
        else if constexpr (run.kind == Kind::bytes)
            return write_bytes(offset, out, at, tag);
        else if constexpr (run.kind == Kind::repeated_uint32)
            return write_uint32_list(offset, out, at, tag);
        else if constexpr (run.kind == Kind::repeated_string)
            return write_string_list(offset, out, at, tag);
        else
            return write_message_list(
                offset, out, at, {static_cast<uint16_t>(tag), Child::size, Child::is_plain, true},
                measure_of<Child>(), Child::write);
    }
}

template <Run run, uint32_t... place>
TARN_INLINE inline uint8_t *store_each(uint8_t *to, const uint8_t *members, const uint8_t *presence,
                                       std::integer_sequence<uint32_t, place...>)
{
    ((to = has_flag(presence, run.first_bit + place)
               ? store_member<run.kind, tag_of(run) + place * kTagStep>(to, members, place)
               : to),
     ...);
    return to;
}

// Numbers of up to 32 bits that are known to fit.
template <Run run>
TARN_INLINE inline uint8_t *store_run(uint8_t *to, const uint8_t *members, const uint8_t *presence)
{
    return store_each<run>(to, members, presence,
                           std::make_integer_sequence<uint32_t, run.count>());
}

// In a message of two bytes for each member, in their order: whether those of a run are there.
template <Run run>
TARN_INLINE inline bool is_small_run(const uint8_t *message)
{
    constexpr uint32_t kBefore = kOneSmall * run.first_bit;
    const uint8_t *at = message + kBefore;
    uint32_t tag = tag_of(run);
    bool small = true;
    for (uint32_t i = 0; i < run.count; i++, at += kOneSmall, tag += kTagStep)
        small &= is_small(at, tag);
    return small;
}

template <Run run>
TARN_INLINE inline void load_small_run(uint8_t *members, const uint8_t *message)
{
    constexpr uint32_t kBefore = kOneSmall * run.first_bit;
    const uint8_t *at = message + kBefore;
    for (uint32_t i = 0; i < run.count; i++, at += kOneSmall) {
        const uint8_t value = at[1];
        if constexpr (run.kind == Kind::boolean)
            members[i] = value != 0;
        else
            reinterpret_cast<uint32_t *>(members)[i] = value;
    }
}

template <Run run, typename Child>
TARN_INLINE inline Cursor decode_run(Cursor cursor, Decoder &in, uint8_t *record, uint16_t flags)
{
    const DecodedRun decoded{run.number, run.count, run.first_bit, run.offset, flags};
    if constexpr (run.kind == Kind::uint32 && is_single(run))
        return decode_uint32(cursor, in, record, decoded);
    else if constexpr (run.kind == Kind::uint64 && is_single(run))
        return decode_uint64(cursor, in, record, decoded);
    else if constexpr (run.kind == Kind::boolean && is_single(run))
        return decode_bool(cursor, in, record, decoded);
    else if constexpr (run.kind == Kind::uint32)
        return decode_uint32s(cursor, in, record, decoded);
    else if constexpr (run.kind == Kind::uint64)
        return decode_uint64s(cursor, in, record, decoded);
    else if constexpr (run.kind == Kind::boolean)
        return decode_bools(cursor, in, record, decoded);
    else if constexpr (run.kind == Kind::string)
        return decode_string(cursor, in, record, decoded);
    else if constexpr (run.kind == Kind::bytes)
        return decode_bytes(cursor, in, record, decoded);
    else if constexpr (run.kind == Kind::message) // one that comes again starts from its defaults
        return decode_message(cursor, in, record, decoded,
                              has_flag(record + flags, run.first_bit) ? Child::decode_anew
                                                                      : Child::decode_fields);
    else if constexpr (run.kind == Kind::repeated_uint32)
        return decode_uint32_list(cursor, in, record, decoded);
    else if constexpr (run.kind == Kind::repeated_string)
        return decode_string_list(cursor, in, record, decoded);
    else
        return decode_message_list(cursor, in, record, decoded, Child::size, Child::decode_element);
}

template <Run run, typename Child>
TARN_INLINE inline void duplicate_run(Copier &copier, uint8_t *dst, const uint8_t *src,
                                      uint8_t *presence)
{
    uint8_t *to = dst + run.offset;
    const uint8_t *from = src + run.offset;
    const MemberFlag flag{presence, run.first_bit};
    if constexpr (run.kind == Kind::string)
        duplicate_string(copier, to, from, flag);
    else if constexpr (run.kind == Kind::bytes)
        duplicate_bytes(copier, to, from, flag);
    else if constexpr (run.kind == Kind::repeated_uint32)
        duplicate_flat_list(copier, to, from, flag, sizeof(uint32_t));
    else if constexpr (run.kind == Kind::repeated_string)
        duplicate_string_list(copier, to, from, flag);
    else if constexpr (run.kind == Kind::message) {
        if constexpr (Child::owns_memory)
            copier.copy_record(to, from, Child::copy_blocks);
    } else if constexpr (Child::owns_memory)
        duplicate_message_list(copier, to, from, flag, Child::size, Child::copy_blocks);
    else
        duplicate_flat_list(copier, to, from, flag, Child::size);
}

template <Run run, typename Child>
TARN_INLINE inline void release_run(const Releaser &releaser, uint8_t *record)
{
    uint8_t *at = record + run.offset;
    if constexpr (run.kind == Kind::string)
        release_string(releaser, at);
    else if constexpr (run.kind == Kind::bytes)
        release_bytes(releaser, at);
    else if constexpr (run.kind == Kind::repeated_uint32)
        release_uint32_list(releaser, at);
    else if constexpr (run.kind == Kind::repeated_string)
        release_string_list(releaser, at);
    else if constexpr (run.kind == Kind::message) {
        if constexpr (Child::owns_memory)
            Child::release_blocks(releaser, at);
    } else if constexpr (Child::owns_memory)
        release_message_list(releaser, at, Child::size, Child::release_blocks);
    else
        release_flat_list(releaser, at);
}

} // namespace tarn
