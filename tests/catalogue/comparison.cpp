// SPDX-License-Identifier: MIT
#include "tests/catalogue/comparison.hpp"

#include "tests/catalogue/layout.hpp"
#include "tests/catalogue/memory.hpp"

namespace catalogue {

namespace {

const char *describe(bool flag_value)
{
    return flag_value ? "flag is set" : "flag is clear";
}

uint64_t load_scalar(const void *record, const Member &member)
{
    switch (member.kind) {
    case Kind::uint32:
        return load<uint32_t>(record, member.offset);
    case Kind::uint64:
        return load<uint64_t>(record, member.offset);
    default:
        return load<uint8_t>(record, member.offset);
    }
}

std::string number_difference(uint64_t expected, uint64_t actual)
{
    return expected == actual
               ? ""
               : "is " + std::to_string(actual) + " instead of " + std::to_string(expected);
}

std::string text_difference(const std::string &expected, const char *actual)
{
    if (!actual)
        return "is null";
    return expected == actual ? "" : "is \"" + std::string(actual) + "\"";
}

std::string value_difference(const Member &member, const Value &expected, const void *record);

std::string elements_difference(const Member &member, const Value &expected, const uint8_t *array,
                                uint32_t count)
{
    const size_t wanted = member.kind == Kind::repeated_uint32   ? expected.numbers.size()
                          : member.kind == Kind::repeated_string ? expected.texts.size()
                                                                 : expected.records.size();
    if (count != wanted || !array)
        return "has " + std::to_string(count) + " elements instead of " + std::to_string(wanted);
    std::string found;
    for (size_t i = 0; i < count && found.empty(); i++) {
        if (member.kind == Kind::repeated_uint32)
            found = number_difference(expected.numbers[i], load<uint32_t>(array, i * 4));
        else if (member.kind == Kind::repeated_string)
            found =
                text_difference(expected.texts[i], load<const char *>(array, i * sizeof(char *)));
        else
            found = difference(expected.records[i], array + i * expected.records[i].type->size);
        if (!found.empty())
            found.insert(0, "[" + std::to_string(i) + "] ");
    }
    return found;
}

std::string value_difference(const Member &member, const Value &expected, const void *record)
{
    if (is_scalar(member.kind))
        return number_difference(expected.number, load_scalar(record, member));
    if (member.kind == Kind::message)
        return difference(expected.records[0],
                          static_cast<const uint8_t *>(record) + member.offset);
    const uint8_t *pointer = load<const uint8_t *>(record, member.offset);
    if (member.kind == Kind::string)
        return text_difference(expected.text, reinterpret_cast<const char *>(pointer));
    const uint32_t count = load<uint32_t>(record, count_offset(member));
    if (is_list(member.kind))
        return elements_difference(member, expected, pointer, count);
    if (count != expected.text.size() || !pointer)
        return "has " + std::to_string(count) + " bytes";
    return memcmp(pointer, expected.text.data(), count) ? "has other bytes" : "";
}

std::string default_difference(const RecordType &type, size_t index, const void *record)
{
    const Member &member = type.members[index];
    if (is_scalar(member.kind))
        return number_difference(default_of(type, index), load_scalar(record, member));
    if (member.kind == Kind::message)
        return difference(empty_content(find_type(member.child)),
                          static_cast<const uint8_t *>(record) + member.offset);
    if (load<const void *>(record, member.offset))
        return "is not null";
    if (member.kind != Kind::string && load<uint32_t>(record, count_offset(member)))
        return "has a length or count without a pointer";
    return "";
}

} // namespace

std::string difference(const Content &expected, const void *record)
{
    const RecordType &type = *expected.type;
    for (size_t i = 0; i < type.members.size(); i++) {
        const Member &member = type.members[i];
        const std::optional<Value> &value = expected.values[i];
        const bool present = is_on_wire(member, value);
        std::string found;
        if (flag(type, record, member) != present)
            found = describe(!present);
        else if (present)
            found = value_difference(member, *value, record);
        else
            found = default_difference(type, i, record);
        if (!found.empty())
            return std::string(member.name) + " " + found;
    }
    return "";
}

namespace {

std::string copied_text_difference(const char *copy, const char *original)
{
    if (!original || !copy)
        return copy == original ? "" : "is null on one side only";
    if (copy == original)
        return "is shared";
    return text_difference(original, copy);
}

std::string copied_list_difference(const Member &member, const uint8_t *copy,
                                   const uint8_t *original, uint32_t count)
{
    std::string found;
    for (size_t i = 0; i < count && found.empty(); i++) {
        if (member.kind == Kind::repeated_uint32) {
            found = number_difference(load<uint32_t>(original, i * 4), load<uint32_t>(copy, i * 4));
        } else if (member.kind == Kind::repeated_string) {
            found = copied_text_difference(load<const char *>(copy, i * sizeof(char *)),
                                           load<const char *>(original, i * sizeof(char *)));
        } else {
            const RecordType &child = find_type(member.child);
            found = copy_difference(child, copy + i * child.size, original + i * child.size);
        }
    }
    return found;
}

std::string copied_pair_difference(const Member &member, const void *copy, const void *original)
{
    const uint32_t count = load<uint32_t>(original, count_offset(member));
    if (load<uint32_t>(copy, count_offset(member)) != count)
        return "has another length or count";
    const uint8_t *from = load<const uint8_t *>(original, member.offset);
    const uint8_t *to = load<const uint8_t *>(copy, member.offset);
    if (count == 0)
        return to ? "is empty but not null" : "";
    if (!to || to == from)
        return to ? "is shared" : "is null";
    if (member.kind == Kind::bytes)
        return memcmp(to, from, count) ? "has other bytes" : "";
    return copied_list_difference(member, to, from, count);
}

} // namespace

std::string copy_difference(const RecordType &type, const void *copy, const void *original)
{
    for (const Member &member : type.members) {
        std::string found;
        if (flag(type, copy, member) != flag(type, original, member))
            found = describe(flag(type, copy, member));
        else if (is_scalar(member.kind))
            found = number_difference(load_scalar(original, member), load_scalar(copy, member));
        else if (member.kind == Kind::message)
            found = copy_difference(find_type(member.child),
                                    static_cast<const uint8_t *>(copy) + member.offset,
                                    static_cast<const uint8_t *>(original) + member.offset);
        else if (member.kind == Kind::string)
            found = copied_text_difference(load<const char *>(copy, member.offset),
                                           load<const char *>(original, member.offset));
        else
            found = copied_pair_difference(member, copy, original);
        if (!found.empty())
            return std::string(member.name) + " " + found;
    }
    return "";
}

} // namespace catalogue
