// SPDX-License-Identifier: MIT
// protobuf-c: one function for all types, with tables of each.
#include "bench/bump.hpp"
#include "bench/driver.hpp"
#include "bench/types.hpp"
#include "protobuf_c.pb-c.h"

namespace bench {

namespace {

void *allocate_from(void *bump, size_t size)
{
    return static_cast<Bump *>(bump)->allocate(static_cast<uint32_t>(size));
}

void keep(void *, void *) {}

class ProtobufC {
public:
    using Object = ProtobufCMessage *;

    ProtobufC(const Samples &samples, const ProtobufCMessageDescriptor &type) : type_(type)
    {
        for (const Bytes &bytes : samples.encodings)
            variants_.push_back(unpack(bytes, &from_kept_));
    }

    const Object &variant(uint32_t index) { return variants_[index]; }

    uint32_t measure(const Object &message)
    {
        return static_cast<uint32_t>(protobuf_c_message_get_packed_size(message));
    }

    void encode(const Object &message, uint8_t *buffer, uint32_t)
    {
        protobuf_c_message_pack(message, buffer);
    }

    const Object &decode(BytesView bytes)
    {
        scratch_.reset();
        return decoded_ = unpack(bytes, &from_scratch_);
    }

    const Object &decode_on_heap(BytesView bytes) { return decoded_ = unpack(bytes, nullptr); }

    void free_decoded() { protobuf_c_message_free_unpacked(decoded_, nullptr); }

    // It has no operation for that.
    const Object &duplicate(const Object &message)
    {
        copied_.resize(measure(message));
        encode(message, copied_.data(), 0);
        return decode(copied_);
    }

private:
    ProtobufCMessage *unpack(BytesView bytes, ProtobufCAllocator *allocator)
    {
        ProtobufCMessage *message =
            protobuf_c_message_unpack(&type_, allocator, bytes.size(), bytes.data());
        if (!message)
            throw std::runtime_error("protobuf-c refuses a message");
        return message;
    }

    const ProtobufCMessageDescriptor &type_;
    Bump &scratch_ = scratch();
    ProtobufCAllocator from_scratch_{allocate_from, keep, &scratch_};
    ProtobufCAllocator from_kept_{allocate_from, keep, &kept()};
    std::vector<ProtobufCMessage *> variants_;
    ProtobufCMessage *decoded_ = nullptr;
    Bytes copied_;
};

// The type as part of the class, which is what a driver takes.
template <const ProtobufCMessageDescriptor &type>
struct ProtobufCOf : ProtobufC {
    explicit ProtobufCOf(const Samples &samples) : ProtobufC(samples, type) {}
};

} // namespace

std::unique_ptr<Contender> make_protobuf_c(const Samples &samples)
{
#define BENCH_TYPE(name)                                                                           \
    if (samples.workload.type == #name)                                                            \
        return std::make_unique<Driver<ProtobufCOf<protobuf_c__ethsw_mgmt_##name##__descriptor>>>( \
            "protobuf-c", samples);
    BENCH_FOR_EACH_TYPE(BENCH_TYPE)
#undef BENCH_TYPE
    return nullptr;
}

} // namespace bench
