// SPDX-License-Identifier: MIT
#include "tests/fuzz/soundness.hpp"

#include "tests/catalogue/memory.hpp"
#include "tests/fuzz/require.hpp"

#include <algorithm>
#include <string.h>

namespace fuzz {

namespace {

using catalogue::load;

// How far decoding has come with a record.
enum class Progress {
    untouched, // has its defaults
    complete,
    stopped, // perhaps in the middle of one member
};

class Walk {
public:
    explicit Walk(Record &record) : record_(record) {}

    void visit(const Type &type, const uint8_t *data, Progress progress);

private:
    // These answer whether the member holds anything.
    bool visit_member(const Field &field, const uint8_t *data, bool flagged, Progress progress);
    bool visit_bytes(const Field &field, const uint8_t *data);
    bool visit_text(const void *text);
    bool visit_list(const Field &field, const uint8_t *data, bool flagged);
    void visit_texts(const uint8_t *array, uint32_t count, bool flagged);
    void visit_records(const Type &type, const uint8_t *array, uint32_t count, bool flagged);

    Record &record_;
};

uint64_t scalar(const Field &field, const uint8_t *data)
{
    switch (field.kind) {
    case Kind::uint32:
        return load<uint32_t>(data, field.offset);
    case Kind::uint64:
        return load<uint64_t>(data, field.offset);
    default:
        return load<uint8_t>(data, field.offset);
    }
}

bool is_zero(const uint8_t *data, uint32_t size)
{
    return std::all_of(data, data + size, [](uint8_t byte) { return byte == 0; });
}

void Walk::visit(const Type &type, const uint8_t *data, Progress progress)
{
    uint32_t unfinished = 0;
    for (const Field &field : type.fields) {
        const bool flagged = data[field.flag_offset] & field.flag_mask;
        TARN_FUZZ_REQUIRE(!flagged || progress != Progress::untouched);
        if (catalogue::is_scalar(field.kind)) {
            TARN_FUZZ_REQUIRE(flagged || scalar(field, data) == field.default_value);
            TARN_FUZZ_REQUIRE(field.kind != Kind::boolean || scalar(field, data) <= 1);
            continue;
        }
        const bool holds = visit_member(field, data, flagged, progress);
        TARN_FUZZ_REQUIRE(holds || !flagged);
        unfinished += holds && !flagged;
    }
    TARN_FUZZ_REQUIRE(unfinished <= (progress == Progress::stopped));
}

bool Walk::visit_member(const Field &field, const uint8_t *data, bool flagged, Progress progress)
{
    switch (field.kind) {
    case Kind::string:
        return visit_text(load<const void *>(data, field.offset));
    case Kind::bytes:
        return visit_bytes(field, data);
    case Kind::message:
        // One that came before may have been begun a second time.
        visit(*field.child, data + field.offset,
              progress == Progress::complete && !flagged ? Progress::untouched : progress);
        return flagged;
    default:
        return visit_list(field, data, flagged);
    }
}

bool Walk::visit_text(const void *text)
{
    if (!text)
        return false;
    const Block &block = record_.blocks().find_once(text);
    TARN_FUZZ_REQUIRE(block.size >= 1);
    TARN_FUZZ_REQUIRE(block.data[block.size - 1] == 0);
    return true;
}

bool Walk::visit_bytes(const Field &field, const uint8_t *data)
{
    const uint8_t *bytes = load<const uint8_t *>(data, field.offset);
    const uint32_t length = load<uint32_t>(data, field.count_offset);
    if (!bytes) {
        TARN_FUZZ_REQUIRE(length == 0);
        return false;
    }
    if (!record_.in_place()) {
        TARN_FUZZ_REQUIRE(record_.blocks().find_once(bytes).size == length);
        return true;
    }
    const Span message = record_.message();
    TARN_FUZZ_REQUIRE(bytes >= message.data && bytes <= message.data + message.size);
    TARN_FUZZ_REQUIRE(length <= static_cast<size_t>(message.data + message.size - bytes));
    return true;
}

bool Walk::visit_list(const Field &field, const uint8_t *data, bool flagged)
{
    const uint8_t *array = load<const uint8_t *>(data, field.offset);
    const uint32_t count = load<uint32_t>(data, field.count_offset);
    if (!array) {
        TARN_FUZZ_REQUIRE(count == 0);
        return false;
    }
    TARN_FUZZ_REQUIRE(count > 0);
    const uint64_t size = uint64_t{count} * field.element_size;
    TARN_FUZZ_REQUIRE(record_.blocks().find_once(array).size == size);
    if (field.kind == Kind::repeated_string)
        visit_texts(array, count, flagged);
    else if (field.kind == Kind::repeated_message)
        visit_records(*field.child, array, count, flagged);
    return true;
}

// Behind the element with which decoding stopped the array is as it was cleared.
void Walk::visit_texts(const uint8_t *array, uint32_t count, bool flagged)
{
    bool ended = false;
    for (uint32_t i = 0; i < count; i++) {
        const bool holds = visit_text(load<const void *>(array, i * sizeof(char *)));
        TARN_FUZZ_REQUIRE(!(holds && ended));
        ended |= !holds;
    }
    TARN_FUZZ_REQUIRE(!(ended && flagged));
}

void Walk::visit_records(const Type &type, const uint8_t *array, uint32_t count, bool flagged)
{
    for (uint32_t i = 0; i < count; i++, array += type.size) {
        TARN_FUZZ_REQUIRE(is_padding(type, array, 0));
        if (flagged)
            visit(type, array, Progress::complete);
        else if (!is_zero(array, type.size))
            visit(type, array, Progress::stopped);
    }
}

// Comparing two records member by member.
void require_same(const Type &type, const uint8_t *left, const uint8_t *right);

void require_same_list(const Field &field, const uint8_t *left, const uint8_t *right,
                       uint32_t count)
{
    if (field.kind == Kind::repeated_uint32 || field.kind == Kind::bytes) {
        TARN_FUZZ_REQUIRE(!count || !memcmp(left, right, size_t{count} * field.element_size));
        return;
    }
    for (uint32_t i = 0; i < count; i++) {
        const size_t offset = size_t{i} * field.element_size;
        if (field.kind == Kind::repeated_message)
            require_same(*field.child, left + offset, right + offset);
        else
            TARN_FUZZ_REQUIRE(
                !strcmp(load<const char *>(left, offset), load<const char *>(right, offset)));
    }
}

void require_same_member(const Field &field, const uint8_t *left, const uint8_t *right)
{
    if (catalogue::is_scalar(field.kind)) {
        TARN_FUZZ_REQUIRE(scalar(field, left) == scalar(field, right));
        return;
    }
    if (field.kind == Kind::message) {
        require_same(*field.child, left + field.offset, right + field.offset);
        return;
    }
    const uint8_t *from_left = load<const uint8_t *>(left, field.offset);
    const uint8_t *from_right = load<const uint8_t *>(right, field.offset);
    TARN_FUZZ_REQUIRE(!from_left == !from_right);
    if (!from_left)
        return;
    if (field.kind == Kind::string) {
        TARN_FUZZ_REQUIRE(!strcmp(reinterpret_cast<const char *>(from_left),
                                  reinterpret_cast<const char *>(from_right)));
        return;
    }
    const uint32_t count = load<uint32_t>(left, field.count_offset);
    TARN_FUZZ_REQUIRE(count == load<uint32_t>(right, field.count_offset));
    require_same_list(field, from_left, from_right, count);
}

void require_same(const Type &type, const uint8_t *left, const uint8_t *right)
{
    for (const Field &field : type.fields) {
        TARN_FUZZ_REQUIRE(
            ((left[field.flag_offset] ^ right[field.flag_offset]) & field.flag_mask) == 0);
        require_same_member(field, left, right);
    }
}

} // namespace

void require_sound(Record &record, int32_t result)
{
    const Progress progress = result == WIRE_OK ? Progress::complete : Progress::stopped;
    Walk(record).visit(record.type(), record.data(), progress);
    if (record.blocks().held() != record.blocks().seen()) {
        TARN_FUZZ_REQUIRE(record.type().replaces_blocks);
        TARN_FUZZ_REQUIRE(may_replace_blocks(record.type(), record.message()));
    }
}

void require_same(const Record &left, const Record &right)
{
    require_same(left.type(), left.data(), right.data());
}

} // namespace fuzz
