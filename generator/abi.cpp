// SPDX-License-Identifier: MIT
// The layout of every record, computed from the schema alone. The compilers are held against it.
#include "generator/output.hpp"

#include <map>

namespace generator {

namespace {

struct Extent {
    unsigned size;
    unsigned alignment;
};

class LayoutTable {
public:
    explicit LayoutTable(unsigned pointer_size) : pointer_size_(pointer_size) {}

    void add(const Record &record)
    {
        if (record.members.empty()) {
            text_ += "TARN_ABI_EMPTY(" + record.name + ")\n";
            return;
        }
        unsigned end = 0;
        unsigned alignment = 4; // of the unit that holds the presence flags
        std::string members;
        for (const Member &member : record.members) {
            const Extent extent = extent_of(member);
            const unsigned offset = round_up(end, extent.alignment);
            members += line("MEMBER", record.name + ", " + member.name, offset);
            end = offset + extent.size;
            if (is_pair(member.kind)) {
                members += line("MEMBER", record.name + ", " + member.second_name, end);
                end += 4;
            }
            alignment = alignment > extent.alignment ? alignment : extent.alignment;
        }
        const unsigned flags = static_cast<unsigned>(record.members.size() + 7) / 8;
        const Extent whole{round_up(end + flags, alignment), alignment};
        extents_[record.name] = whole;
        text_ +=
            line("RECORD", record.name, whole.size) + members + line("FLAGS", record.name, end);
    }

    const std::string &text() const { return text_; }

private:
    static unsigned round_up(unsigned value, unsigned alignment)
    {
        return (value + alignment - 1) / alignment * alignment;
    }

    static std::string line(const std::string &what, const std::string &names, unsigned number)
    {
        return "TARN_ABI_" + what + "(" + names + ", " + std::to_string(number) + ")\n";
    }

    // Of the first member, where there are two.
    Extent extent_of(const Member &member) const
    {
        switch (member.kind) {
        case Kind::uint32:
            return {4, 4};
        case Kind::uint64:
            return {8, 8};
        case Kind::boolean:
            return {1, 1};
        case Kind::message:
            return extents_.at(member.child);
        default:
            return {pointer_size_, pointer_size_};
        }
    }

    unsigned pointer_size_;
    std::map<std::string, Extent> extents_;
    std::string text_;
};

} // namespace

std::string abi_table(const std::vector<File> &files, const File &foreign, const Target &target)
{
    LayoutTable table(target.pointer_size);
    for (const Record &record : foreign.records)
        table.add(record);
    for (const File &file : files)
        for (const Record &record : file.records)
            table.add(record);
    return generated_banner("the schema") +
           wrapped("Record layouts on " + target.name +
                       ": RECORD gives a size, MEMBER an offset, FLAGS the offset of the first "
                       "byte of presence flags; EMPTY types have no structure. A change here is "
                       "a change of the binary interface.",
                   "// ") +
           "\n" + table.text();
}

} // namespace generator
