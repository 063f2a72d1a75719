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

namespace [[gnu::visibility("hidden")]] tarn {

constexpr uint32_t tag_of(const Run &run)
{
    const bool varint = is_scalar(run.kind) || run.kind == Kind::repeated_uint32;
    return make_tag(run.number, varint ? kVarint : kLengthDelimited);
}

// In all of them Child is the codec of the record type behind a nested run, else void.

template <Run run, typename Child>
uint32_t measure_run(uint32_t offset, const uint8_t *record, const uint8_t *presence,
                     uint32_t flags)
{
    constexpr uint32_t tag = tag_of(run);
    const uint8_t *at = record + run.offset;
    const uint32_t present = present_members<run.first_bit, run.count>(presence);
    if constexpr (run.kind == Kind::uint32)
        return measure_uint32s(offset, reinterpret_cast<const uint32_t *>(at), present, tag);
    else if constexpr (run.kind == Kind::uint64)
        return measure_uint64s(offset, reinterpret_cast<const uint64_t *>(at), present, tag);
    else if constexpr (run.kind == Kind::boolean)
        return measure_bools(offset, at, present, tag);
    else if constexpr (run.kind == Kind::string)
        return measure_string(offset, at, present, tag);
    else if constexpr (run.kind == Kind::bytes)
        return measure_bytes(offset, at, present, tag, flags);
    else if constexpr (run.kind == Kind::message)
        return measure_message(offset, Child::measure(at, flags), present, tag);
    else if constexpr (run.kind == Kind::repeated_uint32)
        return measure_uint32_list(offset, at, present, tag);
    else if constexpr (run.kind == Kind::repeated_string)
        return measure_string_list(offset, at, present, tag);
    else
        return measure_message_list(offset, at, present, tag, Child::size, Child::measure, flags);
}

template <Run run, typename Child>
void write_run(Encoder &out, const uint8_t *record, const uint8_t *presence)
{
    constexpr uint32_t tag = tag_of(run);
    const uint8_t *at = record + run.offset;
    const uint32_t present = present_members<run.first_bit, run.count>(presence);
    if constexpr (run.kind == Kind::uint32)
        write_uint32s(out, reinterpret_cast<const uint32_t *>(at), present, tag);
    else if constexpr (run.kind == Kind::uint64)
        write_uint64s(out, reinterpret_cast<const uint64_t *>(at), present, tag);
    else if constexpr (run.kind == Kind::boolean)
        write_bools(out, at, present, tag);
    else if constexpr (run.kind == Kind::string)
        write_string(out, at, present, tag);
    else if constexpr (run.kind == Kind::bytes)
        write_bytes(out, at, present, tag);
    else if constexpr (run.kind == Kind::message)
        write_message(out, at, present, tag, {Child::measure, Child::write});
    else if constexpr (run.kind == Kind::repeated_uint32)
        write_uint32_list(out, at, present, tag);
    else if constexpr (run.kind == Kind::repeated_string)
        write_string_list(out, at, present, tag);
    else
        write_message_list(out, at, present, tag, Child::size, {Child::measure, Child::write});
}

template <Run run, typename Child>
uint32_t decode_run(Decoder &in, uint32_t tag, uint8_t *record, uint8_t *presence)
{
    uint8_t *at = record + run.offset;
    const DecodedRun decoded{presence, run.first_bit, run.number};
    if constexpr (run.kind == Kind::uint32)
        return decode_uint32s(in, tag, reinterpret_cast<uint32_t *>(at), run.count, decoded);
    else if constexpr (run.kind == Kind::uint64)
        return decode_uint64s(in, tag, reinterpret_cast<uint64_t *>(at), run.count, decoded);
    else if constexpr (run.kind == Kind::boolean)
        return decode_bools(in, tag, at, run.count, decoded);
    else if constexpr (run.kind == Kind::string)
        return decode_string(in, tag, at, decoded);
    else if constexpr (run.kind == Kind::bytes)
        return decode_bytes(in, tag, at, decoded);
    else if constexpr (run.kind == Kind::message)
        return decode_message(in, tag, at, decoded, Child::decode);
    else if constexpr (run.kind == Kind::repeated_uint32)
        return decode_uint32_list(in, tag, at, decoded);
    else if constexpr (run.kind == Kind::repeated_string)
        return decode_string_list(in, tag, at, decoded);
    else
        return decode_message_list(in, tag, at, decoded, Child::size, Child::decode);
}

template <Run run, typename Child>
void duplicate_run(Copier &copier, uint8_t *dst, const uint8_t *src, uint8_t *presence)
{
    uint8_t *to = dst + run.offset;
    const uint8_t *from = src + run.offset;
    const MemberFlag flag{presence, run.first_bit};
    if constexpr (run.kind == Kind::string)
        duplicate_string(copier, to, from, flag);
    else if constexpr (run.kind == Kind::bytes)
        duplicate_bytes(copier, to, from, flag);
    else if constexpr (run.kind == Kind::message)
        copier.copy_record(to, from, Child::duplicate);
    else if constexpr (run.kind == Kind::repeated_uint32)
        duplicate_uint32_list(copier, to, from, flag);
    else if constexpr (run.kind == Kind::repeated_string)
        duplicate_string_list(copier, to, from, flag);
    else
        duplicate_message_list(copier, to, from, flag, Child::size, Child::duplicate);
}

template <Run run, typename Child>
void release_run(const Releaser &releaser, uint8_t *record)
{
    uint8_t *at = record + run.offset;
    if constexpr (run.kind == Kind::string)
        release_string(releaser, at);
    else if constexpr (run.kind == Kind::bytes)
        release_bytes(releaser, at);
    else if constexpr (run.kind == Kind::message)
        Child::release(at, releaser.free_fn, releaser.free_ctx, releaser.flags);
    else if constexpr (run.kind == Kind::repeated_uint32)
        release_uint32_list(releaser, at);
    else if constexpr (run.kind == Kind::repeated_string)
        release_string_list(releaser, at);
    else
        release_message_list(releaser, at, Child::size, Child::release);
}

} // namespace tarn
