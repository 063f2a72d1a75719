// SPDX-License-Identifier: MIT
// What the verbs read: types by their names, bytes in any format, messages one by one.

#pragma once

#include "tools/command/arguments.hpp"
#include "tools/command/input_file.hpp"
#include "tools/command/session.hpp"
#include "tools/core/framing.hpp"
#include "tools/core/verdict.hpp"

#include <functional>
#include <string>
#include <vector>

namespace inspect::command {

// Throws Failure, with the nearest name, when there is none.
const RecordType &type_of_name(const std::string &name);
// The same for those that the library has operations for.
const RecordType &own_type_of_name(const std::string &name);

// The bytes of a source, out of whatever format they are in.
class Input {
public:
    explicit Input(const Source &source);

    Bytes bytes() const { return bytes_; }

private:
    InputFile file_;
    std::vector<uint8_t> parsed_;
    Bytes bytes_;
};

// One of a stream, or the only one.
struct Message {
    Bytes bytes;
    size_t offset; // in the stream
    size_t number; // from 1; 0 where there is no stream
    size_t stream_size;

    // "message 2 (40 bytes at 0x1f)"
    std::string title() const;
    // For complaints about a message of a stream: "message 2 (40 bytes at 0x1f): "; else nothing.
    std::string prefix() const;
};

// Calls for one message after another, and goes on after one that fails. Returns the first status
// that is not kDone, and complains itself about a stream that ends amid a message.
int for_each_message(Session &session, const Source &source,
                     const std::function<int(const Message &)> &call);

// A line above what is shown of a message of a stream, and before all but the first an empty one.
void write_heading(Session &session, const Message &message);

Progress progress(Session &session, std::string_view work, const Message &message);

// The exit status that tells a result of the library.
int status_of(int32_t result);

// Complains unless the verdict is that all is well. Returns the exit status.
int tell_verdict(Session &session, const Message &message, const Verdict &verdict);

} // namespace inspect::command
