// SPDX-License-Identifier: MIT
#include "tools/core/guess.hpp"

#include "tools/core/walk.hpp"

#include <algorithm>
#include <string>
#include <tuple>

namespace inspect {

namespace {

// Counts, byte by byte, what the fields of a type say about a message.
class Evidence : public Visitor {
public:
    bool visit(const Piece &piece) override
    {
        if (!piece.member || piece.part == Part::unread)
            return true;
        known_ += piece.bytes.size();
        if (piece.part == Part::value)
            look_at(piece.member->kind, piece.bytes);
        return true;
    }

    size_t known() const { return known_; }
    size_t opaque() const { return opaque_; }
    bool has_odd_text() const { return has_odd_text_; }

private:
    void look_at(Kind kind, Bytes value)
    {
        if (kind == Kind::bytes)
            opaque_ += value.size();
        if (kind != Kind::string && kind != Kind::repeated_string)
            return;
        const auto is_control = [](uint8_t c) { return c < ' ' || c == 0x7F; };
        const std::string_view text(reinterpret_cast<const char *>(value.data()), value.size());
        has_odd_text_ |= std::ranges::any_of(value, is_control) || !is_utf8(text);
    }

    size_t known_ = 0;
    size_t opaque_ = 0;
    bool has_odd_text_ = false;
};

// What one of the types makes of the message.
struct Trial {
    Verdict verdict;
    Guess guess;

    bool is_taken() const { return verdict.result == WIRE_OK && verdict.reason.empty(); }
};

size_t members_present(RecordView record)
{
    const auto is_there = [record](const Member &member) { return record.is_written(member); };
    return static_cast<size_t>(std::ranges::count_if(record.type().members, is_there));
}

size_t members_missing(RecordView record)
{
    size_t missing = record.type().members.size() - members_present(record);
    for (const Member &member : record.type().members) {
        if (!record.is_written(member) || !member.child)
            continue;
        if (!is_list(member.kind)) {
            missing += members_missing(record.child(member));
            continue;
        }
        for (uint32_t i = 0; i < record.count(member); i++)
            missing += members_missing(record.element(member, i));
    }
    return missing;
}

Trial try_type(const ShapeClass &types, Bytes message, size_t memory_limit)
{
    const RecordType &type = *types.front();
    Evidence evidence;
    // The library is only asked where that does not take long.
    Trial trial{walk(type, message, evidence), {&types, false, 0, 0, false}};
    // What is read again after a jump backwards counts once.
    trial.guess.bytes_known = std::min(evidence.known(), message.size());
    trial.guess.has_odd_text = evidence.has_odd_text();
    trial.guess.bytes_opaque = evidence.opaque();
    if (!trial.is_taken())
        return trial;
    Record record(type, memory_limit);
    trial.verdict = explain(record, message, record.decode(message));
    if (!trial.is_taken())
        return trial;
    trial.guess.is_canonical = std::ranges::equal(record.encode(), message);
    trial.guess.members_present = members_present(record.view());
    trial.guess.members_missing = members_missing(record.view());
    return trial;
}

// The less, the likelier.
auto rank(const Guess &guess, size_t message_size)
{
    return std::tuple(!guess.is_canonical, message_size - guess.bytes_known, guess.has_odd_text,
                      guess.bytes_opaque, guess.members_missing, SIZE_MAX - guess.types->size(),
                      guess.types->front()->short_name());
}

// The tag of a field that is refused has been read, and does not count.
Refusal refusal_of(const Trial &trial)
{
    const bool was_followed = trial.verdict.result != WIRE_OK;
    const size_t end = was_followed ? trial.verdict.offset : SIZE_MAX;
    return {trial.guess.types, trial.verdict, std::min(trial.guess.bytes_known, end)};
}

std::vector<Trial> try_all(Bytes message, size_t memory_limit, const Progress &progress)
{
    const std::vector<ShapeClass> &classes = shape_classes();
    std::vector<Trial> trials;
    for (const ShapeClass &types : classes) {
        if (progress)
            progress(static_cast<double>(trials.size()) / static_cast<double>(classes.size()));
        trials.push_back(try_type(types, message, memory_limit));
    }
    return trials;
}

} // namespace

std::vector<Guess> guess(Bytes message, size_t memory_limit, const Progress &progress)
{
    std::vector<Guess> guesses;
    for (const Trial &trial : try_all(message, memory_limit, progress))
        if (trial.is_taken())
            guesses.push_back(trial.guess);
    std::ranges::sort(guesses, {},
                      [message](const Guess &guess) { return rank(guess, message.size()); });
    return guesses;
}

std::vector<Refusal> refusals(Bytes message, size_t memory_limit, const Progress &progress)
{
    std::vector<Refusal> refused;
    for (const Trial &trial : try_all(message, memory_limit, progress))
        if (!trial.is_taken())
            refused.push_back(refusal_of(trial));
    std::ranges::stable_sort(refused, std::ranges::greater{}, [](const Refusal &refusal) {
        return std::tuple(refusal.bytes_known, refusal.verdict.offset);
    });
    return refused;
}

} // namespace inspect
