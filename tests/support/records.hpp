// SPDX-License-Identifier: MIT
// Small record types for the tests of the runtime, described as generated files describe theirs.

#pragma once

#include "runtime/codec.hpp"

#include <cstddef>
#include <cstdint>

namespace test {

struct Leaf {
    uint32_t number;  // field 1
    const char *text; // field 2
    unsigned has_number : 1;
    unsigned has_text : 1;
};

// What allocators are asked for: an element of a list of texts, or of leaves.
constexpr uint32_t kPointerSize = sizeof(char *);
constexpr uint32_t kLeafSize = sizeof(Leaf);

// Every kind once, from field number `first` on: 1, 16 and 32 make tags of each width there is.
template <uint32_t first>
struct EveryFrom {
    uint32_t number;
    TARN_ALIGNED_8 uint64_t wide;
    uint8_t truth;
    const char *text;
    const uint8_t *blob;
    uint32_t blob_length;
    Leaf leaf;
    uint32_t *numbers;
    uint32_t numbers_count;
    const char **texts;
    uint32_t texts_count;
    Leaf *leaves;
    uint32_t leaves_count;
    unsigned has_number : 1;
    unsigned has_wide : 1;
    unsigned has_truth : 1;
    unsigned has_text : 1;
    unsigned has_blob : 1;
    unsigned has_leaf : 1;
    unsigned has_numbers : 1;
    unsigned has_texts : 1;
    unsigned has_leaves : 1;
};
using Every = EveryFrom<1>;

// An embedded record, and a list of records, that have records in them themselves.
struct Shell {
    Every every; // field 1
    Every *list; // field 2
    uint32_t list_count;
    uint8_t closing; // field 3
    unsigned has_every : 1;
    unsigned has_list : 1;
    unsigned has_closing : 1;
};

// Rows of scalars with gaps between their field numbers.
struct Rows {
    uint32_t field_1;
    uint32_t field_2;
    uint32_t field_10;
    uint32_t field_11;
    TARN_ALIGNED_8 uint64_t field_20;
    TARN_ALIGNED_8 uint64_t field_21;
    uint8_t field_30;
    uint8_t field_31;
    uint8_t field_33;
    unsigned has_field_1 : 1;
    unsigned has_field_2 : 1;
    unsigned has_field_10 : 1;
    unsigned has_field_11 : 1;
    unsigned has_field_20 : 1;
    unsigned has_field_21 : 1;
    unsigned has_field_30 : 1;
    unsigned has_field_31 : 1;
    unsigned has_field_33 : 1;
};

// Two byte strings with a number behind each.
struct Blobs {
    uint32_t number;      // field 1
    const uint8_t *first; // field 2
    uint32_t first_length;
    uint32_t middle;       // field 3
    const uint8_t *second; // field 4
    uint32_t second_length;
    TARN_ALIGNED_8 uint64_t last; // field 5
    unsigned has_number : 1;
    unsigned has_first : 1;
    unsigned has_middle : 1;
    unsigned has_second : 1;
    unsigned has_last : 1;
};

// Blobs embedded and in a list.
struct Parcel {
    uint32_t number; // field 1
    Blobs blobs;     // field 2
    Blobs *list;     // field 3
    uint32_t list_count;
    const uint8_t *blob; // field 4
    uint32_t blob_length;
    unsigned has_number : 1;
    unsigned has_blobs : 1;
    unsigned has_list : 1;
    unsigned has_blob : 1;
};

// More members in a row than there are flags in a word.
struct Large {
    uint64_t members[62]; // fields 1 to 62
    uint8_t flags[8];
};

struct Nothing;

} // namespace test

namespace [[gnu::visibility("hidden")]] tarn {

template <>
struct Schema<test::Leaf> {
    using Record = test::Leaf;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::number)>(1, offsetof(Record, number)),
        field<Kind::string, decltype(Record::text)>(2, offsetof(Record, text)),
    };
    using Children = RecordTypes<>;
};

template <uint32_t first>
struct Schema<test::EveryFrom<first>> {
    using Record = test::EveryFrom<first>;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::number)>(first, offsetof(Record, number)),
        field<Kind::uint64, decltype(Record::wide)>(first + 1, offsetof(Record, wide)),
        field<Kind::boolean, decltype(Record::truth)>(first + 2, offsetof(Record, truth)),
        field<Kind::string, decltype(Record::text)>(first + 3, offsetof(Record, text)),
        field<Kind::bytes, decltype(Record::blob)>(first + 4, offsetof(Record, blob)),
        field<Kind::message, decltype(Record::leaf)>(first + 5, offsetof(Record, leaf)),
        field<Kind::repeated_uint32, decltype(Record::numbers)>(first + 6,
                                                                offsetof(Record, numbers)),
        field<Kind::repeated_string, decltype(Record::texts)>(first + 7, offsetof(Record, texts)),
        field<Kind::repeated_message, decltype(Record::leaves)>(first + 8,
                                                                offsetof(Record, leaves)),
    };
    using Children = RecordTypes<test::Leaf, test::Leaf>;
};

template <>
struct Schema<test::Shell> {
    using Record = test::Shell;
    static constexpr Field fields[] = {
        field<Kind::message, decltype(Record::every)>(1, offsetof(Record, every)),
        field<Kind::repeated_message, decltype(Record::list)>(2, offsetof(Record, list)),
        field<Kind::boolean, decltype(Record::closing)>(3, offsetof(Record, closing)),
    };
    using Children = RecordTypes<test::Every, test::Every>;
};

template <>
struct Schema<test::Rows> {
    using Record = test::Rows;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::field_1)>(1, offsetof(Record, field_1)),
        field<Kind::uint32, decltype(Record::field_2)>(2, offsetof(Record, field_2)),
        field<Kind::uint32, decltype(Record::field_10)>(10, offsetof(Record, field_10)),
        field<Kind::uint32, decltype(Record::field_11)>(11, offsetof(Record, field_11)),
        field<Kind::uint64, decltype(Record::field_20)>(20, offsetof(Record, field_20)),
        field<Kind::uint64, decltype(Record::field_21)>(21, offsetof(Record, field_21)),
        field<Kind::boolean, decltype(Record::field_30)>(30, offsetof(Record, field_30)),
        field<Kind::boolean, decltype(Record::field_31)>(31, offsetof(Record, field_31)),
        field<Kind::boolean, decltype(Record::field_33)>(33, offsetof(Record, field_33)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<test::Blobs> {
    using Record = test::Blobs;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::number)>(1, offsetof(Record, number)),
        field<Kind::bytes, decltype(Record::first)>(2, offsetof(Record, first)),
        field<Kind::uint32, decltype(Record::middle)>(3, offsetof(Record, middle)),
        field<Kind::bytes, decltype(Record::second)>(4, offsetof(Record, second)),
        field<Kind::uint64, decltype(Record::last)>(5, offsetof(Record, last)),
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<test::Parcel> {
    using Record = test::Parcel;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::number)>(1, offsetof(Record, number)),
        field<Kind::message, decltype(Record::blobs)>(2, offsetof(Record, blobs)),
        field<Kind::repeated_message, decltype(Record::list)>(3, offsetof(Record, list)),
        field<Kind::bytes, decltype(Record::blob)>(4, offsetof(Record, blob)),
    };
    using Children = RecordTypes<test::Blobs, test::Blobs>;
};

template <typename Indices>
struct LargeFields;

template <uint32_t... i>
struct LargeFields<std::integer_sequence<uint32_t, i...>> {
    static constexpr Field fields[] = {
        Field{Kind::uint64, static_cast<uint8_t>(i + 1), static_cast<uint16_t>(i * 8), 8}...};
    using Children = RecordTypes<>;
};

template <>
struct Schema<test::Large> : LargeFields<std::make_integer_sequence<uint32_t, 62>> {};

template <>
struct Schema<test::Nothing> {
    static constexpr NoFields fields{};
    using Children = RecordTypes<>;
};

} // namespace tarn
