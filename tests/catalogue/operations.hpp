// SPDX-License-Identifier: MIT
// The four operations as tests use them, for record types known at run time only.

#pragma once

#include "tests/catalogue/blocks.hpp"
#include "tests/catalogue/cases.hpp"
#include "tests/support/bytes.hpp"

#include <gtest/gtest.h>
#include <memory>
#include <vector>

namespace catalogue {

using test::Bytes;

// Measures, then encodes into exactly that much.
Bytes encode(const RecordType &type, const void *record);

// A record that owns its storage and the blocks in it: decoded, or duplicated from another.
class OwnedRecord {
public:
    // Holds something other than zero until it is decoded or copied into.
    explicit OwnedRecord(const RecordType &type);
    ~OwnedRecord() { release(); }

    // From a buffer of exactly that size; with flags other than 0, `input` has to outlive the
    // record.
    int32_t decode(const Bytes &input, uint32_t flags = 0);
    int32_t copy(const void *original);
    void release();

    const RecordType &type() const { return type_; }
    const void *record() const { return type_.size ? storage_.get() : nullptr; }
    // The memory as it is, gaps and all.
    Bytes image() const;
    Blocks &blocks() { return blocks_; }

private:
    void *storage() { return type_.size ? storage_.get() : nullptr; }

    const RecordType &type_;
    Blocks blocks_;
    std::unique_ptr<uint8_t[]> storage_;
    uint32_t flags_ = 0;
    bool filled_ = false;
};

// Calls check(case, content) for every case, up to the first that fails.
template <typename Check>
void for_each_case(Check check)
{
    for (const Case &test_case : all_cases()) {
        SCOPED_TRACE(name_of(test_case));
        check(test_case, content_of(test_case));
        if (testing::Test::HasFailure())
            return;
    }
}

// Likewise, check(type) for every record type of the library.
template <typename Check>
void for_each_type(Check check)
{
    for (const RecordType &type : record_types()) {
        SCOPED_TRACE(type.name);
        check(type);
        if (testing::Test::HasFailure())
            return;
    }
}

} // namespace catalogue
