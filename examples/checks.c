/* SPDX-License-Identifier: MIT */
/* Whether what the client has decoded is what the service has filled in. */

#include "checks.h"

#include "values.h"

#include <string.h>

static bool check_port(const tarn_ethsw_mgmt_port_info *port, uint32_t place)
{
    return port->has_identity && IS(&port->identity, field_1, some_value(place, 1)) &&
           IS(port, field_2, some_value(place, 2)) && IS_TEXT(port, field_3, PORT_TEXT) &&
           port->has_phy && IS(&port->phy, field_1, some_value(place, 41)) &&
           port->phy.has_identity && IS(&port->phy.identity, field_2, some_value(place, 42)) &&
           !port->phy.has_field_3 && port->has_sfp &&
           IS(&port->sfp, field_1, some_value(place, 51)) && IS(&port->sfp, field_3, place % 2) &&
           !port->has_field_6 && IS(port, field_7, some_value(place, 7));
}

bool check_switch_info(const tarn_ethsw_mgmt_switch_info *info)
{
    const tarn_calv_eid_st *identity = &info->identity;
    if (info->has_field_1 || !info->has_identity || !IS_TEXT(info, name, SWITCH_NAME) ||
        !IS(info, field_6, 1) || !IS(info, field_9, some_wide_value(0, 9)))
        return false;
    if (!IS(identity, field_1, some_value(0, 21)) || !IS_LIST(identity, field_6, 2) ||
        identity->field_6[0] != some_value(0, 61) || identity->field_6[1] != some_value(0, 62))
        return false;
    if (!IS_LIST(info, ports, SWITCH_PORTS))
        return false;
    for (uint32_t i = 0; i < SWITCH_PORTS; i++)
        if (!check_port(&info->ports[i], i))
            return false;
    return true;
}

bool check_statistics(const tarn_ethsw_mgmt_port_get_statistics_resp *statistics, uint32_t port)
{
    bool good = true;
#define CHECK(number) good = good && IS(statistics, field_##number, some_value(port, number));
#define CHECK_WIDE(number)                                                                         \
    good = good && IS(statistics, field_##number, some_wide_value(port, number));
    EACH_STATISTIC(CHECK)
    EACH_WIDE_STATISTIC(CHECK_WIDE)
#undef CHECK
#undef CHECK_WIDE
    return good;
}

static bool check_table_entry(const tarn_ethsw_mgmt_fdb_table_entry *entry, uint32_t place)
{
    bool good = IS(entry, field_3, some_wide_value(place, 3)) && IS(entry, field_8, place % 2);
#define CHECK(number) good = good && IS(entry, field_##number, some_value(place, number));
    EACH_ENTRY_VALUE(CHECK)
#undef CHECK
    return good;
}

bool check_table(const tarn_ethsw_mgmt_fdb_get_table_entry_resp *table, uint32_t asked)
{
    if (!IS(table, field_1, asked) || table->has_field_3 || !IS_TEXT(table, field_4, TABLE_TEXT) ||
        !IS_LIST(table, entries, TABLE_ENTRIES))
        return false;
    for (uint32_t i = 0; i < TABLE_ENTRIES; i++)
        if (!check_table_entry(&table->entries[i], i))
            return false;
    return true;
}

bool check_breach(const tarn_ethsw_mgmt_bridge_sec_breach_details *breach)
{
    if (!IS(breach, field_1, some_value(0, 1)) || breach->has_field_2 || !breach->has_field_3 ||
        breach->field_3_length != BREACH_BYTES || !IS(breach, field_4, some_value(0, 4)) ||
        !IS_TEXT(breach, field_5, BREACH_TEXT))
        return false;
    for (uint32_t i = 0; i < BREACH_BYTES; i++)
        if (breach->field_3[i] != some_byte(i))
            return false;
    return true;
}

bool check_counters(const tarn_ethsw_mgmt_bridge_get_counters_response *counters)
{
    return IS(counters, field_1, some_value(1, 1)) && !counters->has_ingress &&
           IS_LIST(counters, sec_breach_counters, 1) &&
           IS(&counters->sec_breach_counters[0], field_2, some_value(0, 2)) &&
           IS_LIST(counters, sec_breach_details, 1) &&
           check_breach(&counters->sec_breach_details[0]);
}
