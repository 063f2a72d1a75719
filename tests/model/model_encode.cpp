// SPDX-License-Identifier: MIT
// Encoding told plainly: each nested record is measured by a call without a buffer and then written
// by a second call, and every byte is tested against the capacity on its own.

#include "tests/model/model_codec.hpp"
#include "tests/model/record_memory.hpp"

namespace model {

namespace {

class Encoder {
public:
    Encoder(const RecordType &type, const uint8_t *record, const EncodeArguments &arguments)
        : type_(type), record_(record), out_(arguments)
    {
        if (out_.segment_count && out_.segments)
            segment_capacity_ = *out_.segment_count;
    }

    uint32_t run()
    {
        for (size_t i = 0; i < type_.members.size(); ++i)
            put_member(type_.members[i], flag(type_, record_, i));
        if (!out_.segment_count)
            return offset_;
        if (segment_start_ < offset_)
            add_segment(out_.buffer, segment_start_, offset_ - segment_start_);
        *out_.segment_count = segments_;
        return offset_;
    }

private:
    void put_member(const Member &member, bool present)
    {
        const uint8_t *at = record_ + member.offset;
        if (member.kind == Kind::record) {
            put_record(member, at, present);
            return;
        }
        if (!present)
            return;
        switch (member.kind) {
        case Kind::uint32:
            put_tag(member, 0);
            put_varint(load<uint32_t>(at));
            break;
        case Kind::uint64:
            put_tag(member, 0);
            put_varint(load<uint64_t>(at));
            break;
        case Kind::boolean:
            put_tag(member, 0);
            put_varint(*at);
            break;
        case Kind::string:
            if (load_pointer(at))
                put_string(member, load_pointer(at));
            break;
        case Kind::bytes:
            put_bytes(member, load_pointer(at), load_count(at));
            break;
        default:
            put_elements(member, load_pointer(at), load_count(at));
            break;
        }
    }

    void put_elements(const Member &member, const uint8_t *elements, uint32_t count)
    {
        if (member.kind == Kind::strings && !elements)
            return;
        for (uint32_t i = 0; i < count; ++i) {
            const uint8_t *element = elements + size_t(i) * element_size(member);
            if (member.kind == Kind::uint32s) {
                put_tag(member, 0);
                put_varint(load<uint32_t>(element));
            } else if (member.kind == Kind::strings) {
                put_string(member, load_pointer(element));
            } else {
                put_record(member, element, true);
            }
        }
    }

    void put_byte(uint64_t value)
    {
        if (offset_ < out_.capacity)
            out_.buffer[offset_] = uint8_t(value);
        ++offset_;
    }

    void put_varint(uint64_t value)
    {
        for (; value > 127; value >>= 7)
            put_byte(value | 0x80);
        put_byte(value);
    }

    void put_tag(const Member &member, uint32_t wire_type)
    {
        put_varint(member.number << 3 | wire_type);
    }

    void put_string(const Member &member, const uint8_t *text)
    {
        const auto length = uint32_t(std::strlen(reinterpret_cast<const char *>(text)));
        put_tag(member, 2);
        put_varint(length);
        const uint32_t end = offset_ + length;
        if (end <= out_.capacity && end >= offset_ && length)
            std::memcpy(out_.buffer + offset_, text, length);
        offset_ = end;
    }

    void put_bytes(const Member &member, const uint8_t *data, uint32_t length)
    {
        put_tag(member, 2);
        put_varint(length);
        if (out_.flags & kBytesInPlace) {
            if (!out_.segment_count || length == 0)
                return;
            add_segment(out_.buffer, segment_start_, offset_ - segment_start_);
            segment_start_ = offset_;
            add_segment(data, 0, length);
            return;
        }
        const uint32_t end = offset_ + length;
        if (end <= offset_)
            return;
        if (end <= out_.capacity)
            std::memcpy(out_.buffer + offset_, data, length);
        offset_ = end;
    }

    void put_record(const Member &member, const uint8_t *child, bool present)
    {
        EncodeArguments inner = {nullptr, 0, nullptr, nullptr, out_.flags};
        const uint32_t length = Encoder(*member.child, child, inner).run();
        if (length == 0 && !present)
            return;
        put_tag(member, 2);
        put_varint(length);
        if (offset_ < out_.capacity) {
            inner.buffer = out_.buffer + offset_;
            inner.capacity = out_.capacity - offset_;
        }
        uint32_t count = 0;
        if (out_.segment_count && segments_ < segment_capacity_) {
            inner.segments = out_.segments + segments_;
            count = segment_capacity_ - segments_;
        }
        inner.segment_count = &count;
        Encoder(*member.child, child, inner).run();
        offset_ += length;
        segments_ += count;
    }

    void add_segment(const uint8_t *from, uint32_t start, uint32_t length)
    {
        if (segments_ < segment_capacity_) {
            // By number, since a piece of no buffer at all has an address as well.
            const uintptr_t address = reinterpret_cast<uintptr_t>(from) + start;
            out_.segments[segments_].data = reinterpret_cast<const uint8_t *>(address);
            out_.segments[segments_].length = length;
        }
        ++segments_;
    }

    const RecordType &type_;
    const uint8_t *record_;
    const EncodeArguments out_;
    uint32_t segment_capacity_ = 0;
    uint32_t offset_ = 0;
    uint32_t segment_start_ = 0;
    uint32_t segments_ = 0;
};

} // namespace

uint32_t ModelCodec::encode(const RecordType &type, const uint8_t *record,
                            const EncodeArguments &arguments)
{
    return Encoder(type, record, arguments).run();
}

} // namespace model
