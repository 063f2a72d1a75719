/* SPDX-License-Identifier: MIT */
/* Shown in docs/ownership.md: the life of a record, with every block counted. */

#include "ethsw_mgmt/forwarding.h"

#include <stdio.h>
#include <stdlib.h>
#include <string.h>

static int blocks; /* how many are out */

static void *take(uint32_t size, void *context)
{
    (void)context;
    void *block = malloc(size ? size : 1);
    if (block)
        blocks++;
    return block;
}

static void give_back(void *block, void *context)
{
    (void)context;
    blocks--;
    free(block);
}

static void show(const char *when, const tarn_ethsw_mgmt_vlan_table_entry *entry)
{
    printf("%-24s %d blocks; %d %s; %d %u %s\n", when, blocks, (int)entry->has_field_3,
           entry->field_3 ? entry->field_3 : "null", (int)entry->has_field_2,
           (unsigned)entry->field_2_count, entry->field_2 ? "numbers" : "null");
}

/* What this record points to is ours: encoding reads it, and nobody releases it. */
static uint32_t fill_and_encode(uint8_t *buffer, uint32_t capacity)
{
    static uint32_t numbers[] = {5, 7};
    tarn_ethsw_mgmt_vlan_table_entry entry = {0};
    entry.field_2 = numbers;
    entry.field_2_count = 2;
    entry.has_field_2 = 1;
    entry.field_3 = "uplink";
    entry.has_field_3 = 1;
    return tarn_ethsw_mgmt_vlan_table_entry_encode_ext(&entry, buffer, capacity, NULL, NULL, 0);
}

int main(void)
{
    uint8_t buffer[32];
    tarn_ethsw_mgmt_vlan_table_entry entry;
    tarn_ethsw_mgmt_vlan_table_entry copy;
    const uint32_t length = fill_and_encode(buffer, sizeof buffer);

    tarn_ethsw_mgmt_vlan_table_entry_decode_ext(&entry, buffer, length, take, NULL, 0);
    show("decoded", &entry);
    memset(buffer, 0, sizeof buffer); /* nothing of the record is in there */
    tarn_ethsw_mgmt_vlan_table_entry_duplicate(&copy, &entry, take, NULL);
    show("copied", &copy);
    tarn_ethsw_mgmt_vlan_table_entry_free_ext(&entry, give_back, NULL, 0);
    show("released", &entry);
    show("the copy", &copy);
    tarn_ethsw_mgmt_vlan_table_entry_free_ext(&copy, give_back, NULL, 0);
    tarn_ethsw_mgmt_vlan_table_entry_free_ext(&copy, give_back, NULL, 0);
    show("the copy, released twice", &copy);

    /* The same storage again, for a message that is cut off within its text. */
    const uint32_t shorter = fill_and_encode(buffer, sizeof buffer) - 1;
    const int32_t result =
        tarn_ethsw_mgmt_vlan_table_entry_decode_ext(&entry, buffer, shorter, take, NULL, 0);
    printf("result %d\n", (int)result);
    show("cut off", &entry);
    tarn_ethsw_mgmt_vlan_table_entry_free_ext(&entry, give_back, NULL, 0);
    show("released", &entry);
    return blocks;
}
