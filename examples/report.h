/* SPDX-License-Identifier: MIT */
/* The table that the demo prints. Client and service write to the same output; each has its line
 * out before it lets the other go on, so the lines are in the order of what happens. */

#ifndef EXAMPLES_REPORT_H
#define EXAMPLES_REPORT_H

#include <stdbool.h>
#include <stdint.h>

/* Call first: lets no line be kept back. */
void report_start(void);

void report_title(const char *title);
void report_encoded(const char *who, const char *record, uint32_t bytes, uint32_t segments);
void report_decoded(const char *who, const char *record, uint32_t bytes, const char *result);
void report_refused(const char *who, uint32_t bytes, const char *reason);
void report_checked(const char *who, bool as_expected, const char *what);

#endif
