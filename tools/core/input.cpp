// SPDX-License-Identifier: MIT
#include "tools/core/input.hpp"

#include "tools/core/error.hpp"
#include "tools/core/input_formats.hpp"
#include "tools/core/input_text.hpp"

#include <algorithm>

namespace inspect {

namespace {

constexpr size_t kShortestBase64 = 4;

using Reader = void (*)(std::string_view, std::vector<uint8_t> &);

bool takes(Reader reader, std::string_view input)
{
    try {
        std::vector<uint8_t> out;
        reader(input, out);
        return !out.empty();
    } catch (const Error &) {
        return false;
    }
}

bool is_raw_byte(char c)
{
    return (static_cast<uint8_t>(c) < ' ' && !is_blank(c)) || c == 0x7F;
}

std::string_view without_blanks(std::string_view input)
{
    constexpr std::string_view blanks = " \t\n\v\f\r";
    const size_t begin = input.find_first_not_of(blanks);
    return begin == input.npos ? std::string_view{}
                               : input.substr(begin, input.find_last_not_of(blanks) + 1 - begin);
}

bool is_digits(std::string_view text)
{
    return std::ranges::all_of(text, [](char c) { return is_hex_digit(c) || is_blank(c); });
}

// Of a text with something in it besides blanks.
InputFormat recognise_text(std::string_view input, std::string_view text)
{
    if (begins_like_dump(input) || is_dump(input))
        return InputFormat::xxd;
    if (begins_like_c_array(input))
        return InputFormat::c_array;
    if (text.size() > 1 && takes(read_hex, input))
        return InputFormat::hex;
    if (is_c_array(input))
        return InputFormat::c_array;
    if (text.size() > 1 && is_digits(text))
        return InputFormat::hex;
    if (text.size() >= kShortestBase64 && takes(read_base64, input))
        return InputFormat::base64;
    return InputFormat::raw;
}

} // namespace

InputFormat recognise(std::string_view input)
{
    if (input == "\n" || input == "\r\n")
        return InputFormat::hex;
    const std::string_view text = without_blanks(input);
    if (text.empty() || std::ranges::any_of(input, is_raw_byte))
        return InputFormat::raw;
    return recognise_text(input, text);
}

Bytes parse_input(std::string_view input, InputFormat format, std::vector<uint8_t> &storage)
{
    storage.clear();
    switch (format) {
    case InputFormat::raw:
        return {reinterpret_cast<const uint8_t *>(input.data()), input.size()};
    case InputFormat::hex:
        read_hex(input, storage);
        break;
    case InputFormat::xxd:
        read_dump(input, storage);
        break;
    case InputFormat::base64:
        read_base64(input, storage);
        break;
    case InputFormat::c_array:
        read_c_array(input, storage);
        break;
    }
    return storage;
}

} // namespace inspect
