// SPDX-License-Identifier: MIT
// JSON as a text, put out as it grows: commas, line breaks and indentation come by themselves.

#pragma once

#include "tools/core/text.hpp"

#include <string>
#include <string_view>

namespace inspect {

class JsonOutput {
public:
    JsonOutput(const Sink &sink, bool one_line) : sink_(sink), one_line_(one_line) {}

    // Of an object or a list, by its bracket.
    void open(char bracket);
    void close(char bracket);
    // Before each value of a list, and before each member of an object.
    void next();
    void next(std::string_view name);

    // Values. A literal is put out as it stands; in a text, what is not UTF-8 becomes U+FFFD, and
    // what a terminal would obey is escaped.
    void literal(std::string_view value) { put(value); }
    void text(std::string_view value);
    void base64(Bytes value);
    void hex(Bytes value);

    // How many objects and lists are open.
    size_t depth() const { return depth_; }

    // Ends the last line. Nothing is put out for certain before that.
    void finish();

private:
    void put(std::string_view piece);
    void put_line_break();
    void put_plain(std::string_view &text);
    void put_character(std::string_view &text);
    void flush();

    const Sink &sink_;
    bool one_line_;
    size_t depth_ = 0;
    bool is_empty_ = true; // what was opened last
    std::string buffer_;
};

} // namespace inspect
