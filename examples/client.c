/* SPDX-License-Identifier: MIT */
/* The management client of the demo. It takes its memory from the heap, block by block, and gives
 * it back by releasing what it has decoded. It trusts the service: one that sends an embedded
 * record twice would cost it the blocks of the first. Where that is no good, use an arena as the
 * service does. */

#include "exchanges.h"
#include "report.h"

#include <stdio.h>
#include <stdlib.h>
#include <unistd.h>

struct heap {
    uint32_t blocks_out;
};

/* malloc(0) may be null, and null is a failure. */
static void *heap_take(uint32_t size, void *context)
{
    struct heap *heap = context;
    void *block = malloc(size > 0 ? size : 1);
    if (block)
        heap->blocks_out++;
    return block;
}

static void heap_give(void *block, void *context)
{
    struct heap *heap = context;
    heap->blocks_out--;
    free(block);
}

static void explain(void)
{
    printf("A management client and a switch-management service, two processes, exchange records "
           "over a Unix\nsocket. Each line is one step: who does what with which record, the bytes "
           "of its encoding, in how\nmany segments it goes to sendmsg, and the result code of "
           "decoding it.\n\n");
    printf("  %-7s  %-7s  %-28s  %6s  %8s  %s\n", "who", "does", "record", "bytes", "segments",
           "result");
}

/* Stops at the first exchange that does not go as expected. */
static bool converse(const struct client *client)
{
    return reset_a_port(client) && ask_for_the_switch(client) && ask_for_statistics(client) &&
           ask_for_the_table(client) && hear_of_a_breach(client) &&
           send_a_malformed_request(client) && send_a_greedy_request(client) &&
           send_a_good_request(client);
}

int main(int argc, char **argv)
{
    static struct frame answer, notification;
    struct heap heap = {0};
    report_start();
    if (argc != 2 && argc != 3) {
        fprintf(stderr, "usage: %s SOCKET [FILE FOR THE SWITCH_INFO]\n", argv[0]);
        return EXIT_FAILURE;
    }
    const int socket = transport_connect(argv[1]);
    if (socket < 0) {
        fprintf(stderr, "client: no service at %s\n", argv[1]);
        return EXIT_FAILURE;
    }
    const struct client client = {
        {"client", socket, heap_take, heap_give, &heap}, &answer, &notification, argv[2]};
    explain();
    const bool good = converse(&client);
    close(socket);
    if (heap.blocks_out > 0)
        fprintf(stderr, "client: %u blocks of memory were not given back\n",
                (unsigned)heap.blocks_out);
    return good && heap.blocks_out == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
