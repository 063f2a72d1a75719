// SPDX-License-Identifier: MIT
#include "tools/core/base64.hpp"

#include <array>

namespace inspect {

namespace {

constexpr std::string_view kDigits =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
constexpr uint8_t kNoDigit = 64;
constexpr unsigned kBits = 6; // of a digit

constexpr std::array<uint8_t, 256> values_of_digits()
{
    std::array<uint8_t, 256> values{};
    values.fill(kNoDigit);
    for (size_t i = 0; i < kDigits.size(); i++)
        values[static_cast<uint8_t>(kDigits[i])] = static_cast<uint8_t>(i);
    values['-'] = values['+'];
    values['_'] = values['/'];
    return values;
}

constexpr std::array<uint8_t, 256> kValues = values_of_digits();

std::string_view without_padding(std::string_view text)
{
    if (text.size() % 4 != 0)
        return text;
    for (int most = 2; most > 0 && text.ends_with('='); most--)
        text.remove_suffix(1);
    return text;
}

} // namespace

void append_base64(std::string &text, Bytes bytes)
{
    uint32_t bits = 0;
    unsigned count = 0;
    for (const uint8_t byte : bytes) {
        bits = bits << 8 | byte;
        for (count += 8; count >= kBits; count -= kBits)
            text += kDigits[bits >> (count - kBits) & 0x3F];
    }
    if (count == 0)
        return;
    text += kDigits[bits << (kBits - count) & 0x3F];
    text.append(count == 2 ? "==" : "=");
}

std::optional<std::vector<uint8_t>> bytes_of_base64(std::string_view text)
{
    text = without_padding(text);
    if (text.size() % 4 == 1)
        return {};
    std::vector<uint8_t> bytes;
    bytes.reserve(text.size() / 4 * 3 + 2);
    uint32_t bits = 0;
    unsigned count = 0;
    for (const char digit : text) {
        const uint8_t value = kValues[static_cast<uint8_t>(digit)];
        if (value == kNoDigit)
            return {};
        bits = bits << kBits | value;
        count += kBits;
        if (count < 8)
            continue;
        count -= 8;
        bytes.push_back(static_cast<uint8_t>(bits >> count));
    }
    if ((bits & ((1U << count) - 1)) != 0)
        return {};
    return bytes;
}

} // namespace inspect
