// SPDX-License-Identifier: MIT
#include "tests/catalogue/cases.hpp"

#include <string_view>

namespace catalogue {

namespace {

constexpr uint32_t kFree = kVariants - 1; // the variant with arbitrary numbers

constexpr uint32_t kNumbers32[8] = {0, 1, 127, 128, 0x3FFF, 0x4000, 0x80000000, UINT32_MAX};
constexpr uint64_t kNumbers64[8] = {
    0, 1, 127, 128, UINT32_MAX, uint64_t{1} << 32, uint64_t{1} << 63, UINT64_MAX};
constexpr size_t kLengths[8] = {0, 1, 3, 127, 128, 5, 300, 16};
constexpr size_t kInnerLengths[8] = {0, 1, 3, 2, 128, 5, 1, 4};
constexpr size_t kCounts[8] = {0, 1, 3, 1, 3, 0, 2, 3};
constexpr size_t kInnerCounts[8] = {0, 1, 2, 1, 0, 1, 2, 1};
constexpr size_t kInnermostCounts[8] = {0, 1, 1, 0, 1, 1, 0, 1};

// FNV-1a, with a last stir so that the low bits depend on everything.
class Hash {
public:
    Hash &add(std::string_view text)
    {
        for (const char character : text)
            state_ = (state_ ^ static_cast<uint8_t>(character)) * 0x100000001B3u;
        return *this;
    }

    Hash &add(uint32_t number)
    {
        for (int shift = 0; shift < 32; shift += 8)
            state_ = (state_ ^ (number >> shift & 0xFF)) * 0x100000001B3u;
        return *this;
    }

    uint64_t value() const
    {
        uint64_t mixed = (state_ ^ state_ >> 33) * 0xFF51AFD7ED558CCDu;
        mixed = (mixed ^ mixed >> 33) * 0xC4CEB9FE1A85EC53u;
        return mixed ^ mixed >> 33;
    }

private:
    uint64_t state_ = 0xCBF29CE484222325u;
};

// One value of a case: which member of which type, at which place in which variant.
struct Place {
    const RecordType &type;
    const Member &member;
    uint32_t variant;
    uint32_t depth;

    Hash hash() const { return Hash().add(type.name).add(".").add(member.name); }
    uint64_t arbitrary(uint32_t index = 0) const
    {
        return hash().add(variant).add(depth).add(index).value();
    }
    template <typename T>
    T pick(const T (&row)[8], uint32_t index = 0) const
    {
        return row[(hash().value() + variant + index) % 8];
    }
};

uint32_t number32(const Place &place, uint32_t index)
{
    if (place.variant % kVariants == kFree)
        return static_cast<uint32_t>(place.arbitrary(index));
    return place.pick(kNumbers32, index);
}

uint64_t number64(const Place &place)
{
    if (place.variant % kVariants == kFree)
        return place.arbitrary() >> place.arbitrary(1) % 64;
    return place.pick(kNumbers64);
}

size_t length_of(const Place &place, uint32_t index)
{
    return place.depth ? place.pick(kInnerLengths, index) : place.pick(kLengths, index);
}

// Letters, and now and then one of two bytes.
std::string text(const Place &place, uint32_t index)
{
    const size_t length = length_of(place, index);
    std::string out;
    for (uint64_t dice = place.arbitrary(index); out.size() < length;
         dice = dice * 6364136223846793005u + 1442695040888963407u) {
        if (dice >> 60 == 0 && out.size() + 2 <= length)
            out += "\xC3\xA9";
        else
            out += static_cast<char>('a' + (dice >> 40) % 26);
    }
    return out;
}

// Any octets; the first is zero half of the time.
std::string octets(const Place &place)
{
    std::string out(length_of(place, 0), '\0');
    uint64_t dice = place.arbitrary();
    for (size_t i = dice & 1; i < out.size(); i++) {
        dice = dice * 6364136223846793005u + 1442695040888963407u;
        out[i] = static_cast<char>(dice >> 40);
    }
    return out;
}

size_t count_of(const Place &place)
{
    switch (place.depth) {
    case 0:
        return place.pick(kCounts);
    case 1:
        return place.pick(kInnerCounts);
    default:
        return place.pick(kInnermostCounts);
    }
}

Content nested(const Place &place, uint32_t index);

Value value_at(const Place &place)
{
    Value value;
    switch (place.member.kind) {
    case Kind::uint32:
        value.number = number32(place, 0);
        break;
    case Kind::uint64:
        value.number = number64(place);
        break;
    case Kind::boolean:
        value.number = place.pick(kNumbers32) & 1;
        break;
    case Kind::string:
        value.text = text(place, 0);
        break;
    case Kind::bytes:
        value.text = octets(place);
        break;
    case Kind::message:
        value.records.push_back(nested(place, 0));
        break;
    case Kind::repeated_uint32:
        for (uint32_t i = 0; i < count_of(place); i++)
            value.numbers.push_back(number32(place, i));
        break;
    case Kind::repeated_string:
        for (uint32_t i = 0; i < count_of(place); i++)
            value.texts.push_back(text(place, i));
        break;
    case Kind::repeated_message:
        for (uint32_t i = 0; i < count_of(place); i++)
            value.records.push_back(nested(place, i));
        break;
    }
    return value;
}

// Which members are there in a shape. Even and odd variants of `some` are each other's complement.
bool is_present(const Case &test_case, size_t member)
{
    switch (test_case.shape) {
    case Shape::none:
        return false;
    case Shape::all:
        return true;
    case Shape::alone:
        return member == test_case.member;
    case Shape::some:
        break;
    }
    const uint64_t dice = Hash()
                              .add(test_case.type->name)
                              .add(static_cast<uint32_t>(member))
                              .add(test_case.variant / 2)
                              .value();
    return (dice + test_case.variant) % 2 == 0;
}

Content content_at(const Case &test_case, uint32_t depth)
{
    Content content = empty_content(*test_case.type);
    for (size_t i = 0; i < content.values.size(); i++)
        if (is_present(test_case, i))
            content.values[i] =
                value_at({*test_case.type, test_case.type->members[i], test_case.variant, depth});
    return content;
}

// Nested records are complete, partial or empty. Those of one type in several members differ.
Content nested(const Place &place, uint32_t index)
{
    constexpr Shape kShapes[8] = {Shape::all,  Shape::some, Shape::all,  Shape::none,
                                  Shape::some, Shape::all,  Shape::none, Shape::all};
    const Case inner{&find_type(place.member.child), place.pick(kShapes, index),
                     place.variant + index + static_cast<uint32_t>(place.hash().value() % 1000), 0};
    return content_at(inner, place.depth + 1);
}

} // namespace

std::vector<Case> all_cases()
{
    std::vector<Case> cases;
    for (const RecordType &type : record_types()) {
        cases.push_back({&type, Shape::none, 0, 0});
        if (type.members.empty())
            continue;
        for (uint32_t variant = 0; variant < kVariants; variant++) {
            cases.push_back({&type, Shape::all, variant, 0});
            cases.push_back({&type, Shape::some, variant, 0});
            for (size_t member = 0; member < type.members.size(); member++)
                cases.push_back({&type, Shape::alone, variant, member});
        }
    }
    return cases;
}

std::string name_of(const Case &test_case)
{
    static constexpr const char *kNames[] = {"none", "some", "all"};
    const std::string what = test_case.shape == Shape::alone
                                 ? test_case.type->members[test_case.member].name
                                 : kNames[static_cast<int>(test_case.shape)];
    return std::string(test_case.type->name) + " " + what + "." + std::to_string(test_case.variant);
}

Content content_of(const Case &test_case)
{
    return content_at(test_case, 0);
}

} // namespace catalogue
