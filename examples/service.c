/* SPDX-License-Identifier: MIT */
/* The switch-management service of the demo: answers one client until that closes or sends what is
 * no frame. A payload may be anything: it is answered or refused, and costs no more than the
 * budget. */

#include "answers.h"
#include "arena.h"
#include "report.h"

#include <stdio.h>
#include <stdlib.h>
#include <unistd.h>

/* For everything that one request needs: its members, its answer, and the encoding of that. */
#define REQUEST_BUDGET (128u * 1024u)

/* Room for any request that the service serves; those without fields need none. */
union request {
    tarn_ethsw_mgmt_port_reset port_reset;
    tarn_ethsw_mgmt_port_get_statistics port_get_statistics;
    tarn_ethsw_mgmt_fdb_get_table_entry fdb_get_table_entry;
    tarn_ethsw_mgmt_sdr_cfg sdr_cfg;
};

/* Nothing is released: after each request the arena takes all of it back, also what a crafted
 * message has made the record lose. */
static int32_t serve(const struct peer *peer, const struct frame *frame)
{
    const answer_fn answer = answer_to(frame->id);
    if (!answer)
        return message_refuse(peer, DEMO_ERR_UNKNOWN_RECORD);
    union request request;
    int32_t result = message_decode(peer, frame, &request, 0);
    if (result == WIRE_OK)
        result = answer(peer, &request);
    return result == WIRE_OK ? WIRE_OK : message_refuse(peer, result);
}

/* Returns how the connection ended: FRAME_CLOSED is the good end. */
static enum receive_status serve_all(const struct peer *peer, struct arena *arena)
{
    static struct frame frame;
    for (;;) {
        const enum receive_status status = transport_receive(peer->socket, &frame);
        if (status == FRAME_TOO_LONG)
            message_refuse(peer, DEMO_ERR_FRAME_TOO_LONG);
        if (status != FRAME_RECEIVED)
            return status;
        arena_reset(arena);
        if (serve(peer, &frame) != WIRE_OK)
            return FRAME_BROKEN;
    }
}

int main(int argc, char **argv)
{
    struct arena arena;
    report_start();
    if (argc != 2) {
        fprintf(stderr, "usage: %s SOCKET\n", argv[0]);
        return EXIT_FAILURE;
    }
    if (!arena_create(&arena, REQUEST_BUDGET)) {
        fprintf(stderr, "service: no memory\n");
        return EXIT_FAILURE;
    }
    const int socket = transport_accept(argv[1]);
    if (socket < 0) {
        fprintf(stderr, "service: no client at %s\n", argv[1]);
        arena_destroy(&arena);
        return EXIT_FAILURE;
    }
    const struct peer peer = {"service", socket, arena_take, arena_keep, &arena};
    const enum receive_status end = serve_all(&peer, &arena);
    close(socket);
    arena_destroy(&arena);
    if (end != FRAME_CLOSED)
        fprintf(stderr, "service: the client has gone astray\n");
    return end == FRAME_CLOSED ? EXIT_SUCCESS : EXIT_FAILURE;
}
