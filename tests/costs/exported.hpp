// SPDX-License-Identifier: MIT
// The exported functions themselves: where time and stack are measured, the catalogue's wrappers,
// which are not optimised, would be measured too.

#pragma once

#include "tests/catalogue/catalogue.hpp"

namespace costs {

struct Operations {
    catalogue::EncodeExt<void> encode;
    catalogue::DecodeExt<void> decode;
    catalogue::Duplicate<void> duplicate;
    catalogue::FreeExt<void> release;
};

Operations operations_of(const catalogue::RecordType &type);

} // namespace costs
