// SPDX-License-Identifier: MIT
// Decoding told plainly: one loop over the fields of a record, one case per kind, a counting pass
// before each array.

#include "tests/model/model_codec.hpp"
#include "tests/model/model_input.hpp"
#include "tests/model/record_memory.hpp"

namespace model {

namespace {

class Decoder {
public:
    Decoder(const RecordType &type, uint8_t *record, const DecodeArguments &arguments, Level level,
            const Patience &patience, Sightings &sightings)
        : type_(type), record_(record), arguments_(arguments),
          in_(arguments.input, arguments.length, sightings), level_(level), patience_(patience),
          sightings_(sightings), course_(type, record, arguments.length, level, patience, sightings)
    {}

    int32_t run()
    {
        initialise(type_, record_);
        while (!in_.is_over()) {
            sightings_.level = level_;
            uint64_t tag = 0;
            int32_t error = in_.read_varint(&tag, 32);
            if (!error)
                error = read_field(uint32_t(tag));
            if (!error && course_.never_ends(in_.position))
                error = kMalformed;
            if (error)
                return error;
        }
        if (!in_.at_end())
            sightings_.reason = Reason::behind_the_end;
        return kOk;
    }

private:
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
        // A landing is not taken for a field on the way.
        const uint32_t from = in_.position;
        const int32_t error = in_.skip(tag & 7);
        if (!error && in_.position > from)
            course_.pass(kUnknownVarint << (tag & 7));
        return error;
    }

    int32_t read_member(const Member &member, uint32_t wire_type)
    {
        uint8_t *at = record_ + member.offset;
        const bool is_number = member.kind == Kind::uint32 || member.kind == Kind::uint64 ||
                               member.kind == Kind::boolean || member.kind == Kind::uint32s;
        if (wire_type != (is_number ? 0u : 2u))
            return in_.fail(kTypeMismatch, Reason::type_mismatch);
        switch (member.kind) {
        case Kind::string:
            return read_string(at);
        case Kind::bytes:
            return read_bytes(at);
        case Kind::record:
            return read_record(member, at, Level::embedded);
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
        course_.pass(kNumber);
        uint64_t value = 0;
        if (int32_t error = in_.read_varint(&value, kind == Kind::uint64 ? 64 : 32))
            return error;
        if (kind == Kind::uint64)
            store<uint64_t>(at, value);
        else if (kind == Kind::uint32)
            store<uint32_t>(at, uint32_t(value));
        else
            *at = value != 0;
        return kOk;
    }

    // A member that points somewhere must not come twice, and most need an allocation callback.
    int32_t check_pointer(const uint8_t *at, bool needs_memory)
    {
        if (load_pointer(at))
            return in_.fail(kMalformed, Reason::met_again);
        if (needs_memory && !arguments_.allocate)
            return in_.fail(kNoMemory, Reason::no_callback);
        return kOk;
    }

    int32_t allocate(uint64_t size, uint8_t **block)
    {
        if (size > UINT32_MAX)
            return in_.fail(kNoMemory, Reason::too_large);
        ++sightings_.calls;
        sightings_.asked_for_nothing |= size == 0;
        *block = static_cast<uint8_t *>(arguments_.allocate(uint32_t(size), arguments_.context));
        return *block ? kOk : in_.fail(kNoMemory, Reason::no_block);
    }

    int32_t read_string(uint8_t *at)
    {
        if (int32_t error = check_pointer(at, true))
            return error;
        return read_text(at);
    }

    int32_t read_text(uint8_t *at)
    {
        uint32_t length = 0;
        if (int32_t error = in_.read_length(&length))
            return error;
        uint8_t *text = nullptr;
        if (int32_t error = allocate(uint64_t(length) + 1, &text))
            return error;
        store_pointer(at, text);
        std::memcpy(text, in_.here(), length);
        text[length] = 0;
        in_.position += length;
        return kOk;
    }

    int32_t read_bytes(uint8_t *at)
    {
        const bool in_place = arguments_.flags & kBytesInPlace;
        if (int32_t error = check_pointer(at, !in_place))
            return error;
        uint32_t length = 0;
        if (int32_t error = in_.read_length(&length))
            return error;
        const uint8_t *data = in_.here();
        if (!in_place) {
            uint8_t *copy = nullptr;
            if (int32_t error = allocate(length, &copy))
                return error;
            if (length)
                std::memcpy(copy, data, length);
            data = copy;
        }
        store_pointer(at, data);
        store_count(at, length);
        in_.position += length;
        return kOk;
    }

    int32_t read_record(const Member &member, uint8_t *at, Level step)
    {
        course_.pass(kRecord);
        uint32_t length = 0;
        if (int32_t error = in_.read_length(&length))
            return error;
        DecodeArguments inner = arguments_;
        inner.input = in_.here();
        inner.length = length;
        const Level level = level_ == Level::outermost ? step : Level::deeper;
        if (int32_t error = Decoder(*member.child, at, inner, level, patience_, sightings_).run())
            return error;
        in_.position += length;
        sightings_.level = level_;
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
                if (int32_t error = in_.read_varint(&value, 32))
                    return error;
            } else if (int32_t error = in_.read_length(&length)) {
                return error;
            }
            in_.position += length;
            ++*count;
            if (in_.at_end())
                return kOk;
            if (int32_t error = in_.read_varint(&value, 32))
                return error;
            if (value >> 3 != member.number)
                return kOk;
        }
    }

    int32_t read_run(const Member &member, uint8_t *at)
    {
        if (int32_t error = check_pointer(at, true))
            return error;
        const uint32_t start = in_.position;
        uint32_t count = 0;
        if (int32_t error = count_run(member, &count))
            return error;
        in_.position = start;
        const uint64_t size = uint64_t(count) * element_size(member);
        uint8_t *elements = nullptr;
        if (int32_t error = allocate(size, &elements))
            return error;
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
            if (int32_t error = in_.read_varint(&tag, 32))
                return error;
        if (member.kind == Kind::uint32s)
            return read_number(Kind::uint32, element);
        if (member.kind == Kind::strings)
            return read_text(element);
        return read_record(member, element, Level::element);
    }

    const RecordType &type_;
    uint8_t *record_;
    const DecodeArguments arguments_;
    Input in_;
    Level level_;
    const Patience &patience_;
    Sightings &sightings_;
    Course course_;
};

} // namespace

int32_t ModelCodec::decode(const RecordType &type, uint8_t *record,
                           const DecodeArguments &arguments)
{
    sightings_ = {};
    return Decoder(type, record, arguments, Level::outermost, patience_, sightings_).run();
}

} // namespace model
