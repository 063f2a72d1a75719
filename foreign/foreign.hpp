// SPDX-License-Identifier: MIT
// How the runtime handles the record types of the sibling library: it starts them itself, and calls
// that library's operations for the rest, with the arguments that a nested record of its own gets.

#pragma once

#include "foreign/foreign.h"
#include "runtime/codec.hpp"

#include <stddef.h>

namespace [[gnu::visibility("hidden")]] tarn {

// Both initialisers set the members to their defaults and clear the presence flags. They go by the
// layout alone, so that the sibling library's own header may call its members what it likes.
void initialise_eid(void *record);
void initialise_location(void *record);

template <typename Record, auto encode_ext, auto decode_ext, auto duplicate_, auto free_ext,
          auto initialise_>
struct ForeignCodec {
    static constexpr uint32_t size = sizeof(Record);

    static void initialise(void *record) { initialise_(record); }

    static uint32_t measure(const void *record, uint32_t flags)
    {
        return encode_ext(static_cast<const Record *>(record), nullptr, 0, nullptr, nullptr, flags);
    }

    static void write(Encoder &out, const void *record)
    {
        uint32_t segments = out.free_segment_count();
        encode_ext(static_cast<const Record *>(record), out.buffer(), out.capacity(),
                   out.free_segments(), &segments, out.flags());
        out.step_over(0, segments);
    }

    static int32_t decode(void *record, const uint8_t *buf, uint32_t len, wire_alloc_fn alloc_fn,
                          void *alloc_ctx, uint32_t flags)
    {
        return decode_ext(static_cast<Record *>(record), buf, len, alloc_fn, alloc_ctx, flags);
    }

    static int32_t duplicate(void *dst, const void *src, wire_alloc_fn alloc_fn, void *alloc_ctx)
    {
        return duplicate_(static_cast<Record *>(dst), static_cast<const Record *>(src), alloc_fn,
                          alloc_ctx);
    }

    static void release(void *record, wire_free_fn free_fn, void *free_ctx, uint32_t flags)
    {
        free_ext(static_cast<Record *>(record), free_fn, free_ctx, flags);
    }
};

template <>
struct CodecOf<tarn_calv_eid_st> {
    using Type =
        ForeignCodec<tarn_calv_eid_st, tarn_calv_eid_st_encode_ext, tarn_calv_eid_st_decode_ext,
                     tarn_calv_eid_st_duplicate, tarn_calv_eid_st_free_ext, initialise_eid>;
};

template <>
struct CodecOf<tarn_esd_location_info> {
    using Type = ForeignCodec<tarn_esd_location_info, tarn_esd_location_info_encode_ext,
                              tarn_esd_location_info_decode_ext, tarn_esd_location_info_duplicate,
                              tarn_esd_location_info_free_ext, initialise_location>;
};

} // namespace tarn
