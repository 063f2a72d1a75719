// SPDX-License-Identifier: MIT
// Records with something in them, together with what they point to and what they look like on the
// wire.

#pragma once

#include "tests/support/bytes.hpp"
#include "tests/support/records.hpp"

namespace test {

// Every kind of member, all present. Its bytes are a table of kSampleBytes.
template <uint32_t first>
struct SampleFrom {
    uint8_t blob[2] = {0xDE, 0xAD};
    uint32_t numbers[2] = {1, 300};
    const char *texts[2] = {"ab", ""};
    Leaf leaves[2] = {{7, "x", 1, 1}, {}};
    EveryFrom<first> record = {};

    SampleFrom()
    {
        record.number = 9;
        record.wide = uint64_t{1} << 35;
        record.truth = 1;
        record.text = "hi";
        record.blob = blob;
        record.blob_length = 2;
        record.leaf = {5, nullptr, 1, 0};
        record.numbers = numbers;
        record.numbers_count = 2;
        record.texts = texts;
        record.texts_count = 2;
        record.leaves = leaves;
        record.leaves_count = 2;
        record.has_number = record.has_wide = record.has_truth = record.has_text = 1;
        record.has_blob = record.has_leaf = record.has_numbers = record.has_texts = 1;
        record.has_leaves = 1;
    }

    SampleFrom(const SampleFrom &) = delete;
    SampleFrom &operator=(const SampleFrom &) = delete;
};
using Sample = SampleFrom<1>;

// clang-format off
inline const Bytes kSampleBytes = {
    0x08, 0x09,                                     //  0 number
    0x10, 0x80, 0x80, 0x80, 0x80, 0x80, 0x01,       //  2 wide
    0x18, 0x01,                                     //  9 truth
    0x22, 0x02, 'h', 'i',                           // 11 text
    0x2A, 0x02, 0xDE, 0xAD,                         // 15 blob
    0x32, 0x02, 0x08, 0x05,                         // 19 leaf
    0x38, 0x01, 0x38, 0xAC, 0x02,                   // 23 numbers
    0x42, 0x02, 'a', 'b', 0x42, 0x00,               // 28 texts
    0x4A, 0x05, 0x08, 0x07, 0x12, 0x01, 'x',        // 34 leaves
    0x4A, 0x00,                                     // 41
};                                                  // 43
// The same record from field 16 on, and from field 32 on.
inline const Bytes kSampleBytesFrom16 = {
    0x80, 0x01, 0x09,
    0x88, 0x01, 0x80, 0x80, 0x80, 0x80, 0x80, 0x01,
    0x90, 0x01, 0x01,
    0x9A, 0x01, 0x02, 'h', 'i',
    0xA2, 0x01, 0x02, 0xDE, 0xAD,
    0xAA, 0x01, 0x02, 0x08, 0x05,
    0xB0, 0x01, 0x01, 0xB0, 0x01, 0xAC, 0x02,
    0xBA, 0x01, 0x02, 'a', 'b', 0xBA, 0x01, 0x00,
    0xC2, 0x01, 0x05, 0x08, 0x07, 0x12, 0x01, 'x', 0xC2, 0x01, 0x00,
};
inline const Bytes kSampleBytesFrom32 = {
    0x80, 0x02, 0x09,
    0x88, 0x02, 0x80, 0x80, 0x80, 0x80, 0x80, 0x01,
    0x90, 0x02, 0x01,
    0x9A, 0x02, 0x02, 'h', 'i',
    0xA2, 0x02, 0x02, 0xDE, 0xAD,
    0xAA, 0x02, 0x02, 0x08, 0x05,
    0xB0, 0x02, 0x01, 0xB0, 0x02, 0xAC, 0x02,
    0xBA, 0x02, 0x02, 'a', 'b', 0xBA, 0x02, 0x00,
    0xC2, 0x02, 0x05, 0x08, 0x07, 0x12, 0x01, 'x', 0xC2, 0x02, 0x00,
};
// clang-format on

// Records inside records inside records.
struct SampleShell {
    Leaf leaf = {3, nullptr, 1, 0};
    Every list[2] = {};
    Shell record = {};

    SampleShell()
    {
        record.every.leaf = {1, nullptr, 1, 0};
        list[0].number = 2;
        list[0].has_number = 1;
        list[1].leaves = &leaf;
        list[1].leaves_count = 1;
        list[1].has_leaves = 1;
        record.list = list;
        record.list_count = 2;
        record.closing = 1;
        record.has_list = record.has_closing = 1;
    }

    SampleShell(const SampleShell &) = delete;
    SampleShell &operator=(const SampleShell &) = delete;
};

// clang-format off
inline const Bytes kSampleShellBytes = {
    0x0A, 0x04, 0x32, 0x02, 0x08, 0x01, //  0 every, in it leaf
    0x12, 0x02, 0x08, 0x02,             //  6 list
    0x12, 0x04, 0x4A, 0x02, 0x08, 0x03, // 10
    0x18, 0x01,                         // 16 closing
};                                      // 18
// clang-format on

// Byte strings at every depth.
struct SampleParcel {
    uint8_t inner[2] = {0xAB, 0xCD};
    uint8_t element[1] = {0xEE};
    uint8_t outer[1] = {0xFE};
    Blobs list[2] = {};
    Parcel record = {};

    SampleParcel()
    {
        record.number = 1;
        record.blobs.number = 5;
        record.blobs.first = inner;
        record.blobs.first_length = 2;
        record.blobs.middle = 6;
        record.blobs.has_number = record.blobs.has_first = record.blobs.has_middle = 1;
        list[0].first = element;
        list[0].first_length = 1;
        list[0].has_first = 1;
        record.list = list;
        record.list_count = 2;
        record.blob = outer;
        record.blob_length = 1;
        record.has_number = record.has_blobs = record.has_list = record.has_blob = 1;
    }

    SampleParcel(const SampleParcel &) = delete;
    SampleParcel &operator=(const SampleParcel &) = delete;
};

// clang-format off
inline const Bytes kSampleParcelBytes = {
    0x08, 0x01,                                                 // number
    0x12, 0x08, 0x08, 0x05, 0x12, 0x02, 0xAB, 0xCD, 0x18, 0x06, // blobs
    0x1A, 0x03, 0x12, 0x01, 0xEE, 0x1A, 0x00,                   // list
    0x22, 0x01, 0xFE,                                           // blob
};
// What is left in the buffer when the byte strings stay in place: the lengths of records shrink.
inline const Bytes kSampleParcelBytesInPlace = {
    0x08, 0x01,                                     //  0
    0x12, 0x06, 0x08, 0x05, 0x12, 0x02, 0x18, 0x06, //  2
    0x1A, 0x02, 0x12, 0x01, 0x1A, 0x00,             // 10
    0x22, 0x01,                                     // 16
};
// clang-format on

} // namespace test
