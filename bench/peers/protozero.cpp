// SPDX-License-Identifier: MIT
// protozero: readers and writers of fields, here in straight code between bytes and the records of
// the library.
#include "bench/driver.hpp"
#include "bench/types.hpp"
#include "protozero_records.hpp"

namespace bench {

namespace {

template <typename Record>
class Protozero {
public:
    using Object = Record;

    explicit Protozero(const Samples &samples)
        : in_place_((samples.workload.flags & WIRE_FLAG_BYTES_IN_PLACE) != 0),
          heap_(by_hand::FromHeap{}, in_place_), arena_({scratch()}, in_place_),
          aside_(samples.longest + kSlack)
    {
        by_hand::Memory<by_hand::FromBump> memory({kept()}, in_place_);
        variants_.resize(samples.encodings.size());
        for (uint32_t i = 0; i < variants_.size(); i++)
            parse(variants_[i], samples.encodings[i], memory);
    }

    const Record &variant(uint32_t index) { return variants_[index]; }

    uint32_t measure(const Record &record) { return by_hand::size_of(record); }

    void encode(const Record &record, uint8_t *buffer, uint32_t size)
    {
        write(record, buffer, size + kSlack);
    }

    // It finds out about the size while it writes, elsewhere: that is quicker than to be told.
    uint32_t measure_and_encode(const Record &record, uint8_t *buffer)
    {
        const size_t size = write(record, aside_.data(), aside_.size());
        memcpy(buffer, aside_.data(), size);
        return static_cast<uint32_t>(size);
    }

    const Record &decode(BytesView bytes)
    {
        scratch_.reset();
        parse(decoded_, bytes, arena_);
        return decoded_;
    }

    const Record &decode_on_heap(BytesView bytes)
    {
        parse(decoded_, bytes, heap_);
        return decoded_;
    }

    void free_decoded() { by_hand::release(decoded_, heap_); }

    // It has no operation for that.
    const Record &duplicate(const Record &record)
    {
        const size_t size = write(record, aside_.data(), aside_.size());
        return decode(BytesView(aside_).first(size));
    }

private:
    static size_t write(const Record &record, uint8_t *buffer, size_t capacity)
    {
        protozero::fixed_size_buffer_adaptor out(reinterpret_cast<char *>(buffer), capacity);
        by_hand::Writer writer(out);
        by_hand::write(writer, record);
        return out.size();
    }

    template <typename Memory>
    static void parse(Record &record, BytesView bytes, Memory &memory)
    {
        by_hand::read(record, {reinterpret_cast<const char *>(bytes.data()), bytes.size()}, memory);
    }

    const bool in_place_;
    Bump &scratch_ = scratch();
    by_hand::Memory<by_hand::FromHeap> heap_;
    by_hand::Memory<by_hand::FromBump> arena_;
    Bytes aside_;
    std::vector<Record> variants_;
    Record decoded_;
};

} // namespace

std::unique_ptr<Contender> make_protozero(const Samples &samples)
{
#define BENCH_TYPE(name)                                                                           \
    if (samples.workload.type == #name)                                                            \
        return std::make_unique<Driver<Protozero<tarn_ethsw_mgmt_##name>>>("protozero", samples);
    BENCH_FOR_EACH_TYPE(BENCH_TYPE)
#undef BENCH_TYPE
    return nullptr;
}

} // namespace bench
