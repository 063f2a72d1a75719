// SPDX-License-Identifier: MIT
// Protocol Buffers for C++: messages decoded into an arena that has its first block from the start
// and keeps it, or into a message with the heap behind it.

#pragma once

#include "bench/driver.hpp"

#include <google/protobuf/arena.h>

#include <memory>
#include <optional>

namespace bench {

template <typename Message>
class Protobuf {
public:
    using Object = Message;

    explicit Protobuf(const Samples &samples)
    {
        for (const Bytes &bytes : samples.encodings)
            variants_.push_back(parse(create(kept_), bytes));
        // As long as the longest takes, so that no message needs a second block.
        uint64_t most = 0;
        for (const Bytes &bytes : samples.encodings) {
            google::protobuf::Arena arena;
            parse(create(arena), bytes);
            create(arena)->CopyFrom(*create(arena));
            most = std::max(most, arena.SpaceAllocated());
        }
        first_block_.resize(static_cast<size_t>(most) + 4096);
        google::protobuf::ArenaOptions options;
        options.initial_block = first_block_.data();
        options.initial_block_size = first_block_.size();
        arena_.emplace(options);
    }

    const Message &variant(uint32_t index) { return *variants_[index]; }

    uint32_t measure(const Message &message)
    {
        return static_cast<uint32_t>(message.ByteSizeLong());
    }

    // The lengths inside are those that measuring has left in the message.
    void encode(const Message &message, uint8_t *buffer, uint32_t)
    {
        message.SerializeWithCachedSizesToArray(buffer);
    }

    const Message &decode(BytesView bytes)
    {
        arena_->Reset();
        return *parse(create(*arena_), bytes);
    }

    // What the message has from before is used again, as far as it serves.
    const Message &decode_again(BytesView bytes)
    {
        again_.Clear();
        return *parse(&again_, bytes);
    }

    const Message &decode_on_heap(BytesView bytes) { return *parse(&on_heap_.emplace(), bytes); }

    void free_decoded() { on_heap_.reset(); }

    const Message &duplicate(const Message &message)
    {
        arena_->Reset();
        Message *copy = create(*arena_);
        copy->CopyFrom(message);
        return *copy;
    }

private:
    static Message *create(google::protobuf::Arena &arena)
    {
        return google::protobuf::Arena::CreateMessage<Message>(&arena);
    }

    static Message *parse(Message *message, BytesView bytes)
    {
        if (!message->ParseFromArray(bytes.data(), static_cast<int>(bytes.size())))
            throw std::runtime_error("protobuf refuses a message");
        return message;
    }

    google::protobuf::Arena kept_;
    std::vector<const Message *> variants_;
    std::vector<char> first_block_;
    std::optional<google::protobuf::Arena> arena_;
    std::optional<Message> on_heap_;
    Message again_;
};

} // namespace bench
