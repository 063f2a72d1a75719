// SPDX-License-Identifier: MIT
// A service that reads what strangers send into an arena with a budget: shown in docs/cpp.md.

#include "cxx/arena.hpp"
#include "cxx/diagnostics.hpp"
#include "cxx/encode.hpp"
#include "cxx/owner.hpp"

#include <cstdio>
#include <string>
#include <vector>

namespace {

// Answers by appending to `reply`, whose memory is kept from one request to the next.
int32_t answer(tarn::ByteView request, tarn::Arena &arena, std::vector<uint8_t> &reply)
{
    tarn::Owner<tarn_ethsw_mgmt_bcm_shell_cmd> command(arena);
    if (const int32_t error = command.decode(request))
        return error;

    tarn_ethsw_mgmt_bcm_shell_cmd_resp response = {};
    response.output = command->has_command ? command->command : "what?";
    response.has_output = 1;
    tarn::append(reply, response);
    return WIRE_OK;
}

} // namespace

int main()
{
    alignas(8) uint8_t room[64];
    tarn::Arena arena(room);
    std::vector<uint8_t> reply;

    const std::string honest = "\x0A\x05ports";
    const std::string damaged = "\x0A\x05por";
    const std::string greedy = std::string("\x0A\x64") + std::string(100, 'x');
    for (const std::string &request : {honest, damaged, greedy}) {
        arena.reset();
        reply.clear();
        const int32_t result = answer(request, arena, reply);
        std::printf("%3zu bytes: result %d, %u bytes of the arena used, %zu to send\n",
                    request.size(), static_cast<int>(result), static_cast<unsigned>(arena.used()),
                    reply.size());
    }
    return 0;
}
