// SPDX-License-Identifier: MIT
// Records in records in records, as deep as a test wants them: what is inside a box stands between
// other members, and every box can hold a list of such boxes, too.

#pragma once

#include "tests/support/records.hpp"

namespace test {

template <uint32_t depth>
struct Box;

// What is in the innermost box.
template <>
struct Box<0> {
    uint32_t number;   // field 1
    const char *text;  // field 2
    uint32_t *numbers; // field 3
    uint32_t numbers_count;
    unsigned has_number : 1;
    unsigned has_text : 1;
    unsigned has_numbers : 1;
};

template <uint32_t depth>
struct Box {
    uint32_t number;      // field 1
    Box<depth - 1> inner; // field 2
    const char *text;     // field 3
    Box<depth - 1> *list; // field 16
    uint32_t list_count;
    const uint8_t *blob; // field 17
    uint32_t blob_length;
    TARN_ALIGNED_8 uint64_t wide; // field 18
    unsigned has_number : 1;
    unsigned has_inner : 1;
    unsigned has_text : 1;
    unsigned has_list : 1;
    unsigned has_blob : 1;
    unsigned has_wide : 1;
};

// The same without texts and byte strings: nothing but numbers.
template <uint32_t depth>
struct Crate;

template <>
struct Crate<0> {
    uint32_t number;   // field 1
    uint32_t *numbers; // field 2
    uint32_t numbers_count;
    unsigned has_number : 1;
    unsigned has_numbers : 1;
};

template <uint32_t depth>
struct Crate {
    Crate<depth - 1> inner; // field 15
    Crate<depth - 1> *list; // field 16
    uint32_t list_count;
    uint8_t closing; // field 17
    unsigned has_inner : 1;
    unsigned has_list : 1;
    unsigned has_closing : 1;
};

} // namespace test

namespace [[gnu::visibility("hidden")]] tarn {

template <>
struct Schema<test::Box<0>> {
    using Record = test::Box<0>;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::number)>(1, offsetof(Record, number)),
        field<Kind::string, decltype(Record::text)>(2, offsetof(Record, text)),
        field<Kind::repeated_uint32, decltype(Record::numbers)>(3, offsetof(Record, numbers)),
    };
    using Children = RecordTypes<>;
};

template <uint32_t depth>
struct Schema<test::Box<depth>> {
    using Record = test::Box<depth>;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::number)>(1, offsetof(Record, number)),
        field<Kind::message, decltype(Record::inner)>(2, offsetof(Record, inner)),
        field<Kind::string, decltype(Record::text)>(3, offsetof(Record, text)),
        field<Kind::repeated_message, decltype(Record::list)>(16, offsetof(Record, list)),
        field<Kind::bytes, decltype(Record::blob)>(17, offsetof(Record, blob)),
        field<Kind::uint64, decltype(Record::wide)>(18, offsetof(Record, wide)),
    };
    using Children = RecordTypes<test::Box<depth - 1>, test::Box<depth - 1>>;
};

template <>
struct Schema<test::Crate<0>> {
    using Record = test::Crate<0>;
    static constexpr Field fields[] = {
        field<Kind::uint32, decltype(Record::number)>(1, offsetof(Record, number)),
        field<Kind::repeated_uint32, decltype(Record::numbers)>(2, offsetof(Record, numbers)),
    };
    using Children = RecordTypes<>;
};

template <uint32_t depth>
struct Schema<test::Crate<depth>> {
    using Record = test::Crate<depth>;
    static constexpr Field fields[] = {
        field<Kind::message, decltype(Record::inner)>(15, offsetof(Record, inner)),
        field<Kind::repeated_message, decltype(Record::list)>(16, offsetof(Record, list)),
        field<Kind::boolean, decltype(Record::closing)>(17, offsetof(Record, closing)),
    };
    using Children = RecordTypes<test::Crate<depth - 1>, test::Crate<depth - 1>>;
};

} // namespace tarn
