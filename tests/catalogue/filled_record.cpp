// SPDX-License-Identifier: MIT
#include "tests/catalogue/filled_record.hpp"

#include "tests/catalogue/memory.hpp"

#include <algorithm>

namespace catalogue {

namespace {

Value leftover(const Member &member)
{
    Value value;
    value.number = member.kind == Kind::boolean ? 0xA5 : 0xA5A5A5A5A5A5A5A5u;
    value.text = "leftover";
    value.numbers = {0xA5A5A5A5, 1};
    value.texts = {"left", "over"};
    if (member.kind == Kind::repeated_message)
        value.records = {2, empty_content(find_type(member.child))};
    return value;
}

} // namespace

FilledRecord::FilledRecord(const Content &content, Absent absent, Embedded embedded)
    : absent_(absent), embedded_(embedded)
{
    if (content.type->size == 0)
        return;
    record_ = block(content.type->size);
    fill(record_, content);
}

// Of the exact size, so that a sanitizer sees who reads beyond.
uint8_t *FilledRecord::block(size_t size)
{
    blocks_.push_back(std::make_unique<uint8_t[]>(size));
    return blocks_.back().get();
}

const char *FilledRecord::text(const std::string &value)
{
    uint8_t *copy = block(value.size() + 1);
    memcpy(copy, value.c_str(), value.size() + 1);
    return reinterpret_cast<const char *>(copy);
}

void FilledRecord::fill(uint8_t *record, const Content &content)
{
    for (size_t i = 0; i < content.values.size(); i++) {
        const Member &member = content.type->members[i];
        const std::optional<Value> &value = content.values[i];
        const bool implied = embedded_ == Embedded::implied && member.kind == Kind::message &&
                             value && writes_something(value->records[0]);
        if (value && !implied)
            member.set_flag(record);
        if (value)
            put(record, member, *value);
        else if (member.kind == Kind::message)
            fill(record + member.offset, empty_content(find_type(member.child)));
        else if (absent_ == Absent::leftovers)
            put(record, member, leftover(member));
    }
}

void FilledRecord::put(uint8_t *record, const Member &member, const Value &value)
{
    switch (member.kind) {
    case Kind::uint32:
        store(record, member.offset, static_cast<uint32_t>(value.number));
        break;
    case Kind::uint64:
        store(record, member.offset, value.number);
        break;
    case Kind::boolean:
        store(record, member.offset, static_cast<uint8_t>(value.number));
        break;
    case Kind::string:
        store(record, member.offset, text(value.text));
        break;
    case Kind::bytes: {
        uint8_t *copy = block(value.text.size());
        std::copy(value.text.begin(), value.text.end(), copy);
        put_array(record, member, copy, value.text.size());
        break;
    }
    case Kind::message:
        fill(record + member.offset, value.records[0]);
        break;
    case Kind::repeated_uint32: {
        uint8_t *array = block(value.numbers.size() * sizeof(uint32_t));
        for (size_t i = 0; i < value.numbers.size(); i++)
            store(array, i * sizeof(uint32_t), value.numbers[i]);
        put_array(record, member, array, value.numbers.size());
        break;
    }
    case Kind::repeated_string: {
        uint8_t *array = block(value.texts.size() * sizeof(char *));
        for (size_t i = 0; i < value.texts.size(); i++)
            store(array, i * sizeof(char *), text(value.texts[i]));
        put_array(record, member, array, value.texts.size());
        break;
    }
    case Kind::repeated_message: {
        const size_t size = find_type(member.child).size;
        uint8_t *array = block(value.records.size() * size);
        for (size_t i = 0; i < value.records.size(); i++)
            fill(array + i * size, value.records[i]);
        put_array(record, member, array, value.records.size());
        break;
    }
    }
}

void FilledRecord::put_array(uint8_t *record, const Member &member, const void *array, size_t count)
{
    store(record, member.offset, array);
    store(record, member.offset + sizeof(void *), static_cast<uint32_t>(count));
}

} // namespace catalogue
