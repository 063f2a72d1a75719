// SPDX-License-Identifier: MIT
// The elements of a list of which nobody has said how many there will be.

#pragma once

#include "tools/core/schema.hpp"

#include <cstddef>
#include <memory>
#include <vector>

namespace inspect {

// While it grows, its elements stay where they are: what is nested in one can be filled while the
// next one is yet to come.
class JsonList {
public:
    explicit JsonList(const Member &member);

    size_t element_size() const { return default_.size(); }
    size_t count() const { return count_; }
    size_t size() const { return count_ * element_size(); }

    // A further element, with its defaults.
    std::byte *add();
    // All elements, one behind the other.
    void copy_to(std::byte *array) const;

private:
    struct Chunk {
        std::unique_ptr<std::byte[]> elements;
        size_t size;
        size_t used;
    };

    std::vector<std::byte> default_;
    std::vector<Chunk> chunks_;
    size_t count_ = 0;
};

} // namespace inspect
