// SPDX-License-Identifier: MIT
// Measuring every record type of the catalogue where a member has its flag but nothing behind it:
// null texts, empty lists, records that seem to hold something. And byte strings in place.
#include "tests/catalogue/catalogue.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <memory>

namespace {

using catalogue::Kind;
using catalogue::Member;
using catalogue::RecordType;

// Which members have their flags.
enum class Flagged { all, pointers_that_are_null, none };

constexpr uint32_t kDataLength = 3;
constexpr uint8_t kData[kDataLength] = {1, 2, 3};

const RecordType &type_named(std::string_view name)
{
    for (const auto &types : {catalogue::record_types(), catalogue::foreign_types()})
        for (const RecordType &type : types)
            if (type.name == name)
                return type;
    ADD_FAILURE() << "no record type " << name;
    return catalogue::record_types().front();
}

bool has_flag(const Member &member, Flagged flagged)
{
    if (flagged == Flagged::pointers_that_are_null)
        return member.kind == Kind::string || is_list(member.kind);
    return flagged == Flagged::all;
}

// All numbers are 0, all texts null and all lists empty, but byte strings have something in them.
void fill(const RecordType &type, uint8_t *record, Flagged flagged, Flagged inside)
{
    for (const Member &member : type.members) {
        uint8_t *at = record + member.offset;
        if (member.kind == Kind::message)
            fill(type_named(member.child), at, inside, inside);
        if (member.kind == Kind::bytes) {
            const uint8_t *data = kData;
            memcpy(at, &data, sizeof data);
            memcpy(at + sizeof data, &kDataLength, sizeof kDataLength);
        }
        if (has_flag(member, flagged))
            member.set_flag(record);
    }
}

// What the plain rule gives for that.
uint32_t length_of(const RecordType &type, Flagged flagged, Flagged inside, uint32_t flags)
{
    uint32_t sum = 0;
    for (const Member &member : type.members) {
        const uint32_t tag_size = member.number < 16 ? 1 : 2;
        const bool present = has_flag(member, flagged);
        if (member.kind == Kind::message) {
            const uint32_t length = length_of(type_named(member.child), inside, inside, flags);
            if (present || length)
                sum += tag_size + (length < 0x80 ? 1 : 2) + length;
        } else if (present && is_scalar(member.kind)) {
            sum += tag_size + 1;
        } else if (present && member.kind == Kind::bytes) {
            sum += tag_size + 1 + ((flags & WIRE_FLAG_BYTES_IN_PLACE) != 0 ? 0 : kDataLength);
        }
    }
    return sum;
}

void expect_measured(Flagged flagged, Flagged inside)
{
    for (const RecordType &type : catalogue::record_types()) {
        const auto words = std::make_unique<uint64_t[]>(type.size / 8 + 1);
        uint8_t *record = reinterpret_cast<uint8_t *>(words.get());
        fill(type, record, flagged, inside);
        for (uint32_t flags : {0u, WIRE_FLAG_BYTES_IN_PLACE}) {
            const uint32_t length = length_of(type, flagged, inside, flags);
            EXPECT_EQ(type.encode(record, nullptr, 0, nullptr, nullptr, flags), length)
                << type.name << ", flags " << flags;
            // Written it is as long, with room to spare.
            const auto buffer = std::make_unique<uint8_t[]>(length + 20);
            EXPECT_EQ(type.encode(record, buffer.get(), length + 20, nullptr, nullptr, flags),
                      length)
                << type.name << ", flags " << flags;
        }
    }
}

} // namespace

TEST(measuring_any_record, counts_nothing_for_texts_that_are_null_and_lists_that_are_empty)
{
    expect_measured(Flagged::all, Flagged::all);
    expect_measured(Flagged::pointers_that_are_null, Flagged::pointers_that_are_null);
}

TEST(measuring_any_record, counts_embedded_records_by_their_flags_or_by_what_they_hold)
{
    expect_measured(Flagged::none, Flagged::none);
    expect_measured(Flagged::none, Flagged::all);
    expect_measured(Flagged::all, Flagged::none);
    expect_measured(Flagged::none, Flagged::pointers_that_are_null);
    expect_measured(Flagged::all, Flagged::pointers_that_are_null);
}
