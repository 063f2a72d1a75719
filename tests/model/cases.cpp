// SPDX-License-Identifier: MIT
// What all cases share, and the cases of duplication and release.

#include "tests/model/cases.hpp"
#include "tests/model/compare.hpp"

#include <algorithm>
#include <cstdarg>
#include <cstdio>

namespace model {

void Cases::run(const RecordType &type, uint64_t seed)
{
    random_ = Random(seed);
    rewind({0, 0, 0});
    library_.memory.pattern = random_.pick<uint8_t>({0x00, 0xFF, 0xA5, 0x5A, 0x81});
    model_.memory.pattern = library_.memory.pattern;
    library_.memory.guard_in_front = random_.chance(50);
    model_.memory.guard_in_front = library_.memory.guard_in_front;
    const uint32_t which = random_.below(100);
    if (which < 30)
        encode_case(type);
    else if (which < 80)
        decode_case(type);
    else if (which < 92)
        duplicate_case(type);
    else
        release_case(type);
}

void Cases::duplicate_case(const RecordType &type)
{
    const Twin from = build(type, Purpose::duplicate);
    duplicate_in_every_way(type, from);
}

void Cases::duplicate_in_every_way(const RecordType &type, const Twin &from)
{
    const bool empty_is_null = random_.chance(50);
    const uint32_t calls = try_duplicate(type, from, {true, kNever, empty_is_null});
    try_duplicate(type, from, {false, kNever, false});
    for (uint32_t i = 0; i < std::min(calls, kFailures); ++i)
        try_duplicate(type, from,
                      {true, calls > kFailures ? random_.below(calls) : i, random_.chance(50)});
}

uint32_t Cases::try_duplicate(const RecordType &type, const Twin &from,
                              const Allocation &allocation)
{
    const Mark mark = library_.memory.mark();
    const Twin to = storage(type);
    prepare(allocation);
    set_step("duplicate %s, allocation callback %d, failing at %d", type.name.c_str(),
             allocation.callback, int(allocation.fail_at));
    const AllocFn allocate = allocation.callback ? &Allocator::allocate : nullptr;
    const int32_t of_library =
        library_.codec.duplicate(type, to.library, from.library, allocate, &library_.allocator);
    const int32_t of_model =
        model_.codec.duplicate(type, to.model, from.model, allocate, &model_.allocator);
    require_result(of_library, of_model);
    require(compare_allocations(library_, model_));
    require(compare_memory(library_, model_));
    ++comparisons_;
    tally_.count(of_model ? Seen::copied_without_memory : Seen::copied_whole);
    const auto calls = uint32_t(model_.allocator.calls().size());
    try_release(type, to, random_flags() & ~kBytesInPlace);
    rewind(mark);
    return calls;
}

void Cases::release_case(const RecordType &type)
{
    try_release(type, build(type, Purpose::release), random_flags());
}

void Cases::try_release(const RecordType &type, const Twin &record, uint32_t flags)
{
    for (int round = 1; round <= 2; ++round) {
        set_step("release %s, flags %#x, time %d", type.name.c_str(), flags, round);
        library_.freed.blocks.clear();
        model_.freed.blocks.clear();
        // The second time there is nothing to release, so nobody may call the callback.
        const FreeFn release_block = round == 1 ? &FreeLog::release : nullptr;
        model_.codec.release(type, record.model, &FreeLog::release, &model_.freed, flags);
        library_.codec.release(type, record.library, release_block, &library_.freed, flags);
        require(compare_releases(library_, model_));
        require(compare_memory(library_, model_));
        ++comparisons_;
        tally_.count(model_.freed.blocks.empty() ? Seen::released_nothing : Seen::released_blocks);
    }
}

Twin Cases::build(const RecordType &type, Purpose purpose)
{
    // Both sides see the same random sequence.
    Random again = random_;
    Twin record = {};
    record.library = RecordBuilder(random_, library_.memory, purpose).build(type);
    record.model = RecordBuilder(again, model_.memory, purpose).build(type);
    return record;
}

Twin Cases::storage(const RecordType &type)
{
    // Nobody looks at a record without members, so any address will do.
    if (type.size == 0 && random_.chance(50)) {
        auto *nowhere = reinterpret_cast<uint8_t *>(uintptr_t(random_.below(3)));
        return {nowhere, nowhere};
    }
    return {library_.memory.take(type.size, "record", &type),
            model_.memory.take(type.size, "record", &type)};
}

uint32_t Cases::random_flags()
{
    const uint32_t rubbish = random_.chance(30) ? uint32_t(random_.next()) & ~kBytesInPlace : 0;
    return rubbish | random_.below(2);
}

void Cases::prepare(const Allocation &allocation)
{
    library_.allocator.prepare(allocation.fail_at, allocation.empty_is_null);
    model_.allocator.prepare(allocation.fail_at, allocation.empty_is_null);
}

void Cases::rewind(const Mark &mark)
{
    library_.memory.rewind(mark);
    model_.memory.rewind(mark);
}

void Cases::set_step(const char *how, ...)
{
    va_list arguments;
    va_start(arguments, how);
    std::vsnprintf(step_, sizeof step_, how, arguments);
    va_end(arguments);
    if (verbose)
        std::printf("%s\n", step_);
}

void Cases::require(const std::string &difference)
{
    if (!difference.empty())
        throw Difference{std::string(step_) + "\n" + difference};
}

void Cases::require_result(int64_t of_library, int64_t of_model)
{
    if (of_library != of_model)
        require("result: library " + std::to_string(of_library) + ", model " +
                std::to_string(of_model));
}

} // namespace model
