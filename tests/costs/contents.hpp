// SPDX-License-Identifier: MIT
// What a record is made to read from start to end: fields as small as can be, in many variants.

#pragma once

#include "tests/costs/message.hpp"

#include <functional>
#include <string>
#include <vector>

namespace costs {

using catalogue::RecordType;

struct Content {
    std::string name;
    std::function<Bytes(uint32_t size)> build; // whole fields of this size or a few bytes less
};

std::vector<Content> contents_of(const RecordType &type);

} // namespace costs
