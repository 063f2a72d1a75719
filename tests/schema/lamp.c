/* SPDX-License-Identifier: MIT */
/* Sends the record types that the test add_type has added there and back again. */

#include "ethsw_mgmt/switch.h"

#include <stdlib.h>
#include <string.h>

static void *take(uint32_t size, void *context)
{
    ++*(int *)context;
    return malloc(size);
}

static void give_back(void *block, void *context)
{
    --*(int *)context;
    free(block);
}

int main(void)
{
    static const uint8_t bytes[] = {0x08, 5, 0x12, 3, 'r', 'e', 'd'};
    const tarn_ethsw_mgmt_port_lamp_resp lamp = {
        .colour = 5, .has_colour = 1, .label = "red", .has_label = 1};
    uint8_t buffer[sizeof bytes];
    int blocks = 0;
    if (tarn_ethsw_mgmt_port_lamp_resp_encode_ext(&lamp, buffer, sizeof buffer, NULL, NULL, 0) !=
            sizeof bytes ||
        memcmp(buffer, bytes, sizeof bytes) != 0)
        return 1;

    tarn_ethsw_mgmt_port_lamp_resp read;
    if (tarn_ethsw_mgmt_port_lamp_resp_decode_ext(&read, buffer, sizeof buffer, take, &blocks, 0) !=
            WIRE_OK ||
        !read.has_colour || read.colour != 5 || !read.has_label || strcmp(read.label, "red") != 0 ||
        blocks != 1)
        return 2;
    tarn_ethsw_mgmt_port_lamp_resp_free_ext(&read, give_back, &blocks, 0);
    return blocks == 0 ? 0 : 3;
}
