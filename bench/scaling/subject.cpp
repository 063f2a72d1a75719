// SPDX-License-Identifier: MIT
#include "bench/scaling/subject.hpp"

#include <algorithm>
#include <stdexcept>

namespace bench {

namespace {

void *allocate_from(uint32_t size, void *bump)
{
    return static_cast<Bump *>(bump)->allocate(size);
}

} // namespace

Subject::Subject(Workload workload, uint32_t arena)
    : workload_(std::move(workload)), arena_(arena), record_(workload_.record_size / 8 + 1)
{
    uint32_t longest = 0;
    for (const void *record : workload_.variants) {
        const uint32_t size = workload_.encode(record, nullptr, 0, nullptr, nullptr, 0);
        Bytes &bytes = encodings_.emplace_back(size);
        require(workload_.encode(record, bytes.data(), size, nullptr, nullptr, 0) == size);
        bytes_ += size;
        longest = std::max(longest, size);
    }
    buffer_.resize(longest);
    // What is timed is worth something only if it does what it should. It also touches all memory.
    for (size_t i = 0; i < encodings_.size(); i++) {
        for (Operation operation : {Operation::duplicate, Operation::decode}) {
            once(operation, i);
            const uint32_t size =
                workload_.encode(record_.data(), buffer_.data(), longest, nullptr, nullptr, 0);
            require(std::ranges::equal(std::span(buffer_).first(size), encodings_[i]));
        }
    }
}

void Subject::require(bool holds) const
{
    if (!holds)
        throw std::runtime_error("an operation fails, or comes to something else");
}

void Subject::once(Operation operation, size_t message)
{
    const void *record = workload_.variants[message];
    const Bytes &bytes = encodings_[message];
    const uint32_t size = static_cast<uint32_t>(bytes.size());
    arena_.reset();
    switch (operation) {
    case Operation::measure:
        require(workload_.encode(record, nullptr, 0, nullptr, nullptr, 0) == size);
        break;
    case Operation::encode:
        require(workload_.encode(record, buffer_.data(), size, nullptr, nullptr, 0) == size);
        break;
    case Operation::decode:
        require(workload_.decode(record_.data(), bytes.data(), size, allocate_from, &arena_, 0) ==
                WIRE_OK);
        break;
    case Operation::duplicate:
        require(workload_.duplicate(record_.data(), record, allocate_from, &arena_) == WIRE_OK);
        break;
    default:
        require(false);
    }
}

void Subject::run(Operation operation, benchmark::State &state)
{
    for (auto _ : state) {
        for (size_t i = 0; i < encodings_.size(); i++)
            once(operation, i);
        benchmark::ClobberMemory();
    }
}

} // namespace bench
