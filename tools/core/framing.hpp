// SPDX-License-Identifier: MIT
// Messages one after another in one stream, each behind its length.

#pragma once

#include "tools/core/record.hpp"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace inspect {

enum class Framing {
    none, // the stream is one message
    varint,
    u32le, // four bytes, the lowest first
    u32be, // four bytes, the highest first
};

struct Frame {
    size_t offset; // of the message, in the stream
    Bytes message;
};

class FrameReader {
public:
    FrameReader(Bytes stream, Framing framing) : stream_(stream), framing_(framing) {}

    // Nothing at the end of the stream. Throws Error, with the offset in the stream, where a length
    // is cut off, or longer than what is left: again and again, since nothing behind such a place
    // can be found. Without framing there is one message, which may be empty.
    std::optional<Frame> next();

private:
    Bytes stream_;
    Framing framing_;
    size_t position_ = 0;
    bool done_ = false;
};

// Appends a message behind its length. Throws Error where its length does not fit.
void append_frame(std::vector<uint8_t> &stream, Bytes message, Framing framing);

} // namespace inspect
