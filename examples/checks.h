/* SPDX-License-Identifier: MIT */
/* Whether what the client has decoded is what the service has filled in. */

#ifndef EXAMPLES_CHECKS_H
#define EXAMPLES_CHECKS_H

#include "records.h"

#include <stdbool.h>

bool check_switch_info(const tarn_ethsw_mgmt_switch_info *info);
bool check_statistics(const tarn_ethsw_mgmt_port_get_statistics_resp *statistics, uint32_t port);
bool check_table(const tarn_ethsw_mgmt_fdb_get_table_entry_resp *table, uint32_t asked);
bool check_counters(const tarn_ethsw_mgmt_bridge_get_counters_response *counters);
bool check_breach(const tarn_ethsw_mgmt_bridge_sec_breach_details *breach);

#endif
