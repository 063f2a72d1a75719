// SPDX-License-Identifier: MIT
// Records as JSON and back, as tests call it.

#pragma once

#include "tests/tools/hex_bytes.hpp"
#include "tools/core/error.hpp"
#include "tools/core/json.hpp"

#include <cstddef>
#include <cstdint>
#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <vector>

namespace inspect {

constexpr size_t kTestLimit = size_t{1} << 24;
constexpr JsonOptions kOneLine = {.one_line = true};

inline std::string written(RecordView record, const JsonOptions &options = kOneLine,
                           const std::vector<Step> &stopped_at = {})
{
    std::string text;
    write_json(record, options, stopped_at, [&](std::string_view piece) { text += piece; });
    return text;
}

inline Record read(const RecordType &type, std::string_view json, const JsonOptions &options = {},
                   size_t memory_limit = kTestLimit)
{
    Record record(type, memory_limit);
    read_json(json, options, record);
    return record;
}

// The bytes that a JSON text says.
inline std::vector<uint8_t> encoded(std::string_view type, std::string_view json,
                                    const JsonOptions &options = {})
{
    return read(*find_type(type), json, options).encode();
}

// What is wrong with it; empty when nothing is.
inline std::string error_of(std::string_view type, std::string_view json,
                            const JsonOptions &options = {}, size_t memory_limit = kTestLimit)
{
    try {
        read(*find_type(type), json, options, memory_limit);
        return {};
    } catch (const Error &error) {
        return error.what();
    }
}

// A text and the bytes that it says.
struct Read {
    std::string_view type;
    std::string_view json;
    std::string_view message;
};

template <size_t count>
void expect_read(const Read (&cases)[count], const JsonOptions &options = {})
{
    for (const Read &test_case : cases)
        EXPECT_EQ(encoded(test_case.type, test_case.json, options), from_hex(test_case.message))
            << test_case.json;
}

// A text and what is wrong with it.
struct Refused {
    std::string_view type;
    std::string_view json;
    std::string_view error;
};

template <size_t count>
void expect_refused(const Refused (&cases)[count], const JsonOptions &options = {})
{
    for (const Refused &test_case : cases)
        EXPECT_EQ(error_of(test_case.type, test_case.json, options), test_case.error)
            << test_case.json;
}

} // namespace inspect
