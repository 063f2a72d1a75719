// SPDX-License-Identifier: MIT
// Every 32-bit value, and 64-bit values of every length, through the writers and back.
#include "tests/exhaustive/check.hpp"
#include "tests/exhaustive/varint_reference.hpp"
#include "wire/varint.hpp"

using namespace tarn;

namespace exhaustive {

namespace {

constexpr uint32_t kOffset = 2;
constexpr uint32_t kSize = 16;
constexpr uint8_t kUntouched = 0xEE;

// A buffer of which `capacity` bytes may be written; all of it is compared.
struct Image {
    explicit Image(uint32_t capacity_of_it = kSize) : capacity(capacity_of_it)
    {
        memset(bytes, kUntouched, sizeof bytes);
    }

    void expect(const Varint &varint)
    {
        for (uint32_t i = 0; i < varint.size && kOffset + i < capacity; i++)
            bytes[kOffset + i] = varint.bytes[i];
    }

    bool operator==(const Image &other) const { return !memcmp(bytes, other.bytes, sizeof bytes); }

    uint8_t bytes[kSize];
    uint32_t capacity;
};

// A writer into a whole buffer, into one that may be too small, and into none.
template <typename Value, typename Put>
const char *check_writer(Value value, const Varint &varint, uint32_t room, Put put)
{
    for (uint32_t capacity : {kSize, kOffset + room}) {
        Image expected(capacity);
        expected.expect(varint);
        Image written(capacity);
        if (put(value, kOffset, written.bytes, capacity) != kOffset + varint.size)
            return "the offset that is returned";
        if (!(written == expected))
            return "the bytes that are written";
    }
    if (put(value, kOffset, nullptr, 0) != kOffset + varint.size)
        return "the size that is measured";
    return nullptr;
}

template <typename Value, typename Read>
const char *check_reader(Value value, const Varint &varint, Read read)
{
    Image image;
    image.expect(varint);
    Value found = static_cast<Value>(~value);
    uint32_t position = kOffset;
    const uint32_t end = kOffset + varint.size;
    if (read(&found, &position, image.bytes, end - 1) != WIRE_ERR_MALFORMED)
        return "the result of reading it cut short";
    if (found != static_cast<Value>(~value) || position != kOffset)
        return "what reading it cut short leaves behind";
    if (read(&found, &position, image.bytes, end) != WIRE_OK)
        return "the result of reading it";
    return found == value && position == end ? nullptr : "the value read, or the position behind";
}

const char *check_32(uint32_t value)
{
    const Varint varint = varint32(value);
    const uint32_t room = value % 6;
    if (wire_varint32_size(value) != varint.size)
        return "wire_varint32_size";
    if (const char *wrong = check_writer(value, varint, room, wire_put_varint32))
        return wrong;
    if (const char *wrong = check_writer(value, varint, room, wire_put_tag))
        return wrong;
    return check_reader(value, varint, wire_read_varint32);
}

const char *check_64(uint64_t value)
{
    const Varint varint = varint64(value);
    const uint32_t room = static_cast<uint32_t>(value % 11);
    if (wire_varint64_size(value) != varint.size)
        return "wire_varint64_size";
    if (const char *wrong = check_writer(value, varint, room, wire_put_varint64))
        return wrong;
    if (const char *wrong = check_reader(value, varint, wire_read_varint64))
        return wrong;
    // Read as 32 bits, its low half is left.
    Image image;
    image.expect(varint);
    uint32_t low = 0;
    uint32_t position = kOffset;
    if (wire_read_varint32(&low, &position, image.bytes, kSize) != WIRE_OK ||
        low != static_cast<uint32_t>(value) || position != kOffset + varint.size)
        return "its low half";
    return nullptr;
}

// For tags of two bytes only.
Difference check_varint8(uint32_t part)
{
    const auto value = static_cast<uint8_t>(part);
    for (uint32_t room = 0; room <= kSize - kOffset; room++)
        if (const char *wrong = check_writer(value, varint32(value), room, wire_put_varint8))
            return std::to_string(part) + ": " + wrong;
    return {};
}

} // namespace

std::vector<Check> varint_write_checks()
{
    return {
        {"8-bit values through wire_put_varint8, in buffers of every size", 256,
         kSize - kOffset + 1, check_varint8},
        for_all_32_bit_values("32-bit values and tags, measured, written, cut short and read back",
                              check_32),
        for_64_bit_windows(
            "64-bit values with their bits within 22 neighbours, and their complements", check_64),
    };
}

} // namespace exhaustive
