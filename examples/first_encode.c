/* SPDX-License-Identifier: MIT */
/* The shortest way to write a record; shown in the README. */

#include "ethsw_mgmt/switch.h"

#include <stdio.h>

int main(void)
{
    tarn_ethsw_mgmt_port_enable request = {0};
    request.port = 3;
    request.has_port = 1;
    request.enable = 1;
    request.has_enable = 1;

    const uint32_t length =
        tarn_ethsw_mgmt_port_enable_encode_ext(&request, NULL, 0, NULL, NULL, 0);
    uint8_t buffer[16];
    if (length > sizeof buffer)
        return 1;
    tarn_ethsw_mgmt_port_enable_encode_ext(&request, buffer, sizeof buffer, NULL, NULL, 0);
    for (uint32_t i = 0; i < length; i++)
        printf("%02X ", buffer[i]); /* prints: 08 03 10 01 */
    printf("\n");
    return 0;
}
