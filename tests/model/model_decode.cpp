// SPDX-License-Identifier: MIT
// Decoding told plainly: one loop over the fields of a record, one case per kind, a counting pass
// before each array.

#include "tests/model/model_codec.hpp"
#include "tests/model/record_memory.hpp"

#include <set>
#include <utility>

namespace model {

namespace {

class Decoder {
public:
    Decoder(const RecordType &type, uint8_t *record, const DecodeArguments &arguments,
            ModelCodec::Sightings &sightings)
        : type_(type), record_(record), in_(arguments), sightings_(sightings)
    {}

    int32_t run()
    {
        initialise(type_, record_);
        while (position_ < in_.length) {
            const uint32_t tag_position = position_;
            uint64_t tag = 0;
            if (int32_t error = read_varint(&tag, 32))
                return error;
            if (int32_t error = read_field(uint32_t(tag)))
                return error;
            if (position_ > tag_position)
                continue;
            sightings_.went_back = true;
            if (was_here_before()) {
                sightings_.endless = true;
                return kMalformed;
            }
        }
        return kOk;
    }

private:
    // A loop that stands again where it stood, with the same pointers set, goes round for ever.
    bool was_here_before()
    {
        uint64_t pointers = 0;
        for (size_t i = 0; i < type_.members.size(); ++i) {
            const Member &member = type_.members[i];
            if (has_pointer(member.kind) && load_pointer(record_ + member.offset))
                pointers |= uint64_t(1) << i;
        }
        return !seen_.insert({position_, pointers}).second;
    }

    // Reads a varint of any length; what lies above `bits` is dropped.
    int32_t read_varint(uint64_t *value, uint32_t bits)
    {
        uint32_t at = position_;
        uint64_t result = 0;
        uint8_t byte;
        uint32_t shift = 0;
        do {
            if (at >= in_.length)
                return kMalformed;
            byte = in_.input[at++];
            if (shift < bits)
                result |= uint64_t(byte & 0x7F) << shift;
            shift = shift < 70 ? shift + 7 : shift;
        } while (byte & 0x80);
        *value = bits == 32 ? uint32_t(result) : result;
        position_ = at;
        return kOk;
    }

    int32_t read_length(uint32_t *length)
    {
        uint64_t value = 0;
        if (int32_t error = read_varint(&value, 32))
            return error;
        *length = uint32_t(value);
        const uint32_t end = position_ + *length;
        return end > in_.length || end < position_ ? kMalformed : kOk;
    }

    int32_t skip(uint32_t wire_type)
    {
        uint64_t value = 0;
        switch (wire_type) {
        case 0:
            return read_varint(&value, 32);
        case 1:
            position_ += 8;
            return kOk;
        case 2:
            if (int32_t error = read_varint(&value, 32))
                return error;
            position_ += uint32_t(value);
            return kOk;
        case 5:
            position_ += 4;
            return kOk;
        default:
            return kBadWireType;
        }
    }

    int32_t read_field(uint32_t tag)
    {
        for (size_t i = 0; i < type_.members.size(); ++i) {
            if (type_.members[i].number != tag >> 3)
                continue;
            if (int32_t error = read_member(type_.members[i], tag & 7))
                return error;
            set_flag(type_, record_, i, true);
            return kOk;
        }
        return skip(tag & 7);
    }

    int32_t read_member(const Member &member, uint32_t wire_type)
    {
        uint8_t *at = record_ + member.offset;
        const bool is_number = member.kind == Kind::uint32 || member.kind == Kind::uint64 ||
                               member.kind == Kind::boolean || member.kind == Kind::uint32s;
        if (wire_type != (is_number ? 0u : 2u))
            return kTypeMismatch;
        switch (member.kind) {
        case Kind::string:
            return read_string(at);
        case Kind::bytes:
            return read_bytes(at);
        case Kind::record:
            return read_record(member, at);
        case Kind::uint32s:
        case Kind::strings:
        case Kind::records:
            return read_run(member, at);
        default:
            return read_number(member.kind, at);
        }
    }

    int32_t read_number(Kind kind, uint8_t *at)
    {
        uint64_t value = 0;
        if (int32_t error = read_varint(&value, kind == Kind::uint64 ? 64 : 32))
            return error;
        if (kind == Kind::uint64)
            store<uint64_t>(at, value);
        else if (kind == Kind::uint32)
            store<uint32_t>(at, uint32_t(value));
        else
            *at = value != 0;
        return kOk;
    }

    int32_t read_string(uint8_t *at)
    {
        if (load_pointer(at))
            return kMalformed;
        if (!in_.allocate)
            return kNoMemory;
        return read_text(at);
    }

    int32_t read_text(uint8_t *at)
    {
        uint32_t length = 0;
        if (int32_t error = read_length(&length))
            return error;
        auto *text = static_cast<uint8_t *>(in_.allocate(length + 1, in_.context));
        if (!text)
            return kNoMemory;
        store_pointer(at, text);
        std::memcpy(text, in_.input + position_, length);
        text[length] = 0;
        position_ += length;
        return kOk;
    }

    int32_t read_bytes(uint8_t *at)
    {
        const bool in_place = in_.flags & kBytesInPlace;
        if (load_pointer(at))
            return kMalformed;
        if (!in_place && !in_.allocate)
            return kNoMemory;
        uint32_t length = 0;
        if (int32_t error = read_length(&length))
            return error;
        const uint8_t *data = in_.input + position_;
        if (!in_place) {
            auto *copy = static_cast<uint8_t *>(in_.allocate(length, in_.context));
            if (!copy)
                return kNoMemory;
            if (length)
                std::memcpy(copy, data, length);
            data = copy;
        }
        store_pointer(at, data);
        store_count(at, length);
        position_ += length;
        return kOk;
    }

    int32_t read_record(const Member &member, uint8_t *at)
    {
        uint32_t length = 0;
        if (int32_t error = read_length(&length))
            return error;
        DecodeArguments inner = in_;
        inner.input = in_.input + position_;
        inner.length = length;
        if (int32_t error = Decoder(*member.child, at, inner, sightings_).run())
            return error;
        position_ += length;
        return kOk;
    }

    // Steps over the elements of one unbroken run; only the field number of a later tag counts.
    int32_t count_run(const Member &member, uint32_t *count)
    {
        *count = 0;
        for (;;) {
            uint64_t value = 0;
            uint32_t length = 0;
            if (member.kind == Kind::uint32s) {
                if (int32_t error = read_varint(&value, 32))
                    return error;
            } else if (int32_t error = read_length(&length)) {
                return error;
            }
            position_ += length;
            ++*count;
            if (position_ == in_.length)
                return kOk;
            if (int32_t error = read_varint(&value, 32))
                return error;
            if (value >> 3 != member.number)
                return kOk;
        }
    }

    int32_t read_run(const Member &member, uint8_t *at)
    {
        if (load_pointer(at))
            return kMalformed;
        if (!in_.allocate)
            return kNoMemory;
        const uint32_t start = position_;
        uint32_t count = 0;
        if (int32_t error = count_run(member, &count))
            return error;
        position_ = start;
        const uint64_t size = uint64_t(count) * element_size(member);
        if (size > UINT32_MAX)
            return kNoMemory;
        auto *elements = static_cast<uint8_t *>(in_.allocate(uint32_t(size), in_.context));
        if (!elements)
            return kNoMemory;
        if (member.kind != Kind::uint32s)
            std::memset(elements, 0, size_t(size));
        store_pointer(at, elements);
        store_count(at, count);
        for (uint32_t i = 0; i < count; ++i)
            if (int32_t error = read_element(member, elements, i))
                return error;
        return kOk;
    }

    int32_t read_element(const Member &member, uint8_t *elements, uint32_t index)
    {
        uint8_t *element = elements + size_t(index) * element_size(member);
        uint64_t tag = 0;
        if (index > 0)
            if (int32_t error = read_varint(&tag, 32))
                return error;
        if (member.kind == Kind::uint32s)
            return read_number(Kind::uint32, element);
        if (member.kind == Kind::strings)
            return read_text(element);
        return read_record(member, element);
    }

    const RecordType &type_;
    uint8_t *record_;
    const DecodeArguments in_;
    ModelCodec::Sightings &sightings_;
    uint32_t position_ = 0;
    std::set<std::pair<uint32_t, uint64_t>> seen_;
};

} // namespace

int32_t ModelCodec::decode(const RecordType &type, uint8_t *record,
                           const DecodeArguments &arguments)
{
    sightings_ = {};
    return Decoder(type, record, arguments, sightings_).run();
}

} // namespace model
