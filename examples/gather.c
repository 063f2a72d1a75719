/* SPDX-License-Identifier: MIT */
/* Shown in docs/gather-lists.md: a record is sent without its byte string being copied. */

#define _POSIX_C_SOURCE 200809L

#include "ethsw_mgmt/forwarding.h"

#include <stdio.h>
#include <sys/uio.h>
#include <unistd.h>

/* One byte string: what is before it, itself, and what is behind. */
#define PIECES 3u

static void print_bytes(const uint8_t *bytes, size_t length)
{
    for (size_t i = 0; i < length; i++)
        printf(" %02X", bytes[i]);
    printf("\n");
}

int main(void)
{
    static const uint8_t evidence[] = {0xDE, 0xAD, 0xBE, 0xEF};
    tarn_ethsw_mgmt_bridge_sec_breach_details details = {0};
    details.field_1 = 5;
    details.has_field_1 = 1;
    details.field_3 = evidence;
    details.field_3_length = sizeof evidence;
    details.has_field_3 = 1;
    details.field_4 = 1;
    details.has_field_4 = 1;

    uint8_t buffer[16];
    WireSegment segments[PIECES];
    uint32_t count = PIECES;
    const uint32_t length = tarn_ethsw_mgmt_bridge_sec_breach_details_encode_ext(
        &details, buffer, sizeof buffer, segments, &count, WIRE_FLAG_BYTES_IN_PLACE);
    if (length > sizeof buffer || count > PIECES)
        return 1;
    printf("%u bytes in the buffer:", (unsigned)length);
    print_bytes(buffer, length);

    struct iovec pieces[PIECES];
    for (uint32_t i = 0; i < count; i++) {
        printf("piece %u: %s", (unsigned)i, segments[i].data == evidence ? "evidence" : "buffer");
        print_bytes(segments[i].data, segments[i].length);
        pieces[i].iov_base = (void *)segments[i].data; /* only read; iovec knows no const */
        pieces[i].iov_len = segments[i].length;
    }

    int pipe_ends[2];
    if (pipe(pipe_ends) != 0)
        return 1;
    const ssize_t sent = writev(pipe_ends[1], pieces, (int)count);
    uint8_t arrived[32];
    const ssize_t received = read(pipe_ends[0], arrived, sizeof arrived);
    close(pipe_ends[0]);
    close(pipe_ends[1]);
    if (received < 0 || received != sent)
        return 1;
    printf("%d bytes arrived:", (int)received);
    print_bytes(arrived, (size_t)received);
    return 0;
}
