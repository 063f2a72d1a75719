// SPDX-License-Identifier: MIT
#include "tools/core/record.hpp"

#include <algorithm>
#include <cstring>
#include <new>

namespace inspect {

namespace {

constexpr size_t kChunk = size_t{64} << 10;
constexpr size_t kAlignment = 8;
constexpr size_t kHereIndex = static_cast<size_t>(kHere);

template <typename Value>
Value load(const std::byte *at)
{
    Value value;
    std::memcpy(&value, at, sizeof value);
    return value;
}

template <typename Value>
void store(std::byte *at, Value value)
{
    std::memcpy(at, &value, sizeof value);
}

} // namespace

void *Arena::take(size_t size)
{
    const size_t rounded = (std::max<size_t>(size, 1) + kAlignment - 1) / kAlignment * kAlignment;
    if (rounded < size || rounded > limit_ - used_)
        return nullptr;
    if (rounded > left_) {
        const size_t chunk = std::max(rounded, kChunk);
        std::unique_ptr<std::byte[]> fresh(new (std::nothrow) std::byte[chunk]);
        if (!fresh)
            return nullptr;
        chunks_.push_back(std::move(fresh));
        // A large block has a chunk of its own; the rest of the last chunk stays in use.
        if (chunk > kChunk) {
            used_ += rounded;
            blocks_++;
            return chunks_.back().get();
        }
        free_ = chunks_.back().get();
        left_ = chunk;
    }
    void *const block = free_;
    free_ += rounded;
    left_ -= rounded;
    used_ += rounded;
    blocks_++;
    return block;
}

void *Arena::callback(uint32_t size, void *arena)
{
    return static_cast<Arena *>(arena)->take(size);
}

const std::byte *RecordView::place(const Member &member) const
{
    return at_ + member.offsets[kHereIndex];
}

bool RecordView::has(const Member &member) const
{
    const auto flags = load<uint8_t>(at_ + type_->flags[kHereIndex] + member.bit / 8);
    return (flags >> member.bit % 8 & 1) != 0;
}

bool RecordView::is_written(const Member &member) const
{
    return has(member) || (member.kind == Kind::message && child(member).has_content());
}

bool RecordView::has_content() const
{
    return std::ranges::any_of(type_->members,
                               [this](const Member &member) { return is_written(member); });
}

uint64_t RecordView::number(const Member &member) const
{
    switch (member.kind) {
    case Kind::uint32:
        return load<uint32_t>(place(member));
    case Kind::uint64:
        return load<uint64_t>(place(member));
    default:
        return load<uint8_t>(place(member));
    }
}

const char *RecordView::text(const Member &member) const
{
    return load<const char *>(place(member));
}

Bytes RecordView::bytes(const Member &member) const
{
    const auto *data = load<const uint8_t *>(place(member));
    return {data, data ? count(member) : 0};
}

RecordView RecordView::child(const Member &member) const
{
    return {*member.child, place(member)};
}

uint32_t RecordView::count(const Member &member) const
{
    return load<uint32_t>(place(member) + sizeof(void *));
}

uint32_t RecordView::number_at(const Member &member, uint32_t index) const
{
    return load<const uint32_t *>(place(member))[index];
}

const char *RecordView::text_at(const Member &member, uint32_t index) const
{
    return load<const char *const *>(place(member))[index];
}

RecordView RecordView::element(const Member &member, uint32_t index) const
{
    return {*member.child,
            load<const std::byte *>(place(member)) + size_t{index} * member.child->size_here()};
}

std::byte *RecordEditor::place(const Member &member) const
{
    return at_ + member.offsets[kHereIndex];
}

void RecordEditor::set_flag(const Member &member)
{
    at_[type_->flags[kHereIndex] + member.bit / 8] |= std::byte{1} << member.bit % 8;
}

void RecordEditor::set_number(const Member &member, uint64_t value)
{
    switch (member.kind) {
    case Kind::uint32:
        store(place(member), static_cast<uint32_t>(value));
        break;
    case Kind::uint64:
        store(place(member), value);
        break;
    default:
        store(place(member), static_cast<uint8_t>(value));
    }
    set_flag(member);
}

void RecordEditor::set_text(const Member &member, const char *text)
{
    store(place(member), text);
    set_flag(member);
}

void RecordEditor::set_bytes(const Member &member, const uint8_t *data, uint32_t length)
{
    set_list(member, data, length);
}

void RecordEditor::set_list(const Member &member, const void *elements, uint32_t count)
{
    store(place(member), elements);
    store(place(member) + sizeof(void *), count);
    set_flag(member);
}

RecordEditor RecordEditor::set_child(const Member &member)
{
    set_flag(member);
    return {*member.child, place(member)};
}

Record::Record(const RecordType &type, size_t memory_limit)
    : type_(&type), memory_limit_(memory_limit)
{
    decode({});
}

int32_t Record::decode(Bytes input, uint32_t flags)
{
    arena_ = std::make_unique<Arena>(memory_limit_);
    storage_ = std::make_unique<std::byte[]>(std::max<size_t>(type_->size_here(), 1));
    return type_->operations.decode(storage_.get(), input.data(),
                                    static_cast<uint32_t>(input.size()), &Arena::callback,
                                    arena_.get(), flags);
}

std::vector<uint8_t> Record::encode() const
{
    const uint32_t length =
        type_->operations.encode(storage_.get(), nullptr, 0, nullptr, nullptr, 0);
    std::vector<uint8_t> out(length);
    type_->operations.encode(storage_.get(), out.data(), length, nullptr, nullptr, 0);
    return out;
}

} // namespace inspect
