// SPDX-License-Identifier: MIT
#include "tests/fuzz/wire.hpp"

#include <algorithm>
#include <string.h>

namespace fuzz {

namespace {

constexpr uint32_t kMostJumps = 6;

// Reads length and end of what stands behind a tag; false where the message ends inside.
bool read_extent(Span message, Piece &piece)
{
    const auto size = static_cast<uint32_t>(message.size);
    uint32_t position = piece.after_tag;
    uint64_t value = 0;
    piece.content = position;
    if (piece.wire_type == 0 || piece.wire_type == 2) {
        if (!read_varint(message, position, value))
            return false;
        if (piece.wire_type == 2)
            piece.content = position;
    }
    const uint64_t length = piece.wire_type == 0   ? 0
                            : piece.wire_type == 2 ? static_cast<uint32_t>(value)
                            : piece.wire_type == 1 ? 8
                                                   : 4;
    piece.overruns = length > size - position;
    piece.end = piece.overruns ? size : position + static_cast<uint32_t>(length);
    return true;
}

// Behind the first element of a list only the number tells what belongs to it.
bool continues_list(const Field *field, const std::vector<Piece> &pieces)
{
    return field && catalogue::is_list(field->kind) && !pieces.empty() &&
           pieces.back().field == field;
}

bool read_piece(const Type &type, Span message, const std::vector<Piece> &pieces, Piece &piece)
{
    uint32_t position = piece.begin;
    uint64_t tag = 0;
    if (!read_varint(message, position, tag))
        return false;
    piece.field = type.find(static_cast<uint32_t>(tag) >> 3);
    piece.wire_type = continues_list(piece.field, pieces) ? piece.field->wire_type
                                                          : static_cast<uint32_t>(tag & 7);
    piece.after_tag = position;
    const bool has_extent = piece.wire_type <= 2 || piece.wire_type == 5;
    return has_extent && read_extent(message, piece);
}

bool is_end_of_tag(Span message, size_t last)
{
    if (message.data[last] >= 0x80)
        return false;
    for (size_t at = last;; at--) {
        if ((message.data[at] & 7) == 2)
            return true;
        if (at == 0 || message.data[at - 1] < 0x80)
            return false;
    }
}

// Five bytes that read as a length just below 4 GiB.
bool is_long_way(const uint8_t *bytes)
{
    return bytes[0] >= 0x80 && bytes[1] >= 0xC0 && bytes[2] == 0xFF && bytes[3] == 0xFF &&
           (bytes[4] & 0x0F) == 0x0F;
}

} // namespace

bool read_varint(Span message, uint32_t &position, uint64_t &value)
{
    uint64_t result = 0;
    for (uint32_t at = position, shift = 0; at < message.size; at++, shift += 7) {
        const uint8_t byte = message.data[at];
        if (shift < 64)
            result |= uint64_t{byte & 0x7FU} << shift;
        if (byte < 0x80) {
            position = at + 1;
            value = result;
            return true;
        }
    }
    return false;
}

void split(const Type &type, Span message, std::vector<Piece> &pieces)
{
    pieces.clear();
    Piece piece{};
    while (piece.begin < message.size && read_piece(type, message, pieces, piece)) {
        pieces.push_back(piece);
        piece.begin = piece.end;
    }
}

bool leads_back(Span message, const Piece &piece)
{
    if (piece.wire_type != 2 || !piece.overruns)
        return false;
    uint32_t position = piece.after_tag;
    uint64_t length = 0;
    read_varint(message, position, length);
    return position + static_cast<uint32_t>(length) < position;
}

bool may_replace_blocks(const Type &type, Span message)
{
    std::vector<Piece> pieces;
    split(type, message, pieces);
    uint64_t met = 0;
    for (const Piece &piece : pieces) {
        if (!piece.field) {
            if (leads_back(message, piece))
                return true;
            continue;
        }
        if (!catalogue::is_nested(piece.field->kind) || piece.wire_type != 2)
            continue;
        const uint64_t bit = uint64_t{1} << piece.field->number;
        if (piece.field->kind == Kind::message && piece.field->child->has_blocks && met & bit)
            return true;
        met |= bit;
        const Span content{message.data + piece.content, piece.end - piece.content};
        if (may_replace_blocks(*piece.field->child, content))
            return true;
    }
    return false;
}

bool jumps_too_often(Span message)
{
    uint32_t jumps = 0;
    const uint8_t *const end = message.data + message.size;
    const uint8_t *at = message.data;
    // The third byte of such a length is 0xFF, and so is the fourth.
    while (at < end &&
           (at = static_cast<const uint8_t *>(memchr(at, 0xFF, static_cast<size_t>(end - at))))) {
        const auto index = static_cast<size_t>(at - message.data);
        if (index >= 3 && index + 3 <= message.size && is_long_way(at - 2) &&
            is_end_of_tag(message, index - 3) && ++jumps > kMostJumps)
            return true;
        at++;
    }
    return false;
}

} // namespace fuzz
