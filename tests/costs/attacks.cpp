// SPDX-License-Identifier: MIT
#include "tests/costs/attacks.hpp"

#include "tests/costs/contents.hpp"

#include <algorithm>

namespace costs {

using catalogue::find_type;
using catalogue::Kind;

namespace {

// Members that embed a record by value, each in the type behind the one before.
using Chain = std::vector<const Member *>;

void add_chains(std::vector<Chain> &chains, const Chain &chain, const RecordType &type)
{
    for (const Member &member : type.members) {
        if (member.kind != Kind::message)
            continue;
        Chain longer = chain;
        longer.push_back(&member);
        chains.push_back(longer);
        add_chains(chains, longer, find_type(member.child));
    }
}

std::string name_of(const Chain &chain)
{
    std::string name;
    for (const Member *member : chain)
        name += std::string(name.empty() ? "" : ".") + member->name;
    return name;
}

// Each level takes the same share, and so does what they all span.
Bytes visit_chain(const Chain &chain, const Content &content, uint32_t size, Ending ending)
{
    const uint32_t share = size / static_cast<uint32_t>(chain.size() + 1);
    std::vector<Visits> levels;
    for (const Member *member : chain) {
        const uint32_t tag = tag_of(*member);
        levels.emplace_back(std::max(1u, share / visit_size(tag)), tag);
    }
    return nested_visits(levels, content.build(share), ending);
}

void add_embedded(std::vector<Attack> &attacks, const RecordType &type)
{
    std::vector<Chain> chains;
    add_chains(chains, {}, type);
    for (const Chain &chain : chains)
        for (const Content &content : contents_of(find_type(chain.back()->child)))
            for (Ending ending : {Ending::ends, Ending::starts_anew})
                attacks.push_back({ending == Ending::ends ? Family::embedded : Family::endless,
                                   &type, name_of(chain) + ": " + content.name,
                                   static_cast<uint32_t>(chain.size()),
                                   [chain, content, ending](uint32_t size) {
                                       return visit_chain(chain, content, size, ending);
                                   }});
}

Attack overlapping(const RecordType &type, const Visits &visits, const std::string &name,
                   const Content &content)
{
    return {Family::overlapping, &type, name, 0, [visits, content](uint32_t size) {
                uint32_t head = 0;
                for (uint32_t tag : visits)
                    head += visit_size(tag);
                return nested_visits({visits}, content.build(size - head));
            }};
}

void add_overlapping(std::vector<Attack> &attacks, const RecordType &type)
{
    Visits texts;
    Visits records;
    const Member *list = nullptr;
    for (const Member &member : type.members) {
        if (member.kind == Kind::repeated_message) {
            records.push_back(tag_of(member));
            list = &member;
        } else if (!is_scalar(member.kind) && member.kind != Kind::message &&
                   member.kind != Kind::repeated_uint32) {
            texts.push_back(tag_of(member));
        }
    }
    const Content letters = {"", [](uint32_t size) { return Bytes(size, 'a'); }};
    if (texts.size() > 1)
        attacks.push_back(overlapping(type, texts, "all texts and byte strings", letters));
    if (records.size() > 1)
        for (const Content &content : contents_of(find_type(list->child)))
            attacks.push_back(
                overlapping(type, records, "all lists of records: " + content.name, content));
}

} // namespace

const char *name_of(Family family)
{
    constexpr const char *kNames[] = {"straight", "overlapping", "embedded", "endless"};
    return kNames[static_cast<int>(family)];
}

std::vector<Attack> attacks_on(const RecordType &type)
{
    std::vector<Attack> attacks;
    for (const Content &content : contents_of(type))
        attacks.push_back({Family::straight, &type, content.name, 0, content.build});
    add_overlapping(attacks, type);
    add_embedded(attacks, type);
    return attacks;
}

std::vector<Attack> all_attacks()
{
    std::vector<Attack> all;
    for (const RecordType &type : catalogue::record_types())
        for (Attack &attack : attacks_on(type))
            all.push_back(std::move(attack));
    return all;
}

} // namespace costs
