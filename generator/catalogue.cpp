// SPDX-License-Identifier: MIT
#include "generator/catalogue.hpp"

#include <google/protobuf/descriptor.pb.h>

#include <algorithm>
#include <cctype>
#include <functional>
#include <set>
#include <stdexcept>

namespace generator {

namespace pb = google::protobuf;

namespace {

// What the runtime can describe: a field number is a byte, the presence flags fit into 64 bits.
constexpr int kHighestNumber = 255;
constexpr int kMostMembers = 64;

[[noreturn]] void refuse(const pb::FieldDescriptor &field, const std::string &why)
{
    throw std::runtime_error(field.full_name() + ": " + why);
}

std::string c_name(const pb::Descriptor &message)
{
    std::string name = message.full_name();
    std::replace(name.begin(), name.end(), '.', '_');
    return name;
}

// Comments speak of messages by their names in the schema; readers of C know them by their C names.
std::string with_c_names(const std::string &text, const pb::FileDescriptor &file)
{
    std::string out;
    for (size_t at = 0; at < text.size();) {
        size_t end = at;
        while (end < text.size() &&
               (std::isalnum(static_cast<unsigned char>(text[end])) != 0 || text[end] == '_'))
            end++;
        if (end == at) {
            out += text[at++];
            continue;
        }
        const std::string word = text.substr(at, end - at);
        const pb::Descriptor *message =
            file.pool()->FindMessageTypeByName(file.package() + "." + word);
        out += message ? c_name(*message) : word;
        at = end;
    }
    return out;
}

std::string one_paragraph(const std::string &text)
{
    std::string out;
    for (const char c : text) {
        const bool blank = std::isspace(static_cast<unsigned char>(c)) != 0;
        if (!blank)
            out += c;
        else if (!out.empty() && out.back() != ' ')
            out += ' ';
    }
    while (!out.empty() && out.back() == ' ')
        out.pop_back();
    return out;
}

template <typename Descriptor>
std::string comment_of(const Descriptor &descriptor)
{
    pb::SourceLocation location;
    if (!descriptor.GetSourceLocation(&location))
        return {};
    const std::string &text =
        location.leading_comments.empty() ? location.trailing_comments : location.leading_comments;
    return with_c_names(one_paragraph(text), *descriptor.file());
}

// The paragraph above `syntax`, behind the licence line.
std::string file_comment(const pb::FileDescriptor &file)
{
    pb::SourceLocation location;
    if (!file.GetSourceLocation({pb::FileDescriptorProto::kSyntaxFieldNumber}, &location) ||
        location.leading_detached_comments.empty())
        throw std::runtime_error(file.name() + ": every file says above `syntax` what it holds");
    return one_paragraph(location.leading_detached_comments.back());
}

Kind kind_of(const pb::FieldDescriptor &field)
{
    const bool repeated = field.is_repeated();
    if (field.is_required())
        refuse(field, "required members do not exist here; make it optional");
    if (field.containing_oneof())
        refuse(field, "there is no oneof: every member has a presence flag of its own");
    if (field.is_packed())
        refuse(field, "lists are never packed");
    switch (field.type()) {
    case pb::FieldDescriptor::TYPE_UINT32:
        return repeated ? Kind::repeated_uint32 : Kind::uint32;
    case pb::FieldDescriptor::TYPE_STRING:
        return repeated ? Kind::repeated_string : Kind::string;
    case pb::FieldDescriptor::TYPE_MESSAGE:
        return repeated ? Kind::repeated_message : Kind::message;
    case pb::FieldDescriptor::TYPE_UINT64:
        if (!repeated)
            return Kind::uint64;
        break;
    case pb::FieldDescriptor::TYPE_BOOL:
        if (!repeated)
            return Kind::boolean;
        break;
    case pb::FieldDescriptor::TYPE_BYTES:
        if (!repeated)
            return Kind::bytes;
        break;
    default:
        break;
    }
    refuse(field,
           std::string("no such kind: ") + (repeated ? "repeated " : "") + field.type_name());
}

Member read_member(const pb::FieldDescriptor &field)
{
    Member member;
    member.kind = kind_of(field);
    member.name = field.name();
    member.number = field.number();
    member.comment = comment_of(field);
    if (is_pair(member.kind))
        member.second_name = member.name + (member.kind == Kind::bytes ? "_length" : "_count");
    if (is_nested(member.kind))
        member.child = c_name(*field.message_type());
    if (member.number > kHighestNumber)
        refuse(field, "field numbers end at " + std::to_string(kHighestNumber));
    if (member.comment.empty())
        refuse(field, "every member has a comment");
    return member;
}

void check_names(const Record &record)
{
    std::set<std::string> names;
    for (const Member &member : record.members)
        for (const std::string &name : {member.name, member.second_name, "has_" + member.name})
            if (!name.empty() && !names.insert(name).second)
                throw std::runtime_error(record.name + ": two members would be called " + name);
}

Record read_record(const pb::Descriptor &message)
{
    Record record;
    record.name = c_name(message);
    record.comment = comment_of(message);
    record.descriptor = &message;
    if (record.comment.empty())
        throw std::runtime_error(record.name + ": every message has a comment");
    if (message.nested_type_count() > 0 || message.enum_type_count() > 0)
        throw std::runtime_error(record.name +
                                 ": no maps, and no types declared inside of messages");
    if (message.field_count() > kMostMembers)
        throw std::runtime_error(record.name + ": a record has at most " +
                                 std::to_string(kMostMembers) + " members");
    for (int i = 0; i < message.field_count(); i++) {
        const pb::FieldDescriptor &field = *message.field(i);
        if (i > 0 && field.number() <= message.field(i - 1)->number())
            refuse(field, "members stand in the order of their field numbers");
        record.members.push_back(read_member(field));
    }
    check_names(record);
    return record;
}

// In C a structure must be complete before another can hold it. Keeps the order of the schema
// where that allows it.
std::vector<Record> in_order_of_definition(const std::vector<Record> &records)
{
    std::vector<Record> ordered;
    std::set<std::string> placed;
    std::function<void(const Record &)> place = [&](const Record &record) {
        if (!placed.insert(record.name).second)
            return;
        for (const std::string &child : children(record))
            for (const Record &other : records)
                if (other.name == child)
                    place(other);
        ordered.push_back(record);
    };
    for (const Record &record : records)
        place(record);
    return ordered;
}

std::string without_extension(const std::string &name)
{
    return name.substr(0, name.rfind(".proto"));
}

} // namespace

File read_file(const pb::FileDescriptor &file)
{
    File out;
    out.path = without_extension(file.name());
    out.comment = file_comment(file);
    if (file.syntax() != pb::FileDescriptor::SYNTAX_PROTO2)
        throw std::runtime_error(file.name() + ": the schema is proto2");
    for (int i = 0; i < file.dependency_count(); i++)
        out.imports.push_back(without_extension(file.dependency(i)->name()));
    std::vector<Record> records;
    for (int i = 0; i < file.message_type_count(); i++)
        records.push_back(read_record(*file.message_type(i)));
    out.records = in_order_of_definition(records);
    return out;
}

bool is_pair(Kind kind)
{
    return kind == Kind::bytes || kind == Kind::repeated_uint32 || kind == Kind::repeated_string ||
           kind == Kind::repeated_message;
}

bool is_nested(Kind kind)
{
    return kind == Kind::message || kind == Kind::repeated_message;
}

std::string kind_words(const Member &member)
{
    switch (member.kind) {
    case Kind::uint32:
        return "uint32";
    case Kind::uint64:
        return "uint64";
    case Kind::boolean:
        return "bool";
    case Kind::string:
        return "string";
    case Kind::bytes:
        return "bytes";
    case Kind::message:
        return "message " + member.child;
    case Kind::repeated_uint32:
        return "repeated uint32";
    case Kind::repeated_string:
        return "repeated string";
    case Kind::repeated_message:
        return "repeated message " + member.child;
    }
    return {};
}

std::string kind_enumerator(Kind kind)
{
    static const char *const names[] = {
        "uint32",  "uint64",          "boolean",         "string",           "bytes",
        "message", "repeated_uint32", "repeated_string", "repeated_message",
    };
    return names[static_cast<size_t>(kind)];
}

std::string member_type(const Member &member)
{
    switch (member.kind) {
    case Kind::uint32:
        return "uint32_t ";
    case Kind::uint64:
        return "uint64_t ";
    case Kind::boolean:
        return "uint8_t ";
    case Kind::string:
        return "const char *";
    case Kind::bytes:
        return "const uint8_t *";
    case Kind::message:
        return member.child + " ";
    case Kind::repeated_uint32:
        return "uint32_t *";
    case Kind::repeated_string:
        return "const char **";
    case Kind::repeated_message:
        return member.child + " *";
    }
    return {};
}

std::vector<std::string> children(const Record &record)
{
    std::vector<std::string> names;
    for (const Member &member : record.members)
        if (is_nested(member.kind))
            names.push_back(member.child);
    return names;
}

} // namespace generator
