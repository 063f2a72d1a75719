// SPDX-License-Identifier: MIT
// Makes up input for the decoders: sound, odd and hostile.

#pragma once

#include "tests/model/catalogue.hpp"
#include "tests/model/random.hpp"

#include <cstdint>
#include <vector>

namespace model {

using Bytes = std::vector<uint8_t>;

// How rough the input is to be.
struct Roughness {
    // Percent of the fields, each.
    uint32_t unknown = 10;
    uint32_t odd = 0;
    uint32_t repeated_again = 0;
    uint32_t jumps = 0;
    // Percent of the varints.
    uint32_t overlong = 5;
    // Fields in ascending order, as an encoder writes them.
    bool in_order = true;
};

Roughness random_roughness(Random &random);

// One encoding of a record of the type.
Bytes random_wire(Random &random, const RecordType &type, const Roughness &roughness);

// The same with fields that the reading comes back to, most of them for ever.
Bytes random_round(Random &random, const RecordType &type, const Roughness &roughness);

// Flips, drops, doubles and cuts off bytes.
void mutate(Random &random, Bytes &bytes);

} // namespace model
