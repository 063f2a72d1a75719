// SPDX-License-Identifier: MIT
#include "tools/core/varint.hpp"

namespace inspect {

std::optional<Varint> read_varint(Bytes input)
{
    Varint out{0, 0, false, false};
    for (const uint8_t byte : input) {
        const uint64_t bits = byte & 0x7F;
        const uint32_t shift = out.size * 7;
        if (shift < 64)
            out.value |= bits << shift;
        if (shift >= 63)
            out.has_more = out.has_more || bits >> (shift == 63) != 0;
        out.size++;
        if (byte < 0x80) {
            out.is_overlong = byte == 0 && out.size > 1;
            return out;
        }
    }
    return std::nullopt;
}

} // namespace inspect
