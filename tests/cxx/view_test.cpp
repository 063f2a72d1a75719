// SPDX-License-Identifier: MIT
// What passes for a row of bytes.
#include "cxx/view.hpp"

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>
#if __has_include(<span>)
#include <span>
#endif

using tarn::ByteBuffer;
using tarn::ByteView;

namespace {

// Of a library of which the sizes have a sign.
struct Signed {
    const uint8_t *data() const { return bytes; }
    int size() const { return 2; }
    uint8_t bytes[2] = {1, 2};
};

TEST(view, is_made_from_whatever_holds_bytes_in_a_row)
{
    const std::vector<uint8_t> vector = {1, 2};
    const std::array<std::byte, 2> array = {std::byte{1}, std::byte{2}};
    const std::string text = "\x01\x02";
    const uint8_t plain[] = {1, 2};
    const Signed other;
    for (const ByteView view :
         {ByteView(vector), ByteView(array), ByteView(text), ByteView(std::string_view(text)),
          ByteView(plain), ByteView(other), ByteView(plain, 2)}) {
        ASSERT_EQ(view.size(), 2u);
        EXPECT_EQ(view.data()[0], 1);
        EXPECT_EQ(view.data()[1], 2);
    }
}

TEST(view, is_made_from_a_buffer_but_not_the_other_way_round)
{
    static_assert(std::is_convertible_v<ByteBuffer, ByteView>);
    static_assert(!std::is_convertible_v<ByteView, ByteBuffer>);
    static_assert(std::is_convertible_v<std::vector<uint8_t> &, ByteBuffer>);
    static_assert(!std::is_convertible_v<const std::vector<uint8_t> &, ByteBuffer>);
    static_assert(!std::is_convertible_v<const uint8_t(&)[4], ByteBuffer>);
}

TEST(view, is_not_made_from_other_elements_or_from_texts_in_quotes)
{
    static_assert(!std::is_convertible_v<std::vector<uint32_t> &, ByteView>);
    static_assert(!std::is_convertible_v<std::wstring &, ByteView>);
    static_assert(!std::is_convertible_v<const char(&)[4], ByteView>);
    static_assert(!std::is_convertible_v<const char *, ByteView>);
    static_assert(!std::is_convertible_v<std::vector<bool> &, ByteView>);
}

#ifdef __cpp_lib_span
TEST(view, is_made_from_a_span)
{
    uint8_t bytes[] = {1, 2, 3};
    const std::span<uint8_t> span(bytes);
    static_assert(std::is_convertible_v<std::span<uint8_t>, ByteBuffer>);
    static_assert(std::is_convertible_v<std::span<const std::byte>, ByteView>);
    static_assert(!std::is_convertible_v<std::span<const uint8_t>, ByteBuffer>);
    static_assert(std::is_convertible_v<std::span<WireSegment, 2>, tarn::SegmentBuffer>);
    EXPECT_EQ(ByteBuffer(span).data(), bytes);
    EXPECT_EQ(ByteView(span.first(2)).size(), 2u);
}
#endif

TEST(view, is_empty_by_itself)
{
    EXPECT_EQ(ByteView().size(), 0u);
    EXPECT_EQ(ByteView().data(), nullptr);
}

} // namespace
