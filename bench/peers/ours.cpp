// SPDX-License-Identifier: MIT
// The library itself, as a C caller uses it: through the operations that it exports.
#include "bench/bump.hpp"
#include "bench/driver.hpp"

#include <stdlib.h>

namespace bench {

namespace {

// With this signature, whatever the callback is given: memory from a Bump, and from malloc.
void *allocate_from(uint32_t size, void *bump)
{
    return static_cast<Bump *>(bump)->allocate(size);
}

void *allocate_on_heap(uint32_t size, void *)
{
    return malloc(size);
}

void free_on_heap(void *block, void *)
{
    free(block);
}

class Ours {
public:
    // A record of whatever type.
    using Object = void *;

    explicit Ours(const Samples &samples)
        : workload_(samples.workload), decoded_(make_record()), segments_(kMostSegments)
    {
        for (const Bytes &bytes : samples.encodings) {
            variants_.push_back(make_record());
            succeeded(decode_into(variants_.back(), bytes, allocate_from, &kept()));
        }
    }

    const Object &variant(uint32_t index) { return variants_[index]; }

    uint32_t measure(const Object &record)
    {
        return workload_.encode(record, nullptr, 0, nullptr, nullptr, workload_.flags);
    }

    void encode(const Object &record, uint8_t *buffer, uint32_t size)
    {
        workload_.encode(record, buffer, size, nullptr, nullptr, 0);
    }

    void encode_segments(const Object &record, uint8_t *buffer, uint32_t size)
    {
        segment_count_ = kMostSegments;
        workload_.encode(record, buffer, size, segments_.data(), &segment_count_, workload_.flags);
    }

    const Object &decode(BytesView bytes)
    {
        scratch_.reset();
        succeeded(decode_into(decoded_, bytes, allocate_from, &scratch_));
        return decoded_;
    }

    const Object &decode_on_heap(BytesView bytes)
    {
        succeeded(decode_into(decoded_, bytes, allocate_on_heap, nullptr));
        return decoded_;
    }

    void free_decoded() { workload_.release(decoded_, free_on_heap, nullptr, workload_.flags); }

    const Object &duplicate(const Object &record)
    {
        scratch_.reset();
        succeeded(workload_.duplicate(decoded_, record, allocate_from, &scratch_));
        return decoded_;
    }

protected:
    static constexpr uint32_t kMostSegments = 16'384;

    static void succeeded(int32_t result)
    {
        if (result != WIRE_OK)
            throw std::runtime_error("the library refuses a message of its own");
    }

    void *make_record() { return kept().allocate(workload_.record_size); }

    int32_t decode_into(void *record, BytesView bytes, wire_alloc_fn alloc_fn, void *alloc_ctx)
    {
        return workload_.decode(record, bytes.data(), static_cast<uint32_t>(bytes.size()), alloc_fn,
                                alloc_ctx, workload_.flags);
    }

    const Workload &workload_;
    Bump &scratch_ = scratch();
    std::vector<void *> variants_;
    void *decoded_;
    std::vector<WireSegment> segments_;
    uint32_t segment_count_ = 0;
};

// Byte strings stay where they are, so that an encoding is a list of segments.
class OursInPlace : public Ours {
public:
    using Ours::Ours;

    void encode(const Object &record, uint8_t *buffer, uint32_t size)
    {
        encode_segments(record, buffer, size);
    }

    Bytes gather()
    {
        Bytes bytes;
        for (const WireSegment &segment : std::span(segments_).first(segment_count_))
            bytes.insert(bytes.end(), segment.data, segment.data + segment.length);
        return bytes;
    }

private:
    // Nothing to compare it with: that is how it encodes.
    using Ours::encode_segments;
};

} // namespace

std::unique_ptr<Contender> make_ours(const Samples &samples)
{
    if (samples.workload.flags & WIRE_FLAG_BYTES_IN_PLACE)
        return std::make_unique<Driver<OursInPlace>>("ours", samples);
    return std::make_unique<Driver<Ours>>("ours", samples);
}

} // namespace bench
