// SPDX-License-Identifier: MIT
// Options of the command line whose values are one of a few words.

#pragma once

#include "tools/core/text.hpp"

#include <CLI/App.hpp>
#include <fmt/format.h>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace inspect::command {

// Ends the parsing with a reason.
[[noreturn]] inline void refuse(const std::string &reason)
{
    throw CLI::ValidationError(reason, CLI::ExitCodes::ValidationError);
}

template <typename Value>
using Choices = std::vector<std::pair<std::string_view, Value>>;

template <typename Value>
std::vector<std::string_view> words_of(const Choices<Value> &choices)
{
    std::vector<std::string_view> words;
    for (const auto &[word, value] : choices)
        words.push_back(word);
    return words;
}

template <typename Value>
Value chosen(const std::string &option, std::string_view wanted, const Choices<Value> &choices)
{
    for (const auto &[word, value] : choices)
        if (word == wanted)
            return value;
    const std::vector<std::string_view> words = words_of(choices);
    refuse(fmt::format("{}: {} is not one of {}{}", option, inspect::quoted(wanted),
                       fmt::join(words, ", "), did_you_mean(wanted, words)));
}

// `to` may also be an optional of the value. As with most commands, the last one counts.
template <typename Value, typename To>
CLI::Option *add_choice(CLI::App &app, const std::string &option, To &to,
                        const Choices<Value> &choices, const std::string &description)
{
    const auto store = [option, &to, choices](const std::string &word) {
        to = chosen(option, word, choices);
    };
    return app.add_option_function<std::string>(option, store, description)
        ->option_text(fmt::format("{}", fmt::join(words_of(choices), "|")))
        ->type_name("value")
        ->take_last();
}

} // namespace inspect::command
