// SPDX-License-Identifier: MIT
// Runs of numbers inside records that are tried before their lengths are known: in whatever buffer,
// it is all as by the plain rule.
#include "tests/runtime/plain_numbers.hpp"
#include "tests/support/operations.hpp"

#include <string>

using namespace test;

namespace {

struct Meter {
    uint32_t numbers[8];                 // fields 1 to 8
    TARN_ALIGNED_8 uint64_t counters[8]; // fields 12 to 19
    uint8_t truths[8];                   // fields 30 to 37
    uint8_t flags[3];
};

struct Meters {
    Meter meter; // field 1
    Meter *list; // field 2
    uint32_t list_count;
    const char *text; // field 3
    uint8_t flags;
};

} // namespace

namespace [[gnu::visibility("hidden")]] tarn {

template <typename Indices>
struct MeterFields;

template <uint32_t... i>
struct MeterFields<std::integer_sequence<uint32_t, i...>> {
    static constexpr Field fields[] = {
        Field{Kind::uint32, 1 + i, offsetof(Meter, numbers) + size_t{4} * i, 4}...,
        Field{Kind::uint64, 12 + i, offsetof(Meter, counters) + size_t{8} * i, 8}...,
        Field{Kind::boolean, 30 + i, offsetof(Meter, truths) + i, 1}...,
    };
    using Children = RecordTypes<>;
};

template <>
struct Schema<Meter> : MeterFields<std::make_integer_sequence<uint32_t, 8>> {};

template <>
struct Schema<Meters> {
    static constexpr Field fields[] = {
        field<Kind::message, Meter>(1, offsetof(Meters, meter)),
        field<Kind::repeated_message, Meter *>(2, offsetof(Meters, list)),
        field<Kind::string, const char *>(3, offsetof(Meters, text)),
    };
    using Children = RecordTypes<Meter, Meter>;
};

} // namespace tarn

namespace {

// One of few bytes, one whose length takes two, and one with gaps and the longest of values.
Meter meter_of(uint32_t which)
{
    Meter meter = {};
    for (uint32_t i = 0; i < 8; i++) {
        meter.numbers[i] = which == 0 ? i : 0x10000000u >> 3 * i;
        meter.counters[i] = which == 0 ? 0x7F - i : UINT64_MAX >> (7 * i + (which == 1 ? 9 : 0));
        meter.truths[i] = i % 3 == 0;
    }
    constexpr uint8_t kFlags[3][3] = {{0xFF, 0x0F, 0x01}, {0xFF, 0xFF, 0xFF}, {0x73, 0xE7, 0x11}};
    std::copy_n(kFlags[which], 3, meter.flags);
    return meter;
}

void expect_plain_in_any_buffer(const Meters &meters)
{
    const uint32_t full = plain_encode<Meters>(&meters, nullptr, 0, nullptr, nullptr, 0);
    EXPECT_EQ(measure(meters), full);
    for (uint32_t capacity = 0; capacity <= full + 20; capacity++) {
        for (bool has_wish : {false, true}) {
            Bytes plain(full + 40, 0xA5), found = plain;
            WireSegment plain_pieces[8] = {}, found_pieces[8] = {};
            uint32_t plain_count = 8, found_count = 8;
            plain_encode<Meters>(&meters, plain.data(), capacity, plain_pieces,
                                 has_wish ? &plain_count : nullptr, 0);
            EXPECT_EQ(CodecFor<Meters>::encode(&meters, found.data(), capacity, found_pieces,
                                               has_wish ? &found_count : nullptr, 0),
                      full);
            ASSERT_EQ(found, plain) << "capacity " << capacity << " of " << full;
            ASSERT_EQ(found_count, plain_count);
            for (uint32_t i = 0; has_wish && i < found_count; i++)
                ASSERT_EQ(describe(found_pieces[i], found.data(), full, {}),
                          describe(plain_pieces[i], plain.data(), full, {}));
        }
    }
}

} // namespace

TEST(runs_in_nested_records, are_written_by_the_plain_rule_into_any_buffer)
{
    const std::string text(200, 't');
    for (uint32_t which = 0; which < 3; which++) {
        Meter list[3] = {meter_of(which), meter_of((which + 1) % 3), meter_of((which + 2) % 3)};
        Meters meters = {};
        meters.meter = meter_of(which);
        meters.list = list;
        meters.list_count = 3;
        meters.text = text.c_str();
        for (uint8_t flags = 0; flags < 8; flags++) {
            meters.flags = flags;
            expect_plain_in_any_buffer(meters);
        }
    }
}
