// SPDX-License-Identifier: MIT
// Records of any type with something in every member.

#pragma once

#include "tools/core/record.hpp"

#include <cstdint>
#include <cstring>
#include <string>

namespace inspect {

class Samples {
public:
    // Numbers count up from `first`; texts are `text` and a number. Lists have two elements.
    explicit Samples(uint32_t first = 1, std::string text = "text ")
        : next_(first), text_(std::move(text))
    {}

    Record record(const RecordType &type)
    {
        Record record(type, size_t{1} << 20);
        for (const Member &member : type.members)
            fill(record.editor(), member, record.arena());
        return record;
    }

    // One member alone.
    void fill(RecordEditor record, const Member &member, Arena &arena)
    {
        switch (member.kind) {
        case Kind::string:
            record.set_text(member, text(arena));
            break;
        case Kind::bytes:
            record.set_bytes(member, bytes(arena), kLength);
            break;
        case Kind::message:
            fill_all(record.set_child(member), arena);
            break;
        case Kind::repeated_uint32:
        case Kind::repeated_string:
        case Kind::repeated_message:
            fill_list(record, member, arena);
            break;
        case Kind::boolean:
            record.set_number(member, next_++ % 2);
            break;
        default:
            record.set_number(member, next_++);
        }
    }

private:
    static constexpr uint32_t kCount = 2;
    static constexpr uint32_t kLength = 5;

    void fill_all(RecordEditor record, Arena &arena)
    {
        for (const Member &member : record.type().members)
            fill(record, member, arena);
    }

    void fill_list(RecordEditor record, const Member &list, Arena &arena)
    {
        const size_t size = list.kind == Kind::repeated_uint32   ? sizeof(uint32_t)
                            : list.kind == Kind::repeated_string ? sizeof(char *)
                                                                 : list.child->size_here();
        auto *const elements = static_cast<std::byte *>(arena.take(kCount * size));
        std::memset(elements, 0, kCount * size);
        for (uint32_t i = 0; i < kCount; i++)
            fill_element(list, elements + i * size, arena);
        record.set_list(list, elements, kCount);
    }

    void fill_element(const Member &list, std::byte *element, Arena &arena)
    {
        if (list.kind == Kind::repeated_message)
            return fill_all({*list.child, element}, arena);
        if (list.kind == Kind::repeated_string) {
            const char *const made = text(arena);
            std::memcpy(element, &made, sizeof made);
            return;
        }
        const uint32_t number = next_++;
        std::memcpy(element, &number, sizeof number);
    }

    const char *text(Arena &arena)
    {
        const std::string made = text_ + std::to_string(next_++);
        return static_cast<char *>(
            std::memcpy(arena.take(made.size() + 1), made.c_str(), made.size() + 1));
    }

    const uint8_t *bytes(Arena &arena)
    {
        return static_cast<uint8_t *>(
            std::memset(arena.take(kLength), static_cast<int>(next_++ % 256), kLength));
    }

    uint32_t next_;
    std::string text_;
};

} // namespace inspect
