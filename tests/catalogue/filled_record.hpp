// SPDX-License-Identifier: MIT
// A record in memory, filled as a caller would, with the strings, arrays and byte strings behind
// it.

#pragma once

#include "tests/catalogue/content.hpp"

#include <memory>
#include <vector>

namespace catalogue {

// What stands in members that are absent.
enum class Absent {
    zero,
    leftovers, // numbers, texts and lists of an earlier use, with the flag clear
};

// The flags of embedded records that have something to write anyway.
enum class Embedded { flagged, implied };

class FilledRecord {
public:
    explicit FilledRecord(const Content &content, Absent absent = Absent::zero,
                          Embedded embedded = Embedded::flagged);

    // Null for a type without members.
    const void *record() const { return record_; }

private:
    uint8_t *block(size_t size);
    const char *text(const std::string &value);
    void fill(uint8_t *record, const Content &content);
    void put(uint8_t *record, const Member &member, const Value &value);
    void put_array(uint8_t *record, const Member &member, const void *array, size_t count);

    Absent absent_;
    Embedded embedded_;
    std::vector<std::unique_ptr<uint8_t[]>> blocks_;
    uint8_t *record_ = nullptr;
};

} // namespace catalogue
