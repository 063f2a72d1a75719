// SPDX-License-Identifier: MIT
// The same in C++17.

#include "cxx/encode.hpp"
#include "cxx/owner.hpp"
#include "cxx/switch.hpp"

#include <cstdio>
#include <string>

int main()
{
    const std::string name = "consumer";
    tarn_ethsw_mgmt_switch_info sent{};
    sent.identity.field_1 = 21;
    sent.identity.has_field_1 = 1;
    sent.has_identity = 1;
    sent.name = name.c_str();
    sent.has_name = 1;

    tarn::Owner<tarn_ethsw_mgmt_switch_info> received;
    const bool is_same = received.decode(tarn::encode(sent)) == WIRE_OK &&
                         received->identity.field_1 == 21 && received->name == name;
    std::puts(is_same ? "It is the same." : "It is another.");
    return is_same ? 0 : 1;
}
