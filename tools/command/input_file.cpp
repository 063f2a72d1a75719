// SPDX-License-Identifier: MIT
#include "tools/command/input_file.hpp"

#include "tools/command/failure.hpp"
#include "tools/core/text.hpp"

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <fcntl.h>
#include <fmt/format.h>
#include <new>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace inspect::command {

namespace {

constexpr size_t kFirstCapacity = size_t{64} << 10;
// Positions in a message are numbers of 32 bits.
constexpr uint64_t kMostBytes = UINT32_MAX;

std::string shown(const std::string &name)
{
    return name == "-" ? "standard input" : inspect::quoted(name);
}

[[noreturn]] void fail(const std::string &name)
{
    const std::string reason = std::generic_category().message(errno);
    throw Failure(kNoInput, fmt::format("cannot read {}: {}", shown(name), reason));
}

[[noreturn]] void refuse_length(const std::string &name)
{
    throw Failure(kUnreadable, fmt::format("{} is longer than 4294967295 bytes", shown(name)));
}

// An open file, closed in the end.
class Descriptor {
public:
    explicit Descriptor(const std::string &name)
        : number_(name == "-" ? STDIN_FILENO : open(name.c_str(), O_RDONLY | O_CLOEXEC))
    {
        if (number_ < 0)
            fail(name);
    }
    ~Descriptor()
    {
        if (number_ != STDIN_FILENO)
            close(number_);
    }
    Descriptor(const Descriptor &) = delete;
    Descriptor &operator=(const Descriptor &) = delete;

    int number() const { return number_; }

private:
    int number_;
};

// 0 when nobody knows.
uint64_t size_of(int file)
{
    struct stat status {};
    return fstat(file, &status) == 0 && S_ISREG(status.st_mode)
               ? static_cast<uint64_t>(status.st_size)
               : 0;
}

} // namespace

InputFile::InputFile(const std::string &name)
{
    const Descriptor file(name);
    const uint64_t expected = size_of(file.number());
    if (expected > kMostBytes)
        refuse_length(name);
    // With room for one byte more, so that the end is met without growing.
    grow(std::max<size_t>(static_cast<size_t>(expected) + 1, kFirstCapacity));
    read_all(file.number(), name);
}

void InputFile::drop()
{
    buffer_.reset();
    size_ = capacity_ = 0;
}

void InputFile::read_all(int file, const std::string &name)
{
    for (;;) {
        if (size_ == capacity_)
            grow(capacity_ > SIZE_MAX / 2 ? SIZE_MAX : 2 * capacity_);
        const ssize_t count = read(file, buffer_.get() + size_, capacity_ - size_);
        if (count == 0)
            return;
        if (count > 0)
            size_ += static_cast<size_t>(count);
        else if (errno != EINTR)
            fail(name);
        if (size_ > kMostBytes)
            refuse_length(name);
    }
}

// With realloc, which moves large blocks without copying them and has no second one meanwhile.
void InputFile::grow(size_t capacity)
{
    void *const block = std::realloc(buffer_.get(), capacity);
    if (!block)
        throw std::bad_alloc();
    static_cast<void>(buffer_.release());
    buffer_.reset(static_cast<char *>(block));
    capacity_ = capacity;
}

} // namespace inspect::command
