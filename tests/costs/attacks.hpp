// SPDX-License-Identifier: MIT
// The messages that cost most, of any size, for every record type. Written after the rules of
// decoding, not after their implementation: a bound that holds for these holds by construction.

#pragma once

#include "tests/costs/visits.hpp"

#include <functional>
#include <string>
#include <vector>

namespace costs {

using catalogue::RecordType;

enum class Family {
    straight,    // read once from start to end
    overlapping, // every text, byte string and list of a record spans the same bytes
    embedded,    // the same, with an embedded record that is met again and again
    endless,     // the same for ever
};

struct Attack {
    Family family;
    const RecordType *type;
    std::string name;                          // what it is made of
    uint32_t levels = 0;                       // of embedded records met again and again
    std::function<Bytes(uint32_t size)> build; // of this size or a few bytes less
};

const char *name_of(Family family);

// For one type, and for all of the library.
std::vector<Attack> attacks_on(const RecordType &type);
std::vector<Attack> all_attacks();

} // namespace costs
