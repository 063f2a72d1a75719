// SPDX-License-Identifier: MIT
// A byte string that is sent from where it is: shown in docs/cpp.md.

#include "cxx/encode.hpp"
#include "cxx/forwarding.hpp"

#include <array>
#include <cstdio>

int main()
{
    static const uint8_t frame[1000] = {0xDE, 0xAD, 0xBE, 0xEF};

    tarn_ethsw_mgmt_bridge_sec_breach_details details = {};
    details.field_1 = 5;
    details.has_field_1 = 1;
    details.field_3 = frame;
    details.field_3_length = sizeof frame;
    details.has_field_3 = 1;
    details.field_4 = 1;
    details.has_field_4 = 1;

    std::array<uint8_t, 32> buffer;
    std::array<WireSegment, 4> pieces;
    const tarn::Gathered gathered = tarn::gather(details, buffer, pieces);
    if (gathered.length > buffer.size() || gathered.count > pieces.size())
        return 1; // too small, and this is how large they have to be

    for (uint32_t i = 0; i < gathered.count; i++)
        std::printf("%u bytes of the %s\n", static_cast<unsigned>(pieces[i].length),
                    pieces[i].data == frame ? "frame" : "buffer");
    return 0;
}
