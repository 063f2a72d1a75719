// SPDX-License-Identifier: MIT
#include "tests/fuzz/memory.hpp"

#include "tests/fuzz/poison.hpp"
#include "tests/fuzz/require.hpp"

#include <algorithm>
#include <string.h>

namespace fuzz {

namespace {

constexpr size_t kAlignment = 8;
constexpr size_t kGap = 8;
constexpr uint8_t kGapByte = 0xFD;

constexpr size_t round_up(size_t size)
{
    return (size + kAlignment - 1) / kAlignment * kAlignment;
}

// Where a sanitizer guards the gaps, they can neither be filled nor looked at.
#if defined(TARN_FUZZ_ASAN) || defined(TARN_FUZZ_MSAN) || defined(TARN_FUZZ_VALGRIND)
constexpr bool kGapsAreGuarded = true;
#else
constexpr bool kGapsAreGuarded = false;
#endif

size_t gap_behind(size_t size)
{
    return round_up(size) - size + kGap;
}

} // namespace

Arena::Arena()
{
    forbid(bytes_, sizeof bytes_);
}

uint8_t *Arena::take(size_t size)
{
    TARN_FUZZ_REQUIRE(size <= kSize / 8 && used_ <= kSize / 8 * 7 - kGap);
    uint8_t *piece = bytes_ + used_;
    used_ += round_up(size) + kGap;
    permit(piece, size);
    memset(piece, kRubbish, size);
    if (!kGapsAreGuarded)
        memset(piece + size, kGapByte, gap_behind(size));
    return piece;
}

void Arena::reset()
{
    forbid(bytes_, used_);
    used_ = 0;
}

Arena &arena()
{
    static Arena instance;
    return instance;
}

bool is_intact_behind(const uint8_t *piece, size_t size)
{
    if (kGapsAreGuarded)
        return true;
    const uint8_t *gap = piece + size;
    return std::all_of(gap, gap + gap_behind(size), [](uint8_t byte) { return byte == kGapByte; });
}

void Blocks::begin(FailurePlan plan)
{
    plan_ = plan;
    blocks_.clear(); // keeps its memory, which is why these objects live on
    spent_ = 0;
    refused_ = false;
    requests_ = late_requests_ = held_ = returned_ = seen_ = 0;
}

void *Blocks::allocate(uint32_t size, void *context)
{
    Blocks &blocks = *static_cast<Blocks *>(context);
    blocks.requests_++;
    blocks.late_requests_ += blocks.refused_;
    if (size > kBudget - blocks.spent_ || blocks.plan_.refuses(blocks.requests_)) {
        blocks.refused_ = true;
        return nullptr;
    }
    uint8_t *data = arena().take(size);
    blocks.spent_ += size;
    forget(data, size);
    blocks.blocks_.push_back({data, size, true, false});
    blocks.held_++;
    return data;
}

// Blocks that came back are forbidden ground from there on.
void Blocks::release(void *data, void *context)
{
    Blocks &blocks = *static_cast<Blocks *>(context);
    Block *block = blocks.find(data);
    TARN_FUZZ_REQUIRE(block);
    TARN_FUZZ_REQUIRE(block->held);
    TARN_FUZZ_REQUIRE(is_intact_behind(block->data, block->size));
    block->held = false;
    blocks.held_--;
    blocks.returned_++;
    if (!kGapsAreGuarded)
        memset(block->data, kRubbish, block->size);
    forbid(block->data, block->size);
}

Block *Blocks::find(const void *data)
{
    const auto found = std::lower_bound(
        blocks_.begin(), blocks_.end(), data,
        [](const Block &block, const void *address) { return block.data < address; });
    return found != blocks_.end() && found->data == data ? &*found : nullptr;
}

const Block &Blocks::find_once(const void *data)
{
    Block *block = find(data);
    TARN_FUZZ_REQUIRE(block);
    TARN_FUZZ_REQUIRE(block->held);
    TARN_FUZZ_REQUIRE(!block->seen);
    block->seen = true;
    seen_++;
    return *block;
}

void Blocks::forget_seen()
{
    for (Block &block : blocks_)
        block.seen = false;
    seen_ = 0;
}

} // namespace fuzz
