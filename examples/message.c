/* SPDX-License-Identifier: MIT */
/* Sending and receiving records: see message.h. */

#include "message.h"

#include "report.h"

#include <stddef.h>

const char *result_name(int32_t result)
{
    switch (result) {
    case WIRE_OK:
        return "WIRE_OK";
    case WIRE_ERR_MALFORMED:
        return "WIRE_ERR_MALFORMED";
    case WIRE_ERR_WIRE_TYPE:
        return "WIRE_ERR_WIRE_TYPE";
    case WIRE_ERR_TYPE_MISMATCH:
        return "WIRE_ERR_TYPE_MISMATCH";
    case WIRE_ERR_NO_MEMORY:
        return "WIRE_ERR_NO_MEMORY";
    case DEMO_ERR_UNKNOWN_RECORD:
        return "DEMO_ERR_UNKNOWN_RECORD";
    case DEMO_ERR_FRAME_TOO_LONG:
        return "DEMO_ERR_FRAME_TOO_LONG";
    case DEMO_ERR_NOT_SENT:
        return "DEMO_ERR_NOT_SENT";
    }
    return "?";
}

/* Encodes into a buffer of exactly the measured size and says what to send: returns the number of
 * segments. Without the flag that is the buffer and there is no need to ask for segments; those of
 * a record with nested records overlap, and must not be sent one after the other. */
static uint32_t encode(const struct record_type *type, const void *record, uint8_t *buffer,
                       uint32_t size, WireSegment *segments, uint32_t flags)
{
    if (flags & WIRE_FLAG_BYTES_IN_PLACE) {
        uint32_t count = FRAME_SEGMENTS_MAX;
        type->encode(record, buffer, size, segments, &count, flags);
        return count;
    }
    type->encode(record, buffer, size, NULL, NULL, flags);
    segments[0] = (WireSegment){.data = buffer, .length = size};
    return size > 0 ? 1 : 0;
}

static uint32_t total_length(const WireSegment *segments, uint32_t count)
{
    uint32_t length = 0;
    for (uint32_t i = 0; i < count; i++)
        length += segments[i].length;
    return length;
}

int32_t message_send(const struct peer *peer, enum record_id id, const void *record, uint32_t flags)
{
    const struct record_type *type = record_type_of(id);
    const uint32_t size = type->encode(record, NULL, 0, NULL, NULL, flags);
    uint8_t *buffer = peer->take(size, peer->memory);
    if (!buffer)
        return WIRE_ERR_NO_MEMORY;

    WireSegment segments[FRAME_SEGMENTS_MAX];
    const uint32_t count = encode(type, record, buffer, size, segments, flags);
    bool sent = false;
    if (count <= FRAME_SEGMENTS_MAX) {
        report_encoded(peer->name, type->name, total_length(segments, count), count);
        sent = transport_send(peer->socket, id, segments, count);
    }
    peer->give(buffer, peer->memory);
    return sent ? WIRE_OK : DEMO_ERR_NOT_SENT;
}

int32_t message_decode(const struct peer *peer, const struct frame *frame, void *record,
                       uint32_t flags)
{
    const struct record_type *type = record_type_of((enum record_id)frame->id);
    const int32_t result =
        type->decode(record, frame->payload, frame->length, peer->take, peer->memory, flags);
    report_decoded(peer->name, type->name, frame->length, result_name(result));
    return result;
}

void message_release(const struct peer *peer, enum record_id id, void *record, uint32_t flags)
{
    record_type_of(id)->release(record, peer->give, peer->memory, flags);
}

int32_t message_refuse(const struct peer *peer, int32_t reason)
{
    uint8_t code[4];
    for (unsigned i = 0; i < sizeof code; i++)
        code[i] = (uint8_t)((uint32_t)reason >> (8 * i));
    const WireSegment segment = {.data = code, .length = sizeof code};
    report_encoded(peer->name, "(refusal)", segment.length, 1);
    return transport_send(peer->socket, record_refusal, &segment, 1) ? WIRE_OK : DEMO_ERR_NOT_SENT;
}

int32_t message_refusal(const struct peer *peer, const struct frame *frame)
{
    uint32_t code = 0;
    for (unsigned i = 0; i < sizeof code && i < frame->length; i++)
        code |= (uint32_t)frame->payload[i] << (8 * i);
    report_refused(peer->name, frame->length, result_name((int32_t)code));
    return (int32_t)code;
}
