// SPDX-License-Identifier: MIT
#include "tests/catalogue/referee.hpp"

#include "tests/catalogue/vectors.hpp"
#include "tests/support/undefined.hpp"

#include <google/protobuf/compiler/importer.h>
#include <google/protobuf/dynamic_message.h>
#include <stdexcept>

namespace catalogue {

namespace {

namespace pb = google::protobuf;

constexpr const char *kFiles[] = {
    "foreign/foreign.proto",           "ethsw_mgmt/switch.proto", "ethsw_mgmt/forwarding.proto",
    "ethsw_mgmt/classification.proto", "ethsw_mgmt/queue.proto",  "ethsw_mgmt/hardware.proto",
    "ethsw_mgmt/diagnostics.proto",    "ethsw_mgmt/sdr.proto",    "ethsw_mgmt/integrity.proto",
};

class Complaints : public pb::compiler::MultiFileErrorCollector {
public:
    void AddError(const std::string &file, int line, int, const std::string &message) override
    {
        text += file + ":" + std::to_string(line + 1) + ": " + message + "\n";
    }

    std::string text;
};

// "tarn_x" is message tarn.x.
std::string message_name(std::string name)
{
    name[name.find('_')] = '.';
    return name;
}

bool is_of_kind(const pb::FieldDescriptor &field, Kind kind)
{
    const auto is = [&](pb::FieldDescriptor::Type type, bool repeated) {
        return field.type() == type && field.is_repeated() == repeated && !field.is_packed();
    };
    switch (kind) {
    case Kind::uint32:
        return is(pb::FieldDescriptor::TYPE_UINT32, false);
    case Kind::uint64:
        return is(pb::FieldDescriptor::TYPE_UINT64, false);
    case Kind::boolean:
        return is(pb::FieldDescriptor::TYPE_BOOL, false);
    case Kind::string:
        return is(pb::FieldDescriptor::TYPE_STRING, false);
    case Kind::bytes:
        return is(pb::FieldDescriptor::TYPE_BYTES, false);
    case Kind::message:
        return is(pb::FieldDescriptor::TYPE_MESSAGE, false);
    case Kind::repeated_uint32:
        return is(pb::FieldDescriptor::TYPE_UINT32, true);
    case Kind::repeated_string:
        return is(pb::FieldDescriptor::TYPE_STRING, true);
    case Kind::repeated_message:
        return is(pb::FieldDescriptor::TYPE_MESSAGE, true);
    }
    return false;
}

void fill(pb::Message &message, const Content &content);

void put(pb::Message &message, const pb::FieldDescriptor *field, Kind kind, const Value &value)
{
    const pb::Reflection &reflection = *message.GetReflection();
    switch (kind) {
    case Kind::uint32:
        reflection.SetUInt32(&message, field, static_cast<uint32_t>(value.number));
        break;
    case Kind::uint64:
        reflection.SetUInt64(&message, field, value.number);
        break;
    case Kind::boolean:
        reflection.SetBool(&message, field, value.number != 0);
        break;
    case Kind::string:
    case Kind::bytes:
        reflection.SetString(&message, field, value.text);
        break;
    case Kind::message:
        fill(*reflection.MutableMessage(&message, field), value.records[0]);
        break;
    case Kind::repeated_uint32:
        for (const uint32_t number : value.numbers)
            reflection.AddUInt32(&message, field, number);
        break;
    case Kind::repeated_string:
        for (const std::string &text : value.texts)
            reflection.AddString(&message, field, text);
        break;
    case Kind::repeated_message:
        for (const Content &record : value.records)
            fill(*reflection.AddMessage(&message, field), record);
        break;
    }
}

// By position, not by number: the numbers have to come from the .proto files alone.
void fill(pb::Message &message, const Content &content)
{
    for (size_t i = 0; i < content.values.size(); i++)
        if (content.values[i])
            put(message, message.GetDescriptor()->field(static_cast<int>(i)),
                content.type->members[i].kind, *content.values[i]);
}

} // namespace

struct Referee::Schema {
    Schema() : importer(&tree, &complaints) { tree.MapPath("", TARN_SOURCE_DIR); }

    const pb::Descriptor &message(const RecordType &type) const
    {
        const pb::Descriptor *found =
            importer.pool()->FindMessageTypeByName(message_name(type.name));
        if (!found)
            throw std::runtime_error("no message for " + std::string(type.name));
        return *found;
    }

    pb::compiler::DiskSourceTree tree;
    Complaints complaints;
    pb::compiler::Importer importer;
    pb::DynamicMessageFactory factory;
    size_t messages = 0;
};

Referee::Referee() : schema_(std::make_unique<Schema>())
{
    [[maybe_unused]] const test::Unwatched unwatched; // protobuf does not tell what it has written
    for (const char *name : kFiles) {
        const pb::FileDescriptor *file = schema_->importer.Import(name);
        if (!file)
            throw std::runtime_error(schema_->complaints.text);
        schema_->messages += static_cast<size_t>(file->message_type_count());
    }
}

Referee::~Referee() = default;

size_t Referee::message_count() const
{
    return schema_->messages;
}

std::string Referee::disagreement(const RecordType &type) const
{
    const pb::Descriptor &message = schema_->message(type);
    if (static_cast<size_t>(message.field_count()) != type.members.size())
        return "has " + std::to_string(message.field_count()) + " fields";
    for (size_t i = 0; i < type.members.size(); i++) {
        const Member &member = type.members[i];
        const pb::FieldDescriptor &field = *message.field(static_cast<int>(i));
        if (field.name() != member.name || field.number() != static_cast<int>(member.number) ||
            !is_of_kind(field, member.kind) || field.is_required())
            return "field " + std::to_string(field.number()) + " is " + field.DebugString();
        if (member.child && field.message_type()->full_name() != message_name(member.child))
            return "field " + std::to_string(field.number()) + " holds another record";
    }
    return "";
}

test::Bytes Referee::encode(const Content &content)
{
    return test::characters(message(content)->SerializeAsString());
}

std::unique_ptr<pb::Message> Referee::message(const RecordType &type)
{
    const pb::Descriptor &descriptor = schema_->message(type);
    return std::unique_ptr<pb::Message>(schema_->factory.GetPrototype(&descriptor)->New());
}

std::unique_ptr<pb::Message> Referee::message(const Content &content)
{
    std::unique_ptr<pb::Message> filled = message(*content.type);
    fill(*filled, content);
    return filled;
}

std::string vectors_text(Referee &referee)
{
    std::string text = vectors_heading();
    for (const Case &test_case : vector_cases())
        text += vector_line(test_case, referee.encode(content_of(test_case))) + "\n";
    return text;
}

} // namespace catalogue
