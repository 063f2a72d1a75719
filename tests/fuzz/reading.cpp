// SPDX-License-Identifier: MIT
// Whether a record says what its message says, by the fuzzers' own reader.
#include "tests/fuzz/soundness.hpp"

#include "tests/catalogue/memory.hpp"
#include "tests/fuzz/require.hpp"

#include <algorithm>
#include <string.h>

namespace fuzz {

namespace {

using catalogue::load;

// How often each field of a record comes, and where it comes last.
struct Occurrences {
    std::array<uint32_t, Type::kNumbers> count{};
    std::array<const Piece *, Type::kNumbers> last{};
};

class Reading {
public:
    explicit Reading(bool in_place) : in_place_(in_place) {}

    void compare(const Type &type, const uint8_t *record, Span message) const;

private:
    void compare_piece(const Piece &piece, const uint8_t *at, Span message) const;
    void compare_bytes(const uint8_t *member, Span content) const;

    bool in_place_;
};

Occurrences count_pieces(const std::vector<Piece> &pieces)
{
    Occurrences found;
    for (const Piece &piece : pieces) {
        if (!piece.field)
            continue;
        found.count[piece.field->number]++;
        found.last[piece.field->number] = &piece;
    }
    return found;
}

uint64_t value_of(const Piece &piece, Span message)
{
    uint32_t position = piece.after_tag;
    uint64_t value = 0;
    TARN_FUZZ_REQUIRE(read_varint(message, position, value));
    return value;
}

void compare_text(const void *text, Span content)
{
    const auto *characters = static_cast<const char *>(text);
    TARN_FUZZ_REQUIRE(!content.size || !memcmp(characters, content.data, content.size));
    TARN_FUZZ_REQUIRE(characters[content.size] == 0);
}

void Reading::compare_bytes(const uint8_t *member, Span content) const
{
    const uint8_t *bytes = load<const uint8_t *>(member, 0);
    TARN_FUZZ_REQUIRE(load<uint32_t>(member, sizeof(void *)) == content.size);
    TARN_FUZZ_REQUIRE(!content.size || !memcmp(bytes, content.data, content.size));
    TARN_FUZZ_REQUIRE(!in_place_ || bytes == content.data);
}

// `at` is the member, or the element of a list.
void Reading::compare_piece(const Piece &piece, const uint8_t *at, Span message) const
{
    const Span content{message.data + piece.content, piece.end - piece.content};
    switch (piece.field->kind) {
    case Kind::uint32:
    case Kind::repeated_uint32:
        TARN_FUZZ_REQUIRE(load<uint32_t>(at, 0) == static_cast<uint32_t>(value_of(piece, message)));
        break;
    case Kind::uint64:
        TARN_FUZZ_REQUIRE(load<uint64_t>(at, 0) == value_of(piece, message));
        break;
    case Kind::boolean:
        TARN_FUZZ_REQUIRE(load<uint8_t>(at, 0) ==
                          (static_cast<uint32_t>(value_of(piece, message)) != 0));
        break;
    case Kind::string:
    case Kind::repeated_string:
        compare_text(load<const void *>(at, 0), content);
        break;
    case Kind::bytes:
        compare_bytes(at, content);
        break;
    case Kind::message:
    case Kind::repeated_message:
        compare(*piece.field->child, at, content);
        break;
    }
}

// Behind a jump backwards this reader and the library part ways.
bool has_jump(const std::vector<Piece> &pieces, Span message)
{
    return std::any_of(pieces.begin(), pieces.end(), [&](const Piece &piece) {
        return !piece.field && leads_back(message, piece);
    });
}

void Reading::compare(const Type &type, const uint8_t *record, Span message) const
{
    std::vector<Piece> pieces;
    split(type, message, pieces);
    if (has_jump(pieces, message))
        return;
    const Occurrences found = count_pieces(pieces);
    for (const Field &field : type.fields) {
        const bool flagged = record[field.flag_offset] & field.flag_mask;
        TARN_FUZZ_REQUIRE(flagged == (found.count[field.number] > 0));
        if (flagged && catalogue::is_list(field.kind))
            TARN_FUZZ_REQUIRE(load<uint32_t>(record, field.count_offset) ==
                              found.count[field.number]);
    }
    std::array<uint32_t, Type::kNumbers> next{};
    for (const Piece &piece : pieces) {
        if (!piece.field)
            continue;
        const uint8_t *at = record + piece.field->offset;
        if (catalogue::is_list(piece.field->kind))
            at = load<const uint8_t *>(at, 0) +
                 size_t{next[piece.field->number]++} * piece.field->element_size;
        else if (found.last[piece.field->number] != &piece)
            continue;
        compare_piece(piece, at, message);
    }
}

} // namespace

void require_reading(const Record &record)
{
    Reading(record.in_place()).compare(record.type(), record.data(), record.message());
}

} // namespace fuzz
