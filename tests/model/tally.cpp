// SPDX-License-Identifier: MIT
// The names of the classes, and which class a decode belongs to.

#include "tests/model/tally.hpp"
#include "tests/model/codec.hpp"

#include <cinttypes>
#include <cstdio>

namespace model {

namespace {

// In the order of Reason. Lists that are too large are not among them: see huge_cases.cpp.
constexpr const char *kReasons[] = {
    "well, up to the end",
    "well, an unknown field past the end",
    "malformed, a varint cut off",
    "malformed, a length past the end",
    "malformed, a length that wraps",
    "malformed, a member met again",
    "wire type",
    "type mismatch",
    "no allocation callback",
    "no block",
};

// In the order of Level.
constexpr const char *kLevelNames[] = {"in the outermost record", "in an embedded record",
                                       "in an element", "deeper than that"};

// By bit of Passed; there are no unknown fields of types 3 and 4.
constexpr const char *kPassed[] = {
    "an unknown varint",
    "an unknown fixed64",
    "an unknown byte string",
    nullptr,
    nullptr,
    "an unknown fixed32",
    "a number",
    "an embedded record",
    "an embedded record that asks for blocks",
    "several jumps",
    "after members that point somewhere",
};

// In the order of Seen.
constexpr const char *kOthers[] = {
    "encoded: only measured",
    "encoded: into a buffer that is large enough",
    "encoded: into one that is not",
    "encoded: into segments that are enough",
    "encoded: into segments that are not",
    "encoded: byte strings as segments",
    "copied: whole",
    "copied: without memory for all",
    "released: blocks",
    "released: nothing",
};
static_assert(std::size(kOthers) == size_t(Seen::count));

void print_class(const char *name, uint64_t count, int *empty)
{
    std::printf("  %-44s %10" PRIu64 "%s\n", name, count, count ? "" : "  <- none");
    *empty += !count;
}

} // namespace

void Tally::count_decode(int32_t result, const Sightings &seen)
{
    if (seen.endless) {
        if (result != kMalformed) {
            ++endless_without_memory_;
            return;
        }
        ++endless_;
        ++endless_at_[size_t(seen.loop.level)];
        for (size_t bit = 0; bit < kPassedBits; ++bit)
            passed_[bit] += seen.loop.passed >> bit & 1;
        endless_alone_ += (seen.loop.passed & ~uint32_t(kBlocksBefore)) == 0;
        return;
    }
    Ends &ends = ends_[size_t(seen.reason)];
    ++(seen.went_back ? ends.after_going_back : ends.straight);
    if (result)
        ++errors_at_[size_t(seen.level)];
}

int Tally::print() const
{
    int empty = 0;
    print_ends(&empty);
    print_endless(&empty);
    for (size_t i = 0; i < std::size(kOthers); ++i)
        print_class(kOthers[i], others_[i], &empty);
    return empty;
}

void Tally::print_ends(int *empty) const
{
    std::printf("decoded:\n");
    for (size_t i = 0; i < std::size(kReasons); ++i)
        print_class(kReasons[i], ends_[i].straight, empty);
    std::printf("decoded, going back:\n");
    for (size_t i = 0; i < std::size(kReasons); ++i)
        print_class(kReasons[i], ends_[i].after_going_back, empty);
    std::printf("errors:\n");
    for (size_t i = 0; i < errors_at_.size(); ++i)
        print_class(kLevelNames[i], errors_at_[i], empty);
}

void Tally::print_endless(int *empty) const
{
    std::printf("endless, %" PRIu64 " in all:\n", endless_);
    for (size_t i = 0; i < endless_at_.size(); ++i)
        print_class(kLevelNames[i], endless_at_[i], empty);
    print_class("nothing but one jump", endless_alone_, empty);
    for (size_t bit = 0; bit < kPassedBits; ++bit)
        if (kPassed[bit])
            print_class(kPassed[bit], passed_[bit], empty);
    // Only a library that takes its time to find out has any of these.
    int none = 0;
    print_class("out of memory before that shows", endless_without_memory_, &none);
    std::printf("after going back, confirmed by counting steps:\n");
    print_class("that it ends", confirmed_[false], empty);
    print_class("that it does not", confirmed_[true], empty);
    std::printf("besides:\n");
}

} // namespace model
