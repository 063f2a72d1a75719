// SPDX-License-Identifier: MIT
// Small damage to an input that was sound, or nearly.

#include "tests/model/random_wire.hpp"

namespace model {

void mutate(Random &random, Bytes &bytes)
{
    for (uint32_t count = 1 + random.below(3); count > 0 && !bytes.empty(); --count) {
        const auto size = uint32_t(bytes.size());
        const auto at = bytes.begin() + random.below(size);
        switch (random.below(7)) {
        case 0:
            *at = uint8_t(*at ^ (1u << random.below(8)));
            break;
        case 1:
            *at = random.byte();
            break;
        case 2:
            *at = random.pick<uint8_t>({0, 1, 0x7F, 0x80, 0xFF});
            break;
        case 3:
            bytes.erase(at);
            break;
        case 4:
            bytes.insert(at, random.byte());
            break;
        case 5:
            bytes.erase(at, bytes.end());
            break;
        default: {
            const auto length = 1 + random.below(uint32_t(bytes.end() - at));
            const Bytes part(at, at + length);
            bytes.insert(bytes.begin() + random.below(size + 1), part.begin(), part.end());
            break;
        }
        }
    }
}

} // namespace model
