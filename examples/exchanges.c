/* SPDX-License-Identifier: MIT */
/* What the client has to say to the service. Every record starts from zero bytes: then a member
 * that is not set is absent, and one that was never decoded into can be released. */

#include "exchanges.h"

#include "checks.h"
#include "report.h"
#include "values.h"

#include <stdio.h>
#include <string.h>

static bool verdict(const struct client *client, bool good, const char *finding)
{
    report_checked(client->peer.name, good, finding);
    return good;
}

static bool receive(const struct client *client, struct frame *frame, uint32_t id)
{
    return transport_receive(client->peer.socket, frame) == FRAME_RECEIVED && frame->id == id;
}

/* Sends a request and decodes its answer, which is to be released in any case. */
static bool ask(const struct client *client, enum record_id request_id, const void *request,
                enum record_id answer_id, void *answer)
{
    return message_send(&client->peer, request_id, request, 0) == WIRE_OK &&
           receive(client, client->answer, answer_id) &&
           message_decode(&client->peer, client->answer, answer, 0) == WIRE_OK;
}

bool reset_a_port(const struct client *client)
{
    tarn_ethsw_mgmt_port_reset request = {0};
    tarn_ethsw_mgmt_port_reset_resp answer = {0};
    report_title("1. The client has a port reset.");
    SET(&request, port, 7);
    const bool good = ask(client, record_port_reset, &request, record_port_reset_resp, &answer) &&
                      IS(&answer, field_1, some_value(7, 1));
    message_release(&client->peer, record_port_reset_resp, &answer, 0);
    return verdict(client, good, "the one value is the service's");
}

static bool save_payload(const struct client *client)
{
    if (!client->switch_info_path)
        return true;
    FILE *file = fopen(client->switch_info_path, "wb");
    if (!file)
        return false;
    const size_t length = client->answer->length;
    const bool written = fwrite(client->answer->payload, 1, length, file) == length;
    return fclose(file) == 0 && written;
}

bool ask_for_the_switch(const struct client *client)
{
    tarn_ethsw_mgmt_switch_info answer = {0};
    report_title("2. It asks what the switch is. A request without fields has no bytes at all.");
    const bool good = ask(client, record_get_switch_info, NULL, record_switch_info, &answer) &&
                      check_switch_info(&answer) && save_payload(client);
    message_release(&client->peer, record_switch_info, &answer, 0);
    return verdict(client, good, "identity, name and 48 ports, each with its PHY and SFP parts");
}

bool ask_for_statistics(const struct client *client)
{
    tarn_ethsw_mgmt_port_get_statistics request = {0};
    tarn_ethsw_mgmt_port_get_statistics_resp answer = {0};
    report_title("3. It asks for the statistics of a port.");
    SET(&request, port, 12);
    const bool good = ask(client, record_port_get_statistics, &request,
                          record_port_get_statistics_resp, &answer) &&
                      check_statistics(&answer, 12);
    message_release(&client->peer, record_port_get_statistics_resp, &answer, 0);
    return verdict(client, good, "39 values");
}

bool ask_for_the_table(const struct client *client)
{
    tarn_ethsw_mgmt_fdb_get_table_entry request = {0};
    tarn_ethsw_mgmt_fdb_get_table_entry_resp answer = {0};
    report_title("4. It asks for entries of the forwarding table.");
    SET(&request, field_1, 5);
    SET(&request, field_5, some_wide_value(0, 5));
    const bool good = ask(client, record_fdb_get_table_entry, &request,
                          record_fdb_get_table_entry_resp, &answer) &&
                      check_table(&answer, 5);
    message_release(&client->peer, record_fdb_get_table_entry_resp, &answer, 0);
    return verdict(client, good, "1000 entries of 12 values");
}

/* Whether the byte string was left in the frame it came in. */
static bool is_in_frame(const struct frame *frame, const uint8_t *bytes, uint32_t length)
{
    const uintptr_t offset = (uintptr_t)bytes - (uintptr_t)frame->payload;
    return offset <= frame->length && length <= frame->length - offset;
}

/* Decoded in place, the record is good for as long as the frame is; a duplicate has everything of
 * its own and outlives it. */
static bool decode_notification(const struct client *client)
{
    const struct peer *peer = &client->peer;
    struct frame *frame = client->notification;
    tarn_ethsw_mgmt_bridge_sec_breach_details breach = {0}, copy = {0};
    bool good = message_decode(peer, frame, &breach, WIRE_FLAG_BYTES_IN_PLACE) == WIRE_OK &&
                check_breach(&breach) &&
                is_in_frame(frame, breach.field_3, breach.field_3_length) &&
                tarn_ethsw_mgmt_bridge_sec_breach_details_duplicate(&copy, &breach, peer->take,
                                                                    peer->memory) == WIRE_OK;
    message_release(peer, record_bridge_sec_breach_details, &breach, WIRE_FLAG_BYTES_IN_PLACE);
    memset(frame->payload, 0, frame->length);
    good = good && check_breach(&copy);
    message_release(peer, record_bridge_sec_breach_details, &copy, 0);
    return verdict(client, good, "the same details; a duplicate outlives the bytes received");
}

bool hear_of_a_breach(const struct client *client)
{
    tarn_ethsw_mgmt_bridge_get_counters_response answer = {0};
    report_title("5. It asks for the bridge's counters; a notification follows unasked. The byte "
                 "string in that\n   (1024 bytes) is copied neither to send it nor to decode it.");
    const bool good = message_send(&client->peer, record_bridge_get_counters, NULL, 0) == WIRE_OK &&
                      receive(client, client->answer, record_bridge_get_counters_response) &&
                      receive(client, client->notification, record_bridge_sec_breach_details) &&
                      message_decode(&client->peer, client->answer, &answer, 0) == WIRE_OK &&
                      check_counters(&answer);
    message_release(&client->peer, record_bridge_get_counters_response, &answer, 0);
    return verdict(client, good, "counters and details of the breach") &&
           decode_notification(client);
}

/* Sends bytes that no encoder made and expects to be refused for `reason`. */
static bool be_refused(const struct client *client, const uint8_t *bytes, uint32_t length,
                       int32_t reason)
{
    const WireSegment segment = {.data = bytes, .length = length};
    report_encoded(client->peer.name, "(sdr_cfg, by hand)", length, 1);
    return transport_send(client->peer.socket, record_sdr_cfg, &segment, 1) &&
           receive(client, client->answer, record_refusal) &&
           message_refusal(&client->peer, client->answer) == reason;
}

bool send_a_malformed_request(const struct client *client)
{
    /* Field 1, five bytes long; only two follow. */
    static const uint8_t bytes[] = {0x0A, 0x05, 0x08, 0x01};
    report_title("6. It sends a request that ends too early.");
    return verdict(client, be_refused(client, bytes, sizeof bytes, WIRE_ERR_MALFORMED),
                   "refused, and why");
}

bool send_a_greedy_request(const struct client *client)
{
    /* Field 1, nothing in it, again and again: two bytes here are a whole record there. */
    static uint8_t bytes[12 * 1024];
    for (uint32_t i = 0; i < sizeof bytes; i += 2)
        bytes[i] = 0x0A;
    report_title("7. It sends a request that would make the service take more memory than it may.");
    return verdict(client, be_refused(client, bytes, sizeof bytes, WIRE_ERR_NO_MEMORY),
                   "refused, and why");
}

bool send_a_good_request(const struct client *client)
{
    tarn_ethsw_mgmt_sdr_vlan vlan = {0};
    tarn_ethsw_mgmt_sdr_data sdrs[SDR_COUNT] = {0};
    tarn_ethsw_mgmt_sdr_cfg request = {0};
    tarn_ethsw_mgmt_sdr_cfg_resp answer = {0};
    report_title("8. It sends the same kind of request as it should be; the service is unharmed.");
    SET(&vlan, field_2, "demo vlan");
    for (uint32_t i = 0; i < SDR_COUNT; i++)
        SET(&sdrs[i], field_1, some_value(i, 1));
    SET_LIST(&sdrs[1], vlans, &vlan, 1);
    SET_LIST(&request, sdrs, sdrs, SDR_COUNT);
    bool good = ask(client, record_sdr_cfg, &request, record_sdr_cfg_resp, &answer) &&
                IS_LIST(&answer, results, SDR_COUNT);
    for (uint32_t i = 0; good && i < SDR_COUNT; i++)
        good = IS(&answer.results[i], field_1, some_value(i, 1)) &&
               IS(&answer.results[i], field_2, i == 1);
    message_release(&client->peer, record_sdr_cfg_resp, &answer, 0);
    return verdict(client, good, "a result for each of the three definitions");
}
