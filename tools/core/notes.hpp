// SPDX-License-Identifier: MIT
// What a reader of bytes should look at twice.

#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace inspect {

// What is unusual about a piece of a message, though it may well be legal.
enum class Note : uint32_t {
    overlong_varint,
    dropped_bits,
    bool_above_one,
    unknown_field,
    past_the_end,
    backward_jump,
    met_again,
    replaced_record,
    out_of_order,
    packed_run,
    broken_run,
    other_wire_type,
    zero_byte_in_text,
    not_utf8,
};
constexpr uint32_t kNoteCount = 14;

class Notes {
public:
    void add(Note note) { bits_ |= uint32_t{1} << static_cast<uint32_t>(note); }
    void add(Notes others) { bits_ |= others.bits_; }
    bool has(Note note) const { return (bits_ >> static_cast<uint32_t>(note) & 1) != 0; }
    bool any() const { return bits_ != 0; }
    std::vector<Note> list() const;

private:
    uint32_t bits_ = 0;
};

// A few words, to stand beside the bytes.
std::string_view note_words(Note note);

} // namespace inspect
