// SPDX-License-Identifier: MIT
// Every tag there is, in front of a fixed tail, through an exported decoder. What is skipped or
// read behind the tag decides where in the tail decoding goes on, and so each way leaves another
// record.
#include "ethsw_mgmt/forwarding.h"
#include "tests/exhaustive/check.hpp"
#include "tests/exhaustive/varint_reference.hpp"

#include <cstring>

namespace exhaustive {

namespace {

using Entry = tarn_ethsw_mgmt_vlan_table_entry; // 1 a number, 2 a list of numbers, 3 a text

constexpr uint8_t kTail[] = {
    0x05,             // as a number, 5; as a length, that of all up to 0x0D
    0x10, 0x8B, 0x01, // list: 139
    0x10, 0x0C,       // list: 12; where a fixed32 ends
    0x10, 0x0D,       // list: 13
    0x1A, 0x01, 'x',  // text: x; where a fixed64 ends
};

struct Outcome {
    int32_t result;
    bool has_number;
    bool has_list;
    uint32_t list_count;
    uint32_t list[5];
    const char *text; // none: not there
};

// With the tag in front.
constexpr Outcome kAfterNumber = {WIRE_OK, false, true, 3, {139, 12, 13}, "x"};
constexpr Outcome kAfterFixed32 = {WIRE_OK, false, true, 2, {12, 13}, "x"};
constexpr Outcome kAfterLength = {WIRE_OK, false, true, 1, {13}, "x"};
constexpr Outcome kAfterFixed64 = {WIRE_OK, false, false, 0, {}, "x"};
constexpr Outcome kCannotBeSkipped = {WIRE_ERR_WIRE_TYPE, false, false, 0, {}, nullptr};
constexpr Outcome kMismatch = {WIRE_ERR_TYPE_MISMATCH, false, false, 0, {}, nullptr};
constexpr Outcome kNumber = {WIRE_OK, true, true, 3, {139, 12, 13}, "x"};
constexpr Outcome kList = {WIRE_OK, false, true, 4, {5, 139, 12, 13}, "x"};
// The tail's text is the second.
constexpr Outcome kText = {WIRE_ERR_MALFORMED, false, true, 1, {13}, "\x10\x8B\x01\x10\x0C"};

// With an element of the list, 1, in front of the tag: whatever its wire type, a tag of the list is
// taken for that of an element; behind any other the tail's elements are a second list.
constexpr Outcome kElement = {WIRE_OK, false, true, 5, {1, 5, 139, 12, 13}, "x"};
constexpr Outcome kSecondList = {WIRE_ERR_MALFORMED, false, true, 1, {1}, nullptr};
constexpr Outcome kListAndFixed64 = {WIRE_OK, false, true, 1, {1}, "x"};
constexpr Outcome kListAndWireType = {WIRE_ERR_WIRE_TYPE, false, true, 1, {1}, nullptr};
constexpr Outcome kListAndMismatch = {WIRE_ERR_TYPE_MISMATCH, false, true, 1, {1}, nullptr};
constexpr Outcome kListAndNumber = {WIRE_ERR_MALFORMED, true, true, 1, {1}, nullptr};
constexpr Outcome kListAndText = {WIRE_ERR_MALFORMED, false, true, 1, {1}, "\x10\x8B\x01\x10\x0C"};

const Outcome &outcome_of_unknown(uint32_t wire_type)
{
    switch (wire_type) {
    case 0:
        return kAfterNumber;
    case 1:
        return kAfterFixed64;
    case 2:
        return kAfterLength;
    case 5:
        return kAfterFixed32;
    default:
        return kCannotBeSkipped;
    }
}

const Outcome &outcome_of(uint32_t tag)
{
    switch (tag / 8) {
    case 1:
        return tag % 8 == 0 ? kNumber : kMismatch;
    case 2:
        return tag % 8 == 0 ? kList : kMismatch;
    case 3:
        return tag % 8 == 2 ? kText : kMismatch;
    default:
        return outcome_of_unknown(tag % 8);
    }
}

const Outcome &outcome_behind_list(uint32_t tag)
{
    switch (tag / 8) {
    case 1:
        return tag % 8 == 0 ? kListAndNumber : kListAndMismatch;
    case 2:
        return kElement;
    case 3:
        return tag % 8 == 2 ? kListAndText : kListAndMismatch;
    default:
        break;
    }
    if (tag % 8 == 1)
        return kListAndFixed64;
    return tag % 8 == 0 || tag % 8 == 2 || tag % 8 == 5 ? kSecondList : kListAndWireType;
}

// Enough for one message.
struct Memory {
    alignas(8) uint8_t bytes[64];
    uint32_t used = 0;

    static void *allocate(uint32_t size, void *memory)
    {
        Memory &self = *static_cast<Memory *>(memory);
        if (self.used + size > sizeof self.bytes)
            return nullptr;
        void *block = self.bytes + self.used;
        self.used += (size + 7) / 8 * 8;
        return memset(block, 0xC3, size);
    }
};

const char *compare(const Entry &entry, const Outcome &expected)
{
    if (entry.has_field_1 != expected.has_number ||
        entry.field_1 != (expected.has_number ? 5u : 0u))
        return "the number";
    if (entry.has_field_2 != expected.has_list || entry.field_2_count != expected.list_count)
        return "how long the list is";
    if (!expected.has_list != !entry.field_2)
        return "where the list is";
    if (expected.has_list &&
        memcmp(entry.field_2, expected.list, sizeof(uint32_t) * expected.list_count) != 0)
        return "the list";
    const bool has_text = expected.text != nullptr;
    if (entry.has_field_3 != has_text || !entry.field_3 == has_text)
        return "whether there is a text";
    return !has_text || strcmp(entry.field_3, expected.text) == 0 ? nullptr : "the text";
}

constexpr uint8_t kElementInFront[] = {0x10, 0x01};

const char *check(uint32_t tag, uint32_t in_front, const Outcome &expected)
{
    const Varint varint = varint32(tag);
    uint8_t message[sizeof kElementInFront + 5 + sizeof kTail];
    memcpy(message, kElementInFront, in_front);
    memcpy(message + in_front, varint.bytes, 5);
    memcpy(message + in_front + varint.size, kTail, sizeof kTail);
    Memory memory;
    Entry entry;
    memset(&entry, 0xA5, sizeof entry);
    const auto length = static_cast<uint32_t>(in_front + varint.size + sizeof kTail);
    const int32_t result = tarn_ethsw_mgmt_vlan_table_entry_decode_ext(
        &entry, message, length, Memory::allocate, &memory, 0);
    if (result != expected.result)
        return "the result";
    return compare(entry, expected);
}

} // namespace

std::vector<Check> tag_checks()
{
    Check behind_list = for_all_32_bit_values(
        "tags of up to three bytes behind an element of a list, decoded",
        [](uint32_t tag) { return check(tag, sizeof kElementInFront, outcome_behind_list(tag)); });
    behind_list.parts = (1 << 21) / kPartSize;
    return {
        for_all_32_bit_values("tags in front of a tail, decoded",
                              [](uint32_t tag) { return check(tag, 0, outcome_of(tag)); }),
        behind_list,
    };
}

} // namespace exhaustive
