// SPDX-License-Identifier: MIT
// Messages for panels, with numbers below 128 in rows and lists, and what may stand among them; and
// the comparison of how they are decoded with the plain rule.

#pragma once

#include "tests/runtime/panel.hpp"

#include <gtest/gtest.h>

#include <algorithm>

namespace test {

// At which the tags begin: with those near the lowest, numbers below a run's first are few; others
// have tags of two bytes in the run, in the list, or behind both.
template <uint8_t... first>
struct Firsts {};
constexpr Firsts<1, 2, 3, 4, 5, 7, 8, 9, 12, 15> kFirsts;

// Calls function.operator()<first>() for each.
template <typename Function, uint8_t... first>
void for_each_first(Firsts<first...>, Function function)
{
    (function.template operator()<first>(), ...);
}

inline void append_varint(Bytes *bytes, uint64_t value)
{
    for (; value >= 0x80; value >>= 7)
        bytes->push_back(static_cast<uint8_t>(value | 0x80));
    bytes->push_back(static_cast<uint8_t>(value));
}

inline void append(Bytes *bytes, uint32_t number, uint64_t value)
{
    append_varint(bytes, number << 3);
    append_varint(bytes, value);
}

// All of a row, from a member on.
inline Bytes row_of(uint32_t first, uint32_t from = 0)
{
    Bytes bytes;
    for (uint32_t i = from; i < 8; i++)
        append(&bytes, first + i, 0x11 + i);
    return bytes;
}

inline Bytes list_of(uint32_t number, uint32_t count)
{
    Bytes bytes;
    for (uint32_t i = 0; i < count; i++)
        append(&bytes, number, 0x21 + i);
    return bytes;
}

// A message with everything in it: what may be changed, and what follows.
inline Bytes full_panel(uint32_t first)
{
    Bytes bytes = join({row_of(first), list_of(first + 8, 10)});
    append(&bytes, first + 9, 0x123456789ABC);
    append(&bytes, first + 10, 5);
    append(&bytes, first + 11, UINT64_MAX);
    return bytes;
}

inline Content plainly(uint32_t first, const Bytes &input)
{
    return PlainPanel(first, input.data(), input.length()).decode();
}

// In a block of just that length, and in the middle of memory that is not touched.
template <uint8_t first>
bool is_decoded_plainly(const Bytes &input)
{
    const Content expected = plainly(first, input);
    Owner<Panel<first>> owner;
    const int32_t result = owner.decode(input);
    const Content found = content_of(result, owner.record);
    make_defined(owner.record.before, sizeof owner.record.before);
    const bool is_whole =
        std::all_of(std::begin(owner.record.before), std::end(owner.record.before),
                    [](uint32_t word) { return word == 0xA5A5A5A5; });
    if (found == expected && is_whole)
        return true;
    ADD_FAILURE() << "from number " << unsigned{first} << ": " << testing::PrintToString(input)
                  << (is_whole ? "" : "\nwrites before the members") << "\nexpected "
                  << testing::PrintToString(expected) << "\n   found "
                  << testing::PrintToString(found);
    return false;
}

// The same inside of another record, in which `behind` goes on.
template <uint8_t first>
bool is_decoded_plainly_inside(const Bytes &inner, const Bytes &behind)
{
    Bytes input;
    append_varint(&input, kPanelInBox << 3 | 2);
    append_varint(&input, inner.size());
    input = join({input, inner, behind});
    Content expected = plainly(first, inner);
    if (expected.result == WIRE_OK) // to the rest, no number is known
        expected.result = plainly(200, behind).result;
    Owner<PanelBox<first>> owner;
    const int32_t result = owner.decode(input);
    const Content found = content_of(result, owner.record.panel);
    EXPECT_EQ(found, expected) << "from number " << unsigned{first} << ": "
                               << testing::PrintToString(inner) << " before "
                               << testing::PrintToString(behind);
    return found == expected;
}

// What may stand in the place of a value that is a single byte.
inline const Bytes kOtherValues[] = {
    {0x80, 0x01},
    {0xFF, 0x7F},
    {0x85, 0x00},
    {0xFF, 0xFF, 0x7F},
    {0xFF, 0xFF, 0xFF, 0xFF, 0x0F},
    {0x81, 0x82, 0x83, 0x84, 0x85, 0x86, 0x07},
    {0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x01},
    {0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x00},
    {},
};

// And in that of a tag: longer ones that mean the same, of which the last seems to be a tag of its
// own, and others.
inline std::vector<Bytes> other_tags(uint8_t tag)
{
    const uint8_t more = tag | 0x80;
    return {{more, 0x00},
            {more, 0x80, 0x80, 0x00},
            {more, 0x80, 0x80, 0x80, 0x80, tag},
            {more, 0x80, 0x80, 0x80, 0x10},
            {more, 0x01},
            {0xFF, 0xFF, 0xFF, 0xFF, 0x0F},
            {0xEF, 0xFF, 0xFF, 0xFF, 0x0F},
            {0x80, 0x80, 0x80, 0x80, 0x00},
            {0xF8, 0x0F},
            {}};
}

inline Bytes replaced(const Bytes &bytes, size_t at, const Bytes &other)
{
    return join(
        {bytes.first(at), other, Bytes(bytes.begin() + static_cast<long>(at) + 1, bytes.end())});
}

} // namespace test
