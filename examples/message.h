/* SPDX-License-Identifier: MIT */
/* Records in frames: the three steps of sending (measure, encode, send) and the two of receiving
 * (receive, decode), told once for all record types. Prints a row of the table for each. */

#ifndef EXAMPLES_MESSAGE_H
#define EXAMPLES_MESSAGE_H

#include "records.h"
#include "transport.h"

/* One end of the connection, and where its memory comes from and goes to. */
struct peer {
    const char *name;
    int socket;
    wire_alloc_fn take;
    wire_free_fn give;
    void *memory;
};

/* Results beside those of the library, which are 0 and below. */
enum {
    DEMO_ERR_UNKNOWN_RECORD = 1, /* the service does not serve such requests */
    DEMO_ERR_FRAME_TOO_LONG = 2,
    DEMO_ERR_NOT_SENT = 3,
};

const char *result_name(int32_t result);

/* WIRE_OK, WIRE_ERR_NO_MEMORY when there is no memory to encode into, or DEMO_ERR_NOT_SENT.
 * WIRE_FLAG_BYTES_IN_PLACE sends byte strings from where they are; only for record types without
 * nested records. `record` may be null for a type without fields. */
int32_t message_send(const struct peer *peer, enum record_id id, const void *record,
                     uint32_t flags);

/* Decodes a frame whose id is known to be that of `record`. Whatever the result, the record is to
 * be released afterwards, or its arena to be reset. */
int32_t message_decode(const struct peer *peer, const struct frame *frame, void *record,
                       uint32_t flags);

void message_release(const struct peer *peer, enum record_id id, void *record, uint32_t flags);

/* The answer to what cannot be decoded. No record type is meant for that, it is the transport's
 * business: here it is a frame with the number 0 and a result code (32 bits, little endian). */
int32_t message_refuse(const struct peer *peer, int32_t reason);

/* The result code in such a frame. */
int32_t message_refusal(const struct peer *peer, const struct frame *frame);

#endif
