/* SPDX-License-Identifier: MIT */
/* What the service answers: one function for each kind of request it serves. */

#ifndef EXAMPLES_ANSWERS_H
#define EXAMPLES_ANSWERS_H

#include "message.h"

/* Answers a decoded request with memory of the peer's, which is all given back afterwards. Returns
 * WIRE_OK, or why there is no answer. */
typedef int32_t (*answer_fn)(const struct peer *peer, const void *request);

/* Null for what is no request, or none that the service serves. */
answer_fn answer_to(uint32_t id);

#endif
