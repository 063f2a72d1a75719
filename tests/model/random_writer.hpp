// SPDX-License-Identifier: MIT
// Writes random input for one record type: its fields in random_wire.cpp, and what leads the
// reading back in random_jumps.cpp.

#pragma once

#include "tests/model/random_wire.hpp"

#include <initializer_list>

namespace model {

class Writer {
public:
    Writer(Random &random, const RecordType &type, const Roughness &rough, uint32_t &budget)
        : random_(random), type_(type), rough_(rough), budget_(budget), seen_(type.members.size())
    {}

    Bytes run();

    // With fields that the reading comes back to, here or in a nested record.
    Bytes run_round();

private:
    static constexpr size_t kNone = SIZE_MAX;

    void put_all_members();
    void put_some_fields(uint32_t count);
    void put_oddities();
    void put_member(size_t index);
    void put_payload(const Member &member);
    void put_unknown(uint32_t wire_type);
    void put_odd();
    void put_lying_length();

    void put_nested_round(const Member &member);
    void put_round();
    void put_round_item();
    void put_record_with_pointer(const Member &member);
    void put_jump();
    void put_jump_to(uint32_t target);
    void put_hops();
    void put_hop_item();
    uint32_t put_empty_jump();
    void set_jump(uint32_t behind, uint32_t target);

    // A member of one of the kinds, or kNone.
    size_t any_member(std::initializer_list<Kind> kinds);
    uint32_t any_wire_type();
    // A number that no member has; 0 and the largest possible are among them.
    uint32_t unknown_number();
    void put_tag(uint32_t number, uint32_t wire_type);
    // At least `least` bytes long; what a reader of that width drops may be anything.
    void put_varint(uint64_t value, uint32_t bits, uint32_t least = 1);
    void put_random(uint32_t count);
    void append(const Bytes &more) { bytes_.insert(bytes_.end(), more.begin(), more.end()); }

    Random &random_;
    const RecordType &type_;
    const Roughness &rough_;
    uint32_t &budget_;
    std::vector<bool> seen_;
    Bytes bytes_;
};

} // namespace model
