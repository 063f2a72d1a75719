/* SPDX-License-Identifier: MIT */
/* Shown in docs/ownership.md: a byte string that stays in the input, and a copy that does not. */

#include "ethsw_mgmt/forwarding.h"

#include <stdio.h>
#include <stdlib.h>

static void *take(uint32_t size, void *context)
{
    (void)context;
    printf("take %u bytes\n", (unsigned)size);
    return malloc(size ? size : 1);
}

static void give_back(void *block, void *context)
{
    (void)context;
    printf("give back\n");
    free(block);
}

int main(void)
{
    static const uint8_t input[] = {0x1A, 0x04, 0xDE, 0xAD, 0xBE, 0xEF, 0x2A, 0x02, 'h', 'i'};
    tarn_ethsw_mgmt_bridge_sec_breach_details details;
    tarn_ethsw_mgmt_bridge_sec_breach_details copy;

    tarn_ethsw_mgmt_bridge_sec_breach_details_decode_ext(&details, input, sizeof input, take, NULL,
                                                         WIRE_FLAG_BYTES_IN_PLACE);
    printf("%u bytes at input + %d, text %s\n", (unsigned)details.field_3_length,
           (int)(details.field_3 - input), details.field_5);

    /* A copy owns all it has, so its flags are 0; the original keeps those it was decoded with. */
    tarn_ethsw_mgmt_bridge_sec_breach_details_duplicate(&copy, &details, take, NULL);
    tarn_ethsw_mgmt_bridge_sec_breach_details_free_ext(&details, give_back, NULL,
                                                       WIRE_FLAG_BYTES_IN_PLACE);
    printf("released: %u bytes at input + %d, text %s\n", (unsigned)details.field_3_length,
           (int)(details.field_3 - input), details.field_5 ? details.field_5 : "null");
    tarn_ethsw_mgmt_bridge_sec_breach_details_free_ext(&copy, give_back, NULL, 0);
    printf("released: %u bytes at %s\n", (unsigned)copy.field_3_length,
           copy.field_3 ? "its block" : "null");
    return 0;
}
