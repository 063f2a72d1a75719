// SPDX-License-Identifier: MIT
// The operations of record types known by name, for tests that fill and read the C structures.

#pragma once

#include "tests/catalogue/blocks.hpp"
#include "tests/catalogue/catalogue.hpp"
#include "tests/support/bytes.hpp"
#include "tests/support/undefined.hpp"

#include <gtest/gtest.h>
#include <string.h>

namespace catalogue {

using test::Bytes;

template <typename Record>
struct Operations;

// Makes a record type known to the templates below, and gives it a shorter name.
#define TARN_TEST_RECORD(Name, T)                                                                  \
    using Name = T;                                                                                \
    template <>                                                                                    \
    struct Operations<T> {                                                                         \
        static constexpr EncodeExt<T> encode = T##_encode_ext;                                     \
        static constexpr DecodeExt<T> decode = T##_decode_ext;                                     \
        static constexpr FreeExt<T> release = T##_free_ext;                                        \
    }

// Sets a member and its flag; of a list or byte string, pointer and number too.
#define SET(record, member, value) ((record).member = (value), (record).has_##member = 1)
#define SET_LIST(record, member, array, number)                                                    \
    (SET(record, member, array), (record).member##_count = (number))
#define SET_BYTES(record, member, data, number)                                                    \
    (SET(record, member, data), (record).member##_length = (number))

template <typename Record>
Bytes encoded(const Record &record)
{
    constexpr auto encode = Operations<Record>::encode;
    Bytes buffer(encode(&record, nullptr, 0, nullptr, nullptr, 0));
    test::make_undefined(buffer.data(), buffer.size());
    EXPECT_EQ(encode(&record, buffer.data(), buffer.length(), nullptr, nullptr, 0), buffer.size());
    return buffer;
}

// A record decoded from bytes, over something other than zero.
template <typename Record>
class Received {
public:
    explicit Received(const Bytes &input, uint32_t flags = 0) : input_(input), flags_(flags)
    {
        memset(&record, 0xA5, sizeof record);
        test::make_undefined(&record, sizeof record);
        result = Operations<Record>::decode(&record, input_.data(), input_.length(),
                                            Blocks::allocate, &blocks, flags_);
    }

    ~Received() { release(); }

    void release() { Operations<Record>::release(&record, Blocks::release, &blocks, flags_); }

    Record record;
    int32_t result;
    Blocks blocks;

private:
    Bytes input_;
    uint32_t flags_;
};

// What a service sends on that decodes and encodes again.
template <typename Record>
Bytes resent(const Bytes &input)
{
    const Received<Record> received(input);
    EXPECT_EQ(received.result, WIRE_OK);
    return encoded(received.record);
}

template <typename Record>
int32_t decoding_result(const Bytes &input)
{
    return Received<Record>(input).result;
}

} // namespace catalogue
