// SPDX-License-Identifier: MIT
#include "tools/core/json.hpp"

#include "tools/core/json_output.hpp"

#include <algorithm>
#include <fmt/format.h>
#include <span>

namespace inspect {

namespace {

constexpr uint64_t kElementsPerReport = 1000;
constexpr size_t kDepthInTopLists = 2;

// The end of the path at which decoding ended early; empty everywhere else.
using Rest = std::span<const Step>;

class Writer {
public:
    Writer(const JsonOptions &options, const Sink &sink, const Progress &progress)
        : options_(options), out_(sink, options.one_line), progress_(progress)
    {}

    void write(RecordView record, Rest rest)
    {
        for (const Member &member : record.type().members)
            if (is_list(member.kind) && is_shown(record, member, rest_for(member, rest)))
                elements_ += shown_count(record, member, rest_for(member, rest));
        write_record(record, rest);
        out_.finish();
    }

private:
    static Rest rest_for(const Member &member, Rest rest)
    {
        return !rest.empty() && rest[0].member == &member ? rest : Rest{};
    }

    // A list has its array before the first of its elements is decoded, and its flag after the
    // last; a record that is embedded has its flag when it has been read to its end.
    static bool is_shown(RecordView record, const Member &member, Rest rest)
    {
        if (record.is_written(member))
            return true;
        if (rest.empty())
            return false;
        return is_list(member.kind) ? record.count(member) != 0
                                    : member.kind == Kind::message && rest.size() > 1;
    }

    // A list with its flag is complete, though decoding may have ended at it when it came again.
    static uint32_t shown_count(RecordView record, const Member &member, Rest rest)
    {
        const uint32_t count = record.count(member);
        if (rest.empty() || record.has(member))
            return count;
        const bool has_part = member.kind == Kind::repeated_message;
        return static_cast<uint32_t>(
            std::min<uint64_t>(count, uint64_t{rest[0].index} + (has_part ? 1 : 0)));
    }

    void write_record(RecordView record, Rest rest)
    {
        out_.open('{');
        for (const Member &member : record.type().members) {
            const Rest inner = rest_for(member, rest);
            if (!is_shown(record, member, inner))
                continue;
            out_.next(member.name);
            write_value(record, member, inner);
        }
        out_.close('}');
    }

    void write_value(RecordView record, const Member &member, Rest rest)
    {
        switch (member.kind) {
        case Kind::uint32:
            out_.literal(fmt::format_int(record.number(member)).c_str());
            break;
        case Kind::uint64:
            write_u64(record.number(member));
            break;
        case Kind::boolean:
            out_.literal(record.number(member) != 0 ? "true" : "false");
            break;
        case Kind::string:
            write_text(record.text(member));
            break;
        case Kind::bytes:
            write_bytes(record.bytes(member));
            break;
        case Kind::message:
            write_record(record.child(member), rest.empty() ? rest : rest.subspan(1));
            break;
        default:
            write_list(record, member, rest);
        }
    }

    void write_u64(uint64_t value)
    {
        const fmt::format_int digits(value);
        options_.u64_as_number ? out_.literal(digits.c_str()) : out_.text(digits.c_str());
    }

    void write_text(const char *value) { value ? out_.text(value) : out_.literal("null"); }

    void write_bytes(Bytes value) { options_.bytes_as_hex ? out_.hex(value) : out_.base64(value); }

    void write_list(RecordView record, const Member &member, Rest rest)
    {
        const uint32_t count = shown_count(record, member, rest);
        // It lies as a byte string does: a pointer and a number.
        if (count != 0 && record.bytes(member).data() == nullptr) {
            out_.literal("null");
            return;
        }
        out_.open('[');
        for (uint32_t i = 0; i < count; i++) {
            out_.next();
            write_element(record, member, i, rest);
            if (out_.depth() == kDepthInTopLists)
                report();
        }
        out_.close(']');
    }

    void write_element(RecordView record, const Member &member, uint32_t index, Rest rest)
    {
        if (member.kind == Kind::repeated_uint32)
            out_.literal(fmt::format_int(record.number_at(member, index)).c_str());
        else if (member.kind == Kind::repeated_string)
            write_text(record.text_at(member, index));
        else if (!rest.empty() && rest[0].index == index)
            write_record(record.element(member, index), rest.subspan(1));
        else
            write_record(record.element(member, index), {});
    }

    void report()
    {
        if (++written_ % kElementsPerReport == 0 && progress_)
            progress_(static_cast<double>(written_) / static_cast<double>(elements_));
    }

    const JsonOptions &options_;
    JsonOutput out_;
    const Progress &progress_;
    uint64_t elements_ = 0; // of the lists of the outermost record
    uint64_t written_ = 0;  // of these
};

} // namespace

void write_json(RecordView record, const JsonOptions &options, const std::vector<Step> &stopped_at,
                const Sink &sink, const Progress &progress)
{
    Writer(options, sink, progress).write(record, stopped_at);
}

} // namespace inspect
