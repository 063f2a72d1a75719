/* SPDX-License-Identifier: MIT */
/* Shown in docs/ownership.md: two ways to start a record, and where they differ. */

#include "ethsw_mgmt/switch.h"

#include <stdio.h>

static void show(const char *how, const tarn_ethsw_mgmt_yield_switch_to_peer_response *answer)
{
    const tarn_esd_location_info *place = &answer->location;
    printf("%s: %u %u %X %u %X %u %X %u, %u bytes to send\n", how, (unsigned)place->field_1,
           (unsigned)place->field_2, (unsigned)place->field_3, (unsigned)place->field_4,
           (unsigned)place->field_5, (unsigned)place->field_6, (unsigned)place->field_7,
           (unsigned)place->field_8,
           (unsigned)tarn_ethsw_mgmt_yield_switch_to_peer_response_encode_ext(answer, NULL, 0, NULL,
                                                                              NULL, 0));
}

int main(void)
{
    tarn_ethsw_mgmt_yield_switch_to_peer_response answer = {0};
    show("zero bytes      ", &answer);
    tarn_ethsw_mgmt_yield_switch_to_peer_response_decode_ext(&answer, NULL, 0, NULL, NULL, 0);
    show("an empty message", &answer);
    return 0;
}
