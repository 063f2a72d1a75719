// SPDX-License-Identifier: MIT
// The state of one decoding: the input, where memory comes from, and how it ended. The position is
// not part of it: it is handed along, so that it can stay in a register.

#pragma once

#include "runtime/memory.hpp"
#include "wire/call.hpp"
#include "wire/fast.hpp"
#include "wire/together.hpp"
#include "wire/varint.hpp"

#include <stddef.h>
#include <stdint.h>

namespace [[gnu::visibility("hidden")]] tarn {

// A tag that was read, and the position behind it. Functions hand it back in registers: i386 would
// put a structure into memory, but not a number of 64 bits.
struct Cursor {
    Cursor(const uint8_t *position, uint32_t tag) : at(position), tag_(tag) {}

    uint32_t tag() const { return static_cast<uint32_t>(tag_); }

    const uint8_t *at;

#ifdef __i386__
    // cppcheck-suppress noExplicitConstructor
    Cursor(uint64_t packed)
        : at(reinterpret_cast<const uint8_t *>( // NOLINT(performance-no-int-to-ptr)
              static_cast<uintptr_t>(packed))),
          tag_(static_cast<uint32_t>(packed >> 32))
    {}
    operator uint64_t() const
    {
        return uint64_t{tag_} << 32 | reinterpret_cast<uintptr_t>(at);
    }
#endif

private:
    Word tag_; // a whole register, or code would be spent on keeping the rest of it
};

#ifdef __i386__
using HandedBack = uint64_t;
#else
using HandedBack = Cursor;
#endif

// Handed out instead of a tag when decoding is over. As a tag it would be one with wire type 7,
// which no record has and nobody can skip; when it comes, another one like it takes its place.
constexpr uint32_t kStop = UINT32_MAX;
constexpr uint32_t kNobodys = 7;

// Recognises a field loop that would never end. Only a skip can move the position backwards; what
// happens after one depends on the position and on which members are there already (a string or a
// list is refused the second time), so when both come back, they will come back for ever.
// Brent's method: remember one state, and replace it after 1, 2, 4, 8 ... steps.
class LoopWatch {
public:
    // Told of every landing before the end of the tag of the field that was skipped.
    bool comes_back(uint32_t position, uint64_t present);

private:
    uint32_t steps_ = 0;
    uint32_t limit_ = 0;
    // The state that is remembered; there is none before the first step.
    // cppcheck-suppress uninitMemberVarPrivate
    uint32_t position_;
    // cppcheck-suppress uninitMemberVarPrivate
    uint64_t present_;
};

class Decoder {
public:
    Decoder(const uint8_t *buffer, uint32_t length, Memory memory, uint32_t flags)
        : begin_(buffer), end_(buffer + length),
          fast_until_(length >= kFastRead ? end_ - kFastRead : nullptr), memory_(memory),
          flags_(flags)
    {}

    int32_t result() const { return result_; }
    const Memory &memory() const { return memory_; }
    uint32_t flags() const { return flags_; }
    bool bytes_in_place() const { return (flags_ & WIRE_FLAG_BYTES_IN_PLACE) != 0; }

    // The first tag of the record, or kStop where there is none, or none that can be read.
    TARN_CALL HandedBack first_tag();
    // Skips an unknown field and hands out the tag behind it. The presence flags belong to the
    // record that is decoded; it has `members` of them.
    [[gnu::cold]] TARN_CALL HandedBack skip(Cursor cursor, LoopWatch &watch, const uint8_t *flags,
                                            uint32_t members);
    // Ends decoding with this result.
    Cursor stop(int32_t result) { return {fail(result), kStop}; }

    // All that follows reads on at `at` and returns the position behind, or null after an error.
    const uint8_t *fail(int32_t result)
    {
        result_ = result;
        return nullptr;
    }

    // The tag at `at`, which may be the end.
    TARN_INLINE Cursor next_tag(const uint8_t *at)
    {
        if (at >= end_)
            return {at, kStop};
        const uint32_t tag = at[0];
        if (tag < 0x80) [[likely]]
            return {at + 1, tag};
        if (end_ - at >= 2 && at[1] < 0x80)
            return {at + 2, (tag & 0x7F) | uint32_t{at[1]} << 7};
        return read_long_tag(at);
    }

    template <typename Value>
    TARN_INLINE const uint8_t *read(const uint8_t *at, Value *value)
    {
        if (at >= end_)
            return fail(WIRE_ERR_MALFORMED);
        const uint32_t first = at[0];
        if (first < 0x80) [[likely]] {
            *value = first;
            return at + 1;
        }
        if (end_ - at >= 2 && at[1] < 0x80) {
            *value = (first & 0x7F) | uint32_t{at[1]} << 7;
            return at + 2;
        }
        return read_any(at, value);
    }

    // The same for values whose sizes nobody can guess: without a branch that depends on them.
    template <typename Value>
    TARN_INLINE const uint8_t *read_any(const uint8_t *at, Value *value)
    {
        Value found;
        const uint8_t *next = at <= fast_until_ ? fast_read_long(&found, at) : nullptr;
        if (!next || next > end_)
            return read_slowly(at, value);
        *value = found;
        return next;
    }

    // Whether the tag is that of the first of four fields of two bytes each, with tags that are
    // `step` apart.
    bool is_first_of_four_small(const Cursor &cursor, uint32_t step) const
    {
        return cursor.tag() < 0x80 - 3 * step && end_ - cursor.at >= ptrdiff_t{kFourSmall - 1} &&
               are_four_small(cursor.at - 1, cursor.tag(), step);
    }

    // Whether another one like them comes after four elements of a list.
    bool is_among_small(const Cursor &cursor) const
    {
        return is_first_of_four_small(cursor, 0) && end_ - cursor.at >= ptrdiff_t{kFourSmall} &&
               cursor.at[kFourSmall - 1] == cursor.tag();
    }

    // A length that the rest of the input holds.
    const uint8_t *read_length(const uint8_t *at, uint32_t *length)
    {
        if (at < end_ && at[0] < 0x80)
            *length = *at++;
        else if (!(at = read_slowly(at, length)))
            return nullptr;
        return *length <= static_cast<size_t>(end_ - at) ? at : fail(WIRE_ERR_MALFORMED);
    }

    // A part of the input that is decoded as if it were all, and what there was before.
    struct Extent {
        const uint8_t *begin;
        const uint8_t *end;
    };
    Extent enter(const uint8_t *begin, uint32_t length)
    {
        const Extent outer = {begin_, end_};
        begin_ = begin;
        end_ = begin + length;
        return outer;
    }
    void leave(const Extent &outer)
    {
        begin_ = outer.begin;
        end_ = outer.end;
    }
    Extent extent() const { return {begin_, end_}; }
    bool at_end(const uint8_t *at) const { return at >= end_; }

private:
    [[gnu::cold]] TARN_CALL const uint8_t *read_slowly(const uint8_t *at, uint32_t *value);
    [[gnu::cold]] TARN_CALL const uint8_t *read_slowly(const uint8_t *at, uint64_t *value);
    [[gnu::cold]] TARN_CALL HandedBack read_long_tag(const uint8_t *at);

    const uint8_t *begin_;
    const uint8_t *end_;
    const uint8_t *fast_until_; // up to here words can be read, though perhaps beyond the end
    Memory memory_;
    uint32_t flags_;
    int32_t result_ = WIRE_OK;
};

} // namespace tarn
