// SPDX-License-Identifier: MIT
// Records of one number or two are loaded straight from a message that has nothing else. Nothing of
// that can be seen: whatever the message, result and record are those of the way that all take.
#include "ethsw_mgmt/classification.hpp"
#include "ethsw_mgmt/integrity.hpp"
#include "ethsw_mgmt/switch.hpp"
#include "tests/runtime/tiny.hpp"

using namespace test;

namespace {

// A record that was decoded over rubbish, padding and unused flag bits included.
template <typename Tiny>
struct Decoded {
    int32_t result;
    uint8_t bytes[sizeof(Tiny)];
};

template <typename Tiny, typename Decode>
Decoded<Tiny> decoded_over(uint8_t rubbish, Decode decode)
{
    Tiny record;
    memset(&record, rubbish, sizeof record);
    Decoded<Tiny> decoded{decode(&record), {}};
    memcpy(decoded.bytes, &record, sizeof record);
    return decoded;
}

// From a block of just that length.
template <typename Tiny>
void expect_decoded_as_all(const Bytes &message)
{
    for (uint8_t rubbish : Bytes{0x00, 0xFF}) {
        const auto expected = decoded_over<Tiny>(rubbish, [&](Tiny *record) {
            tarn::Decoder in(message.data(), message.length(), {nullptr, nullptr}, 0);
            CodecFor<Tiny>::decode_anew(in, record);
            return in.result();
        });
        const auto found = decoded_over<Tiny>(rubbish, [&](Tiny *record) {
            return CodecFor<Tiny>::decode(record, message.data(), message.length(), nullptr,
                                          nullptr, 0);
        });
        ASSERT_EQ(found.result, expected.result) << testing::PrintToString(message);
        ASSERT_TRUE(memcmp(found.bytes, expected.bytes, sizeof found.bytes) == 0)
            << testing::PrintToString(message) << " over " << unsigned{rubbish} << ": "
            << testing::PrintToString(found.bytes) << ", expected "
            << testing::PrintToString(expected.bytes);
    }
}

template <typename Tiny>
constexpr uint32_t kNumbers = std::size(tarn::Schema<Tiny>::fields);

// Each field once, with the smallest values there are but 0.
template <typename Tiny>
Bytes message_of()
{
    Bytes message;
    for (const tarn::Field &field : tarn::Schema<Tiny>::fields)
        message = join({message, {static_cast<uint8_t>(field.number << 3), field.number}});
    return message;
}

// Every byte of two, wherever they are: the tag and the value of a field, two values, two tags.
template <typename Tiny>
void expect_with_any_two_bytes()
{
    const Bytes message = message_of<Tiny>();
    for (size_t one = 0; one < message.size(); one++) {
        for (size_t two = one + 1; two < message.size(); two++) {
            Bytes other = message;
            // Of four bytes not each beside each, but each one beside several others.
            for (uint32_t value = 0; value < 0x10000; value += kNumbers<Tiny> == 1 ? 1 : 37) {
                other[one] = static_cast<uint8_t>(value >> 8);
                other[two] = static_cast<uint8_t>(value);
                ASSERT_NO_FATAL_FAILURE(expect_decoded_as_all<Tiny>(other));
            }
        }
    }
}

template <typename Tiny>
void expect_at_any_length()
{
    const Bytes message = message_of<Tiny>();
    const Bytes longer = join({message, message, {0x78, 0x01, 0x80, 0x01}});
    for (uint32_t length = 0; length <= longer.length(); length++)
        ASSERT_NO_FATAL_FAILURE(expect_decoded_as_all<Tiny>(longer.first(length)));
}

// Fields in another order, or one of them twice.
template <typename Tiny>
void expect_in_any_order()
{
    for (const tarn::Field &first : tarn::Schema<Tiny>::fields)
        for (const tarn::Field &second : tarn::Schema<Tiny>::fields)
            ASSERT_NO_FATAL_FAILURE(
                expect_decoded_as_all<Tiny>({static_cast<uint8_t>(first.number << 3), 0x01,
                                             static_cast<uint8_t>(second.number << 3), 0x02}));
}

template <typename Tiny>
void expect_loaded()
{
    static_assert(CodecFor<Tiny>::is_tiny);
    EXPECT_EQ(decode<Tiny>(message_of<Tiny>()), WIRE_OK);
    expect_with_any_two_bytes<Tiny>();
    expect_at_any_length<Tiny>();
    expect_in_any_order<Tiny>();
}

} // namespace

TEST(a_record_of_one_number, is_decoded_as_all_are)
{
    expect_loaded<TinyOne<uint32_t, 1>>();
    expect_loaded<TinyOne<uint32_t, 15>>();
    expect_loaded<TinyOne<uint8_t, 2>>();
}

TEST(a_record_of_two_numbers, is_decoded_as_all_are)
{
    expect_loaded<TinyTwo<uint32_t, 1, uint32_t, 2>>();
    expect_loaded<TinyTwo<uint32_t, 3, uint32_t, 15>>();
    expect_loaded<TinyTwo<uint32_t, 2, uint8_t, 3>>();
    expect_loaded<TinyTwo<uint8_t, 4, uint32_t, 5>>();
    expect_loaded<TinyTwo<uint8_t, 1, uint8_t, 2>>();
}

// One type of each layout that there is.
TEST(a_record_of_the_catalogue, of_one_number_or_two_is_decoded_as_all_are)
{
    expect_loaded<tarn_ethsw_mgmt_port_reset>();
    expect_loaded<tarn_ethsw_mgmt_set_loopback>();
    expect_loaded<tarn_ethsw_mgmt_switch_available>();
    expect_loaded<tarn_ethsw_mgmt_port_enable>();
    expect_loaded<tarn_ethsw_mgmt_set_security>();
}
