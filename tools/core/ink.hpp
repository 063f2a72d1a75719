// SPDX-License-Identifier: MIT
// The colours of a terminal, by what they say.

#pragma once

#include <string>
#include <string_view>

namespace inspect {

enum class Ink {
    plain,
    quiet,   // offsets, rules, what the eye may skip
    heading, // names of types, titles
    tag,
    length,
    value,
    text, // strings
    name, // of a field
    note, // something unusual
    error,
};

// With colours or without: callers need not know which.
class Palette {
public:
    explicit Palette(bool coloured) : coloured_(coloured) {}

    std::string paint(Ink ink, std::string_view text) const;
    bool is_coloured() const { return coloured_; }

private:
    bool coloured_;
};

} // namespace inspect
