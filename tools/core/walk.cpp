// SPDX-License-Identifier: MIT
#include "tools/core/walk.hpp"

#include "tools/core/text.hpp"
#include "tools/core/walker.hpp"

#include <fmt/format.h>

namespace inspect {

namespace {

// How often the bytes of a message may be read again, and those of a small one in any case.
constexpr uint64_t kRounds = 16;
constexpr uint64_t kLeastWork = uint64_t{1} << 20;

class Unseen : public Visitor {
public:
    bool visit(const Piece &) override { return true; }
};

} // namespace

Tag tag_of(const Varint &varint)
{
    const auto tag = static_cast<uint32_t>(varint.value);
    return {tag >> 3, tag & 7};
}

std::string_view wire_type_words(uint32_t wire_type)
{
    static constexpr std::string_view words[] = {
        "a varint",
        "64 bits",
        "something with a length",
        "a group",
        "the end of a group",
        "32 bits",
        "wire type 6",
        "wire type 7",
    };
    return words[wire_type];
}

Walker::Walker(Bytes message, Visitor &visitor, const WalkOptions &options)
    : message_(message), visitor_(visitor), blocks_(options.blocks),
      work_left_(kRounds * message.size() + kLeastWork)
{}

Verdict Walker::run(const RecordType &type)
{
    Loop loop{&type, {0, static_cast<uint32_t>(message_.size())}, 0};
    walk_record(loop);
    return verdict_;
}

bool Walker::show(const Piece &piece)
{
    if (!visitor_.visit(piece)) {
        verdict_.reason = "it is not read any further";
        return false;
    }
    const uint64_t work = piece.bytes.size() + 1;
    if (work > work_left_) {
        verdict_.reason = "it jumps back so often that it is not followed any further";
        return false;
    }
    work_left_ -= work;
    return true;
}

bool Walker::fail(int32_t result, uint32_t at, std::string reason)
{
    verdict_ = {result, at, path_, std::move(reason)};
    return false;
}

bool Walker::fail_at_end(const Loop &loop, const Member *member, uint32_t at, std::string reason)
{
    if (at < loop.extent.end && !show(piece(loop, member, Part::unread, at, loop.extent.end)))
        return false;
    return fail(WIRE_ERR_MALFORMED, at, std::move(reason));
}

bool Walker::take_block(uint64_t size, uint32_t at)
{
    if (size > UINT32_MAX)
        return fail(WIRE_ERR_NO_MEMORY, at, fmt::format("{} bytes of memory are too many", size));
    if (blocks_ == 0)
        return fail(WIRE_ERR_NO_MEMORY, at, fmt::format("{} bytes of memory were refused", size));
    blocks_--;
    return true;
}

std::optional<Varint> Walker::varint_at(const Loop &loop, uint32_t at) const
{
    return read_varint(message_.subspan(at, loop.extent.end - at));
}

Piece Walker::piece(const Loop &loop, const Member *member, Part what, uint32_t begin,
                    uint32_t end) const
{
    Piece out{what, begin, message_.subspan(begin, end - begin), loop.depth, &path_, member, 0, 0,
              0,    {}};
    if (member) {
        out.number = member->number;
        out.wire_type = member->wire_type();
    }
    return out;
}

Piece Walker::varint_piece(const Loop &loop, const Member *member, Part what, uint32_t at,
                           const Varint &varint, uint32_t bits) const
{
    Piece out = piece(loop, member, what, at, at + varint.size);
    out.value = bits == 64 ? varint.value : static_cast<uint32_t>(varint.value);
    if (varint.is_overlong)
        out.notes.add(Note::overlong_varint);
    if (varint.has_more || out.value != varint.value)
        out.notes.add(Note::dropped_bits);
    return out;
}

bool Walker::walk_record(Loop &loop)
{
    uint32_t at = loop.extent.begin;
    while (at < loop.extent.end) {
        const std::optional<Varint> varint = varint_at(loop, at);
        if (!varint)
            return fail_at_end(loop, nullptr, at, "it ends inside a tag");
        const Tag tag = tag_of(*varint);
        const Member *const member = loop.type->member_of_number(tag.number);
        if (!(member ? walk_field(loop, *member, tag, at) : walk_unknown(loop, tag, at)))
            return false;
    }
    return true;
}

bool Walker::show_tag(const Loop &loop, const Member *member, Notes notes, uint32_t &at)
{
    const Varint varint = *varint_at(loop, at);
    const Tag tag = tag_of(varint);
    Piece shown = varint_piece(loop, member, Part::tag, at, varint, 32);
    shown.number = tag.number;
    shown.wire_type = tag.wire_type;
    shown.notes.add(notes);
    at += varint.size;
    return show(shown);
}

bool Walker::walk_field(Loop &loop, const Member &member, Tag tag, uint32_t &at)
{
    const uint32_t tag_at = at;
    const bool matches = tag.wire_type == member.wire_type();
    const bool only_once = !is_scalar(member.kind) && member.kind != Kind::message;
    Notes notes;
    if (loop.has(member))
        notes.add(is_list(member.kind)           ? Note::broken_run
                  : member.kind == Kind::message ? Note::replaced_record
                                                 : Note::met_again);
    if (tag.wire_type == 2 && member.kind == Kind::repeated_uint32)
        notes.add(Note::packed_run);
    if (member.number < loop.last_number)
        notes.add(Note::out_of_order);
    loop.last_number = member.number;

    path_.push_back({&member});
    if (!show_tag(loop, &member, notes, at))
        return false;
    if (!matches)
        return fail(WIRE_ERR_TYPE_MISMATCH, tag_at,
                    fmt::format("{} cannot come as {}", kind_words(member.kind),
                                wire_type_words(tag.wire_type)));
    if (only_once && loop.has(member))
        return fail(WIRE_ERR_MALFORMED, tag_at,
                    is_list(member.kind) ? "the list goes on after another field"
                                         : "it comes a second time");
    if (!(is_list(member.kind) ? walk_list(loop, member, at) : walk_content(loop, member, at)))
        return false;
    loop.present |= uint64_t{1} << member.bit;
    path_.pop_back();
    return true;
}

// Of a member, or of an element of one.
bool Walker::walk_content(const Loop &loop, const Member &member, uint32_t &at)
{
    if (is_nested(member.kind))
        return walk_message(loop, member, at);
    return member.wire_type() == 2 ? walk_bytes(loop, member, at) : walk_number(loop, member, at);
}

bool Walker::walk_number(const Loop &loop, const Member &member, uint32_t &at)
{
    const std::optional<Varint> varint = varint_at(loop, at);
    if (!varint)
        return fail_at_end(loop, &member, at, "it ends inside a number");
    const uint32_t bits = member.kind == Kind::uint64 ? 64 : 32;
    Piece shown = varint_piece(loop, &member, Part::value, at, *varint, bits);
    if (member.kind == Kind::boolean && shown.value > 1)
        shown.notes.add(Note::bool_above_one);
    at += varint->size;
    return show(shown);
}

bool Walker::read_length(const Loop &loop, const Member &member, uint32_t &at, uint32_t &length)
{
    const uint32_t length_at = at;
    const std::optional<Varint> varint = varint_at(loop, at);
    if (!varint)
        return fail_at_end(loop, &member, at, "it ends inside a length");
    const Piece shown = varint_piece(loop, &member, Part::length, at, *varint, 32);
    length = static_cast<uint32_t>(shown.value);
    at += varint->size;
    if (!show(shown))
        return false;
    const uint32_t left = loop.extent.end - at;
    if (length <= left)
        return true;
    if (left > 0 && !show(piece(loop, &member, Part::unread, at, loop.extent.end)))
        return false;
    return fail(WIRE_ERR_MALFORMED, length_at,
                fmt::format("its length is {}, but {} left", length,
                            left == 1 ? "1 byte is" : fmt::format("{} bytes are", left)));
}

bool Walker::walk_bytes(const Loop &loop, const Member &member, uint32_t &at)
{
    const uint32_t length_at = at;
    uint32_t length;
    if (!read_length(loop, member, at, length))
        return false;
    const bool is_text = member.kind != Kind::bytes;
    if (!take_block(uint64_t{length} + (is_text ? 1 : 0), length_at))
        return false;
    Piece shown = piece(loop, &member, Part::value, at, at + length);
    const std::string_view text(reinterpret_cast<const char *>(shown.bytes.data()), length);
    if (is_text && text.find('\0') != std::string_view::npos)
        shown.notes.add(Note::zero_byte_in_text);
    if (is_text && !is_utf8(text))
        shown.notes.add(Note::not_utf8);
    at += length;
    return length == 0 || show(shown);
}

bool Walker::walk_message(const Loop &loop, const Member &member, uint32_t &at)
{
    uint32_t length;
    if (!read_length(loop, member, at, length))
        return false;
    Loop inner{member.child, {at, at + length}, loop.depth + 1};
    visitor_.enter(*member.child, path_);
    if (!walk_record(inner))
        return false;
    visitor_.leave();
    at += length;
    return true;
}

Verdict walk(const RecordType &type, Bytes message, Visitor &visitor, const WalkOptions &options)
{
    return Walker(message, visitor, options).run(type);
}

Verdict explain(const Record &record, Bytes message, int32_t result)
{
    if (result == WIRE_OK)
        return {};
    WalkOptions options;
    if (result == WIRE_ERR_NO_MEMORY)
        options.blocks = record.arena().blocks();
    Unseen nobody;
    Verdict verdict = walk(record.type(), message, nobody, options);
    verdict.result = result; // the library's, also where following the message was given up
    return verdict;
}

} // namespace inspect
