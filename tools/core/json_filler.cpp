// SPDX-License-Identifier: MIT
#include "tools/core/json_filler.hpp"

#include "tools/core/base64.hpp"
#include "tools/core/error.hpp"
#include "tools/core/json_text.hpp"
#include "tools/core/json_value.hpp"

#include <algorithm>
#include <cstring>
#include <fmt/format.h>

namespace inspect {

namespace {

std::string no_member(const RecordType &type, std::string_view name)
{
    std::vector<std::string_view> names;
    for (const Member &member : type.members)
        names.push_back(member.name);
    return fmt::format("no member {}{}", excerpt(name), did_you_mean(name, names));
}

} // namespace

void JsonFiller::null()
{
    if (open_.empty())
        refuse("null");
    if (open_.back().list)
        fail("null in a list");
}

void JsonFiller::boolean(bool value)
{
    if (wanted() != Wanted::boolean)
        refuse(value ? "true" : "false");
    open_.back().record.set_number(*open_.back().member, value ? 1 : 0);
}

void JsonFiller::number(std::string_view digits)
{
    const Wanted here = wanted();
    if (here != Wanted::u32 && here != Wanted::u64)
        refuse("a number");
    constexpr size_t kMostShown = 40;
    const bool is_long = digits.size() > kMostShown;
    put_number(digits, std::string(digits.substr(0, kMostShown)) + (is_long ? "..." : ""));
}

void JsonFiller::string(std::string_view value)
{
    switch (wanted()) {
    case Wanted::u32:
    case Wanted::u64:
        put_number(value, excerpt(value));
        break;
    case Wanted::text:
        put_text(value);
        break;
    case Wanted::bytes:
        put_bytes(value);
        break;
    default:
        refuse("a string");
    }
}

void JsonFiller::key(std::string_view name)
{
    Open &open = open_.back();
    const RecordType &type = open.record.type();
    open.member = nullptr; // the last one has its value
    const Member *const member = type.member_of_name(name);
    if (!member)
        fail(no_member(type, name));
    open.member = member;
    const auto place = static_cast<size_t>(member - type.members.data());
    if (open.seen[place])
        fail("comes twice");
    open.seen[place] = true;
}

void JsonFiller::open_object()
{
    if (wanted() != Wanted::object)
        refuse("an object");
    is_begun_ = true;
    if (open_.empty()) {
        open_record(record_.editor());
        return;
    }
    Open &open = open_.back();
    if (open.list)
        open_record({*open.member->child, add_element()});
    else
        open_record(open.record.set_child(*open.member));
}

void JsonFiller::open_list()
{
    if (wanted() != Wanted::list)
        refuse("a list");
    open_.back().list.emplace(*open_.back().member);
}

void JsonFiller::close_list()
{
    Open &open = open_.back();
    gathered_ -= open.list->size();
    std::byte *const array = take(open.list->size());
    open.list->copy_to(array);
    open.record.set_list(*open.member, array, static_cast<uint32_t>(open.list->count()));
    open.list.reset();
}

JsonFiller::Wanted JsonFiller::wanted() const
{
    if (open_.empty())
        return Wanted::object;
    const Kind kind = open_.back().member->kind;
    if (is_list(kind) && !open_.back().list)
        return Wanted::list;
    switch (kind) {
    case Kind::uint32:
    case Kind::repeated_uint32:
        return Wanted::u32;
    case Kind::uint64:
        return Wanted::u64;
    case Kind::boolean:
        return Wanted::boolean;
    case Kind::string:
    case Kind::repeated_string:
        return Wanted::text;
    case Kind::bytes:
        return Wanted::bytes;
    default:
        return Wanted::object;
    }
}

void JsonFiller::refuse(std::string_view found) const
{
    static constexpr std::string_view words[] = {
        "a number", "a number", "true or false", "a string", "a string", "an object", "a list",
    };
    fail(fmt::format("expected {}, found {}", words[static_cast<size_t>(wanted())], found));
}

void JsonFiller::fail(const std::string &problem) const
{
    const std::string where = path();
    throw Error(where.empty() ? problem : where + ": " + problem);
}

// Of the value that comes next; behind an unknown key, of the record that does not have it.
std::string JsonFiller::path() const
{
    std::string text;
    for (const Open &open : open_) {
        if (!open.member)
            break;
        text.append(text.empty() ? "" : ".").append(open.member->name);
        if (!open.list)
            continue;
        // A record is counted when it is begun, a number or text when it is there.
        const bool is_last = &open == &open_.back();
        text += fmt::format("[{}]", open.list->count() - (is_last ? 0 : 1));
    }
    return text;
}

void JsonFiller::open_record(RecordEditor record)
{
    open_.push_back({record, std::vector<bool>(record.type().members.size()), nullptr, {}});
}

void JsonFiller::put_number(std::string_view digits, const std::string &shown)
{
    const Kind kind = wanted() == Wanted::u64 ? Kind::uint64 : Kind::uint32;
    const WholeNumber number = whole_number(digits, kind);
    if (!number.problem.empty())
        fail(shown + " " + number.problem);
    Open &open = open_.back();
    if (!open.list) {
        open.record.set_number(*open.member, number.value);
        return;
    }
    const auto element = static_cast<uint32_t>(number.value);
    std::memcpy(add_element(), &element, sizeof element);
}

void JsonFiller::put_text(std::string_view value)
{
    if (value.find('\0') != std::string_view::npos)
        fail("U+0000 in a text, which ends there for C");
    auto *const text = reinterpret_cast<char *>(take(value.size() + 1));
    std::ranges::copy(value, text);
    text[value.size()] = '\0';
    Open &open = open_.back();
    if (open.list)
        std::memcpy(add_element(), &text, sizeof text);
    else
        open.record.set_text(*open.member, text);
}

void JsonFiller::put_bytes(std::string_view digits)
{
    const std::optional<std::vector<uint8_t>> bytes =
        options_.bytes_as_hex ? bytes_of_hex(digits) : bytes_of_base64(digits);
    if (!bytes)
        fail(excerpt(digits) + (options_.bytes_as_hex ? " is not hex" : " is not base64"));
    auto *const data = reinterpret_cast<uint8_t *>(take(bytes->size()));
    std::ranges::copy(*bytes, data);
    Open &open = open_.back();
    open.record.set_bytes(*open.member, data, static_cast<uint32_t>(bytes->size()));
}

// What is gathered will have to find room in the end.
std::byte *JsonFiller::add_element()
{
    JsonList &list = *open_.back().list;
    if (list.element_size() > record_.arena().room() ||
        gathered_ > record_.arena().room() - list.element_size())
        fail("takes more than the memory limit");
    gathered_ += list.element_size();
    return list.add();
}

// The library counts in 32 bits.
std::byte *JsonFiller::take(size_t size)
{
    const bool can_count = static_cast<uint32_t>(size) == size;
    void *const block = can_count ? record_.arena().take(size) : nullptr;
    if (!block)
        fail("takes more than the memory limit");
    return static_cast<std::byte *>(block);
}

} // namespace inspect
