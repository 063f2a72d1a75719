// SPDX-License-Identifier: MIT
// The alloc_fn and free_fn of the tests. It writes down what it is asked, fails when told to, fills
// blocks with rubbish, and fails the test over a block that is lost, damaged or not its own.

#pragma once

#include "tests/support/undefined.hpp"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <vector>

namespace test {

class Blocks {
public:
    static constexpr uint8_t kRubbish = 0xDB;

    Blocks() = default;
    Blocks(const Blocks &) = delete;
    Blocks &operator=(const Blocks &) = delete;

    ~Blocks()
    {
        EXPECT_EQ(held(), lost_) << "blocks that nobody gave back";
        for (const Block &block : blocks_)
            std::free(block.data);
    }

    // Requests are counted from 0.
    void fail_only(size_t request) { first_failure_ = last_failure_ = request; }
    void fail_from(size_t request) { first_failure_ = request; }
    void refuse_empty() { refuses_empty_ = true; }
    // So many blocks may be left over: a record that is replaced loses what it held.
    void expect_lost(size_t count) { lost_ = count; }

    // The sizes asked for, those answered with null among them.
    const std::vector<uint32_t> &sizes() const { return sizes_; }
    // Which requests' blocks came back, in that order.
    const std::vector<size_t> &returned() const { return returned_; }
    size_t held() const { return blocks_.size(); }

    static void *take(uint32_t size, void *context)
    {
        return static_cast<Blocks *>(context)->take(size);
    }

    static void give_back(void *data, void *context)
    {
        static_cast<Blocks *>(context)->give_back(data);
    }

private:
    struct Block {
        uint8_t *data;
        uint32_t size;
        size_t request;
    };

    static constexpr size_t kNever = SIZE_MAX;
    // Bytes behind each block that must stay rubbish.
    static constexpr size_t kMargin = 8;

    void *take(uint32_t size)
    {
        const size_t request = sizes_.size();
        sizes_.push_back(size);
        if ((request >= first_failure_ && request <= last_failure_) || (refuses_empty_ && !size))
            return nullptr;
        uint8_t *data = static_cast<uint8_t *>(std::malloc(size_t{size} + kMargin));
        std::memset(data, kRubbish, size_t{size} + kMargin);
        make_undefined(data, size);
        blocks_.push_back({data, size, request});
        return data;
    }

    void give_back(void *data)
    {
        for (size_t i = 0; i < blocks_.size(); i++) {
            if (blocks_[i].data != data)
                continue;
            for (size_t at = 0; at < kMargin; at++)
                EXPECT_EQ(blocks_[i].data[blocks_[i].size + at], kRubbish)
                    << "written behind the block of request " << blocks_[i].request;
            returned_.push_back(blocks_[i].request);
            std::free(data);
            blocks_.erase(blocks_.begin() + static_cast<long>(i));
            return;
        }
        ADD_FAILURE() << "given back, but not a block that is held: " << data;
    }

    std::vector<Block> blocks_;
    std::vector<uint32_t> sizes_;
    std::vector<size_t> returned_;
    size_t first_failure_ = kNever;
    size_t last_failure_ = kNever;
    size_t lost_ = 0;
    bool refuses_empty_ = false;
};

} // namespace test
