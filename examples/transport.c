/* SPDX-License-Identifier: MIT */
/* Frames over a Unix stream socket: see transport.h. */

#define _POSIX_C_SOURCE 200809L

#include "transport.h"

#include <errno.h>
#include <stddef.h>
#include <string.h>
#include <sys/socket.h>
#include <sys/time.h>
#include <sys/uio.h>
#include <sys/un.h>
#include <time.h>
#include <unistd.h>

#define HEADER_SIZE 8u

/* A peer that says nothing for so long is given up. */
#define PATIENCE_SECONDS 2

static void put_u32(uint8_t *to, uint32_t value)
{
    for (unsigned i = 0; i < 4; i++)
        to[i] = (uint8_t)(value >> (8 * i));
}

static uint32_t get_u32(const uint8_t *from)
{
    return from[0] | (uint32_t)from[1] << 8 | (uint32_t)from[2] << 16 | (uint32_t)from[3] << 24;
}

static bool set_address(struct sockaddr_un *address, const char *path)
{
    const size_t size = strlen(path) + 1;
    *address = (struct sockaddr_un){.sun_family = AF_UNIX};
    if (size > sizeof address->sun_path)
        return false;
    memcpy(address->sun_path, path, size);
    return true;
}

/* For accepting and connecting, too. Returns the socket that it is given, or -1. */
static int limit_patience(int socket)
{
    const struct timeval patience = {.tv_sec = PATIENCE_SECONDS};
    if (socket < 0)
        return -1;
    setsockopt(socket, SOL_SOCKET, SO_RCVTIMEO, &patience, sizeof patience);
    setsockopt(socket, SOL_SOCKET, SO_SNDTIMEO, &patience, sizeof patience);
    return socket;
}

int transport_accept(const char *path)
{
    struct sockaddr_un address;
    const int listener = limit_patience(socket(AF_UNIX, SOCK_STREAM, 0));
    if (listener < 0)
        return -1;
    int client = -1;
    if (set_address(&address, path) &&
        bind(listener, (struct sockaddr *)&address, sizeof address) == 0) {
        if (listen(listener, 1) == 0)
            client = accept(listener, NULL, NULL);
        unlink(path);
    }
    close(listener);
    return limit_patience(client);
}

int transport_connect(const char *path)
{
    const struct timespec pause = {.tv_nsec = 10000000};
    struct sockaddr_un address;
    const int opened = limit_patience(socket(AF_UNIX, SOCK_STREAM, 0));
    if (opened < 0)
        return -1;
    if (set_address(&address, path))
        for (int tries = PATIENCE_SECONDS * 100; tries > 0; tries--) {
            if (connect(opened, (struct sockaddr *)&address, sizeof address) == 0)
                return opened;
            nanosleep(&pause, NULL);
        }
    close(opened);
    return -1;
}

/* What is left of a gather list once its first `sent` bytes are gone. */
static void step_over(struct msghdr *message, size_t sent)
{
    while (message->msg_iovlen > 0 && sent >= message->msg_iov->iov_len) {
        sent -= message->msg_iov->iov_len;
        message->msg_iov++;
        message->msg_iovlen--;
    }
    if (message->msg_iovlen > 0) {
        message->msg_iov->iov_base = (uint8_t *)message->msg_iov->iov_base + sent;
        message->msg_iov->iov_len -= sent;
    }
}

bool transport_send(int socket, uint32_t id, const WireSegment *segments, uint32_t count)
{
    uint8_t header[HEADER_SIZE];
    struct iovec pieces[1 + FRAME_SEGMENTS_MAX] = {{.iov_base = header, .iov_len = sizeof header}};
    uint32_t length = 0;
    if (count > FRAME_SEGMENTS_MAX)
        return false;
    for (uint32_t i = 0; i < count; i++) {
        /* iovec has no const, though sending only reads. */
        pieces[1 + i].iov_base = (uint8_t *)segments[i].data;
        pieces[1 + i].iov_len = segments[i].length;
        length += segments[i].length;
    }
    put_u32(header, id);
    put_u32(header + 4, length);

    struct msghdr message = {.msg_iov = pieces, .msg_iovlen = 1 + count};
    while (message.msg_iovlen > 0) {
        const ssize_t sent = sendmsg(socket, &message, MSG_NOSIGNAL);
        if (sent < 0 && errno != EINTR)
            return false;
        step_over(&message, sent < 0 ? 0 : (size_t)sent);
    }
    return true;
}

/* Returns how much came before the peer closed, or -1. */
static ssize_t receive_bytes(int socket, uint8_t *to, size_t wanted)
{
    size_t have = 0;
    while (have < wanted) {
        const ssize_t got = recv(socket, to + have, wanted - have, 0);
        if (got == 0)
            break;
        if (got < 0 && errno != EINTR)
            return -1;
        have += got < 0 ? 0 : (size_t)got;
    }
    return (ssize_t)have;
}

enum receive_status transport_receive(int socket, struct frame *frame)
{
    uint8_t header[HEADER_SIZE];
    const ssize_t got = receive_bytes(socket, header, sizeof header);
    if (got == 0)
        return FRAME_CLOSED;
    if (got != HEADER_SIZE)
        return FRAME_BROKEN;
    frame->id = get_u32(header);
    frame->length = get_u32(header + 4);
    if (frame->length > FRAME_PAYLOAD_MAX)
        return FRAME_TOO_LONG;
    const ssize_t payload = receive_bytes(socket, frame->payload, frame->length);
    return payload == (ssize_t)frame->length ? FRAME_RECEIVED : FRAME_BROKEN;
}
