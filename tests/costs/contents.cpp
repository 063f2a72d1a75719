// SPDX-License-Identifier: MIT
#include "tests/costs/contents.hpp"

namespace costs {

using catalogue::find_type;
using catalogue::Kind;

namespace {

Content repeated(const std::string &name, const Bytes &part)
{
    return {name, [part](uint32_t size) { return filled(size, part); }};
}

// A varint of all but the first bytes, of which five carry a value.
Content padded(const std::string &name, uint32_t tag)
{
    return {name, [tag](uint32_t size) {
                Bytes bytes;
                put_varint(bytes, tag);
                put_padded_varint(bytes, 1, size - bytes.length());
                return bytes;
            }};
}

// The last scalar, the one before it and so on: every run has to pass on what another takes.
Bytes descending_scalars(const RecordType &type)
{
    Bytes bytes;
    for (auto member = type.members.rbegin(); member != type.members.rend(); ++member)
        if (is_scalar(member->kind)) {
            const Bytes field = empty_field(*member);
            bytes.insert(bytes.end(), field.begin(), field.end());
        }
    return bytes;
}

void add_scalars(std::vector<Content> &contents, const RecordType &type)
{
    const Member *last = nullptr;
    for (const Member &member : type.members)
        if (is_scalar(member.kind))
            last = &member;
    if (!last)
        return;
    contents.push_back(repeated(std::string("the number ") + last->name, empty_field(*last)));
    contents.push_back(repeated("numbers in descending order", descending_scalars(type)));
    contents.push_back(padded(std::string("one varint as ") + last->name, tag_of(*last)));
}

// Empty, and with one field that needs memory.
void add_records(std::vector<Content> &contents, const Member &member)
{
    const std::string name = member.name;
    contents.push_back(repeated("empty records " + name, empty_field(member)));
    for (const Member &inner : find_type(member.child).members)
        if (!is_scalar(inner.kind) && inner.kind != Kind::message)
            contents.push_back(repeated("records " + name + " with an empty " + inner.name,
                                        wrapped(member, empty_field(inner))));
}

void add_text(std::vector<Content> &contents, const Member &member)
{
    contents.push_back({std::string("one ") + member.name, [member](uint32_t size) {
                            const uint32_t head = varint_size(tag_of(member)) + varint_size(size);
                            return wrapped(member, Bytes(size - head, 'a'));
                        }});
}

void add_member(std::vector<Content> &contents, const Member &member)
{
    if (is_nested(member.kind))
        add_records(contents, member);
    else if (catalogue::is_list(member.kind))
        contents.push_back(
            repeated(std::string("empty elements of ") + member.name, empty_field(member)));
    else if (!is_scalar(member.kind))
        add_text(contents, member);
}

} // namespace

std::vector<Content> contents_of(const RecordType &type)
{
    std::vector<Content> contents = {
        repeated("unknown numbers", {0, 0}),
        repeated("unknown empty byte strings", {kUnknownLength, 0}),
        padded("one unknown varint", 0),
    };
    add_scalars(contents, type);
    for (const Member &member : type.members)
        add_member(contents, member);
    return contents;
}

} // namespace costs
