// SPDX-License-Identifier: MIT
#include "tests/costs/deep_message.hpp"

namespace costs {

using catalogue::Kind;
using catalogue::RecordType;

namespace {

void append(Bytes &bytes, const Bytes &part)
{
    bytes.insert(bytes.end(), part.begin(), part.end());
}

Bytes field_of(const Member &member)
{
    if (is_nested(member.kind))
        return wrapped(member, deep_message(catalogue::find_type(member.child)));
    if (member.kind == Kind::string || member.kind == Kind::bytes ||
        member.kind == Kind::repeated_string)
        return wrapped(member, Bytes{'a', 'b'});
    return empty_field(member);
}

// Back onto the last byte of an unknown field, which as a tag is that of eight bytes and leads past
// the end.
void put_jump_that_ends(Bytes &bytes)
{
    append(bytes, {kUnknownLength, 1, kUnknownFixed64});
    put_jump(bytes, bytes.length() - 1);
}

} // namespace

Bytes deep_message(const RecordType &type)
{
    Bytes bytes;
    for (const Member &member : type.members)
        for (int i = 0; i < (is_list(member.kind) ? 2 : 1); i++)
            append(bytes, field_of(member));
    append(bytes, {0, 0});
    put_jump_that_ends(bytes);
    return bytes;
}

} // namespace costs
