// SPDX-License-Identifier: MIT
// The four operations on a record type by its C++ name, with the checks that belong to every call.

#pragma once

#include "runtime/codec.hpp"
#include "tests/support/blocks.hpp"
#include "tests/support/bytes.hpp"
#include "tests/support/segments.hpp"
#include "tests/support/undefined.hpp"

#include <cstring>
#include <string>
#include <vector>

namespace test {

template <typename Record>
using CodecFor = typename tarn::CodecOf<Record>::Type;

template <typename Record>
uint32_t measure(const Record &record, uint32_t flags = 0)
{
    return CodecFor<Record>::encode(&record, nullptr, 0, nullptr, nullptr, flags);
}

// What a call of encode has left behind.
struct Encoding {
    static constexpr uint8_t kUntouched = 0xA5;

    uint32_t length; // the result
    Bytes buffer;    // the whole of it, kUntouched where nothing was written
    uint32_t count;  // of pieces, as reported
    std::string pieces;
};

// Encodes into a buffer and an array of just these capacities.
template <typename Record>
Encoding encode_into(uint32_t capacity, uint32_t array_capacity, const Record &record,
                     uint32_t flags = 0, const std::vector<Named> &others = {})
{
    Encoding result{0, Bytes(capacity, Encoding::kUntouched), array_capacity, {}};
    std::vector<WireSegment> segments(array_capacity);
    make_undefined(result.buffer.data(), capacity);
    make_undefined(segments.data(), array_capacity * sizeof(WireSegment));
    result.length = CodecFor<Record>::encode(&record, result.buffer.data(), capacity,
                                             segments.data(), &result.count, flags);
    make_defined(result.buffer.data(), capacity);
    make_defined(segments.data(), array_capacity * sizeof(WireSegment));
    for (uint32_t i = 0; i < result.count && i < array_capacity; i++) {
        result.pieces += i ? " " : "";
        result.pieces += describe(segments[i], result.buffer.data(), capacity, others);
    }
    return result;
}

// The bytes of a record, encoded without a wish for pieces.
template <typename Record>
Bytes encode(const Record &record, uint32_t flags = 0)
{
    Bytes buffer(measure(record, flags), Encoding::kUntouched);
    make_undefined(buffer.data(), buffer.size());
    const uint32_t length =
        CodecFor<Record>::encode(&record, buffer.data(), buffer.length(), nullptr, nullptr, flags);
    EXPECT_EQ(length, buffer.size()) << "measured otherwise";
    return buffer;
}

// The pieces of a record that has all the room it wants.
template <typename Record>
std::string pieces(const Record &record, uint32_t flags = 0, const std::vector<Named> &others = {})
{
    constexpr uint32_t kPlenty = 100;
    const Encoding encoding = encode_into(measure(record, flags), kPlenty, record, flags, others);
    EXPECT_LE(encoding.count, kPlenty);
    return encoding.pieces;
}

// A record that decoding or copying fills, over rubbish, and whatever blocks it comes to own. In
// the end it is released, and then again, which must not do anything.
template <typename Record>
class Owner {
public:
    Record record;
    Blocks blocks;

    explicit Owner(uint8_t rubbish = 0xA5)
    {
        std::memset(&record, rubbish, sizeof record);
        make_undefined(&record, sizeof record);
    }

    ~Owner()
    {
        release();
        const size_t returned = blocks.returned().size();
        release();
        EXPECT_EQ(blocks.returned().size(), returned) << "released twice";
    }

    int32_t decode(const Bytes &input, uint32_t flags = 0)
    {
        return decode(input, Blocks::take, flags);
    }

    int32_t decode_without_memory(const Bytes &input, uint32_t flags = 0)
    {
        return decode(input, nullptr, flags);
    }

    int32_t duplicate(const Record &source)
    {
        is_filled_ = true;
        return CodecFor<Record>::duplicate(&record, &source, Blocks::take, &blocks);
    }

    int32_t duplicate_without_memory(const Record &source)
    {
        is_filled_ = true;
        return CodecFor<Record>::duplicate(&record, &source, nullptr, &blocks);
    }

    void release()
    {
        if (is_filled_)
            CodecFor<Record>::release(&record, Blocks::give_back, &blocks, flags_);
    }

    // What was decoded, in a block of its own size: byte strings in place point into it.
    const Bytes &input() const { return input_; }

private:
    int32_t decode(const Bytes &input, wire_alloc_fn alloc_fn, uint32_t flags)
    {
        input_ = input;
        flags_ = flags;
        is_filled_ = true;
        return CodecFor<Record>::decode(&record, input_.data(), input_.length(), alloc_fn, &blocks,
                                        flags);
    }

    Bytes input_;
    uint32_t flags_ = 0;
    bool is_filled_ = false;
};

// Only the result.
template <typename Record>
int32_t decode(const Bytes &input, uint32_t flags = 0)
{
    Owner<Record> owner;
    return owner.decode(input, flags);
}

} // namespace test
