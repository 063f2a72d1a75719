// SPDX-License-Identifier: MIT
// A record of numbers in a row, a list and counters, and the rule of decoding it in the plainest
// way: a tag and a value after the other, byte by byte.

#pragma once

#include "runtime/presence.hpp"
#include "tests/support/operations.hpp"
#include "tests/support/records.hpp"
#include "wire/varint.hpp"

#include <array>
#include <vector>

namespace test {

// From field number `first` on.
template <uint8_t first>
struct Panel {
    uint32_t before[8]; // nobody's: it must stay as it is
    uint32_t row[8];    // fields first to first + 7
    uint32_t *list;     // field first + 8
    uint32_t list_count;
    TARN_ALIGNED_8 uint64_t wide[3]; // fields first + 9 to first + 11
    uint8_t flags[2];
};

// A panel in another record, which has nothing else: what is behind the panel, nobody knows.
template <uint8_t first>
struct PanelBox;

// Field number of the panel.
constexpr uint8_t kPanelInBox = 31;

template <uint8_t first>
struct PanelBox {
    Panel<first> panel;
    uint8_t flags;
};

// What is in a panel: enough to tell one from another.
struct Content {
    int32_t result;
    std::array<uint32_t, 8> row = {};
    std::array<uint64_t, 3> wide = {};
    uint64_t flags = 0;
    bool has_list = false; // an array is attached
    std::vector<uint32_t> list = {};

    bool operator==(const Content &) const = default;
};

inline void PrintTo(const Content &content, std::ostream *out)
{
    *out << "result " << content.result << ", flags " << content.flags << ", row "
         << testing::PrintToString(content.row) << ", list " << testing::PrintToString(content.list)
         << ", wide " << testing::PrintToString(content.wide);
}

class PlainPanel {
public:
    PlainPanel(uint32_t first, const uint8_t *input, uint32_t length)
        : first_(first), input_(input), length_(length)
    {}

    Content decode()
    {
        // Skipping may lead back: what takes so many fields of so short a message takes for ever.
        constexpr uint32_t kForEver = 2000;
        for (uint32_t i = 0; position_ < length_; i++)
            if ((content_.result = i == kForEver ? WIRE_ERR_MALFORMED : field()))
                break;
        return content_;
    }

private:
    static constexpr uint32_t kList = 8, kWide = 9, kMembers = 12;

    int32_t read(uint32_t *value)
    {
        return tarn::wire_read_varint32(value, &position_, input_, length_);
    }

    int32_t field()
    {
        uint32_t tag;
        if (int32_t error = read(&tag))
            return error;
        const uint32_t place = tarn::field_number_of(tag) - first_;
        if (place >= kMembers)
            return tarn::wire_skip_field(tarn::wire_type_of(tag), &position_, input_, length_);
        if (tarn::wire_type_of(tag) != 0)
            return WIRE_ERR_TYPE_MISMATCH;
        if (place == kList && content_.has_list)
            return WIRE_ERR_MALFORMED;
        if (int32_t error = place == kList ? list()
                            : place < kList
                                ? read(&content_.row[place])
                                : tarn::wire_read_varint64(&content_.wide[place - kWide],
                                                           &position_, input_, length_))
            return error;
        content_.flags |= uint64_t{1} << place;
        return WIRE_OK;
    }

    int32_t list()
    {
        std::vector<uint32_t> elements;
        for (;;) {
            if (int32_t error = read(&elements.emplace_back()))
                return error;
            const uint32_t behind = position_;
            uint32_t tag = 0;
            if (position_ < length_)
                if (int32_t error = read(&tag))
                    return error;
            if (tarn::field_number_of(tag) == first_ + kList)
                continue;
            position_ = behind;
            content_.has_list = true;
            content_.list = elements;
            return WIRE_OK;
        }
    }

    uint32_t first_;
    const uint8_t *input_;
    uint32_t length_;
    uint32_t position_ = 0;
    Content content_{WIRE_OK};
};

template <uint8_t first>
Content content_of(int32_t result, const Panel<first> &panel)
{
    Content content{result};
    std::copy_n(panel.row, 8, content.row.begin());
    std::copy_n(panel.wide, 3, content.wide.begin());
    content.flags = tarn::all_flags<12>(panel.flags);
    content.has_list = panel.list != nullptr;
    if (panel.list)
        content.list.assign(panel.list, panel.list + panel.list_count);
    return content;
}

} // namespace test

namespace [[gnu::visibility("hidden")]] tarn {

template <uint8_t first, typename Indices>
struct PanelFields;

template <uint8_t first, uint32_t... i>
struct PanelFields<first, std::integer_sequence<uint32_t, i...>> {
    using Record = test::Panel<first>;
    static constexpr Field fields[] = {
        Field{Kind::uint32, first + i, offsetof(Record, row) + size_t{4} * i, 4}...,
        Field{Kind::repeated_uint32, first + 8, offsetof(Record, list), sizeof(void *) + 4},
        Field{Kind::uint64, first + 9, offsetof(Record, wide), 8},
        Field{Kind::uint64, first + 10, offsetof(Record, wide) + 8, 8},
        Field{Kind::uint64, first + 11, offsetof(Record, wide) + 16, 8},
    };
    using Children = RecordTypes<>;
};

template <uint8_t first>
struct Schema<test::Panel<first>> : PanelFields<first, std::make_integer_sequence<uint32_t, 8>> {};

template <uint8_t first>
struct Schema<test::PanelBox<first>> {
    using Record = test::PanelBox<first>;
    static constexpr Field fields[] = {
        field<Kind::message, test::Panel<first>>(test::kPanelInBox, offsetof(Record, panel)),
    };
    using Children = RecordTypes<test::Panel<first>>;
};

} // namespace tarn
