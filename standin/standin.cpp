// SPDX-License-Identifier: MIT
// A stand-in for the sibling interface library, so that examples, tests and tools can be linked
// where that library is not at hand. It is not shipped. The field numbers in it are an assumption:
// see foreign/foreign.proto.

#include "foreign/foreign.hpp"

#include <stddef.h>

namespace tarn {

template <>
struct Schema<tarn_calv_eid_st> {
    using Record = tarn_calv_eid_st;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::uint32, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
        field<Kind::uint32, decltype(Record::field_4)>(4, offsetof(Record, field_4)),
        field<Kind::uint32, decltype(Record::field_5)>(5, offsetof(Record, field_5)),
        field<Kind::repeated_uint32, decltype(Record::field_6)>(6, offsetof(Record, field_6)),
    };
};

template <>
struct Schema<tarn_esd_location_info> {
    using Record = tarn_esd_location_info;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::uint32, decltype(Record::field_3)>(3, offsetof(Record, field_3)),
        field<Kind::uint32, decltype(Record::field_4)>(4, offsetof(Record, field_4)),
        field<Kind::uint32, decltype(Record::field_5)>(5, offsetof(Record, field_5)),
        field<Kind::uint32, decltype(Record::field_6)>(6, offsetof(Record, field_6)),
        field<Kind::uint32, decltype(Record::field_7)>(7, offsetof(Record, field_7)),
        field<Kind::uint32, decltype(Record::field_8)>(8, offsetof(Record, field_8)),
    };
};

namespace {

using EidCodec = Codec<layout_of<tarn_calv_eid_st>()>;
using LocationCodec = Codec<layout_of<tarn_esd_location_info>()>;

} // namespace

} // namespace tarn

using namespace tarn;

uint32_t tarn_calv_eid_st_encode_ext(const tarn_calv_eid_st *record, uint8_t *buffer,
                                     uint32_t capacity, WireSegment *segments,
                                     uint32_t *segment_count, uint32_t flags)
{
    return EidCodec::encode(record, buffer, capacity, segments, segment_count, flags);
}

int32_t tarn_calv_eid_st_decode_ext(tarn_calv_eid_st *record, const uint8_t *buf, uint32_t len,
                                    wire_alloc_fn alloc_fn, void *alloc_ctx, uint32_t flags)
{
    return EidCodec::decode(record, buf, len, alloc_fn, alloc_ctx, flags);
}

int32_t tarn_calv_eid_st_duplicate(tarn_calv_eid_st *dst, const tarn_calv_eid_st *src,
                                   wire_alloc_fn alloc_fn, void *alloc_ctx)
{
    return EidCodec::duplicate(dst, src, alloc_fn, alloc_ctx);
}

void tarn_calv_eid_st_free_ext(tarn_calv_eid_st *record, wire_free_fn free_fn, void *free_ctx,
                               uint32_t flags)
{
    EidCodec::release(record, free_fn, free_ctx, flags);
}

uint32_t tarn_esd_location_info_encode_ext(const tarn_esd_location_info *record, uint8_t *buffer,
                                           uint32_t capacity, WireSegment *segments,
                                           uint32_t *segment_count, uint32_t flags)
{
    return LocationCodec::encode(record, buffer, capacity, segments, segment_count, flags);
}

// Members that do not arrive keep defaults that are not zero.
int32_t tarn_esd_location_info_decode_ext(tarn_esd_location_info *record, const uint8_t *buf,
                                          uint32_t len, wire_alloc_fn alloc_fn, void *alloc_ctx,
                                          uint32_t flags)
{
    initialise_location(record);
    Decoder in(buf, len, {alloc_fn, alloc_ctx}, flags);
    LocationCodec::decode_fields(in, record);
    return in.result();
}

int32_t tarn_esd_location_info_duplicate(tarn_esd_location_info *dst,
                                         const tarn_esd_location_info *src, wire_alloc_fn alloc_fn,
                                         void *alloc_ctx)
{
    return LocationCodec::duplicate(dst, src, alloc_fn, alloc_ctx);
}

void tarn_esd_location_info_free_ext(tarn_esd_location_info *record, wire_free_fn free_fn,
                                     void *free_ctx, uint32_t flags)
{
    LocationCodec::release(record, free_fn, free_ctx, flags);
}
