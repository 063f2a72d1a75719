/* SPDX-License-Identifier: MIT */
/* Generated from ethsw_mgmt/hardware.proto by generator/regenerate. Do not edit: change the schema and run it. */

/** @file
 * The hardware around the switch: PHYs, SerDes lanes, SFP modules and the programmable devices
 * (FPDs).
 */

#ifndef TARN_ETHSW_MGMT_HARDWARE_H
#define TARN_ETHSW_MGMT_HARDWARE_H

#include "runtime/record.h"

/** Asks for the PHY poll mode; carries nothing. Answered by
 *  tarn_ethsw_mgmt_debug_get_phy_poll_mode_rsp. */
typedef struct tarn_ethsw_mgmt_debug_get_phy_poll_mode tarn_ethsw_mgmt_debug_get_phy_poll_mode;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_debug_get_phy_poll_mode);

/** Answer to tarn_ethsw_mgmt_debug_get_phy_poll_mode. */
typedef struct tarn_ethsw_mgmt_debug_get_phy_poll_mode_rsp {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
} tarn_ethsw_mgmt_debug_get_phy_poll_mode_rsp;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_debug_get_phy_poll_mode_rsp);

/** Reads a PHY register, for debugging. Answered by tarn_ethsw_mgmt_debug_phy_peek_response. */
typedef struct tarn_ethsw_mgmt_debug_phy_peek {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    /** Field 3, uint32. A 32-bit value. */
    uint32_t field_3;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_field_3 : 1;
} tarn_ethsw_mgmt_debug_phy_peek;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_debug_phy_peek);

/** Answer to tarn_ethsw_mgmt_debug_phy_peek. */
typedef struct tarn_ethsw_mgmt_debug_phy_peek_response {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    /** Field 3, uint32. A 32-bit value. */
    uint32_t field_3;
    /** Field 4, uint32. A 32-bit value. */
    uint32_t field_4;
    /** Field 5, uint32. A 32-bit value. */
    uint32_t field_5;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_field_3 : 1;
    unsigned has_field_4 : 1;
    unsigned has_field_5 : 1;
} tarn_ethsw_mgmt_debug_phy_peek_response;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_debug_phy_peek_response);

/** Writes a PHY register, for debugging. Answered by tarn_ethsw_mgmt_debug_phy_poke_response. */
typedef struct tarn_ethsw_mgmt_debug_phy_poke {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    /** Field 3, uint32. A 32-bit value. */
    uint32_t field_3;
    /** Field 4, uint32. A 32-bit value. */
    uint32_t field_4;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_field_3 : 1;
    unsigned has_field_4 : 1;
} tarn_ethsw_mgmt_debug_phy_poke;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_debug_phy_poke);

/** Answer to tarn_ethsw_mgmt_debug_phy_poke. */
typedef struct tarn_ethsw_mgmt_debug_phy_poke_response {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    /** Field 3, uint32. A 32-bit value. */
    uint32_t field_3;
    /** Field 4, uint32. A 32-bit value. */
    uint32_t field_4;
    /** Field 5, uint32. A 32-bit value. */
    uint32_t field_5;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_field_3 : 1;
    unsigned has_field_4 : 1;
    unsigned has_field_5 : 1;
} tarn_ethsw_mgmt_debug_phy_poke_response;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_debug_phy_poke_response);

/** Sets the PHY poll mode. Answered by tarn_ethsw_mgmt_debug_set_phy_poll_mode_rsp. */
typedef struct tarn_ethsw_mgmt_debug_set_phy_poll_mode {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    unsigned has_field_1 : 1;
} tarn_ethsw_mgmt_debug_set_phy_poll_mode;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_debug_set_phy_poll_mode);

/** Answer to tarn_ethsw_mgmt_debug_set_phy_poll_mode. */
typedef struct tarn_ethsw_mgmt_debug_set_phy_poll_mode_rsp {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    unsigned has_field_1 : 1;
} tarn_ethsw_mgmt_debug_set_phy_poll_mode_rsp;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_debug_set_phy_poll_mode_rsp);

/** Reads an SFP module raw, for debugging. Answered by tarn_ethsw_mgmt_debug_sfp_read_response. */
typedef struct tarn_ethsw_mgmt_debug_sfp_read {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
} tarn_ethsw_mgmt_debug_sfp_read;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_debug_sfp_read);

/** Reads an SFP module at an address, for debugging. Answered by
 *  tarn_ethsw_mgmt_debug_sfp_read_address_rsp. */
typedef struct tarn_ethsw_mgmt_debug_sfp_read_address {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    /** Field 3, uint32. A 32-bit value. */
    uint32_t field_3;
    /** Field 4, uint32. A 32-bit value. */
    uint32_t field_4;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_field_3 : 1;
    unsigned has_field_4 : 1;
} tarn_ethsw_mgmt_debug_sfp_read_address;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_debug_sfp_read_address);

/** Answer to tarn_ethsw_mgmt_debug_sfp_read_address. */
typedef struct tarn_ethsw_mgmt_debug_sfp_read_address_rsp {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    /** Field 3, uint32. A 32-bit value. */
    uint32_t field_3;
    /** Field 4, uint32. A 32-bit value. */
    uint32_t field_4;
    /** Field 5, uint32. A 32-bit value. */
    uint32_t field_5;
    /** Field 6, bytes. A byte string. */
    const uint8_t *field_6;
    /** Number of bytes at field_6. */
    uint32_t field_6_length;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_field_3 : 1;
    unsigned has_field_4 : 1;
    unsigned has_field_5 : 1;
    unsigned has_field_6 : 1;
} tarn_ethsw_mgmt_debug_sfp_read_address_rsp;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_debug_sfp_read_address_rsp);

/** Answer to tarn_ethsw_mgmt_debug_sfp_read. */
typedef struct tarn_ethsw_mgmt_debug_sfp_read_response {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    /** Field 3, uint32. A 32-bit value. */
    uint32_t field_3;
    /** Field 4, bytes. A byte string. */
    const uint8_t *field_4;
    /** Number of bytes at field_4. */
    uint32_t field_4_length;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_field_3 : 1;
    unsigned has_field_4 : 1;
} tarn_ethsw_mgmt_debug_sfp_read_response;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_debug_sfp_read_response);

/** Writes an SFP module at an address, for debugging. Answered by
 *  tarn_ethsw_mgmt_debug_sfp_write_address_rsp. */
typedef struct tarn_ethsw_mgmt_debug_sfp_write_address {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    /** Field 3, uint32. A 32-bit value. */
    uint32_t field_3;
    /** Field 4, uint32. A 32-bit value. */
    uint32_t field_4;
    /** Field 5, bytes. A byte string. */
    const uint8_t *field_5;
    /** Number of bytes at field_5. */
    uint32_t field_5_length;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_field_3 : 1;
    unsigned has_field_4 : 1;
    unsigned has_field_5 : 1;
} tarn_ethsw_mgmt_debug_sfp_write_address;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_debug_sfp_write_address);

/** Answer to tarn_ethsw_mgmt_debug_sfp_write_address. */
typedef struct tarn_ethsw_mgmt_debug_sfp_write_address_rsp {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    /** Field 3, uint32. A 32-bit value. */
    uint32_t field_3;
    /** Field 4, uint32. A 32-bit value. */
    uint32_t field_4;
    /** Field 5, uint32. A 32-bit value. */
    uint32_t field_5;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_field_3 : 1;
    unsigned has_field_4 : 1;
    unsigned has_field_5 : 1;
} tarn_ethsw_mgmt_debug_sfp_write_address_rsp;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_debug_sfp_write_address_rsp);

/** Outcome of a comparison of FPD images with files. Answer to tarn_ethsw_mgmt_fpd_cmp_to_file. */
typedef struct tarn_ethsw_mgmt_fpd_cmp_result {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    unsigned has_field_1 : 1;
} tarn_ethsw_mgmt_fpd_cmp_result;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_fpd_cmp_result);

/** Compares FPD images with files. Answered by tarn_ethsw_mgmt_fpd_cmp_result. */
typedef struct tarn_ethsw_mgmt_fpd_cmp_to_file {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, repeated string. A list of texts. */
    const char **field_2;
    /** Number of elements of field_2. */
    uint32_t field_2_count;
    /** Field 3, repeated string. A list of texts. */
    const char **field_3;
    /** Number of elements of field_3. */
    uint32_t field_3_count;
    /** Field 4, repeated string. A list of texts. */
    const char **field_4;
    /** Number of elements of field_4. */
    uint32_t field_4_count;
    /** Field 5, repeated string. A list of texts. */
    const char **field_5;
    /** Number of elements of field_5. */
    uint32_t field_5_count;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_field_3 : 1;
    unsigned has_field_4 : 1;
    unsigned has_field_5 : 1;
} tarn_ethsw_mgmt_fpd_cmp_to_file;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_fpd_cmp_to_file);

/** One core entry of the FPD information. Element of tarn_ethsw_mgmt_fpd_info (cores_3, cores_4,
 *  cores_5, cores_6, cores_7, cores_8, cores_9, cores_10). */
typedef struct tarn_ethsw_mgmt_fpd_core_info {
    /** Field 1, bool. A truth value. */
    uint8_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    /** Field 3, uint32. A 32-bit value. */
    uint32_t field_3;
    /** Field 4, uint32. A 32-bit value. */
    uint32_t field_4;
    /** Field 5, uint32. A 32-bit value. */
    uint32_t field_5;
    /** Field 6, bool. A truth value. */
    uint8_t field_6;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_field_3 : 1;
    unsigned has_field_4 : 1;
    unsigned has_field_5 : 1;
    unsigned has_field_6 : 1;
} tarn_ethsw_mgmt_fpd_core_info;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_fpd_core_info);

/** Asks about the FPDs; carries nothing. Answered by tarn_ethsw_mgmt_fpd_info. */
typedef struct tarn_ethsw_mgmt_fpd_get_info tarn_ethsw_mgmt_fpd_get_info;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_fpd_get_info);

/** What is known of the FPDs, in eight lists that stay apart. Answer to
 *  tarn_ethsw_mgmt_fpd_get_info. */
typedef struct tarn_ethsw_mgmt_fpd_info {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    /** Field 3, repeated message tarn_ethsw_mgmt_fpd_core_info. Core entries, a list of its own. */
    tarn_ethsw_mgmt_fpd_core_info *cores_3;
    /** Number of elements of cores_3. */
    uint32_t cores_3_count;
    /** Field 4, repeated message tarn_ethsw_mgmt_fpd_core_info. Core entries, a list of its own. */
    tarn_ethsw_mgmt_fpd_core_info *cores_4;
    /** Number of elements of cores_4. */
    uint32_t cores_4_count;
    /** Field 5, repeated message tarn_ethsw_mgmt_fpd_core_info. Core entries, a list of its own. */
    tarn_ethsw_mgmt_fpd_core_info *cores_5;
    /** Number of elements of cores_5. */
    uint32_t cores_5_count;
    /** Field 6, repeated message tarn_ethsw_mgmt_fpd_core_info. Core entries, a list of its own. */
    tarn_ethsw_mgmt_fpd_core_info *cores_6;
    /** Number of elements of cores_6. */
    uint32_t cores_6_count;
    /** Field 7, repeated message tarn_ethsw_mgmt_fpd_core_info. Core entries, a list of its own. */
    tarn_ethsw_mgmt_fpd_core_info *cores_7;
    /** Number of elements of cores_7. */
    uint32_t cores_7_count;
    /** Field 8, repeated message tarn_ethsw_mgmt_fpd_core_info. Core entries, a list of its own. */
    tarn_ethsw_mgmt_fpd_core_info *cores_8;
    /** Number of elements of cores_8. */
    uint32_t cores_8_count;
    /** Field 9, repeated message tarn_ethsw_mgmt_fpd_core_info. Core entries, a list of its own. */
    tarn_ethsw_mgmt_fpd_core_info *cores_9;
    /** Number of elements of cores_9. */
    uint32_t cores_9_count;
    /** Field 10, repeated message tarn_ethsw_mgmt_fpd_core_info. Core entries, a list of its own. */
    tarn_ethsw_mgmt_fpd_core_info *cores_10;
    /** Number of elements of cores_10. */
    uint32_t cores_10_count;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_cores_3 : 1;
    unsigned has_cores_4 : 1;
    unsigned has_cores_5 : 1;
    unsigned has_cores_6 : 1;
    unsigned has_cores_7 : 1;
    unsigned has_cores_8 : 1;
    unsigned has_cores_9 : 1;
    unsigned has_cores_10 : 1;
} tarn_ethsw_mgmt_fpd_info;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_fpd_info);

/** Programs FPD images from files. Answered by tarn_ethsw_mgmt_fpd_program_result. */
typedef struct tarn_ethsw_mgmt_fpd_program_from_file {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, repeated string. A list of texts. */
    const char **field_2;
    /** Number of elements of field_2. */
    uint32_t field_2_count;
    /** Field 3, repeated string. A list of texts. */
    const char **field_3;
    /** Number of elements of field_3. */
    uint32_t field_3_count;
    /** Field 4, repeated string. A list of texts. */
    const char **field_4;
    /** Number of elements of field_4. */
    uint32_t field_4_count;
    /** Field 5, repeated string. A list of texts. */
    const char **field_5;
    /** Number of elements of field_5. */
    uint32_t field_5_count;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_field_3 : 1;
    unsigned has_field_4 : 1;
    unsigned has_field_5 : 1;
} tarn_ethsw_mgmt_fpd_program_from_file;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_fpd_program_from_file);

/** Programs FPD images from the golden image; carries nothing. Answered by
 *  tarn_ethsw_mgmt_fpd_program_result. */
typedef struct tarn_ethsw_mgmt_fpd_program_from_golden tarn_ethsw_mgmt_fpd_program_from_golden;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_fpd_program_from_golden);

/** Outcome of FPD programming. Answer to tarn_ethsw_mgmt_fpd_program_from_file and
 *  tarn_ethsw_mgmt_fpd_program_from_golden. */
typedef struct tarn_ethsw_mgmt_fpd_program_result {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    unsigned has_field_1 : 1;
} tarn_ethsw_mgmt_fpd_program_result;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_fpd_program_result);

/** Asks for the SFP summary; carries nothing. Answered by tarn_ethsw_mgmt_sfp_summary_response. */
typedef struct tarn_ethsw_mgmt_get_sfp_summary tarn_ethsw_mgmt_get_sfp_summary;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_get_sfp_summary);

/** Reloads the EEPROM of a PHY. Answered by tarn_ethsw_mgmt_phy_operation_result. */
typedef struct tarn_ethsw_mgmt_phy_eeprom_reload {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    unsigned has_field_1 : 1;
} tarn_ethsw_mgmt_phy_eeprom_reload;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_phy_eeprom_reload);

/** Forces a PHY to be programmed anew. Answered by tarn_ethsw_mgmt_phy_force_reprogram_rsp. */
typedef struct tarn_ethsw_mgmt_phy_force_reprogram {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    unsigned has_field_1 : 1;
} tarn_ethsw_mgmt_phy_force_reprogram;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_phy_force_reprogram);

/** Answer to tarn_ethsw_mgmt_phy_force_reprogram. */
typedef struct tarn_ethsw_mgmt_phy_force_reprogram_rsp {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    unsigned has_field_1 : 1;
} tarn_ethsw_mgmt_phy_force_reprogram_rsp;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_phy_force_reprogram_rsp);

/** Asks for the microcode versions of PHYs. Answered by tarn_ethsw_mgmt_phy_ucode_version_info_rsp. */
typedef struct tarn_ethsw_mgmt_phy_get_ucode_version_info {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    unsigned has_field_1 : 1;
} tarn_ethsw_mgmt_phy_get_ucode_version_info;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_phy_get_ucode_version_info);

/** Outcome of a PHY operation. Answer to tarn_ethsw_mgmt_phy_eeprom_reload and
 *  tarn_ethsw_mgmt_phy_ucode_operation. */
typedef struct tarn_ethsw_mgmt_phy_operation_result {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    unsigned has_field_1 : 1;
} tarn_ethsw_mgmt_phy_operation_result;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_phy_operation_result);

/** Sets the administrative state of a PHY port. Answered by
 *  tarn_ethsw_mgmt_phy_port_set_admin_state_resp. */
typedef struct tarn_ethsw_mgmt_phy_port_set_admin_state {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    /** Field 3, uint32. A 32-bit value. */
    uint32_t field_3;
    /** Field 4, bool. A truth value. */
    uint8_t field_4;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_field_3 : 1;
    unsigned has_field_4 : 1;
} tarn_ethsw_mgmt_phy_port_set_admin_state;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_phy_port_set_admin_state);

/** Answer to tarn_ethsw_mgmt_phy_port_set_admin_state. */
typedef struct tarn_ethsw_mgmt_phy_port_set_admin_state_resp {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    unsigned has_field_1 : 1;
} tarn_ethsw_mgmt_phy_port_set_admin_state_resp;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_phy_port_set_admin_state_resp);

/** Asks for an operation on PHY microcode. Answered by tarn_ethsw_mgmt_phy_operation_result. */
typedef struct tarn_ethsw_mgmt_phy_ucode_operation {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    /** Field 3, string. A text. */
    const char *field_3;
    /** Field 4, uint32. A 32-bit value. */
    uint32_t field_4;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_field_3 : 1;
    unsigned has_field_4 : 1;
} tarn_ethsw_mgmt_phy_ucode_operation;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_phy_ucode_operation);

/** One microcode version entry. The gap in the numbering belongs to the format. Element of
 *  tarn_ethsw_mgmt_phy_ucode_version_info_rsp (versions). */
typedef struct tarn_ethsw_mgmt_phy_ucode_version_info {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    /** Field 4, uint32. A 32-bit value. */
    uint32_t field_4;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_field_4 : 1;
} tarn_ethsw_mgmt_phy_ucode_version_info;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_phy_ucode_version_info);

/** Answer to tarn_ethsw_mgmt_phy_get_ucode_version_info. */
typedef struct tarn_ethsw_mgmt_phy_ucode_version_info_rsp {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, repeated message tarn_ethsw_mgmt_phy_ucode_version_info. The microcode version
     *  entries. */
    tarn_ethsw_mgmt_phy_ucode_version_info *versions;
    /** Number of elements of versions. */
    uint32_t versions_count;
    unsigned has_field_1 : 1;
    unsigned has_versions : 1;
} tarn_ethsw_mgmt_phy_ucode_version_info_rsp;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_phy_ucode_version_info_rsp);

/** Asks for the manual tuning data of SerDes lanes. Answered by
 *  tarn_ethsw_mgmt_serdes_get_manual_tuning_data_rsp. */
typedef struct tarn_ethsw_mgmt_serdes_get_manual_tuning_data {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    unsigned has_field_1 : 1;
} tarn_ethsw_mgmt_serdes_get_manual_tuning_data;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_serdes_get_manual_tuning_data);

/** Manual tuning data of one SerDes lane. Element of
 *  tarn_ethsw_mgmt_serdes_get_manual_tuning_data_rsp (lanes). */
typedef struct tarn_ethsw_mgmt_serdes_lane_manual_tuning_info {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    /** Field 3, uint32. A 32-bit value. */
    uint32_t field_3;
    /** Field 4, uint32. A 32-bit value. */
    uint32_t field_4;
    /** Field 5, uint32. A 32-bit value. */
    uint32_t field_5;
    /** Field 6, uint32. A 32-bit value. */
    uint32_t field_6;
    /** Field 7, uint32. A 32-bit value. */
    uint32_t field_7;
    /** Field 8, uint32. A 32-bit value. */
    uint32_t field_8;
    /** Field 9, bool. A truth value. */
    uint8_t field_9;
    /** Field 10, uint32. A 32-bit value. */
    uint32_t field_10;
    /** Field 11, uint32. A 32-bit value. */
    uint32_t field_11;
    /** Field 12, bool. A truth value. */
    uint8_t field_12;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_field_3 : 1;
    unsigned has_field_4 : 1;
    unsigned has_field_5 : 1;
    unsigned has_field_6 : 1;
    unsigned has_field_7 : 1;
    unsigned has_field_8 : 1;
    unsigned has_field_9 : 1;
    unsigned has_field_10 : 1;
    unsigned has_field_11 : 1;
    unsigned has_field_12 : 1;
} tarn_ethsw_mgmt_serdes_lane_manual_tuning_info;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_serdes_lane_manual_tuning_info);

/** Answer to tarn_ethsw_mgmt_serdes_get_manual_tuning_data. */
typedef struct tarn_ethsw_mgmt_serdes_get_manual_tuning_data_rsp {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, repeated message tarn_ethsw_mgmt_serdes_lane_manual_tuning_info. One entry per
     *  lane. */
    tarn_ethsw_mgmt_serdes_lane_manual_tuning_info *lanes;
    /** Number of elements of lanes. */
    uint32_t lanes_count;
    unsigned has_field_1 : 1;
    unsigned has_lanes : 1;
} tarn_ethsw_mgmt_serdes_get_manual_tuning_data_rsp;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_serdes_get_manual_tuning_data_rsp);

/** Asks for the tuning data of SerDes lanes. Answered by
 *  tarn_ethsw_mgmt_serdes_get_tuning_data_rsp. */
typedef struct tarn_ethsw_mgmt_serdes_get_tuning_data {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    unsigned has_field_1 : 1;
} tarn_ethsw_mgmt_serdes_get_tuning_data;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_serdes_get_tuning_data);

/** Tuning data of one SerDes lane. Element of tarn_ethsw_mgmt_serdes_get_tuning_data_rsp (lanes). */
typedef struct tarn_ethsw_mgmt_serdes_lane_tuning_info {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    /** Field 3, uint32. A 32-bit value. */
    uint32_t field_3;
    /** Field 4, uint32. A 32-bit value. */
    uint32_t field_4;
    /** Field 5, uint32. A 32-bit value. */
    uint32_t field_5;
    /** Field 6, uint32. A 32-bit value. */
    uint32_t field_6;
    /** Field 7, uint32. A 32-bit value. */
    uint32_t field_7;
    /** Field 8, uint32. A 32-bit value. */
    uint32_t field_8;
    /** Field 9, uint32. A 32-bit value. */
    uint32_t field_9;
    /** Field 10, bool. A truth value. */
    uint8_t field_10;
    /** Field 11, uint32. A 32-bit value. */
    uint32_t field_11;
    /** Field 12, uint32. A 32-bit value. */
    uint32_t field_12;
    /** Field 13, bool. A truth value. */
    uint8_t field_13;
    /** Field 14, bool. A truth value. */
    uint8_t field_14;
    /** Field 15, repeated uint32. A list of 32-bit values. */
    uint32_t *field_15;
    /** Number of elements of field_15. */
    uint32_t field_15_count;
    /** Field 16, uint32. A 32-bit value. */
    uint32_t field_16;
    /** Field 17, uint32. A 32-bit value. */
    uint32_t field_17;
    /** Field 18, uint32. A 32-bit value. */
    uint32_t field_18;
    /** Field 19, uint32. A 32-bit value. */
    uint32_t field_19;
    /** Field 20, uint32. A 32-bit value. */
    uint32_t field_20;
    /** Field 21, uint32. A 32-bit value. */
    uint32_t field_21;
    /** Field 22, repeated uint32. A list of 32-bit values. */
    uint32_t *field_22;
    /** Number of elements of field_22. */
    uint32_t field_22_count;
    /** Field 23, uint32. A 32-bit value. */
    uint32_t field_23;
    /** Field 24, uint32. A 32-bit value. */
    uint32_t field_24;
    /** Field 25, uint32. A 32-bit value. */
    uint32_t field_25;
    /** Field 26, uint32. A 32-bit value. */
    uint32_t field_26;
    /** Field 27, uint32. A 32-bit value. */
    uint32_t field_27;
    /** Field 28, string. A text. */
    const char *field_28;
    /** Field 29, string. A text. */
    const char *field_29;
    /** Field 30, string. A text. */
    const char *field_30;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_field_3 : 1;
    unsigned has_field_4 : 1;
    unsigned has_field_5 : 1;
    unsigned has_field_6 : 1;
    unsigned has_field_7 : 1;
    unsigned has_field_8 : 1;
    unsigned has_field_9 : 1;
    unsigned has_field_10 : 1;
    unsigned has_field_11 : 1;
    unsigned has_field_12 : 1;
    unsigned has_field_13 : 1;
    unsigned has_field_14 : 1;
    unsigned has_field_15 : 1;
    unsigned has_field_16 : 1;
    unsigned has_field_17 : 1;
    unsigned has_field_18 : 1;
    unsigned has_field_19 : 1;
    unsigned has_field_20 : 1;
    unsigned has_field_21 : 1;
    unsigned has_field_22 : 1;
    unsigned has_field_23 : 1;
    unsigned has_field_24 : 1;
    unsigned has_field_25 : 1;
    unsigned has_field_26 : 1;
    unsigned has_field_27 : 1;
    unsigned has_field_28 : 1;
    unsigned has_field_29 : 1;
    unsigned has_field_30 : 1;
} tarn_ethsw_mgmt_serdes_lane_tuning_info;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_serdes_lane_tuning_info);

/** Answer to tarn_ethsw_mgmt_serdes_get_tuning_data. */
typedef struct tarn_ethsw_mgmt_serdes_get_tuning_data_rsp {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint64. A 64-bit value. */
    TARN_ALIGNED_8 uint64_t field_2;
    /** Field 3, repeated message tarn_ethsw_mgmt_serdes_lane_tuning_info. One entry per lane. */
    tarn_ethsw_mgmt_serdes_lane_tuning_info *lanes;
    /** Number of elements of lanes. */
    uint32_t lanes_count;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_lanes : 1;
} tarn_ethsw_mgmt_serdes_get_tuning_data_rsp;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_serdes_get_tuning_data_rsp);

/** Triggers the automatic SerDes tuning. Answered by tarn_ethsw_mgmt_serdes_trigger_auto_tune_rsp. */
typedef struct tarn_ethsw_mgmt_serdes_trigger_auto_tune {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    unsigned has_field_1 : 1;
} tarn_ethsw_mgmt_serdes_trigger_auto_tune;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_serdes_trigger_auto_tune);

/** Answer to tarn_ethsw_mgmt_serdes_trigger_auto_tune. */
typedef struct tarn_ethsw_mgmt_serdes_trigger_auto_tune_rsp {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
} tarn_ethsw_mgmt_serdes_trigger_auto_tune_rsp;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_serdes_trigger_auto_tune_rsp);

/** Sets the SerDes power state. Answered by tarn_ethsw_mgmt_set_serdes_power_state_rsp. */
typedef struct tarn_ethsw_mgmt_set_serdes_power_state {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, bool. A truth value. */
    uint8_t field_2;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
} tarn_ethsw_mgmt_set_serdes_power_state;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_set_serdes_power_state);

/** Answer to tarn_ethsw_mgmt_set_serdes_power_state. */
typedef struct tarn_ethsw_mgmt_set_serdes_power_state_rsp {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, string. A text. */
    const char *field_2;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
} tarn_ethsw_mgmt_set_serdes_power_state_rsp;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_set_serdes_power_state_rsp);

/** One entry of the SFP summary. Element of tarn_ethsw_mgmt_sfp_summary_response (entries). */
typedef struct tarn_ethsw_mgmt_sfp_summary_entry {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, uint32. A 32-bit value. */
    uint32_t field_2;
    /** Field 3, uint32. A 32-bit value. */
    uint32_t field_3;
    /** Field 4, uint32. A 32-bit value. */
    uint32_t field_4;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_field_3 : 1;
    unsigned has_field_4 : 1;
} tarn_ethsw_mgmt_sfp_summary_entry;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_sfp_summary_entry);

/** Answer to tarn_ethsw_mgmt_get_sfp_summary. */
typedef struct tarn_ethsw_mgmt_sfp_summary_response {
    /** Field 1, uint32. A 32-bit value. */
    uint32_t field_1;
    /** Field 2, repeated message tarn_ethsw_mgmt_sfp_summary_entry. The summary entries. */
    tarn_ethsw_mgmt_sfp_summary_entry *entries;
    /** Number of elements of entries. */
    uint32_t entries_count;
    unsigned has_field_1 : 1;
    unsigned has_entries : 1;
} tarn_ethsw_mgmt_sfp_summary_response;
TARN_DECLARE_OPERATIONS(tarn_ethsw_mgmt_sfp_summary_response);

#endif
