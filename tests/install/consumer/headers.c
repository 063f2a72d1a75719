/* SPDX-License-Identifier: MIT */
/* Needs the headers and no library: it looks at a structure and at the version. */

#include "ethsw_mgmt/ethsw_mgmt.h"

#if TARN_ETHSW_MGMT_VERSION < 10000
#error "These headers are older than the first."
#endif

int main(void)
{
    const tarn_ethsw_mgmt_port_enable request = {.port = 3, .has_port = 1};
    return request.port == 3 && !request.has_enable && WIRE_OK == 0 ? 0 : 1;
}
