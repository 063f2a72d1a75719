/* SPDX-License-Identifier: MIT */

/** @file
 * The version of the headers. The build takes it from here, so it is the library's and the packages'
 * version, too. The library itself carries no version that a program could ask for: what matters at
 * run time is the soname, which holds the major version.
 */

#ifndef TARN_ETHSW_MGMT_VERSION_H
#define TARN_ETHSW_MGMT_VERSION_H

/** Rises when programs have to be compiled anew: a layout has changed, or a name has gone. */
#define TARN_ETHSW_MGMT_VERSION_MAJOR 1
/** Rises when something is added that programs may use: a record type, a name. */
#define TARN_ETHSW_MGMT_VERSION_MINOR 0
/** Rises with every other release. */
#define TARN_ETHSW_MGMT_VERSION_PATCH 0

/** All of it as one number to compare with: 10203 is 1.2.3. */
#define TARN_ETHSW_MGMT_VERSION                                                                    \
    (TARN_ETHSW_MGMT_VERSION_MAJOR * 10000 + TARN_ETHSW_MGMT_VERSION_MINOR * 100 +                 \
     TARN_ETHSW_MGMT_VERSION_PATCH)

#endif
