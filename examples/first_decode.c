/* SPDX-License-Identifier: MIT */
/* The shortest way to read a record; shown in the README. */

#include "ethsw_mgmt/diagnostics.h"

#include <stdio.h>
#include <stdlib.h>

static void *take(uint32_t size, void *context)
{
    (void)context;
    return malloc(size ? size : 1);
}

static void give_back(void *block, void *context)
{
    (void)context;
    free(block);
}

int main(void)
{
    static const uint8_t input[] = {0x0A, 0x05, 'p', 'o', 'r', 't', 's'};
    tarn_ethsw_mgmt_bcm_shell_cmd command;

    const int32_t result =
        tarn_ethsw_mgmt_bcm_shell_cmd_decode_ext(&command, input, sizeof input, take, NULL, 0);
    if (result == WIRE_OK && command.has_command)
        printf("%s\n", command.command); /* prints: ports */

    /* The one clean-up, after success and after errors. */
    tarn_ethsw_mgmt_bcm_shell_cmd_free_ext(&command, give_back, NULL, 0);
    return result != WIRE_OK;
}
