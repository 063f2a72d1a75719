// SPDX-License-Identifier: MIT
#include "tools/core/check.hpp"

#include "tools/core/text.hpp"
#include "tools/core/walk.hpp"

#include <algorithm>
#include <fmt/format.h>

namespace inspect {

namespace {

// More would not be read by anybody.
constexpr size_t kMostFindings = 100;

class Collector : public Visitor {
public:
    explicit Collector(std::vector<Finding> &findings) : findings_(findings) {}

    bool visit(const Piece &piece) override
    {
        for (const Note note : piece.notes.list()) {
            if (findings_.size() == kMostFindings) {
                findings_.push_back({piece.offset, {}, "there is more, which is not listed"});
                return false;
            }
            findings_.push_back({piece.offset, path_of(piece), std::string(note_words(note))});
        }
        return true;
    }

private:
    static std::string path_of(const Piece &piece)
    {
        std::string path = path_text(*piece.path);
        if (!piece.member)
            path += fmt::format("{}(field {})", path.empty() ? "" : ".", piece.number);
        return path;
    }

    std::vector<Finding> &findings_;
};

Finding other_encoding(Bytes message, Bytes again)
{
    const auto [ours, theirs] = std::ranges::mismatch(message, again);
    const auto offset = static_cast<uint32_t>(ours - message.begin());
    const auto some = [](Bytes bytes, size_t from) {
        constexpr size_t kShown = 8;
        const Bytes part = bytes.subspan(from, std::min(kShown, bytes.size() - from));
        return part.empty() ? std::string("nothing more") : hex(part);
    };
    return {offset,
            {},
            fmt::format("encoding gives other bytes from here on: {} instead of {} ({} in all, "
                        "instead of {})",
                        some(again, offset), some(message, offset), again.size(), message.size())};
}

class JsonGaps {
public:
    void look_at(RecordView record)
    {
        for (const Member &member : record.type().members) {
            if (!record.is_written(member))
                continue;
            path_.push_back({&member});
            look_at(record, member);
            path_.pop_back();
        }
    }

    std::vector<Finding> findings;

private:
    void look_at(RecordView record, const Member &member)
    {
        switch (member.kind) {
        case Kind::boolean:
            if (record.number(member) > 1)
                tell("JSON has true and false only, this is another bool");
            break;
        case Kind::string:
            look_at_text(record.text(member));
            break;
        case Kind::message:
            look_at(record.child(member));
            break;
        case Kind::repeated_string:
            for (uint32_t i = 0; i < record.count(member); i++) {
                path_.back().index = i;
                look_at_text(record.text_at(member, i));
            }
            break;
        case Kind::repeated_message:
            for (uint32_t i = 0; i < record.count(member); i++) {
                path_.back().index = i;
                look_at(record.element(member, i));
            }
            break;
        default:
            break;
        }
    }

    void look_at_text(const char *text)
    {
        if (!text)
            tell("JSON cannot hold a text that is there and null");
        else if (!is_utf8(text))
            tell("JSON cannot hold a text that is not UTF-8");
    }

    void tell(const char *text)
    {
        if (findings.size() < kMostFindings)
            findings.push_back({std::nullopt, path_text(path_), text});
    }

    std::vector<Step> path_;
};

} // namespace

std::vector<Finding> beyond_json(RecordView record)
{
    JsonGaps gaps;
    gaps.look_at(record);
    return gaps.findings;
}

Check check(const RecordType &type, Bytes message, size_t memory_limit)
{
    Check out;
    Record record(type, memory_limit);
    out.verdict = explain(record, message, record.decode(message));
    Collector collector(out.findings);
    WalkOptions options;
    if (out.verdict.result == WIRE_ERR_NO_MEMORY)
        options.blocks = record.arena().blocks();
    walk(type, message, collector, options);
    if (out.verdict.result != WIRE_OK)
        return out;

    const std::vector<uint8_t> again = record.encode();
    out.is_canonical = std::ranges::equal(message, again);
    if (!out.is_canonical)
        out.findings.push_back(other_encoding(message, again));
    const std::vector<Finding> gaps = beyond_json(record.view());
    out.fits_json = gaps.empty();
    out.findings.insert(out.findings.end(), gaps.begin(), gaps.end());
    return out;
}

} // namespace inspect
