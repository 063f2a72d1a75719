// SPDX-License-Identifier: MIT
// What the model saw on the way of one decode, to tell cases apart and to say what the library may
// leave behind when a message never ends.

#pragma once

#include "tests/model/catalogue.hpp"

#include <cstdint>
#include <vector>

namespace model {

// Why a decode ended.
enum class Reason {
    end_of_input,
    behind_the_end,
    cut_varint,
    length_past_end,
    length_wraps,
    met_again,
    bad_wire_type,
    type_mismatch,
    no_callback,
    no_block,
    too_large,
    count,
};

// Where the record stands whose fields they are.
enum class Level { outermost, embedded, element, deeper, count };

// What lies on the way of a field loop, as bits.
enum Passed : uint32_t {
    kUnknownVarint = 1 << 0,
    kUnknownFixed64 = 1 << 1,
    kUnknownDelimited = 1 << 2,
    kUnknownFixed32 = 1 << 5,
    kNumber = 1 << 6,
    kRecord = 1 << 7,
    kBlocks = 1 << 8,
    kSeveralLandings = 1 << 9,
    kBlocksBefore = 1 << 10,
};

// A record as it is when its field loop is about to read a tag, and how many blocks had been asked
// for by then.
struct Stand {
    uint32_t calls;
    std::vector<uint8_t> image;
};

// A field loop that goes round for ever.
struct Loop {
    uint8_t *record = nullptr;
    uint32_t passed = 0;
    Level level = Level::outermost;
    // Since the loop went back for the first time.
    std::vector<Stand> stands;
};

struct Sightings {
    // A skip led back to where the reading had been before, or stood.
    bool went_back = false;
    // A field loop would never end, if only there was memory for it.
    bool endless = false;
    Loop loop;
    Reason reason = Reason::end_of_input;
    Level level = Level::outermost;
    // Blocks asked for, and whether one was to have no bytes.
    uint32_t calls = 0;
    bool asked_for_nothing = false;
};

} // namespace model
