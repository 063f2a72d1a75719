/* SPDX-License-Identifier: MIT */
/* How the two processes reach each other: frames over a Unix stream socket. The library has no
 * part in this; bring your own transport.
 *
 * A frame is a header of eight bytes, the number of a record type and the length of the payload
 * (both 32 bits, little endian), and then the payload, which is the encoding of the record. */

#ifndef EXAMPLES_TRANSPORT_H
#define EXAMPLES_TRANSPORT_H

#include "runtime/record.h"

#include <stdbool.h>
#include <stdint.h>

/* Nobody gets more memory than this by announcing a long payload. */
#define FRAME_PAYLOAD_MAX (128u * 1024u)

/* Enough for every record: the one with the most byte strings has eleven, so twelve pieces of
 * buffer around them. */
#define FRAME_SEGMENTS_MAX 23u

struct frame {
    uint32_t id;
    uint32_t length;
    uint8_t payload[FRAME_PAYLOAD_MAX];
};

enum receive_status {
    FRAME_RECEIVED,
    FRAME_CLOSED,   /* the peer has closed, between two frames */
    FRAME_TOO_LONG, /* the payload would not fit: there is no going on after that */
    FRAME_BROKEN,   /* the peer has closed within a frame, or takes too long, or an error */
};

/* Waits for one client at `path`, then removes `path`. Returns a socket, or -1. */
int transport_accept(const char *path);

/* Tries for two seconds, because the service may just be starting. Returns a socket, or -1. */
int transport_connect(const char *path);

/* Sends the pieces as the payload of one frame, without joining them first. */
bool transport_send(int socket, uint32_t id, const WireSegment *segments, uint32_t count);

enum receive_status transport_receive(int socket, struct frame *frame);

#endif
