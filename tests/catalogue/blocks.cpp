// SPDX-License-Identifier: MIT
#include "tests/catalogue/blocks.hpp"

#include "tests/support/undefined.hpp"

#include <algorithm>
#include <gtest/gtest.h>
#include <string.h>

namespace catalogue {

Blocks::~Blocks()
{
    EXPECT_TRUE(out_.empty()) << out_.size() << " blocks were not handed back";
    for (const auto &[block, size] : out_)
        delete[] static_cast<const uint8_t *>(block);
}

void *Blocks::allocate(uint32_t size, void *blocks)
{
    Blocks &self = *static_cast<Blocks *>(blocks);
    self.asked_.push_back(size);
    if (std::count(self.refused_.begin(), self.refused_.end(), size))
        return nullptr;
    uint8_t *block = new uint8_t[size];
    memset(block, 0xA5, size);
    test::make_undefined(block, size);
    self.out_.emplace(block, size);
    return block;
}

void Blocks::release(void *block, void *blocks)
{
    Blocks &self = *static_cast<Blocks *>(blocks);
    self.returned_.push_back(block);
    if (self.out_.erase(block))
        delete[] static_cast<uint8_t *>(block);
    else
        ADD_FAILURE() << block << " was handed back without being out";
}

} // namespace catalogue
