// SPDX-License-Identifier: MIT
// Records of one number or two are written straight into a buffer that holds them. Nothing of that
// can be seen: buffer, pieces and result are those of the plain rule.
#include "ethsw_mgmt/classification.hpp"
#include "ethsw_mgmt/integrity.hpp"
#include "ethsw_mgmt/switch.hpp"
#include "tests/runtime/plain_numbers.hpp"
#include "tests/runtime/tiny.hpp"
#include "tests/support/operations.hpp"
#include "tests/support/records.hpp"

using namespace test;

namespace {

// Both sides of every length.
std::vector<uint64_t> border_values()
{
    std::vector<uint64_t> values = {0, 1, UINT64_MAX};
    for (uint32_t bits = 7; bits < 64; bits += 7) {
        values.push_back((uint64_t{1} << bits) - 1);
        values.push_back(uint64_t{1} << bits);
    }
    return values;
}

// What a call leaves behind it.
struct Left {
    uint32_t length;
    uint32_t count;
    Bytes buffer;
    WireSegment segments[3];

    // Those of the other one are counted from its own buffer.
    bool is_like(const Left &other) const
    {
        for (size_t i = 0; i < std::size(segments); i++)
            if (place_of(segments[i]) != other.place_of(other.segments[i]) ||
                segments[i].length != other.segments[i].length)
                return false;
        return length == other.length && count == other.count && buffer == other.buffer;
    }

    uintptr_t place_of(const WireSegment &segment) const
    {
        return segment.data ? reinterpret_cast<uintptr_t>(segment.data) -
                                  reinterpret_cast<uintptr_t>(buffer.data())
                            : UINTPTR_MAX;
    }
};

enum class Wish { none, count_only, one_piece };

template <typename Encode>
Left left_by(Encode encode, const void *record, uint32_t capacity, Wish wish, uint32_t flags)
{
    Left left = {0, wish == Wish::one_piece, Bytes(capacity + 16, 0xA5), {}};
    left.length =
        encode(record, left.buffer.data(), capacity, wish == Wish::none ? nullptr : left.segments,
               wish == Wish::none ? nullptr : &left.count, flags);
    return left;
}

// Every number fits behind so much room, wherever it is.
constexpr uint32_t kRoomBehindIt = 13;

template <typename Tiny>
void expect_plain(const Tiny &record, PlainEncode encode, uint32_t flags)
{
    const uint32_t full = plain_encode<Tiny>(&record, nullptr, 0, nullptr, nullptr, 0);
    ASSERT_EQ(encode(&record, nullptr, 0, nullptr, nullptr, flags), full);
    for (uint32_t capacity = 0; capacity <= full + kRoomBehindIt; capacity++) {
        for (Wish wish : {Wish::none, Wish::count_only, Wish::one_piece}) {
            const Left plain = left_by(plain_encode<Tiny>, &record, capacity, wish, flags);
            const Left found = left_by(encode, &record, capacity, wish, flags);
            ASSERT_TRUE(found.is_like(plain))
                << "capacity " << capacity << " of " << full << ", result " << found.length << ", "
                << found.count << " pieces: " << testing::PrintToString(found.buffer);
        }
    }
    // Into a block that holds it and nothing else.
    Bytes block(full);
    EXPECT_EQ(encode(&record, block.data(), full, nullptr, nullptr, flags), full);
}

// With each value of one number beside some of the other, and in every pattern of presence flags:
// byte strings in place are no concern of numbers.
template <typename Tiny>
void expect_plain_with_all_values(PlainEncode encode)
{
    static_assert(CodecFor<Tiny>::is_tiny == !has_wide_member<Tiny>());
    const std::vector<uint64_t> values = border_values();
    constexpr auto &fields = tarn::Schema<Tiny>::fields;
    constexpr tarn::Field last = std::end(fields)[-1];
    for (size_t i = 0; i < values.size(); i++) {
        for (size_t k = 0; k < values.size(); k++) {
            if (std::size(fields) == 1 ? i != k : i % 5 != 0 && k % 5 != 0)
                continue;
            for (uint8_t flags = 0; flags < 4; flags++) {
                Tiny record;
                uint8_t *bytes = reinterpret_cast<uint8_t *>(&record);
                memset(bytes, 0, sizeof record);
                memcpy(bytes + fields[0].offset, &values[i], fields[0].size);
                memcpy(bytes + last.offset, &values[k], last.size);
                bytes[last.offset + last.size] = flags;
                ASSERT_NO_FATAL_FAILURE(expect_plain(record, encode, flags & 1u));
            }
        }
    }
}

template <typename Tiny>
uint32_t encode_tiny(const void *record, uint8_t *buffer, uint32_t capacity, WireSegment *segments,
                     uint32_t *segment_count, uint32_t flags)
{
    return CodecFor<Tiny>::encode(record, buffer, capacity, segments, segment_count, flags);
}

template <typename Member, uint8_t number>
void expect_one_plain()
{
    using Tiny = TinyOne<Member, number>;
    expect_plain_with_all_values<Tiny>(encode_tiny<Tiny>);
}

template <typename First, uint8_t first_number, typename Second, uint8_t second_number>
void expect_two_plain()
{
    using Tiny = TinyTwo<First, first_number, Second, second_number>;
    expect_plain_with_all_values<Tiny>(encode_tiny<Tiny>);
}

// By the exported function.
template <typename Tiny, auto encode_ext>
void expect_exported_plain()
{
    expect_plain_with_all_values<Tiny>([](const void *record, uint8_t *buffer, uint32_t capacity,
                                          WireSegment *segments, uint32_t *segment_count,
                                          uint32_t flags) {
        return encode_ext(static_cast<const Tiny *>(record), buffer, capacity, segments,
                          segment_count, flags);
    });
}

} // namespace

// Layouts that no type of the catalogue has, with the lowest tags and the highest of one byte.
TEST(a_record_of_one_number, is_written_by_the_plain_rule)
{
    expect_one_plain<uint32_t, 2>();
    expect_one_plain<uint32_t, 15>();
    expect_one_plain<uint64_t, 1>();
    expect_one_plain<uint64_t, 15>();
    expect_one_plain<uint8_t, 2>();
    expect_one_plain<uint8_t, 15>();
}

TEST(a_record_of_two_numbers, is_written_by_the_plain_rule)
{
    expect_two_plain<uint32_t, 2, uint32_t, 3>();
    expect_two_plain<uint32_t, 1, uint32_t, 15>();
    expect_two_plain<uint64_t, 1, uint64_t, 2>();
    expect_two_plain<uint64_t, 3, uint32_t, 4>();
    expect_two_plain<uint32_t, 4, uint64_t, 5>();
    expect_two_plain<uint32_t, 2, uint8_t, 3>();
    expect_two_plain<uint8_t, 1, uint8_t, 2>();
    expect_two_plain<uint8_t, 1, uint64_t, 15>();
}

// One type of each layout that there is.
TEST(a_record_of_the_catalogue, of_one_number_or_two_is_written_by_the_plain_rule)
{
    expect_exported_plain<tarn_ethsw_mgmt_port_reset, tarn_ethsw_mgmt_port_reset_encode_ext>();
    expect_exported_plain<tarn_ethsw_mgmt_set_loopback, tarn_ethsw_mgmt_set_loopback_encode_ext>();
    expect_exported_plain<tarn_ethsw_mgmt_switch_available,
                          tarn_ethsw_mgmt_switch_available_encode_ext>();
    expect_exported_plain<tarn_ethsw_mgmt_port_enable, tarn_ethsw_mgmt_port_enable_encode_ext>();
    expect_exported_plain<tarn_ethsw_mgmt_set_security, tarn_ethsw_mgmt_set_security_encode_ext>();
    expect_exported_plain<tarn_faults_stats_info, tarn_faults_stats_info_encode_ext>();
}

// Neither a third number nor a wide one nor anything else makes one.
TEST(a_record, is_tiny_with_one_number_or_two)
{
    EXPECT_TRUE((CodecFor<TinyTwo<uint32_t, 1, uint32_t, 2>>::is_tiny));
    EXPECT_FALSE((CodecFor<TinyOne<uint64_t, 1>>::is_tiny));
    EXPECT_FALSE(CodecFor<Nothing>::is_tiny);
    EXPECT_FALSE(CodecFor<Rows>::is_tiny);
    EXPECT_FALSE(CodecFor<Leaf>::is_tiny);
    EXPECT_FALSE(CodecFor<Parcel>::is_tiny);
}
