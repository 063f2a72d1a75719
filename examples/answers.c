/* SPDX-License-Identifier: MIT */
/* What the service answers: fills a record, starting from zero bytes, and sends it. */

#include "answers.h"

#include "values.h"

#include <stddef.h>
#include <string.h>

/* An array for a list member, filled with zero bytes like every record one starts; or null. */
static void *take_zeroed(const struct peer *peer, uint32_t count, uint32_t element_size)
{
    if (count > UINT32_MAX / element_size)
        return NULL;
    void *array = peer->take(count * element_size, peer->memory);
    return array ? memset(array, 0, (size_t)count * element_size) : NULL;
}

static int32_t answer_port_reset(const struct peer *peer, const void *request)
{
    const tarn_ethsw_mgmt_port_reset *reset = request;
    tarn_ethsw_mgmt_port_reset_resp answer = {0};
    SET(&answer, field_1, some_value(reset->port, 1));
    return message_send(peer, record_port_reset_resp, &answer, 0);
}

static void fill_port(tarn_ethsw_mgmt_port_info *port, uint32_t place)
{
    port->has_identity = 1;
    SET(&port->identity, field_1, some_value(place, 1));
    SET(port, field_2, some_value(place, 2));
    SET(port, field_3, PORT_TEXT);
    port->has_phy = 1;
    SET(&port->phy, field_1, some_value(place, 41));
    SET(&port->phy.identity, field_2, some_value(place, 42));
    port->has_sfp = 1;
    SET(&port->sfp, field_1, some_value(place, 51));
    SET(&port->sfp, field_3, place % 2);
    SET(port, field_7, some_value(place, 7));
}

static int32_t answer_switch_info(const struct peer *peer, const void *request)
{
    (void)request; /* carries nothing */
    uint32_t identity_list[] = {some_value(0, 61), some_value(0, 62)};
    tarn_ethsw_mgmt_port_info *ports = take_zeroed(peer, SWITCH_PORTS, sizeof *ports);
    if (!ports)
        return WIRE_ERR_NO_MEMORY;
    for (uint32_t i = 0; i < SWITCH_PORTS; i++)
        fill_port(&ports[i], i);

    tarn_ethsw_mgmt_switch_info answer = {0};
    answer.has_identity = 1;
    SET(&answer.identity, field_1, some_value(0, 21));
    SET_LIST(&answer.identity, field_6, identity_list, 2);
    SET(&answer, name, SWITCH_NAME);
    SET(&answer, field_6, 1);
    SET_LIST(&answer, ports, ports, SWITCH_PORTS);
    SET(&answer, field_9, some_wide_value(0, 9));
    return message_send(peer, record_switch_info, &answer, 0);
}

static int32_t answer_statistics(const struct peer *peer, const void *request)
{
    const tarn_ethsw_mgmt_port_get_statistics *wanted = request;
    tarn_ethsw_mgmt_port_get_statistics_resp answer = {0};
#define FILL(number) SET(&answer, field_##number, some_value(wanted->port, number));
#define FILL_WIDE(number) SET(&answer, field_##number, some_wide_value(wanted->port, number));
    EACH_STATISTIC(FILL)
    EACH_WIDE_STATISTIC(FILL_WIDE)
#undef FILL
#undef FILL_WIDE
    return message_send(peer, record_port_get_statistics_resp, &answer, 0);
}

static void fill_table_entry(tarn_ethsw_mgmt_fdb_table_entry *entry, uint32_t place)
{
#define FILL(number) SET(entry, field_##number, some_value(place, number));
    EACH_ENTRY_VALUE(FILL)
#undef FILL
    SET(entry, field_3, some_wide_value(place, 3));
    SET(entry, field_8, place % 2);
}

static int32_t answer_table(const struct peer *peer, const void *request)
{
    const tarn_ethsw_mgmt_fdb_get_table_entry *wanted = request;
    tarn_ethsw_mgmt_fdb_table_entry *entries = take_zeroed(peer, TABLE_ENTRIES, sizeof *entries);
    if (!entries)
        return WIRE_ERR_NO_MEMORY;
    for (uint32_t i = 0; i < TABLE_ENTRIES; i++)
        fill_table_entry(&entries[i], i);

    tarn_ethsw_mgmt_fdb_get_table_entry_resp answer = {0};
    SET(&answer, field_1, wanted->field_1);
    SET_LIST(&answer, entries, entries, TABLE_ENTRIES);
    SET(&answer, field_4, TABLE_TEXT);
    return message_send(peer, record_fdb_get_table_entry_resp, &answer, 0);
}

static void fill_breach(tarn_ethsw_mgmt_bridge_sec_breach_details *breach, uint8_t *bytes)
{
    for (uint32_t i = 0; i < BREACH_BYTES; i++)
        bytes[i] = some_byte(i);
    SET(breach, field_1, some_value(0, 1));
    SET_BYTES(breach, field_3, bytes, BREACH_BYTES);
    SET(breach, field_4, some_value(0, 4));
    SET(breach, field_5, BREACH_TEXT);
}

/* The answer carries the details of the breach as a nested record, so its byte string is copied:
 * left in place, it would be missing from the length in front of that record. The notification
 * that follows unasked is the same details on their own, and there it stays where it is. */
static int32_t answer_counters(const struct peer *peer, const void *request)
{
    (void)request; /* carries nothing */
    uint8_t bytes[BREACH_BYTES];
    tarn_ethsw_mgmt_bridge_sec_breach_counters counters = {0};
    tarn_ethsw_mgmt_bridge_sec_breach_details breach = {0};
    tarn_ethsw_mgmt_bridge_get_counters_response answer = {0};
    SET(&counters, field_2, some_value(0, 2));
    fill_breach(&breach, bytes);
    SET(&answer, field_1, some_value(1, 1));
    SET_LIST(&answer, sec_breach_counters, &counters, 1);
    SET_LIST(&answer, sec_breach_details, &breach, 1);
    const int32_t result = message_send(peer, record_bridge_get_counters_response, &answer, 0);
    if (result != WIRE_OK)
        return result;
    return message_send(peer, record_bridge_sec_breach_details, &breach, WIRE_FLAG_BYTES_IN_PLACE);
}

static int32_t answer_sdr_cfg(const struct peer *peer, const void *request)
{
    const tarn_ethsw_mgmt_sdr_cfg *wanted = request;
    tarn_ethsw_mgmt_sdr_cfg_result *results =
        take_zeroed(peer, wanted->sdrs_count, sizeof *results);
    if (!results)
        return WIRE_ERR_NO_MEMORY;
    for (uint32_t i = 0; i < wanted->sdrs_count; i++) {
        SET(&results[i], field_1, wanted->sdrs[i].field_1);
        SET(&results[i], field_2, wanted->sdrs[i].vlans_count);
    }
    tarn_ethsw_mgmt_sdr_cfg_resp answer = {0};
    SET_LIST(&answer, results, results, wanted->sdrs_count);
    return message_send(peer, record_sdr_cfg_resp, &answer, 0);
}

answer_fn answer_to(uint32_t id)
{
    switch (id) {
    case record_port_reset:
        return answer_port_reset;
    case record_get_switch_info:
        return answer_switch_info;
    case record_port_get_statistics:
        return answer_statistics;
    case record_fdb_get_table_entry:
        return answer_table;
    case record_bridge_get_counters:
        return answer_counters;
    case record_sdr_cfg:
        return answer_sdr_cfg;
    default:
        return NULL;
    }
}
