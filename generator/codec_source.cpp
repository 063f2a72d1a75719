// SPDX-License-Identifier: MIT
// The C++ sources of the library: what the compiler makes the codecs from.
#include "generator/output.hpp"

#include <algorithm>

namespace generator {

namespace {

std::string field_line(const Member &member)
{
    std::string type = "decltype(Record::" + member.name + ")";
    return "        field<Kind::" + kind_enumerator(member.kind) + ", " + type + ">(" +
           std::to_string(member.number) + ", offsetof(Record, " + member.name + ")),\n";
}

std::string schema(const Record &record)
{
    std::string out = "\ntemplate <>\nstruct Schema<" + record.name + "> {\n";
    if (record.members.empty())
        return out + "    static constexpr NoFields fields{};\n"
                     "    using Children = RecordTypes<>;\n};\n";
    out += "    using Record = " + record.name + ";\n    static constexpr Field fields[] = {\n";
    for (const Member &member : record.members)
        out += field_line(member);
    out += "    };\n    using Children = RecordTypes<";
    std::string separator = "\n        ";
    for (const std::string &child : children(record)) {
        out += separator + child;
        separator = ",\n        ";
    }
    return out + ">;\n};\n";
}

} // namespace

std::string field_lists(const File &file)
{
    std::string out = generated_banner(file.path + ".proto") +
                      "// The field lists from which the codecs of these record types are made.\n"
                      "\n#pragma once\n\n#include \"" +
                      file.path + ".h\"\n";
    for (const std::string &import : file.imports)
        out += "#include \"" + import + ".hpp\"\n";
    out += "#include \"runtime/schema.hpp\"\n\n#include <stddef.h>\n\n"
           "namespace [[gnu::visibility(\"hidden\")]] tarn {\n";
    for (const Record &record : file.records)
        out += schema(record);
    return out + "\n} // namespace tarn\n";
}

std::string operations(const File &file)
{
    std::string out = generated_banner(file.path + ".proto") + "#include \"" + file.path +
                      ".hpp\"\n\n#include \"runtime/operations.hpp\"\n\n";
    for (const Record &record : file.records)
        out += "TARN_DEFINE_OPERATIONS(" + record.name + ");\n";
    return out;
}

std::string exported_names(const std::vector<File> &files)
{
    std::vector<std::string> names;
    for (const File &file : files)
        for (const Record &record : file.records)
            for (const char *operation : {"_encode_ext", "_decode_ext", "_duplicate", "_free_ext"})
                names.push_back(record.name + operation);
    std::sort(names.begin(), names.end());
    std::string out;
    for (const std::string &name : names)
        out += name + "\n";
    return out;
}

} // namespace generator
