// SPDX-License-Identifier: MIT
// Every byte string of up to four bytes through the 32-bit reader, and every longer one as far as
// its bytes can make a difference.
#include "tests/exhaustive/check.hpp"
#include "wire/varint.hpp"

#include <cstdio>
#include <cstring>

using namespace tarn;

namespace exhaustive {

namespace {

// In front of the string and behind it: a reader that begins too early or reads on past the length
// would be content with it.
constexpr uint32_t kStart = 3;
constexpr uint8_t kAround = 0x01;
constexpr uint32_t kUntouched = 0xA5A5A5A5;

struct Reading {
    bool good;
    uint32_t value;
    uint32_t size;
};

constexpr Reading kCutShort = {false, 0, 0};

struct Text {
    uint8_t bytes[24];
    uint32_t size;

    explicit Text(uint32_t size_of_it) : size(size_of_it) { memset(bytes, kAround, sizeof bytes); }
    uint8_t &operator[](uint32_t i) { return bytes[kStart + i]; }
    uint8_t operator[](uint32_t i) const { return bytes[kStart + i]; }
};

// For up to four bytes.
Reading read_short(const Text &t)
{
    const uint32_t a = t[0] % 128u;
    const uint32_t b = t[1] % 128u;
    const uint32_t c = t[2] % 128u;
    const uint32_t d = t[3] % 128u;
    if (t.size >= 1 && t[0] < 128)
        return {true, a, 1};
    if (t.size >= 2 && t[0] >= 128 && t[1] < 128)
        return {true, a + b * 128, 2};
    if (t.size >= 3 && t[0] >= 128 && t[1] >= 128 && t[2] < 128)
        return {true, a + b * 128 + c * 16384, 3};
    if (t.size >= 4 && t[0] >= 128 && t[1] >= 128 && t[2] >= 128 && t[3] < 128)
        return {true, a + b * 128 + c * 16384 + d * 2097152, 4};
    return kCutShort;
}

const char *compare(const Text &text, const Reading &expected)
{
    uint32_t value = kUntouched;
    uint32_t position = kStart;
    const int32_t result = wire_read_varint32(&value, &position, text.bytes, kStart + text.size);
    if (result != (expected.good ? WIRE_OK : WIRE_ERR_MALFORMED))
        return "the result";
    if (value != (expected.good ? expected.value : kUntouched))
        return "the value";
    return position == kStart + expected.size ? nullptr : "the position";
}

// A skipped number moves likewise.
const char *compare_skipped(const Text &text, const Reading &expected)
{
    uint32_t position = kStart;
    const int32_t result = wire_skip_field(kVarint, &position, text.bytes, kStart + text.size);
    if (result != (expected.good ? WIRE_OK : WIRE_ERR_MALFORMED))
        return "the result of skipping it";
    return position == kStart + expected.size ? nullptr : "the position behind what is skipped";
}

std::string describe(const Text &text, const char *wrong)
{
    std::string all;
    for (uint32_t i = 0; i < text.size; i++) {
        char byte[4];
        std::snprintf(byte, sizeof byte, "%02X ", text[i]);
        all += byte;
    }
    return all + "(" + std::to_string(text.size) + "): " + wrong;
}

const char *check_four(uint32_t bytes)
{
    Text text(4);
    memcpy(&text[0], &bytes, 4);
    const Reading expected = read_short(text);
    if (const char *wrong = compare(text, expected))
        return wrong;
    return compare_skipped(text, expected);
}

Difference check_up_to_three(uint32_t part)
{
    for (uint32_t size = 0; size <= 3; size++)
        for (uint32_t rest = 0; rest < (size > 1 ? 1u << 8 * (size - 1) : 1u); rest++) {
            Text text(size);
            text[0] = static_cast<uint8_t>(part);
            text[1] = static_cast<uint8_t>(rest);
            text[2] = static_cast<uint8_t>(rest >> 8);
            if (const char *wrong = compare(text, read_short(text)))
                return describe(text, wrong);
        }
    return {};
}

// The first four bytes are a part's 17 bits and 11 more, each with the top bit.
constexpr uint32_t kFiveParts = 1 << 17;
constexpr uint32_t kFiveInner = 1 << 11;

void put_four(Text &text, uint32_t bits)
{
    for (uint32_t i = 0; i < 4; i++)
        text[i] = static_cast<uint8_t>(128 + (bits >> 7 * i) % 128);
}

// Of the fifth only four bits are left.
Difference check_five(uint32_t part)
{
    Text text(5);
    for (uint32_t inner = 0; inner < kFiveInner; inner++) {
        const uint32_t bits = part * kFiveInner + inner;
        put_four(text, bits);
        for (uint32_t fifth = 0; fifth < 256; fifth++) {
            text[4] = static_cast<uint8_t>(fifth);
            const Reading expected =
                fifth < 128 ? Reading{true, bits + fifth % 16 * 268435456, 5} : kCutShort;
            if (const char *wrong = compare(text, expected))
                return describe(text, wrong);
        }
    }
    return {};
}

// The fifth continues; what follows only counts. A part is one of the fifth's 128 values.
constexpr uint32_t kLongest = 16;
constexpr uint32_t kFirsts = 1 << 10; // of the first four bytes, spread over all

Difference check_longer(uint32_t part)
{
    for (uint32_t first = 0; first < kFirsts; first++)
        for (uint32_t size = 6; size <= kLongest; size++)
            for (uint32_t last = 0; last < 256; last++) {
                Text text(size);
                const uint32_t bits = first * 0x9E3779B1u >> 4;
                put_four(text, bits);
                text[4] = static_cast<uint8_t>(128 + part);
                for (uint32_t i = 5; i < size; i++)
                    text[i] = static_cast<uint8_t>(128 + (first + i) % 128);
                text[size - 1] = static_cast<uint8_t>(last);
                const Reading expected =
                    last < 128 ? Reading{true, bits + part % 16 * 268435456, size} : kCutShort;
                if (const char *wrong = compare(text, expected))
                    return describe(text, wrong);
            }
    return {};
}

} // namespace

std::vector<Check> varint_read_checks()
{
    return {
        {"byte strings of up to three bytes, read as 32 bits", 256, 1 + 1 + 256 + 65536,
         check_up_to_three},
        for_all_32_bit_values("byte strings of four bytes, read as 32 bits and skipped",
                              check_four),
        {"byte strings of five bytes of which four continue, read as 32 bits", kFiveParts,
         uint64_t{kFiveInner} * 256, check_five},
        {"byte strings of 6 to 16 bytes of which all but the last continue (a sample)", 128,
         uint64_t{kFirsts} * (kLongest - 5) * 256, check_longer},
    };
}

} // namespace exhaustive
