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
    static constexpr bool is_foreign = true;
    static constexpr bool has_foreign = true;
    static constexpr bool is_plain = true; // both types hold nothing but numbers
    static constexpr bool owns_memory = true;
    static constexpr bool defaults_are_zero = false; // or nobody knows here

    // Only that library knows.
    static bool is_surely_empty(const void *) { return false; }

    static void initialise(void *record) { initialise_(record); }

    TARN_CALL static uint32_t measure(const void *record, uint32_t flags)
    {
        return encode_ext(static_cast<const Record *>(record), nullptr, 0, nullptr, nullptr, flags);
    }

    // The last of the pieces is the whole of it, which is for the caller to report, as it is for
    // all records, unless byte strings are pieces, too: then the caller does not look at the
    // length.
    TARN_CALL static uint32_t write(uint32_t offset, Encoder &out, const void *record)
    {
        const uint32_t room = out.room(offset);
        uint32_t segments = out.free_segment_count();
        const uint32_t length =
            encode_ext(static_cast<const Record *>(record), room ? out.at(offset) : nullptr, room,
                       out.free_segments(), &segments, out.flags());
        if (!out.is_trying()) {
            out.count_segments(segments);
            return 0;
        }
        if (length > room)
            return out.give_up();
        if (length)
            out.count_segments(segments - 1);
        return offset + length;
    }

    TARN_CALL static void decode_anew(Decoder &in, void *record)
    {
        const Decoder::Extent message = in.extent();
        const uint32_t length = static_cast<uint32_t>(message.end - message.begin);
        if (int32_t error = decode_ext(static_cast<Record *>(record), message.begin, length,
                                       in.memory().alloc_fn, in.memory().alloc_ctx, in.flags()))
            in.fail(error);
    }

    TARN_CALL static void decode_fields(Decoder &in, void *record) { decode_anew(in, record); }
    TARN_CALL static void decode_element(Decoder &in, void *record) { decode_anew(in, record); }

    // Everything is copied by the library it belongs to.
    static void copy_bytes(void *, const void *) {}

    TARN_CALL static void copy_blocks(Copier &copier, void *dst, const void *src)
    {
        const Memory &memory = copier.memory();
        if (int32_t error = duplicate_(static_cast<Record *>(dst), static_cast<const Record *>(src),
                                       memory.alloc_fn, memory.alloc_ctx))
            copier.fail(error);
    }

    TARN_CALL static void release_blocks(const Releaser &releaser, void *record)
    {
        free_ext(static_cast<Record *>(record), releaser.free_fn, releaser.free_ctx,
                 releaser.flags);
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
