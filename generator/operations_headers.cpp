// SPDX-License-Identifier: MIT
// The C++ headers that tell, by the record type, its operations and its shape.
#include "generator/output.hpp"

#include <algorithm>

namespace generator {

namespace {

std::string shape(const Record &record)
{
    if (record.members.empty())
        return "fieldless";
    return children(record).empty() ? "flat" : "nesting";
}

std::string beginning(const std::string &source, const std::string &comment)
{
    return generated_banner(source) + "\n/** @file\n" + wrapped(comment, " * ") +
           " */\n\n#pragma once\n\n";
}

} // namespace

std::string operations_header_path(const File &file)
{
    return "cxx/" + file.path.substr(file.path.rfind('/') + 1) + ".hpp";
}

std::string operations_header(const File &file)
{
    std::string out = beginning(file.path + ".proto",
                                "The operations of the record types of " + file.path + ".h.");
    out +=
        "#include \"../" + file.path + ".h\"\n#include \"operations.hpp\"\n\nnamespace tarn {\n\n";
    for (const Record &record : file.records)
        out += "TARN_OPERATIONS(" + record.name + ", " + shape(record) + ");\n";
    return out + "\n} // namespace tarn\n";
}

std::string operations_umbrella(const std::vector<File> &files)
{
    std::vector<std::string> headers = {"arena.hpp", "encode.hpp", "owner.hpp"};
    for (const File &file : files)
        headers.push_back(operations_header_path(file).substr(sizeof "cxx/" - 1));
    std::sort(headers.begin(), headers.end());
    std::string out = beginning("the schema", "The operations of all record types of the set, and "
                                              "everything that is built on them.");
    for (const std::string &header : headers)
        out += "#include \"" + header + "\"\n";
    return out;
}

std::string operations_test_rows(const std::vector<File> &files)
{
    std::string rows;
    for (const File &file : files)
        for (const Record &record : file.records)
            rows += "    row<" + record.name + ">(\"" + record.name + "\"),\n";
    return generated_banner("the schema") +
           "#include \"tests/cxx/every_type.hpp\"\n\n#include \"cxx/ethsw_mgmt.hpp\"\n\n"
           "namespace every_type {\n\nnamespace {\n\nconst Row kRows[] = {\n" +
           rows +
           "};\n\n} // namespace\n\nstd::span<const Row> rows()\n{\n    return kRows;\n}\n\n"
           "} // namespace every_type\n";
}

} // namespace generator
