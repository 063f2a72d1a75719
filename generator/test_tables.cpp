// SPDX-License-Identifier: MIT
// The catalogue as a table that tests walk at run time. The library has none.
#include "generator/output.hpp"

namespace generator {

namespace {

std::string member_row(const Record &record, const Member &member, size_t bit)
{
    const std::string child = member.child.empty() ? "nullptr" : "\"" + member.child + "\"";
    return "    {\"" + member.name + "\", Kind::" + kind_enumerator(member.kind) + ", " +
           std::to_string(member.number) + ", offsetof(" + record.name + ", " + member.name +
           "), " + std::to_string(bit) + ", " + child + ",\n     [](void *record) { static_cast<" +
           record.name + " *>(record)->has_" + member.name + " = 1; }},\n";
}

std::string member_table(const Record &record)
{
    if (record.members.empty())
        return {};
    std::string out = "constexpr Member members_of_" + record.name + "[] = {\n";
    size_t bit = 0;
    for (const Member &member : record.members)
        out += member_row(record, member, bit++);
    return out + "};\n\n";
}

std::string record_row(const Record &record)
{
    const std::string &name = record.name;
    return "    record_type<" + name + "_encode_ext, " + name + "_decode_ext, " + name +
           "_duplicate, " + name + "_free_ext>(\"" + name + "\", " +
           (record.members.empty() ? "0, {}" : "sizeof(" + name + "), members_of_" + name) + "),\n";
}

} // namespace

std::string test_tables(const std::vector<File> &files)
{
    std::string tables;
    std::string rows;
    for (const File &file : files) {
        for (const Record &record : file.records) {
            tables += member_table(record);
            rows += record_row(record);
        }
    }
    return generated_banner("the schema") +
           "#include \"tests/catalogue/catalogue.hpp\"\n\n"
           "#include \"ethsw_mgmt/ethsw_mgmt.h\"\n\n#include <stddef.h>\n\n"
           "namespace catalogue {\n\nnamespace {\n\n" +
           tables + "const RecordType kRecordTypes[] = {\n" + rows +
           "};\n\n} // namespace\n\nstd::span<const RecordType> record_types()\n{\n"
           "    return kRecordTypes;\n}\n\n} // namespace catalogue\n";
}

} // namespace generator
