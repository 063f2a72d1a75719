/* SPDX-License-Identifier: MIT */
/* The table that the demo prints: see report.h. */

#include "report.h"

#include <inttypes.h>
#include <stdio.h>

void report_start(void)
{
    setvbuf(stdout, NULL, _IOLBF, BUFSIZ);
}

void report_title(const char *title)
{
    printf("\n%s\n", title);
}

void report_encoded(const char *who, const char *record, uint32_t bytes, uint32_t segments)
{
    printf("  %-7s  encodes  %-28s  %6" PRIu32 "  %8" PRIu32 "\n", who, record, bytes, segments);
}

void report_decoded(const char *who, const char *record, uint32_t bytes, const char *result)
{
    printf("  %-7s  decodes  %-28s  %6" PRIu32 "  %8s  %s\n", who, record, bytes, "", result);
}

void report_refused(const char *who, uint32_t bytes, const char *reason)
{
    printf("  %-7s  reads    %-28s  %6" PRIu32 "  %8s  it says %s\n", who, "(refusal)", bytes, "",
           reason);
}

void report_checked(const char *who, bool as_expected, const char *what)
{
    printf("  %-7s  checks   %s: %s\n", who, as_expected ? "as expected" : "NOT AS EXPECTED", what);
}
