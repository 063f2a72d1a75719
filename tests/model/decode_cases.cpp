// SPDX-License-Identifier: MIT
// Decoding one input with every kind of allocation callback, then copying and releasing the result.

#include "tests/model/cases.hpp"
#include "tests/model/compare.hpp"

#include <algorithm>
#include <cstring>
#include <memory>

namespace model {

namespace {

constexpr size_t kLongestInput = 50000;

// Counting steps takes time that grows with the square of the length and more.
constexpr size_t kLongestCounted = 64;

// Blocks as many as anybody likes.
class ScratchMemory {
public:
    uint8_t *take(uint32_t size)
    {
        blocks_.push_back(std::make_unique<uint8_t[]>(size));
        return blocks_.back().get();
    }

    static void *allocate(uint32_t size, void *context)
    {
        return static_cast<ScratchMemory *>(context)->take(size);
    }

private:
    std::vector<std::unique_ptr<uint8_t[]>> blocks_;
};

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
    const uint32_t calls = check_decode(type, input, {true, kNever, false}, flags);
    const Sightings seen = model_codec_.last_decode();
    if (seen.went_back && seen.reason != Reason::no_block && input.size() <= kLongestCounted)
        confirm_by_counting(type, input, flags);
    if (seen.asked_for_nothing)
        check_decode(type, input, {true, kNever, true}, flags);
    check_decode(type, input, {false, kNever, false}, flags);
    for (uint32_t i = 0; i < std::min(calls, kFailures); ++i)
        check_decode(type, input,
                     {true, calls > kFailures ? random_.below(calls) : i, random_.chance(50)},
                     flags);
}

// Whether a message ends must come out the same when it is told by another proof.
void Cases::confirm_by_counting(const RecordType &type, const Bytes &input, uint32_t flags)
{
    const bool endless = model_codec_.last_decode().endless;
    ScratchMemory memory;
    uint8_t *record = memory.take(type.size);
    model_codec_.set_patience({Proof::more_steps_than_states, 0});
    model_codec_.decode(
        type, record,
        {input.data(), uint32_t(input.size()), &ScratchMemory::allocate, &memory, flags});
    if (model_codec_.last_decode().endless != endless)
        require("model: said to be " + std::string(endless ? "endless" : "ending") +
                " when states are compared, not so when steps are counted, input " +
                hex(input.data(), input.size()));
    tally_.count_confirmed(endless);
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
        model_codec_.set_patience({Proof::state_seen_again, library_.allocator.count()});
        results[side_index++] = side->codec.decode(type, of_side, arguments);
    }
    tally_.count_decode(results[1], model_codec_.last_decode());
    require_same_outcome(results[0], results[1]);
    const uint32_t calls = model_.allocator.count();
    if (random_.chance(15))
        duplicate_in_every_way(type, record);
    try_release(type, record, flags);
    rewind(mark);
    return calls;
}

void Cases::require_same_outcome(int32_t of_library, int32_t of_model)
{
    ++comparisons_;
    if (model_codec_.last_decode().endless && of_library == kMalformed) {
        require_stand_on_the_way();
        return;
    }
    require_result(of_library, of_model);
    require(compare_allocations(library_, model_));
    require(compare_memory(library_, model_));
}

// When to give up a message that never ends is left to the library. What it leaves behind must be
// what a plain loop has in its hands at one of the tags on its way, down to the last byte. The
// model has gone on until it had asked for more blocks than the library; it is set back to that
// point.
void Cases::require_stand_on_the_way()
{
    model_.allocator.forget_all_but(library_.allocator.count());
    require(compare_allocations(library_, model_));
    model_.memory.rewind(library_.memory.mark());
    const Loop &loop = model_codec_.last_decode().loop;
    for (const Stand &stand : loop.stands) {
        if (stand.calls != library_.allocator.count())
            continue;
        if (!stand.image.empty())
            std::memcpy(loop.record, stand.image.data(), stand.image.size());
        if (same_memory(library_, model_))
            return;
    }
    require("given up at a point that is not on the way of a plain loop: " +
            compare_memory(library_, model_));
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
    const Roughness rough = random_roughness(random_);
    // Few types embed others, and going round through an embedded record is a matter of its own.
    const bool embeds =
        std::any_of(type.members.begin(), type.members.end(),
                    [](const Member &member) { return member.kind == Kind::record; });
    const uint32_t rounds = embeds ? 60 : 15;
    Bytes input;
    if (random_.chance(20))
        input = encoded_record(type);
    else if (random_.chance(rounds))
        input = random_round(random_, type, rough);
    else
        input = random_wire(random_, type, rough);
    if (random_.chance(25))
        mutate(random_, input);
    input.resize(std::min(input.size(), kLongestInput));
    return input;
}

} // namespace model
