// SPDX-License-Identifier: MIT
// Where the members of each record stand, computed from the schema alone. The compilers are held
// against it.

#pragma once

#include "generator/catalogue.hpp"

#include <map>
#include <string>
#include <vector>

namespace generator {

struct Target {
    const char *name;
    unsigned pointer_size;
};

constexpr Target kTargets[] = {{"i686", 4}, {"armhf", 4}, {"x86_64", 8}};

struct Layout {
    unsigned size = 0; // 0: the type has no structure
    unsigned alignment = 1;
    unsigned flags = 0;            // offset of the first byte of presence flags
    std::vector<unsigned> offsets; // of the (first) members
};

// By the names of the records. Takes what is embedded before what embeds it.
using Layouts = std::map<std::string, Layout>;
Layouts layouts(const std::vector<const Record *> &records, const Target &target);

} // namespace generator
