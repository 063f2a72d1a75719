// SPDX-License-Identifier: MIT
// The layout of every record on one target, as a table.
#include "generator/output.hpp"

namespace generator {

namespace {

std::string line(const std::string &what, const std::string &names, unsigned number)
{
    return "TARN_ABI_" + what + "(" + names + ", " + std::to_string(number) + ")\n";
}

std::string lines(const Record &record, const Layout &layout, unsigned pointer_size)
{
    if (record.members.empty())
        return "TARN_ABI_EMPTY(" + record.name + ")\n";
    std::string out = line("RECORD", record.name, layout.size);
    for (size_t i = 0; i < record.members.size(); i++) {
        const Member &member = record.members[i];
        out += line("MEMBER", record.name + ", " + member.name, layout.offsets[i]);
        if (is_pair(member.kind))
            out += line("MEMBER", record.name + ", " + member.second_name,
                        layout.offsets[i] + pointer_size);
    }
    return out + line("FLAGS", record.name, layout.flags);
}

} // namespace

std::vector<const Record *> every_record(const std::vector<File> &files, const File &foreign)
{
    std::vector<const Record *> records;
    for (const Record &record : foreign.records)
        records.push_back(&record);
    for (const File &file : files)
        for (const Record &record : file.records)
            records.push_back(&record);
    return records;
}

std::string abi_table(const std::vector<const Record *> &records, const Target &target)
{
    const Layouts known = layouts(records, target);
    std::string text;
    for (const Record *record : records)
        text += lines(*record, known.at(record->name), target.pointer_size);
    return generated_banner("the schema") +
           wrapped(std::string("Record layouts on ") + target.name +
                       ": RECORD gives a size, MEMBER an offset, FLAGS the offset of the first "
                       "byte of presence flags; EMPTY types have no structure. A change here is "
                       "a change of the binary interface.",
                   "// ") +
           "\n" + text;
}

} // namespace generator
