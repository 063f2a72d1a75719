// SPDX-License-Identifier: MIT
// nanopb: one function for all types, with tables of each; texts, byte strings and lists as
// pointers.
#include "bench/driver.hpp"
#include "bench/peers/nanopb_memory.hpp"
#include "bench/types.hpp"
#include "nano.pb.h"

#include <pb_decode.h>
#include <pb_encode.h>

namespace bench {

namespace {

template <typename Message, const pb_msgdesc_t &type>
class Nanopb {
public:
    using Object = Message;

    explicit Nanopb(const Samples &samples)
    {
        nanopb_memory = &kept();
        variants_.resize(samples.encodings.size());
        for (uint32_t i = 0; i < variants_.size(); i++)
            parse(variants_[i], samples.encodings[i]);
    }

    const Message &variant(uint32_t index) { return variants_[index]; }

    uint32_t measure(const Message &message)
    {
        size_t size = 0;
        succeeded(pb_get_encoded_size(&size, &type, &message));
        return static_cast<uint32_t>(size);
    }

    void encode(const Message &message, uint8_t *buffer, uint32_t size)
    {
        pb_ostream_t stream = pb_ostream_from_buffer(buffer, size);
        succeeded(pb_encode(&stream, &type, &message));
    }

    const Message &decode(BytesView bytes)
    {
        nanopb_memory = &scratch_;
        scratch_.reset();
        parse(decoded_, bytes);
        return decoded_;
    }

    const Message &decode_on_heap(BytesView bytes)
    {
        nanopb_memory = nullptr;
        parse(decoded_, bytes);
        return decoded_;
    }

    void free_decoded() { pb_release(&type, &decoded_); }

    // It has no operation for that.
    const Message &duplicate(const Message &message)
    {
        copied_.resize(measure(message));
        encode(message, copied_.data(), static_cast<uint32_t>(copied_.size()));
        return decode(copied_);
    }

private:
    static void succeeded(bool result)
    {
        if (!result)
            throw std::runtime_error("nanopb fails");
    }

    static void parse(Message &message, BytesView bytes)
    {
        pb_istream_t stream = pb_istream_from_buffer(bytes.data(), bytes.size());
        succeeded(pb_decode(&stream, &type, &message));
    }

    Bump &scratch_ = scratch();
    std::vector<Message> variants_;
    Message decoded_;
    Bytes copied_;
};

} // namespace

std::unique_ptr<Contender> make_nanopb(const Samples &samples)
{
#define BENCH_TYPE(name)                                                                           \
    if (samples.workload.type == #name)                                                            \
        return std::make_unique<                                                                   \
            Driver<Nanopb<nano_ethsw_mgmt_##name, nano_ethsw_mgmt_##name##_msg>>>("nanopb",        \
                                                                                  samples);
    BENCH_FOR_EACH_TYPE(BENCH_TYPE)
#undef BENCH_TYPE
    return nullptr;
}

} // namespace bench
