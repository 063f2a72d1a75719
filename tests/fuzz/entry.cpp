// SPDX-License-Identifier: MIT
// What libFuzzer, or the runner that replays files, calls with each input.
#include "tests/fuzz/require.hpp"
#include "tests/fuzz/target.hpp"

#include <stdio.h>
#include <stdlib.h>
#include <string.h>

namespace fuzz {

namespace {

const Type *current_type = nullptr;

} // namespace

void report(const char *claim, const char *file, int line)
{
    fprintf(stderr, "WRONG: %s (%s:%d), record type %s\n", claim, file, line,
            current_type ? current_type->operations->name : "none");
    abort();
}

Span place_message(const Input &input)
{
    const size_t shift = input.choice & 7;
    uint8_t *place = arena().take(shift + input.message.size) + shift;
    if (input.message.size)
        memcpy(place, input.message.data, input.message.size);
    return {place, input.message.size};
}

} // namespace fuzz

// The name is libFuzzer's.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const std::optional<fuzz::Input> input = fuzz::read_input(data, size);
    if (!input)
        return -1; // not worth keeping
    fuzz::current_type = input->type;
    fuzz::arena().reset();
    fuzz::run(*input);
    return 0;
}
