// SPDX-License-Identifier: MIT
#include "bench/workloads/maker.hpp"

#include <stdarg.h>
#include <stdio.h>

namespace bench {

const char *Maker::text(const char *format, ...)
{
    char buffer[256];
    va_list arguments;
    va_start(arguments, format);
    const int length = vsnprintf(buffer, sizeof buffer, format, arguments);
    va_end(arguments);
    const std::string_view written(buffer, static_cast<size_t>(length));
    char *text = static_cast<char *>(memory_.allocate(written.size() + 1, 1));
    text[written.copy(text, written.size())] = '\0';
    return text;
}

const uint8_t *Maker::bytes(uint32_t length)
{
    uint8_t *bytes = static_cast<uint8_t *>(memory_.allocate(length, 8));
    for (uint32_t i = 0; i < length; i++)
        bytes[i] = static_cast<uint8_t>(random_());
    return bytes;
}

} // namespace bench
