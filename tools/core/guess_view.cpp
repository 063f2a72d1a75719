// SPDX-License-Identifier: MIT
// What was guessed, for people.
#include "tools/core/guess.hpp"

#include "tools/core/phrase.hpp"

#include <algorithm>
#include <fmt/format.h>

namespace inspect {

namespace {

constexpr size_t kNumberWidth = 3;
constexpr size_t kTextColumn = kNumberWidth + 2; // of what stands behind a number
constexpr size_t kRefusalsShown = 3;

// A number in front of the first line, the names, and in brackets what is said of them.
void write_entry(size_t number, const ShapeClass &types, const std::string &remark, Ink ink,
                 const Palette &palette, const Sink &sink)
{
    std::vector<std::string_view> words;
    for (const RecordType *type : types)
        words.push_back(type->short_name());
    words.emplace_back(remark);
    const std::vector<std::string> lines = lines_of_words(words, kScreenWidth - kTextColumn, "  ");
    for (const std::string &line : lines) {
        const bool is_first = &line == &lines.front();
        const size_t end = &line == &lines.back() ? line.size() - remark.size() : line.size();
        const std::string start = is_first ? fmt::format("{:>{}}  ", number, kNumberWidth)
                                           : std::string(kTextColumn, ' ');
        sink(palette.paint(Ink::quiet, start) + palette.paint(ink, line.substr(0, end)) +
             palette.paint(Ink::quiet, line.substr(end)) + "\n");
    }
}

std::string remark_on(const Guess &guess)
{
    const size_t types = guess.types->size();
    return fmt::format(
        "({}{} of {})", types == 1 ? "" : fmt::format("{} types of this shape, ", types),
        guess.members_present, counted(guess.types->front()->members.size(), "member"));
}

// What guesses that follow each other have in common.
std::string quality_of(const Guess &guess, size_t message_size)
{
    std::string words =
        guess.bytes_known == message_size
            ? fmt::format("all known, {}", guess.is_canonical ? "canonical" : "not canonical")
            : fmt::format("{} of {} known", guess.bytes_known, counted(message_size, "byte"));
    return guess.has_odd_text ? words + ", odd text" : words;
}

size_t count_types(const std::vector<Guess> &guesses)
{
    size_t count = 0;
    for (const Guess &guess : guesses)
        count += guess.types->size();
    return count;
}

void write_heading(const std::vector<Guess> &guesses, size_t message_size, const Palette &palette,
                   const Sink &sink)
{
    const std::string taken = fmt::format("{} of {}", counted(count_types(guesses), "type"),
                                          counted(guesses.size(), "shape"));
    const std::string message = "A message of " + counted(message_size, "byte");
    std::string heading = fmt::format("{}: {} take{} it, the likeliest first", message, taken,
                                      count_types(guesses) == 1 ? "s" : "");
    if (guesses.empty())
        heading = message + ": no type takes it";
    else if (message_size == 0)
        heading = fmt::format("The message is empty, which says nothing: it fits {}", taken);
    sink(palette.paint(Ink::heading, heading) + "\n");
}

} // namespace

void write_guesses(const std::vector<Guess> &guesses, size_t message_size, const Palette &palette,
                   const Sink &sink)
{
    write_heading(guesses, message_size, palette, sink);
    std::string last;
    size_t number = 0;
    for (const Guess &guess : guesses) {
        const std::string quality = quality_of(guess, message_size);
        if (quality != last)
            sink(fmt::format("{}:\n", quality));
        last = quality;
        const bool is_blind = guess.bytes_known == 0 && message_size != 0;
        write_entry(++number, *guess.types, remark_on(guess), is_blind ? Ink::quiet : Ink::name,
                    palette, sink);
    }
}

void write_refusals(const std::vector<Refusal> &refusals, const Palette &palette, const Sink &sink)
{
    const size_t shown = std::min(refusals.size(), kRefusalsShown);
    for (size_t i = 0; i < shown; i++) {
        const Refusal &refusal = refusals[i];
        const bool was_followed = refusal.verdict.result != WIRE_OK;
        write_entry(i + 1, *refusal.types,
                    fmt::format("({} known)", counted(refusal.bytes_known, "byte")), Ink::name,
                    palette, sink);
        sink(std::string(kTextColumn, ' ') +
             palette.paint(Ink::error,
                           was_followed ? refusal.verdict.text() : refusal.verdict.reason) +
             "\n");
    }
    if (shown < refusals.size())
        sink(palette.paint(Ink::quiet, fmt::format("and {} that knew less of it\n",
                                                   counted(refusals.size() - shown, "shape"))));
}

} // namespace inspect
