// SPDX-License-Identifier: MIT
#include "tests/costs/message.hpp"

namespace costs {

uint32_t tag_of(const Member &member)
{
    const bool varint = is_scalar(member.kind) || member.kind == catalogue::Kind::repeated_uint32;
    return member.number << 3 | (varint ? 0 : 2);
}

uint32_t varint_size(uint32_t value)
{
    uint32_t size = 1;
    for (; value >= 0x80; value >>= 7)
        size++;
    return size;
}

void put_varint(Bytes &bytes, uint32_t value)
{
    put_padded_varint(bytes, value, varint_size(value));
}

void put_padded_varint(Bytes &bytes, uint32_t value, uint32_t size)
{
    for (uint32_t i = 1; i < size; i++, value >>= 7)
        bytes.push_back(static_cast<uint8_t>(value | 0x80));
    bytes.push_back(static_cast<uint8_t>(value));
}

void put_jump(Bytes &bytes, uint32_t target)
{
    const uint32_t behind = bytes.length() + kJumpSize;
    bytes.push_back(kUnknownLength);
    put_padded_varint(bytes, target - behind, kJumpSize - 1);
}

Bytes filled(uint32_t size, const Bytes &part)
{
    return test::repeat(size / part.length(), part);
}

Bytes empty_field(const Member &member)
{
    Bytes bytes;
    put_varint(bytes, tag_of(member));
    bytes.push_back(0);
    return bytes;
}

Bytes wrapped(const Member &member, const Bytes &content)
{
    Bytes bytes;
    put_varint(bytes, tag_of(member));
    put_varint(bytes, content.length());
    bytes.insert(bytes.end(), content.begin(), content.end());
    return bytes;
}

} // namespace costs
