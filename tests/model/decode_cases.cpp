// SPDX-License-Identifier: MIT
// Decoding one input with every kind of allocation callback, then copying and releasing the result.

#include "tests/model/cases.hpp"
#include "tests/model/compare.hpp"

#include <algorithm>
#include <cstring>
#include <set>

namespace model {

namespace {

constexpr size_t kLongestInput = 50000;

} // namespace

void Cases::decode_case(const RecordType &type)
{
    const Bytes input = some_input(type);
    if (verbose)
        std::printf("input %s\n", hex(input.data(), input.size()).c_str());
    for (uint32_t in_place = 0; in_place < 2; ++in_place)
        decode_in_every_way(type, input, (random_flags() & ~kBytesInPlace) | in_place);
}

void Cases::decode_in_every_way(const RecordType &type, const Bytes &input, uint32_t flags)
{
    const uint32_t calls = check_decode(type, input, {true, kNever, random_.chance(50)}, flags);
    check_decode(type, input, {false, kNever, false}, flags);
    for (uint32_t i = 0; i < std::min(calls, 12u); ++i)
        check_decode(type, input, {true, calls > 12 ? random_.below(calls) : i, random_.chance(50)},
                     flags);
}

uint32_t Cases::check_decode(const RecordType &type, const Bytes &input,
                             const Allocation &allocation, uint32_t flags)
{
    const Random before = random_;
    try {
        return try_decode(type, input, allocation, flags);
    } catch (Difference &) {
        random_ = before;
        const Bytes shortest = shrink(type, input, allocation, flags);
        try {
            random_ = before;
            try_decode(type, shortest, allocation, flags);
        } catch (Difference &difference) {
            difference.text += "\ninput (" + std::to_string(shortest.size()) +
                               " bytes): " + hex(shortest.data(), shortest.size());
            throw;
        }
        throw;
    }
}

// Leaves out bytes as long as the sides still differ.
Bytes Cases::shrink(const RecordType &type, Bytes input, const Allocation &allocation,
                    uint32_t flags)
{
    const Random before = random_;
    for (size_t part = std::max<size_t>(input.size() / 2, 1); part > 0; part /= 2) {
        for (size_t at = 0; at + part <= input.size();) {
            Bytes shorter = input;
            const auto from = shorter.begin() + std::ptrdiff_t(at);
            shorter.erase(from, from + std::ptrdiff_t(part));
            bool differs = false;
            try {
                random_ = before;
                rewind({0, 0, 0});
                try_decode(type, shorter, allocation, flags);
            } catch (Difference &) {
                differs = true;
            }
            if (differs)
                input = shorter;
            else
                at += part;
        }
    }
    rewind({0, 0, 0});
    return input;
}

uint32_t Cases::try_decode(const RecordType &type, const Bytes &input, const Allocation &allocation,
                           uint32_t flags)
{
    const Mark mark = library_.memory.mark();
    const auto length = uint32_t(input.size());
    const bool no_input = length == 0 && random_.chance(50);
    prepare(allocation);
    set_step("decode %s, allocation callback %d, failing at %d, no bytes %s, flags %#x",
             type.name.c_str(), allocation.callback, int(allocation.fail_at),
             allocation.empty_is_null ? "null" : "not null", flags);
    const Twin record = storage(type);
    int32_t results[2];
    int side_index = 0;
    for (Side *side : {&library_, &model_}) {
        DecodeArguments arguments = {nullptr, length, nullptr, &side->allocator, flags};
        if (!no_input) {
            uint8_t *copy = side->memory.take(length, "input");
            if (length)
                std::memcpy(copy, input.data(), length);
            arguments.input = copy;
        }
        if (allocation.callback)
            arguments.allocate = &Allocator::allocate;
        uint8_t *of_side = side == &library_ ? record.library : record.model;
        results[side_index++] = side->codec.decode(type, of_side, arguments);
    }
    const auto calls = uint32_t(model_.allocator.calls().size());
    tally_.count(results[1], model_codec_.last_decode());
    if (model_codec_.last_decode().endless) {
        check_endless(type, record, results[0], flags);
    } else {
        require_result(results[0], results[1]);
        require(compare_allocations(library_, model_));
        require(compare_memory(library_, model_));
        ++comparisons_;
        if (random_.chance(15))
            duplicate_in_every_way(type, record);
        try_release(type, record, flags);
    }
    rewind(mark);
    return calls;
}

// Of a decode that would never end only the result is settled, and that it can be released.
void Cases::check_endless(const RecordType &type, const Twin &record, int32_t of_library,
                          uint32_t flags)
{
    ++comparisons_;
    if (of_library != kNoMemory || !library_.allocator.has_failed())
        require_result(of_library, kMalformed);
    std::set<void *> blocks;
    for (const Allocator::Call &call : library_.allocator.calls())
        blocks.insert(call.block);
    library_.freed.blocks.clear();
    library_.codec.release(type, record.library, &FreeLog::release, &library_.freed, flags);
    for (void *block : library_.freed.blocks)
        if (!block || blocks.erase(block) == 0)
            require("released after an endless input: a block that was not given, or one twice");
}

// What the model writes of a random record.
Bytes Cases::encoded_record(const RecordType &type)
{
    const Mark mark = model_.memory.mark();
    const uint8_t *record = RecordBuilder(random_, model_.memory, Purpose::encode).build(type);
    const uint32_t length = model_codec_.encode(type, record, {nullptr, 0, nullptr, nullptr, 0});
    Bytes bytes(length <= kLongestInput ? length : 0);
    model_codec_.encode(type, record, {bytes.data(), uint32_t(bytes.size()), nullptr, nullptr, 0});
    model_.memory.rewind(mark);
    return bytes;
}

Bytes Cases::some_input(const RecordType &type)
{
    Bytes input = random_.chance(20) ? encoded_record(type)
                                     : random_wire(random_, type, random_roughness(random_));
    if (random_.chance(25))
        mutate(random_, input);
    input.resize(std::min(input.size(), kLongestInput));
    return input;
}

} // namespace model
