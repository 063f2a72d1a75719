// SPDX-License-Identifier: MIT
// Teaches libFuzzer the format: mutations that know fields and nested records, mixed with its own.
#include "tests/fuzz/input.hpp"
#include "tests/fuzz/writer.hpp"

#include <algorithm>
#include <string.h>

extern "C" size_t LLVMFuzzerMutate(uint8_t *data, size_t size, size_t max_size);

namespace fuzz {

namespace {

class Mutator {
public:
    explicit Mutator(Random &random) : random_(random) {}

    void mutate(const Type &type, Bytes &message);

private:
    void change_field(const Type &type, Bytes &message, const Piece &piece);
    void change_content(const Piece &piece, Bytes &message);
    void insert_something(const Type &type, Bytes &message);
    void move_pieces(Bytes &message);
    void change_length(const Piece &piece, Bytes &message);
    void stretch_varint(const Piece &piece, Bytes &message);
    void mutate_blindly(Bytes &bytes);
    uint32_t boundary(const Bytes &message);
    const Piece &any_piece() { return pieces_[random_.below(count())]; }
    uint32_t count() const { return static_cast<uint32_t>(pieces_.size()); }

    Random &random_;
    std::vector<Piece> pieces_;
};

Bytes part(const Bytes &message, uint32_t begin, uint32_t end)
{
    return Bytes(message.data() + begin, message.data() + end);
}

void replace(Bytes &message, uint32_t begin, uint32_t end, const Bytes &by)
{
    const auto at = message.begin() + static_cast<ptrdiff_t>(begin);
    const auto behind = message.erase(at, at + static_cast<ptrdiff_t>(end - begin));
    message.insert(behind, by.begin(), by.end());
}

void Mutator::mutate_blindly(Bytes &bytes)
{
    const size_t size = bytes.size();
    bytes.resize(size + 16);
    bytes.resize(LLVMFuzzerMutate(bytes.data(), size, bytes.size()));
}

// Between two fields, in front of the first or behind the last.
uint32_t Mutator::boundary(const Bytes &message)
{
    const uint32_t index = random_.below(count() + 1);
    return index < count() ? pieces_[index].begin : static_cast<uint32_t>(message.size());
}

void Mutator::mutate(const Type &type, Bytes &message)
{
    split(type, {message.data(), message.size()}, pieces_);
    const uint32_t choice = random_.below(100);
    if (choice < 3) {
        message.clear();
        put_fields(random_, message, type, random_.pick<uint32_t>({20, 60, 100}));
    } else if (choice < 15) {
        mutate_blindly(message);
    } else if (choice < 45 || pieces_.empty()) {
        insert_something(type, message);
    } else if (choice < 60) {
        move_pieces(message);
    } else if (choice < 98) {
        change_field(type, message, any_piece());
    } else {
        message.resize(random_.below(static_cast<uint32_t>(message.size()) + 1));
    }
}

void Mutator::insert_something(const Type &type, Bytes &message)
{
    const uint32_t at = boundary(message);
    const uint32_t target = boundary(message);
    Bytes head = part(message, 0, at);
    const uint32_t choice = random_.below(100);
    if (choice < 65 && !type.fields.empty())
        put_field(random_, head, type.fields[random_.below(uint32_t(type.fields.size()))]);
    else if (choice < 90)
        put_unknown(random_, head, type);
    else
        put_jump(random_, head, type, std::min(target, at));
    replace(message, 0, at, head);
}

// A field goes, comes twice, or stands somewhere else.
void Mutator::move_pieces(Bytes &message)
{
    const Piece piece = any_piece();
    const Bytes bytes = part(message, piece.begin, piece.end);
    const uint32_t to = boundary(message);
    const bool copies = random_.chance(35);
    const bool moves = random_.chance(50);
    if (!copies)
        replace(message, piece.begin, piece.end, {});
    if (copies || moves)
        replace(message, std::min(to, static_cast<uint32_t>(message.size())),
                std::min(to, static_cast<uint32_t>(message.size())), bytes);
}

void Mutator::change_field(const Type &type, Bytes &message, const Piece &chosen)
{
    const Piece piece = chosen; // the list of pieces is used again further down
    const uint32_t choice = random_.below(100);
    if (choice < 10) {
        stretch_varint(piece, message);
    } else if (choice < 18) {
        Bytes tag; // another wire type, or another field
        const uint32_t number = piece.field ? piece.field->number : random_.below(Type::kNumbers);
        put_tag(tag, random_.chance(70) ? number : random_.below(Type::kNumbers), random_.below(8));
        replace(message, piece.begin, piece.after_tag, tag);
    } else if (choice < 28 && piece.wire_type == 2) {
        change_length(piece, message);
    } else if (choice < 36 && piece.field) {
        Bytes field;
        put_field(random_, field, *piece.field);
        replace(message, piece.begin, piece.end, field);
    } else if (piece.wire_type == 2) {
        change_content(piece, message);
    } else if (piece.wire_type == 0) {
        Bytes value;
        put_varint(value, random_.number(64));
        replace(message, piece.after_tag, piece.end, value);
    } else {
        insert_something(type, message);
    }
}

// The length in front follows.
void Mutator::change_content(const Piece &piece, Bytes &message)
{
    Bytes content = part(message, piece.content, piece.end);
    if (piece.field && piece.field->child)
        mutate(*piece.field->child, content);
    else
        mutate_blindly(content);
    Bytes field;
    put_bytes(field, content);
    replace(message, piece.after_tag, piece.end, field);
}

void Mutator::change_length(const Piece &piece, Bytes &message)
{
    const uint32_t length = piece.end - piece.content;
    const auto rest = static_cast<uint32_t>(message.size()) - piece.content;
    Bytes changed;
    put_varint(changed,
               random_.pick<uint32_t>({0, length - 1, length + 1, rest, rest + 1, UINT32_MAX,
                                       UINT32_MAX - piece.content, random_.below(rest + 2),
                                       static_cast<uint32_t>(random_.number(32))}));
    replace(message, piece.after_tag, piece.content, changed);
}

// The same tag, length or value in more bytes than it takes.
void Mutator::stretch_varint(const Piece &piece, Bytes &message)
{
    const bool is_tag = random_.chance(50) || piece.wire_type == 1 || piece.wire_type == 5;
    uint32_t position = is_tag ? piece.begin : piece.after_tag;
    const uint32_t begin = position;
    uint64_t value = 0;
    if (!read_varint({message.data(), message.size()}, position, value))
        return;
    Bytes stretched;
    put_varint(stretched, value, position - begin + 1 + random_.below(10));
    if (random_.chance(30)) // bits that nobody reads
        stretched.back() = random_.byte() & 0x7F;
    replace(message, begin, position, stretched);
}

void change_header(Random &random, uint8_t *header)
{
    switch (random.below(6)) {
    case 0: {
        const uint32_t type = random.below(type_count());
        header[Input::kTypeLow] = static_cast<uint8_t>(type);
        header[Input::kTypeHigh] = static_cast<uint8_t>(type >> 8);
        break;
    }
    case 1:
        header[Input::kFlags] ^= random.chance(80) ? 1 : random.byte();
        break;
    case 2:
        header[Input::kFailure] = random.pick<uint8_t>(
            {FailurePlan::kNever, FailurePlan::kNever, FailurePlan::kNoCallback,
             static_cast<uint8_t>(1 + random.below(12)), random.byte()});
        break;
    case 3:
        header[Input::kCapacityLow] = random.byte();
        header[Input::kCapacityHigh] = random.chance(70) ? 0 : random.byte() & 0x1F;
        break;
    case 4:
        header[Input::kSegments] = random.chance(70) ? random.byte() & 0x0F : random.byte();
        break;
    default:
        header[Input::kChoice] ^= static_cast<uint8_t>(1U << random.below(8));
        break;
    }
}

size_t write_back(const Bytes &message, uint8_t *data, size_t max_size)
{
    const size_t size = std::min(message.size(), max_size - Input::kHeader);
    std::copy_n(message.begin(), size, data + Input::kHeader);
    return Input::kHeader + size;
}

const Type &type_of(const uint8_t *data)
{
    const uint32_t index = data[Input::kTypeLow] | static_cast<uint32_t>(data[Input::kTypeHigh])
                                                       << 8;
    return type_at(index % type_count());
}

} // namespace

} // namespace fuzz

using namespace fuzz;

// These two names are libFuzzer's.
extern "C" size_t LLVMFuzzerCustomMutator(uint8_t *data, size_t size, size_t max_size,
                                          unsigned int seed)
{
    if (max_size < Input::kHeader)
        return size;
    Random random(seed);
    if (size < Input::kHeader) {
        memset(data + size, 0, Input::kHeader - size);
        size = Input::kHeader;
        change_header(random, data);
    }
    if (random.chance(12)) {
        change_header(random, data);
        return size;
    }
    Bytes message(data + Input::kHeader, data + size);
    Mutator mutator(random);
    for (uint32_t rounds = random.chance(70) ? 1 : 2 + random.below(3); rounds > 0; rounds--)
        mutator.mutate(type_of(data), message);
    return write_back(message, data, max_size);
}

// The fields of one input up to a place, and those of another from a place on.
extern "C" size_t LLVMFuzzerCustomCrossOver(const uint8_t *left, size_t left_size,
                                            const uint8_t *right, size_t right_size, uint8_t *out,
                                            size_t max_size, unsigned int seed)
{
    if (left_size < Input::kHeader || right_size < Input::kHeader || max_size < Input::kHeader)
        return 0;
    Random random(seed);
    const Type &type = type_of(left);
    Bytes message(left + Input::kHeader, left + left_size);
    const Span other{right + Input::kHeader, right_size - Input::kHeader};
    std::vector<Piece> pieces;
    split(type, {message.data(), message.size()}, pieces);
    if (!pieces.empty())
        message.resize(pieces[random.below(uint32_t(pieces.size()))].end);
    split(type, other, pieces);
    if (!pieces.empty()) {
        const uint32_t from = pieces[random.below(uint32_t(pieces.size()))].begin;
        message.insert(message.end(), other.data + from, other.data + other.size);
    }
    std::copy_n(left, Input::kHeader, out);
    return write_back(message, out, max_size);
}
