// SPDX-License-Identifier: MIT
// What is too large for the random cases: lists of so many empty elements that their array's size
// no longer fits into 32 bits, and nested records so long that their length takes up to five bytes.

#include "tests/model/cases.hpp"
#include "tests/model/compare.hpp"
#include "tests/model/record_memory.hpp"

namespace model {

namespace {

// Below this an element would need more input than a test should hold.
constexpr uint32_t kSmallestElement = 160;

Bytes empty_elements(const Member &member, uint64_t count)
{
    Bytes element;
    for (uint32_t tag = member.number << 3 | 2; tag; tag >>= 7)
        element.push_back(uint8_t((tag & 0x7F) | (tag >> 7 ? 0x80 : 0)));
    element.push_back(0);
    Bytes input;
    input.reserve(element.size() * size_t(count));
    for (uint64_t i = 0; i < count; ++i)
        input.insert(input.end(), element.begin(), element.end());
    return input;
}

// Puts the text into the first nested record that has room for one.
bool plant(const RecordType &type, uint8_t *record, const std::string &text, GuardMemory &memory,
           int depth)
{
    std::memset(record, 0, type.size);
    for (size_t i = 0; i < type.members.size(); ++i) {
        const Member &member = type.members[i];
        uint8_t *at = record + member.offset;
        bool planted = false;
        if (member.kind == Kind::string && depth > 0) {
            store_pointer(at, text.c_str());
            planted = true;
        } else if (member.kind == Kind::record) {
            planted = plant(*member.child, at, text, memory, depth + 1);
        } else if (member.kind == Kind::records) {
            uint8_t *element = memory.take(member.child->size, "array", member.child);
            planted = plant(*member.child, element, text, memory, depth + 1);
            store_pointer(at, planted ? element : nullptr);
            store_count(at, planted);
        }
        set_flag(type, record, i, planted);
        if (planted)
            return true;
    }
    return false;
}

} // namespace

void Cases::run_huge(const RecordType &type)
{
    decode_huge_lists(type);
    for (const uint32_t edge : {1u << 7, 1u << 14, 1u << 21, 1u << 28}) {
        std::string text(edge - 16, 'x');
        const uint32_t steps = edge < 1u << 28 ? 20 : 1;
        for (uint32_t i = 0; i < steps; ++i, text += 'y')
            encode_huge_text(type, text);
    }
}

// Into one byte more than is needed, exactly what is needed, and one less.
void Cases::encode_huge_text(const RecordType &type, std::string &text)
{
    rewind({0, 0, 0});
    const Twin record = {library_.memory.take(type.size, "record", &type),
                         model_.memory.take(type.size, "record", &type)};
    if (!plant(type, record.library, text, library_.memory, 0))
        return;
    plant(type, record.model, text, model_.memory, 0);
    const uint32_t length =
        model_.codec.encode(type, record.model, {nullptr, 0, nullptr, nullptr, 0});
    for (const uint32_t capacity : {length + 1, length, length - 1}) {
        set_step("encode %s, nested text of %zu bytes, capacity %u", type.name.c_str(), text.size(),
                 capacity);
        Bytes of_library(length + 8, 0xA5);
        Bytes of_model(length + 8, 0xA5);
        require_result(library_.codec.encode(type, record.library,
                                             {of_library.data(), capacity, nullptr, nullptr, 0}),
                       model_.codec.encode(type, record.model,
                                           {of_model.data(), capacity, nullptr, nullptr, 0}));
        if (of_library != of_model)
            require("the buffers differ");
        ++comparisons_;
    }
}

void Cases::decode_huge_lists(const RecordType &type)
{
    for (const Member &member : type.members) {
        if (member.kind != Kind::records || element_size(member) < kSmallestElement)
            continue;
        const uint64_t most = UINT32_MAX / element_size(member);
        for (const uint64_t count : {most, most + 1}) {
            const Bytes input = empty_elements(member, count);
            rewind({0, 0, 0});
            const Twin record = storage(type);
            prepare({});
            set_step("decode %s, %llu elements of %s", type.name.c_str(),
                     static_cast<unsigned long long>(count), member.name.c_str());
            int32_t results[2];
            int side_index = 0;
            for (Side *side : {&library_, &model_})
                results[side_index++] =
                    side->codec.decode(type, side == &library_ ? record.library : record.model,
                                       {input.data(), uint32_t(input.size()), &Allocator::allocate,
                                        &side->allocator, 0});
            require_result(results[0], results[1]);
            require(compare_allocations(library_, model_));
            require(compare_memory(library_, model_));
            ++comparisons_;
        }
    }
}

} // namespace model
