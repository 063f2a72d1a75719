// SPDX-License-Identifier: MIT
// How a decoding ended, and where: in words, for people.

#pragma once

#include "tools/core/schema.hpp"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace inspect {

// A step from a record to what is in it: a member, and which element of a list.
struct Step {
    const Member *member;
    uint32_t index = 0;
};

// "ports[3].phy.name"; a step that ends in the middle of a list has its index, too.
std::string path_text(const std::vector<Step> &steps);

// "WIRE_ERR_MALFORMED", and what is unknown as a number.
std::string result_name(int32_t result);

struct Verdict {
    int32_t result = WIRE_OK;
    uint32_t offset = 0; // in the message: of the byte at which reading stopped
    std::vector<Step> path;
    std::string reason; // one sentence without a full stop; empty after WIRE_OK

    // "at offset 0x1f (31), in ports[3].name: WIRE_ERR_MALFORMED: 40 bytes of text, but 12 are
    // left"
    std::string text() const;
};

} // namespace inspect
