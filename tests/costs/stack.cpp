// SPDX-License-Identifier: MIT
// Prints how much stack the four operations take, and for which record types most.

#include "tests/costs/arena.hpp"
#include "tests/costs/deep_message.hpp"
#include "tests/costs/exported.hpp"
#include "tests/costs/stack_depth.hpp"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <vector>

namespace {

using namespace costs;
using catalogue::RecordType;

constexpr uint32_t kMemory = 1 << 20;
constexpr size_t kShown = 3;

struct Depth {
    const RecordType *type;
    size_t bytes;
};

enum Operation { kEncode, kDecode, kDuplicate, kFree, kOperations };
constexpr const char *kNames[] = {"encode_ext", "decode_ext", "duplicate", "free_ext"};

struct Depths {
    std::vector<Depth> of[kOperations];
};

// The operations on one record, in the order in which they can be called.
class Subject {
public:
    explicit Subject(const RecordType &type)
        : type_(type), operations_(operations_of(type)), message_(deep_message(type)),
          record_(type.size / 8 + 1), copy_(type.size / 8 + 1), buffer_(kMemory)
    {}

    void decode()
    {
        result_ = operations_.decode(at(record_), message_.data(), message_.length(),
                                     Arena::allocate, &first_, 0);
    }

    void encode()
    {
        count_ = kSegments;
        size_ = operations_.encode(at(record_), buffer_.data(), kMemory, segments_, &count_, 0);
    }

    void duplicate()
    {
        result_ = operations_.duplicate(at(copy_), at(record_), Arena::allocate, &second_);
    }

    void release() { operations_.release(at(copy_), Arena::release, &second_, 0); }

    // Whether the last operation has done all that it should.
    void require_done() const
    {
        if (result_ == WIRE_OK && size_ <= kMemory)
            return;
        std::fprintf(stderr, "%s is not done whole\n", type_.name);
        std::exit(1);
    }

private:
    void *at(std::vector<uint64_t> &words) { return type_.size ? words.data() : nullptr; }

    const RecordType &type_;
    const Operations operations_;
    const Bytes message_;
    std::vector<uint64_t> record_;
    std::vector<uint64_t> copy_;
    Bytes buffer_;
    static constexpr uint32_t kSegments = 8;
    WireSegment segments_[kSegments];
    uint32_t count_ = 0;
    uint32_t size_ = 0;
    int32_t result_ = WIRE_OK;
    Arena first_{kMemory};
    Arena second_{kMemory};
};

void measure(PaintedStack &stack, const RecordType &type, Depths &depths)
{
    Subject subject(type);
    const auto add = [&](Operation operation, const Call &call, const Call &prepare) {
        depths.of[operation].push_back({&type, stack.depth_of(call, prepare)});
        subject.require_done();
    };
    const auto nothing = [] {};
    const auto duplicate = [&] { subject.duplicate(); };
    add(
        kDecode, [&] { subject.decode(); }, nothing);
    add(
        kEncode, [&] { subject.encode(); }, nothing);
    add(kDuplicate, duplicate, nothing);
    add(
        kFree, [&] { subject.release(); }, duplicate);
}

// Returns what the deepest takes.
size_t print(const char *operation, std::vector<Depth> depths)
{
    std::stable_sort(depths.begin(), depths.end(),
                     [](const Depth &a, const Depth &b) { return a.bytes > b.bytes; });
    std::printf("| `%s` | %zu | %zu |", operation, depths.front().bytes,
                depths[depths.size() / 2].bytes);
    for (size_t i = 0; i < kShown; i++)
        std::printf("%s %s %zu", i ? "," : "", depths[i].type->name, depths[i].bytes);
    std::printf(" |\n");
    return depths.front().bytes;
}

} // namespace

// With a limit as its argument it tells, too, whether no operation takes more.
int main(int count, char **words)
{
    const size_t limit = count > 1 ? std::strtoul(words[1], nullptr, 10) : SIZE_MAX;
    PaintedStack stack;
    Depths depths;
    for (const RecordType &type : catalogue::record_types())
        measure(stack, type, depths);
    std::printf("| operation | most | median | where |\n|---|---|---|---|\n");
    size_t most = 0;
    for (int i = 0; i < kOperations; i++)
        most = std::max(most, print(kNames[i], depths.of[i]));
    return most > limit ? 1 : 0;
}
