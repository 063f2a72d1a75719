// SPDX-License-Identifier: MIT
// Holds what both sides left behind against each other. Addresses inside a side's own memory are
// the same when they lie at the same place of it.

#pragma once

#include "tests/model/side.hpp"

#include <string>

namespace model {

bool same_memory(const Side &library, const Side &model);

// Each returns an empty text when there is no difference, else a readable account of the first.
std::string compare_memory(const Side &library, const Side &model);
std::string compare_allocations(const Side &library, const Side &model);
std::string compare_releases(const Side &library, const Side &model);

std::string hex(const uint8_t *bytes, size_t count, size_t limit = 4096);

// A record as text, for reports; pointers are followed, so the record must be sound.
std::string describe(const RecordType &type, const uint8_t *record, int depth = 1);

} // namespace model
