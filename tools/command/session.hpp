// SPDX-License-Identifier: MIT
// What all verbs work with: the settings, where results go and where complaints go.

#pragma once

#include "tools/command/arguments.hpp"
#include "tools/command/meter.hpp"
#include "tools/command/output_buffer.hpp"
#include "tools/core/ink.hpp"
#include "tools/core/text.hpp"

#include <string_view>

namespace inspect::command {

// A line on standard error, behind the name of the program.
void complain(std::string_view text);

class Session {
public:
    explicit Session(const Settings &settings);

    size_t memory_limit() const { return memory_limit_; }
    const Palette &palette() const { return palette_; }
    OutputBuffer &output() { return output_; }
    Meter &meter() { return meter_; }

    Sink sink();
    // What has been put out until now stays in front of it.
    void complain(std::string_view text);

private:
    size_t memory_limit_;
    Palette palette_;
    OutputBuffer output_;
    Meter meter_;
};

} // namespace inspect::command
