// SPDX-License-Identifier: MIT
// A record filled, encoded, decoded and copied in C++: shown in docs/cpp.md.

#include "cxx/diagnostics.hpp"
#include "cxx/encode.hpp"
#include "cxx/owner.hpp"

#include <cstdio>
#include <vector>

using ShellCommand = tarn_ethsw_mgmt_bcm_shell_cmd;

static std::vector<uint8_t> request()
{
    ShellCommand command = {}; // zero bytes: nothing is there
    command.command = "ports"; // still the caller's, who may point anywhere
    command.has_command = 1;
    return tarn::encode(command);
}

int main()
{
    const std::vector<uint8_t> message = request();

    tarn::Owner<ShellCommand> received;
    if (const int32_t error = received.decode(message)) {
        std::printf("error %d\n", static_cast<int>(error));
        return 1; // what came before the error is released here, too
    }
    if (received->has_command)
        std::printf("%zu bytes say %s\n", message.size(), received->command);

    tarn::Owner<ShellCommand> kept;
    if (kept.duplicate(*received) != WIRE_OK)
        return 1;
    received.clear();
    std::printf("kept: %s, left: %s\n", kept->command,
                received->command ? received->command : "nothing");
    return 0;
}
