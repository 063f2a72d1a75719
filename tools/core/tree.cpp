// SPDX-License-Identifier: MIT
#include "tools/core/tree.hpp"

#include "tools/core/tree_rows.hpp"

#include <algorithm>
#include <fmt/format.h>

namespace inspect {

namespace {

// What stands left of the lines of a record: a column for each record around it.
class Guide {
public:
    Guide() = default;

    // Of what is below a branch of this one.
    Guide below(bool is_last) const { return {text_ + (is_last ? "   " : "│  "), width_ + kStep}; }
    std::string branch(bool is_last) const { return text_ + (is_last ? "└─ " : "├─ "); }
    const std::string &text() const { return text_; }
    // How much of the screen is left for what is below a branch.
    size_t room() const { return kScreenWidth - std::min(kScreenWidth, width_ + kStep); }

private:
    static constexpr size_t kStep = 3;

    Guide(std::string text, size_t width) : text_(std::move(text)), width_(width) {}

    std::string text_;
    size_t width_ = 0;
};

// The part of all the work that something is.
struct Share {
    double from = 0;
    double to = 1;

    // Of work that consists of `count` steps, those from `begin` to `end`.
    Share steps(size_t begin, size_t end, size_t count) const
    {
        const double step = (to - from) / static_cast<double>(count);
        return {from + step * static_cast<double>(begin), from + step * static_cast<double>(end)};
    }
};

class TreeWriter {
public:
    TreeWriter(const Palette &palette, const Sink &sink, const Progress &progress)
        : palette_(palette), sink_(sink), progress_(progress)
    {}

    // The record below a line that begins with `start` and names it.
    void write(RecordView record, const std::string &start, const Phrase &heading,
               const Trail &trail, const Guide &guide, Share share);

private:
    void write_below(RecordView record, const Member &member, const Trail &trail,
                     const Guide &guide, size_t value_column, Share share);
    void write_records(RecordView record, const Member &list, const Trail &trail,
                       const Guide &guide, Share share);
    void write_texts(RecordView record, const Member &list, uint32_t count, const Guide &guide,
                     Share share);
    void write_rows(RecordView record, const TreeRows &rows, const Trail &trail, const Guide &guide,
                    Share share);
    void write_line(const std::string &start, const Phrase &rest);
    void tell(Share share);

    const Palette &palette_;
    const Sink &sink_;
    const Progress &progress_;
    double told_ = 0;
};

void TreeWriter::tell(Share share)
{
    constexpr double kStep = 0.01;
    if (!progress_ || share.from < told_ + kStep)
        return;
    told_ = share.from;
    progress_(told_);
}

void TreeWriter::write_line(const std::string &start, const Phrase &rest)
{
    sink_(palette_.paint(Ink::quiet, start) + rest.painted(palette_) + "\n");
}

void TreeWriter::write(RecordView record, const std::string &start, const Phrase &heading,
                       const Trail &trail, const Guide &guide, Share share)
{
    const TreeRows rows = rows_of(record, trail, guide.room());
    Phrase line = heading;
    if (rows.rows.empty())
        line.add(Ink::quiet, "  (empty)");
    write_line(start, line);
    write_rows(record, rows, trail, guide, share);
}

void TreeWriter::write_rows(RecordView record, const TreeRows &rows, const Trail &trail,
                            const Guide &guide, Share share)
{
    size_t done = 0;
    for (const TreeRow &row : rows.rows) {
        const bool is_last = &row == &rows.rows.back();
        const Share part = share.steps(done, done + row.elements, rows.elements);
        done += row.elements;
        tell(part);
        if (row.member && row.member->kind == Kind::message) {
            write(record.child(*row.member), guide.branch(is_last), rows.line(row),
                  trail_into(record, *row.member, 0, trail), guide.below(is_last), part);
            continue;
        }
        write_line(guide.branch(is_last), rows.line(row));
        if (row.has_block)
            write_below(record, *row.member, trail, guide.below(is_last), rows.value_column(),
                        part);
    }
}

void TreeWriter::write_below(RecordView record, const Member &member, const Trail &trail,
                             const Guide &guide, size_t value_column, Share share)
{
    if (member.kind == Kind::repeated_message)
        return write_records(record, member, trail, guide, share);
    if (member.kind == Kind::repeated_string)
        return write_texts(record, member, elements_reached(record, member, trail), guide, share);
    const std::string start = guide.text() + std::string(value_column, ' ');
    write_block(record, member, trail, guide.room() - std::min(guide.room(), value_column),
                [&](const Phrase &line) { write_line(start, line); });
}

void TreeWriter::write_records(RecordView record, const Member &list, const Trail &trail,
                               const Guide &guide, Share share)
{
    const uint32_t count = elements_reached(record, list, trail);
    for (uint32_t i = 0; i < count; i++) {
        const bool is_last = i + 1 == count;
        const Share part = share.steps(i, i + 1, count);
        tell(part);
        write(record.element(list, i), guide.branch(is_last), {Ink::quiet, fmt::format("[{}]", i)},
              trail_into(record, list, i, trail), guide.below(is_last), part);
    }
}

void TreeWriter::write_texts(RecordView record, const Member &list, uint32_t count,
                             const Guide &guide, Share share)
{
    const size_t label_width = fmt::formatted_size("[{}]  ", count - 1);
    const size_t room = guide.room() - std::min(guide.room(), label_width);
    for (uint32_t i = 0; i < count; i++) {
        const bool is_last = i + 1 == count;
        tell(share.steps(i, i + 1, count));
        const char *const text = record.text_at(list, i);
        const std::string label = fmt::format("{:<{}}", fmt::format("[{}]", i), label_width);
        Phrase line(Ink::quiet, label);
        const Phrase value = text_inline(text, room);
        if (!value.empty()) {
            write_line(guide.branch(is_last), line.add(value));
            continue;
        }
        write_line(guide.branch(is_last), line.add(Ink::quiet, text_length(text)));
        const std::string start = guide.below(is_last).text() + std::string(label_width, ' ');
        write_text_block(text, room, [&](const Phrase &part) { write_line(start, part); });
    }
}

} // namespace

void write_tree(RecordView record, const Palette &palette, const std::vector<Step> &stopped_at,
                const Sink &sink, const Progress &progress)
{
    TreeWriter writer(palette, sink, progress);
    writer.write(record, {}, {Ink::heading, record.type().short_name()}, Trail(stopped_at), {}, {});
}

} // namespace inspect
