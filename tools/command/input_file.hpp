// SPDX-License-Identifier: MIT
// All of a file, or of standard input.

#pragma once

#include <cstddef>
#include <cstdlib>
#include <memory>
#include <string>
#include <string_view>

namespace inspect::command {

// Read, not mapped: what somebody changes in a mapped file while the library counts and copies
// would reach it between the two.
class InputFile {
public:
    // "-" is standard input. Throws Failure when there is nothing to read, or too much.
    explicit InputFile(const std::string &name);

    std::string_view text() const { return {buffer_.get(), size_}; }
    void drop();

private:
    struct Free {
        void operator()(void *block) const { std::free(block); }
    };

    void read_all(int file, const std::string &name);
    void grow(size_t capacity);

    std::unique_ptr<char, Free> buffer_;
    size_t capacity_ = 0;
    size_t size_ = 0;
};

} // namespace inspect::command
