// SPDX-License-Identifier: MIT
#include "tests/catalogue/vectors.hpp"

namespace catalogue {

namespace {

constexpr char kDigits[] = "0123456789abcdef";

// Enough to meet each shape of a value; the native tests compare all cases anyway.
bool is_chosen(const Case &test_case)
{
    switch (test_case.shape) {
    case Shape::none:
        return false;
    case Shape::some:
        return test_case.variant < 2;
    case Shape::all:
        return test_case.variant == 2 || test_case.variant == 4 || test_case.variant == 8;
    case Shape::alone:
        break;
    }
    // The first variant from a place on that puts something on the wire.
    Case first = test_case;
    first.variant = static_cast<uint32_t>(test_case.member % kVariants);
    while (!writes_something(content_of(first)))
        first.variant = (first.variant + 1) % kVariants;
    return test_case.variant == first.variant;
}

} // namespace

std::vector<Case> vector_cases()
{
    std::vector<Case> chosen;
    for (const Case &test_case : all_cases())
        if (is_chosen(test_case))
            chosen.push_back(test_case);
    return chosen;
}

std::string vectors_path()
{
    return TARN_SOURCE_DIR "/tests/catalogue/vectors.txt";
}

std::string vectors_heading()
{
    return "# SPDX-License-Identifier: MIT\n"
           "# Written by another Protocol Buffers library; to write it anew:\n"
           "#     cmake --build build/dev --target rewrite_vectors\n"
           "# One case a line: record type, what is set and in which variant, encoding.\n";
}

std::string vector_line(const Case &test_case, const test::Bytes &encoding)
{
    std::string line = name_of(test_case) + " ";
    for (const uint8_t byte : encoding) {
        line += kDigits[byte >> 4];
        line += kDigits[byte & 15];
    }
    return line;
}

test::Bytes bytes_in(const std::string &line)
{
    test::Bytes bytes;
    for (size_t at = line.rfind(' ') + 1; at + 1 < line.size(); at += 2)
        bytes.push_back(static_cast<uint8_t>(std::stoul(line.substr(at, 2), nullptr, 16)));
    return bytes;
}

} // namespace catalogue
