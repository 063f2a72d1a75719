// SPDX-License-Identifier: MIT
// What was guessed, for people.
#include "tools/core/guess.hpp"

#include "tools/core/phrase.hpp"

#include <algorithm>
#include <fmt/format.h>

namespace inspect {

namespace {

constexpr size_t kIndent = 5; // of what stands behind a number
constexpr size_t kRefusalsShown = 3;

std::vector<std::string> lines_of_names(const ShapeClass &types)
{
    std::vector<std::string_view> names;
    for (const RecordType *type : types)
        names.push_back(type->short_name());
    return lines_of_words(names, kScreenWidth - kIndent, "  ");
}

// A number in front of the first line, the names, and what is said of them.
void write_entry(size_t number, const ShapeClass &types, std::string_view words, Ink ink,
                 const Palette &palette, const Sink &sink)
{
    std::string start = fmt::format("{:>{}}  ", number, kIndent - 2);
    for (const std::string &line : lines_of_names(types)) {
        sink(palette.paint(Ink::quiet, start) + palette.paint(ink, line) + "\n");
        start = std::string(kIndent, ' ');
    }
    for (const std::string &line : lines_of_text(words, kScreenWidth - kIndent))
        sink(start + palette.paint(Ink::quiet, line) + "\n");
}

std::string shape_words(const ShapeClass &types)
{
    return types.size() == 1 ? "the only type of this shape"
                             : fmt::format("{} types of this shape", types.size());
}

std::string seen(const Guess &guess, size_t message_size)
{
    std::string words = guess.bytes_known == message_size
                            ? "all known"
                            : fmt::format("{} of {} bytes known", guess.bytes_known, message_size);
    words += guess.is_canonical ? ", canonical" : ", not canonical";
    words += fmt::format(", {} of {}", guess.members_present,
                         counted(guess.types->front()->members.size(), "member"));
    if (guess.has_odd_text)
        words += ", odd text";
    return fmt::format("{}; {}", words, shape_words(*guess.types));
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
    size_t number = 0;
    for (const Guess &guess : guesses) {
        const bool is_blind = message_size != 0 && guess.bytes_known == 0;
        write_entry(++number, *guess.types, seen(guess, message_size),
                    is_blind ? Ink::quiet : Ink::name, palette, sink);
    }
}

void write_refusals(const std::vector<Refusal> &refusals, const Palette &palette, const Sink &sink)
{
    const size_t shown = std::min(refusals.size(), kRefusalsShown);
    for (size_t i = 0; i < shown; i++) {
        const Verdict &verdict = refusals[i].verdict;
        const bool was_followed = verdict.result != WIRE_OK;
        write_entry(i + 1, *refusals[i].types,
                    fmt::format("{} known; {}", counted(refusals[i].bytes_known, "byte"),
                                was_followed ? verdict.text() : verdict.reason),
                    Ink::name, palette, sink);
    }
    if (shown < refusals.size())
        sink(palette.paint(Ink::quiet, fmt::format("and {} that knew less of it\n",
                                                   counted(refusals.size() - shown, "shape"))));
}

} // namespace inspect
