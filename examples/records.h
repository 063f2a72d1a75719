/* SPDX-License-Identifier: MIT */
/* The record types that client and service have agreed on, and how a member is set and asked for.
 *
 * The library has no list of record types and does not say which one some bytes are: a program
 * picks an operation by its name. Whoever sends several record types over one channel numbers
 * them, as is done here. */

#ifndef EXAMPLES_RECORDS_H
#define EXAMPLES_RECORDS_H

#include "ethsw_mgmt/forwarding.h"
#include "ethsw_mgmt/sdr.h"
#include "ethsw_mgmt/switch.h"

#include <stdint.h>

/* Both sides know a record type by its place in this list: append, do not insert. */
#define EACH_RECORD(X)                                                                             \
    X(port_reset)                                                                                  \
    X(port_reset_resp)                                                                             \
    X(get_switch_info)                                                                             \
    X(switch_info)                                                                                 \
    X(port_get_statistics)                                                                         \
    X(port_get_statistics_resp)                                                                    \
    X(fdb_get_table_entry)                                                                         \
    X(fdb_get_table_entry_resp)                                                                    \
    X(bridge_get_counters)                                                                         \
    X(bridge_get_counters_response)                                                                \
    X(bridge_sec_breach_details)                                                                   \
    X(sdr_cfg)                                                                                     \
    X(sdr_cfg_resp)

/* record_port_reset and so on. 0 is a frame of the demo's own: see message_refuse(). */
#define RECORD_ID(name) record_##name,
enum record_id { record_refusal = 0, EACH_RECORD(RECORD_ID) record_id_end };
#undef RECORD_ID

/* Three of the four operations of a record type, with the type left out so that one function can
 * serve all of them. */
struct record_type {
    const char *name;
    uint32_t (*encode)(const void *record, uint8_t *buffer, uint32_t capacity,
                       WireSegment *segments, uint32_t *segment_count, uint32_t flags);
    int32_t (*decode)(void *record, const uint8_t *buf, uint32_t len, wire_alloc_fn alloc_fn,
                      void *alloc_ctx, uint32_t flags);
    void (*release)(void *record, wire_free_fn free_fn, void *free_ctx, uint32_t flags);
};

const struct record_type *record_type_of(enum record_id id);

/* A member is sent only when its flag is set, too; forgetting that is the usual mistake. */
#define SET(record, member, value) ((record)->member = (value), (record)->has_##member = 1)
#define SET_LIST(record, member, elements, number)                                                 \
    (SET(record, member, elements), (record)->member##_count = (number))
#define SET_BYTES(record, member, bytes, size)                                                     \
    (SET(record, member, bytes), (record)->member##_length = (size))

/* Whether a member has come, and with that value. */
#define IS(record, member, value) ((record)->has_##member && (record)->member == (value))
#define IS_TEXT(record, member, text)                                                              \
    ((record)->has_##member && strcmp((record)->member, (text)) == 0)
#define IS_LIST(record, member, number)                                                            \
    ((record)->has_##member && (record)->member##_count == (number))

#endif
