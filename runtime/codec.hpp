// SPDX-License-Identifier: MIT
// Makes the operations of a record type from its layout: for each operation one line of calls, a
// run after the other, with everything about the schema as a constant.

#pragma once

#include "runtime/runs.hpp"

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

    static uint32_t measure(const void *record, uint32_t flags)
    {
        const uint8_t *bytes = static_cast<const uint8_t *>(record);
        uint32_t offset = 0;
        for_each_run([&]<Run run, typename Child>() {
            offset = measure_run<run, Child>(offset, bytes, bytes + layout.flags, flags);
        });
        return offset;
    }

    static void write(Encoder &out, const void *record)
    {
        const uint8_t *bytes = static_cast<const uint8_t *>(record);
        for_each_run([&]<Run run, typename Child>() {
            write_run<run, Child>(out, bytes, bytes + layout.flags);
        });
        out.finish();
    }

    static uint32_t encode(const void *record, uint8_t *buffer, uint32_t capacity,
                           WireSegment *segments, uint32_t *segment_count, uint32_t flags)
    {
        if (capacity == 0 && !segment_count)
            return measure(record, flags);
        Encoder out(buffer, capacity, segments, segment_count, flags);
        write(out, record);
        if (segment_count)
            *segment_count = out.segment_count();
        return out.offset();
    }

    static void initialise(void *record)
    {
        uint8_t *bytes = static_cast<uint8_t *>(record);
        for_each_span([&]<Span span>() { memset(bytes + span.offset, 0, span.size); });
        for_each_run([&]<Run run, typename Child>() {
            if constexpr (run.kind == Kind::message)
                Child::initialise(bytes + run.offset);
        });
        if constexpr (layout.members > 0)
            clear_flags<layout.members>(bytes + layout.flags);
    }

    static int32_t decode(void *record, const uint8_t *buf, uint32_t len, wire_alloc_fn alloc_fn,
                          void *alloc_ctx, uint32_t flags)
    {
        initialise(record);
        return decode_fields(record, Decoder(buf, len, {alloc_fn, alloc_ctx}, flags));
    }

    // Decodes into a record that has its defaults already.
    static int32_t decode_fields(void *record, Decoder in)
    {
        uint8_t *bytes = static_cast<uint8_t *>(record);
        uint8_t *presence = bytes + layout.flags;
        uint32_t tag = in.next_tag();
        while (tag != kStop) {
            const uint32_t position = in.position();
            for_each_run([&]<Run run, typename Child>() {
                tag = decode_run<run, Child>(in, tag, bytes, presence);
            });
            // Whoever takes a tag reads on behind it.
            if (tag != kStop && in.position() == position)
                tag = in.skip(tag, presence, layout.members);
        }
        return in.result();
    }

    static int32_t duplicate(void *dst, const void *src, wire_alloc_fn alloc_fn, void *alloc_ctx)
    {
        uint8_t *to = static_cast<uint8_t *>(dst);
        const uint8_t *from = static_cast<const uint8_t *>(src);
        for_each_span(
            [&]<Span span>() { memcpy(to + span.offset, from + span.offset, span.size); });
        if constexpr (layout.members > 0)
            copy_flags<layout.members>(to + layout.flags, from + layout.flags);
        Copier copier({alloc_fn, alloc_ctx});
        for_each_run([&]<Run run, typename Child>() {
            if constexpr (owns_memory(run.kind))
                duplicate_run<run, Child>(copier, to, from, to + layout.flags);
        });
        return copier.result();
    }

    static void release(void *record, wire_free_fn free_fn, void *free_ctx, uint32_t flags)
    {
        const Releaser releaser{free_fn, free_ctx, flags};
        for_each_run([&]<Run run, typename Child>() {
            if constexpr (owns_memory(run.kind))
                release_run<run, Child>(releaser, static_cast<uint8_t *>(record));
        });
    }

private:
    using Runs = std::make_integer_sequence<uint32_t, layout.run_count>;
    using Spans = std::make_integer_sequence<uint32_t, layout.span_count>;

    template <uint32_t run>
    using ChildOf = typename ChildAt<nested_runs_before(layout, run), Children...>::Type;

    template <typename Function>
    static void for_each_run(Function function)
    {
        call_for_runs(function, Runs());
    }

    template <typename Function, uint32_t... i>
    static void call_for_runs([[maybe_unused]] Function function,
                              std::integer_sequence<uint32_t, i...>)
    {
        (function.template operator()<layout.runs[i], ChildOf<i>>(), ...);
    }

    template <typename Function>
    static void for_each_span(Function function)
    {
        call_for_spans(function, Spans());
    }

    template <typename Function, uint32_t... i>
    static void call_for_spans([[maybe_unused]] Function function,
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
