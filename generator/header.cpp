// SPDX-License-Identifier: MIT
// The C headers.
#include "generator/output.hpp"

#include <algorithm>
#include <cctype>

namespace generator {

namespace {

constexpr char kIndent[] = "    ";

std::string banner(const std::string &source, const std::string &comment)
{
    return "/* SPDX-License-Identifier: MIT */\n/* " + generated_from(source) +
           " */\n\n/** @file\n" + wrapped(comment, " * ") + " */\n";
}

std::string guard(const std::string &path)
{
    std::string out = "TARN_";
    for (const char c : path)
        out += std::isalnum(static_cast<unsigned char>(c)) != 0
                   ? static_cast<char>(std::toupper(static_cast<unsigned char>(c)))
                   : '_';
    return out + "_H";
}

// In one line where it fits, else wrapped with its end on a line of its own.
std::string doc_comment(const std::string &text, const std::string &indent)
{
    constexpr size_t kColumns = 100;
    const std::string line = indent + "/** " + text + " */";
    if (line.size() <= kColumns)
        return line + "\n";
    return indent + "/**\n" + wrapped(text, indent + " * ") + indent + " */\n";
}

// Never from the include path: see runtime/record.h. All generated headers stand in one folder.
std::string include_line(const std::string &path)
{
    const std::string folder = "ethsw_mgmt/";
    const bool is_neighbour = path.compare(0, folder.size(), folder) == 0;
    return "#include \"" + (is_neighbour ? path.substr(folder.size()) : "../" + path) + ".h\"\n";
}

std::string member_lines(const Member &member)
{
    std::string out = doc_comment("Field " + std::to_string(member.number) + ", " +
                                      kind_words(member) + ". " + member.comment,
                                  kIndent);
    out += kIndent;
    if (member.kind == Kind::uint64)
        out += "TARN_ALIGNED_8 ";
    out += member_type(member) + member.name + ";\n";
    if (member.second_name.empty())
        return out;
    const std::string what = member.kind == Kind::bytes ? "bytes at " : "elements of ";
    return out + doc_comment("Number of " + what + member.name + ".", kIndent) + kIndent +
           "uint32_t " + member.second_name + ";\n";
}

std::string flag_line(const Member &member)
{
    return kIndent + ("unsigned has_" + member.name) + " : 1;\n";
}

} // namespace

std::string structure(const Record &record)
{
    std::string out = doc_comment(record.comment, "");
    if (record.members.empty())
        return out + "typedef struct " + record.name + " " + record.name + ";\n";
    out += "typedef struct " + record.name + " {\n";
    for (const Member &member : record.members)
        out += member_lines(member);
    for (const Member &member : record.members)
        out += flag_line(member);
    return out + "} " + record.name + ";\n";
}

std::string c_header(const File &file)
{
    const std::string name = guard(file.path);
    std::string out = banner(file.path + ".proto", file.comment);
    out += "\n#ifndef " + name + "\n#define " + name + "\n\n";
    for (const std::string &import : file.imports)
        out += include_line(import);
    out += include_line("runtime/record");
    for (const Record &record : file.records)
        out += "\n" + structure(record) + "TARN_DECLARE_OPERATIONS(" + record.name + ");\n";
    return out + "\n#endif\n";
}

std::string umbrella_header(const std::vector<File> &files)
{
    std::string out = banner("the schema", "All record types of the set.");
    const std::string name = guard("ethsw_mgmt/ethsw_mgmt");
    out += "\n#ifndef " + name + "\n#define " + name + "\n\n";
    std::vector<std::string> paths;
    for (const File &file : files)
        paths.push_back(file.path);
    paths.push_back("ethsw_mgmt/version"); // written by hand
    std::sort(paths.begin(), paths.end());
    for (const std::string &path : paths)
        out += include_line(path);
    return out + "\n#endif\n";
}

} // namespace generator
