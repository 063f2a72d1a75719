// SPDX-License-Identifier: MIT
// Every member is there or not, with values of every size and lists of every length.

#include "tests/protobuf/random_content.hpp"

#include <algorithm>
#include <random>

namespace protobuf {

namespace {

using catalogue::Content;
using catalogue::Kind;
using catalogue::Member;
using catalogue::RecordType;
using catalogue::Value;

constexpr size_t kLongList = 1000;
constexpr size_t kLongText = 20000;
// A content with a long list of records with long lists would not fit anywhere.
constexpr size_t kMostValues = 3000;

class Maker {
public:
    explicit Maker(uint64_t seed) : random_(seed) {}

    Content content(const RecordType &type)
    {
        Content made = catalogue::empty_content(type);
        const uint64_t density = pick({0, 20, 60, 100, 100});
        for (size_t i = 0; i < type.members.size(); i++)
            if (below(100) < density)
                made.values[i] = value(type.members[i]);
        return made;
    }

private:
    // The same everywhere, unlike the standard library's distributions.
    uint64_t below(uint64_t limit) { return random_() % limit; }
    uint64_t pick(std::initializer_list<uint64_t> choices)
    {
        return choices.begin()[below(choices.size())];
    }

    Value value(const Member &member)
    {
        Value made;
        switch (member.kind) {
        case Kind::uint32:
            made.number = number(32);
            break;
        case Kind::uint64:
            made.number = number(64);
            break;
        case Kind::boolean:
            made.number = below(2);
            break;
        case Kind::string:
            made.text = text();
            break;
        case Kind::bytes:
            made.text = octets();
            break;
        case Kind::message:
            made.records.push_back(content(catalogue::find_type(member.child)));
            break;
        default:
            for (size_t left = count(); left > 0; left--)
                add_element(member, made);
            break;
        }
        return made;
    }

    void add_element(const Member &member, Value &list)
    {
        if (member.kind == Kind::repeated_uint32)
            list.numbers.push_back(static_cast<uint32_t>(number(32)));
        else if (member.kind == Kind::repeated_string)
            list.texts.push_back(text());
        else
            list.records.push_back(content(catalogue::find_type(member.child)));
    }

    // Of any width up to `bits`, with the edges among them.
    uint64_t number(unsigned bits)
    {
        const uint64_t largest = ~uint64_t{0} >> (64 - bits);
        switch (below(6)) {
        case 0:
            return 0;
        case 1:
            return largest;
        case 2:
            return uint64_t{1} << below(bits);
        case 3:
            return (uint64_t{1} << below(bits)) - 1;
        default:
            return (random_() & largest) >> below(bits);
        }
    }

    size_t count()
    {
        size_t wanted = below(5);
        if (below(30) == 0)
            wanted = kLongList + below(50);
        wanted = std::min(wanted, kMostValues - std::min(values_, kMostValues));
        values_ += wanted;
        return wanted;
    }

    size_t length()
    {
        if (below(100) == 0)
            return kLongText + below(100);
        return below(8) ? below(40) : below(300);
    }

    // Well-formed UTF-8 of characters of all lengths; zero is not among them.
    std::string text()
    {
        std::string made;
        for (size_t left = values_ < kMostValues / 2 ? length() : below(4); left > 0; left--)
            add_character(made, character());
        return made;
    }

    uint32_t character()
    {
        const uint64_t limit = pick({0x80, 0x80, 0x800, 0x10000, 0x110000});
        const auto made = static_cast<uint32_t>(1 + below(limit - 1));
        const bool is_surrogate = made >= 0xD800 && made < 0xE000;
        return is_surrogate ? '?' : made;
    }

    static void add_character(std::string &text, uint32_t character)
    {
        const auto add = [&](uint32_t byte) { text += static_cast<char>(byte); };
        if (character < 0x80) {
            add(character);
            return;
        }
        if (character < 0x800) {
            add(0xC0 | character >> 6);
        } else {
            if (character < 0x10000) {
                add(0xE0 | character >> 12);
            } else {
                add(0xF0 | character >> 18);
                add(0x80 | (character >> 12 & 0x3F));
            }
            add(0x80 | (character >> 6 & 0x3F));
        }
        add(0x80 | (character & 0x3F));
    }

    std::string octets()
    {
        std::string made(length(), '\0');
        for (char &octet : made)
            octet = static_cast<char>(below(4) ? random_() : 0);
        return made;
    }

    std::mt19937_64 random_;
    size_t values_ = 0;
};

} // namespace

Content random_content(const RecordType &type, uint64_t seed)
{
    return Maker(seed).content(type);
}

void Occurrences::add(const Content &content, size_t depth)
{
    deepest_ = std::max(deepest_, depth);
    for (size_t i = 0; i < content.values.size(); i++)
        if (content.values[i])
            add_value(content.type->members[i], *content.values[i], depth);
}

void Occurrences::add_value(const Member &member, const Value &value, size_t depth)
{
    if (catalogue::is_scalar(member.kind)) {
        zero_numbers_ |= value.number == 0;
        largest_32_ |= value.number == UINT32_MAX;
        largest_64_ |= value.number == UINT64_MAX;
    }
    if (member.kind == Kind::string)
        add_text(value.text);
    if (member.kind == Kind::bytes)
        zero_bytes_ |= value.text.find('\0') != std::string::npos;
    for (const std::string &text : value.texts)
        add_text(text);
    for (const Content &record : value.records) {
        empty_records_ |= !catalogue::writes_something(record);
        add(record, depth + 1);
    }
    longest_list_ =
        std::max({longest_list_, value.numbers.size(), value.texts.size(), value.records.size()});
}

void Occurrences::add_text(const std::string &text)
{
    empty_texts_ |= text.empty();
    longest_text_ = std::max(longest_text_, text.size());
    for (const char character : text) {
        const auto byte = static_cast<uint8_t>(character);
        two_byte_characters_ |= byte >= 0xC0 && byte < 0xE0;
        three_byte_characters_ |= byte >= 0xE0 && byte < 0xF0;
        four_byte_characters_ |= byte >= 0xF0;
    }
}

std::string Occurrences::missing() const
{
    std::string text;
    const auto need = [&](bool there, const char *what) {
        if (!there)
            text += std::string(text.empty() ? "" : ", ") + what;
    };
    need(deepest_ == 4, "records four levels deep");
    need(longest_list_ >= kLongList, "long lists");
    need(longest_text_ >= kLongText, "long texts");
    need(zero_numbers_, "zeros");
    need(largest_32_, "the largest 32-bit number");
    need(largest_64_, "the largest 64-bit number");
    need(empty_records_, "empty records");
    need(empty_texts_, "empty texts");
    need(two_byte_characters_, "characters of two bytes");
    need(three_byte_characters_, "characters of three bytes");
    need(four_byte_characters_, "characters of four bytes");
    need(zero_bytes_, "zero bytes in byte strings");
    return text;
}

} // namespace protobuf
