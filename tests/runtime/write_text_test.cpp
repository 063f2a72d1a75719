// SPDX-License-Identifier: MIT
// Texts of every length near those at which they are written otherwise, with every capacity near
// their end.
#include "runtime/write.hpp"

#include "runtime/member.hpp"
#include "tests/support/bytes.hpp"
#include "wire/varint.hpp"

#include <gtest/gtest.h>

#include <string>

using namespace tarn;
using test::Bytes;
using test::characters;
using test::join;

namespace {

std::string text_of(uint32_t length)
{
    std::string text(length, '\0');
    for (uint32_t i = 0; i < length; i++)
        text[i] = static_cast<char>('!' + i % 90);
    return text;
}

struct WrittenText {
    uint32_t end;
    bool has_given_up;
    Bytes buffer;
};

WrittenText written(const std::string &text, uint32_t tag, uint32_t capacity, uint32_t offset,
                    bool is_tried)
{
    uint8_t member[sizeof(void *)];
    store_pointer(member, text.c_str());
    WrittenText result{0, false, Bytes(capacity + 12, 0xA5)};
    Encoder out(result.buffer.data(), capacity, nullptr, nullptr, 0);
    if (is_tried)
        out.begin_try();
    result.end = write_string(offset, out, member, tag);
    result.has_given_up = out.has_given_up();
    return result;
}

constexpr uint32_t kTextOffset = 3;

Bytes prefix_of(uint32_t tag, uint32_t length)
{
    Bytes prefix(4);
    const uint32_t end = wire_put_tag(tag, 0, prefix.data(), 4);
    prefix.resize(wire_put_varint32(length, end, prefix.data(), 4));
    return prefix;
}

} // namespace

// The prefix as far as it fits, and the text whole or not at all.
TEST(a_text, is_written_whole_or_not_at_all_whatever_its_length)
{
    for (uint32_t tag : {0x0Au, 0x7Au, 0x82u, 0x7FAu}) {
        for (uint32_t length = 0; length <= 140; length++) {
            const std::string text = text_of(length);
            const Bytes prefix = prefix_of(tag, length);
            const uint32_t end = kTextOffset + prefix.length() + length;
            const uint32_t first = end > 12 + kTextOffset ? end - 12 : kTextOffset;
            for (uint32_t capacity = first; capacity <= end + 12; capacity++) {
                Bytes expected(capacity + 12, 0xA5);
                const uint32_t room = capacity - kTextOffset;
                std::copy_n(prefix.begin(), std::min(room, prefix.length()),
                            expected.begin() + kTextOffset);
                if (capacity >= end)
                    std::copy_n(text.begin(), length,
                                expected.begin() + kTextOffset + prefix.length());
                const WrittenText found = written(text, tag, capacity, kTextOffset, false);
                ASSERT_EQ(found.end, end);
                ASSERT_EQ(found.buffer, expected) << length << " into " << capacity;
            }
        }
    }
}

// Four more bytes have to be there: by so much the prefix around it may grow.
TEST(a_text, is_tried_where_it_is_sure_to_fit)
{
    for (uint32_t length : {0u, 1u, 7u, 8u, 16u, 64u, 126u, 127u, 128u, 140u}) {
        const std::string text = text_of(length);
        const Bytes expected = join({prefix_of(0x0A, length), characters(text)});
        const uint32_t needed = expected.length() + 4;
        for (uint32_t capacity = 0; capacity <= needed + 8; capacity++) {
            const WrittenText found = written(text, 0x0A, capacity, 0, true);
            EXPECT_EQ(found.has_given_up, capacity < needed) << length << " into " << capacity;
            EXPECT_EQ(found.end, found.has_given_up ? capacity : expected.length());
            if (!found.has_given_up) {
                EXPECT_EQ(found.buffer.first(expected.size()), expected);
            }
            EXPECT_EQ(Bytes(found.buffer.end() - 12, found.buffer.end()), Bytes(12, 0xA5));
        }
    }
}
