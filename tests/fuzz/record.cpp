// SPDX-License-Identifier: MIT
#include "tests/fuzz/record.hpp"

#include "tests/catalogue/memory.hpp"
#include "tests/fuzz/require.hpp"

#include <string.h>

namespace fuzz {

namespace {

using catalogue::load;
using catalogue::store;

// The structure as release has to leave it: numbers and flags stay, and so do the lengths of byte
// strings and the counts of lists of numbers.
void expect_release(const Type &type, uint8_t *image, bool in_place)
{
    for (const Field &field : type.fields) {
        if (catalogue::is_scalar(field.kind) || (field.kind == Kind::bytes && in_place))
            continue;
        if (field.kind == Kind::message) {
            expect_release(*field.child, image + field.offset, in_place);
            continue;
        }
        const bool attached = load<const void *>(image, field.offset);
        store<const void *>(image, field.offset, nullptr);
        if (attached &&
            (field.kind == Kind::repeated_message || field.kind == Kind::repeated_string))
            store<uint32_t>(image, field.count_offset, 0);
    }
}

} // namespace

bool is_padding(const Type &type, const uint8_t *record, uint8_t fill)
{
    const uint8_t *const owned = type.owned.data();
    uint32_t differences = 0;
    for (uint32_t i = 0; i < type.size; i++)
        differences |= static_cast<uint32_t>(record[i] ^ fill) & ~owned[i] & 0xFFU;
    return differences == 0;
}

void Record::begin(const Type &type, FailurePlan plan, uint8_t fill)
{
    type_ = &type;
    storage_ = arena().take(type.size);
    memset(storage_, fill, type.size);
    blocks_.begin(plan);
    flags_ = 0;
    fill_ = fill;
}

int32_t Record::decode(Span message, uint32_t flags)
{
    message_ = message;
    flags_ = flags;
    const int32_t result = type_->operations->decode(
        data(), message.data, static_cast<uint32_t>(message.size), callback(), &blocks_, flags);
    TARN_FUZZ_REQUIRE(result <= WIRE_OK && result >= WIRE_ERR_NO_MEMORY);
    // Decoding ends with the first error, and only memory can be the reason for this one.
    TARN_FUZZ_REQUIRE(blocks_.requests_after_refusal() == 0);
    if (blocks_.has_callback())
        TARN_FUZZ_REQUIRE(blocks_.has_refused() == (result == WIRE_ERR_NO_MEMORY));
    require_padding();
    return result;
}

int32_t Record::copy(const Record &original)
{
    message_ = {};
    flags_ = 0;
    const int32_t result =
        type_->operations->duplicate(data(), original.data(), callback(), &blocks_);
    TARN_FUZZ_REQUIRE(result == WIRE_OK || result == WIRE_ERR_NO_MEMORY);
    if (blocks_.has_callback())
        TARN_FUZZ_REQUIRE(blocks_.has_refused() == (result == WIRE_ERR_NO_MEMORY));
    require_padding();
    return result;
}

void Record::release()
{
    static Bytes expected;
    expected.assign(storage_, storage_ + type_->size);
    expect_release(*type_, expected.data(), in_place());

    // Without blocks nobody may call back.
    const uint32_t attached = blocks_.seen();
    const wire_free_fn free_fn = attached ? Blocks::release : nullptr;
    type_->operations->release(data(), free_fn, &blocks_, flags_);
    TARN_FUZZ_REQUIRE(blocks_.returned() == attached);
    TARN_FUZZ_REQUIRE(equal({storage_, type_->size}, {expected.data(), expected.size()}));

    type_->operations->release(data(), nullptr, &blocks_, flags_);
    TARN_FUZZ_REQUIRE(equal({storage_, type_->size}, {expected.data(), expected.size()}));
    TARN_FUZZ_REQUIRE(is_intact_behind(storage_, type_->size));
}

void Record::require_padding() const
{
    TARN_FUZZ_REQUIRE(is_padding(*type_, storage_, fill_));
}

uint32_t measure(const Record &record, uint32_t flags)
{
    return record.type().operations->encode(record.data(), nullptr, 0, nullptr, nullptr, flags);
}

Span encode(const Record &record)
{
    const uint32_t length = measure(record, 0);
    uint8_t *buffer = arena().take(length);
    const uint32_t written =
        record.type().operations->encode(record.data(), buffer, length, nullptr, nullptr, 0);
    TARN_FUZZ_REQUIRE(written == length);
    TARN_FUZZ_REQUIRE(is_intact_behind(buffer, length));
    return {buffer, length};
}

bool equal(Span left, Span right)
{
    return left.size == right.size &&
           (left.size == 0 || memcmp(left.data, right.data, left.size) == 0);
}

Span exact_copy(Span bytes)
{
    uint8_t *copy = arena().take(bytes.size);
    if (bytes.size)
        memcpy(copy, bytes.data, bytes.size);
    return {copy, bytes.size};
}

} // namespace fuzz
