// SPDX-License-Identifier: MIT
#include "tools/core/schema.hpp"

#include <algorithm>
#include <set>

namespace inspect {

namespace {

std::string_view without_prefix(std::string_view text, std::string_view prefix)
{
    return text.starts_with(prefix) ? text.substr(prefix.size()) : text;
}

void place(const RecordType &type, std::set<const RecordType *> &seen,
           std::vector<const RecordType *> &ordered)
{
    if (!seen.insert(&type).second)
        return;
    for (const Member &member : type.members)
        if (member.child)
            place(*member.child, seen, ordered);
    ordered.push_back(&type);
}

} // namespace

bool is_scalar(Kind kind)
{
    return kind == Kind::uint32 || kind == Kind::uint64 || kind == Kind::boolean;
}

bool is_list(Kind kind)
{
    return kind == Kind::repeated_uint32 || kind == Kind::repeated_string ||
           kind == Kind::repeated_message;
}

bool is_nested(Kind kind)
{
    return kind == Kind::message || kind == Kind::repeated_message;
}

bool is_pair(Kind kind)
{
    return kind == Kind::bytes || is_list(kind);
}

std::string_view kind_words(Kind kind)
{
    static constexpr std::string_view words[] = {
        "uint32",          "uint64",          "bool",
        "string",          "bytes",           "message",
        "repeated uint32", "repeated string", "repeated message",
    };
    return words[static_cast<size_t>(kind)];
}

std::string Member::kind_and_type() const
{
    std::string words(kind_words(kind));
    if (child)
        words.append(" ").append(child->short_name());
    return words;
}

uint32_t Member::wire_type() const
{
    return is_scalar(kind) || kind == Kind::repeated_uint32 ? 0 : 2;
}

std::string_view RecordType::message_name() const
{
    return without_prefix(name, "tarn_");
}

std::string_view RecordType::short_name() const
{
    return without_prefix(message_name(), "ethsw_mgmt_");
}

const Member *RecordType::member_of_number(uint32_t number) const
{
    for (const Member &member : members)
        if (member.number == number)
            return &member;
    return nullptr;
}

const Member *RecordType::member_of_name(std::string_view wanted) const
{
    for (const Member &member : members)
        if (member.name == wanted || member.json_name == wanted)
            return &member;
    return nullptr;
}

const std::vector<const RecordType *> &own_types()
{
    static const std::vector<const RecordType *> types = [] {
        std::vector<const RecordType *> own;
        for (const RecordType &type : every_type())
            if (!type.is_foreign)
                own.push_back(&type);
        std::ranges::sort(own, {}, &RecordType::name);
        return own;
    }();
    return types;
}

const RecordType *find_type(std::string_view name)
{
    const std::string_view message = without_prefix(name, "tarn.");
    for (const RecordType &type : every_type())
        if (type.name == name || type.message_name() == message || type.short_name() == name)
            return &type;
    return nullptr;
}

std::vector<Embedder> embedders(const RecordType &type)
{
    std::vector<Embedder> found;
    for (const RecordType &other : every_type())
        for (const Member &member : other.members)
            if (member.child == &type)
                found.push_back({&other, &member});
    return found;
}

std::vector<const RecordType *> requests(const RecordType &type)
{
    std::vector<const RecordType *> found;
    for (const RecordType *other : own_types())
        if (other->answer == &type)
            found.push_back(other);
    return found;
}

std::vector<const RecordType *> with_nested(const RecordType &type)
{
    std::set<const RecordType *> seen;
    std::vector<const RecordType *> ordered;
    place(type, seen, ordered);
    return ordered;
}

} // namespace inspect
