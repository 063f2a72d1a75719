// SPDX-License-Identifier: MIT
#include "tests/catalogue/ownership.hpp"

#include "tests/catalogue/layout.hpp"
#include "tests/catalogue/memory.hpp"
#include "tests/support/undefined.hpp"

namespace catalogue {

namespace {

size_t element_size(const Member &member)
{
    switch (member.kind) {
    case Kind::bytes:
        return 1;
    case Kind::repeated_uint32:
        return sizeof(uint32_t);
    case Kind::repeated_string:
        return sizeof(char *);
    default:
        return find_type(member.child).size;
    }
}

// The records nested in a member: one that is embedded, or those of a list.
template <typename Visit>
void for_each_nested(const Member &member, const void *record, Visit visit)
{
    if (!is_nested(member.kind))
        return;
    const RecordType &child = find_type(member.child);
    if (member.kind == Kind::message) {
        visit(child, static_cast<const uint8_t *>(record) + member.offset);
        return;
    }
    const uint8_t *element = load<const uint8_t *>(record, member.offset);
    const uint32_t count = element ? load<uint32_t>(record, count_offset(member)) : 0;
    for (uint32_t i = 0; i < count; i++, element += child.size)
        visit(child, element);
}

void add_text(std::map<const void *, uint32_t> &blocks, const char *text)
{
    if (text)
        blocks.emplace(text, static_cast<uint32_t>(strlen(text) + 1));
}

void release_in(const RecordType &type, uint8_t *image, uint32_t flags)
{
    for (const Member &member : type.members) {
        if (is_scalar(member.kind))
            continue;
        if (member.kind == Kind::message) {
            release_in(find_type(member.child), image + member.offset, flags);
            continue;
        }
        if (member.kind == Kind::bytes && flags & WIRE_FLAG_BYTES_IN_PLACE)
            continue;
        const bool attached = load<const void *>(image, member.offset);
        store<const void *>(image, member.offset, nullptr);
        // The count of a list of numbers stays, as does the length of a byte string.
        if (attached &&
            (member.kind == Kind::repeated_message || member.kind == Kind::repeated_string))
            store<uint32_t>(image, count_offset(member), 0);
    }
}

} // namespace

std::map<const void *, uint32_t> attached_blocks(const RecordType &type, const void *record,
                                                 uint32_t flags)
{
    std::map<const void *, uint32_t> blocks;
    for (const Member &member : type.members) {
        for_each_nested(member, record, [&](const RecordType &child, const uint8_t *nested) {
            blocks.merge(attached_blocks(child, nested, flags));
        });
        if (is_scalar(member.kind) || member.kind == Kind::message)
            continue;
        if (member.kind == Kind::bytes && flags & WIRE_FLAG_BYTES_IN_PLACE)
            continue;
        const uint8_t *pointer = load<const uint8_t *>(record, member.offset);
        if (!pointer)
            continue;
        if (member.kind == Kind::string) {
            add_text(blocks, reinterpret_cast<const char *>(pointer));
            continue;
        }
        const uint32_t count = load<uint32_t>(record, count_offset(member));
        blocks.emplace(pointer, static_cast<uint32_t>(count * element_size(member)));
        if (member.kind == Kind::repeated_string)
            for (uint32_t i = 0; i < count; i++)
                add_text(blocks, load<const char *>(pointer, i * sizeof(char *)));
    }
    return blocks;
}

std::vector<WireSegment> byte_strings(const RecordType &type, const void *record)
{
    std::vector<WireSegment> found;
    for (const Member &member : type.members) {
        for_each_nested(member, record, [&](const RecordType &child, const uint8_t *nested) {
            for (const WireSegment &inner : byte_strings(child, nested))
                found.push_back(inner);
        });
        if (member.kind == Kind::bytes && flag(type, record, member))
            found.push_back({load<const uint8_t *>(record, member.offset),
                             load<uint32_t>(record, count_offset(member))});
    }
    return found;
}

test::Bytes released_image(const RecordType &type, const void *record, uint32_t flags)
{
    const uint8_t *bytes = static_cast<const uint8_t *>(record);
    test::Bytes image(bytes, bytes + type.size);
    test::make_defined(image.data(), image.size());
    release_in(type, image.data(), flags);
    return image;
}

} // namespace catalogue
