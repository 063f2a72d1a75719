// SPDX-License-Identifier: MIT
// Makes the operations of a record type from its layout: for each operation one line of calls, a
// run after the other, with everything about the schema as a constant.

#pragma once

#include "runtime/runs.hpp"
#include "runtime/spans.hpp"

#include <utility>

namespace [[gnu::visibility("hidden")]] tarn {

// How runs find the codecs of the record types nested in them: the Nth nested run has the Nth
// child.
template <uint32_t index, typename... Children>
struct ChildAt {
    using Type = void;
};

template <typename First, typename... Others>
struct ChildAt<0, First, Others...> {
    using Type = First;
};

template <uint32_t index, typename First, typename... Others>
struct ChildAt<index, First, Others...> : ChildAt<index - 1, Others...> {};

template <uint32_t RunCount, uint32_t SpanCount>
consteval uint32_t nested_runs_before(const Layout<RunCount, SpanCount> &layout, uint32_t run)
{
    uint32_t count = 0;
    for (uint32_t i = 0; i < run; i++)
        count += is_nested(layout.runs[i].kind);
    return count;
}

// The operations of every record type with this layout and these nested types. `record` is the
// record, whatever its type; a type without fields is never looked at, and may be null.
template <auto layout, typename... Children>
class Codec {
    static_assert(nested_runs_before(layout, layout.run_count) == sizeof...(Children),
                  "every nested field needs its record type among the Children");

public:
    static constexpr uint32_t size = layout.size;
    static constexpr bool is_foreign = false;
    static constexpr bool has_foreign = (Children::has_foreign || ...);
    // Nothing but numbers all the way down.
    static constexpr bool is_plain = layout.has_only_numbers() && (Children::is_plain && ...);
    // Whether a record may have blocks to release.
    static constexpr bool owns_memory = layout.has_pointers() || (Children::owns_memory || ...);
    static constexpr bool defaults_are_zero = (Children::defaults_are_zero && ...);
    // One number or two, neither of them wide: so little that to prepare for reading or writing
    // would take longer than to do it.
    static constexpr bool is_tiny = !kIsSmall && is_plain && !owns_memory &&
                                    sizeof...(Children) == 0 && layout.members >= 1 &&
                                    layout.members <= 2 && layout.size < 2 * sizeof(uint64_t);

    // Without its flags nothing is written of a record, but for what is embedded in it.
    TARN_INLINE static bool is_surely_empty(const void *record)
    {
        const uint8_t *bytes = static_cast<const uint8_t *>(record);
        bool empty = all_flags<layout.members>(bytes + layout.flags) == 0;
        for_each_run([&]<Run run, typename Child>() TARN_INLINE {
            if constexpr (run.kind == Kind::message)
                empty = empty && Child::is_surely_empty(bytes + run.offset);
        });
        return empty;
    }

    TARN_CALL static uint32_t measure(const void *record, uint32_t flags)
    {
        return measure_here(record, flags);
    }

    TARN_INLINE static uint32_t measure_here(const void *record, uint32_t flags)
    {
        const uint8_t *bytes = static_cast<const uint8_t *>(record);
        uint32_t offset = 0;
        for_each_run([&]<Run run, typename Child>() TARN_INLINE {
            offset = measure_run<run, Child>(offset, bytes, bytes + layout.flags, flags);
        });
        return offset;
    }

    TARN_CALL static uint32_t write(uint32_t offset, Encoder &out, const void *record)
    {
        const uint8_t *bytes = static_cast<const uint8_t *>(record);
        const Encoder::Roomy roomy = out.roomy();
        for_each_run([&]<Run run, typename Child>() TARN_INLINE {
            offset = write_run<run, Child>(offset, out, roomy, bytes, bytes + layout.flags);
        });
        return offset;
    }

    // Writes a tiny record where it is known to fit.
    TARN_INLINE static void store(uint8_t *buffer, const void *record)
    {
        uint8_t *to = buffer;
        const uint8_t *bytes = static_cast<const uint8_t *>(record);
        for_each_run([&]<Run run, typename Child>() TARN_INLINE {
            to = store_run<run>(to, bytes + run.offset, bytes + layout.flags);
        });
    }

    [[gnu::noinline]] static uint32_t encode(const void *record, uint8_t *buffer, uint32_t capacity,
                                             WireSegment *segments, uint32_t *segment_count,
                                             uint32_t flags)
    {
        if constexpr (is_tiny) {
            const uint32_t length = measure_here(record, flags);
            if (!segment_count && length <= capacity)
                store(buffer, record);
            if (!segment_count && (length <= capacity || capacity == 0))
                return length;
        } else if constexpr (kIsSmallMachine) {
            // Its arguments stay where they are, on the stack, if they are only handed on.
            return measure_or_encode<encode_whole>(write, measure_of<Codec>(), record, buffer,
                                                   capacity, segments, segment_count, flags);
        } else if (!kIsSmall && !segment_count && capacity == 0) {
            return measure(record, flags);
        }
        return encode_whole(write, record, buffer, capacity, segments, segment_count, flags);
    }

    static void initialise(void *record)
    {
        uint8_t *bytes = static_cast<uint8_t *>(record);
        for_each_span([&]<Span span>() TARN_INLINE { clear_span<span.size>(bytes + span.offset); });
        for_each_run([&]<Run run, typename Child>() TARN_INLINE {
            if constexpr (run.kind == Kind::message)
                Child::initialise(bytes + run.offset);
        });
        if constexpr (layout.members > 0)
            clear_flags<layout.members>(bytes + layout.flags);
    }

    [[gnu::noinline]] static int32_t decode(void *record, const uint8_t *buf, uint32_t len,
                                            wire_alloc_fn alloc_fn, void *alloc_ctx, uint32_t flags)
    {
        if constexpr (is_tiny)
            if (load_small(record, buf, len))
                return WIRE_OK;
        if constexpr (kIsSmall) {
            return decode_message_as(decode_anew, record, buf, len, alloc_fn, alloc_ctx, flags);
        } else {
            initialise(record);
            Decoder in(buf, len, {alloc_fn, alloc_ctx}, flags);
            decode_fields(in, record);
            return in.result();
        }
    }

    // Loads a tiny record from a message that has each field once, in order and in two bytes.
    TARN_INLINE static bool load_small(void *record, const uint8_t *buf, uint32_t len)
    {
        if (len != layout.members * kOneSmall)
            return false;
        bool small = true;
        for_each_run([&]<Run run, typename Child>()
                         TARN_INLINE { small &= is_small_run<run>(buf); });
        if (!small)
            return false;
        uint8_t *bytes = static_cast<uint8_t *>(record);
        for_each_run([&]<Run run, typename Child>()
                         TARN_INLINE { load_small_run<run>(bytes + run.offset, buf); });
        set_all_flags<layout.members>(bytes + layout.flags);
        return true;
    }

    // Decodes into a record that has its defaults already.
    TARN_CALL static void decode_fields(Decoder &in, void *record)
    {
        constexpr uint32_t kPresence = presence_at(layout.flags, layout.members);
        uint8_t *bytes = static_cast<uint8_t *>(record);
        if constexpr (kIsSmall)
            decode_by_rounds(in, bytes, kPresence, decode_round);
        else
            decode_rounds(in, bytes, kPresence, decode_round_here);
    }

    // Passes a tag along the line of runs, which read on behind it.
    TARN_CALL static HandedBack decode_round(Cursor cursor, Decoder &in, uint8_t *record)
    {
        return decode_round_here(cursor, in, record);
    }

    TARN_INLINE static Cursor decode_round_here(Cursor cursor, Decoder &in, uint8_t *record)
    {
        for_each_run([&]<Run run, typename Child>() TARN_INLINE {
            cursor = decode_run<run, Child>(cursor, in, record, layout.flags);
        });
        return cursor;
    }

    // Decodes into whatever is there.
    TARN_CALL static void decode_anew(Decoder &in, void *record)
    {
        initialise(record);
        decode_fields(in, record);
    }

    // Decodes into an element of a list, which was cleared.
    TARN_CALL static void decode_element(Decoder &in, void *record)
    {
        defaults_are_zero ? decode_fields(in, record) : decode_anew(in, record);
    }

    [[gnu::noinline]] static int32_t duplicate(void *dst, const void *src, wire_alloc_fn alloc_fn,
                                               void *alloc_ctx)
    {
        copy_bytes(dst, src);
        if constexpr (!owns_memory)
            return WIRE_OK;
        Copier copier({alloc_fn, alloc_ctx});
        copy_blocks(copier, dst, src);
        return copier.result();
    }

    // Copies the members and the flags, and leaves the gaps between them alone.
    TARN_INLINE static void copy_bytes(void *dst, const void *src)
    {
        uint8_t *to = static_cast<uint8_t *>(dst);
        const uint8_t *from = static_cast<const uint8_t *>(src);
        for_each_span([&]<Span span>() TARN_INLINE {
            copy_span<span.size>(to + span.offset, from + span.offset);
        });
        for_each_run([&]<Run run, typename Child>() TARN_INLINE {
            if constexpr (run.kind == Kind::message)
                Child::copy_bytes(to + run.offset, from + run.offset);
        });
        if constexpr (layout.members > 0)
            copy_flags<layout.members>(to + layout.flags, from + layout.flags);
    }

    // Gives a record that is a copy of another, byte by byte, blocks of its own.
    TARN_CALL static void copy_blocks(Copier &copier, void *dst, const void *src)
    {
        uint8_t *to = static_cast<uint8_t *>(dst);
        const uint8_t *from = static_cast<const uint8_t *>(src);
        for_each_run([&]<Run run, typename Child>() TARN_INLINE {
            if constexpr (!is_scalar(run.kind))
                duplicate_run<run, Child>(copier, to, from, to + layout.flags);
        });
    }

    [[gnu::noinline]] static void release([[maybe_unused]] void *record,
                                          [[maybe_unused]] wire_free_fn free_fn,
                                          [[maybe_unused]] void *free_ctx,
                                          [[maybe_unused]] uint32_t flags)
    {
        if constexpr (owns_memory)
            release_blocks({free_fn, free_ctx, flags}, record);
    }

    TARN_CALL static void release_blocks(const Releaser &releaser, void *record)
    {
        for_each_run([&]<Run run, typename Child>() TARN_INLINE {
            if constexpr (!is_scalar(run.kind))
                release_run<run, Child>(releaser, static_cast<uint8_t *>(record));
        });
    }

private:
    static constexpr EncodeRecord encode_whole = has_foreign ? encode_in_place : encode_record;

    using Runs = std::make_integer_sequence<uint32_t, layout.run_count>;
    using Spans = std::make_integer_sequence<uint32_t, layout.span_count>;

    template <uint32_t run>
    using ChildOf = typename ChildAt<nested_runs_before(layout, run), Children...>::Type;

    template <typename Function>
    TARN_INLINE static void for_each_run(Function function)
    {
        call_for_runs(function, Runs());
    }

    template <typename Function, uint32_t... i>
    TARN_INLINE static void call_for_runs([[maybe_unused]] Function function,
                                          std::integer_sequence<uint32_t, i...>)
    {
        (function.template operator()<layout.runs[i], ChildOf<i>>(), ...);
    }

    template <typename Function>
    TARN_INLINE static void for_each_span(Function function)
    {
        call_for_spans(function, Spans());
    }

    template <typename Function, uint32_t... i>
    TARN_INLINE static void call_for_spans([[maybe_unused]] Function function,
                                           std::integer_sequence<uint32_t, i...>)
    {
        (function.template operator()<layout.spans[i]>(), ...);
    }
};

// The codec of a record type. A record type of another library has a specialisation, with the same
// functions, that calls that library's operations.
template <typename Record>
struct CodecOf {
    template <typename... Children>
    static Codec<layout_of<Record>(), typename CodecOf<Children>::Type...>
        choose(RecordTypes<Children...>);

    using Type = decltype(choose(typename Schema<Record>::Children()));
};

} // namespace tarn
