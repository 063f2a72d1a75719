// SPDX-License-Identifier: MIT
// Encoding one record into every kind of buffer and segment array.

#include "tests/model/cases.hpp"
#include "tests/model/compare.hpp"

#include <algorithm>
#include <cstring>

namespace model {

namespace {

enum : uint32_t { kNothing = 0, kBuffer = 1, kSegments = 2, kCount = 4 };

// Results above this come from lengths that nobody has; there is no buffer for them.
constexpr uint32_t kLongest = 100000;

// The unused bytes of a segment belong to nobody.
void clear_padding(WireSegment *segments, uint32_t count)
{
    constexpr size_t kUsed = offsetof(WireSegment, length) + sizeof(uint32_t);
    if constexpr (sizeof(WireSegment) > kUsed)
        for (uint32_t i = 0; i < count; ++i)
            std::memset(reinterpret_cast<uint8_t *>(segments + i) + kUsed, 0,
                        sizeof(WireSegment) - kUsed);
}

} // namespace

void Cases::encode_case(const RecordType &type)
{
    const Twin record = build(type, Purpose::encode);
    uint32_t lengths[2];
    try {
        for (uint32_t in_place = 0; in_place < 2; ++in_place) {
            const uint32_t flags = (random_flags() & ~kBytesInPlace) | in_place;
            const uint32_t length = try_encode(type, record, 0, 0, kNothing, flags);
            encode_into(type, record, length, flags);
            lengths[in_place] = length;
        }
    } catch (Difference &difference) {
        difference.text += "\nrecord:\n" + describe(type, record.model);
        throw;
    }
    if (lengths[1] < lengths[0])
        tally_.count(Seen::bytes_as_segments);
}

void Cases::encode_into(const RecordType &type, const Twin &record, uint32_t length, uint32_t flags)
{
    const uint32_t none = random_.below(4);
    try_encode(type, record, 0, none, kCount, flags);
    const uint32_t pieces = segments_reported_;
    const uint32_t many = pieces + 2 + random_.below(30);
    try_encode(type, record, 0, many, kSegments | kCount, flags);
    try_encode(type, record, 0, many, kSegments, flags);
    if (length <= kLongest) {
        try_encode(type, record, length, 0, kBuffer, flags);
        try_encode(type, record, length, many, kBuffer | kSegments | kCount, flags);
        try_encode(type, record, length + 1 + random_.below(40), 0, kBuffer, flags);
        encode_into_segments(type, record, length + random_.below(2), pieces, flags);
    }
    const uint32_t limit = length <= kLongest ? length : 300;
    const bool every = limit <= 40 && random_.chance(30);
    for (uint32_t i = 0; i < (every ? limit : std::min(limit, 6u)); ++i) {
        const uint32_t capacity = every ? i : random_.below(limit);
        const uint32_t segments = random_.below(pieces + 2);
        const uint32_t what = random_.pick<uint32_t>(
            {kNothing, kCount, kSegments | kCount, kSegments | kCount, kSegments});
        try_encode(type, record, capacity, segments, what | kBuffer, flags);
    }
}

// Room for none, for some, for all, and for one more.
void Cases::encode_into_segments(const RecordType &type, const Twin &record, uint32_t capacity,
                                 uint32_t pieces, uint32_t flags)
{
    constexpr uint32_t kMost = 12;
    const bool every = pieces < kMost;
    for (uint32_t i = 0; i <= std::min(pieces + 1, kMost); ++i)
        try_encode(type, record, capacity, every ? i : pieces + 1 - random_.below(pieces + 2),
                   kBuffer | kSegments | kCount, flags);
}

uint32_t Cases::try_encode(const RecordType &type, const Twin &record, uint32_t capacity,
                           uint32_t segment_capacity, uint32_t what, uint32_t flags)
{
    const Mark mark = library_.memory.mark();
    set_step("encode %s, %s, capacity %u, segments %s %u, count %s, flags %#x", type.name.c_str(),
             what & kBuffer ? "buffer" : "no buffer", capacity, what & kSegments ? "yes" : "null",
             segment_capacity, what & kCount ? "yes" : "null", flags);
    uint32_t results[2];
    int side_index = 0;
    for (Side *side : {&library_, &model_}) {
        EncodeArguments arguments = {nullptr, capacity, nullptr, nullptr, flags};
        if (what & kBuffer)
            arguments.buffer = side->memory.take(capacity, "buffer");
        if (what & kSegments)
            arguments.segments = reinterpret_cast<WireSegment *>(
                side->memory.take(uint32_t(segment_capacity * sizeof(WireSegment)), "segments"));
        if (what & kCount) {
            arguments.segment_count =
                reinterpret_cast<uint32_t *>(side->memory.take(4, "segment count"));
            *arguments.segment_count = segment_capacity;
        }
        const uint8_t *of_side = side == &library_ ? record.library : record.model;
        results[side_index++] = side->codec.encode(type, of_side, arguments);
        if (what & kSegments)
            clear_padding(arguments.segments, segment_capacity);
        if (what & kCount)
            segments_reported_ = *arguments.segment_count;
    }
    require_result(results[0], results[1]);
    require(compare_memory(library_, model_));
    ++comparisons_;
    count_encode(results[1], capacity, segment_capacity, what);
    rewind(mark);
    return results[1];
}

void Cases::count_encode(uint32_t length, uint32_t capacity, uint32_t segment_capacity,
                         uint32_t what)
{
    if (!(what & kBuffer)) {
        tally_.count(Seen::measured);
        return;
    }
    tally_.count(length <= capacity ? Seen::written_whole : Seen::written_short);
    if ((what & (kSegments | kCount)) != (kSegments | kCount))
        return;
    tally_.count(segments_reported_ <= segment_capacity ? Seen::segments_whole
                                                        : Seen::segments_short);
}

} // namespace model
