/* SPDX-License-Identifier: MIT */
/* A caller in C11: the record is filled here, encoded here, and read by C++. */

#include "tests/library/use_from_c.h"

uint32_t encode_port_reset_in_c(uint32_t port, uint8_t *buffer, uint32_t capacity)
{
    tarn_ethsw_mgmt_port_reset request = {0};
    request.port = port;
    request.has_port = 1;
    return tarn_ethsw_mgmt_port_reset_encode_ext(&request, buffer, capacity, NULL, NULL, 0);
}

int32_t decode_port_reset_in_c(const uint8_t *buffer, uint32_t length, uint32_t *port)
{
    tarn_ethsw_mgmt_port_reset request;
    const int32_t result =
        tarn_ethsw_mgmt_port_reset_decode_ext(&request, buffer, length, NULL, NULL, 0);
    *port = request.has_port ? request.port : 0;
    return result;
}
