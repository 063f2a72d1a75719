// SPDX-License-Identifier: MIT
// Fuzzer: encoding into any room for bytes and pieces, from records that a caller may have filled.
#include "tests/fuzz/alterations.hpp"
#include "tests/fuzz/require.hpp"
#include "tests/fuzz/soundness.hpp"
#include "tests/fuzz/target.hpp"

#include <algorithm>
#include <string.h>

namespace fuzz {

namespace {

struct Encoding {
    uint8_t *buffer;
    uint32_t capacity;
    WireSegment *segments;
    uint32_t room;
    uint32_t length;
    uint32_t count;

    uint32_t stored() const { return std::min(room, count); }
    uint32_t filled() const { return std::min(capacity, length); }
};

bool is_rubbish(const void *bytes, size_t size)
{
    const auto *at = static_cast<const uint8_t *>(bytes);
    return std::all_of(at, at + size, [](uint8_t byte) { return byte == kRubbish; });
}

// Encodes into memory of exactly these sizes and looks at what must be left alone.
Encoding encode_into(const Record &record, uint32_t capacity, uint32_t room, uint32_t flags)
{
    const size_t array = room * sizeof(WireSegment);
    Encoding out{arena().take(capacity), capacity, nullptr, room, 0, room};
    uint8_t *pieces = arena().take(array);
    out.segments = reinterpret_cast<WireSegment *>(pieces);
    out.length =
        record.type().operations->encode(record.data(), capacity ? out.buffer : nullptr, capacity,
                                         room ? out.segments : nullptr, &out.count, flags);
    TARN_FUZZ_REQUIRE(is_intact_behind(out.buffer, capacity));
    TARN_FUZZ_REQUIRE(is_intact_behind(pieces, array));
    TARN_FUZZ_REQUIRE(is_rubbish(out.buffer + out.filled(), capacity - out.filled()));
    const size_t used = out.stored() * sizeof(WireSegment);
    TARN_FUZZ_REQUIRE(is_rubbish(pieces + used, array - used));
    return out;
}

bool is_in(const Encoding &encoding, const WireSegment &piece)
{
    return piece.data >= encoding.buffer && piece.data <= encoding.buffer + encoding.length &&
           piece.length <= encoding.length - static_cast<size_t>(piece.data - encoding.buffer);
}

// All pieces of a whole encoding.
void require_pieces(const Record &record, const Encoding &whole, bool in_place)
{
    static std::vector<WireSegment> strings;
    strings.clear();
    if (in_place)
        find_byte_strings(record.type(), record.data(), strings);
    for (uint32_t i = 0; i < whole.count; i++) {
        const WireSegment &piece = whole.segments[i];
        TARN_FUZZ_REQUIRE(piece.length > 0);
        TARN_FUZZ_REQUIRE(is_in(whole, piece) ||
                          std::any_of(strings.begin(), strings.end(), [&](WireSegment string) {
                              return string.data == piece.data && string.length == piece.length;
                          }));
    }
    if (in_place)
        return;
    TARN_FUZZ_REQUIRE((whole.count == 0) == (whole.length == 0));
    if (whole.count) {
        TARN_FUZZ_REQUIRE(whole.segments[whole.count - 1].data == whole.buffer);
        TARN_FUZZ_REQUIRE(whole.segments[whole.count - 1].length == whole.length);
    }
}

// The pieces one after the other, byte strings in place, are the plain encoding.
void require_gather_list(const Record &record, const Encoding &whole)
{
    const Span plain = encode(record);
    size_t at = 0;
    for (uint32_t i = 0; i < whole.count; i++) {
        const WireSegment &piece = whole.segments[i];
        TARN_FUZZ_REQUIRE(piece.length <= plain.size - at);
        TARN_FUZZ_REQUIRE(!memcmp(piece.data, plain.data + at, piece.length));
        at += piece.length;
    }
    TARN_FUZZ_REQUIRE(at == plain.size);
}

// Less room, or more, changes neither length nor count nor what there is room for. Texts that do
// not fit leave gaps.
void require_part(const Encoding &part, const Encoding &whole)
{
    TARN_FUZZ_REQUIRE(part.length == whole.length);
    TARN_FUZZ_REQUIRE(part.count == whole.count);
    const bool fits = part.capacity >= whole.length;
    for (uint32_t i = 0; i < part.filled(); i++)
        TARN_FUZZ_REQUIRE(part.buffer[i] == whole.buffer[i] ||
                          (!fits && part.buffer[i] == kRubbish));
    for (uint32_t i = 0; i < part.stored(); i++) {
        const WireSegment &piece = part.segments[i];
        const WireSegment &expected = whole.segments[i];
        TARN_FUZZ_REQUIRE(piece.length == expected.length);
        if (fits)
            TARN_FUZZ_REQUIRE(piece.data == expected.data ||
                              piece.data - part.buffer == expected.data - whole.buffer);
    }
}

uint32_t capacity_for(const Input &input, uint32_t length)
{
    return input.choice & 0x10 ? input.capacity : input.capacity % (length + 1);
}

void require_encoding(const Input &input, const Record &record)
{
    const uint32_t flags =
        input.choice & 0x20 ? input.flags ^ WIRE_FLAG_BYTES_IN_PLACE : input.flags;
    const bool in_place = flags & WIRE_FLAG_BYTES_IN_PLACE;
    const uint32_t length = measure(record, flags);
    const uint32_t count = encode_into(record, length, 0, flags).count;
    const Encoding whole = encode_into(record, length, count, flags);
    TARN_FUZZ_REQUIRE(whole.length == length && whole.count == count);
    require_pieces(record, whole, in_place);
    if (!in_place)
        TARN_FUZZ_REQUIRE(equal(encode(record), {whole.buffer, whole.length}));
    else if (!record.type().has_nested)
        require_gather_list(record, whole);
    require_part(encode_into(record, capacity_for(input, length), input.segments, flags), whole);
}

} // namespace

void run(const Input &input)
{
    static Record record;
    record.begin(*input.type, input.failure, 0xA5);
    const int32_t result = record.decode(place_message(input), input.flags);
    require_sound(record, result);
    if (result == WIRE_OK && input.choice & 0x40)
        alter(record, input.capacity | input.segments << 16);
    const Span image = exact_copy({record.data(), record.type().size});
    require_encoding(input, record);
    TARN_FUZZ_REQUIRE(equal(image, {record.data(), record.type().size}));
    record.release();
}

} // namespace fuzz
