// SPDX-License-Identifier: MIT
// The random cases: each does the same to both sides and compares everything that it left behind.

#pragma once

#include "tests/model/library_codec.hpp"
#include "tests/model/model_codec.hpp"
#include "tests/model/random.hpp"
#include "tests/model/random_record.hpp"
#include "tests/model/random_wire.hpp"
#include "tests/model/side.hpp"
#include "tests/model/tally.hpp"

#include <string>

namespace model {

// Thrown at the first difference of a case.
struct Difference {
    std::string text;
};

// An operation that asks for up to so many blocks is tried with each of them refused, one that asks
// for more with so many of them.
constexpr uint32_t kFailures = 24;

// How the allocation callback is to behave in one call.
struct Allocation {
    bool callback = true;
    uint32_t fail_at = kNever;
    bool empty_is_null = false;
};

// A record on both sides.
struct Twin {
    uint8_t *library;
    uint8_t *model;
};

class Cases {
public:
    Cases(LibraryCodec &library, ModelCodec &model)
        : model_codec_(model), library_(library), model_(model), random_(0)
    {}

    // One case; throws Difference.
    void run(const RecordType &type, uint64_t seed);

    // What is too large for the random cases. Throws Difference.
    void run_huge(const RecordType &type);

    uint64_t comparisons() const { return comparisons_; }
    const Tally &tally() const { return tally_; }

    // What is being called just now, for reports of crashes.
    const char *step() const { return step_; }

    bool verbose = false;

private:
    void decode_huge_lists(const RecordType &type);
    void encode_huge_text(const RecordType &type, std::string &text);

    void encode_case(const RecordType &type);
    void encode_into(const RecordType &type, const Twin &record, uint32_t length, uint32_t flags);
    uint32_t try_encode(const RecordType &type, const Twin &record, uint32_t capacity,
                        uint32_t segment_capacity, uint32_t what, uint32_t flags);
    void encode_into_segments(const RecordType &type, const Twin &record, uint32_t capacity,
                              uint32_t pieces, uint32_t flags);
    void count_encode(uint32_t length, uint32_t capacity, uint32_t segment_capacity, uint32_t what);

    void decode_case(const RecordType &type);
    void decode_in_every_way(const RecordType &type, const Bytes &input, uint32_t flags);
    // Both return the number of allocations.
    uint32_t check_decode(const RecordType &type, const Bytes &input, const Allocation &allocation,
                          uint32_t flags);
    uint32_t try_decode(const RecordType &type, const Bytes &input, const Allocation &allocation,
                        uint32_t flags);
    void require_same_outcome(int32_t of_library, int32_t of_model);
    void require_stand_on_the_way();
    void confirm_by_counting(const RecordType &type, const Bytes &input, uint32_t flags);
    Bytes shrink(const RecordType &type, Bytes input, const Allocation &allocation, uint32_t flags);
    Bytes encoded_record(const RecordType &type);
    Bytes some_input(const RecordType &type);

    void duplicate_case(const RecordType &type);
    void duplicate_in_every_way(const RecordType &type, const Twin &from);
    uint32_t try_duplicate(const RecordType &type, const Twin &from, const Allocation &allocation);

    void release_case(const RecordType &type);
    void try_release(const RecordType &type, const Twin &record, uint32_t flags);

    Twin build(const RecordType &type, Purpose purpose);
    // Storage for one record, filled with the pattern.
    Twin storage(const RecordType &type);
    uint32_t random_flags();
    void prepare(const Allocation &allocation);
    void rewind(const Mark &mark);
    void set_step(const char *how, ...) __attribute__((format(printf, 2, 3)));
    void require(const std::string &difference);
    void require_result(int64_t of_library, int64_t of_model);

    ModelCodec &model_codec_;
    Side library_;
    Side model_;
    Random random_;
    uint64_t comparisons_ = 0;
    // By the last call that was asked for their number.
    uint32_t segments_reported_ = 0;
    Tally tally_;
    char step_[256] = "";
};

} // namespace model
