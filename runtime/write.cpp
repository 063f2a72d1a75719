// SPDX-License-Identifier: MIT
#include "runtime/write.hpp"

#include "runtime/member.hpp"
#include "wire/text.hpp"
#include "wire/varint.hpp"

namespace tarn {

namespace {

// The prefix says what measuring found: byte strings that stay in place are not in it.
void write_nested(Encoder &out, const uint8_t *record, uint32_t length, uint32_t tag,
                  WriteRecord write)
{
    out.put_tag(tag);
    out.put_varint32(length);
    Encoder inner = out.nested();
    write(inner, record);
    out.step_over(length, inner.segment_count());
}

// One body for the three kinds of scalars: they differ in the width of the member.
template <typename Member>
void write_scalars(Encoder &out, const Member *members, uint32_t present, uint32_t tag)
{
    for (; present; present >>= 1, members++, tag += kTagStep) {
        if (!(present & 1))
            continue;
        out.put_tag(tag);
        if constexpr (sizeof(Member) == sizeof(uint64_t))
            out.put_varint64(*members);
        else
            out.put_varint32(*members);
    }
}

} // namespace

void write_uint32s(Encoder &out, const uint32_t *members, uint32_t present, uint32_t tag)
{
    write_scalars(out, members, present, tag);
}

void write_uint64s(Encoder &out, const uint64_t *members, uint32_t present, uint32_t tag)
{
    write_scalars(out, members, present, tag);
}

// The byte goes out as it is: 2 and more are possible when the caller has put them there.
void write_bools(Encoder &out, const uint8_t *members, uint32_t present, uint32_t tag)
{
    write_scalars(out, members, present, tag);
}

void write_string(Encoder &out, const uint8_t *member, uint32_t present, uint32_t tag)
{
    const char *text = static_cast<const char *>(load_pointer(member));
    if (!present || !text)
        return;
    out.put_tag(tag);
    out.put_text(text, wire_strlen(text));
}

void write_bytes(Encoder &out, const uint8_t *member, uint32_t present, uint32_t tag)
{
    if (!present)
        return;
    out.put_tag(tag);
    out.put_bytes(static_cast<const uint8_t *>(load_pointer(member)), load_count(member));
}

// Whether an embedded record is written depends on what it holds as much as on its flag.
void write_message(Encoder &out, const uint8_t *member, uint32_t present, uint32_t tag,
                   NestedEncoding nested)
{
    const uint32_t length = nested.measure(member, out.flags());
    if (present || length)
        write_nested(out, member, length, tag, nested.write);
}

void write_uint32_list(Encoder &out, const uint8_t *member, uint32_t present, uint32_t tag)
{
    if (!present)
        return;
    const uint32_t count = load_count(member);
    const uint32_t *elements = static_cast<const uint32_t *>(load_pointer(member));
    for (uint32_t i = 0; i < count; i++) {
        out.put_tag(tag);
        out.put_varint32(elements[i]);
    }
}

void write_string_list(Encoder &out, const uint8_t *member, uint32_t present, uint32_t tag)
{
    const char *const *elements = static_cast<const char *const *>(load_pointer(member));
    if (!present || !elements)
        return;
    const uint32_t count = load_count(member);
    for (uint32_t i = 0; i < count; i++) {
        out.put_tag(tag);
        out.put_text(elements[i], wire_strlen(elements[i]));
    }
}

void write_message_list(Encoder &out, const uint8_t *member, uint32_t present, uint32_t tag,
                        uint32_t element_size, NestedEncoding nested)
{
    if (!present)
        return;
    const uint32_t count = load_count(member);
    const uint8_t *element = static_cast<const uint8_t *>(load_pointer(member));
    for (uint32_t i = 0; i < count; i++, element += element_size)
        write_nested(out, element, nested.measure(element, out.flags()), tag, nested.write);
}

} // namespace tarn
