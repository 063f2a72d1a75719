// SPDX-License-Identifier: MIT
// Whether a copy is one.
#include "tests/fuzz/soundness.hpp"

#include "tests/catalogue/memory.hpp"
#include "tests/fuzz/poison.hpp"
#include "tests/fuzz/require.hpp"

#include <string.h>

namespace fuzz {

namespace {

using catalogue::load;

class Comparison {
public:
    explicit Comparison(Blocks &blocks) : blocks_(blocks) {}

    void visit(const Type &type, const uint8_t *copy, const uint8_t *original);
    uint32_t gaps() const { return gaps_; }

private:
    // These answer whether the member is there as in the original; else it is empty.
    bool visit_member(const Field &field, const uint8_t *copy, const uint8_t *original);
    bool visit_text(const char *copy, const char *original);
    bool visit_array(const Field &field, const uint8_t *copy, const uint8_t *original);
    void visit_elements(const Field &field, const uint8_t *copy, const uint8_t *original,
                        uint32_t count);

    Blocks &blocks_;
    uint32_t gaps_ = 0;
};

uint32_t width_of(Kind kind)
{
    return kind == Kind::uint32 ? 4 : kind == Kind::uint64 ? 8 : 1;
}

void Comparison::visit(const Type &type, const uint8_t *copy, const uint8_t *original)
{
    for (const Field &field : type.fields) {
        const bool flagged = copy[field.flag_offset] & field.flag_mask;
        const bool wanted = original[field.flag_offset] & field.flag_mask;
        const bool is_there = visit_member(field, copy, original);
        TARN_FUZZ_REQUIRE(flagged == (wanted && is_there));
        gaps_ += !is_there;
    }
}

bool Comparison::visit_member(const Field &field, const uint8_t *copy, const uint8_t *original)
{
    switch (field.kind) {
    case Kind::uint32:
    case Kind::uint64:
    case Kind::boolean:
        TARN_FUZZ_REQUIRE(
            !memcmp(copy + field.offset, original + field.offset, width_of(field.kind)));
        return true;
    case Kind::message:
        visit(*field.child, copy + field.offset, original + field.offset);
        return true;
    case Kind::string:
        return visit_text(load<const char *>(copy, field.offset),
                          load<const char *>(original, field.offset));
    default:
        return visit_array(field, copy, original);
    }
}

bool Comparison::visit_text(const char *copy, const char *original)
{
    TARN_FUZZ_REQUIRE(original || !copy);
    if (!copy)
        return !original;
    TARN_FUZZ_REQUIRE(blocks_.find_once(copy).size == strlen(original) + 1);
    TARN_FUZZ_REQUIRE(!strcmp(copy, original));
    return true;
}

bool Comparison::visit_array(const Field &field, const uint8_t *copy, const uint8_t *original)
{
    const uint8_t *copied = load<const uint8_t *>(copy, field.offset);
    const uint32_t count = load<uint32_t>(copy, field.count_offset);
    const uint32_t wanted = load<uint32_t>(original, field.count_offset);
    if (!copied) {
        TARN_FUZZ_REQUIRE(count == 0);
        return wanted == 0;
    }
    TARN_FUZZ_REQUIRE(count == wanted && count > 0);
    TARN_FUZZ_REQUIRE(blocks_.find_once(copied).size == uint64_t{count} * field.element_size);
    visit_elements(field, copied, load<const uint8_t *>(original, field.offset), count);
    return true;
}

void Comparison::visit_elements(const Field &field, const uint8_t *copy, const uint8_t *original,
                                uint32_t count)
{
    if (field.kind == Kind::bytes || field.kind == Kind::repeated_uint32) {
        TARN_FUZZ_REQUIRE(!memcmp(copy, original, size_t{count} * field.element_size));
        return;
    }
    for (uint32_t i = 0; i < count; i++) {
        const size_t offset = size_t{i} * field.element_size;
        if (field.kind == Kind::repeated_message) {
            // Copied with the array: decoding had cleared it.
            TARN_FUZZ_REQUIRE(is_padding(*field.child, copy + offset, 0));
            visit(*field.child, copy + offset, original + offset);
        } else {
            gaps_ +=
                !visit_text(load<const char *>(copy, offset), load<const char *>(original, offset));
        }
    }
}

} // namespace

void require_copy(Record &copy, const Record &original, int32_t result)
{
    Comparison comparison(copy.blocks());
    comparison.visit(copy.type(), copy.data(), original.data());
    TARN_FUZZ_REQUIRE((comparison.gaps() > 0) == (result != WIRE_OK));
    TARN_FUZZ_REQUIRE(copy.blocks().held() == copy.blocks().seen());
}

} // namespace fuzz
