// SPDX-License-Identifier: MIT
// Any number of threads may call any operation of any record type at once, and share what all of
// them only read. Data races are found by the thread sanitizer (preset tsan); everywhere else the
// threads see whether each gets its own results.
#include "tests/catalogue/filled_record.hpp"
#include "tests/catalogue/operations.hpp"

#include <functional>
#include <gtest/gtest.h>
#include <latch>
#include <string>
#include <thread>

namespace catalogue {

namespace {

constexpr size_t kThreads = 8;
constexpr size_t kRounds = 3;
constexpr uint32_t kPieces = 64;

struct Encoding {
    Bytes bytes;
    uint32_t pieces;

    bool operator==(const Encoding &) const = default;
};

// Not by way of `encode`: nothing that a thread calls may take a lock, which would put the threads
// in an order and hide their races.
Encoding encode_with_pieces(const RecordType &type, const void *record, uint32_t flags)
{
    Encoding result{Bytes(type.encode(record, nullptr, 0, nullptr, nullptr, flags)), kPieces};
    WireSegment segments[kPieces];
    type.encode(record, result.bytes.data(), result.bytes.length(), segments, &result.pieces,
                flags);
    return result;
}

// A complete record of one type, and all that threads should make of it.
struct Shared {
    Shared(const RecordType &its_type, uint32_t variant)
        : type(its_type), record(content_of({&its_type, Shape::all, variant, 0})),
          encoding(encode_with_pieces(type, record.record(), 0)),
          in_place(encode_with_pieces(type, record.record(), WIRE_FLAG_BYTES_IN_PLACE))
    {}

    const RecordType &type;
    const FilledRecord record;
    const Encoding encoding;
    const Encoding in_place;
};

using Share = std::vector<std::unique_ptr<const Shared>>;

Share shared_records()
{
    Share share;
    for (const RecordType &type : record_types())
        for (const uint32_t variant : {1u, 4u})
            share.push_back(std::make_unique<const Shared>(type, variant));
    return share;
}

bool encodes(const Shared &shared)
{
    const void *record = shared.record.record();
    return encode_with_pieces(shared.type, record, 0) == shared.encoding &&
           encode_with_pieces(shared.type, record, WIRE_FLAG_BYTES_IN_PLACE) == shared.in_place;
}

bool copies(const Shared &shared)
{
    OwnedRecord copy(shared.type);
    return copy.copy(shared.record.record()) == WIRE_OK &&
           encode_with_pieces(shared.type, copy.record(), 0) == shared.encoding;
}

bool decodes(const Shared &shared)
{
    for (const uint32_t flags : {uint32_t{0}, WIRE_FLAG_BYTES_IN_PLACE}) {
        OwnedRecord decoded(shared.type);
        if (decoded.decode(shared.encoding.bytes, flags) != WIRE_OK ||
            encode_with_pieces(shared.type, decoded.record(), 0) != shared.encoding)
            return false;
    }
    return true;
}

// From the one at `first` on, and around.
std::string first_failure(const Share &share, size_t first, bool (*works)(const Shared &))
{
    for (size_t i = 0; i < kRounds * share.size(); i++) {
        const Shared &shared = *share[(first + i) % share.size()];
        if (!works(shared))
            return shared.type.name;
    }
    return {};
}

// Starts all threads at the same moment, each as many records from the one before as `distance`
// says.
void expect_in_all_threads(const Share &share, size_t distance, bool (*works)(const Shared &))
{
    std::vector<std::string> failures(kThreads);
    std::latch start(kThreads);
    std::vector<std::thread> threads;
    for (size_t i = 0; i < kThreads; i++)
        threads.emplace_back([&, i] {
            start.arrive_and_wait();
            failures[i] = first_failure(share, i * distance, works);
        });
    for (std::thread &thread : threads)
        thread.join();
    for (size_t i = 0; i < kThreads; i++)
        EXPECT_EQ(failures[i], "") << "in thread " << i;
}

TEST(threads, encode_one_record_at_the_same_time)
{
    expect_in_all_threads(shared_records(), 0, encodes);
}

TEST(threads, copy_one_record_at_the_same_time)
{
    expect_in_all_threads(shared_records(), 0, copies);
}

TEST(threads, decode_the_same_bytes_each_into_a_record_of_its_own)
{
    expect_in_all_threads(shared_records(), 0, decodes);
}

TEST(threads, do_whatever_they_like_with_all_types_at_once)
{
    const Share share = shared_records();
    expect_in_all_threads(share, share.size() / kThreads, [](const Shared &shared) {
        return encodes(shared) && copies(shared) && decodes(shared);
    });
}

} // namespace

} // namespace catalogue
