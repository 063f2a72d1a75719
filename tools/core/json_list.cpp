// SPDX-License-Identifier: MIT
#include "tools/core/json_list.hpp"

#include <algorithm>
#include <cstring>

namespace inspect {

namespace {

constexpr size_t kFirstChunk = 16; // elements

// What is nested need not begin with zeros: the library knows what it begins with.
std::vector<std::byte> default_element(const Member &list)
{
    if (list.kind == Kind::repeated_uint32)
        return std::vector<std::byte>(sizeof(uint32_t));
    if (list.kind == Kind::repeated_string)
        return std::vector<std::byte>(sizeof(char *));
    std::vector<std::byte> record(std::max<size_t>(list.child->size_here(), 1));
    list.child->operations.decode(record.data(), nullptr, 0, nullptr, nullptr, 0);
    return record;
}

} // namespace

JsonList::JsonList(const Member &member) : default_(default_element(member)) {}

std::byte *JsonList::add()
{
    if (chunks_.empty() || chunks_.back().used == chunks_.back().size) {
        const size_t size = std::max(count_, kFirstChunk) * element_size();
        chunks_.push_back({std::unique_ptr<std::byte[]>(new std::byte[size]), size, 0});
    }
    Chunk &chunk = chunks_.back();
    std::byte *const element = chunk.elements.get() + chunk.used;
    std::memcpy(element, default_.data(), element_size());
    chunk.used += element_size();
    count_++;
    return element;
}

void JsonList::copy_to(std::byte *array) const
{
    for (const Chunk &chunk : chunks_) {
        std::memcpy(array, chunk.elements.get(), chunk.used);
        array += chunk.used;
    }
}

} // namespace inspect
