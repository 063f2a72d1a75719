/* SPDX-License-Identifier: MIT */
/* Generated from ethsw_mgmt/*.proto by generator/regenerate. Do not edit: change the schema and run it. */

/** @file
 * All record types of the set.
 */

#ifndef TARN_ETHSW_MGMT_ETHSW_MGMT_H
#define TARN_ETHSW_MGMT_ETHSW_MGMT_H

#include "ethsw_mgmt/classification.h"
#include "ethsw_mgmt/diagnostics.h"
#include "ethsw_mgmt/forwarding.h"
#include "ethsw_mgmt/hardware.h"
#include "ethsw_mgmt/integrity.h"
#include "ethsw_mgmt/queue.h"
#include "ethsw_mgmt/sdr.h"
#include "ethsw_mgmt/switch.h"

#endif
