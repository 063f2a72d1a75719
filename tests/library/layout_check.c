/* SPDX-License-Identifier: MIT */
/* The layouts as C sees them. */
#include "tests/library/layout_table.h"

#include TARN_ABI_TABLE
