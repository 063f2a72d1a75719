/* SPDX-License-Identifier: MIT */
/* What the C half of the test offers to the C++ half. */

#ifndef TARN_TESTS_LIBRARY_USE_FROM_C_H
#define TARN_TESTS_LIBRARY_USE_FROM_C_H

#include "ethsw_mgmt/ethsw_mgmt.h"

#include <stddef.h>

#ifdef __cplusplus
extern "C" {
#endif

uint32_t encode_port_reset_in_c(uint32_t port, uint8_t *buffer, uint32_t capacity);
int32_t decode_port_reset_in_c(const uint8_t *buffer, uint32_t length, uint32_t *port);

#ifdef __cplusplus
}
#endif

#endif
