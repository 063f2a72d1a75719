// SPDX-License-Identifier: MIT
#include "tools/core/json_value.hpp"

#include <algorithm>
#include <charconv>
#include <string>

namespace inspect {

namespace {

// Of the largest number with 64 bits.
constexpr int64_t kMostDigits = 20;
// Beyond every number of digits that there can be, and far from overflowing.
constexpr int64_t kHuge = int64_t{1} << 58;

struct Decimal {
    bool is_negative;
    std::string digits; // before and behind the point
    int64_t exponent;   // of the last digit
};

bool is_digit(char c)
{
    return c >= '0' && c <= '9';
}

bool take(std::string_view &text, char c)
{
    if (!text.starts_with(c))
        return false;
    text.remove_prefix(1);
    return true;
}

std::string_view take_digits(std::string_view &text)
{
    const auto *const end = std::ranges::find_if_not(text, is_digit);
    const std::string_view digits = text.substr(0, static_cast<size_t>(end - text.begin()));
    text.remove_prefix(digits.size());
    return digits;
}

int64_t limited(std::string_view digits)
{
    int64_t value = 0;
    for (const char digit : digits)
        value = std::min(value * 10 + (digit - '0'), kHuge);
    return value;
}

// Nothing where there are no digits.
std::optional<int64_t> take_exponent(std::string_view &text)
{
    const bool is_negative = take(text, '-');
    if (!is_negative)
        take(text, '+');
    const std::string_view digits = take_digits(text);
    if (digits.empty())
        return {};
    return is_negative ? -limited(digits) : limited(digits);
}

std::optional<Decimal> parse(std::string_view text)
{
    Decimal decimal{take(text, '-'), std::string(take_digits(text)), 0};
    if (decimal.digits.empty() || (decimal.digits[0] == '0' && decimal.digits.size() > 1))
        return {};
    if (take(text, '.')) {
        const std::string_view fraction = take_digits(text);
        if (fraction.empty())
            return {};
        decimal.digits += fraction;
        decimal.exponent = -static_cast<int64_t>(fraction.size());
    }
    if (take(text, 'e') || take(text, 'E')) {
        const std::optional<int64_t> exponent = take_exponent(text);
        if (!exponent)
            return {};
        decimal.exponent += *exponent;
    }
    return text.empty() ? std::optional(std::move(decimal)) : std::nullopt;
}

// Without zeros at either end, which say nothing but how much the others are worth.
void trim(Decimal &decimal)
{
    const size_t end = decimal.digits.find_last_not_of('0') + 1;
    decimal.exponent += static_cast<int64_t>(decimal.digits.size() - end);
    decimal.digits.erase(end);
    decimal.digits.erase(0, decimal.digits.find_first_not_of('0'));
}

// Nothing where it is too large.
std::optional<uint64_t> value_of(const Decimal &whole)
{
    const auto count = static_cast<int64_t>(whole.digits.size());
    if (count > kMostDigits || whole.exponent > kMostDigits - count)
        return {};
    const std::string digits = whole.digits + std::string(static_cast<size_t>(whole.exponent), '0');
    uint64_t value = 0;
    if (std::from_chars(digits.data(), digits.data() + digits.size(), value).ec != std::errc{})
        return {};
    return value;
}

int value_of_hex(char c)
{
    if (is_digit(c))
        return c - '0';
    const char lower = static_cast<char>(c | 0x20);
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

} // namespace

WholeNumber whole_number(std::string_view text, Kind kind)
{
    std::optional<Decimal> decimal = parse(text);
    if (!decimal)
        return {0, "is not a number"};
    trim(*decimal);
    if (decimal->digits.empty())
        return {};
    if (decimal->is_negative)
        return {0, "is negative"};
    if (decimal->exponent < 0)
        return {0, "is not a whole number"};
    const std::optional<uint64_t> value = value_of(*decimal);
    if (!value || (kind == Kind::uint32 && *value > UINT32_MAX))
        return {0, "does not fit in " + std::string(kind_words(kind))};
    return {*value, {}};
}

std::optional<std::vector<uint8_t>> bytes_of_hex(std::string_view text)
{
    if (text.size() % 2 != 0)
        return {};
    std::vector<uint8_t> bytes;
    bytes.reserve(text.size() / 2);
    for (size_t i = 0; i < text.size(); i += 2) {
        const int high = value_of_hex(text[i]);
        const int low = value_of_hex(text[i + 1]);
        if (high < 0 || low < 0)
            return {};
        bytes.push_back(static_cast<uint8_t>(high << 4 | low));
    }
    return bytes;
}

} // namespace inspect
