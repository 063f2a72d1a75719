// SPDX-License-Identifier: MIT
// As much of a value as a line has room for.

#pragma once

#include "tools/core/phrase.hpp"

#include <string_view>

namespace inspect {

// Cut short, with how many bytes were left out.
Phrase beginning(std::string_view text);
Phrase beginning(Bytes bytes);

// "before -> after". Values that are too long to show them whole are shown from where they differ.
Phrase changed(const Phrase &before, const Phrase &after);
Phrase changed(std::string_view before, std::string_view after);
Phrase changed(Bytes before, Bytes after);

} // namespace inspect
