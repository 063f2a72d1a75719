// SPDX-License-Identifier: MIT
// The C++ headers in a program without exceptions and without run-time types. Ends with 0 when
// every operation did what it says.

#include "cxx/ethsw_mgmt.hpp"

#include <cstring>
#include <vector>

#if defined(__cpp_exceptions) || defined(__cpp_rtti)
#error "to be compiled without exceptions and without run-time types"
#endif

namespace {

bool decodes_and_encodes()
{
    static const uint8_t input[] = {0x0A, 0x05, 'p', 'o', 'r', 't', 's'};
    tarn::Owner<tarn_ethsw_mgmt_bcm_shell_cmd> command;
    if (command.decode(input) != WIRE_OK || std::strcmp(command->command, "ports") != 0)
        return false;
    tarn::Owner<tarn_ethsw_mgmt_bcm_shell_cmd> copy;
    if (copy.duplicate(command) != WIRE_OK)
        return false;
    return tarn::encode(copy) == std::vector<uint8_t>(std::begin(input), std::end(input));
}

bool reports_errors_as_results()
{
    static const uint8_t too_much[] = {0x0A, 0x05, 'p', 'o', 'r', 't', 's'};
    static const uint8_t damaged[] = {0x0A, 0x05, 'p'};
    alignas(8) uint8_t room[8];
    tarn::Arena arena(tarn::ByteBuffer(room, 5));
    tarn::Owner<tarn_ethsw_mgmt_bcm_shell_cmd> command(arena);
    return command.decode(too_much) == WIRE_ERR_NO_MEMORY &&
           command.decode(damaged) == WIRE_ERR_MALFORMED;
}

bool gathers()
{
    static const uint8_t payload[] = {0xDE, 0xAD};
    tarn_ethsw_mgmt_bridge_sec_breach_details record = {};
    record.field_3 = payload;
    record.field_3_length = sizeof payload;
    record.has_field_3 = 1;
    uint8_t buffer[8];
    WireSegment pieces[4];
    const tarn::Gathered gathered = tarn::gather(record, buffer, pieces);
    return gathered.length == 2 && gathered.count == 2 && pieces[1].data == payload;
}

} // namespace

int main()
{
    return decodes_and_encodes() && reports_errors_as_results() && gathers() ? 0 : 1;
}
