// SPDX-License-Identifier: MIT
// Values as texts, alike in every view, and where the text goes.

#pragma once

#include "tools/core/record.hpp"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace inspect {

// Takes a text in pieces. The core puts out nothing by itself.
using Sink = std::function<void(std::string_view)>;

// Told from time to time how much of a large work is done, from 0 to 1.
using Progress = std::function<void(double)>;

// In double quotes, with escapes for control characters and for bytes that are not UTF-8: safe to
// show on a terminal whatever it holds.
std::string quoted(std::string_view text);
bool is_utf8(std::string_view text);
// The bytes of the UTF-8 character that the text begins with; 0 where it does not begin with one.
// There has to be a text.
size_t character_size(std::string_view text);

// "de ad be ef"; with `separator` between two bytes.
std::string hex(Bytes bytes, std::string_view separator = " ");

// "1 byte", "12 bytes".
std::string counted(uint64_t count, std::string_view noun);

// What is written nearest to `wanted` among the candidates; empty when nothing is near.
std::string_view nearest(std::string_view wanted, const std::vector<std::string_view> &candidates);

// " (did you mean ...?)", or nothing when nothing is near.
std::string did_you_mean(std::string_view wanted, const std::vector<std::string_view> &candidates);

} // namespace inspect
