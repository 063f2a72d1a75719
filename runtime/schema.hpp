// SPDX-License-Identifier: MIT
// How a record type is described to the compiler: a list of fields goes in, a Layout comes out, in
// which neighbours of one scalar kind are a single run. Nothing of it is left at run time.

#pragma once

#include <stddef.h>
#include <stdint.h>
#include <type_traits>

namespace [[gnu::visibility("hidden")]] tarn {

enum class Kind : uint8_t {
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

constexpr bool is_number(Kind kind)
{
    return is_scalar(kind) || kind == Kind::repeated_uint32;
}

// These have a record type of their own behind them.
constexpr bool is_nested(Kind kind)
{
    return kind == Kind::message || kind == Kind::repeated_message;
}

// These own blocks of memory.
constexpr bool has_pointer(Kind kind)
{
    return !is_scalar(kind) && kind != Kind::message;
}

// Byte strings and lists: a pointer, and right behind it a length or a count.
constexpr bool is_pair(Kind kind)
{
    return kind == Kind::bytes || kind == Kind::repeated_uint32 || kind == Kind::repeated_string ||
           kind == Kind::repeated_message;
}

struct Field {
    Kind kind;
    uint8_t number;
    uint16_t offset;
    uint16_t size;
};

template <Kind kind, typename Member>
constexpr bool kind_fits()
{
    using Target = std::remove_pointer_t<Member>;
    switch (kind) {
    case Kind::uint32:
        return std::is_same_v<Member, uint32_t>;
    case Kind::uint64:
        return std::is_same_v<Member, uint64_t>;
    case Kind::boolean:
        return std::is_same_v<Member, uint8_t>;
    case Kind::string:
        return std::is_same_v<Member, const char *>;
    case Kind::bytes:
        return std::is_same_v<Member, const uint8_t *>;
    case Kind::message:
        return std::is_class_v<Member>;
    case Kind::repeated_uint32:
        return std::is_same_v<Member, uint32_t *>;
    case Kind::repeated_string:
        return std::is_same_v<Member, const char **>;
    case Kind::repeated_message:
        return std::is_pointer_v<Member> && std::is_class_v<Target>;
    }
    return false;
}

// One field of a record type, with a number of up to 255: `offset` is that of its member (of the
// pointer, where there are two).
template <Kind kind, typename Member>
consteval Field field(uint32_t number, size_t offset)
{
    static_assert(kind_fits<kind, Member>(), "the member's type does not belong to this kind");
    // NOLINTNEXTLINE(bugprone-sizeof-expression): the size of a pointer is meant
    constexpr size_t size = sizeof(Member) + (is_pair(kind) ? sizeof(uint32_t) : 0);
    return {kind, static_cast<uint8_t>(number), static_cast<uint16_t>(offset),
            static_cast<uint16_t>(size)};
}

// Specialised for every record type, in the generated files:
//   fields    the Fields in the order of the members
//   Children  the record types of its nested fields, in the same order
template <typename Record>
struct Schema;

template <typename... Records>
struct RecordTypes {};

struct NoFields {};

// Members that are treated in one go: the same kind, consecutive field numbers, evenly spaced.
// A member of any kind that is not a scalar is a run of one.
struct Run {
    Kind kind;
    uint8_t count;
    uint8_t number;    // field number of the first
    uint8_t first_bit; // presence flag of the first
    uint16_t offset;   // of the first
};

// The bytes of neighbouring members without the gaps that alignment leaves, and without embedded
// records: those know their own gaps. Gaps belong to nobody and are never written.
struct Span {
    uint16_t offset;
    uint16_t size;
};

constexpr uint32_t at_least_one(uint32_t count)
{
    return count ? count : 1;
}

// What the operations need to know of a record type. Types with equal layouts share their code.
template <uint32_t RunCount, uint32_t SpanCount>
struct Layout {
    static constexpr uint32_t run_count = RunCount;
    static constexpr uint32_t span_count = SpanCount;

    constexpr bool has_pointers() const
    {
        for (uint32_t i = 0; i < RunCount; i++)
            if (has_pointer(runs[i].kind))
                return true;
        return false;
    }

    // But for what is nested.
    constexpr bool has_only_numbers() const
    {
        for (uint32_t i = 0; i < RunCount; i++)
            if (!is_number(runs[i].kind) && !is_nested(runs[i].kind))
                return false;
        return true;
    }

    uint16_t size;
    uint16_t flags; // offset of the first byte of presence flags
    uint8_t members;
    Run runs[at_least_one(RunCount)];
    Span spans[at_least_one(SpanCount)];
};

// A run's presence flags fit into a word, those of a record into two.
constexpr uint32_t kLongestRun = 32;
constexpr uint32_t kMostMembers = 64;

template <uint32_t N>
consteval bool continues_run(const Field (&fields)[N], uint32_t index, uint32_t run_length)
{
    const Field &last = fields[index - 1];
    const Field &next = fields[index];
    return is_scalar(last.kind) && next.kind == last.kind && next.number == last.number + 1 &&
           next.offset == last.offset + last.size && run_length < kLongestRun;
}

template <uint32_t N>
consteval uint32_t run_length(const Field (&fields)[N], uint32_t first)
{
    uint32_t length = 1;
    while (first + length < N && continues_run(fields, first + length, length))
        length++;
    return length;
}

template <uint32_t N>
consteval uint32_t count_runs(const Field (&fields)[N])
{
    uint32_t count = 0;
    for (uint32_t first = 0; first < N; first += run_length(fields, first))
        count++;
    return count;
}

template <uint32_t N>
consteval bool continues_span(const Field (&fields)[N], uint32_t index)
{
    const Field &last = fields[index - 1];
    return last.kind != Kind::message && fields[index].kind != Kind::message &&
           fields[index].offset == last.offset + last.size;
}

template <uint32_t N>
consteval uint32_t count_spans(const Field (&fields)[N])
{
    uint32_t count = 0;
    for (uint32_t i = 0; i < N; i++)
        count += fields[i].kind != Kind::message && (i == 0 || !continues_span(fields, i));
    return count;
}

template <uint32_t RunCount, uint32_t SpanCount, uint32_t N>
consteval Layout<RunCount, SpanCount> make_layout(const Field (&fields)[N], size_t size)
{
    Layout<RunCount, SpanCount> layout{};
    layout.size = static_cast<uint16_t>(size);
    layout.members = static_cast<uint8_t>(N);
    layout.flags = static_cast<uint16_t>(fields[N - 1].offset + fields[N - 1].size);
    uint32_t run = 0;
    for (uint32_t first = 0; first < N; first += run_length(fields, first))
        layout.runs[run++] = {fields[first].kind, static_cast<uint8_t>(run_length(fields, first)),
                              fields[first].number, static_cast<uint8_t>(first),
                              fields[first].offset};
    uint32_t spans = 0;
    for (uint32_t i = 0; i < N; i++) {
        if (fields[i].kind == Kind::message)
            continue;
        if (i > 0 && continues_span(fields, i))
            layout.spans[spans - 1].size += fields[i].size;
        else
            layout.spans[spans++] = {fields[i].offset, fields[i].size};
    }
    return layout;
}

template <typename Record>
consteval auto layout_of()
{
    if constexpr (std::is_same_v<decltype(Schema<Record>::fields), const NoFields>) {
        return Layout<0, 0>{};
    } else {
        constexpr auto &fields = Schema<Record>::fields;
        constexpr auto layout =
            make_layout<count_runs(fields), count_spans(fields)>(fields, sizeof(Record));
        static_assert(sizeof(Record) <= UINT16_MAX, "offsets are 16 bits");
        static_assert(layout.members <= kMostMembers, "the flags of a record are 64 bits");
        static_assert(layout.flags + (layout.members + 7) / 8 <= sizeof(Record),
                      "the presence flags do not follow the last member");
        return layout;
    }
}

} // namespace tarn
