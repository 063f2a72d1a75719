// SPDX-License-Identifier: MIT
// The catalogue as the inspector knows it: names, kinds, offsets on each target, and the words of
// the schema and the header.
#include "generator/output.hpp"

#include <map>

namespace generator {

namespace {

std::string quoted(const std::string &text)
{
    std::string out = "\"";
    for (const char c : text) {
        if (c == '"' || c == '\\')
            out += '\\';
        out += c;
    }
    return out + "\"";
}

// A text of several lines, as it stands.
std::string raw(const std::string &text)
{
    return "R\"text(" + text + ")text\"";
}

// "Answered by <type>" is how the schema says which record answers.
std::string answer_of(const Record &record)
{
    const std::string words = "Answered by ";
    const size_t at = record.comment.find(words);
    if (at == std::string::npos)
        return {};
    const size_t begin = at + words.size();
    return record.comment.substr(begin, record.comment.find('.', begin) - begin);
}

class Tables {
public:
    explicit Tables(const std::vector<const Record *> &records)
    {
        for (size_t i = 0; i < records.size(); i++)
            indices_[records[i]->name] = i;
        for (const Target &target : kTargets)
            layouts_.push_back(layouts(records, target));
    }

    void add(const Record &record, const std::string &file, bool foreign)
    {
        const std::string name = record.name;
        if (!record.members.empty())
            members_ +=
                "constexpr Member members_of_" + name + "[] = {\n" + member_rows(record) + "};\n\n";
        rows_ += "    {" + quoted(name) + ", " + quoted(file) + ", " + quoted(record.comment) +
                 ",\n     " + (record.members.empty() ? "{}" : "members_of_" + name) + ", " +
                 numbers(name, [](const Layout &layout) { return layout.size; }) + ", " +
                 numbers(name, [](const Layout &layout) { return layout.flags; }) + ", " +
                 pointer_to(answer_of(record)) + ", " + (foreign ? "true" : "false") +
                 ",\n     operations<" + name + "_encode_ext, " + name + "_decode_ext, " + name +
                 "_free_ext>(),\n     " + raw(schema_text(record)) + ",\n     " +
                 raw(structure(record)) + "},\n";
    }

    std::string text() const
    {
        return generated_banner("the schema") +
               "#include \"tools/core/operations.hpp\"\n#include \"tools/core/schema.hpp\"\n\n"
               "#include \"ethsw_mgmt/ethsw_mgmt.h\"\n\nnamespace inspect {\n\n"
               "extern const RecordType kRecordTypes[" +
               std::to_string(indices_.size()) + "];\n\nnamespace {\n\n" + members_ +
               "} // namespace\n\nconstinit const RecordType kRecordTypes[] = {\n" + rows_ +
               "};\n\nstd::span<const RecordType> every_type()\n{\n    return kRecordTypes;\n}\n\n"
               "} // namespace inspect\n";
    }

private:
    template <typename Number>
    std::string numbers(const std::string &name, Number number) const
    {
        std::string out;
        for (const Layouts &target : layouts_)
            out += (out.empty() ? "{" : ", ") + std::to_string(number(target.at(name)));
        return out + "}";
    }

    std::string pointer_to(const std::string &name) const
    {
        return name.empty() ? "nullptr"
                            : "&kRecordTypes[" + std::to_string(indices_.at(name)) + "]";
    }

    std::string member_rows(const Record &record) const
    {
        std::string out;
        for (size_t i = 0; i < record.members.size(); i++) {
            const Member &member = record.members[i];
            out += "    {" + quoted(member.name) + ", " +
                   quoted(record.descriptor->field(static_cast<int>(i))->json_name()) + ", " +
                   quoted(member.comment) + ", Kind::" + kind_enumerator(member.kind) + ", " +
                   std::to_string(member.number) + ", " + std::to_string(i) + ", " +
                   numbers(record.name, [i](const Layout &layout) { return layout.offsets[i]; }) +
                   ", " + pointer_to(member.child) + "},\n";
        }
        return out;
    }

    static std::string schema_text(const Record &record)
    {
        std::string out = wrapped(record.comment, "// ");
        out += "message " + record.descriptor->name() + " {\n";
        for (size_t i = 0; i < record.members.size(); i++)
            out += field_text(*record.descriptor->field(static_cast<int>(i)),
                              record.members[i].comment);
        return out + "}\n";
    }

    static std::string default_of(const google::protobuf::FieldDescriptor &field)
    {
        if (!field.has_default_value())
            return {};
        return " [default = " + std::to_string(field.default_value_uint32()) + "]";
    }

    static std::string field_text(const google::protobuf::FieldDescriptor &field,
                                  const std::string &comment)
    {
        const std::string type =
            field.message_type() ? field.message_type()->name() : field.type_name();
        return wrapped(comment, "  // ") + "  " +
               (field.is_repeated() ? "repeated " : "optional ") + type + " " + field.name() +
               " = " + std::to_string(field.number()) + default_of(field) + ";\n";
    }

    std::map<std::string, size_t> indices_;
    std::vector<Layouts> layouts_;
    std::string members_;
    std::string rows_;
};

} // namespace

std::string inspector_tables(const std::vector<File> &files, const File &foreign)
{
    Tables tables(every_record(files, foreign));
    for (const Record &record : foreign.records)
        tables.add(record, foreign.path, true);
    for (const File &file : files)
        for (const Record &record : file.records)
            tables.add(record, file.path, false);
    return tables.text();
}

} // namespace generator
