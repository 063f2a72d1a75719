// SPDX-License-Identifier: MIT
#include "tools/command/output_buffer.hpp"

#include <cerrno>
#include <fmt/format.h>
#include <system_error>
#include <unistd.h>

namespace inspect::command {

namespace {

constexpr size_t kLargePiece = size_t{64} << 10;

[[noreturn]] void fail()
{
    if (errno == EPIPE)
        throw OutputClosed();
    throw OutputFailed(fmt::format("cannot write: {}", std::generic_category().message(errno)));
}

void write_all(std::string_view text)
{
    while (!text.empty()) {
        const ssize_t written = ::write(STDOUT_FILENO, text.data(), text.size());
        if (written >= 0)
            text.remove_prefix(static_cast<size_t>(written));
        else if (errno != EINTR)
            fail();
    }
}

} // namespace

void OutputBuffer::write(std::string_view text)
{
    if (waiting_.size() + text.size() >= kLargePiece)
        flush();
    if (text.size() >= kLargePiece)
        write_all(text);
    else
        waiting_ += text;
}

void OutputBuffer::flush()
{
    // Cleared first: when writing fails there shall be no second try.
    std::string text;
    text.swap(waiting_);
    write_all(text);
    text.clear();
    text.swap(waiting_);
}

void OutputBuffer::close()
{
    flush();
    // Whether it was open at all is of interest only to those who had something to write.
    if (::close(STDOUT_FILENO) != 0 && errno != EBADF)
        fail();
}

} // namespace inspect::command
