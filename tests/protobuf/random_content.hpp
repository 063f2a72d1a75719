// SPDX-License-Identifier: MIT
// Contents made up from a seed: the same for the same seed, everywhere.

#pragma once

#include "tests/catalogue/content.hpp"

#include <cstdint>
#include <string>

namespace protobuf {

catalogue::Content random_content(const catalogue::RecordType &type, uint64_t seed);

// What has occurred in contents, so that a run can tell that it has tried all of it.
struct Occurrences {
    void add(const catalogue::Content &content, size_t depth = 1);

    // What has not, in words.
    std::string missing() const;

private:
    void add_value(const catalogue::Member &member, const catalogue::Value &value, size_t depth);
    void add_text(const std::string &text);

    size_t deepest_ = 0;
    size_t longest_list_ = 0;
    size_t longest_text_ = 0;
    bool zero_numbers_ = false;
    bool largest_32_ = false;
    bool largest_64_ = false;
    bool empty_records_ = false;
    bool empty_texts_ = false;
    bool two_byte_characters_ = false;
    bool three_byte_characters_ = false;
    bool four_byte_characters_ = false;
    bool zero_bytes_ = false;
};

} // namespace protobuf
