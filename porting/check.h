/* SPDX-License-Identifier: MIT */
/* What the two programs for a new target share: a line for each check, and a verdict. */

#ifndef PORTING_CHECK_H
#define PORTING_CHECK_H

#include <stdarg.h>
#include <stdbool.h>
#include <stdio.h>
#include <stdlib.h>

static unsigned differences;

/* Prints what was looked at, and with a difference what was found. */
__attribute__((format(printf, 2, 3))) static void check(bool good, const char *what, ...)
{
    va_list arguments;
    va_start(arguments, what);
    printf("%s  ", good ? "ok     " : "DIFFERS");
    vprintf(what, arguments);
    printf("\n");
    va_end(arguments);
    if (!good)
        differences++;
}

static int verdict(const char *good)
{
    if (differences == 0) {
        printf("%s\n", good);
        return EXIT_SUCCESS;
    }
    printf("%u of the checks differ: do not use the library as it is compiled here.\n",
           differences);
    return EXIT_FAILURE;
}

#endif
