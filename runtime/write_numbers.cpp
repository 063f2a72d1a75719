// SPDX-License-Identifier: MIT
// Numbers, alone, in runs and in lists: four at a time where they are sure to fit.
#include "runtime/member.hpp"
#include "runtime/write.hpp"
#include "wire/fast.hpp"
#include "wire/together.hpp"
#include "wire/varint.hpp"

#include <type_traits>

namespace tarn {

namespace {

// What a scalar is on the wire, and how long its field can be.
template <typename Member>
using Scalar = std::conditional_t<sizeof(Member) == sizeof(uint64_t), uint64_t, uint32_t>;

template <typename Member>
constexpr uint32_t kLongestField = 2 + wire_varint_size(~Scalar<Member>{0});

uint32_t put_varint(uint32_t offset, Encoder &out, uint32_t value)
{
    return out.put_varint32(offset, value);
}

uint32_t put_varint(uint32_t offset, Encoder &out, uint64_t value)
{
    return out.put_varint64(offset, value);
}

// Any field anywhere: whole where it fits, else byte by byte as far as it does.
template <typename Value>
uint32_t put_field(uint32_t offset, Encoder &out, Value value, uint32_t tag)
{
    if (out.room(offset) >= wire_varint_size(value, tag_size(tag)))
        return out.offset_of(store_varint(store_tag(out.at(offset), tag), value));
    if (out.is_trying())
        return out.give_up();
    return put_varint(out.put_tag(offset, tag), out, value);
}

// The same, quicker where there is room for any.
template <typename Value>
uint32_t write_scalar(uint32_t offset, Encoder &out, Value value, uint32_t tag)
{
    if (out.is_roomy(offset))
        return out.offset_of(store_varint(store_tag(out.at(offset), tag), value));
    return put_field(offset, out, value, tag);
}

// In all that follows, tags are `step` apart: neighbouring members differ in theirs, elements of a
// list do not.

// Writes the present ones of up to 32 members.
template <typename Member>
[[gnu::noinline]] TARN_CALL uint32_t write_each(uint32_t offset, Encoder &out,
                                                const Member *members, uint32_t present,
                                                uint32_t tag, uint32_t step)
{
    const uint32_t most = 32 - static_cast<uint32_t>(__builtin_clz(present | 1));
    if (out.room(offset) >= most * kLongestField<Member>) {
        uint8_t *to = out.at(offset);
        for (; present; present >>= 1, members++, tag += step)
            if (present & 1)
                to = store_varint(store_tag(to, tag), Scalar<Member>{*members});
        return out.offset_of(to);
    }
    for (; present; present >>= 1, members++, tag += step)
        if (present & 1)
            offset = put_field(offset, out, Scalar<Member>{*members}, tag);
    return offset;
}

// What follows stores groups of up to four members that end at `end` at the latest, and returns the
// place behind them. Null where it cannot: then nothing is stored.

// All of a group of two or more, whatever the sizes of its values.
template <typename Value>
TARN_INLINE inline uint8_t *store_together(uint8_t *to, const uint8_t *end, const Value *values,
                                           uint32_t count, uint32_t tag, uint32_t step)
{
    Value all = 0;
#pragma GCC unroll 4
    for (uint32_t i = 0; i < count; i++)
        all |= values[i];
    if (all < 0x80 && tag + (count - 1) * step < 0x80)
        return to + size_t{2} * count > end ? nullptr : store_small(to, values, count, tag, step);
    if (all > kMostTogether)
        return nullptr;
    const Varints<Value> varints(values, count);
    uint8_t *places[4];
    uint8_t *place = to;
#pragma GCC unroll 4
    for (uint32_t i = 0; i < count; i++) {
        places[i] = place;
        place += tag_size(tag + i * step) + varints.size(i);
    }
    if (place + kStored > end)
        return nullptr;
    uint64_t behind;
    memcpy(&behind, place, kStored);
#pragma GCC unroll 4
    for (uint32_t i = 0; i < count; i++) {
        const uint32_t tag_here = tag + i * step;
        store_2(places[i], tag_bytes(tag_here));
        varints.store(places[i] + tag_size(tag_here), i);
    }
    memcpy(place, &behind, kStored);
    return place;
}

// The present ones, each by code of its own: what comes where is easier to predict so.
template <uint32_t tag_size, typename Member>
TARN_INLINE inline uint8_t *store_one_by_one(uint8_t *to, const Member *members, uint32_t present,
                                             uint32_t tag, uint32_t step)
{
#pragma GCC unroll 4
    for (uint32_t i = 0; i < 4; i++) {
        if (!(present & 1u << i))
            continue;
        if constexpr (tag_size == 1)
            *to = static_cast<uint8_t>(tag + i * step);
        else
            store_tag(to, tag + i * step);
        to = store_varint(to + tag_size, members[i]);
    }
    return to;
}

template <typename Member>
TARN_INLINE inline uint8_t *store_group(uint8_t *to, const uint8_t *end, const Member *members,
                                        uint32_t present, uint32_t tag, uint32_t step)
{
    if constexpr (kIsSmall) {
        return nullptr;
    } else if constexpr (kTogether<Member>) {
        if (present == 0xF)
            return store_together(to, end, members, 4, tag, step);
        if (present == 0x7)
            return store_together(to, end, members, 3, tag, step);
        if (present == 0x3)
            return store_together(to, end, members, 2, tag, step);
        if (present == 0x1 && to + kLongestField<Member> <= end)
            return store_varint(store_tag(to, tag), *members);
        return nullptr;
    } else {
        constexpr uint32_t kLongest = 4 * kLongestField<Member>;
        if (to + kLongest > end)
            return nullptr;
        if (tag + 3 * step < 0x80)
            return store_one_by_one<1>(to, members, present, tag, step);
        return tag >= 0x80 ? store_one_by_one<2>(to, members, present, tag, step) : nullptr;
    }
}

template <typename Member>
TARN_INLINE inline uint32_t write_groups(uint32_t offset, Encoder &out, const Member *members,
                                         uint32_t present, uint32_t tag, uint32_t step)
{
    while (present) {
        if (const uint32_t room = out.room(offset)) {
            uint8_t *to = out.at(offset);
            const uint8_t *const end = to + room;
            while (uint8_t *const next = store_group(to, end, members, present & 0xF, tag, step)) {
                to = next;
                present >>= 4;
                if (!present)
                    return out.offset_of(to);
                members += 4;
                tag += 4 * step;
            }
            offset = out.offset_of(to);
        }
        offset = write_each(offset, out, members, present & 0xF, tag, step);
        present >>= 4;
        members += 4;
        tag += 4 * step;
    }
    return offset;
}

} // namespace

uint32_t write_uint32s(uint32_t offset, Encoder &out, const uint32_t *members, uint32_t present,
                       uint32_t tag)
{
    return write_groups(offset, out, members, present, tag, kTagStep);
}

uint32_t write_uint64s(uint32_t offset, Encoder &out, const uint64_t *members, uint32_t present,
                       uint32_t tag)
{
    return write_groups(offset, out, members, present, tag, kTagStep);
}

// The byte goes out as it is: 2 and more are possible when the caller has put them there.
uint32_t write_bools(uint32_t offset, Encoder &out, const uint8_t *members, uint32_t present,
                     uint32_t tag)
{
    return write_each(offset, out, members, present, tag, kTagStep);
}

uint32_t put_uint32(uint32_t offset, Encoder &out, uint32_t value, uint32_t tag)
{
    return write_scalar(offset, out, value, tag);
}

uint32_t put_uint64(uint32_t offset, Encoder &out, const uint64_t *value, uint32_t tag)
{
    return write_scalar(offset, out, *value, tag);
}

uint32_t write_uint32_list(uint32_t offset, Encoder &out, const uint8_t *member, uint32_t tag)
{
    uint32_t count = load_count(member);
    const uint32_t *elements = static_cast<const uint32_t *>(load_pointer(member));
    while (count && !out.has_given_up()) {
        if constexpr (!kIsSmall)
            for (; count >= kSmallElements && tag < 0x80 &&
                   out.room(offset) >= kSmallElements * kOneSmall &&
                   store_small_elements(out.at(offset), elements, tag);
                 count -= kSmallElements) {
                elements += kSmallElements;
                offset += kSmallElements * kOneSmall;
            }
        const uint32_t some = count < 32 ? count : 32;
        const uint32_t all = static_cast<uint32_t>((uint64_t{1} << some) - 1);
        offset = kTogether<uint32_t> ? write_groups(offset, out, elements, all, tag, 0)
                                     : write_each(offset, out, elements, all, tag, 0);
        elements += some;
        count -= some;
    }
    return offset;
}

} // namespace tarn
