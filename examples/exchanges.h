/* SPDX-License-Identifier: MIT */
/* What the client has to say to the service. Each exchange is true when it went as expected. */

#ifndef EXAMPLES_EXCHANGES_H
#define EXAMPLES_EXCHANGES_H

#include "message.h"

#include <stdbool.h>

struct client {
    struct peer peer;
    struct frame *answer;         /* what was received last, each in a frame of its own: */
    struct frame *notification;   /* records decoded in place need their frame for longer */
    const char *switch_info_path; /* where to leave the bytes of the switch_info, or null */
};

bool reset_a_port(const struct client *client);
bool ask_for_the_switch(const struct client *client);
bool ask_for_statistics(const struct client *client);
bool ask_for_the_table(const struct client *client);
bool hear_of_a_breach(const struct client *client);
bool send_a_malformed_request(const struct client *client);
bool send_a_greedy_request(const struct client *client);
bool send_a_good_request(const struct client *client);

#endif
