/* SPDX-License-Identifier: MIT */
/* Encodes an answer that holds a record of the sibling library, and decodes it again. */

#include "ethsw_mgmt/switch.h"

#include <stdio.h>
#include <stdlib.h>
#include <string.h>

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
    const char *const name = "consumer";
    tarn_ethsw_mgmt_switch_info sent = {0};
    sent.identity.field_1 = 21;
    sent.identity.has_field_1 = 1;
    sent.has_identity = 1;
    sent.name = name;
    sent.has_name = 1;
    uint8_t buffer[64];
    const uint32_t length =
        tarn_ethsw_mgmt_switch_info_encode_ext(&sent, buffer, sizeof buffer, NULL, NULL, 0);

    tarn_ethsw_mgmt_switch_info received;
    const int32_t result =
        tarn_ethsw_mgmt_switch_info_decode_ext(&received, buffer, length, take, NULL, 0);
    const int is_same = result == WIRE_OK && received.identity.field_1 == 21 && received.has_name &&
                        strcmp(received.name, name) == 0;
    tarn_ethsw_mgmt_switch_info_free_ext(&received, give_back, NULL, 0);
    puts(is_same ? "It is the same." : "It is another.");
    return is_same ? 0 : 1;
}
