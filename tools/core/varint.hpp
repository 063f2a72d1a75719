// SPDX-License-Identifier: MIT
// A varint as it stands in a message, with what is odd about it.

#pragma once

#include "tools/core/record.hpp"

#include <cstdint>
#include <optional>

namespace inspect {

struct Varint {
    uint64_t value;   // its low 64 bits
    uint32_t size;    // in bytes
    bool is_overlong; // its last byte adds nothing
    bool has_more;    // there are bits beyond 64
};

// Nothing where the input ends inside of it. It may be of any length.
std::optional<Varint> read_varint(Bytes input);

} // namespace inspect
