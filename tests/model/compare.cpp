// SPDX-License-Identifier: MIT
// Compares both memories word by word and says in terms of records where they part.

#include "tests/model/compare.hpp"
#include "tests/model/record_memory.hpp"
#include "tests/support/undefined.hpp"

#include <algorithm>
#include <cstdarg>
#include <cstdio>
#include <optional>

namespace model {

namespace {

__attribute__((format(printf, 1, 2))) std::string format(const char *how, ...)
{
    char text[512];
    va_list arguments;
    va_start(arguments, how);
    std::vsnprintf(text, sizeof text, how, arguments);
    va_end(arguments);
    return text;
}

std::string place(const GuardMemory &memory, uintptr_t address)
{
    if (!memory.holds(address))
        return format("%#llx", static_cast<unsigned long long>(address));
    for (const Block &block : memory.blocks()) {
        const auto start = reinterpret_cast<uintptr_t>(block.data);
        if (address >= start && address <= start + block.size)
            return format("%s of %u bytes + %u", block.purpose, block.size,
                          unsigned(address - start));
    }
    return "no block, offset " + std::to_string(memory.offset_of(address));
}

bool same_address(const Side &library, uintptr_t left, const Side &model, uintptr_t right)
{
    if (left == right)
        return true;
    return library.memory.holds(left) && model.memory.holds(right) &&
           library.memory.offset_of(left) == model.memory.offset_of(right);
}

ptrdiff_t watched_end(const Block &block)
{
    return ptrdiff_t(block.size) + ptrdiff_t(block.behind);
}

// The first byte of the block, or of its margin, at which the sides differ; else where it ends.
TARN_TEST_UNWATCHED ptrdiff_t first_difference(const Side &library, const Block &left,
                                               const Side &model, const Block &right)
{
    const test::Unwatched unwatched;
    constexpr ptrdiff_t kWord = sizeof(uintptr_t);
    ptrdiff_t at = -ptrdiff_t(left.before);
    const ptrdiff_t end = watched_end(left);
    if (std::memcmp(left.data + at, right.data + at, size_t(end - at)) == 0)
        return end;
    while (at < end) {
        const auto address = reinterpret_cast<uintptr_t>(left.data + at);
        if (address % kWord == 0 && at + kWord <= end) {
            if (!same_address(library, load<uintptr_t>(left.data + at), model,
                              load<uintptr_t>(right.data + at)))
                return at;
            at += kWord;
        } else if (left.data[at] != right.data[at]) {
            return at;
        } else {
            ++at;
        }
    }
    return end;
}

struct Spot {
    size_t block;
    ptrdiff_t at;
};

std::optional<Spot> first_difference(const Side &library, const Side &model)
{
    const auto &left = library.memory.blocks();
    const auto &right = model.memory.blocks();
    for (size_t i = 0; i < std::min(left.size(), right.size()); ++i) {
        const ptrdiff_t at = first_difference(library, left[i], model, right[i]);
        if (at != watched_end(left[i]))
            return Spot{i, at};
    }
    return {};
}

std::string member_at(const RecordType &type, uint32_t offset)
{
    if (offset >= type.flags_offset)
        return format("%s: flag byte or padding %u", type.name.c_str(), offset - type.flags_offset);
    const Member *found = nullptr;
    for (const Member &member : type.members)
        if (member.offset <= offset)
            found = &member;
    if (!found)
        return type.name;
    std::string name = type.name + "." + found->name;
    if (found->kind == Kind::record && offset - found->offset < found->child->size)
        name += " > " + member_at(*found->child, offset - found->offset);
    return name;
}

std::string indent(int depth)
{
    return std::string(size_t(depth) * 2, ' ');
}

std::string describe_member(const Member &member, const uint8_t *at, int depth)
{
    const uint8_t *target = has_pointer(member.kind) ? load_pointer(at) : nullptr;
    const bool counted = member.kind == Kind::bytes || is_repeated(member.kind);
    const uint32_t count = counted ? load_count(at) : 0;
    const auto address = static_cast<unsigned long long>(reinterpret_cast<uintptr_t>(target));
    switch (member.kind) {
    case Kind::uint32:
        return format("%u", load<uint32_t>(at));
    case Kind::uint64:
        return format("%llu", static_cast<unsigned long long>(load<uint64_t>(at)));
    case Kind::boolean:
        return format("%u", *at);
    case Kind::record:
        return "\n" + describe(*member.child, at, depth + 1);
    case Kind::string:
        return format("text at %#llx", address);
    case Kind::bytes:
        return format("%u bytes at %#llx", count, address);
    default:
        break;
    }
    std::string text = format("%u elements at %#llx", count, address);
    if (member.kind == Kind::records && address > 0x1000 && address < ~0xFFFull && count < 50)
        for (uint32_t i = 0; i < count; ++i)
            text += format("\n%s[%u]\n", indent(depth + 1).c_str(), i) +
                    describe(*member.child, target + size_t(i) * member.child->size, depth + 2);
    return text;
}

} // namespace

bool same_memory(const Side &library, const Side &model)
{
    return !first_difference(library, model) &&
           library.memory.blocks().size() == model.memory.blocks().size();
}

std::string compare_memory(const Side &library, const Side &model)
{
    const auto &left = library.memory.blocks();
    const auto &right = model.memory.blocks();
    if (const std::optional<Spot> found = first_difference(library, model)) {
        const Block &block = left[found->block];
        const ptrdiff_t at = found->at;
        std::string text = format("%s (block %zu, %u bytes) differs at offset %td", block.purpose,
                                  found->block, block.size, at);
        if (block.type && block.type->size && at >= 0 && at < ptrdiff_t(block.size))
            text += ", element " + std::to_string(uint32_t(at) / block.type->size) + ", " +
                    member_at(*block.type, uint32_t(at) % block.type->size);
        const ptrdiff_t from = std::max<ptrdiff_t>(at - 16, -ptrdiff_t(block.before));
        const auto shown = size_t(std::min<ptrdiff_t>(watched_end(block) - from, 48));
        return text + "\n  library from " + std::to_string(from) + ": " +
               hex(block.data + from, shown) +
               "\n  model:        " + hex(right[found->block].data + from, shown);
    }
    if (left.size() != right.size())
        return format("%zu blocks in the library's memory, %zu in the model's", left.size(),
                      right.size());
    return {};
}

std::string compare_allocations(const Side &library, const Side &model)
{
    const auto &left = library.allocator.calls();
    const auto &right = model.allocator.calls();
    for (size_t i = 0; i < std::max(left.size(), right.size()); ++i) {
        if (i < left.size() && i < right.size() && left[i].size == right[i].size)
            continue;
        const std::string none = "none";
        return format("allocation %zu: library ", i) +
               (i < left.size() ? std::to_string(left[i].size) : none) + ", model " +
               (i < right.size() ? std::to_string(right[i].size) : none);
    }
    return {};
}

std::string compare_releases(const Side &library, const Side &model)
{
    const auto &left = library.freed.blocks;
    const auto &right = model.freed.blocks;
    for (size_t i = 0; i < std::max(left.size(), right.size()); ++i) {
        const uintptr_t of_library = i < left.size() ? reinterpret_cast<uintptr_t>(left[i]) : 0;
        const uintptr_t of_model = i < right.size() ? reinterpret_cast<uintptr_t>(right[i]) : 0;
        if (i < left.size() && i < right.size() &&
            same_address(library, of_library, model, of_model))
            continue;
        return format("release %zu: library ", i) +
               (i < left.size() ? place(library.memory, of_library) : "none") + ", model " +
               (i < right.size() ? place(model.memory, of_model) : "none");
    }
    return {};
}

std::string hex(const uint8_t *bytes, size_t count, size_t limit)
{
    std::string text;
    for (size_t i = 0; i < std::min(count, limit); ++i)
        text += format(i ? " %02X" : "%02X", bytes[i]);
    return count > limit ? text + " ..." : text;
}

std::string describe(const RecordType &type, const uint8_t *record, int depth)
{
    std::string text;
    for (size_t i = 0; i < type.members.size(); ++i) {
        const Member &member = type.members[i];
        text += indent(depth) + (flag(type, record, i) ? "+ " : "- ") +
                std::to_string(member.number) + " " + member.name + " = " +
                describe_member(member, record + member.offset, depth) + "\n";
    }
    return text;
}

} // namespace model
