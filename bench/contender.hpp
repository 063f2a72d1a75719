// SPDX-License-Identifier: MIT
// One implementation with one workload, as the comparison and the timing see it.

#pragma once

#include "bench/workloads.hpp"

#include <benchmark/benchmark.h>

#include <memory>
#include <span>
#include <string_view>
#include <vector>

namespace bench {

using Bytes = std::vector<uint8_t>;
using BytesView = std::span<const uint8_t>;

// The blocks of the table.
enum class Operation {
    measure,
    measure_and_encode, // into a buffer of exactly the size
    encode,             // the same when the size is known
    encode_segments,    // with a list of segments, which peers do not have
    decode,             // into memory that is taken back as a whole
    decode_again,       // over the message before, where an implementation has a way for that
    decode_and_free,    // into memory from malloc
    duplicate,          // into memory that is taken back as a whole
};

inline constexpr std::string_view kOperationNames[] = {
    "measure", "measure+encode", "encode",      "encode_segments",
    "decode",  "decode_again",   "decode+free", "duplicate"};

class Contender {
public:
    virtual ~Contender() = default;
    virtual std::string_view implementation() const = 0;
    virtual bool can(Operation operation) const = 0;

    // For the comparison: an operation once, with its outcome as an encoding; and what becomes of
    // bytes that are decoded and encoded.
    virtual Bytes once(Operation operation, uint32_t variant) = 0;
    virtual Bytes recode(BytesView bytes) = 0;

    // For the clock: the operation again and again, one variant after the other.
    virtual void run(Operation operation, benchmark::State &state) = 0;
};

// What every contender starts from: the encodings of all variants, by the library.
struct Samples {
    explicit Samples(const Workload &workload);

    const Workload &workload;
    std::vector<Bytes> encodings;
    uint32_t longest = 0;
};

// The columns of the table: null for a type that an implementation does not have.
std::unique_ptr<Contender> make_ours(const Samples &samples);
std::unique_ptr<Contender> make_protobuf(const Samples &samples);
std::unique_ptr<Contender> make_protobuf_lite(const Samples &samples);
std::unique_ptr<Contender> make_protobuf_c(const Samples &samples);
std::unique_ptr<Contender> make_nanopb(const Samples &samples);
std::unique_ptr<Contender> make_protozero(const Samples &samples);

} // namespace bench
