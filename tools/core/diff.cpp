// SPDX-License-Identifier: MIT
#include "tools/core/diff.hpp"

#include "tools/core/excerpt.hpp"
#include "tools/core/values.hpp"

#include <algorithm>
#include <cstring>
#include <fmt/format.h>

namespace inspect {

namespace {

constexpr size_t kAlignedPath = 24;

std::string_view view_of(const char *text)
{
    return text ? std::string_view(text) : std::string_view();
}

Phrase beginning_of(const char *text)
{
    return text ? beginning(view_of(text)) : text_value(nullptr);
}

class DiffWriter {
public:
    DiffWriter(const Palette &palette, const Sink &sink) : palette_(palette), sink_(sink) {}

    void compare(RecordView before, RecordView after, const std::string &path);
    size_t count() const { return count_; }

private:
    enum class Change { changed, removed, added };

    void compare_member(RecordView before, RecordView after, const Member &member,
                        const std::string &path);
    void compare_texts(const char *before, const char *after, const std::string &path);
    void compare_lists(RecordView before, RecordView after, const Member &list,
                       const std::string &path);
    void compare_elements(RecordView before, RecordView after, const Member &list, uint32_t index,
                          const std::string &path);
    // What only one of them has.
    void show(Change change, RecordView record, const Member &member, const std::string &path);
    void show_element(Change change, RecordView record, const Member &list, uint32_t index,
                      const std::string &path);
    void show_record(Change change, RecordView record, const std::string &path);

    void write(Change change, const std::string &path, const Phrase &value);

    const Palette &palette_;
    const Sink &sink_;
    size_t count_ = 0;
};

std::string below(const std::string &path, const Member &member)
{
    return path.empty() ? std::string(member.name) : fmt::format("{}.{}", path, member.name);
}

std::string element_of(const std::string &path, uint32_t index)
{
    return fmt::format("{}[{}]", path, index);
}

void DiffWriter::write(Change change, const std::string &path, const Phrase &value)
{
    count_++;
    const Phrase mark = change == Change::changed   ? Phrase(Ink::length, "~ ")
                        : change == Change::removed ? Phrase(Ink::error, "- ")
                                                    : Phrase(Ink::value, "+ ");
    const size_t padding = kAlignedPath - std::min(kAlignedPath, path.size());
    Phrase line = Phrase(mark).add(Ink::name, path).add(Ink::plain, std::string(padding + 2, ' '));
    sink_(line.add(value).painted(palette_) + "\n");
}

void DiffWriter::compare(RecordView before, RecordView after, const std::string &path)
{
    for (const Member &member : before.type().members) {
        const bool was = before.is_written(member);
        const bool is = after.is_written(member);
        if (was && is)
            compare_member(before, after, member, below(path, member));
        else if (was)
            show(Change::removed, before, member, below(path, member));
        else if (is)
            show(Change::added, after, member, below(path, member));
    }
}

void DiffWriter::compare_member(RecordView before, RecordView after, const Member &member,
                                const std::string &path)
{
    switch (member.kind) {
    case Kind::string:
        compare_texts(before.text(member), after.text(member), path);
        break;
    case Kind::bytes:
        if (!std::ranges::equal(before.bytes(member), after.bytes(member)))
            write(Change::changed, path, changed(before.bytes(member), after.bytes(member)));
        break;
    case Kind::message:
        compare(before.child(member), after.child(member), path);
        break;
    case Kind::repeated_uint32:
    case Kind::repeated_string:
    case Kind::repeated_message:
        compare_lists(before, after, member, path);
        break;
    default:
        if (before.number(member) != after.number(member))
            write(Change::changed, path,
                  changed(number_value(member.kind, before.number(member)),
                          number_value(member.kind, after.number(member))));
    }
}

void DiffWriter::compare_texts(const char *before, const char *after, const std::string &path)
{
    const bool is_same = view_of(before) == view_of(after);
    if (before && after && !is_same)
        write(Change::changed, path, changed(view_of(before), view_of(after)));
    else if ((before == nullptr) != (after == nullptr))
        write(Change::changed, path, changed(text_value(before), text_value(after)));
}

void DiffWriter::compare_lists(RecordView before, RecordView after, const Member &list,
                               const std::string &path)
{
    const uint32_t was = before.count(list);
    const uint32_t is = after.count(list);
    for (uint32_t i = 0; i < std::min(was, is); i++)
        compare_elements(before, after, list, i, element_of(path, i));
    for (uint32_t i = is; i < was; i++)
        show_element(Change::removed, before, list, i, element_of(path, i));
    for (uint32_t i = was; i < is; i++)
        show_element(Change::added, after, list, i, element_of(path, i));
}

void DiffWriter::compare_elements(RecordView before, RecordView after, const Member &list,
                                  uint32_t index, const std::string &path)
{
    if (list.kind == Kind::repeated_message)
        return compare(before.element(list, index), after.element(list, index), path);
    if (list.kind == Kind::repeated_string)
        return compare_texts(before.text_at(list, index), after.text_at(list, index), path);
    const uint32_t was = before.number_at(list, index);
    const uint32_t is = after.number_at(list, index);
    if (was != is)
        write(Change::changed, path,
              changed(number_value(Kind::uint32, was), number_value(Kind::uint32, is)));
}

void DiffWriter::show(Change change, RecordView record, const Member &member,
                      const std::string &path)
{
    if (member.kind == Kind::message)
        return show_record(change, record.child(member), path);
    if (is_list(member.kind)) {
        for (uint32_t i = 0; i < record.count(member); i++)
            show_element(change, record, member, i, element_of(path, i));
        if (record.count(member) == 0)
            write(change, path, {Ink::quiet, "(empty)"});
        return;
    }
    if (member.kind == Kind::string)
        write(change, path, beginning_of(record.text(member)));
    else if (member.kind == Kind::bytes)
        write(change, path, beginning(record.bytes(member)));
    else
        write(change, path, number_value(member.kind, record.number(member)));
}

void DiffWriter::show_element(Change change, RecordView record, const Member &list, uint32_t index,
                              const std::string &path)
{
    if (list.kind == Kind::repeated_message)
        show_record(change, record.element(list, index), path);
    else if (list.kind == Kind::repeated_string)
        write(change, path, beginning_of(record.text_at(list, index)));
    else
        write(change, path, number_value(Kind::uint32, record.number_at(list, index)));
}

void DiffWriter::show_record(Change change, RecordView record, const std::string &path)
{
    if (!record.has_content())
        write(change, path, {Ink::quiet, "(empty)"});
    for (const Member &member : record.type().members)
        if (record.is_written(member))
            show(change, record, member, below(path, member));
}

} // namespace

size_t write_diff(RecordView before, RecordView after, const Palette &palette, const Sink &sink)
{
    DiffWriter writer(palette, sink);
    writer.compare(before, after, {});
    return writer.count();
}

} // namespace inspect
