// SPDX-License-Identifier: MIT
// The other library writes its own text; that of records is put together here, member by member.

#include "tests/protobuf/both_sides.hpp"

#include "tests/catalogue/layout.hpp"
#include "tests/catalogue/memory.hpp"
#include "tests/catalogue/operations.hpp"

#include <google/protobuf/text_format.h>
#include <stdexcept>

namespace protobuf {

namespace {

using catalogue::Kind;
using catalogue::load;
using catalogue::Member;
using catalogue::RecordType;

// Of a length or count behind its pointer.
constexpr size_t kSecondHalf = sizeof(void *);

std::string quoted(const std::string &text)
{
    std::string out = "\"";
    for (const char character : text) {
        const auto byte = static_cast<uint8_t>(character);
        if (byte >= ' ' && byte < 0x7F) {
            out += character;
            continue;
        }
        out += '\\';
        for (int shift = 6; shift >= 0; shift -= 3)
            out += static_cast<char>('0' + (byte >> shift & 7));
    }
    return out + "\"";
}

// One value of the member, lying at an address.
std::string value_text(const Member &member, const void *at)
{
    switch (member.kind) {
    case Kind::uint32:
    case Kind::repeated_uint32:
        return ": " + std::to_string(load<uint32_t>(at, 0));
    case Kind::uint64:
        return ": " + std::to_string(load<uint64_t>(at, 0));
    case Kind::boolean:
        return load<uint8_t>(at, 0) ? ": true" : ": false";
    case Kind::string:
    case Kind::repeated_string:
        return ": " + quoted(load<const char *>(at, 0));
    case Kind::bytes:
        return ": " +
               quoted(std::string(load<const char *>(at, 0), load<uint32_t>(at, kSecondHalf)));
    case Kind::message:
    case Kind::repeated_message:
        break;
    }
    const std::string inner = text_of(catalogue::find_type(member.child), at);
    return inner.empty() ? " { }" : " { " + inner + " }";
}

size_t element_size(const Member &member)
{
    switch (member.kind) {
    case Kind::repeated_uint32:
        return sizeof(uint32_t);
    case Kind::repeated_string:
        return sizeof(char *);
    default:
        return catalogue::find_type(member.child).size;
    }
}

void add(std::string &text, const std::string &more)
{
    text += (text.empty() ? "" : " ") + more;
}

} // namespace

const RecordType &type_named(const std::string &name)
{
    return catalogue::find_type("tarn_ethsw_mgmt_" + name);
}

catalogue::Referee &referee()
{
    static catalogue::Referee the_only_one;
    return the_only_one;
}

std::string theirs(const std::string &type, const Bytes &input)
{
    const auto message = referee().message(type_named(type));
    const bool parsed = message->ParseFromArray(input.data(), static_cast<int>(input.size()));
    return parsed ? message->ShortDebugString() : "refused";
}

std::string ours(const std::string &type, const Bytes &input)
{
    catalogue::OwnedRecord record(type_named(type));
    const int32_t result = record.decode(input);
    return result ? name_of(result) : text_of(record.type(), record.record());
}

Bytes written_by_them(const std::string &type, const std::string &text)
{
    const auto message = referee().message(type_named(type));
    if (!google::protobuf::TextFormat::ParseFromString(text, message.get()))
        throw std::runtime_error("not a " + type + ": " + text);
    return test::characters(message->SerializeAsString());
}

std::string name_of(int32_t result)
{
    switch (result) {
    case WIRE_ERR_MALFORMED:
        return "malformed";
    case WIRE_ERR_WIRE_TYPE:
        return "wire type";
    case WIRE_ERR_TYPE_MISMATCH:
        return "type mismatch";
    case WIRE_ERR_NO_MEMORY:
        return "no memory";
    default:
        return "result " + std::to_string(result);
    }
}

std::string text_of(const RecordType &type, const void *record)
{
    std::string text;
    for (const Member &member : type.members) {
        if (!catalogue::flag(type, record, member))
            continue;
        const auto *at = static_cast<const uint8_t *>(record) + member.offset;
        if (!catalogue::is_list(member.kind)) {
            add(text, member.name + value_text(member, at));
            continue;
        }
        const auto *elements = load<const uint8_t *>(at, 0);
        const auto count = load<uint32_t>(at, kSecondHalf);
        for (size_t i = 0; i < count; i++)
            add(text, member.name + value_text(member, elements + i * element_size(member)));
    }
    return text;
}

} // namespace protobuf
